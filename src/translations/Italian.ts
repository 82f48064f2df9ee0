<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>INDIETRO</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLICA</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>AZIONE</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>AZIONE</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>CTRL SINISTRO</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>MAIUSC SINISTRO</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>ALT SINISTRO</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>CTRL DESTRO</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>MAIUSC DESTRO</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>ALT GR</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>APPLICAZIONE</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>PERCORSO</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLICA</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>RIASSEGNA TASTO</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>MODALITÀ CONTROLLER</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>MODALITÀ DOPPIA AZIONE</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>CANCELLA ASSEGNAZIONE</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>DISATTIVA TASTO</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>È stato raggiunto il numero massimo di macro assegnate</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>Impossibile trovare il percorso del programma.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>Indicarlo manualmente:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>RETROILLUMINAZIONE</translation>
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
        <translation>SFOCATURA</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>DIMENSIONE PENNELLO</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>DUREZZA PENNELLO</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>TAGLIERINA</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>TIMBRO CLONE</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>SCHERMA</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>CONTAGOCCE</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>LAZO</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>AVVIA PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>SPOSTA</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>SELEZIONE RETTANGOLARE</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>ZOOM</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>PENNA</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>PUNTATORE</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>SELEZIONE RAPIDA</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TESTO</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>INDIETRO</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>CONFRONTO</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>AVANTI</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>VAI AD ATTACCO</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>VAI A STACCO</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>MANO</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>AVVIA PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>SEGNA ATTACCO</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>SEGNA STACCO</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>RIPRODUCI/INTERROMPI</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>TAGLIERINA</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>MODIFICA CON SCARTO</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>SLITTAMENTO</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>INDIETRO DI 1 FOTOGRAMMA</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>AVANTI DI 1 FOTOGRAMMA</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>SELEZIONE</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>SELEZIONE TRACCIA IN AVANTI</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>TAVOLA DA DISEGNO</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>OPACITÀ PENNELLO</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>SELEZIONE DIRETTA</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>ELLISSE</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>AVVIA AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>POLIGONO</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>RUOTA</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>RETTANGOLO</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>RETTANGOLO ARROTONDATO</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>Esegue l’azione 1. Assegnare F2 a un’azione in Photoshop</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>Esegue l’azione 2. Assegnare F3 a un’azione in Photoshop</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>Esegue l’azione 3. Assegnare F4 a un’azione in Photoshop</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Per usare la sfocatura sensibile alla pressione (Presso),
assegnare N allo strumento Sfoca in Photoshop (Alt+Maiusc+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>CONFRONTO
Assegnare F2 alla vista di confronto in Premiere Pro (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>Esegue l’azione 1. Assegnare F2 a un’azione in Illustrator</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>Esegue l’azione 2. Assegnare F3 a un’azione in Illustrator</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>Esegue l’azione 3. Assegnare F4 a un’azione in Illustrator</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>POLIGONO
Assegnare 2 allo strumento Poligono in Illustrator (Alt+Maiusc+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>RETTANGOLO ARROTONDATO
Assegnare 1 allo strumento Rettangolo arrotondato in Illustrator (Alt+Maiusc+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>SCONOSCIUTO</translation>
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
        <translation>AZIONE 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>AZIONE 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TIPO</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>PUNTO DI ATTIVAZIONE</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>CORSA</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>AZIONE1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>AZIONE2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>NORMALE
(AZIONE1 &gt; AZIONE2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>ALTERNA
(AZIONE1 &gt; AZIONE2 &gt; AZIONE1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>COMBINA
(AZIONE1 &gt; AZIONE1 + AZIONE2)</translation>
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
        <translation>TIPO DI INPUT</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>TASTIERA</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>MOUSE</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>MULTIMEDIA</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>MACRO</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>CONTROLLER</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>APPLICAZIONE</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>DOPPIA AZIONE</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FUNZIONI PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>RETROILLUMINAZIONE</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFILO</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>PREDEFINITI</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>DISATTIVATO</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>NON ASSEGNATO</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>SCONOSCIUTO</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>APRI GESTIONE ATTIVITÀ</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>PASSA TRA LE APP APERTE</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>PAGINA PRECEDENTE DEL BROWSER</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>PAGINA SUCCESSIVA DEL BROWSER</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>SU DI UNA SCHERMATA</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>GIÙ DI UNA SCHERMATA</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>MOSTRA LE APP APERTE</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>COPIA LA SELEZIONE NEGLI APPUNTI</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>TAGLIA LA SELEZIONE</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>INCOLLA DAGLI APPUNTI</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>SELEZIONA TUTTO</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>ANNULLA UN’AZIONE</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>RIPETI UN’AZIONE</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>ELIMINA L’ELEMENTO E SPOSTALO NEL CESTINO</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>APRI IL MENU START</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>CAMBIA IL LAYOUT DI TASTIERA</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>CHIUDI LA FINESTRA ATTIVA</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>INATTIVO</translation>
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
        <translation>EFFETTO SUCC.+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>Alimentazione:Disattivata</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>Alimentazione:Lavoro</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>Alimentazione:Prestazioni</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>Alimentazione:Gioco</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LUCE LED-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LUCE LED+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>GRILLETTO SX</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>GRILLETTO DX</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>E-MAIL</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>CALCOLATRICE</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>RIPRODUCI/PAUSA</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>INTERROMPI</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>BRANO PRECEDENTE</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>BRANO SUCCESSIVO</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>AUDIO SÌ/NO</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>VOLUME GIÙ</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>VOLUME SU</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>BROWSER WEB</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>CALIBRA</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>EFFETTO PREC.-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>EFFETTO LED PIÙ LENTO-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>EFFETTO LED PIÙ VELOCE+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>CROCE SU A DESTRA</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>CROCE GIÙ A DESTRA</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>CROCE GIÙ A SINISTRA</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>CROCE SU A SINISTRA</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>CROCE SU</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>CROCE GIÙ</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>CROCE SINISTRA</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>CROCE DESTRA</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>PULSANTE A</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>PULSANTE B</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>PULSANTE X</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>PULSANTE Y</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>DORSALE SX</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>DORSALE DX</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>PULSANTE GUIDA</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>PULSANTE START</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>PULSANTE HOME</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>PREMI LEVETTA SX</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>PREMI LEVETTA DX</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>LEVETTA SX SINISTRA</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>LEVETTA SX GIÙ</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>LEVETTA DX SINISTRA</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>LEVETTA DX GIÙ</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>CURSORE SU</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>CURSORE DESTRA</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>CURSORE GIÙ</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>CURSORE SINISTRA</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>SCORRI SU</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>SCORRI GIÙ</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>CLIC SINISTRO</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>CLIC DESTRO</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>CLIC ROTELLA</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>INDIETRO</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>AVANTI</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>LEVETTA SX DESTRA</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>LEVETTA SX SU</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>LEVETTA DX DESTRA</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>LEVETTA DX SU</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>SCORRI A SINISTRA</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>SCORRI A DESTRA</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>PROFILO 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>PROFILO 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>PROFILO 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>PROFILO 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>PROFILO 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>PROFILO 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>PROFILO 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>PROFILO 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>PROFILO 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>PROFILO 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>PROFILO 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>PROFILO 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>PROFILO 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>PROFILO 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>PROFILO 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>PROFILO 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>PROFILO 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>PROFILO 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>PROFILO 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>PROFILO 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>PROFILO 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>PROFILO 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>PROFILO 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>PROFILO 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>PROFILO[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>PROFILO[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>PROFILO SUCCESSIVO+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>PROFILO PRECEDENTE-</translation>
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
        <translation>TASTO SCONOSCIUTO</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>ALFANUMERICI</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>SIMBOLI &amp;&amp; PUNTEGGIATURA</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>TASTI DI NAVIGAZIONE</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>MODIFICATORI</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>TASTI FUNZIONE</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>TASTIERINO NUMERICO</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>MACRO PERSONALI</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>NUOVA MACRO</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>SCORCIATOIE DI WINDOWS</translation>
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
        <translation>MAIUSC</translation>
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
        <translation>+ NUOVA MACRO</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>TASTI MULTIMEDIALI</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>Tastiera</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Giochi</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>App creative</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>WASD standard</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>ESDF standard</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>Tastierino numerico</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>Modalità FPS</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>Modalità guida</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>Modalità volo (avanz.)</translation>
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
        <translation>CALIBRAZIONE ZONA MORTA</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>SENSORE DI</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>PRESSIONE</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>SÌ</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>NO</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>PROFILO</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>ASSEGNAZIONE TASTO</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>ASSEGNAZIONE TASTO - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>CERCA</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLICA</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>PULSANTI DEL MOUSE</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>COMANDI MULTIMEDIALI</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FUNZIONI PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>RETROILLUMINAZIONE</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFILO</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>SEMPLICE</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>AVANZATA</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLICA</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>REIMPOSTA</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>Reimpostare davvero?</translation>
    </message>
</context>
</TS>
