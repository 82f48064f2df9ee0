<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ПРИМЕНИТЬ</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>ДЕЙСТВИЕ</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>ДЕЙСТВИЕ</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>ЛЕВЫЙ CTRL</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>ЛЕВЫЙ SHIFT</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>ЛЕВЫЙ ALT</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>ПРАВЫЙ CTRL</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>ПРАВЫЙ SHIFT</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>ПРАВЫЙ ALT</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>ПРИЛОЖЕНИЕ</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>ПУТЬ</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ПРИМЕНИТЬ</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>ПЕРЕНАЗНАЧИТЬ</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>РЕЖИМ ГЕЙМПАДА</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>РЕЖИМ ДВОЙНОГО ДЕЙСТВИЯ</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>УБРАТЬ НАЗНАЧЕНИЕ</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>ОТКЛЮЧИТЬ КЛАВИШУ</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>Достигнуто предельное число назначенных макросов</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>Не удалось найти путь к программе.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>Укажите его вручную:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>ПОДСВЕТКА</translation>
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
        <translation>РАЗМЫТИЕ</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>РАЗМЕР КИСТИ</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>ЖЁСТКОСТЬ КИСТИ</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>РАМКА</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>ШТАМП</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>ОСВЕТЛИТЕЛЬ</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>ПИПЕТКА</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>ЛАССО</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>ЗАПУСТИТЬ PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>ПЕРЕМЕЩЕНИЕ</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>ПРЯМОУГОЛЬНАЯ ОБЛАСТЬ</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>МАСШТАБ</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>ПЕРО</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>УКАЗАТЕЛЬ</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>БЫСТРОЕ ВЫДЕЛЕНИЕ</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>ТЕКСТ</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>СРАВНЕНИЕ</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>ВПЕРЁД</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>К ТОЧКЕ ВХОДА</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>К ТОЧКЕ ВЫХОДА</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>РУКА</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>ЗАПУСТИТЬ PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>ОТМЕТИТЬ ВХОД</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>ОТМЕТИТЬ ВЫХОД</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>ПУСК/СТОП</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>ПОДРЕЗКА</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>МОНТАЖ СО СДВИГОМ</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>ПРОКРУТКА</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>НА 1 КАДР НАЗАД</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>НА 1 КАДР ВПЕРЁД</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>ВЫДЕЛЕНИЕ</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>ВЫБОР ДОРОЖКИ ВПЕРЁД</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>МОНТАЖНАЯ ОБЛАСТЬ</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>НЕПРОЗРАЧНОСТЬ КИСТИ</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>ПРЯМОЕ ВЫДЕЛЕНИЕ</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>ЭЛЛИПС</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>ЗАПУСТИТЬ AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>МНОГОУГОЛЬНИК</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>ПОВОРОТ</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>ПРЯМОУГОЛЬНИК</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>СКРУГЛЁННЫЙ ПРЯМОУГОЛЬНИК</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>Выполнить операцию 1. Назначьте F2 операции в Photoshop</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>Выполнить операцию 2. Назначьте F3 операции в Photoshop</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>Выполнить операцию 3. Назначьте F4 операции в Photoshop</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Чтобы размытие зависело от силы нажатия (Presso),
назначьте N инструменту «Размытие» в Photoshop (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>СРАВНЕНИЕ
Назначьте F2 виду сравнения в Premiere Pro (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>Выполнить операцию 1. Назначьте F2 операции в Illustrator</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>Выполнить операцию 2. Назначьте F3 операции в Illustrator</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>Выполнить операцию 3. Назначьте F4 операции в Illustrator</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>МНОГОУГОЛЬНИК
Назначьте 2 инструменту «Многоугольник» в Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>СКРУГЛЁННЫЙ ПРЯМОУГОЛЬНИК
Назначьте 1 инструменту «Прямоугольник со скруглёнными углами» в Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>НЕИЗВЕСТНО</translation>
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
        <translation>ДЕЙСТВИЕ 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>ДЕЙСТВИЕ 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>ТИП</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>ГЛУБИНА СРАБАТЫВАНИЯ</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>ХОД</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>ДЕЙСТВИЕ1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>ДЕЙСТВИЕ2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>ОБЫЧНЫЙ
(ДЕЙСТВИЕ1 &gt; ДЕЙСТВИЕ2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>ПЕРЕКЛЮЧЕНИЕ
(ДЕЙСТВИЕ1 &gt; ДЕЙСТВИЕ2 &gt; ДЕЙСТВИЕ1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>СОЧЕТАНИЕ
(ДЕЙСТВИЕ1 &gt; ДЕЙСТВИЕ1 + ДЕЙСТВИЕ2)</translation>
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
        <translation>ВИД ВВОДА</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>КЛАВИАТУРА</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>МЫШЬ</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>МЕДИА</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>МАКРОС</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>ГЕЙМПАД</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>ПРИЛОЖЕНИЕ</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>ДВОЙНОЕ ДЕЙСТВИЕ</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>ФУНКЦИИ PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ПОДСВЕТКА</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>ПРОФИЛЬ</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>ЗАГОТОВКИ</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>ОТКЛЮЧЕНА</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>НЕ НАЗНАЧЕНА</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>НЕИЗВЕСТНО</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>ОТКРЫТЬ ДИСПЕТЧЕР ЗАДАЧ</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>ПЕРЕКЛЮЧИТЬ ОТКРЫТЫЕ ПРИЛОЖЕНИЯ</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>НАЗАД В БРАУЗЕРЕ</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>ВПЕРЁД В БРАУЗЕРЕ</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>НА ЭКРАН ВВЕРХ</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>НА ЭКРАН ВНИЗ</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>ПОКАЗАТЬ ОТКРЫТЫЕ ПРИЛОЖЕНИЯ</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>СКОПИРОВАТЬ ВЫДЕЛЕННОЕ В БУФЕР ОБМЕНА</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>ВЫРЕЗАТЬ ВЫДЕЛЕННОЕ</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>ВСТАВИТЬ ИЗ БУФЕРА ОБМЕНА</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>ВЫДЕЛИТЬ ВСЁ</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>ОТМЕНИТЬ ДЕЙСТВИЕ</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>ПОВТОРИТЬ ДЕЙСТВИЕ</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>УДАЛИТЬ ВЫДЕЛЕННЫЙ ЭЛЕМЕНТ В КОРЗИНУ</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>ОТКРЫТЬ МЕНЮ «ПУСК»</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>СМЕНИТЬ РАСКЛАДКУ КЛАВИАТУРЫ</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>ЗАКРЫТЬ АКТИВНОЕ ОКНО</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>ОТКЛ.</translation>
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
        <translation>ЭФФЕКТ ДАЛЕЕ+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>Режим питания:Выключен</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>Режим питания:Работа</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>Режим питания:Производительность</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>Режим питания:Игра</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED ТЕМНЕЕ-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED ЯРЧЕ+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>ЛЕВЫЙ КУРОК</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>ПРАВЫЙ КУРОК</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>ПОЧТА</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>КАЛЬКУЛЯТОР</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>ПУСК/ПАУЗА</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>СТОП</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>ПРЕДЫДУЩИЙ ТРЕК</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>СЛЕДУЮЩИЙ ТРЕК</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>ВЫКЛ./ВКЛ. ЗВУК</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>ТИШЕ</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>ГРОМЧЕ</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>БРАУЗЕР</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>КАЛИБРОВКА</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>ЭФФЕКТ НАЗАД-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>ЭФФЕКТ LED МЕДЛЕННЕЕ-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>ЭФФЕКТ LED БЫСТРЕЕ+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>КРЕСТОВИНА ВВЕРХ-ВПРАВО</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>КРЕСТОВИНА ВНИЗ-ВПРАВО</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>КРЕСТОВИНА ВНИЗ-ВЛЕВО</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>КРЕСТОВИНА ВВЕРХ-ВЛЕВО</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>КРЕСТОВИНА ВВЕРХ</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>КРЕСТОВИНА ВНИЗ</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>КРЕСТОВИНА ВЛЕВО</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>КРЕСТОВИНА ВПРАВО</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>КНОПКА A</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>КНОПКА B</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>КНОПКА X</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>КНОПКА Y</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>ЛЕВЫЙ БАМПЕР</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>ПРАВЫЙ БАМПЕР</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>КНОПКА GUIDE</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>КНОПКА START</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>КНОПКА HOME</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>НАЖАТИЕ Л. СТИКА</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>НАЖАТИЕ П. СТИКА</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>Л. СТИК ВЛЕВО</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>Л. СТИК ВНИЗ</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>П. СТИК ВЛЕВО</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>П. СТИК ВНИЗ</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>КУРСОР ВВЕРХ</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>КУРСОР ВПРАВО</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>КУРСОР ВНИЗ</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>КУРСОР ВЛЕВО</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>КОЛЕСО ВВЕРХ</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>КОЛЕСО ВНИЗ</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>ЛЕВЫЙ КЛИК</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>ПРАВЫЙ КЛИК</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>КЛИК КОЛЕСОМ</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>ВПЕРЁД</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>Л. СТИК ВПРАВО</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>Л. СТИК ВВЕРХ</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>П. СТИК ВПРАВО</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>П. СТИК ВВЕРХ</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>ПРОКРУТКА ВЛЕВО</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>ПРОКРУТКА ВПРАВО</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>ПРОФИЛЬ 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>ПРОФИЛЬ 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>ПРОФИЛЬ 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>ПРОФИЛЬ 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>ПРОФИЛЬ 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>ПРОФИЛЬ 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>ПРОФИЛЬ 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>ПРОФИЛЬ 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>ПРОФИЛЬ 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>ПРОФИЛЬ 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>ПРОФИЛЬ 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>ПРОФИЛЬ 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>ПРОФИЛЬ 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>ПРОФИЛЬ 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>ПРОФИЛЬ 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>ПРОФИЛЬ 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>ПРОФИЛЬ 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>ПРОФИЛЬ 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>ПРОФИЛЬ 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>ПРОФИЛЬ 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>ПРОФИЛЬ 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>ПРОФИЛЬ 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>ПРОФИЛЬ 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>ПРОФИЛЬ 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>ПРОФИЛЬ[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>ПРОФИЛЬ[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>ПРОФИЛЬ ДАЛЕЕ+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>ПРОФИЛЬ НАЗАД-</translation>
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
        <translation>НЕИЗВЕСТНАЯ КЛАВИША</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>БУКВЫ И ЦИФРЫ</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>СИМВОЛЫ &amp;&amp; ПУНКТУАЦИЯ</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>КЛАВИШИ НАВИГАЦИИ</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>МОДИФИКАТОРЫ</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>ФУНКЦИОНАЛЬНЫЕ КЛАВИШИ</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>ЦИФРОВОЙ БЛОК</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>СВОИ МАКРОСЫ</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>СОЗДАТЬ МАКРОС</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>СОЧЕТАНИЯ КЛАВИШ WINDOWS</translation>
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
        <translation>SHIFT</translation>
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
        <translation>+ СОЗДАТЬ МАКРОС</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>МУЛЬТИМЕДИЙНЫЕ КЛАВИШИ</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>Клавиатура</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Игры</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>Творчество</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>Обычная WASD</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>Обычная ESDF</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>Цифровой блок</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>Режим FPS</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>Вождение</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>Полёт (расш.)</translation>
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
        <translation>КАЛИБРОВКА МЁРТВОЙ ЗОНЫ</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>ДАТЧИК</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>НАЖАТИЯ</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ВКЛ</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>ВЫКЛ</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>ПРОФИЛЬ</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>НАЗНАЧЕНИЕ КЛАВИШИ</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>НАЗНАЧЕНИЕ КЛАВИШИ - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>ПОИСК</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ПРИМЕНИТЬ</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>КНОПКИ МЫШИ</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>КОМАНДЫ МЕДИА</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>ФУНКЦИИ PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ПОДСВЕТКА</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>ПРОФИЛЬ</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>ПРОСТОЙ</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>РАСШИРЕННЫЙ</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ПРИМЕНИТЬ</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>СБРОС</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сброс</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>Вы действительно хотите выполнить сброс?</translation>
    </message>
</context>
</TS>
