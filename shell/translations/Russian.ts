<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>ВЕРНУТЬ</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>ВЕРНУТЬ ВСЁ</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ПРИМЕНИТЬ</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>На устройстве %1 такой же, как показано.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>ПРИМЕНИТЬ изменит одну клавишу в %1:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>ПРИМЕНИТЬ изменит клавиши (%1) в %2:</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>НА УСТРОЙСТВЕ: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>Вернуть клавишу %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>Вернуть клавиши: %1</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>КЛАВИША</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>НА УСТРОЙСТВЕ</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>ПОСЛЕ ПРИМЕНЕНИЯ</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>ФУНКЦИЯ</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>Возвращено с устройства как макрос: %1</translation>
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
        <translation>ЭТОТ ПРОФИЛЬ</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>ВСЕ ПРОФИЛИ</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Замечаний нет.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>Одно замечание.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>Замечаний: %1.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 теперь на устройстве. %2 См. ПРОВЕРКУ.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Показаны первые %1.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Перейти</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>РАБОТАЕТ ПО</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>Профиль, по которому работает устройство</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>Глубина выбранной клавиши в процентах</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>ЧТО ОТПРАВЛЯЕТ УСТРОЙСТВО</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>ОТПУСТИТЬ</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>Отпустить все клавиши</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>ОЧИСТИТЬ</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>КЛАВИША</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>ГЛУБИНА</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>СОБЫТИЕ</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>КОД</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>На устройстве то же, что в профиле.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>Одна клавиша отличается от профиля; ПРИМЕНИТЬ отправит её.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>Клавиш, отличающихся от профиля: %1; ПРИМЕНИТЬ отправит их.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>Нажмите клавишу пада.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ нажать %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ отпустить %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>ждать %1 мс</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>переход на %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>ЭКСПОРТ...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>Экспорт профилей</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>Профили для экспорта</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>ВСЕ</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>НИ ОДНОГО</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>Профили для экспорта с их макросами:</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>Макросов с ними нет.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>Макросы вместе с ними: %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>профили</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Профили (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>Не удалось записать %1: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>Один профиль экспортирован в %1.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>Экспортировано профилей: %1, файл %2.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>Найти функцию, клавишу или макрос</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>Найденные клавиши</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>Таких клавиш нет.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>Клавиш: %1, профилей: %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Показаны первые %1.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>Дважды щёлкните шаг или нажмите Enter, чтобы вернуться или перейти к нему. История сохраняется при закрытии программы.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>Как было в начале</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (сейчас)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>Более ранние шаги появятся, если вернуться к самому старому из этих.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>Файл не открыт.</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>ИМПОРТ</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>Импорт профилей</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>ОТКРЫТЬ...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>Профили файла</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>ПРОФИЛЬ ФАЙЛА</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>КЛАВИШИ</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>ВМЕСТО</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Профили (*.json);;Все файлы (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Не удалось прочитать %1: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>ПРОФИЛЬ %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>Вместо</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>Два профиля заняли бы место %1.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>Макросы вместе с ними: %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>Импортирован один профиль.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>Импортировано профилей: %1.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>Макрос «%1» назван здесь «%2», потому что такое имя уже занято.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>%1 не найден на этом компьютере; до тех пор его функции не действуют.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>Макросы импортированы.</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>Клавиша</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1 (не назначена)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (изменён)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>КОД %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1 на %2%</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>Клавиша %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>Клавиша %1 (%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>Клавиши %1 и %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>ЗАПИСЬ
Нажимайте клавиши. Чтобы закончить, дважды нажмите Esc или щёлкните СТОП.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>События макроса</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>ЗАПИСАТЬ</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>Записать клавиши в конец макроса</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>Паузы записанных клавиш</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>паузы как были</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>без пауз</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>одинаковые паузы</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>Одинаковая пауза в миллисекундах</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> мс</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>ЗАДАТЬ ВСЕМ</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>Задать эту паузу всем событиям макроса</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>Событие для добавления</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>нажать и отпустить</translation>
    </message>
    <message>
        <source>press</source>
        <translation>нажать</translation>
    </message>
    <message>
        <source>release</source>
        <translation>отпустить</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>ДОБАВИТЬ</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>Поднять событие (Alt+Вверх)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>Опустить событие (Alt+Вниз)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>УДАЛИТЬ</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>Выбранные события:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: событий %2 из %3</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>Создайте макрос, затем запишите клавиши.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>СТОП</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>«%1» не может быть клавишей макроса.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>ЗАПИСЬ: событий %1 из %2
Нажимайте клавиши. Чтобы закончить, дважды нажмите Esc или щёлкните СТОП.</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>отпустить</translation>
    </message>
    <message>
        <source>press</source>
        <translation>нажать</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> мс</translation>
    </message>
</context>
<context>
    <name>MacroEventModel</name>
    <message>
        <source>%1 (code %2)</source>
        <translation>%1 (код %2)</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>Добавить события в макрос %1</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>Удалить события из макроса %1</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>Переместить событие макроса %1</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>Изменить паузы макроса %1</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ нажать</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ отпустить</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>СОБЫТИЕ</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>КЛАВИША</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>ЗАТЕМ ЖДАТЬ</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>Изменить паузу макроса %1</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>Изменить событие макроса %1</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>НАЗАД К КЛАВИШАМ</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>СОЗДАТЬ</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>ПЕРЕИМЕНОВАТЬ</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>УДАЛИТЬ</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Макросы</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>СОБЫТИЯ</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>КЛАВИШИ</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>НЕТ НИ НА ОДНОЙ КЛАВИШЕ</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>КЛАВИШИ С НИМ</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>Перейти к этой клавише</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>Добавить макрос %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Макрос</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>Макросу нужно имя.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Переименовать макрос %1 в %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>Макрос с именем «%1» уже есть.</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Удалить макрос %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>Макрос %1 удалён.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>Макрос %1 удалён и снят с клавиш: %2.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>Запишите макрос, затем вернитесь и выберите его для клавиши.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>Новый макрос был пуст и не сохранён.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>КОПИЯ</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>Создать другой макрос с теми же событиями</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>Макрос %1 удалён и снят с одной клавиши.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>Переместить макрос %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>В макросе может быть не больше %1 событий.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>У пада нет кода для этой клавиши.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>КЛАВИШИ</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Настройки...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Профиль</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>П&amp;равка</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>&amp;Найти клавиши...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>Назначать &amp;нажатием клавиш</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>Пока клавиша пада выбрана, ей назначается следующая нажатая клавиша. Если выключено, клавиатура управляет окном.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>Пр&amp;именить к устройству</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>&amp;Имена профилей</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>Всё на устройстве.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>Ещё не на устройстве: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Отменено: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Повторено: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Отменить %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Повторить %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>Отменить %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>Повторить %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>применять нечего</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>применить: 1 клавиша</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>применить клавиш: %1</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>Устройство: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>ТОЛЬКО ЧТЕНИЕ</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>НЕ СОХРАНЕНО</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>ОТЛИЧИЯ %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>ОТЛИЧИЯ</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (только чтение)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>Щёлкните клавишу пада и выберите, что она делает.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>ПРОВЕРКА %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>ПРОВЕРКА</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>%1 получит следующую нажатую клавишу. Ctrl+K без выбранной клавиши выключает это.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>Изменения нельзя сохранить, и они пропадут вместе с окном. Закрыть его?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Нечего отменять</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Нечего повторять</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Отменено шагов: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>Повторено шагов: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>КОМПАНЬОН</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 теперь на устройстве.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 не дошёл до устройства.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Сбросить %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>Устройство сброшено, и %1 вместе с ним. Отмена вернёт его клавиши; другие профили сохранены здесь, и их можно применить снова.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>Устройство сброшено. Профили сохранены здесь, и их можно применить снова.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>СКРЫТЬ</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>Изображение пада</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1: макроса «%2» больше нет.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1: макрос «%2» пуст.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1: в двойном действии нет второго действия.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1: в двойном действии нет первого действия.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1: функция %2, который не найден на этом компьютере.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1: функции %2, который не найден на этом компьютере.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 в %2 ведёт в этот профиль, но ни одна клавиша не ведёт обратно.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 делают одно и то же: %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>начало</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 — не объект</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>здесь нет элемента «%1»</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 — не список</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>элементов %1, это больше чем %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 — не целое число от %2 до %3</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 — не текст</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>в тексте есть символ, который нельзя сохранить</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>два макроса названы «%1»</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>профиль %1 встречается дважды</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>это не файл профилей</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>файл версии %1; эта программа читает до версии %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>макросу нужно имя</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>здесь байтов %1, а не %2</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 — не истина и не ложь</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>клавиша %1 встречается дважды</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 — это не 0, 2 или 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>у клавиши может быть только одно из app, hotKey, shortcut, extended и macro</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 — не расширенный код</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>Импорт профиля %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>Импорт профилей: %1</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>список</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>объект</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>ничего</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>строка %1, столбец %2</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>Импорт макросов</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>УСТРОЙСТВО</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>ПРОФИЛИ</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>КОПИЯ</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>Скопировать этот профиль поверх другого</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>ОЧИСТИТЬ</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>Снять всё с клавиш этого профиля</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Поднять (Alt+Вверх)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Опустить (Alt+Вниз)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>П&amp;ереименовать...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Дублировать</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>&amp;Скопировать поверх</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Очистить</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Под&amp;нять</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Оп&amp;устить</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>С&amp;ледующий профиль</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>П&amp;редыдущий профиль</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>показан</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>устройство работает по нему</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>отличается от того, что на устройстве</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>Все профили заняты: выберите, какой заменить.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>Дублировать %1</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1 скопирован в профиль %2.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (не занят)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>Очистить %1</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1 очищен. Отмена вернёт его.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Переместить %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>На клавишах %1 ничего нет.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>%1 КОПИЯ</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>ПРОФИЛЬ %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Язык:</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>Каталог &amp;сочетаний клавиш:</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>Каталог сочетаний клавиш</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>не найдено</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>Клавиш с &amp;макросами в профиле:</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>ОБЗОР</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Папки %1 нет.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>Программы %1 нет.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>ОТЛИЧИЯ</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>ИСТОРИЯ</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>МАКРОСЫ</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>УСТРОЙСТВО</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>ПРОВЕРКА</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>Импорт профилей...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>Экспорт профилей...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>Глубина клавиши %1: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>Очистить клавишу %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>Назначить %1 клавише %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>Изменить %n клавишу в нескольких профилях</numerusform>
            <numerusform>Изменить %n клавиши в нескольких профилях</numerusform>
            <numerusform>Изменить %n клавиш в нескольких профилях</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>Очистить клавиши: %1</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>Двойные действия на клавишах: %1</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>Изменить клавиши: %1</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Переименовать макрос %1 в %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>Создать макрос %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Удалить макрос %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>Переместить макрос</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>Изменить макрос %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Заготовка: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>Назвать профиль %1: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>Переместить профиль</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>Датчик нажатия включён</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>Датчик нажатия выключен</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменение</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>Хранилища %1 не было. Используется его последняя исправная копия.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>Хранилище %1 записано более новой версией этой программы.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>Хранилище %1 повреждено и не читается.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Оно оставлено как есть.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>Оно сохранено как %1.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>Используется последняя исправная копия.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>Исправной копии нет, поэтому всё начинается с чистого листа.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>Хранилище %1 обновлено. Файл прежней версии сохранён как %2.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>Хранилище %1 заменили другим файлом во время работы программы. Тот файл сохранён как %2, а хранилище записано заново.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>Хранилище %1 удалили во время работы программы. Оно записано заново.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>Все изменения снова сохранены.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>Изменения хранятся в памяти и будут сохранены, как только это станет возможно.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>На диске нет места для хранилища %1.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>Хранилище %1 занято другой программой.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>Не удаётся записать хранилище %1.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>Его содержимое появится, как только его удастся прочитать.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>Пока содержимое не удаётся прочитать, показана последняя исправная копия.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>Хранилище %1 открыто в другом окне.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>Оно показано здесь, но сделанные здесь изменения не сохраняются.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>Здесь его не удаётся прочитать, и сделанные здесь изменения не сохраняются.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>Копия %1 не читается. Она сохранена как %2.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>Хранилище %1 на диске было не тем, что показано здесь, когда что-то изменили. Оно сохранено как %2, и начато новое.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>Хранилище %1 показано таким, какое оно сейчас на диске.</translation>
    </message>
</context>
</TS>
