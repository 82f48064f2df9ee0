<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>すべて元に戻す</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>デバイスの %1 は表示どおりです。</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>適用すると %1 のキーが 1 個変わります：</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>適用すると %1 個のキーが変わります（%2）：</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>デバイス側：%1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>キー %1 を元に戻す</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>%1 個のキーを元に戻す</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>デバイス側</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>適用後</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>デバイスからマクロとして戻しました：%1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>CheckPage</name>
    <message>
        <source>THIS PROFILE</source>
        <translation>このプロファイル</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>すべてのプロファイル</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>問題はありません。</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>確認事項が 1 件あります。</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>確認事項が %1 件あります。</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 をデバイスに送りました。%2 「チェック」を参照してください。</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>最初の %1 件を表示しています。</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>ここへ移動</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>動作中のプロファイル</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>デバイスが動作に使うプロファイル</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>選んだキーの深さ（パーセント）</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>デバイスが送信するもの</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>離す</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>すべてのキーを離す</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>深さ</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>プロファイルと同じ内容です。</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>1 個のキーがプロファイルと異なります。適用すると送信されます。</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 個のキーがプロファイルと異なります。適用すると送信されます。</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>パッドのキーを押してください。</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ %1 を押す</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ %1 を離す</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>%1 ms 待つ</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>%1 に切り替え</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>エクスポート...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>プロファイルのエクスポート</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>エクスポートするプロファイル</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>エクスポートするプロファイル（マクロを含む）：</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>付属するマクロはありません。</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>付属するマクロ：%1。</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>プロファイル (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 に書き込めませんでした：%2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>1 個のプロファイルを %1 にエクスポートしました。</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>%1 個のプロファイルを %2 にエクスポートしました。</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>機能、キー、マクロを検索</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>見つかったキー</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>該当するキーはありません。</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>キー：%1、プロファイル：%2。</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>最初の %1 件を表示しています。</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>ステップをダブルクリックするか Enter を押すと、そこまで戻ったり進んだりします。履歴はプログラムを閉じても残ります。</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>最初の状態</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   （現在）</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>それより前のステップは、ここで最も古いものに戻ると表示されます。</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>ファイルが開かれていません。</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>プロファイルのインポート</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>開く...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>ファイルのプロファイル</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>ファイルのプロファイル</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>置き換え先</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>プロファイル (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み込めません：%2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>プロファイル %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>置き換え先</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>2 個のプロファイルが %1 に置き換わることになります。</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>付属するマクロ：%1。</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>1 個のプロファイルをインポートしました。</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>%1 個のプロファイルをインポートしました。</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>同じ名前のマクロがあったため、マクロ「%1」はここでは「%2」という名前です。</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>このコンピューターに %1 が見つかりません。見つかるまでその機能は動作しません。</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>マクロをインポートしました。</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1（未割り当て）</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（変更あり）</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>コード %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1（%2%）</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>キー %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>キー %1（%2）</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>キー %1 と %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>記録中
キーを押してください。終了するには Esc を 2 回押すか［停止］をクリックします。</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>マクロのイベント</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>マクロの末尾にキーを記録</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>記録したキーの待ち時間</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>元の待ち時間</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>待ち時間なし</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>一定の待ち時間</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>一定の待ち時間（ミリ秒）</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>すべてに設定</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>マクロのすべてのイベントにこの待ち時間を設定</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>追加するイベント</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>押して離す</translation>
    </message>
    <message>
        <source>press</source>
        <translation>押す</translation>
    </message>
    <message>
        <source>release</source>
        <translation>離す</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>イベントを上へ (Alt+↑)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>イベントを下へ (Alt+↓)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>選んだイベント：</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1：%2／%3 イベント</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>マクロを新規作成してから、キーを記録してください。</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>「%1」はマクロに使えないキーです。</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>記録中：%1 / %2 イベント
キーを押してください。終了するには Esc を 2 回押すか［停止］をクリックします。</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>離す</translation>
    </message>
    <message>
        <source>press</source>
        <translation>押す</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
</context>
<context>
    <name>MacroEventModel</name>
    <message>
        <source>%1 (code %2)</source>
        <translation>%1（コード %2）</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>マクロ %1 にイベントを追加</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>マクロ %1 のイベントを削除</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>マクロ %1 のイベントを移動</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>マクロ %1 の待ち時間を変更</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ 押す</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ 離す</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>その後の待ち時間</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>マクロ %1 の待ち時間を 1 つ変更</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>マクロ %1 のイベントを 1 つ変更</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>キーに戻る</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>マクロ</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>使っているキーはありません</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>使っているキー</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>このキーへ移動</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>マクロ %1 を追加</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>マクロ</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>マクロには名前が必要です。</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>マクロ %1 の名前を %2 に変更</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>「%1」という名前のマクロがほかにあります。</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>マクロ %1 を削除</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>マクロ %1 を削除しました。</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>マクロ %1 を削除し、%2 個のキーから外しました。</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>マクロを記録してから戻り、キーに選んでください。</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>新しいマクロは空だったため、保存しませんでした。</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>同じイベントを持つ別のマクロを作成</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>マクロ %1 を削除し、1 個のキーから外しました。</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>マクロ %1 を移動</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>マクロのイベントは最大 %1 個です。</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>パッドにはこのキーのコードがありません。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>マッピング</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>設定(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>プロファイル(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>キーを検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>キーを押して割り当て(&amp;P)</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>パッドのキーを選んでいる間は、次に押したキーがそこに割り当てられます。オフのときはキーボードでウィンドウを操作します。</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>デバイスに適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>プロファイル名(&amp;N)</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>すべてデバイスに送信済みです。</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>まだデバイスにありません：%1。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>元に戻しました：%1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>やり直しました：%1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>元に戻す(&amp;U) %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>やり直し(&amp;R) %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>元に戻す %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>やり直し %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>適用するものはありません</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>適用するキー：1 個</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>適用するキー：%1 個</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>デバイス：%1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>変更 %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (読み取り専用)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>パッドのキーをクリックして、動作を選んでください。</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>チェック %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>次に押すキーが %1 に割り当てられます。キーを選んでいないときに Ctrl+K を押すとオフになります。</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>変更を保存できません。ウィンドウを閉じると失われます。閉じますか？</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>元に戻すものはありません</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>やり直すものはありません</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>元に戻したステップ：%1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>やり直したステップ：%1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>コンパニオン</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 をデバイスに送りました。</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 はデバイスに届きませんでした。</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 をリセット</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>デバイスと %1 をリセットしました。「元に戻す」でキーが戻ります。ほかのプロファイルはここに残っており、もう一度適用できます。</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>デバイスをリセットしました。プロファイルはここに残っており、もう一度適用できます。</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>パッドの図</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 のマクロ「%2」はもうありません。</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 のマクロ「%2」は空です。</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 のデュアルアクションに 2 つ目のアクションがありません。</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 のデュアルアクションに 1 つ目のアクションがありません。</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 は %2 の機能ですが、このコンピューターに見つかりません。</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 は %2 の機能ですが、このコンピューターに見つかりません。</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%2 の %1 からこのプロファイルに移れますが、戻るキーがありません。</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 は同じ動作をします：%2。</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 はオブジェクトではありません</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>ここにメンバー「%1」がありません</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 はリストではありません</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>要素 %1 個は上限 %2 個を超えています</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 は %2 から %3 までの整数ではありません</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 はテキストではありません</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>テキストに保存できない文字が含まれています</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>「%1」という名前のマクロが 2 つあります</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>プロファイル %1 が 2 回出てきます</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>これはプロファイルのファイルではありません</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>ファイルのバージョンは %1 ですが、このプログラムが読めるのは %2 までです</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>マクロには名前が必要です</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>%1 バイトです（%2 バイトではありません）</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 は真でも偽でもありません</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>キー %1 が 2 回出てきます</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 は 0、2、3 のどれでもありません</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>キーには app、hotKey、shortcut、extended、macro のうち 1 つしか指定できません</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 は拡張コードではありません</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>プロファイル %1 をインポート</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>%1 個のプロファイルをインポート</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>何もない値</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>%1 行 %2 列</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>マクロをインポート</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>このプロファイルを別のプロファイルに上書きコピー</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>このプロファイルのすべてのキーを空にする</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>上へ移動 (Alt+↑)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>下へ移動 (Alt+↓)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>名前の変更(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>複製(&amp;D)</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>上書きコピー(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>消去(&amp;C)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下へ移動(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>次のプロファイル(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>前のプロファイル(&amp;P)</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>表示中</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>デバイスが使用中</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>デバイス側と異なる</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>すべてのプロファイルが使用中です。上書きするものを選んでください。</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>%1 を複製</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1 をプロファイル %2 にコピーしました。</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  （未使用）</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>%1 を消去</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1 を消去しました。「元に戻す」で復元できます。</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>%1 を移動</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 のキーには何も割り当てられていません。</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>%1 のコピー</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>プロファイル %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>言語(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>ショートカット一覧(&amp;H)：</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>ショートカット一覧</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>プロファイルあたりのマクロキー数(&amp;M)：</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>フォルダー %1 はありません。</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>プログラム %1 はありません。</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>マクロ</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>プロファイルのインポート...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>プロファイルのエクスポート...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>キー %1 の深さ：%2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>キー %1 を消去</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>%1 をキー %2 に割り当て</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>複数のプロファイルで %n 個のキーを変更</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>%1 個のキーを消去</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>%1 個のキーにデュアルアクション</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>%1 個のキーを変更</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>マクロ %1 の名前を %2 に変更</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>マクロ %1 を作成</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>マクロ %1 を削除</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>マクロを移動</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>マクロ %1 を編集</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>プリセット：%1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>プロファイル %1 の名前：%2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>プロファイルを移動</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>感圧をオン</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>感圧をオフ</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>データ %1 がありませんでした。最後の正常なコピーを使います。</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>データ %1 はこのプログラムの新しいバージョンで書かれています。</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>データ %1 は壊れていて読み込めません。</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>そのまま残しました。</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>%1 として残しました。</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>最後の正常なコピーを使います。</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>正常なコピーがないため、空の状態から始めます。</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>データ %1 を更新しました。以前のバージョンのファイルは %2 として残しました。</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>プログラムの実行中にデータ %1 が別のファイルに置き換えられました。そのファイルは %2 として残し、データを書き直しました。</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>プログラムの実行中にデータ %1 が削除されました。書き直しました。</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>すべての変更が再び保存されました。</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>変更はメモリに保持し、可能になりしだい保存します。</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>ディスクにデータ %1 を保存する空きがありません。</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>別のプログラムがデータ %1 を使用しています。</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>データ %1 に書き込めません。</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>読み込めるようになり次第、内容を表示します。</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>内容を読み込めるまで、最後の正常なコピーを表示します。</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>データ %1 は別のウィンドウで開いています。</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>ここに表示しますが、ここでの変更は保存されません。</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>ここでは読み込めず、ここでの変更は保存されません。</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>コピー %1 を読み込めません。%2 として残しました。</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>変更が行われたとき、ディスク上のデータ %1 はここに表示していたものと違っていました。%2 として残し、新しいデータを作りました。</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>データ %1 を現在ディスク上にあるとおりに表示しています。</translation>
    </message>
</context>
</TS>
