<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CheckPage</name>
    <message>
        <source>THIS PROFILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go there</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CODE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NONE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In place of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no delays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>press and release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>press</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ADD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECORDING: %1 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>press</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroEventModel</name>
    <message>
        <source>%1 (code %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NEW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NO.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COPY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COPY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>Another window has the store %1 open. It is shown here, but changes made here are not kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
