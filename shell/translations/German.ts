<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>ZURÜCKNEHMEN</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>ALLE ZURÜCKNEHMEN</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÜBERNEHMEN</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>Das Gerät hat %1 so, wie es hier steht.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>ÜBERNEHMEN ändert eine Taste von %1:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>ÜBERNEHMEN ändert %1 Tasten von %2:</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>AUF DEM GERÄT: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>Taste %1 zurücknehmen</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>%1 Tasten zurücknehmen</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TASTE</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>AUF DEM GERÄT</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>NACH ÜBERNEHMEN</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>FUNKTION</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>Vom Gerät zurück, als Makro: %1</translation>
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
        <translation>DIESES PROFIL</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>ALLE PROFILE</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Nichts zu beanstanden.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>Ein Hinweis.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>%1 Hinweise.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 ist auf dem Gerät. %2 Siehe PRÜFUNG.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Die ersten %1 sind aufgeführt.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Dorthin gehen</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>ARBEITET NACH</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>Profil, nach dem das Gerät arbeitet</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>Tiefe der gewählten Taste in Prozent</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>WAS DAS GERÄT SENDET</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>LOSLASSEN</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>Alle Tasten gehen nach oben</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>LEEREN</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TASTE</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>TIEFE</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>EREIGNIS</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>CODE</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>Es hat, was das Profil enthält.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>Eine Taste weicht vom Profil ab; ÜBERNEHMEN sendet sie.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 Tasten weichen vom Profil ab; ÜBERNEHMEN sendet sie.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>Drücken Sie eine Taste des Pads.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ %1 drücken</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ %1 loslassen</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>%1 ms warten</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>Wechsel zu %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>EXPORTIEREN ...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>Profile exportieren</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>Zu exportierende Profile</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>ALLE</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>KEINE</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>Zu exportierende Profile mit ihren Makros:</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>Es gehören keine Makros dazu.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>Makros, die dazugehören: %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profile (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 wurde nicht geschrieben: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>Ein Profil wurde nach %1 exportiert.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>%1 Profile wurden nach %2 exportiert.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>Funktion, Taste oder Makro finden</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>Gefundene Tasten</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>Keine Taste hat das.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>Tasten: %1, Profile: %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Die ersten %1 sind aufgeführt.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>Doppelklick auf einen Schritt oder die Eingabetaste geht zu ihm zurück oder vor. Der Verlauf bleibt erhalten, wenn das Programm geschlossen wird.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>Wie es am Anfang war</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (jetzt)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>Frühere Schritte werden aufgeführt, wenn Sie zum ältesten hier zurückgehen.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>Keine Datei ist geöffnet.</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>IMPORTIEREN</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>Profile importieren</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>ÖFFNEN ...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>Profile der Datei</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>PROFIL DER DATEI</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TASTEN</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>ANSTELLE VON</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profile (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFIL %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>Anstelle von</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>Zwei Profile kämen an die Stelle von %1.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>Makros, die mitkommen: %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>Ein Profil wurde importiert.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>%1 Profile wurden importiert.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>Das Makro „%1“ heißt hier „%2“, weil es schon eines dieses Namens gab.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>%1 wurde auf diesem Computer nicht gefunden; seine Funktionen bewirken bis dahin nichts.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>Die Makros wurden importiert.</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1 (nicht belegt)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>CODE %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1 bei %2%</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>Taste %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>Taste %1 (%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>Tasten %1 und %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>AUFNAHME
Drücken Sie Tasten. Zum Beenden zweimal Esc drücken oder auf STOPP klicken.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>Ereignisse des Makros</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>AUFNEHMEN</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>Tasten am Ende des Makros aufnehmen</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>Pausen aufgenommener Tasten</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>Pausen wie gedrückt</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>keine Pausen</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>feste Pausen</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>Feste Pause in Millisekunden</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>ALLE SETZEN</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>Allen Ereignissen des Makros diese Pause geben</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>Ereignis zum Hinzufügen</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>drücken und loslassen</translation>
    </message>
    <message>
        <source>press</source>
        <translation>drücken</translation>
    </message>
    <message>
        <source>release</source>
        <translation>loslassen</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>HINZUFÜGEN</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>Ereignis nach oben (Alt+Auf)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>Ereignis nach unten (Alt+Ab)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>LÖSCHEN</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>Gewählte Ereignisse:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: %2 von %3 Ereignissen</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>Legen Sie ein neues Makro an und nehmen Sie dann Tasten auf.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>STOPP</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>„%1“ ist keine Taste, die ein Makro haben kann.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>AUFNAHME: %1 von %2 Ereignissen
Drücken Sie Tasten. Zum Beenden zweimal Esc drücken oder auf STOPP klicken.</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>loslassen</translation>
    </message>
    <message>
        <source>press</source>
        <translation>drücken</translation>
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
        <translation>%1 (Code %2)</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>Ereignisse zu Makro %1 hinzufügen</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>Ereignisse aus Makro %1 löschen</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>Ereignis von Makro %1 verschieben</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>Pausen von Makro %1 ändern</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ drücken</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ loslassen</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>EREIGNIS</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TASTE</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>DANN WARTEN</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>Eine Pause von Makro %1 ändern</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>Ein Ereignis von Makro %1 ändern</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>ZURÜCK ZU DEN TASTEN</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>NEU</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>UMBENENNEN</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>LÖSCHEN</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>NR.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>EREIGNISSE</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TASTEN</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>KEINE TASTE HAT ES</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>TASTEN, DIE ES HABEN</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>Zu dieser Taste gehen</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>Makro %1 hinzufügen</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>Ein Makro braucht einen Namen.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Makro %1 in %2 umbenennen</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>Es gibt schon ein Makro namens „%1“.</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Makro %1 löschen</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>Makro %1 wurde gelöscht.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>Makro %1 wurde gelöscht und von %2 Tasten genommen.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>Nehmen Sie das Makro auf, gehen Sie dann zurück und wählen Sie es für die Taste.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>Das neue Makro war leer und wurde nicht behalten.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>KOPIEREN</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>Ein weiteres Makro mit denselben Ereignissen anlegen</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>Makro %1 wurde gelöscht und von einer Taste genommen.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>Makro %1 verschieben</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>Ein Makro hat höchstens %1 Ereignisse.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>Das Pad hat keinen Code für diese Taste.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>BELEGUNG</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Einstellungen ...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>Tasten &amp;finden ...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>Durch &amp;Tastendruck zuweisen</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>Solange eine Taste des Pads gewählt ist, wird die nächste gedrückte Taste auf sie gelegt. Aus: Die Tastatur bedient das Fenster.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>Auf das Gerät ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>Profil&amp;namen</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>Alles ist auf dem Gerät.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>Noch nicht auf dem Gerät: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>Rückgängig: %1 (Strg+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>Wiederholen: %1 (Strg+Umschalt+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>nichts zu übernehmen</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>1 Taste zu übernehmen</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>%1 Tasten zu übernehmen</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>Gerät: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>NUR LESEN</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>NICHT GESPEICHERT</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>ÄNDERUNGEN %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>ÄNDERUNGEN</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (nur lesen)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>Klicken Sie auf eine Taste des Pads und wählen Sie dann, was sie tut.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>PRÜFUNG %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>PRÜFUNG</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>%1 nimmt die nächste Taste, die Sie drücken. Strg+K ohne gewählte Taste schaltet das aus.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>Die Änderungen können nicht gespeichert werden und gehen mit dem Fenster verloren. Schließen?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Nichts zu wiederholen</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Schritte rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>Schritte wiederholt: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>BEGLEITER</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 ist auf dem Gerät.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 hat das Gerät nicht erreicht.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>Das Gerät wurde zurückgesetzt und mit ihm %1. Rückgängig bringt seine Tasten wieder; die anderen Profile sind hier erhalten und können wieder übernommen werden.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>Das Gerät wurde zurückgesetzt. Die Profile sind hier erhalten und können wieder übernommen werden.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>AUSBLENDEN</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>Bild des Pads</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 hat das Makro „%2“, das es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 hat das Makro „%2“, das leer ist.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 hat eine Doppelaktion ohne zweite Aktion.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 hat eine Doppelaktion ohne erste Aktion.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 hat eine Funktion von %2, das auf diesem Computer nicht gefunden wurde.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 haben Funktionen von %2, das auf diesem Computer nicht gefunden wurde.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 von %2 führt zu diesem Profil, und keine Taste führt zurück.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 tun dasselbe: %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 ist kein Objekt</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>ein Eintrag „%1“ fehlt hier</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 ist keine Liste</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 Elemente sind mehr als %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 ist keine ganze Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 ist kein Text</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>der Text enthält ein Zeichen, das nicht gespeichert werden kann</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>zwei Makros heißen „%1“</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>Profil %1 kommt zweimal vor</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>dies ist keine Datei mit Profilen</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>die Datei hat Version %1; dieses Programm liest bis Version %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>ein Makro braucht einen Namen</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>das sind %1 Bytes statt %2</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 ist weder wahr noch falsch</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>Taste %1 kommt zweimal vor</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 ist nicht 0, 2 oder 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>eine Taste hat nur eines von app, hotKey, shortcut, extended und macro</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 ist kein erweiterter Code</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>Profil %1 importieren</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>%1 Profile importieren</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>Makros importieren</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>GERÄT</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>PROFILE</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>KOPIEREN</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>Dieses Profil über ein anderes kopieren</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>LEEREN</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>Alles von den Tasten dieses Profils nehmen</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Nach oben (Alt+Auf)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Nach unten (Alt+Ab)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen ...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>Ü&amp;ber anderes kopieren</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>&amp;Nächstes Profil</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>&amp;Voriges Profil</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>angezeigt</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>das Gerät arbeitet danach</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>weicht von dem auf dem Gerät ab</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>Alle Profile sind belegt: Wählen Sie eines, das überschrieben wird.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>%1 duplizieren</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1 wurde nach Profil %2 kopiert.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (unbenutzt)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>%1 leeren</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1 wurde geleert. Rückgängig bringt es wieder.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>%1 verschieben</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 hat nichts auf seinen Tasten.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>%1 KOPIE</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFIL %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>&amp;Tastenkürzel-Katalog:</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>Tastenkürzel-Katalog</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>Tasten mit &amp;Makros je Profil:</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>DURCHSUCHEN</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Es gibt keinen Ordner %1.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>Es gibt kein Programm %1.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>ÄNDERUNGEN</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>VERLAUF</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>MAKROS</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>GERÄT</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>PRÜFUNG</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>Profile importieren ...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>Profile exportieren ...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>Tiefe von Taste %1: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>Taste %1 leeren</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>%1 auf Taste %2 legen</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>%n Taste in mehreren Profilen ändern</numerusform>
            <numerusform>%n Tasten in mehreren Profilen ändern</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>%1 Tasten leeren</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>Doppelaktionen auf %1 Tasten</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>%1 Tasten ändern</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Makro %1 in %2 umbenennen</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>Makro %1 anlegen</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Makro %1 löschen</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>Ein Makro verschieben</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>Makro %1 bearbeiten</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Vorlage: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>Profil %1 benennen: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>Ein Profil verschieben</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>Drucksensor ein</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>Drucksensor aus</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>Der Speicher %1 fehlte. Die letzte gute Kopie wird verwendet.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>Der Speicher %1 wurde von einer neueren Version dieses Programms geschrieben.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>Der Speicher %1 ist beschädigt und kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Er blieb, wie er war.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>Er wurde als %1 aufgehoben.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>Die letzte gute Kopie wird verwendet.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>Es gibt keine gute Kopie, daher beginnt alles leer.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>Der Speicher %1 wurde auf den neuen Stand gebracht. Die Datei der früheren Version wurde als %2 aufgehoben.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>Der Speicher %1 wurde während des Betriebs durch eine andere Datei ersetzt. Sie wurde als %2 aufgehoben und der Speicher neu geschrieben.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>Der Speicher %1 wurde während des Betriebs gelöscht. Er wurde neu geschrieben.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>Alle Änderungen sind wieder gespeichert.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>Änderungen bleiben im Arbeitsspeicher und werden gespeichert, sobald es geht.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>Auf dem Datenträger ist kein Platz für den Speicher %1.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>Ein anderes Programm verwendet den Speicher %1.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>Der Speicher %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>Sein Inhalt wird gezeigt, sobald er gelesen werden kann.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>Die letzte gute Kopie wird gezeigt, bis sein Inhalt gelesen werden kann.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>Der Speicher %1 ist in einem anderen Fenster offen.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>Er wird hier gezeigt, aber Änderungen von hier bleiben nicht erhalten.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>Er kann hier nicht gelesen werden, und Änderungen von hier bleiben nicht erhalten.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>Die Kopie %1 kann nicht gelesen werden. Sie wurde als %2 aufgehoben.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>Der Speicher %1 auf dem Datenträger war ein anderer als der hier gezeigte, als etwas geändert wurde. Er wurde als %2 aufgehoben und ein neuer begonnen.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>Der Speicher %1 wird gezeigt, wie er jetzt auf dem Datenträger ist.</translation>
    </message>
</context>
</TS>
