<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>全部还原</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>设备上的 %1 与此处显示的一致。</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>应用将更改 %1 的一个按键：</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>应用将更改 %1 个按键（%2）：</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>设备上：%1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>还原按键 %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>还原 %1 个按键</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>设备上</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>应用后</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>已从设备恢复为宏：%1</translation>
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
        <translation>此配置文件</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>所有配置文件</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>没有需要检查的内容。</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>有一项需要检查。</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>有 %1 项需要检查。</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 已在设备上。%2 请查看“检查”。</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>仅列出前 %1 项。</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>转到此处</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>当前使用</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>设备当前使用的配置文件</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>所选按键的按压深度（百分比）</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>设备发送的内容</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>松开</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>松开所有按键</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>按键</translation>
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
        <translation>代码</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>与配置文件一致。</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>一个按键与配置文件不同；应用后发送。</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 个按键与配置文件不同；应用后发送。</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>请按设备上的一个按键。</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ 按下 %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ 松开 %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>等待 %1 ms</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>切换到 %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>导出...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>导出配置文件</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>要导出的配置文件</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>要导出的配置文件（含宏）：</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>没有附带的宏。</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>附带的宏：%1。</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>配置文件 (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>未能写入 %1：%2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>已将一个配置文件导出到 %1。</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>已将 %1 个配置文件导出到 %2。</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>查找功能、按键或宏</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>找到的按键</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>没有符合的按键。</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>按键：%1，配置文件：%2。</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>仅列出前 %1 项。</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>双击某一步或按 Enter，即可后退或前进到该步。关闭程序后历史记录仍会保留。</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>最初状态</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   （当前）</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>返回到此处最早的步骤后，会列出更早的步骤。</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>未打开文件。</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>导入配置文件</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>打开...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>文件中的配置文件</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>文件中的配置文件</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>配置文件 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>配置文件 %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>两个配置文件将替换同一个 %1。</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>附带的宏：%1。</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>已导入一个配置文件。</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>已导入 %1 个配置文件。</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>宏“%1”在此命名为“%2”，因为已有同名的宏。</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>在此计算机上找不到 %1；在找到之前，它的功能不起作用。</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>已导入宏。</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>按键</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1（未分配）</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已更改）</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>代码 %1</translation>
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
        <translation>按键 %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>按键 %1（%2）</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>按键 %1 和 %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>正在录制
请按键。要结束，请按两次 Esc 或单击“停止”。</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>宏的事件</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>在宏末尾录制按键</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>录制按键的延迟</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>原有延迟</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>无延迟</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>固定延迟</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>固定延迟（毫秒）</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>全部设置</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>为宏的所有事件设置此延迟</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>要添加的事件</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>按下并松开</translation>
    </message>
    <message>
        <source>press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>release</source>
        <translation>松开</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>添加</translation>
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
        <translation>删除</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>所选事件：</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1：%2/%3 个事件</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>请新建一个宏，然后录制按键。</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>宏不能包含按键“%1”。</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>正在录制：%1 / %2 个事件
请按键。要结束，请按两次 Esc 或单击“停止”。</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>松开</translation>
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
        <translation>%1（代码 %2）</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>向宏 %1 添加事件</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>删除宏 %1 的事件</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>移动宏 %1 的一个事件</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>更改宏 %1 的延迟</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ 按下</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ 松开</translation>
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
        <translation>按键</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>然后等待</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>更改宏 %1 的一个延迟</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>更改宏 %1 的一个事件</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>返回按键</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>宏</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>没有按键使用它</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>使用它的按键</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>转到此按键</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>添加宏 %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>宏</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>宏需要一个名称。</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>将宏 %1 重命名为 %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>已有另一个名为“%1”的宏。</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>删除宏 %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>已删除宏 %1。</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>已删除宏 %1，并从 %2 个按键上移除。</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>请录制宏，然后返回并为按键选择它。</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>新建的宏为空，未保留。</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>用相同的事件创建另一个宏</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>已删除宏 %1，并从一个按键上移除。</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>移动宏 %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>一个宏最多包含 %1 个事件。</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>设备没有此按键的代码。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>映射</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>设置(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>配置文件(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>查找按键(&amp;F)...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>按键即分配(&amp;P)</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>选中设备的一个按键时，接下来按下的键会分配给它。关闭时，键盘用于操作窗口。</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>应用到设备(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>配置文件名称(&amp;N)</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>全部内容已在设备上。</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>尚未在设备上：%1。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>已撤消：%1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>已恢复：%1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤消(&amp;U) %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤消(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>恢复(&amp;R) %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>撤消 %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>恢复 %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>没有要应用的内容</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>1 个按键待应用</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>%1 个按键待应用</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>设备：%1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>更改 %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (只读)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>单击设备上的一个按键，然后选择它的功能。</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>检查 %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>接下来按下的键将分配给 %1。未选中按键时按 Ctrl+K 可关闭此功能。</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>更改无法保存，关闭窗口后将会丢失。要关闭吗？</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>没有可撤消的操作</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>没有可恢复的操作</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>已撤消的步骤：%1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>已恢复的步骤：%1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>伴侣</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 已在设备上。</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 未能送达设备。</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>重置 %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>设备已重置，%1 也随之重置。撤消可恢复其按键；其他配置文件仍保留在此，可以重新应用。</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>设备已重置。配置文件仍保留在此，可以重新应用。</translation>
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
        <translation>设备图片</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 的宏“%2”已不存在。</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 的宏“%2”为空。</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 的双动作缺少第二个动作。</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 的双动作缺少第一个动作。</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 使用 %2 的功能，但在此计算机上找不到它。</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 使用 %2 的功能，但在此计算机上找不到它。</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%2 的 %1 会转到此配置文件，但没有按键可以返回。</translation>
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
        <translation>开头</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 不是对象</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>此处缺少成员“%1”</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 不是列表</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 个元素超过了 %2 个</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 不是 %2 到 %3 之间的整数</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 不是文本</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>文本包含无法保存的字符</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>有两个名为“%1”的宏</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>配置文件 %1 出现了两次</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>这不是配置文件的文件</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>文件版本为 %1；此程序最高支持版本 %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>宏需要一个名称</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>这是 %1 个字节，而不是 %2 个</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 既不是真也不是假</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>按键 %1 出现了两次</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 不是 0、2 或 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>一个按键只能有 app、hotKey、shortcut、extended 和 macro 之一</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 不是扩展代码</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>导入配置文件 %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>导入 %1 个配置文件</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>空</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行，第 %2 列</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>导入宏</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>将此配置文件复制并覆盖另一个</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>清除此配置文件所有按键上的内容</translation>
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
        <translation>重命名(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>创建副本(&amp;D)</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>复制并覆盖(&amp;O)</translation>
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
        <translation>下一个配置文件(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>上一个配置文件(&amp;P)</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>正在显示</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>设备正在使用</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>与设备上的不同</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>所有配置文件都在使用中：请选择一个覆盖。</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>创建 %1 的副本</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>已将 %1 复制到配置文件 %2。</translation>
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
        <translation>已清除 %1。撤消可恢复。</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>移动 %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 的按键上没有任何内容。</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>%1 副本</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>配置文件 %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>快捷键目录(&amp;H)：</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>快捷键目录</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>每个配置文件的宏按键数(&amp;M)：</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>文件夹 %1 不存在。</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>程序 %1 不存在。</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>宏</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>导入配置文件...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>导出配置文件...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>按键 %1 的深度：%2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>清除按键 %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>将 %1 分配给按键 %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>更改多个配置文件中的 %n 个按键</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>清除 %1 个按键</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>%1 个按键上的双动作</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>更改 %1 个按键</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>将宏 %1 重命名为 %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>创建宏 %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>删除宏 %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>移动宏</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>编辑宏 %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>预设：%1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>将配置文件 %1 命名为：%2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>移动配置文件</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>开启压力感应</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>关闭压力感应</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>存储 %1 缺失。将使用最后一个完好的副本。</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>存储 %1 由此程序的更新版本写入。</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>存储 %1 已损坏，无法读取。</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>已保持原样。</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>已另存为 %1。</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>将使用最后一个完好的副本。</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>没有完好的副本，因此一切从空白开始。</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>存储 %1 已更新。旧版本的文件已另存为 %2。</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>程序运行时，存储 %1 被另一个文件替换。该文件已另存为 %2，并已重新写入存储。</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>程序运行时，存储 %1 被删除。已重新写入。</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>所有更改已重新保存。</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>更改保留在内存中，并会尽快保存。</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>磁盘上没有空间存放存储 %1。</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>另一个程序正在使用存储 %1。</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>无法写入存储 %1。</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>一旦可以读取，就会显示其内容。</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>在可以读取其内容之前，显示最后一个完好的副本。</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>存储 %1 已在另一个窗口中打开。</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>此处会显示它，但在此所做的更改不会保留。</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>此处无法读取它，在此所做的更改也不会保留。</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>无法读取副本 %1。已另存为 %2。</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>进行更改时，磁盘上的存储 %1 与此处显示的不同。已另存为 %2，并新建了存储。</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>存储 %1 按磁盘上的现状显示。</translation>
    </message>
</context>
</TS>
