<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>DEVOLVER</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>DEVOLVER TODO</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APLICAR</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>El dispositivo tiene %1 tal como se muestra.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>APLICAR cambia una tecla de %1:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>APLICAR cambia %1 teclas de %2:</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>EN EL DISPOSITIVO: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>Devolver la tecla %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>Devolver %1 teclas</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TECLA</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>EN EL DISPOSITIVO</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>TRAS APLICAR</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>FUNCIÓN</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>De vuelta del dispositivo, como macro: %1</translation>
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
        <translation>ESTE PERFIL</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>TODOS LOS PERFILES</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Nada que revisar.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>Un punto que revisar.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>%1 puntos que revisar.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 está en el dispositivo. %2 Véase REVISIÓN.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Se muestran los primeros %1.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Ir allí</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>ACTÚA SEGÚN</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>Perfil según el que actúa el dispositivo</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>Profundidad de la tecla elegida en porcentaje</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>LO QUE ENVÍA EL DISPOSITIVO</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>SOLTAR</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>Todas las teclas suben</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>VACIAR</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TECLA</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>PROFUNDIDAD</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>EVENTO</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>CÓDIGO</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>Tiene lo mismo que el perfil.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>Una tecla difiere del perfil; APLICAR la envía.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 teclas difieren del perfil; APLICAR las envía.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>Pulse una tecla del pad.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ pulsar %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ soltar %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>esperar %1 ms</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>cambiar a %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>EXPORTAR...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>Exportar perfiles</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>Perfiles que exportar</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TODOS</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>NINGUNO</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>Perfiles que exportar, con sus macros:</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>No los acompaña ninguna macro.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>Macros que los acompañan: %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>perfiles</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Perfiles (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 no se ha escrito: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>Se ha exportado un perfil a %1.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>Se han exportado %1 perfiles a %2.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>Buscar una función, tecla o macro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>Teclas encontradas</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>Ninguna tecla lo tiene.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>Teclas: %1, perfiles: %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Se muestran los primeros %1.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>Haga doble clic en un paso, o pulse Intro, para volver o avanzar hasta él. El historial se conserva al cerrar el programa.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>Como estaba al principio</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (ahora)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>Los pasos anteriores aparecen al volver al más antiguo de aquí.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>No hay ningún archivo abierto.</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>IMPORTAR</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>Importar perfiles</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>ABRIR...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>Perfiles del archivo</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>PERFIL DEL ARCHIVO</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TECLAS</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>EN LUGAR DE</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Perfiles (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PERFIL %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>En lugar de</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>Dos perfiles ocuparían el lugar de %1.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>Macros que los acompañan: %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>Se ha importado un perfil.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>Se han importado %1 perfiles.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>La macro «%1» se llama aquí «%2», porque ya había otra con su nombre.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>%1 no se ha encontrado en este equipo; sus funciones no hacen nada hasta entonces.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>Se han importado las macros.</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1 (sin asignar)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (cambiado)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>CÓDIGO %1</translation>
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
        <translation>Tecla %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>Tecla %1 (%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>Teclas %1 y %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>GRABANDO
Pulse teclas. Para terminar, pulse Esc dos veces o haga clic en DETENER.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>Eventos de la macro</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>GRABAR</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>Grabar teclas al final de la macro</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>Pausas de las teclas grabadas</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>pausas originales</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>sin pausas</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>pausas fijas</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>Pausa fija en milisegundos</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>FIJAR TODAS</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>Dar esta pausa a todos los eventos de la macro</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>Evento que añadir</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>pulsar y soltar</translation>
    </message>
    <message>
        <source>press</source>
        <translation>pulsar</translation>
    </message>
    <message>
        <source>release</source>
        <translation>soltar</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>AÑADIR</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>Subir el evento (Alt+Arriba)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>Bajar el evento (Alt+Abajo)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>ELIMINAR</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>Eventos elegidos:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: %2 de %3 eventos</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>Cree una macro y luego grabe teclas.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>DETENER</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>«%1» no es una tecla que pueda tener una macro.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>GRABANDO: %1 de %2 eventos
Pulse teclas. Para terminar, pulse Esc dos veces o haga clic en DETENER.</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>soltar</translation>
    </message>
    <message>
        <source>press</source>
        <translation>pulsar</translation>
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
        <translation>%1 (código %2)</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>Añadir eventos a la macro %1</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>Eliminar eventos de la macro %1</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>Mover un evento de la macro %1</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>Cambiar las pausas de la macro %1</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ pulsar</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ soltar</translation>
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
        <translation>TECLA</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>LUEGO ESPERAR</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>Cambiar una pausa de la macro %1</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>Cambiar un evento de la macro %1</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>VOLVER A LAS TECLAS</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>NUEVA</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>CAMBIAR NOMBRE</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>ELIMINAR</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>EVENTOS</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TECLAS</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>NINGUNA TECLA LA TIENE</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>TECLAS QUE LA TIENEN</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>Ir a esta tecla</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>Añadir la macro %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>Una macro necesita un nombre.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Cambiar el nombre de la macro %1 a %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>Ya hay otra macro llamada «%1».</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Eliminar la macro %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>Se ha eliminado la macro %1.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>La macro %1 se ha eliminado y quitado de %2 teclas.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>Grabe la macro, vuelva y elíjala para la tecla.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>La nueva macro estaba vacía y no se ha conservado.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIAR</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>Crear otra macro con los mismos eventos</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>La macro %1 se ha eliminado y quitado de una tecla.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>Mover la macro %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>Una macro contiene como máximo %1 eventos.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>El pad no tiene código para esta tecla.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>TECLAS</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Configuración...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Perfil</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>&amp;Buscar teclas...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>Asignar &amp;pulsando teclas</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>Mientras haya una tecla del pad seleccionada, se le asigna la siguiente tecla que se pulse. Desactivado, el teclado maneja la ventana.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>&amp;Aplicar al dispositivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>&amp;Nombres de los perfiles</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>Todo está en el dispositivo.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>Aún no está en el dispositivo: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Rehecho: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>Deshacer %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>Rehacer %1 (Ctrl+Mayús+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>nada que aplicar</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>1 tecla por aplicar</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>%1 teclas por aplicar</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>Dispositivo: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>SOLO LECTURA</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>SIN GUARDAR</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>CAMBIOS %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>CAMBIOS</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (solo lectura)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>Haga clic en una tecla del pad y elija qué hace.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>REVISIÓN %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>REVISIÓN</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>%1 toma la siguiente tecla que pulse. Ctrl+K, sin tecla seleccionada, lo desactiva.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>Los cambios no se pueden guardar y se pierden con la ventana. ¿Cerrarla?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Nada que deshacer</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Nada que rehacer</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Pasos deshechos: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>Pasos rehechos: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>COMPAÑERO</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 está en el dispositivo.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 no ha llegado al dispositivo.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Restablecer %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>El dispositivo se ha restablecido, y %1 con él. Deshacer recupera sus teclas; los demás perfiles se conservan aquí y pueden aplicarse de nuevo.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>El dispositivo se ha restablecido. Los perfiles se conservan aquí y pueden aplicarse de nuevo.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>OCULTAR</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>Imagen del pad</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 tiene la macro «%2», que ya no existe.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 tiene la macro «%2», que está vacía.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 tiene una doble acción sin segunda acción.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 tiene una doble acción sin primera acción.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 tiene una función de %2, que no se ha encontrado en este equipo.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 tienen funciones de %2, que no se ha encontrado en este equipo.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 de %2 lleva a este perfil, y ninguna tecla lleva de vuelta.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 hacen lo mismo: %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>inicio</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 no es un objeto</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>aquí no hay ningún miembro «%1»</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 no es una lista</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 elementos son más que %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 no es un número entero de %2 a %3</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 no es un texto</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>el texto contiene un carácter que no se puede guardar</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>dos macros se llaman «%1»</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>el perfil %1 aparece dos veces</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>esto no es un archivo de perfiles</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>el archivo es de la versión %1; este programa lee hasta la %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>una macro necesita un nombre</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>son %1 bytes y no %2</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 no es verdadero ni falso</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>la tecla %1 aparece dos veces</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 no es 0, 2 ni 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>una tecla solo tiene uno de app, hotKey, shortcut, extended y macro</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 no es un código extendido</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>Importar el perfil %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>Importar %1 perfiles</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>una lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objeto</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>línea %1, columna %2</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>Importar macros</translation>
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
        <translation>PERFILES</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIAR</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>Copiar este perfil sobre otro</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>VACIAR</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>Quitar todo de las teclas de este perfil</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Subir (Alt+Arriba)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Bajar (Alt+Abajo)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Cambiar nombre...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>Copiar &amp;sobre otro</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>Perfil si&amp;guiente</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>Perfil &amp;anterior</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>mostrado</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>el dispositivo actúa según él</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>difiere de lo que tiene el dispositivo</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>Todos los perfiles están en uso: elija uno que sobrescribir.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>Duplicar %1</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1 se ha copiado al perfil %2.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (sin usar)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>Vaciar %1</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1 se ha vaciado. Deshacer lo recupera.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Mover %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 no tiene nada en sus teclas.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>COPIA DE %1</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PERFIL %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>Catálogo de &amp;atajos:</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>Catálogo de atajos</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>no encontrado</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>Teclas con &amp;macro por perfil:</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>EXAMINAR</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>No existe la carpeta %1.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>No existe el programa %1.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>CAMBIOS</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>HISTORIAL</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>MACROS</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>DISPOSITIVO</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>REVISIÓN</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>Importar perfiles...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>Exportar perfiles...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>Profundidad de la tecla %1: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>Vaciar la tecla %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>Asignar %1 a la tecla %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>Cambiar %n tecla en varios perfiles</numerusform>
            <numerusform>Cambiar %n teclas en varios perfiles</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>Vaciar %1 teclas</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>Dobles acciones en %1 teclas</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>Cambiar %1 teclas</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Cambiar el nombre de la macro %1 a %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>Crear la macro %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Eliminar la macro %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>Mover una macro</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>Editar la macro %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Preajuste: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>Nombrar el perfil %1: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>Mover un perfil</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>Sensor de presión activado</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>Sensor de presión desactivado</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>Faltaba el almacén %1. Se usa su última copia buena.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>El almacén %1 fue escrito por una versión más reciente de este programa.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>El almacén %1 está dañado y no se puede leer.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Se ha dejado como estaba.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>Se ha conservado como %1.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>Se usa la última copia buena.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>No hay ninguna copia buena, así que todo empieza vacío.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>El almacén %1 se ha actualizado. El archivo de la versión anterior se ha conservado como %2.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>El almacén %1 fue sustituido por otro archivo mientras el programa funcionaba. Ese archivo se ha conservado como %2 y el almacén se ha escrito de nuevo.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>El almacén %1 fue eliminado mientras el programa funcionaba. Se ha escrito de nuevo.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>Todos los cambios vuelven a estar guardados.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>Los cambios se mantienen en memoria y se guardarán en cuanto sea posible.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>No hay espacio en el disco para el almacén %1.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>Otro programa está usando el almacén %1.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>No se puede escribir el almacén %1.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>Su contenido se mostrará en cuanto se pueda leer.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>Se muestra su última copia buena hasta que su contenido se pueda leer.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>El almacén %1 está abierto en otra ventana.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>Se muestra aquí, pero los cambios hechos aquí no se conservan.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>No se puede leer aquí, y los cambios hechos aquí no se conservan.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>La copia %1 no se puede leer. Se ha conservado como %2.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>El almacén %1 del disco era otro que el mostrado aquí cuando se cambió algo. Se ha conservado como %2 y se ha empezado uno nuevo.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>El almacén %1 se muestra tal como está ahora en el disco.</translation>
    </message>
</context>
</TS>
