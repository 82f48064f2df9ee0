<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PATH</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>A1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BLUR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CROP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PEN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HAND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PHOTOSHOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PREMIERE PRO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ILLUSTRATOR</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DualActionAdvUi</name>
    <message>
        <source>ACTION 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameCtrlWid</name>
    <message>
        <source>L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InputUi</name>
    <message>
        <source>MAPPING INPUT</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F13</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F14</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F15</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F17</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F18</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F19</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F20</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F21</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F22</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F23</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F24</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>=</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EFFECT CYCLE+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>`</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>\</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>/</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>~</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>@</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>$</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>^</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;&amp;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>_</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>|</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNKNOWN KEY</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroAdvWid</name>
    <message>
        <source>CTRL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALT</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroUi</name>
    <message>
        <source>+ CREATE NEW MACRO</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illustrator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Premiere Pro</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PressoFunUi</name>
    <message>
        <source>DEADZONE CALIBRATION</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RESET</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
