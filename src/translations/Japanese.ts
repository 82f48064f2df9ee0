<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>アクション</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>アクション</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>左 CTRL</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>左 SHIFT</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>左 ALT</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>右 CTRL</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>右 SHIFT</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>右 ALT</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>キーの再割り当て</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>コントローラーモード</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>デュアルアクションモード</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>割り当てを消去</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>キーを無効化</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>マクロの割り当て数が上限に達しました</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>プログラムのパスが見つかりません。</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>手動で指定してください：</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>バックライト</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>A1</source>
        <translation>A1</translation>
    </message>
    <message>
        <source>A2</source>
        <translation>A2</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>BLUR</source>
        <translation>ぼかし</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>ブラシサイズ</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>ブラシの硬さ</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>切り抜き</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>コピースタンプ</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>覆い焼き</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>スポイト</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>なげなわ</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>PS を起動</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>長方形選択</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>ペン</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>ポインター</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>クイック選択</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>逆再生</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>比較表示</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>順再生</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>インポイントへ</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>アウトポイントへ</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>手のひら</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>PR を起動</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>インをマーク</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>アウトをマーク</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>再生/停止</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>レーザー</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>リップル</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>スリップ</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>1 フレーム戻る</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>1 フレーム進む</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>トラックの前方選択</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>アートボード</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>ブラシの不透明度</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>ダイレクト選択</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>楕円形</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>AI を起動</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>多角形</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>角丸長方形</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>アクション 1 を再生します。Photoshop でアクションに F2 を割り当ててください</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>アクション 2 を再生します。Photoshop でアクションに F3 を割り当ててください</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>アクション 3 を再生します。Photoshop でアクションに F4 を割り当ててください</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>感圧ぼかし（Presso）を使うには、
Photoshop でぼかしツールに N を割り当ててください (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>比較表示
Premiere Pro で比較表示に F2 を割り当ててください (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>アクション 1 を再生します。Illustrator でアクションに F2 を割り当ててください</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>アクション 2 を再生します。Illustrator でアクションに F3 を割り当ててください</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>アクション 3 を再生します。Illustrator でアクションに F4 を割り当ててください</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>多角形
Illustrator で多角形ツールに 2 を割り当ててください (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>角丸長方形
Illustrator で角丸長方形ツールに 1 を割り当ててください (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>PHOTOSHOP</source>
        <translation>PHOTOSHOP</translation>
    </message>
    <message>
        <source>PREMIERE PRO</source>
        <translation>PREMIERE PRO</translation>
    </message>
    <message>
        <source>ILLUSTRATOR</source>
        <translation>ILLUSTRATOR</translation>
    </message>
</context>
<context>
    <name>DualActionAdvUi</name>
    <message>
        <source>ACTION 1</source>
        <translation>アクション 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>アクション 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>種類</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>作動点</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>ストローク</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>アクション1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>アクション2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>標準
(アクション1 &gt; アクション2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>切り替え
(アクション1 &gt; アクション2 &gt; アクション1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>組み合わせ
(アクション1 &gt; アクション1 + アクション2)</translation>
    </message>
</context>
<context>
    <name>GameCtrlWid</name>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
</context>
<context>
    <name>InputUi</name>
    <message>
        <source>MAPPING INPUT</source>
        <translation>入力の種類</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>マウス</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>マクロ</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>ゲームコントローラー</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>デュアルアクション</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO 機能</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>バックライト</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>未割り当て</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>タスクマネージャーを開く</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>開いているアプリを切り替える</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>ブラウザーで戻る</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>ブラウザーで進む</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>1 画面上へ</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>1 画面下へ</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>開いているアプリを表示</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>選択した項目をコピー</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>選択した項目を切り取り</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>クリップボードから貼り付け</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>操作を元に戻す</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>操作をやり直す</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>選択した項目をごみ箱に移動</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>スタートメニューを開く</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>キーボードレイアウトを切り替える</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>アクティブなウィンドウを閉じる</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>無効化</translation>
    </message>
    <message>
        <source>F13</source>
        <translation>F13</translation>
    </message>
    <message>
        <source>F14</source>
        <translation>F14</translation>
    </message>
    <message>
        <source>F15</source>
        <translation>F15</translation>
    </message>
    <message>
        <source>F16</source>
        <translation>F16</translation>
    </message>
    <message>
        <source>F17</source>
        <translation>F17</translation>
    </message>
    <message>
        <source>F18</source>
        <translation>F18</translation>
    </message>
    <message>
        <source>F19</source>
        <translation>F19</translation>
    </message>
    <message>
        <source>F20</source>
        <translation>F20</translation>
    </message>
    <message>
        <source>F21</source>
        <translation>F21</translation>
    </message>
    <message>
        <source>F22</source>
        <translation>F22</translation>
    </message>
    <message>
        <source>F23</source>
        <translation>F23</translation>
    </message>
    <message>
        <source>F24</source>
        <translation>F24</translation>
    </message>
    <message>
        <source>00</source>
        <translation>00</translation>
    </message>
    <message>
        <source>=</source>
        <translation>=</translation>
    </message>
    <message>
        <source>EFFECT CYCLE+</source>
        <translation>効果 次へ+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>電源モード:オフ</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>電源モード:ワーク</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>電源モード:パフォーマンス</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>電源モード:ゲーム</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED を暗く-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED を明るく+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>L トリガー</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>R トリガー</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>電卓</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>前の曲</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>次の曲</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>ミュート オン/オフ</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>音量ダウン</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>音量アップ</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>ウェブブラウザー</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>較正</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>効果 前へ-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>LED 効果を遅く-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>LED 効果を速く+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>十字キー 右上</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>十字キー 右下</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>十字キー 左下</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>十字キー 左上</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>十字キー 上</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>十字キー 下</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>十字キー 左</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>十字キー 右</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>A ボタン</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>B ボタン</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>X ボタン</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>Y ボタン</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>L バンパー</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>R バンパー</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>ガイドボタン</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>スタートボタン</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>ホームボタン</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>L スティック押し込み</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>R スティック押し込み</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>L スティック 左</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>L スティック 下</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>R スティック 左</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>R スティック 下</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>カーソル 上</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>カーソル 右</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>カーソル 下</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>カーソル 左</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>スクロール 上</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>スクロール 下</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>左 クリック</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>右 クリック</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>ホイール クリック</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>L スティック 右</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>L スティック 上</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>R スティック 右</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>R スティック 上</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>スクロール 左</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>スクロール 右</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>プロファイル 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>プロファイル 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>プロファイル 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>プロファイル 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>プロファイル 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>プロファイル 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>プロファイル 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>プロファイル 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>プロファイル 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>プロファイル 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>プロファイル 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>プロファイル 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>プロファイル 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>プロファイル 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>プロファイル 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>プロファイル 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>プロファイル 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>プロファイル 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>プロファイル 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>プロファイル 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>プロファイル 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>プロファイル 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>プロファイル 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>プロファイル 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>プロファイル[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>プロファイル[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>次のプロファイル+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>前のプロファイル-</translation>
    </message>
    <message>
        <source>`</source>
        <translation>`</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>[</source>
        <translation>[</translation>
    </message>
    <message>
        <source>]</source>
        <translation>]</translation>
    </message>
    <message>
        <source>\</source>
        <translation>\</translation>
    </message>
    <message>
        <source>;</source>
        <translation>;</translation>
    </message>
    <message>
        <source>&apos;</source>
        <translation>&apos;</translation>
    </message>
    <message>
        <source>,</source>
        <translation>,</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>~</source>
        <translation>~</translation>
    </message>
    <message>
        <source>!</source>
        <translation>!</translation>
    </message>
    <message>
        <source>@</source>
        <translation>@</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>$</source>
        <translation>$</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>^</source>
        <translation>^</translation>
    </message>
    <message>
        <source>&amp;&amp;</source>
        <translation>&amp;&amp;</translation>
    </message>
    <message>
        <source>*</source>
        <translation>*</translation>
    </message>
    <message>
        <source>(</source>
        <translation>(</translation>
    </message>
    <message>
        <source>)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>_</source>
        <translation>_</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>{</source>
        <translation>{</translation>
    </message>
    <message>
        <source>}</source>
        <translation>}</translation>
    </message>
    <message>
        <source>|</source>
        <translation>|</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>&quot;</source>
        <translation>&quot;</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>UNKNOWN KEY</source>
        <translation>不明なキー</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>英数字</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>記号 &amp;&amp; 句読点</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>ナビゲーションキー</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>修飾キー</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>ファンクションキー</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>テンキー</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>ユーザーマクロ</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>マクロを新規作成</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>WINDOWS ショートカット</translation>
    </message>
</context>
<context>
    <name>MacroAdvWid</name>
    <message>
        <source>CTRL</source>
        <translation>CTRL</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>SHIFT</translation>
    </message>
    <message>
        <source>ALT</source>
        <translation>ALT</translation>
    </message>
</context>
<context>
    <name>MacroUi</name>
    <message>
        <source>+ CREATE NEW MACRO</source>
        <translation>+ マクロを新規作成</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>マルチメディアキー</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>ゲーム</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>クリエイティブアプリ</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>標準 WASD</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>標準 ESDF</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>テンキーモード</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>FPS モード</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>ドライブモード</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>高度なフライト</translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation>Photoshop</translation>
    </message>
    <message>
        <source>Illustrator</source>
        <translation>Illustrator</translation>
    </message>
    <message>
        <source>Premiere Pro</source>
        <translation>Premiere Pro</translation>
    </message>
</context>
<context>
    <name>PressoFunUi</name>
    <message>
        <source>DEADZONE CALIBRATION</source>
        <translation>デッドゾーンの較正</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>感圧</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>センサー</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>プロファイル</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>キーの割り当て</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>キーの割り当て - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>マウスボタン</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>メディアコマンド</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO 機能</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>バックライト</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>プロファイル</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>シンプル</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>リセットしてもよろしいですか？</translation>
    </message>
</context>
</TS>
