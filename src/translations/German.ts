<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÜBERNEHMEN</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>AKTION</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>AKTION</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>STRG LINKS</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>UMSCHALT LINKS</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>ALT LINKS</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>STRG RECHTS</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>UMSCHALT RECHTS</translation>
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
        <translation>ANWENDUNG</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>PFAD</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÜBERNEHMEN</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>TASTE NEU BELEGEN</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>CONTROLLER-MODUS</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>DOPPELAKTIONS-MODUS</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>BELEGUNG LÖSCHEN</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>TASTE SPERREN</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>Es können keine weiteren Makros zugewiesen werden</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>Der Pfad des Programms wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>Bitte von Hand angeben:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>BELEUCHTUNG</translation>
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
        <translation>WEICHZEICHNEN</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>PINSELGRÖSSE</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>PINSELHÄRTE</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>FREISTELLEN</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>KOPIERSTEMPEL</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>ABWEDLER</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>PIPETTE</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>LASSO</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>PS STARTEN</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>VERSCHIEBEN</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>AUSWAHLRECHTECK</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>ZOOM</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>ZEICHENSTIFT</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>ZEIGER</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>SCHNELLAUSWAHL</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>RÜCKWÄRTS</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>VERGLEICH</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>VORWÄRTS</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>ZU IN-POINT</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>ZU OUT-POINT</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>HAND</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>PR STARTEN</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>IN-POINT SETZEN</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>OUT-POINT SETZEN</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>WIEDERGABE/STOPP</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>RASIERKLINGE</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>LÜCKE LÖSCHEN</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>UNTERSCHIEBEN</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>1 FRAME ZURÜCK</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>1 FRAME VOR</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>AUSWAHL</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>SPURAUSWAHL VORWÄRTS</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>ZEICHENFLÄCHE</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>PINSELDECKKRAFT</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>DIREKTAUSWAHL</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>ELLIPSE</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>AI STARTEN</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>POLYGON</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>DREHEN</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>RECHTECK</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>ABGERUNDETES RECHTECK</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>Aktion 1 ausführen. Bitte in Photoshop einer Aktion F2 zuweisen</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>Aktion 2 ausführen. Bitte in Photoshop einer Aktion F3 zuweisen</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>Aktion 3 ausführen. Bitte in Photoshop einer Aktion F4 zuweisen</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Für druckempfindliches Weichzeichnen (Presso)
in Photoshop bitte N dem Weichzeichner zuweisen (Alt+Umschalt+Strg+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>VERGLEICH
Bitte in Premiere Pro F2 der Vergleichsansicht zuweisen (Strg+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>Aktion 1 ausführen. Bitte in Illustrator einer Aktion F2 zuweisen</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>Aktion 2 ausführen. Bitte in Illustrator einer Aktion F3 zuweisen</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>Aktion 3 ausführen. Bitte in Illustrator einer Aktion F4 zuweisen</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>POLYGON
Bitte in Illustrator 2 dem Polygon-Werkzeug zuweisen (Alt+Umschalt+Strg+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>ABGERUNDETES RECHTECK
Bitte in Illustrator 1 dem Werkzeug für abgerundete Rechtecke zuweisen (Alt+Umschalt+Strg+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>UNBEKANNT</translation>
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
        <translation>AKTION 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>AKTION 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>ART</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>AUSLÖSEWEG</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>TASTENHUB</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>AKTION1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>AKTION2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>NORMAL
(AKTION1 &gt; AKTION2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>WECHSEL
(AKTION1 &gt; AKTION2 &gt; AKTION1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>KOMBINATION
(AKTION1 &gt; AKTION1 + AKTION2)</translation>
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
        <translation>EINGABEART</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>TASTATUR</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>MAUS</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>MEDIEN</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>MAKRO</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>GAMECONTROLLER</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>ANWENDUNG</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>DOPPELAKTION</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO-FUNKTIONEN</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>BELEUCHTUNG</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>VORLAGEN</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>GESPERRT</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>NICHT BELEGT</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>UNBEKANNT</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>TASK-MANAGER ÖFFNEN</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>ZWISCHEN OFFENEN APPS WECHSELN</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>BROWSER ZURÜCK</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>BROWSER VORWÄRTS</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>EINE SEITE NACH OBEN</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>EINE SEITE NACH UNTEN</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>OFFENE APPS ANZEIGEN</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>AUSWAHL IN DIE ZWISCHENABLAGE KOPIEREN</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>AUSWAHL AUSSCHNEIDEN</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>AUS DER ZWISCHENABLAGE EINFÜGEN</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>ALLES AUSWÄHLEN</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>AKTION RÜCKGÄNGIG MACHEN</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>AKTION WIEDERHOLEN</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>AUSWAHL LÖSCHEN UND IN DEN PAPIERKORB VERSCHIEBEN</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>STARTMENÜ ÖFFNEN</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>TASTATURLAYOUT WECHSELN</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>AKTIVES FENSTER SCHLIESSEN</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>SPERREN</translation>
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
        <translation>EFFEKT WEITER+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>Energiemodus:Aus</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>Energiemodus:Arbeiten</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>Energiemodus:Leistung</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>Energiemodus:Spielen</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED DUNKLER-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED HELLER+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>L-TRIGGER</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>R-TRIGGER</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>E-MAIL</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>RECHNER</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>WIEDERGABE/PAUSE</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>STOPP</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>VORIGER TITEL</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>NÄCHSTER TITEL</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>TON AUS/EIN</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>LEISER</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>LAUTER</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>WEBBROWSER</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>KALIBRIEREN</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>EFFEKT ZURÜCK-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>LED-EFFEKT LANGSAMER-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>LED-EFFEKT SCHNELLER+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>STEUERKREUZ OBEN RECHTS</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>STEUERKREUZ UNTEN RECHTS</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>STEUERKREUZ UNTEN LINKS</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>STEUERKREUZ OBEN LINKS</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>STEUERKREUZ OBEN</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>STEUERKREUZ UNTEN</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>STEUERKREUZ LINKS</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>STEUERKREUZ RECHTS</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>A-TASTE</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>B-TASTE</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>X-TASTE</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>Y-TASTE</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>L-BUMPER</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>R-BUMPER</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>GUIDE-TASTE</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>START-TASTE</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>HOME-TASTE</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>L-STICK DRÜCKEN</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>R-STICK DRÜCKEN</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>L-STICK LINKS</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>L-STICK UNTEN</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>R-STICK LINKS</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>R-STICK UNTEN</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>ZEIGER HOCH</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>ZEIGER RECHTS</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>ZEIGER RUNTER</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>ZEIGER LINKS</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>BILDLAUF HOCH</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>BILDLAUF RUNTER</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>LINKER KLICK</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>RECHTER KLICK</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>KLICK RAD</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>VORWÄRTS</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>L-STICK RECHTS</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>L-STICK OBEN</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>R-STICK RECHTS</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>R-STICK OBEN</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>BILDLAUF LINKS</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>BILDLAUF RECHTS</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>PROFIL 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>PROFIL 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>PROFIL 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>PROFIL 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>PROFIL 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>PROFIL 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>PROFIL 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>PROFIL 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>PROFIL 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>PROFIL 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>PROFIL 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>PROFIL 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>PROFIL 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>PROFIL 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>PROFIL 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>PROFIL 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>PROFIL 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>PROFIL 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>PROFIL 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>PROFIL 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>PROFIL 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>PROFIL 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>PROFIL 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>PROFIL 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>PROFIL[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>PROFIL[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>PROFIL WEITER+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>PROFIL ZURÜCK-</translation>
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
        <translation>UNBEKANNTE TASTE</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>ALPHANUMERISCH</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>SYMBOLE &amp;&amp; SATZZEICHEN</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>NAVIGATIONSTASTEN</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>SONDERTASTEN</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>FUNKTIONSTASTEN</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>ZIFFERNBLOCK</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>EIGENE MAKROS</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>NEUES MAKRO</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>WINDOWS-TASTENKÜRZEL</translation>
    </message>
</context>
<context>
    <name>MacroAdvWid</name>
    <message>
        <source>CTRL</source>
        <translation>STRG</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>UMSCHALT</translation>
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
        <translation>+ NEUES MAKRO</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>MULTIMEDIATASTEN</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Spielen</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>Kreativprogramme</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>Standard-WASD</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>Standard-ESDF</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>Ziffernblock</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>FPS-Modus</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>Fahrmodus</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>Flugmodus (erw.)</translation>
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
        <translation>TOTZONE KALIBRIEREN</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>DRUCK-</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>SENSOR</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>TASTENBELEGUNG</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>TASTENBELEGUNG - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>SUCHEN</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÜBERNEHMEN</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>MAUSTASTEN</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>MEDIENBEFEHLE</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO-FUNKTIONEN</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>BELEUCHTUNG</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>EINFACH</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>ERWEITERT</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÜBERNEHMEN</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>ZURÜCKSETZEN</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>Wirklich zurücksetzen?</translation>
    </message>
</context>
</TS>
