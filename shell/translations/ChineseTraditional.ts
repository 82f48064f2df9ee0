<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>全部還原</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>裝置上的 %1 與此處顯示的一致。</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>套用將變更 %1 的一個按鍵：</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>套用將變更 %1 個按鍵（%2）：</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>裝置上：%1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>還原按鍵 %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>還原 %1 個按鍵</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>裝置上</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>套用後</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>已從裝置還原為巨集：%1</translation>
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
        <translation>此設定檔</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>所有設定檔</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>沒有需要檢查的項目。</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>有一項需要檢查。</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>有 %1 項需要檢查。</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 已在裝置上。%2 請查看「檢查」。</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>僅列出前 %1 項。</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>前往該處</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>目前使用</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>裝置目前使用的設定檔</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>所選按鍵的按壓深度（百分比）</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>裝置送出的內容</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>放開</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>放開所有按鍵</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>代碼</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>與設定檔一致。</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>一個按鍵與設定檔不同；套用後送出。</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 個按鍵與設定檔不同；套用後送出。</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>請按裝置上的一個按鍵。</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ 按下 %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ 放開 %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>等待 %1 ms</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>切換到 %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>匯出...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>匯出設定檔</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>要匯出的設定檔</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>全不選</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>要匯出的設定檔（含巨集）：</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>沒有附帶的巨集。</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>附帶的巨集：%1。</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>設定檔 (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>未能寫入 %1：%2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>已將一個設定檔匯出到 %1。</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>已將 %1 個設定檔匯出到 %2。</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>尋找功能、按鍵或巨集</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>尋找</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>找到的按鍵</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>沒有符合的按鍵。</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>按鍵：%1，設定檔：%2。</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>僅列出前 %1 項。</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>歷程記錄</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>按兩下某個步驟或按 Enter，即可後退或前進到該步驟。關閉程式後歷程記錄仍會保留。</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>最初狀態</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   （目前）</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>返回到此處最早的步驟後，會列出更早的步驟。</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>未開啟檔案。</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>匯入</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>匯入設定檔</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>開啟...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>檔案中的設定檔</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>檔案中的設定檔</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>取代</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>設定檔 (*.json);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>設定檔 %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>取代</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>兩個設定檔會取代同一個 %1。</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>附帶的巨集：%1。</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>已匯入一個設定檔。</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>已匯入 %1 個設定檔。</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>巨集「%1」在此命名為「%2」，因為已有同名的巨集。</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>在此電腦上找不到 %1；在找到之前，它的功能不會作用。</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>已匯入巨集。</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>按鍵</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1（未指定）</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已變更）</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>代碼 %1</translation>
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
        <translation>按鍵 %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>按鍵 %1（%2）</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>按鍵 %1 和 %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>正在錄製
請按鍵。若要結束，請按兩次 Esc 或按一下「停止」。</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>巨集的事件</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>錄製</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>在巨集結尾錄製按鍵</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>錄製按鍵的延遲</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>原有延遲</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>無延遲</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>固定延遲</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>固定延遲（毫秒）</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>全部設定</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>為巨集的所有事件設定此延遲</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>要新增的事件</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>按下並放開</translation>
    </message>
    <message>
        <source>press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>release</source>
        <translation>放開</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>加入</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>上移事件 (Alt+↑)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>下移事件 (Alt+↓)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>所選事件：</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1：%2/%3 個事件</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>請新增一個巨集，然後錄製按鍵。</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>巨集不能包含按鍵「%1」。</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>正在錄製：%1 / %2 個事件
請按鍵。若要結束，請按兩次 Esc 或按一下「停止」。</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>放開</translation>
    </message>
    <message>
        <source>press</source>
        <translation>按下</translation>
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
        <translation>%1（代碼 %2）</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>在巨集 %1 新增事件</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>刪除巨集 %1 的事件</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>移動巨集 %1 的一個事件</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>變更巨集 %1 的延遲</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ 按下</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ 放開</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>然後等待</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>變更巨集 %1 的一個延遲</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>變更巨集 %1 的一個事件</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>返回按鍵</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>巨集</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>編號</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>沒有按鍵使用它</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>使用它的按鍵</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>前往此按鍵</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>新增巨集 %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>巨集</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>巨集需要名稱。</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>將巨集 %1 重新命名為 %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>已有另一個名為「%1」的巨集。</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>刪除巨集 %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>已刪除巨集 %1。</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>已刪除巨集 %1，並從 %2 個按鍵移除。</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>請錄製巨集，然後返回並為按鍵選擇它。</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>新增的巨集是空的，未保留。</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>用相同的事件建立另一個巨集</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>已刪除巨集 %1，並從一個按鍵移除。</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>移動巨集 %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>一個巨集最多包含 %1 個事件。</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>裝置沒有此按鍵的代碼。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>對應</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>設定(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>設定檔(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>尋找按鍵(&amp;F)...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>按鍵即指定(&amp;P)</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>選取裝置的一個按鍵時，接下來按下的鍵會指定給它。關閉時，鍵盤用於操作視窗。</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>套用到裝置(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>設定檔名稱(&amp;N)</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>全部內容已在裝置上。</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>尚未在裝置上：%1。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>已復原：%1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>已重做：%1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>復原(&amp;U) %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做(&amp;R) %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>復原 %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>重做 %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>沒有要套用的內容</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>1 個按鍵待套用</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>%1 個按鍵待套用</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>裝置：%1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已儲存</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>未儲存</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>變更 %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (唯讀)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>按一下裝置上的一個按鍵，然後選擇它的功能。</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>檢查 %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>檢查</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>接下來按下的鍵將指定給 %1。未選取按鍵時按 Ctrl+K 可關閉此功能。</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>變更無法儲存，關閉視窗後將會遺失。要關閉嗎？</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>沒有可復原的操作</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>沒有可重做的操作</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>已復原的步驟：%1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>已重做的步驟：%1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>夥伴</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 已在裝置上。</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 未能送達裝置。</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>重設 %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>裝置已重設，%1 也隨之重設。復原可取回其按鍵；其他設定檔仍保留在此，可以重新套用。</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>裝置已重設。設定檔仍保留在此，可以重新套用。</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>忽略</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>裝置圖片</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 的巨集「%2」已不存在。</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 的巨集「%2」是空的。</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 的雙動作缺少第二個動作。</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 的雙動作缺少第一個動作。</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 使用 %2 的功能，但在此電腦上找不到它。</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 使用 %2 的功能，但在此電腦上找不到它。</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%2 的 %1 會前往此設定檔，但沒有按鍵可以返回。</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 的功能相同：%2。</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>開頭</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 不是物件</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>此處缺少成員「%1」</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 不是清單</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 個元素超過了 %2 個</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 不是 %2 到 %3 之間的整數</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 不是文字</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>文字包含無法儲存的字元</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>有兩個名為「%1」的巨集</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>設定檔 %1 出現了兩次</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>這不是設定檔的檔案</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>檔案版本為 %1；此程式最高支援版本 %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>巨集需要名稱</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>這是 %1 個位元組，而不是 %2 個</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 既不是真也不是假</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>按鍵 %1 出現了兩次</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 不是 0、2 或 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>一個按鍵只能有 app、hotKey、shortcut、extended 和 macro 之一</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 不是擴充代碼</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>匯入設定檔 %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>匯入 %1 個設定檔</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>物件</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>空</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行，第 %2 欄</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>匯入巨集</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>裝置</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>將此設定檔複製並覆寫另一個</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>清除此設定檔所有按鍵上的內容</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>上移 (Alt+↑)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>下移 (Alt+↓)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>重新命名(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>建立複本(&amp;D)</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>複製並覆寫(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清除(&amp;C)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>下一個設定檔(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>上一個設定檔(&amp;P)</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>顯示中</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>裝置使用中</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>與裝置上的不同</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>所有設定檔都在使用中：請選擇一個覆寫。</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>建立 %1 的複本</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>已將 %1 複製到設定檔 %2。</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  （未使用）</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>清除 %1</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>已清除 %1。復原可取回。</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>移動 %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 的按鍵上沒有任何內容。</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>%1 複本</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>設定檔 %1</translation>
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
        <translation>語言(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>快速鍵目錄(&amp;H)：</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>快速鍵目錄</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>找不到</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程式</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>每個設定檔的巨集按鍵數(&amp;M)：</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>瀏覽</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>資料夾 %1 不存在。</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>程式 %1 不存在。</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>歷程記錄</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>巨集</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>裝置</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>檢查</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>匯入設定檔...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>匯出設定檔...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>按鍵 %1 的深度：%2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>清除按鍵 %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>將 %1 指定給按鍵 %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>變更多個設定檔中的 %n 個按鍵</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>清除 %1 個按鍵</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>%1 個按鍵上的雙動作</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>變更 %1 個按鍵</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>將巨集 %1 重新命名為 %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>建立巨集 %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>刪除巨集 %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>移動巨集</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>編輯巨集 %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>預設：%1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>將設定檔 %1 命名為：%2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>移動設定檔</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>開啟壓力感應</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>關閉壓力感應</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>變更</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>儲存區 %1 遺失。將使用最後一個完好的複本。</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>儲存區 %1 由此程式的較新版本寫入。</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>儲存區 %1 已損壞，無法讀取。</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>已保持原樣。</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>已保留為 %1。</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>將使用最後一個完好的複本。</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>沒有完好的複本，因此一切從空白開始。</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>儲存區 %1 已更新。舊版本的檔案已保留為 %2。</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>程式執行時，儲存區 %1 被另一個檔案取代。該檔案已保留為 %2，並已重新寫入儲存區。</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>程式執行時，儲存區 %1 被刪除。已重新寫入。</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>所有變更已重新儲存。</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>變更保留在記憶體中，並會儘快儲存。</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>磁碟上沒有空間存放儲存區 %1。</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>另一個程式正在使用儲存區 %1。</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>無法寫入儲存區 %1。</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>一旦可以讀取，就會顯示其內容。</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>在可以讀取其內容之前，顯示最後一個完好的複本。</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>儲存區 %1 已在另一個視窗中開啟。</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>此處會顯示它，但在此所做的變更不會保留。</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>此處無法讀取它，在此所做的變更也不會保留。</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>無法讀取複本 %1。已保留為 %2。</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>進行變更時，磁碟上的儲存區 %1 與此處顯示的不同。已保留為 %2，並建立了新的儲存區。</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>儲存區 %1 依磁碟上的現況顯示。</translation>
    </message>
</context>
</TS>
