<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>REPOR</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>REPOR TUDO</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APLICAR</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>O dispositivo tem %1 tal como é mostrado.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>APLICAR altera uma tecla de %1:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>APLICAR altera %1 teclas de %2:</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>NO DISPOSITIVO: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>Repor a tecla %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>Repor %1 teclas</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TECLA</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>NO DISPOSITIVO</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>DEPOIS DE APLICAR</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>FUNÇÃO</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>De volta do dispositivo, como macro: %1</translation>
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
        <translation>TODOS OS PERFIS</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Nada a assinalar.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>Um ponto a rever.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>%1 pontos a rever.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 está no dispositivo. %2 Ver REVISÃO.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>São mostrados os primeiros %1.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Ir para lá</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>AGE SEGUNDO</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>Perfil segundo o qual o dispositivo age</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>Profundidade da tecla escolhida em percentagem</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>O QUE O DISPOSITIVO ENVIA</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>SOLTAR</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>Todas as teclas sobem</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>LIMPAR</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TECLA</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>PROFUNDIDADE</translation>
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
        <translation>Tem o que o perfil contém.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>Uma tecla difere do perfil; APLICAR envia-a.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 teclas diferem do perfil; APLICAR envia-as.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>Prima uma tecla do pad.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ premir %1</translation>
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
        <translation>mudar para %1</translation>
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
        <translation>Exportar perfis</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>Perfis a exportar</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TODOS</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>NENHUM</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>Perfis a exportar, com as suas macros:</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>Nenhuma macro os acompanha.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>Macros que os acompanham: %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>perfis</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Perfis (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 não foi escrito: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>Um perfil foi exportado para %1.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>%1 perfis foram exportados para %2.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>Procurar uma função, tecla ou macro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>Teclas encontradas</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>Nenhuma tecla tem isso.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>Teclas: %1, perfis: %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>São mostrados os primeiros %1.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>Faça duplo clique num passo, ou prima Enter, para recuar ou avançar até ele. O histórico mantém-se quando o programa é fechado.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>Como estava no início</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (agora)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>Os passos anteriores aparecem quando voltar ao mais antigo daqui.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>Nenhum ficheiro aberto.</translation>
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
        <translation>Importar perfis</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>ABRIR...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>Perfis do ficheiro</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>PERFIL DO FICHEIRO</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TECLAS</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>EM LUGAR DE</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Perfis (*.json);;Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PERFIL %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>Em lugar de</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>Dois perfis ocupariam o lugar de %1.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>Macros que os acompanham: %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>Foi importado um perfil.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>Foram importados %1 perfis.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>A macro “%1” chama-se aqui “%2”, porque já havia outra com esse nome.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>%1 não foi encontrado neste computador; até lá, as suas funções não fazem nada.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FECHAR</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>As macros foram importadas.</translation>
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
        <translation>%1 (não atribuída)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (alterado)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>CÓDIGO %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1 a %2%</translation>
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
        <translation>Teclas %1 e %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>A GRAVAR
Prima teclas. Para terminar, prima Esc duas vezes ou clique em PARAR.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>Eventos da macro</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>GRAVAR</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>Gravar teclas no fim da macro</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>Pausas das teclas gravadas</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>pausas originais</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>sem pausas</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>pausas fixas</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>Pausa fixa em milissegundos</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>DEFINIR TODAS</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>Dar esta pausa a todos os eventos da macro</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>Evento a adicionar</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>premir e soltar</translation>
    </message>
    <message>
        <source>press</source>
        <translation>premir</translation>
    </message>
    <message>
        <source>release</source>
        <translation>soltar</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>ADICIONAR</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>Subir o evento (Alt+Cima)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>Descer o evento (Alt+Baixo)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>ELIMINAR</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>Eventos escolhidos:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: %2 de %3 eventos</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>Crie uma macro e depois grave teclas.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>PARAR</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>“%1” não é uma tecla que uma macro possa ter.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>A GRAVAR: %1 de %2 eventos
Prima teclas. Para terminar, prima Esc duas vezes ou clique em PARAR.</translation>
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
        <translation>premir</translation>
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
        <translation>Adicionar eventos à macro %1</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>Eliminar eventos da macro %1</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>Mover um evento da macro %1</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>Alterar as pausas da macro %1</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ premir</translation>
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
        <translation>DEPOIS ESPERAR</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>Alterar uma pausa da macro %1</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>Alterar um evento da macro %1</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>VOLTAR ÀS TECLAS</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>NOVA</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>MUDAR NOME</translation>
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
        <translation>NOME</translation>
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
        <translation>NENHUMA TECLA A TEM</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>TECLAS QUE A TÊM</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>Ir para esta tecla</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>Adicionar a macro %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>Uma macro precisa de um nome.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Mudar o nome da macro %1 para %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>Já existe outra macro chamada “%1”.</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Eliminar a macro %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>A macro %1 foi eliminada.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>A macro %1 foi eliminada e retirada de %2 teclas.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>Grave a macro, volte atrás e escolha-a para a tecla.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>A nova macro estava vazia e não foi mantida.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIAR</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>Criar outra macro com os mesmos eventos</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>A macro %1 foi eliminada e retirada de uma tecla.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>Mover a macro %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>Uma macro tem no máximo %1 eventos.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>O pad não tem código para esta tecla.</translation>
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
        <translation>&amp;Ficheiro</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Definições...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Perfil</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>Pr&amp;ocurar teclas...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>Atribuir &amp;premindo teclas</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>Enquanto uma tecla do pad estiver selecionada, a próxima tecla premida é-lhe atribuída. Desligado, o teclado comanda a janela.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>&amp;Aplicar ao dispositivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>&amp;Nomes dos perfis</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>Está tudo no dispositivo.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>Ainda não está no dispositivo: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Anulado: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Refeito: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Anular %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Refazer %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>Anular %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>Refazer %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>nada a aplicar</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>1 tecla a aplicar</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>%1 teclas a aplicar</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>Dispositivo: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>SÓ DE LEITURA</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>NÃO GUARDADO</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>ALTERAÇÕES %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>ALTERAÇÕES</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (só de leitura)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>Clique numa tecla do pad e escolha o que ela faz.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>REVISÃO %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>REVISÃO</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>%1 recebe a próxima tecla que premir. Ctrl+K, sem tecla selecionada, desliga isso.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>As alterações não podem ser guardadas e perdem-se com a janela. Fechar?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Nada para anular</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Nada para refazer</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Passos anulados: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>Passos refeitos: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>COMPANHEIRO</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 está no dispositivo.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 não chegou ao dispositivo.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Repor %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>O dispositivo foi reposto, e %1 com ele. Anular recupera as suas teclas; os outros perfis mantêm-se aqui e podem ser aplicados de novo.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>O dispositivo foi reposto. Os perfis mantêm-se aqui e podem ser aplicados de novo.</translation>
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
        <translation>Imagem do pad</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 tem a macro “%2”, que já não existe.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 tem a macro “%2”, que está vazia.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 tem uma dupla ação sem segunda ação.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 tem uma dupla ação sem primeira ação.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 tem uma função de %2, que não foi encontrado neste computador.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 têm funções de %2, que não foi encontrado neste computador.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 de %2 leva a este perfil, e nenhuma tecla leva de volta.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 fazem o mesmo: %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>início</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 não é um objeto</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>não existe aqui um membro “%1”</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 não é uma lista</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 elementos são mais do que %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 não é um número inteiro de %2 a %3</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 não é um texto</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>o texto contém um carácter que não pode ser guardado</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>duas macros chamam-se “%1”</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>o perfil %1 aparece duas vezes</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>isto não é um ficheiro de perfis</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>o ficheiro é da versão %1; este programa lê até à %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>uma macro precisa de um nome</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>são %1 bytes e não %2</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 não é verdadeiro nem falso</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>a tecla %1 aparece duas vezes</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 não é 0, 2 ou 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>uma tecla só tem um de app, hotKey, shortcut, extended e macro</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 não é um código alargado</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>Importar o perfil %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>Importar %1 perfis</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>uma lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>um objeto</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>linha %1, coluna %2</translation>
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
        <translation>PERFIS</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIAR</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>Copiar este perfil para cima de outro</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>LIMPAR</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>Retirar tudo das teclas deste perfil</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Mover para cima (Alt+Cima)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Mover para baixo (Alt+Baixo)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Mudar nome...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>&amp;Copiar para outro</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Mover para c&amp;ima</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Mover para &amp;baixo</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>Perfil &amp;seguinte</translation>
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
        <translation>o dispositivo age segundo ele</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>difere do que o dispositivo tem</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>Todos os perfis estão em uso: escolha um para substituir.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>Duplicar %1</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1 foi copiado para o perfil %2.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (não usado)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>Limpar %1</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1 foi limpo. Anular recupera-o.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Mover %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 não tem nada nas suas teclas.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>CÓPIA DE %1</translation>
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
        <translation>Definições</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>Catálogo de &amp;atalhos:</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>Catálogo de atalhos</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>não encontrado</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>Teclas com &amp;macro por perfil:</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>PROCURAR</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Não existe a pasta %1.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>Não existe o programa %1.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>ALTERAÇÕES</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>HISTÓRICO</translation>
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
        <translation>REVISÃO</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>Importar perfis...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>Exportar perfis...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>Profundidade da tecla %1: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>Limpar a tecla %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>Atribuir %1 à tecla %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>Alterar %n tecla em vários perfis</numerusform>
            <numerusform>Alterar %n teclas em vários perfis</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>Limpar %1 teclas</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>Duplas ações em %1 teclas</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>Alterar %1 teclas</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Mudar o nome da macro %1 para %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>Criar a macro %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Eliminar a macro %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>Mover uma macro</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>Editar a macro %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Predefinição: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>Nome do perfil %1: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>Mover um perfil</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>Sensor de pressão ligado</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>Sensor de pressão desligado</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alteração</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>O armazém %1 faltava. É usada a última cópia boa.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>O armazém %1 foi escrito por uma versão mais recente deste programa.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>O armazém %1 está danificado e não pode ser lido.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Foi deixado como estava.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>Foi mantido como %1.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>É usada a última cópia boa.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>Não há nenhuma cópia boa, por isso tudo começa vazio.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>O armazém %1 foi atualizado. O ficheiro da versão anterior foi mantido como %2.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>O armazém %1 foi substituído por outro ficheiro enquanto o programa estava em execução. Esse ficheiro foi mantido como %2 e o armazém foi escrito de novo.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>O armazém %1 foi eliminado enquanto o programa estava em execução. Foi escrito de novo.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>Todas as alterações estão de novo guardadas.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>As alterações ficam na memória e serão guardadas assim que possível.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>Não há espaço no disco para o armazém %1.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>Outro programa está a usar o armazém %1.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>O armazém %1 não pode ser escrito.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>O seu conteúdo é mostrado assim que puder ser lido.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>É mostrada a última cópia boa até o seu conteúdo poder ser lido.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>O armazém %1 está aberto noutra janela.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>É mostrado aqui, mas as alterações feitas aqui não são mantidas.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>Não pode ser lido aqui, e as alterações feitas aqui não são mantidas.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>A cópia %1 não pode ser lida. Foi mantida como %2.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>O armazém %1 no disco era outro que não o mostrado aqui quando algo foi alterado. Foi mantido como %2 e foi começado um novo.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>O armazém %1 é mostrado tal como está agora no disco.</translation>
    </message>
</context>
</TS>
