#include "vocabulary/KeyCodes.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// The empty text is the key of a translation file's own header.
QString translated(const char *name)
{
    return *name ? QCoreApplication::translate("KeyCodes", name) : QString();
}

template <typename Map, typename Key>
typename Map::mapped_type valueOr(const Map &map, Key key, typename Map::mapped_type absent)
{
    const auto row = map.find(key);
    return row == map.end() ? absent : row->second;
}

struct CodeRange
{
    ushort first;
    ushort last;
    int inputType;
};

// clang-format off
/// The codes that stand for more than a key of a keyboard.
constexpr std::array<CodeRange, 14> TypedCodes = {{
    // first, last, input
    {   0,    0, InputType::Disabled},
    { 240,  246, InputType::Media},
    { 255,  255, InputType::Unassigned},
    { 312,  312, InputType::PressoFunctions},
    { 385,  386, InputType::Backlight},
    { 400,  403, InputType::Backlight},
    { 481,  481, InputType::Mouse},
    { 483,  483, InputType::Mouse},
    { 485,  485, InputType::Mouse},
    { 487,  489, InputType::Mouse},
    { 496,  500, InputType::Mouse},
    {1282, 1283, InputType::Mouse},
    {1536, 1559, InputType::Profile},
    {1570, 1571, InputType::Profile},
}};
// clang-format on

constexpr bool isAscending(const std::array<CodeRange, TypedCodes.size()> &ranges)
{
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        if (ranges[i].first > ranges[i].last || (i > 0 && ranges[i].first <= ranges[i - 1].last))
            return false;
    }
    return true;
}
static_assert(isAscending(TypedCodes), "a code has one meaning");

constexpr bool isKeyPlan(const std::array<ushort, KeyCount> &codes)
{
    for (std::size_t i = 0; i < codes.size(); ++i) {
        if (codes[i] == 0 || codes[i] >= UnassignedCode)
            return false;
        for (std::size_t j = 0; j < i; ++j) {
            if (codes[j] == codes[i])
                return false;
        }
    }
    return true;
}
static_assert(isKeyPlan(KeyDefaultCodes), "every key emits a code of its own");

/// Three keys whose factory function has a second code.
bool isOwnBacklightCode(int keyIndex, ushort code)
{
    return (keyIndex == 27 && code == 403) || (keyIndex == 26 && code == 402) ||
           (keyIndex == 21 && code == 385);
}

} // namespace

ushort defaultCodeOfKey(int keyIdx)
{
    return isValidKey(keyIdx) ? KeyDefaultCodes[std::size_t(keyIdx)] : ushort(0);
}

const std::map<QString, std::pair<ushort, uchar>> &KeyNameCodes()
{
    // clang-format off
    static const std::map<QString, std::pair<ushort, uchar>> codes = {
        // name, {device code, mouse}
        {QStringLiteral("A"), {4, 0}},
        {QStringLiteral("B"), {5, 0}},
        {QStringLiteral("C"), {6, 0}},
        {QStringLiteral("D"), {7, 0}},
        {QStringLiteral("E"), {8, 0}},
        {QStringLiteral("F"), {9, 0}},
        {QStringLiteral("G"), {10, 0}},
        {QStringLiteral("H"), {11, 0}},
        {QStringLiteral("I"), {12, 0}},
        {QStringLiteral("J"), {13, 0}},
        {QStringLiteral("K"), {14, 0}},
        {QStringLiteral("L"), {15, 0}},
        {QStringLiteral("M"), {16, 0}},
        {QStringLiteral("N"), {17, 0}},
        {QStringLiteral("O"), {18, 0}},
        {QStringLiteral("P"), {19, 0}},
        {QStringLiteral("Q"), {20, 0}},
        {QStringLiteral("R"), {21, 0}},
        {QStringLiteral("S"), {22, 0}},
        {QStringLiteral("T"), {23, 0}},
        {QStringLiteral("U"), {24, 0}},
        {QStringLiteral("V"), {25, 0}},
        {QStringLiteral("W"), {26, 0}},
        {QStringLiteral("X"), {27, 0}},
        {QStringLiteral("Y"), {28, 0}},
        {QStringLiteral("Z"), {29, 0}},
        {QStringLiteral("F1"), {58, 0}},
        {QStringLiteral("F2"), {59, 0}},
        {QStringLiteral("F3"), {60, 0}},
        {QStringLiteral("F4"), {61, 0}},
        {QStringLiteral("F5"), {62, 0}},
        {QStringLiteral("F6"), {63, 0}},
        {QStringLiteral("F7"), {64, 0}},
        {QStringLiteral("F8"), {65, 0}},
        {QStringLiteral("F9"), {66, 0}},
        {QStringLiteral("F10"), {67, 0}},
        {QStringLiteral("F11"), {68, 0}},
        {QStringLiteral("F12"), {69, 0}},
        {QStringLiteral("1"), {30, 0}},
        {QStringLiteral("2"), {31, 0}},
        {QStringLiteral("3"), {32, 0}},
        {QStringLiteral("4"), {33, 0}},
        {QStringLiteral("5"), {34, 0}},
        {QStringLiteral("6"), {35, 0}},
        {QStringLiteral("7"), {36, 0}},
        {QStringLiteral("8"), {37, 0}},
        {QStringLiteral("9"), {38, 0}},
        {QStringLiteral("0"), {39, 0}},
        {QStringLiteral("NUM_1"), {89, 0}},
        {QStringLiteral("NUM_2"), {90, 0}},
        {QStringLiteral("NUM_3"), {91, 0}},
        {QStringLiteral("NUM_4"), {92, 0}},
        {QStringLiteral("NUM_5"), {93, 0}},
        {QStringLiteral("NUM_6"), {94, 0}},
        {QStringLiteral("NUM_7"), {95, 0}},
        {QStringLiteral("NUM_8"), {96, 0}},
        {QStringLiteral("NUM_9"), {97, 0}},
        {QStringLiteral("NUM_0"), {98, 0}},
        {QStringLiteral("MINUS"), {45, 0}},
        {QStringLiteral("PLUS"), {46, 0}},
        {QStringLiteral("{"), {47, 0}},
        {QStringLiteral("}"), {48, 0}},
        {QStringLiteral("\\"), {49, 0}},
        {QStringLiteral(":"), {51, 0}},
        {QStringLiteral("'"), {52, 0}},
        {QStringLiteral("\""), {52, 0}},
        {QStringLiteral("~"), {53, 0}},
        {QStringLiteral("<"), {54, 0}},
        {QStringLiteral(">"), {55, 0}},
        {QStringLiteral("?"), {56, 0}},
        {QStringLiteral("ENTER"), {40, 0}},
        {QStringLiteral("ESC"), {41, 0}},
        {QStringLiteral("BACKSPACE"), {42, 0}},
        {QStringLiteral("TAB"), {43, 0}},
        {QStringLiteral("CAP"), {57, 0}},
        {QStringLiteral("SPACE"), {44, 0}},
        {QStringLiteral("PRTSC"), {70, 0}},
        {QStringLiteral("SCRLK"), {71, 0}},
        {QStringLiteral("PAUSE"), {72, 0}},
        {QStringLiteral("INSERT"), {73, 0}},
        {QStringLiteral("HOME"), {74, 0}},
        {QStringLiteral("PAGE UP"), {75, 0}},
        {QStringLiteral("DELETE"), {76, 0}},
        {QStringLiteral("END"), {77, 0}},
        {QStringLiteral("PAGE DOWN"), {78, 0}},
        {QStringLiteral("RIGHT"), {79, 0}},
        {QStringLiteral("LEFT"), {80, 0}},
        {QStringLiteral("DOWN"), {81, 0}},
        {QStringLiteral("UP"), {82, 0}},
        {QStringLiteral("CTRL"), {224, 0}},
        {QStringLiteral("SHIFT"), {225, 0}},
        {QStringLiteral("ALT"), {226, 0}},
        {QStringLiteral("WIN"), {227, 0}},
        {QStringLiteral("LEFT CLICK"), {240, 1}},
        {QStringLiteral("RIGHT CLICK"), {241, 1}},
    };
    // clang-format on
    return codes;
}

const std::map<int, ushort> &ScanToKeyCode()
{
    // clang-format off
    static const std::map<int, ushort> codes = {
        // scan code, device code
        {  1,  41}, { 59,  58}, { 60,  59}, { 61,  60}, { 62,  61}, { 63,  62},
        { 64,  63}, { 65,  64}, { 66,  65}, { 67,  66}, { 68,  67}, { 87,  68},
        { 88,  69}, { 41,  53}, {  2,  30}, {  3,  31}, {  4,  32}, {  5,  33},
        {  6,  34}, {  7,  35}, {  8,  36}, {  9,  37}, { 10,  38}, { 11,  39},
        { 12,  45}, { 13,  46}, { 14,  42}, { 15,  43}, { 16,  20}, { 17,  26},
        { 18,   8}, { 19,  21}, { 20,  23}, { 21,  28}, { 22,  24}, { 23,  12},
        { 24,  18}, { 25,  19}, { 26,  47}, { 27,  48}, { 43,  49}, { 58,  57},
        { 30,   4}, { 31,  22}, { 32,   7}, { 33,   9}, { 34,  10}, { 35,  11},
        { 36,  13}, { 37,  14}, { 38,  15}, { 39,  51}, { 40,  52}, { 28,  40},
        { 42, 225}, { 44,  29}, { 45,  27}, { 46,   6}, { 47,  25}, { 48,   5},
        { 49,  17}, { 50,  16}, { 51,  54}, { 52,  55}, { 53,  56}, { 54, 229},
        { 29, 224}, {347, 227}, { 56, 226}, { 57,  44}, {312, 230}, {348, 231},
        {285, 228}, { 84,  70}, { 70,  71}, { 69,  72}, {338,  73}, {327,  74},
        {329,  75}, {339,  76}, {335,  77}, {337,  78}, {328,  82}, {331,  80},
        {336,  81}, {333,  79}, {325,  83}, {309,  84}, { 55,  85}, { 74,  86},
        { 71,  95}, { 72,  96}, { 73,  97}, { 75,  92}, { 76,  93}, { 77,  94},
        { 78,  87}, { 79,  89}, { 80,  90}, { 81,  91}, { 82,  98}, { 83,  99},
        {284,  88}, { 86, 100}, {115, 135}, {125, 100}, {123, 100}, {121, 100},
        {112, 100}, {126, 133},
    };
    // clang-format on
    return codes;
}

int scanOfKeyCode(ushort code)
{
    const auto &codes = ScanToKeyCode();
    const auto row = std::find_if(codes.begin(), codes.end(),
                                  [code](const auto &pair) { return pair.second == code; });
    return row == codes.end() ? 0 : row->first;
}

ushort codeOfVirtualKey(quint32 virtualKey)
{
    // clang-format off
    static const std::map<quint32, ushort> codes = {
        // virtual key, device code
        {  8,  42}, {  9,  43}, { 13,  40}, { 19,  72}, { 20,  57}, { 27,  41},
        { 32,  44}, { 33,  75}, { 34,  78}, { 35,  77}, { 36,  74}, { 37,  80},
        { 38,  82}, { 39,  79}, { 40,  81}, { 44,  70}, { 45,  73}, { 46,  76},
        { 48,  39}, { 49,  30}, { 50,  31}, { 51,  32}, { 52,  33}, { 53,  34},
        { 54,  35}, { 55,  36}, { 56,  37}, { 57,  38}, { 65,   4}, { 66,   5},
        { 67,   6}, { 68,   7}, { 69,   8}, { 70,   9}, { 71,  10}, { 72,  11},
        { 73,  12}, { 74,  13}, { 75,  14}, { 76,  15}, { 77,  16}, { 78,  17},
        { 79,  18}, { 80,  19}, { 81,  20}, { 82,  21}, { 83,  22}, { 84,  23},
        { 85,  24}, { 86,  25}, { 87,  26}, { 88,  27}, { 89,  28}, { 90,  29},
        { 91, 227}, { 92, 231}, { 96,  98}, { 97,  89}, { 98,  90}, { 99,  91},
        {100,  92}, {101,  93}, {102,  94}, {103,  95}, {104,  96}, {105,  97},
        {106,  85}, {107,  87}, {108,  88}, {109,  86}, {110,  99}, {111,  84},
        {112,  58}, {113,  59}, {114,  60}, {115,  61}, {116,  62}, {117,  63},
        {118,  64}, {119,  65}, {120,  66}, {121,  67}, {122,  68}, {123,  69},
        {124, 104}, {125, 105}, {126, 106}, {127, 107}, {128, 108}, {132, 112},
        {133, 113}, {134, 114}, {144,  83}, {145,  71}, {173, 244}, {174, 245},
        {175, 246}, {176, 243}, {177, 242}, {179, 240}, {186,  51}, {187,  46},
        {188,  54}, {189,  45}, {190,  55}, {191,  56}, {192,  53}, {219,  47},
        {220,  49}, {221,  48}, {222,  52},
    };
    // clang-format on
    return valueOr(codes, virtualKey, 0);
}

ushort codeOfPrecedingScan(quint32 scanCode)
{
    static const std::map<quint32, ushort> codes = {
        {28, 40},   // Enter
        {29, 224},  // left Ctrl
        {42, 225},  // left Shift
        {54, 229},  // right Shift
        {56, 226},  // left Alt
        {284, 88},  // keypad Enter
        {285, 228}, // right Ctrl
        {312, 230}, // right Alt
    };
    return valueOr(codes, scanCode, 0);
}

const std::map<int, std::vector<ushort>> &InputKeyLists()
{
    // clang-format off
    static const std::map<int, std::vector<ushort>> lists = {
        {InputType::Mouse, {496, 497, 498, 488, 489, 1282, 1283, 500, 499, 481, 483, 485, 487}},
        {InputType::Media, {240, 241, 242, 243, 246, 245, 244}},
        {InputType::PressoFunctions, {312}},
        {InputType::Backlight, {385, 386, 403, 402, 401, 400}},
        {InputType::Profile, {
            1536, 1537, 1538, 1539, 1540, 1541, 1542, 1543, 1544, 1545, 1546, 1547,
            1548, 1549, 1550, 1551, 1552, 1553, 1554, 1555, 1556, 1557, 1558, 1559,
            1570, 1571,
        }},
    };
    // clang-format on
    return lists;
}

const std::map<int, QColor> &InputColors()
{
    static const std::map<int, QColor> colors = {
        {InputType::Keyboard, QColor(253, 0, 253)},
        {InputType::Mouse, QColor(246, 148, 29)},
        {InputType::Media, QColor(0, 84, 166)},
        {InputType::Macro, QColor(213, 6, 129)},
        {InputType::GameController, QColor(0, 174, 238)},
        {InputType::Application, QColor(Qt::yellow)},
        {InputType::DualAction, QColor(60, 184, 120)},
        {InputType::PressoFunctions, QColor(Qt::blue)},
        {InputType::Backlight, QColor(166, 124, 82)},
        {InputType::Profile, QColor(255, 247, 153)},
        {InputType::Disabled, QColor(Qt::red)},
        {InputType::Unassigned, QColor(Qt::green)},
    };
    return colors;
}

QColor inputColor(int inputType)
{
    return valueOr(InputColors(), inputType, QColor(Qt::white));
}

const char *inputTypeName(int inputType)
{
    static const std::map<int, const char *> names = {
        {InputType::Keyboard, QT_TRANSLATE_NOOP("KeyCodes", "KEYBOARD")},
        {InputType::Mouse, QT_TRANSLATE_NOOP("KeyCodes", "MOUSE")},
        {InputType::Media, QT_TRANSLATE_NOOP("KeyCodes", "MEDIA")},
        {InputType::Macro, QT_TRANSLATE_NOOP("KeyCodes", "MACRO")},
        {InputType::GameController, QT_TRANSLATE_NOOP("KeyCodes", "GAME CONTROLLER")},
        {InputType::Application, QT_TRANSLATE_NOOP("KeyCodes", "APPLICATION")},
        {InputType::DualAction, QT_TRANSLATE_NOOP("KeyCodes", "DUAL ACTION")},
        {InputType::PressoFunctions, QT_TRANSLATE_NOOP("KeyCodes", "PRESSO FUNCTIONS")},
        {InputType::Backlight, QT_TRANSLATE_NOOP("KeyCodes", "BACKLIGHT")},
        {InputType::Profile, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE")},
        {InputType::PresetMode, QT_TRANSLATE_NOOP("KeyCodes", "PRESET MODE")},
        {InputType::Disabled, QT_TRANSLATE_NOOP("KeyCodes", "DISABLED")},
        {InputType::Unassigned, QT_TRANSLATE_NOOP("KeyCodes", "UNASSIGNED")},
    };
    return valueOr(names, inputType, QT_TRANSLATE_NOOP("KeyCodes", "UNKNOWN"));
}

QString inputTypeText(int inputType)
{
    return translated(inputTypeName(inputType));
}

const std::map<int, std::vector<ushort>> &WinShortcutKeys()
{
    // clang-format off
    static const std::map<int, std::vector<ushort>> keys = {
        { 0, {224, 225, 41}},
        { 1, {226, 43}},
        { 2, {226, 80}},
        { 3, {226, 79}},
        { 4, {226, 75}},
        { 5, {226, 78}},
        { 6, {224, 226, 43}},
        { 7, {224, 6}},
        { 8, {224, 27}},
        { 9, {224, 25}},
        {10, {224, 4}},
        {11, {224, 29}},
        {12, {224, 28}},
        {13, {224, 7}},
        {14, {224, 41}},
        {15, {224, 225}},
        {16, {224, 61}},
    };
    // clang-format on
    return keys;
}

const char *winShortcutName(int shortcutId)
{
    static const std::array<const char *, WinShortcutCount> names = {
        QT_TRANSLATE_NOOP("KeyCodes", "OPEN TASK MANAGER"),
        QT_TRANSLATE_NOOP("KeyCodes", "SWITCH BETWEEN OPEN APPS"),
        QT_TRANSLATE_NOOP("KeyCodes", "BROWSER BACKWARD"),
        QT_TRANSLATE_NOOP("KeyCodes", "BROWSER FORWARD"),
        QT_TRANSLATE_NOOP("KeyCodes", "MOVE UP ONE SCREEN"),
        QT_TRANSLATE_NOOP("KeyCodes", "MOVE DOWN ONE SCREEN"),
        QT_TRANSLATE_NOOP("KeyCodes", "VIEW OPEN APPS"),
        QT_TRANSLATE_NOOP("KeyCodes", "COPY SELECTED ITEMS TO CLIPBOARD"),
        QT_TRANSLATE_NOOP("KeyCodes", "CUT SELECTED ITEMS"),
        QT_TRANSLATE_NOOP("KeyCodes", "PASTE CONTENT FROM CLIPBOARD"),
        QT_TRANSLATE_NOOP("KeyCodes", "SELECT ALL CONTENT"),
        QT_TRANSLATE_NOOP("KeyCodes", "UNDO AN ACTION"),
        QT_TRANSLATE_NOOP("KeyCodes", "REDO AN ACTION"),
        QT_TRANSLATE_NOOP("KeyCodes", "DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN"),
        QT_TRANSLATE_NOOP("KeyCodes", "OPEN THE START MENU"),
        QT_TRANSLATE_NOOP("KeyCodes", "SWITCH THE KEYBOARD LAYOUT"),
        QT_TRANSLATE_NOOP("KeyCodes", "CLOSE ACTIVE WINDOW"),
    };
    const bool isKnown = shortcutId >= 0 && shortcutId < WinShortcutCount;
    return isKnown ? names[std::size_t(shortcutId)] : "";
}

QString winShortcutText(int shortcutId)
{
    return translated(winShortcutName(shortcutId));
}

const std::map<ushort, std::vector<ushort>> &SymbolKeySequences()
{
    // clang-format off
    static const std::map<ushort, std::vector<ushort>> sequences = {
        { 116, {98, 98}},
        { 117, {46}},
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
    // clang-format on
    return sequences;
}

bool isExtendedCode(ushort code)
{
    return SymbolKeySequences().count(code) != 0;
}

bool isPowerModeCode(ushort code)
{
    return code >= FirstPowerModeCode && code <= LastPowerModeCode;
}

const char *keyFunctionName(ushort code)
{
    // clang-format off
    static const std::map<ushort, const char *> names = {
        {   0, QT_TRANSLATE_NOOP("KeyCodes", "DISABLE")},
        { 104, QT_TRANSLATE_NOOP("KeyCodes", "F13")},
        { 105, QT_TRANSLATE_NOOP("KeyCodes", "F14")},
        { 106, QT_TRANSLATE_NOOP("KeyCodes", "F15")},
        { 107, QT_TRANSLATE_NOOP("KeyCodes", "F16")},
        { 108, QT_TRANSLATE_NOOP("KeyCodes", "F17")},
        { 109, QT_TRANSLATE_NOOP("KeyCodes", "F18")},
        { 110, QT_TRANSLATE_NOOP("KeyCodes", "F19")},
        { 111, QT_TRANSLATE_NOOP("KeyCodes", "F20")},
        { 112, QT_TRANSLATE_NOOP("KeyCodes", "F21")},
        { 113, QT_TRANSLATE_NOOP("KeyCodes", "F22")},
        { 114, QT_TRANSLATE_NOOP("KeyCodes", "F23")},
        { 115, QT_TRANSLATE_NOOP("KeyCodes", "F24")},
        { 116, QT_TRANSLATE_NOOP("KeyCodes", "00")},
        { 117, QT_TRANSLATE_NOOP("KeyCodes", "=")},
        { 192, QT_TRANSLATE_NOOP("KeyCodes", "EFFECT CYCLE+")},
        { 193, QT_TRANSLATE_NOOP("KeyCodes", "Power Mode:Disable")},
        { 194, QT_TRANSLATE_NOOP("KeyCodes", "Power Mode:Working")},
        { 195, QT_TRANSLATE_NOOP("KeyCodes", "Power Mode:Performance")},
        { 196, QT_TRANSLATE_NOOP("KeyCodes", "Power Mode:Gaming")},
        { 198, QT_TRANSLATE_NOOP("KeyCodes", "LED DARKER-")},
        { 199, QT_TRANSLATE_NOOP("KeyCodes", "LED BRIGHTER+")},
        { 222, QT_TRANSLATE_NOOP("KeyCodes", "L TRIGGER")},
        { 223, QT_TRANSLATE_NOOP("KeyCodes", "R TRIGGER")},
        { 237, QT_TRANSLATE_NOOP("KeyCodes", "E-MAIL")},
        { 238, QT_TRANSLATE_NOOP("KeyCodes", "CALCULATOR")},
        { 240, QT_TRANSLATE_NOOP("KeyCodes", "PLAY/PAUSE")},
        { 241, QT_TRANSLATE_NOOP("KeyCodes", "STOP")},
        { 242, QT_TRANSLATE_NOOP("KeyCodes", "PREVIOUS TRACK")},
        { 243, QT_TRANSLATE_NOOP("KeyCodes", "NEXT TRACK")},
        { 244, QT_TRANSLATE_NOOP("KeyCodes", "VOLUME MUTE/UNMUTE")},
        { 245, QT_TRANSLATE_NOOP("KeyCodes", "VOLUME DOWN")},
        { 246, QT_TRANSLATE_NOOP("KeyCodes", "VOLUME UP")},
        { 248, QT_TRANSLATE_NOOP("KeyCodes", "WEB BROWSER")},
        { 249, QT_TRANSLATE_NOOP("KeyCodes", "BROWSER BACKWARD")},
        { 250, QT_TRANSLATE_NOOP("KeyCodes", "BROWSER FORWARD")},
        { 312, QT_TRANSLATE_NOOP("KeyCodes", "CALIBRATE")},
        { 385, QT_TRANSLATE_NOOP("KeyCodes", "EFFECT CYCLE+")},
        { 386, QT_TRANSLATE_NOOP("KeyCodes", "EFFECT CYCLE-")},
        { 400, QT_TRANSLATE_NOOP("KeyCodes", "SPEED DOWN LED EFFECT-")},
        { 401, QT_TRANSLATE_NOOP("KeyCodes", "SPEED UP LED EFFECT+")},
        { 402, QT_TRANSLATE_NOOP("KeyCodes", "LED DARKER-")},
        { 403, QT_TRANSLATE_NOOP("KeyCodes", "LED BRIGHTER+")},
        { 454, QT_TRANSLATE_NOOP("KeyCodes", "D PAD UP RIGHT")},
        { 455, QT_TRANSLATE_NOOP("KeyCodes", "D PAD DOWN RIGHT")},
        { 456, QT_TRANSLATE_NOOP("KeyCodes", "D PAD DOWN LEFT")},
        { 457, QT_TRANSLATE_NOOP("KeyCodes", "D PAD UP LEFT")},
        { 458, QT_TRANSLATE_NOOP("KeyCodes", "D PAD UP")},
        { 459, QT_TRANSLATE_NOOP("KeyCodes", "D PAD DOWN")},
        { 460, QT_TRANSLATE_NOOP("KeyCodes", "D PAD LEFT")},
        { 461, QT_TRANSLATE_NOOP("KeyCodes", "D PAD RIGHT")},
        { 462, QT_TRANSLATE_NOOP("KeyCodes", "A BUTTON")},
        { 463, QT_TRANSLATE_NOOP("KeyCodes", "B BUTTON")},
        { 464, QT_TRANSLATE_NOOP("KeyCodes", "X BUTTON")},
        { 465, QT_TRANSLATE_NOOP("KeyCodes", "Y BUTTON")},
        { 466, QT_TRANSLATE_NOOP("KeyCodes", "L BUMPER")},
        { 467, QT_TRANSLATE_NOOP("KeyCodes", "R BUMPER")},
        { 468, QT_TRANSLATE_NOOP("KeyCodes", "GUIDE BUTTON")},
        { 469, QT_TRANSLATE_NOOP("KeyCodes", "START BUTTON")},
        { 470, QT_TRANSLATE_NOOP("KeyCodes", "HOME BUTTON")},
        { 471, QT_TRANSLATE_NOOP("KeyCodes", "L STICK PRESS")},
        { 472, QT_TRANSLATE_NOOP("KeyCodes", "R STICK PRESS")},
        { 473, QT_TRANSLATE_NOOP("KeyCodes", "D PAD UP")},
        { 474, QT_TRANSLATE_NOOP("KeyCodes", "L STICK LEFT")},
        { 475, QT_TRANSLATE_NOOP("KeyCodes", "L STICK DOWN")},
        { 476, QT_TRANSLATE_NOOP("KeyCodes", "R STICK LEFT")},
        { 477, QT_TRANSLATE_NOOP("KeyCodes", "R STICK DOWN")},
        { 481, QT_TRANSLATE_NOOP("KeyCodes", "CURSOR UP")},
        { 483, QT_TRANSLATE_NOOP("KeyCodes", "CURSOR RIGHT")},
        { 485, QT_TRANSLATE_NOOP("KeyCodes", "CURSOR DOWN")},
        { 487, QT_TRANSLATE_NOOP("KeyCodes", "CURSOR LEFT")},
        { 488, QT_TRANSLATE_NOOP("KeyCodes", "SCROLL UP")},
        { 489, QT_TRANSLATE_NOOP("KeyCodes", "SCROLL DOWN")},
        { 496, QT_TRANSLATE_NOOP("KeyCodes", "LEFT CLICK")},
        { 497, QT_TRANSLATE_NOOP("KeyCodes", "RIGHT CLICK")},
        { 498, QT_TRANSLATE_NOOP("KeyCodes", "WHEEL CLICK")},
        { 499, QT_TRANSLATE_NOOP("KeyCodes", "BACKWARD")},
        { 500, QT_TRANSLATE_NOOP("KeyCodes", "FORWARD")},
        { 729, QT_TRANSLATE_NOOP("KeyCodes", "D PAD DOWN")},
        { 730, QT_TRANSLATE_NOOP("KeyCodes", "L STICK RIGHT")},
        { 731, QT_TRANSLATE_NOOP("KeyCodes", "L STICK UP")},
        { 732, QT_TRANSLATE_NOOP("KeyCodes", "R STICK RIGHT")},
        { 733, QT_TRANSLATE_NOOP("KeyCodes", "R STICK UP")},
        {1241, QT_TRANSLATE_NOOP("KeyCodes", "D PAD LEFT")},
        {1280, QT_TRANSLATE_NOOP("KeyCodes", "SCROLL UP")},
        {1281, QT_TRANSLATE_NOOP("KeyCodes", "SCROLL DOWN")},
        {1282, QT_TRANSLATE_NOOP("KeyCodes", "SCROLL LEFT")},
        {1283, QT_TRANSLATE_NOOP("KeyCodes", "SCROLL RIGHT")},
        {1497, QT_TRANSLATE_NOOP("KeyCodes", "D PAD UP LEFT")},
        {1536, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 1")},
        {1537, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 2")},
        {1538, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 3")},
        {1539, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 4")},
        {1540, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 5")},
        {1541, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 6")},
        {1542, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 7")},
        {1543, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 8")},
        {1544, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 9")},
        {1545, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 10")},
        {1546, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 11")},
        {1547, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 12")},
        {1548, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 13")},
        {1549, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 14")},
        {1550, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 15")},
        {1551, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 16")},
        {1552, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 17")},
        {1553, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 18")},
        {1554, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 19")},
        {1555, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 20")},
        {1556, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 21")},
        {1557, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 22")},
        {1558, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 23")},
        {1559, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE 24")},
        {1568, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE[+]")},
        {1569, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE[-]")},
        {1570, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE CYCLE+")},
        {1571, QT_TRANSLATE_NOOP("KeyCodes", "PROFILE CYCLE-")},
        {1753, QT_TRANSLATE_NOOP("KeyCodes", "D PAD DOWN LEFT")},
        {2265, QT_TRANSLATE_NOOP("KeyCodes", "D PAD RIGHT")},
        {2521, QT_TRANSLATE_NOOP("KeyCodes", "D PAD UP RIGHT")},
        {2777, QT_TRANSLATE_NOOP("KeyCodes", "D PAD DOWN RIGHT")},
        {2816, QT_TRANSLATE_NOOP("KeyCodes", "`")},
        {2817, QT_TRANSLATE_NOOP("KeyCodes", "1")},
        {2818, QT_TRANSLATE_NOOP("KeyCodes", "2")},
        {2819, QT_TRANSLATE_NOOP("KeyCodes", "3")},
        {2820, QT_TRANSLATE_NOOP("KeyCodes", "4")},
        {2821, QT_TRANSLATE_NOOP("KeyCodes", "5")},
        {2822, QT_TRANSLATE_NOOP("KeyCodes", "6")},
        {2823, QT_TRANSLATE_NOOP("KeyCodes", "7")},
        {2824, QT_TRANSLATE_NOOP("KeyCodes", "8")},
        {2825, QT_TRANSLATE_NOOP("KeyCodes", "9")},
        {2826, QT_TRANSLATE_NOOP("KeyCodes", "0")},
        {2827, QT_TRANSLATE_NOOP("KeyCodes", "-")},
        {2828, QT_TRANSLATE_NOOP("KeyCodes", "=")},
        {2829, QT_TRANSLATE_NOOP("KeyCodes", "[")},
        {2830, QT_TRANSLATE_NOOP("KeyCodes", "]")},
        {2831, QT_TRANSLATE_NOOP("KeyCodes", "\\")},
        {2832, QT_TRANSLATE_NOOP("KeyCodes", ";")},
        {2833, QT_TRANSLATE_NOOP("KeyCodes", "'")},
        {2834, QT_TRANSLATE_NOOP("KeyCodes", ",")},
        {2835, QT_TRANSLATE_NOOP("KeyCodes", ".")},
        {2836, QT_TRANSLATE_NOOP("KeyCodes", "/")},
        {3072, QT_TRANSLATE_NOOP("KeyCodes", "~")},
        {3073, QT_TRANSLATE_NOOP("KeyCodes", "!")},
        {3074, QT_TRANSLATE_NOOP("KeyCodes", "@")},
        {3075, QT_TRANSLATE_NOOP("KeyCodes", "#")},
        {3076, QT_TRANSLATE_NOOP("KeyCodes", "$")},
        {3077, QT_TRANSLATE_NOOP("KeyCodes", "%")},
        {3078, QT_TRANSLATE_NOOP("KeyCodes", "^")},
        {3079, QT_TRANSLATE_NOOP("KeyCodes", "&&")},
        {3080, QT_TRANSLATE_NOOP("KeyCodes", "*")},
        {3081, QT_TRANSLATE_NOOP("KeyCodes", "(")},
        {3082, QT_TRANSLATE_NOOP("KeyCodes", ")")},
        {3083, QT_TRANSLATE_NOOP("KeyCodes", "_")},
        {3084, QT_TRANSLATE_NOOP("KeyCodes", "+")},
        {3085, QT_TRANSLATE_NOOP("KeyCodes", "{")},
        {3086, QT_TRANSLATE_NOOP("KeyCodes", "}")},
        {3087, QT_TRANSLATE_NOOP("KeyCodes", "|")},
        {3088, QT_TRANSLATE_NOOP("KeyCodes", ":")},
        {3089, QT_TRANSLATE_NOOP("KeyCodes", "\"")},
        {3090, QT_TRANSLATE_NOOP("KeyCodes", "<")},
        {3091, QT_TRANSLATE_NOOP("KeyCodes", ">")},
        {3092, QT_TRANSLATE_NOOP("KeyCodes", "?")},
    };
    // clang-format on
    return valueOr(names, code, QT_TRANSLATE_NOOP("KeyCodes", "UNKNOWN KEY"));
}

QString keyFunctionText(ushort code)
{
    return translated(keyFunctionName(code));
}

int inputTypeOfCode(int keyIndex, char type, ushort code)
{
    if (type == KeyType::GameController)
        return InputType::GameController;
    if (code == defaultCodeOfKey(keyIndex) || isOwnBacklightCode(keyIndex, code))
        return InputType::Unassigned;
    const auto range = std::find_if(TypedCodes.begin(), TypedCodes.end(), [code](const auto &r) {
        return code >= r.first && code <= r.last;
    });
    return range == TypedCodes.end() ? int(InputType::Keyboard) : range->inputType;
}
