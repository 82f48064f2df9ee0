#include "vocabulary/KeyCodes.h"

#include "support/TestMain.h"

#include <cstring>

// clang-format off
namespace {

struct NameRow { const char *name; int code; int flag; };
const std::vector<NameRow> Names = {
        {"A", 4, 0},
        {"B", 5, 0},
        {"C", 6, 0},
        {"D", 7, 0},
        {"E", 8, 0},
        {"F", 9, 0},
        {"G", 10, 0},
        {"H", 11, 0},
        {"I", 12, 0},
        {"J", 13, 0},
        {"K", 14, 0},
        {"L", 15, 0},
        {"M", 16, 0},
        {"N", 17, 0},
        {"O", 18, 0},
        {"P", 19, 0},
        {"Q", 20, 0},
        {"R", 21, 0},
        {"S", 22, 0},
        {"T", 23, 0},
        {"U", 24, 0},
        {"V", 25, 0},
        {"W", 26, 0},
        {"X", 27, 0},
        {"Y", 28, 0},
        {"Z", 29, 0},
        {"F1", 58, 0},
        {"F2", 59, 0},
        {"F3", 60, 0},
        {"F4", 61, 0},
        {"F5", 62, 0},
        {"F6", 63, 0},
        {"F7", 64, 0},
        {"F8", 65, 0},
        {"F9", 66, 0},
        {"F10", 67, 0},
        {"F11", 68, 0},
        {"F12", 69, 0},
        {"1", 30, 0},
        {"2", 31, 0},
        {"3", 32, 0},
        {"4", 33, 0},
        {"5", 34, 0},
        {"6", 35, 0},
        {"7", 36, 0},
        {"8", 37, 0},
        {"9", 38, 0},
        {"0", 39, 0},
        {"NUM_1", 89, 0},
        {"NUM_2", 90, 0},
        {"NUM_3", 91, 0},
        {"NUM_4", 92, 0},
        {"NUM_5", 93, 0},
        {"NUM_6", 94, 0},
        {"NUM_7", 95, 0},
        {"NUM_8", 96, 0},
        {"NUM_9", 97, 0},
        {"NUM_0", 98, 0},
        {"MINUS", 45, 0},
        {"PLUS", 46, 0},
        {"{", 47, 0},
        {"}", 48, 0},
        {"\\", 49, 0},
        {":", 51, 0},
        {"'", 52, 0},
        {"\"", 52, 0},
        {"~", 53, 0},
        {"<", 54, 0},
        {">", 55, 0},
        {"?", 56, 0},
        {"ENTER", 40, 0},
        {"ESC", 41, 0},
        {"BACKSPACE", 42, 0},
        {"TAB", 43, 0},
        {"CAP", 57, 0},
        {"SPACE", 44, 0},
        {"PRTSC", 70, 0},
        {"SCRLK", 71, 0},
        {"PAUSE", 72, 0},
        {"INSERT", 73, 0},
        {"HOME", 74, 0},
        {"PAGE UP", 75, 0},
        {"DELETE", 76, 0},
        {"END", 77, 0},
        {"PAGE DOWN", 78, 0},
        {"RIGHT", 79, 0},
        {"LEFT", 80, 0},
        {"DOWN", 81, 0},
        {"UP", 82, 0},
        {"CTRL", 224, 0},
        {"SHIFT", 225, 0},
        {"ALT", 226, 0},
        {"WIN", 227, 0},
        {"LEFT CLICK", 240, 1},
        {"RIGHT CLICK", 241, 1},
};

const std::map<int, int> Scans = {
        {1,41}, {59,58}, {60,59}, {61,60}, {62,61}, {63,62}, {64,63}, {65,64}, {66,65}, {67,66},
        {68,67}, {87,68}, {88,69}, {41,53}, {2,30}, {3,31}, {4,32}, {5,33}, {6,34}, {7,35}, {8,36},
        {9,37}, {10,38}, {11,39}, {12,45}, {13,46}, {14,42}, {15,43}, {16,20}, {17,26}, {18,8},
        {19,21}, {20,23}, {21,28}, {22,24}, {23,12}, {24,18}, {25,19}, {26,47}, {27,48}, {43,49},
        {58,57}, {30,4}, {31,22}, {32,7}, {33,9}, {34,10}, {35,11}, {36,13}, {37,14}, {38,15},
        {39,51}, {40,52}, {28,40}, {42,225}, {44,29}, {45,27}, {46,6}, {47,25}, {48,5}, {49,17},
        {50,16}, {51,54}, {52,55}, {53,56}, {54,229}, {29,224}, {347,227}, {56,226}, {57,44},
        {312,230}, {348,231}, {285,228}, {84,70}, {70,71}, {69,72}, {338,73}, {327,74}, {329,75},
        {339,76}, {335,77}, {337,78}, {328,82}, {331,80}, {336,81}, {333,79}, {325,83}, {309,84},
        {55,85}, {74,86}, {71,95}, {72,96}, {73,97}, {75,92}, {76,93}, {77,94}, {78,87}, {79,89},
        {80,90}, {81,91}, {82,98}, {83,99}, {284,88}, {86,100}, {115,135}, {125,100}, {123,100},
        {121,100}, {112,100}, {126,133},
};

const std::map<int, int> VirtualKeys = {
        {8,42}, {9,43}, {13,40}, {19,72}, {20,57}, {27,41}, {32,44}, {33,75}, {34,78}, {35,77},
        {36,74}, {37,80}, {38,82}, {39,79}, {40,81}, {44,70}, {45,73}, {46,76}, {48,39}, {49,30},
        {50,31}, {51,32}, {52,33}, {53,34}, {54,35}, {55,36}, {56,37}, {57,38}, {65,4}, {66,5},
        {67,6}, {68,7}, {69,8}, {70,9}, {71,10}, {72,11}, {73,12}, {74,13}, {75,14}, {76,15},
        {77,16}, {78,17}, {79,18}, {80,19}, {81,20}, {82,21}, {83,22}, {84,23}, {85,24}, {86,25},
        {87,26}, {88,27}, {89,28}, {90,29}, {91,227}, {92,231}, {96,98}, {97,89}, {98,90}, {99,91},
        {100,92}, {101,93}, {102,94}, {103,95}, {104,96}, {105,97}, {106,85}, {107,87}, {108,88},
        {109,86}, {110,99}, {111,84}, {112,58}, {113,59}, {114,60}, {115,61}, {116,62}, {117,63},
        {118,64}, {119,65}, {120,66}, {121,67}, {122,68}, {123,69}, {124,104}, {125,105}, {126,106},
        {127,107}, {128,108}, {132,112}, {133,113}, {134,114}, {144,83}, {145,71}, {173,244},
        {174,245}, {175,246}, {176,243}, {177,242}, {179,240}, {186,51}, {187,46}, {188,54},
        {189,45}, {190,55}, {191,56}, {192,53}, {219,47}, {220,49}, {221,48}, {222,52},
};

const std::map<int, const char *> Functions = {
        {0, "DISABLE"},
        {104, "F13"},
        {105, "F14"},
        {106, "F15"},
        {107, "F16"},
        {108, "F17"},
        {109, "F18"},
        {110, "F19"},
        {111, "F20"},
        {112, "F21"},
        {113, "F22"},
        {114, "F23"},
        {115, "F24"},
        {116, "00"},
        {117, "="},
        {192, "EFFECT CYCLE+"},
        {193, "Power Mode:Disable"},
        {194, "Power Mode:Working"},
        {195, "Power Mode:Performance"},
        {196, "Power Mode:Gaming"},
        {198, "LED DARKER-"},
        {199, "LED BRIGHTER+"},
        {222, "L TRIGGER"},
        {223, "R TRIGGER"},
        {237, "E-MAIL"},
        {238, "CALCULATOR"},
        {240, "PLAY/PAUSE"},
        {241, "STOP"},
        {242, "PREVIOUS TRACK"},
        {243, "NEXT TRACK"},
        {244, "VOLUME MUTE/UNMUTE"},
        {245, "VOLUME DOWN"},
        {246, "VOLUME UP"},
        {248, "WEB BROWSER"},
        {249, "BROWSER BACKWARD"},
        {250, "BROWSER FORWARD"},
        {312, "CALIBRATE"},
        {385, "EFFECT CYCLE+"},
        {386, "EFFECT CYCLE-"},
        {400, "SPEED DOWN LED EFFECT-"},
        {401, "SPEED UP LED EFFECT+"},
        {402, "LED DARKER-"},
        {403, "LED BRIGHTER+"},
        {454, "D PAD UP RIGHT"},
        {455, "D PAD DOWN RIGHT"},
        {456, "D PAD DOWN LEFT"},
        {457, "D PAD UP LEFT"},
        {458, "D PAD UP"},
        {459, "D PAD DOWN"},
        {460, "D PAD LEFT"},
        {461, "D PAD RIGHT"},
        {462, "A BUTTON"},
        {463, "B BUTTON"},
        {464, "X BUTTON"},
        {465, "Y BUTTON"},
        {466, "L BUMPER"},
        {467, "R BUMPER"},
        {468, "GUIDE BUTTON"},
        {469, "START BUTTON"},
        {470, "HOME BUTTON"},
        {471, "L STICK PRESS"},
        {472, "R STICK PRESS"},
        {473, "D PAD UP"},
        {474, "L STICK LEFT"},
        {475, "L STICK DOWN"},
        {476, "R STICK LEFT"},
        {477, "R STICK DOWN"},
        {481, "CURSOR UP"},
        {483, "CURSOR RIGHT"},
        {485, "CURSOR DOWN"},
        {487, "CURSOR LEFT"},
        {488, "SCROLL UP"},
        {489, "SCROLL DOWN"},
        {496, "LEFT CLICK"},
        {497, "RIGHT CLICK"},
        {498, "WHEEL CLICK"},
        {499, "BACKWARD"},
        {500, "FORWARD"},
        {729, "D PAD DOWN"},
        {730, "L STICK RIGHT"},
        {731, "L STICK UP"},
        {732, "R STICK RIGHT"},
        {733, "R STICK UP"},
        {1241, "D PAD LEFT"},
        {1280, "SCROLL UP"},
        {1281, "SCROLL DOWN"},
        {1282, "SCROLL LEFT"},
        {1283, "SCROLL RIGHT"},
        {1497, "D PAD UP LEFT"},
        {1536, "PROFILE 1"},
        {1537, "PROFILE 2"},
        {1538, "PROFILE 3"},
        {1539, "PROFILE 4"},
        {1540, "PROFILE 5"},
        {1541, "PROFILE 6"},
        {1542, "PROFILE 7"},
        {1543, "PROFILE 8"},
        {1544, "PROFILE 9"},
        {1545, "PROFILE 10"},
        {1546, "PROFILE 11"},
        {1547, "PROFILE 12"},
        {1548, "PROFILE 13"},
        {1549, "PROFILE 14"},
        {1550, "PROFILE 15"},
        {1551, "PROFILE 16"},
        {1552, "PROFILE 17"},
        {1553, "PROFILE 18"},
        {1554, "PROFILE 19"},
        {1555, "PROFILE 20"},
        {1556, "PROFILE 21"},
        {1557, "PROFILE 22"},
        {1558, "PROFILE 23"},
        {1559, "PROFILE 24"},
        {1568, "PROFILE[+]"},
        {1569, "PROFILE[-]"},
        {1570, "PROFILE CYCLE+"},
        {1571, "PROFILE CYCLE-"},
        {1753, "D PAD DOWN LEFT"},
        {2265, "D PAD RIGHT"},
        {2521, "D PAD UP RIGHT"},
        {2777, "D PAD DOWN RIGHT"},
        {2816, "`"},
        {2817, "1"},
        {2818, "2"},
        {2819, "3"},
        {2820, "4"},
        {2821, "5"},
        {2822, "6"},
        {2823, "7"},
        {2824, "8"},
        {2825, "9"},
        {2826, "0"},
        {2827, "-"},
        {2828, "="},
        {2829, "["},
        {2830, "]"},
        {2831, "\\"},
        {2832, ";"},
        {2833, "'"},
        {2834, ","},
        {2835, "."},
        {2836, "/"},
        {3072, "~"},
        {3073, "!"},
        {3074, "@"},
        {3075, "#"},
        {3076, "$"},
        {3077, "%"},
        {3078, "^"},
        {3079, "&&"},
        {3080, "*"},
        {3081, "("},
        {3082, ")"},
        {3083, "_"},
        {3084, "+"},
        {3085, "{"},
        {3086, "}"},
        {3087, "|"},
        {3088, ":"},
        {3089, "\""},
        {3090, "<"},
        {3091, ">"},
        {3092, "?"},
};

struct ShortcutRow { const char *name; std::vector<ushort> keys; };
const std::vector<ShortcutRow> Shortcuts = {
        {"OPEN TASK MANAGER", {224, 225, 41}},
        {"SWITCH BETWEEN OPEN APPS", {226, 43}},
        {"BROWSER BACKWARD", {226, 80}},
        {"BROWSER FORWARD", {226, 79}},
        {"MOVE UP ONE SCREEN", {226, 75}},
        {"MOVE DOWN ONE SCREEN", {226, 78}},
        {"VIEW OPEN APPS", {224, 226, 43}},
        {"COPY SELECTED ITEMS TO CLIPBOARD", {224, 6}},
        {"CUT SELECTED ITEMS", {224, 27}},
        {"PASTE CONTENT FROM CLIPBOARD", {224, 25}},
        {"SELECT ALL CONTENT", {224, 4}},
        {"UNDO AN ACTION", {224, 29}},
        {"REDO AN ACTION", {224, 28}},
        {"DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN", {224, 7}},
        {"OPEN THE START MENU", {224, 41}},
        {"SWITCH THE KEYBOARD LAYOUT", {224, 225}},
        {"CLOSE ACTIVE WINDOW", {224, 61}},
};

const std::map<int, std::vector<ushort>> Sequences = {
        {116, {98, 98}},
        {117, {46}},
        {2816, {53}},
        {2817, {30}},
        {2818, {31}},
        {2819, {32}},
        {2820, {33}},
        {2821, {34}},
        {2822, {35}},
        {2823, {36}},
        {2824, {37}},
        {2825, {38}},
        {2826, {39}},
        {2827, {45}},
        {2828, {46}},
        {2829, {47}},
        {2830, {48}},
        {2831, {49}},
        {2832, {51}},
        {2833, {52}},
        {2834, {54}},
        {2835, {55}},
        {2836, {56}},
        {3072, {225, 53}},
        {3073, {225, 30}},
        {3074, {225, 31}},
        {3075, {225, 32}},
        {3076, {225, 33}},
        {3077, {225, 34}},
        {3078, {225, 35}},
        {3079, {225, 36}},
        {3080, {225, 37}},
        {3081, {225, 38}},
        {3082, {225, 39}},
        {3083, {225, 45}},
        {3084, {225, 46}},
        {3085, {225, 47}},
        {3086, {225, 48}},
        {3087, {225, 49}},
        {3088, {225, 51}},
        {3089, {225, 52}},
        {3090, {225, 54}},
        {3091, {225, 55}},
        {3092, {225, 56}},
};

const std::vector<const char *> Inputs = {
        "KEYBOARD",
        "MOUSE",
        "MEDIA",
        "MACRO",
        "GAME CONTROLLER",
        "APPLICATION",
        "DUAL ACTION",
        "PRESSO FUNCTIONS",
        "BACKLIGHT",
        "PROFILE",
        "PRESET MODE",
        "DISABLED",
        "UNASSIGNED",
};

} // namespace
// clang-format on

Q_DECLARE_METATYPE(std::vector<int>)

class tst_KeyCodes : public QObject
{
    Q_OBJECT

private slots:
    void defaultCodes_data();
    void defaultCodes();
    void names_data();
    void names();
    void scanCodes_data();
    void scanCodes();
    void virtualKeys_data();
    void virtualKeys();
    void firstScans();
    void noOtherVirtualKeys();
    void precedingScans();
    void unknownFunctions();
    void extendedCodes();
    void noOtherRows();
    void functionNames_data();
    void functionNames();
    void shortcuts_data();
    void shortcuts();
    void sequences_data();
    void sequences();
    void inputLists_data();
    void inputLists();
    void inputs_data();
    void inputs();
    void powerModes();
    void inputTypes_data();
    void inputTypes();
};

namespace {

void addRow(const QString &name, int number)
{
    QTest::newRow(qPrintable(name)) << number;
}

/// One row for each number of a map.
template <typename Map>
void addRows(const char *what, const Map &map)
{
    QTest::addColumn<int>("number");
    for (const auto &row : map)
        addRow(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(row.first), row.first);
}

} // namespace

void tst_KeyCodes::defaultCodes_data()
{
    const std::vector<int> codes = {53, 30,  31, 32, 33, 43, 20,  26,  8,   21, 57,  4,   22,  7,
                                    9,  225, 29, 27, 6,  25, 224, 192, 226, 44, 246, 245, 198, 199};
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("code");
    QCOMPARE(codes.size(), std::size_t(28));
    for (int key = 0; key < 28; ++key)
        QTest::addRow("key %d", key) << key << codes[std::size_t(key)];
    for (const int key : {28, -1, 65535})
        QTest::addRow("no key %d", key) << key << 0;
}

void tst_KeyCodes::defaultCodes()
{
    QFETCH(int, key);
    QFETCH(int, code);
    QCOMPARE(int(defaultCodeOfKey(key)), code);
}

void tst_KeyCodes::names_data()
{
    QTest::addColumn<int>("number");
    for (std::size_t number = 0; number < Names.size(); ++number)
        addRow(QStringLiteral("name ") + QLatin1String(Names[number].name), int(number));
}

void tst_KeyCodes::names()
{
    QFETCH(int, number);
    const NameRow &row = Names[std::size_t(number)];
    const auto found = KeyNameCodes().find(QString::fromLatin1(row.name));
    QVERIFY(found != KeyNameCodes().end());
    QCOMPARE(int(found->second.first), row.code);
    QCOMPARE(int(found->second.second), row.flag);
}

void tst_KeyCodes::scanCodes_data()
{
    addRows("scan", Scans);
}

void tst_KeyCodes::scanCodes()
{
    QFETCH(int, number);
    QVERIFY(ScanToKeyCode().count(number));
    QCOMPARE(int(ScanToKeyCode().at(number)), Scans.at(number));
}

void tst_KeyCodes::firstScans()
{
    std::map<int, int> first;
    for (const auto &[scan, code] : Scans)
        first.emplace(code, scan);
    for (int code = 0; code < 65536; ++code)
        QCOMPARE(scanOfKeyCode(ushort(code)), first.count(code) ? first[code] : 0);
    QCOMPARE(scanOfKeyCode(100), 86);
}

void tst_KeyCodes::virtualKeys_data()
{
    addRows("virtual key", VirtualKeys);
}

void tst_KeyCodes::virtualKeys()
{
    QFETCH(int, number);
    QCOMPARE(int(codeOfVirtualKey(quint32(number))), VirtualKeys.at(number));
}

void tst_KeyCodes::noOtherVirtualKeys()
{
    for (quint32 key = 0; key < 512; ++key) {
        if (VirtualKeys.count(int(key)) == 0)
            QCOMPARE(int(codeOfVirtualKey(key)), 0);
    }
}

void tst_KeyCodes::precedingScans()
{
    const std::map<int, int> rows = {{28, 40},  {29, 224}, {42, 225},  {54, 229},
                                     {56, 226}, {284, 88}, {285, 228}, {312, 230}};
    for (int scan = 0; scan < 512; ++scan)
        QCOMPARE(int(codeOfPrecedingScan(quint32(scan))), rows.count(scan) ? rows.at(scan) : 0);
}

void tst_KeyCodes::functionNames_data()
{
    addRows("code", Functions);
}

void tst_KeyCodes::functionNames()
{
    QFETCH(int, number);
    QCOMPARE(keyFunctionName(ushort(number)), Functions.at(number));
}

void tst_KeyCodes::unknownFunctions()
{
    for (int code = 0; code < 65536; ++code) {
        if (Functions.count(code) == 0)
            QCOMPARE(keyFunctionName(ushort(code)), "UNKNOWN KEY");
    }
    for (const int code : {1, 4, 100, 103, 197, 224, 231, 255})
        QCOMPARE(keyFunctionName(ushort(code)), "UNKNOWN KEY");
}

void tst_KeyCodes::shortcuts_data()
{
    QTest::addColumn<int>("number");
    for (std::size_t id = 0; id < Shortcuts.size(); ++id)
        addRow(QStringLiteral("%1 %2").arg(id).arg(QLatin1String(Shortcuts[id].name)), int(id));
}

void tst_KeyCodes::shortcuts()
{
    QFETCH(int, number);
    const ShortcutRow &row = Shortcuts[std::size_t(number)];
    QCOMPARE(winShortcutName(number), row.name);
    QVERIFY(WinShortcutKeys().count(number));
    QVERIFY(WinShortcutKeys().at(number) == row.keys);
}

void tst_KeyCodes::sequences_data()
{
    addRows("code", Sequences);
}

void tst_KeyCodes::sequences()
{
    QFETCH(int, number);
    QVERIFY(SymbolKeySequences().count(ushort(number)));
    QVERIFY(SymbolKeySequences().at(ushort(number)) == Sequences.at(number));
}

void tst_KeyCodes::extendedCodes()
{
    for (int code = 0; code < 65536; ++code)
        QCOMPARE(isExtendedCode(ushort(code)), Sequences.count(code) != 0);
}

void tst_KeyCodes::noOtherRows()
{
    QCOMPARE(Names.size(), std::size_t(95));
    QCOMPARE(KeyNameCodes().size(), std::size_t(95));
    QCOMPARE(Scans.size(), std::size_t(110));
    QCOMPARE(ScanToKeyCode().size(), std::size_t(110));
    QCOMPARE(WinShortcutKeys().size(), std::size_t(17));
    QCOMPARE(winShortcutName(17), "");
    QCOMPARE(winShortcutName(-1), "");
    QCOMPARE(Sequences.size(), std::size_t(44));
    QCOMPARE(SymbolKeySequences().size(), std::size_t(44));
    QCOMPARE(InputKeyLists().size(), std::size_t(5));
    QCOMPARE(InputColors().size(), std::size_t(12));
    QCOMPARE(InputColors().count(10), std::size_t(0));
}

void tst_KeyCodes::inputLists_data()
{
    using List = std::vector<int>;
    QTest::addColumn<int>("input");
    QTest::addColumn<List>("codes");
    QTest::newRow("mouse") << 1 << List{496, 497, 498, 488, 489, 1282, 1283,
                                        500, 499, 481, 483, 485, 487};
    QTest::newRow("media") << 2 << List{240, 241, 242, 243, 246, 245, 244};
    QTest::newRow("presso functions") << 7 << List{312};
    QTest::newRow("backlight") << 8 << List{385, 386, 403, 402, 401, 400};
    QTest::newRow("profile") << 9 << List{1536, 1537, 1538, 1539, 1540, 1541, 1542, 1543, 1544,
                                          1545, 1546, 1547, 1548, 1549, 1550, 1551, 1552, 1553,
                                          1554, 1555, 1556, 1557, 1558, 1559, 1570, 1571};
}

void tst_KeyCodes::inputLists()
{
    QFETCH(int, input);
    QFETCH(std::vector<int>, codes);
    QVERIFY(InputKeyLists().count(input));
    const auto &list = InputKeyLists().at(input);
    QCOMPARE(std::vector<int>(list.begin(), list.end()), codes);
}

void tst_KeyCodes::inputs_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("color");
    const std::vector<QColor> colors = {
        QColor(253, 0, 253),  QColor(246, 148, 29),  QColor(0, 84, 166),    QColor(213, 6, 129),
        QColor(0, 174, 238),  QColor(255, 255, 0),   QColor(60, 184, 120),  QColor(0, 0, 255),
        QColor(166, 124, 82), QColor(255, 247, 153), QColor(255, 255, 255), QColor(255, 0, 0),
        QColor(0, 255, 0)};
    for (std::size_t input = 0; input < Inputs.size(); ++input)
        QTest::newRow(Inputs[input]) << int(input) << Inputs[input] << colors[input];
    QTest::newRow("past the last") << 13 << "UNKNOWN" << QColor(255, 255, 255);
    QTest::newRow("negative") << -1 << "UNKNOWN" << QColor(255, 255, 255);
}

void tst_KeyCodes::inputs()
{
    QFETCH(int, input);
    QFETCH(QString, name);
    QFETCH(QColor, color);
    QCOMPARE(QString::fromLatin1(inputTypeName(input)), name);
    QCOMPARE(inputColor(input).name(QColor::HexArgb), color.name(QColor::HexArgb));
}

void tst_KeyCodes::powerModes()
{
    for (int code = 0; code < 512; ++code)
        QCOMPARE(isPowerModeCode(ushort(code)), code >= 193 && code <= 196);
}

void tst_KeyCodes::inputTypes_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("input");
    const auto row = [](int key, int type, int code, int input) {
        QTest::addRow("key %d type %d code %d", key, type, code) << key << type << code << input;
    };
    row(0, 2, 0, 4);
    row(0, 2, 53, 4);
    row(0, 0, 53, 12);
    row(1, 0, 53, 0);
    row(21, 0, 192, 12);
    row(0, 0, 192, 0);
    row(27, 0, 403, 12);
    row(26, 0, 402, 12);
    row(21, 0, 385, 12);
    row(27, 0, 402, 8);
    row(26, 0, 403, 8);
    row(0, 0, 0, 11);
    row(28, 0, 0, 12);
    row(0, 0, 255, 12);
    row(0, 0, 197, 0);
    row(0, 0, 193, 0);
    row(0, 3, 240, 2);
    row(24, 0, 246, 12);
    row(0, 0, 239, 0);
    row(0, 0, 247, 0);
    for (const int code : {240, 241, 242, 243, 244, 245, 246})
        row(0, 0, code, 2);
    row(0, 0, 312, 7);
    for (const int code : {385, 386, 400, 401, 402, 403})
        row(0, 0, code, 8);
    for (const int code : {481, 483, 485, 487, 488, 489, 496, 497, 498, 499, 500, 1282, 1283})
        row(0, 0, code, 1);
    for (const int code : {482, 484, 486, 490, 495, 501, 1280, 1281, 1284, 387, 399, 404})
        row(0, 0, code, 0);
    for (const int code : {1536, 1547, 1559, 1570, 1571})
        row(0, 0, code, 9);
    for (const int code : {1535, 1560, 1568, 1569, 1572, 65535})
        row(0, 0, code, 0);
}

void tst_KeyCodes::inputTypes()
{
    QFETCH(int, key);
    QFETCH(int, type);
    QFETCH(int, code);
    QFETCH(int, input);
    QCOMPARE(inputTypeOfCode(key, char(type), ushort(code)), input);
}

VANTRIX_TEST_MAIN(tst_KeyCodes)
#include "tst_KeyCodes.moc"
