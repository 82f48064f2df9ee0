<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>RIPRISTINA</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>RIPRISTINA TUTTO</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLICA</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>Il dispositivo ha %1 così come è mostrato.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>APPLICA cambia un tasto di %1:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>APPLICA cambia %1 tasti di %2:</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>SUL DISPOSITIVO: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>Ripristina il tasto %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>Ripristina %1 tasti</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TASTO</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>SUL DISPOSITIVO</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>DOPO APPLICA</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>FUNZIONE</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>Tornata dal dispositivo, come macro: %1</translation>
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
        <translation>QUESTO PROFILO</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>TUTTI I PROFILI</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Niente da segnalare.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>Una segnalazione.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>%1 segnalazioni.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 è sul dispositivo. %2 Vedi VERIFICA.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Sono elencati i primi %1.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Vai lì</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>AGISCE SECONDO</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>Profilo secondo cui agisce il dispositivo</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>Profondità del tasto scelto in percentuale</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>CIÒ CHE IL DISPOSITIVO INVIA</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>RILASCIA</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>Tutti i tasti tornano su</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>SVUOTA</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TASTO</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>PROFONDITÀ</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>EVENTO</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>CODICE</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>Ha ciò che contiene il profilo.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>Un tasto è diverso dal profilo; APPLICA lo invia.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 tasti sono diversi dal profilo; APPLICA li invia.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>Premi un tasto del pad.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ premi %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ rilascia %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>attendi %1 ms</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>passa a %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>ESPORTA...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>Esporta profili</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>Profili da esportare</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TUTTI</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>NESSUNO</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>Profili da esportare, con le loro macro:</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>Nessuna macro li accompagna.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>Macro che li accompagnano: %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>profili</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profili (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 non è stato scritto: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>Un profilo è stato esportato in %1.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>%1 profili sono stati esportati in %2.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>Cerca una funzione, un tasto o una macro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>Tasti trovati</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>Nessun tasto corrisponde.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>Tasti: %1, profili: %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Sono elencati i primi %1.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>Fai doppio clic su un passo, o premi Invio, per tornare o avanzare fino a esso. La cronologia resta quando il programma viene chiuso.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>Com’era all’inizio</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (ora)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>I passi precedenti appaiono quando torni al più vecchio di questi.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>Nessun file aperto.</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>IMPORTA</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>Importa profili</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>APRI...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>Profili del file</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>PROFILO DEL FILE</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TASTI</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>AL POSTO DI</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profili (*.json);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFILO %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>Al posto di</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>Due profili prenderebbero il posto di %1.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>Macro che li accompagnano: %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>È stato importato un profilo.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>Sono stati importati %1 profili.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>La macro “%1” qui si chiama “%2”, perché ce n’era già una con quel nome.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>%1 non è stato trovato su questo computer; fino ad allora le sue funzioni non hanno effetto.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>Le macro sono state importate.</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>Tasto</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1 (non assegnato)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificato)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>CODICE %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1 al %2%</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>Tasto %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>Tasto %1 (%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>Tasti %1 e %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>REGISTRAZIONE
Premi i tasti. Per finire, premi due volte Esc o fai clic su FERMA.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>Eventi della macro</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>REGISTRA</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>Registra tasti alla fine della macro</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>Ritardi dei tasti registrati</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>ritardi originali</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>senza ritardi</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>ritardi fissi</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>Ritardo fisso in millisecondi</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>IMPOSTA TUTTI</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>Assegna questo ritardo a tutti gli eventi della macro</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>Evento da aggiungere</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>premi e rilascia</translation>
    </message>
    <message>
        <source>press</source>
        <translation>premi</translation>
    </message>
    <message>
        <source>release</source>
        <translation>rilascia</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>AGGIUNGI</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>Sposta l’evento in su (Alt+Su)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>Sposta l’evento in giù (Alt+Giù)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>ELIMINA</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>Eventi scelti:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: %2 eventi su %3</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>Crea una macro, poi registra i tasti.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>FERMA</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>“%1” non è un tasto che una macro può avere.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>REGISTRAZIONE: %1 di %2 eventi
Premi i tasti. Per finire, premi due volte Esc o fai clic su FERMA.</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>rilascia</translation>
    </message>
    <message>
        <source>press</source>
        <translation>premi</translation>
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
        <translation>%1 (codice %2)</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>Aggiungi eventi alla macro %1</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>Elimina eventi della macro %1</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>Sposta un evento della macro %1</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>Cambia i ritardi della macro %1</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ premi</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ rilascia</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>EVENTO</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TASTO</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>POI ATTENDI</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>Cambia un ritardo della macro %1</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>Cambia un evento della macro %1</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>TORNA AI TASTI</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>NUOVA</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>RINOMINA</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>ELIMINA</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>EVENTI</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TASTI</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>NESSUN TASTO LA USA</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>TASTI CHE LA USANO</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>Vai a questo tasto</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>Aggiungi la macro %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>Una macro deve avere un nome.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Rinomina la macro %1 in %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>C’è già un’altra macro di nome “%1”.</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Elimina la macro %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>La macro %1 è stata eliminata.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>La macro %1 è stata eliminata e tolta da %2 tasti.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>Registra la macro, poi torna indietro e sceglila per il tasto.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>La nuova macro era vuota e non è stata conservata.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIA</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>Crea un’altra macro con gli stessi eventi</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>La macro %1 è stata eliminata e tolta da un tasto.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>Sposta la macro %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>Una macro contiene al massimo %1 eventi.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>Il pad non ha un codice per questo tasto.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>TASTI</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Impostazioni...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profilo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>&amp;Cerca tasti...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>Assegna &amp;premendo i tasti</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>Finché un tasto del pad è selezionato, il prossimo tasto premuto gli viene assegnato. Disattivato, la tastiera comanda la finestra.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>&amp;Applica al dispositivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>&amp;Nomi dei profili</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>Tutto è sul dispositivo.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>Non ancora sul dispositivo: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Annullato: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Ripetuto: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annulla %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Ripeti %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>Annulla %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>Ripeti %1 (Ctrl+Maiusc+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>niente da applicare</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>1 tasto da applicare</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>%1 tasti da applicare</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>Dispositivo: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>SOLA LETTURA</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>NON SALVATO</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>MODIFICHE %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>MODIFICHE</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (sola lettura)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>Fai clic su un tasto del pad, poi scegli che cosa fa.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>VERIFICA %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>VERIFICA</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>%1 prende il prossimo tasto premuto. Ctrl+K, senza tasto selezionato, lo disattiva.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>Le modifiche non possono essere salvate e vanno perse con la finestra. Chiuderla?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Niente da annullare</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Niente da ripetere</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Passi annullati: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>Passi ripetuti: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>COMPAGNO</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 è sul dispositivo.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 non ha raggiunto il dispositivo.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Reimposta %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>Il dispositivo è stato reimpostato, e %1 con esso. Annulla riporta i suoi tasti; gli altri profili restano qui e possono essere applicati di nuovo.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>Il dispositivo è stato reimpostato. I profili restano qui e possono essere applicati di nuovo.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>NASCONDI</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>Immagine del pad</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 ha la macro “%2”, che non c’è più.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 ha la macro “%2”, che è vuota.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 ha una doppia azione senza seconda azione.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 ha una doppia azione senza prima azione.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 ha una funzione di %2, che non è stato trovato su questo computer.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 hanno funzioni di %2, che non è stato trovato su questo computer.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 di %2 porta a questo profilo, e nessun tasto riporta indietro.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 fanno la stessa cosa: %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>inizio</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 non è un oggetto</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>qui non c’è un membro “%1”</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 non è un elenco</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 elementi sono più di %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 non è un numero intero da %2 a %3</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 non è un testo</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>il testo contiene un carattere che non può essere salvato</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>due macro si chiamano “%1”</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>il profilo %1 compare due volte</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>questo non è un file di profili</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>il file è della versione %1; questo programma legge fino alla %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>una macro deve avere un nome</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>questi sono %1 byte e non %2</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 non è né vero né falso</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>il tasto %1 compare due volte</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 non è 0, 2 o 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>un tasto ha solo uno tra app, hotKey, shortcut, extended e macro</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 non è un codice esteso</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>Importa il profilo %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>Importa %1 profili</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>un elenco</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un oggetto</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niente</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>riga %1, colonna %2</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>Importa le macro</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>DISPOSITIVO</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>PROFILI</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIA</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>Copia questo profilo su un altro</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>SVUOTA</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>Togli tutto dai tasti di questo profilo</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Sposta su (Alt+Su)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Sposta giù (Alt+Giù)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Rinomina...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplica</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>&amp;Copia su un altro</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Svuota</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Sposta s&amp;u</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Sposta &amp;giù</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>Profilo s&amp;uccessivo</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>Profilo &amp;precedente</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>mostrato</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>il dispositivo agisce secondo questo</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>diverso da ciò che ha il dispositivo</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>Tutti i profili sono in uso: scegline uno da sovrascrivere.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>Duplica %1</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1 è stato copiato nel profilo %2.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (non usato)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>Svuota %1</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1 è stato svuotato. Annulla lo riporta.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Sposta %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 non ha nulla sui suoi tasti.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>COPIA DI %1</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFILO %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Lingua:</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>Catalogo &amp;scorciatoie:</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>Catalogo scorciatoie</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>non trovato</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>Tasti con &amp;macro per profilo:</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>SFOGLIA</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>La cartella %1 non esiste.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>Il programma %1 non esiste.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>MODIFICHE</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>CRONOLOGIA</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>MACRO</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>DISPOSITIVO</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>VERIFICA</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>Importa profili...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>Esporta profili...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>Profondità del tasto %1: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>Svuota il tasto %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>Assegna %1 al tasto %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>Cambia %n tasto in più profili</numerusform>
            <numerusform>Cambia %n tasti in più profili</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>Svuota %1 tasti</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>Doppie azioni su %1 tasti</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>Cambia %1 tasti</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Rinomina la macro %1 in %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>Crea la macro %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Elimina la macro %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>Sposta una macro</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>Modifica la macro %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Predefinito: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>Nome del profilo %1: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>Sposta un profilo</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>Sensore di pressione attivato</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>Sensore di pressione disattivato</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifica</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>L’archivio %1 mancava. Viene usata l’ultima copia valida.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>L’archivio %1 è stato scritto da una versione più recente di questo programma.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>L’archivio %1 è danneggiato e non può essere letto.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>È stato lasciato com’era.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>È stato conservato come %1.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>Viene usata l’ultima copia valida.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>Non ne esiste una copia valida, quindi tutto comincia vuoto.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>L’archivio %1 è stato aggiornato. Il file della versione precedente è stato conservato come %2.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>L’archivio %1 è stato sostituito da un altro file mentre il programma era in esecuzione. Quel file è stato conservato come %2 e l’archivio è stato riscritto.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>L’archivio %1 è stato eliminato mentre il programma era in esecuzione. È stato riscritto.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>Tutte le modifiche sono di nuovo salvate.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>Le modifiche restano in memoria e verranno salvate appena possibile.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>Non c’è spazio sul disco per l’archivio %1.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>Un altro programma sta usando l’archivio %1.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>L’archivio %1 non può essere scritto.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>Il suo contenuto appare appena può essere letto.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>Appare l’ultima copia valida finché il suo contenuto non può essere letto.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>L’archivio %1 è aperto in un’altra finestra.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>Viene mostrato qui, ma le modifiche fatte qui non vengono conservate.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>Non può essere letto qui, e le modifiche fatte qui non vengono conservate.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>La copia %1 non può essere letta. È stata conservata come %2.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>L’archivio %1 sul disco era diverso da quello mostrato qui quando qualcosa è stato modificato. È stato conservato come %2 e ne è stato iniziato uno nuovo.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>L’archivio %1 appare com’è ora sul disco.</translation>
    </message>
</context>
</TS>
