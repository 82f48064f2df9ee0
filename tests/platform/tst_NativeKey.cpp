#include "platform/NativeKey.h"

#include "support/TestMain.h"

#include <QKeyEvent>
#include <QSet>

namespace {

struct X11Row
{
    const char *name;
    quint32 x11;
    quint32 scanCode;
    quint32 virtualKey;
};

const std::vector<X11Row> &x11Rows()
{
    // clang-format off
    static const std::vector<X11Row> rows = {
        // name, X11 key code, Windows scan code, Windows virtual key
        {"Escape", 9, 1, 27},
        {"1", 10, 2, 49},
        {"2", 11, 3, 50},
        {"3", 12, 4, 51},
        {"4", 13, 5, 52},
        {"5", 14, 6, 53},
        {"6", 15, 7, 54},
        {"7", 16, 8, 55},
        {"8", 17, 9, 56},
        {"9", 18, 10, 57},
        {"0", 19, 11, 48},
        {"minus", 20, 12, 189},
        {"equal", 21, 13, 187},
        {"Backspace", 22, 14, 8},
        {"Tab", 23, 15, 9},
        {"Q", 24, 16, 81},
        {"W", 25, 17, 87},
        {"E", 26, 18, 69},
        {"R", 27, 19, 82},
        {"T", 28, 20, 84},
        {"Y", 29, 21, 89},
        {"U", 30, 22, 85},
        {"I", 31, 23, 73},
        {"O", 32, 24, 79},
        {"P", 33, 25, 80},
        {"left bracket", 34, 26, 219},
        {"right bracket", 35, 27, 221},
        {"Enter", 36, 28, 13},
        {"left Ctrl", 37, 29, 17},
        {"A", 38, 30, 65},
        {"S", 39, 31, 83},
        {"D", 40, 32, 68},
        {"F", 41, 33, 70},
        {"G", 42, 34, 71},
        {"H", 43, 35, 72},
        {"J", 44, 36, 74},
        {"K", 45, 37, 75},
        {"L", 46, 38, 76},
        {"semicolon", 47, 39, 186},
        {"apostrophe", 48, 40, 222},
        {"grave", 49, 41, 192},
        {"left Shift", 50, 42, 16},
        {"backslash", 51, 43, 220},
        {"Z", 52, 44, 90},
        {"X", 53, 45, 88},
        {"C", 54, 46, 67},
        {"V", 55, 47, 86},
        {"B", 56, 48, 66},
        {"N", 57, 49, 78},
        {"M", 58, 50, 77},
        {"comma", 59, 51, 188},
        {"dot", 60, 52, 190},
        {"slash", 61, 53, 191},
        {"right Shift", 62, 54, 16},
        {"keypad times", 63, 55, 106},
        {"left Alt", 64, 56, 18},
        {"Space", 65, 57, 32},
        {"Caps Lock", 66, 58, 20},
        {"F1", 67, 59, 112},
        {"F2", 68, 60, 113},
        {"F3", 69, 61, 114},
        {"F4", 70, 62, 115},
        {"F5", 71, 63, 116},
        {"F6", 72, 64, 117},
        {"F7", 73, 65, 118},
        {"F8", 74, 66, 119},
        {"F9", 75, 67, 120},
        {"F10", 76, 68, 121},
        {"Num Lock", 77, 325, 144},
        {"Scroll Lock", 78, 70, 145},
        {"keypad 7", 79, 71, 103},
        {"keypad 8", 80, 72, 104},
        {"keypad 9", 81, 73, 105},
        {"keypad minus", 82, 74, 109},
        {"keypad 4", 83, 75, 100},
        {"keypad 5", 84, 76, 101},
        {"keypad 6", 85, 77, 102},
        {"keypad plus", 86, 78, 107},
        {"keypad 1", 87, 79, 97},
        {"keypad 2", 88, 80, 98},
        {"keypad 3", 89, 81, 99},
        {"keypad 0", 90, 82, 96},
        {"keypad dot", 91, 83, 110},
        {"Hankaku/Zenkaku", 93, 41, 192},
        {"the key beside left Shift", 94, 86, 226},
        {"F11", 95, 87, 122},
        {"F12", 96, 88, 123},
        {"Ro, also beside right Shift", 97, 115, 193},
        {"Henkan", 100, 121, 28},
        {"Katakana/Hiragana", 101, 112, 21},
        {"Muhenkan", 102, 123, 29},
        {"keypad Enter", 104, 284, 13},
        {"right Ctrl", 105, 285, 17},
        {"keypad slash", 106, 309, 111},
        {"Print Screen", 107, 84, 44},
        {"right Alt", 108, 312, 18},
        {"Home", 110, 327, 36},
        {"Up", 111, 328, 38},
        {"Page Up", 112, 329, 33},
        {"Left", 113, 331, 37},
        {"Right", 114, 333, 39},
        {"End", 115, 335, 35},
        {"Down", 116, 336, 40},
        {"Page Down", 117, 337, 34},
        {"Insert", 118, 338, 45},
        {"Delete", 119, 339, 46},
        {"mute", 121, 288, 173},
        {"volume down", 122, 302, 174},
        {"volume up", 123, 304, 175},
        {"Pause", 127, 69, 19},
        {"keypad comma", 129, 126, 194},
        {"Yen", 132, 125, 220},
        {"left Windows", 133, 347, 91},
        {"right Windows", 134, 348, 92},
        {"Menu", 135, 349, 93},
        {"browser stop", 136, 360, 169},
        {"calculator", 148, 289, 183},
        {"e-mail", 163, 364, 180},
        {"browser favourites", 164, 358, 171},
        {"computer", 165, 363, 182},
        {"browser back", 166, 362, 166},
        {"browser forward", 167, 361, 167},
        {"next track", 171, 281, 176},
        {"play/pause", 172, 290, 179},
        {"previous track", 173, 272, 177},
        {"stop", 174, 292, 178},
        {"browser home", 180, 306, 172},
        {"browser refresh", 181, 359, 168},
        {"F13", 191, 100, 124},
        {"F14", 192, 101, 125},
        {"F15", 193, 102, 126},
        {"F16", 194, 103, 127},
        {"F17", 195, 104, 128},
        {"F18", 196, 105, 129},
        {"F19", 197, 106, 130},
        {"F20", 198, 107, 131},
        {"F21", 199, 108, 132},
        {"F22", 200, 109, 133},
        {"F23", 201, 110, 134},
        {"F24", 202, 118, 135},
        {"browser search", 225, 357, 170},
        {"media player", 234, 365, 181},
    };
    // clang-format on
    return rows;
}

NativeKey translated(const char *platform, bool spontaneous, quint32 scanCode, quint32 virtualKey)
{
    return translateNativeKey(QString::fromLatin1(platform), spontaneous, scanCode, virtualKey);
}

} // namespace

class tst_NativeKey : public QObject
{
    Q_OBJECT

private slots:
    void translatesX11_data();
    void translatesX11();
    void reachesEveryKeyOfTheKeyboard();
    void codesWithoutAPlace_data();
    void codesWithoutAPlace();
    void constructedEventsKeepTheirNumbers();
    void otherPlatformsKeepTheirNumbers();
    void spontaneousOffscreenEventKeepsItsNumbers();
};

void tst_NativeKey::translatesX11_data()
{
    QTest::addColumn<quint32>("x11");
    QTest::addColumn<quint32>("scanCode");
    QTest::addColumn<quint32>("virtualKey");
    for (const X11Row &row : x11Rows())
        QTest::newRow(row.name) << row.x11 << row.scanCode << row.virtualKey;
}

void tst_NativeKey::translatesX11()
{
    QFETCH(quint32, x11);
    QFETCH(quint32, scanCode);
    QFETCH(quint32, virtualKey);
    // The platform's own virtual key is a key symbol and has no say.
    for (const char *platform : {"xcb", "wayland", "wayland-egl"}) {
        const NativeKey key = translated(platform, true, x11, 0xff0d);
        QCOMPARE(key.scanCode, scanCode);
        QCOMPARE(key.virtualKey, virtualKey);
    }
}

void tst_NativeKey::reachesEveryKeyOfTheKeyboard()
{
    const QSet<quint32> wanted = {
        1,   59,  60,  61,  62,  63,  64,  65,  66,  67,  68,  87,  88,  41,  2,   3,   4,  5,  6,
        7,   8,   9,   10,  11,  12,  13,  14,  15,  16,  17,  18,  19,  20,  21,  22,  23, 24, 25,
        26,  27,  43,  58,  30,  31,  32,  33,  34,  35,  36,  37,  38,  39,  40,  28,  42, 44, 45,
        46,  47,  48,  49,  50,  51,  52,  53,  54,  29,  347, 56,  57,  312, 348, 285, 84, 70, 69,
        338, 327, 329, 339, 335, 337, 328, 331, 336, 333, 325, 309, 55,  74,  71,  72,  73, 75, 76,
        77,  78,  79,  80,  81,  82,  83,  284, 86,  115, 125, 123, 121, 112, 126};
    QCOMPARE(wanted.size(), 110);
    QSet<quint32> reached;
    for (quint32 x11 = 0; x11 < 256; ++x11)
        reached << translated("xcb", true, x11, 0).scanCode;
    QCOMPARE((wanted - reached).values(), QList<quint32>());
}

void tst_NativeKey::codesWithoutAPlace_data()
{
    QTest::addColumn<quint32>("x11");
    QTest::newRow("nothing") << quint32(0);
    QTest::newRow("below the offset") << quint32(7);
    QTest::newRow("reserved") << quint32(8);
    QTest::newRow("a gap") << quint32(92);
    QTest::newRow("behind the last row") << quint32(247);
    QTest::newRow("far away") << quint32(0xffffffff);
}

void tst_NativeKey::codesWithoutAPlace()
{
    QFETCH(quint32, x11);
    const NativeKey key = translated("xcb", true, x11, 0x41);
    QCOMPARE(key.scanCode, 0u);
    QCOMPARE(key.virtualKey, 0u);
}

void tst_NativeKey::constructedEventsKeepTheirNumbers()
{
    const NativeKey key = translated("xcb", false, 284, 13);
    QCOMPARE(key.scanCode, 284u);
    QCOMPARE(key.virtualKey, 13u);

    const QKeyEvent event(QEvent::KeyRelease, Qt::Key_B, Qt::NoModifier, 48, 66, 0);
    QCOMPARE(nativeKeyOf(&event).scanCode, 48u);
    QCOMPARE(nativeKeyOf(&event).virtualKey, 66u);
}

void tst_NativeKey::otherPlatformsKeepTheirNumbers()
{
    for (const char *platform : {"windows", "offscreen", "minimal", "cocoa", ""}) {
        const NativeKey key = translated(platform, true, 54, 16);
        QCOMPARE(key.scanCode, 54u);
        QCOMPARE(key.virtualKey, 16u);
    }
}

void tst_NativeKey::spontaneousOffscreenEventKeepsItsNumbers()
{
    QKeyEvent event(QEvent::KeyRelease, Qt::Key_B, Qt::NoModifier, 48, 66, 0);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QVERIFY(event.spontaneous());
    QCOMPARE(nativeKeyOf(&event).scanCode, 48u);
    QCOMPARE(nativeKeyOf(&event).virtualKey, 66u);
}

VANTRIX_TEST_MAIN(tst_NativeKey)
#include "tst_NativeKey.moc"
