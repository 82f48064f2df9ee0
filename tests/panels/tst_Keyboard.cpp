#include "panels/Keyboard.h"

#include "fakes/FakeServices.h"
#include "interfaces/ButtonGroupEx.h"
#include "interfaces/Modal.h"
#include "panels/KeyBtn.h"
#include "support/Gestures.h"
#include "support/TestMain.h"
#include "vocabulary/LegendRows.h"

#include <QDialog>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>
#include <set>

namespace {

constexpr int Ansi = 0;
constexpr int Iso = 1;
constexpr int Br = 2;
constexpr int Jp = 3;
constexpr int English = 2;

const std::map<int, ushort> &deviceCodes()
{
    // clang-format off
    static const std::map<int, ushort> codes = {
        // scan code, device code
        {1, 41}, {59, 58}, {60, 59}, {61, 60}, {62, 61}, {63, 62}, {64, 63}, {65, 64}, {66, 65},
        {67, 66}, {68, 67}, {87, 68}, {88, 69}, {41, 53}, {2, 30}, {3, 31}, {4, 32}, {5, 33},
        {6, 34}, {7, 35}, {8, 36}, {9, 37}, {10, 38}, {11, 39}, {12, 45}, {13, 46}, {14, 42},
        {15, 43}, {16, 20}, {17, 26}, {18, 8}, {19, 21}, {20, 23}, {21, 28}, {22, 24}, {23, 12},
        {24, 18}, {25, 19}, {26, 47}, {27, 48}, {43, 49}, {58, 57}, {30, 4}, {31, 22}, {32, 7},
        {33, 9}, {34, 10}, {35, 11}, {36, 13}, {37, 14}, {38, 15}, {39, 51}, {40, 52}, {28, 40},
        {42, 225}, {44, 29}, {45, 27}, {46, 6}, {47, 25}, {48, 5}, {49, 17}, {50, 16}, {51, 54},
        {52, 55}, {53, 56}, {54, 229}, {29, 224}, {347, 227}, {56, 226}, {57, 44}, {312, 230},
        {348, 231}, {285, 228}, {84, 70}, {70, 71}, {69, 72}, {338, 73}, {327, 74}, {329, 75},
        {339, 76}, {335, 77}, {337, 78}, {328, 82}, {331, 80}, {336, 81}, {333, 79}, {325, 83},
        {309, 84}, {55, 85}, {74, 86}, {71, 95}, {72, 96}, {73, 97}, {75, 92}, {76, 93}, {77,
        94}, {78, 87}, {79, 89}, {80, 90}, {81, 91}, {82, 98}, {83, 99}, {284, 88}, {86, 100},
        {115, 135}, {125, 100}, {123, 100}, {121, 100}, {112, 100}, {126, 133},
    };
    // clang-format on
    return codes;
}

/// Rows of the main block, top to bottom.
const QStringList &mainRows(int layout)
{
    // clang-format off
    static const std::array<QStringList, 4> rows = {{
        { // ANSI
            "1 59 60 61 62 63 64 65 66 67 68 87 88",
            "41 2 3 4 5 6 7 8 9 10 11 12 13 14",
            "15 16 17 18 19 20 21 22 23 24 25 26 27 43",
            "58 30 31 32 33 34 35 36 37 38 39 40 28",
            "42 44 45 46 47 48 49 50 51 52 53 54",
            "29 347 56 57 312 348 key_2 285",
        },
        { // ISO
            "1 59 60 61 62 63 64 65 66 67 68 87 88",
            "41 2 3 4 5 6 7 8 9 10 11 12 13 14",
            "15 16 17 18 19 20 21 22 23 24 25 26 27",
            "58 30 31 32 33 34 35 36 37 38 39 40 43 28",
            "42 86 44 45 46 47 48 49 50 51 52 53 54",
            "29 347 56 57 312 348 key_2 285",
        },
        { // BR
            "1 59 60 61 62 63 64 65 66 67 68 87 88",
            "41 2 3 4 5 6 7 8 9 10 11 12 13 14",
            "15 16 17 18 19 20 21 22 23 24 25 26 27",
            "58 30 31 32 33 34 35 36 37 38 39 40 43 28",
            "42 86 44 45 46 47 48 49 50 51 52 53 115 54",
            "29 347 56 57 312 348 key_2 285",
        },
        { // JP
            "1 59 60 61 62 63 64 65 66 67 68 87 88",
            "41 2 3 4 5 6 7 8 9 10 11 12 13 125 14",
            "15 16 17 18 19 20 21 22 23 24 25 26 27",
            "58 30 31 32 33 34 35 36 37 38 39 40 43 28",
            "42 44 45 46 47 48 49 50 51 52 53 115 54",
            "29 347 56 123 57 121 112 312 key_2 285",
        },
    }};
    // clang-format on
    return rows[std::size_t(layout)];
}

/// Scan codes of the navigation block and the keypad by row; 0 where there is no key.
const std::vector<std::vector<int>> &navigationRows()
{
    static const std::vector<std::vector<int>> rows = {
        {84, 70, 69}, {338, 327, 329}, {339, 335, 337}, {0, 0, 0}, {0, 328, 0}, {331, 336, 333},
    };
    return rows;
}
const std::vector<std::vector<int>> &keypadRows()
{
    static const std::vector<std::vector<int>> rows = {
        {325, 309, 55, 74}, {71, 72, 73, 78}, {75, 76, 77}, {79, 80, 81, 284}, {82, 83},
    };
    return rows;
}

std::vector<int> scanCodes(const QString &row)
{
    std::vector<int> codes;
    const QStringList words = row.split(QLatin1Char(' '));
    for (const QString &word : words) {
        if (!word.startsWith(QLatin1String("key")))
            codes.push_back(word.toInt());
    }
    return codes;
}

std::set<int> keysOf(int layout)
{
    std::set<int> keys;
    for (const QString &row : mainRows(layout)) {
        for (const int scanCode : scanCodes(row))
            keys.insert(scanCode);
    }
    for (const auto &rows : {navigationRows(), keypadRows()}) {
        for (const auto &row : rows)
            keys.insert(row.begin(), row.end());
    }
    keys.erase(0);
    if (layout == Br)
        keys.insert(126);
    return keys;
}

QString nameOf(int scanCode)
{
    return QStringLiteral("btn_%1").arg(scanCode);
}

QPushButton *keyOf(const QWidget *keyboard, int scanCode)
{
    return child<QPushButton>(keyboard, nameOf(scanCode));
}

std::unique_ptr<Keyboard> shown(int layout, int language = English)
{
    auto keyboard = std::make_unique<Keyboard>(layout, language);
    keyboard->resize(900, 234);
    keyboard->show();
    return keyboard;
}

QRect rectIn(const QWidget *ancestor, const QWidget *widget)
{
    return {widget->mapTo(ancestor, QPoint()), widget->size()};
}

bool releaseKey(QWidget *keyboard, quint32 scanCode, ulong timestamp = 0, bool autoRepeat = false)
{
    QKeyEvent event(QEvent::KeyRelease, 0, Qt::NoModifier, scanCode, 0, 0, QString(), autoRepeat);
    event.setTimestamp(timestamp);
    QCoreApplication::sendEvent(keyboard, &event);
    return event.isAccepted();
}

bool pressNative(QWidget *keyboard, quint32 scanCode, ulong timestamp = 0, int key = 0,
                 bool autoRepeat = false)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, scanCode, 0, 0, QString(), autoRepeat);
    event.setTimestamp(timestamp);
    QCoreApplication::sendEvent(keyboard, &event);
    return event.isAccepted();
}

vantrix_key_mapping lastRecord(const QSignalSpy &spy)
{
    return spy.last().at(0).value<vantrix_key_mapping>();
}

std::vector<ushort> codesOf(const QSignalSpy &spy)
{
    std::vector<ushort> codes;
    for (const auto &arguments : spy)
        codes.push_back(ushort(arguments.at(0).value<vantrix_key_mapping>().code));
    return codes;
}

} // namespace

class tst_Keyboard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void layouts_data();
    void layouts();
    void designSize_data();
    void designSize();
    void keysOfALayout_data() { layouts_data(); }
    void keysOfALayout();
    void placesOfTheKeys_data() { layouts_data(); }
    void placesOfTheKeys();
    void legends_data();
    void legends();
    void sizes_data();
    void sizes();
    void fillers();
    void sheetOfAKey();
    void sizesSurviveRestyling();
    void sameUnitSetsNoSheet();
    void shrinksInALayout();
    void clickGivesTheCode_data() { layouts_data(); }
    void clickGivesTheCode();
    void secondClickClears();
    void spaceIsAClick();
    void selectKeyCode_data();
    void selectKeyCode();
    void showingEmitsNothing();
    void realKeyToggles();
    void bothEnters();
    void keysWithoutAButton();
    void hiddenKeyboardIgnoresKeys();
    void flaggedRepeats();
    void unflaggedRepeats();
    void mixedRepeats();
    void quickPressesAreNoRepeats();
    void keysOfTheFocusedButtonStayThere();
    void captureGrabs();
    void captureTakesEveryKey();
    void captureTakesShortcuts();
    void capturePausesForModals();
    void capturePausesWhileHidden();
    void capturePausesWhileInactive();
    void captureEndsWithTheKeyboard();
    void captureComesBackFromAnotherGrabber();
    void captureWithoutAService();
};

void tst_Keyboard::layouts_data()
{
    QTest::addColumn<int>("layout");
    QTest::newRow("ANSI") << Ansi;
    QTest::newRow("ISO") << Iso;
    QTest::newRow("BR") << Br;
    QTest::newRow("JP") << Jp;
}

void tst_Keyboard::layouts()
{
    QFETCH(int, layout);
    const auto keyboard = shown(layout);
    QCOMPARE(keyboard->layout()->objectName(), QStringLiteral("horizontalLayout_2"));
    auto *const blocks = qobject_cast<QHBoxLayout *>(keyboard->layout());
    QCOMPARE(blocks->count(), 3);
    QCOMPARE(blocks->stretch(0), 15);
    QCOMPARE(blocks->stretch(1), 3);
    QCOMPARE(blocks->stretch(2), 4);
    QCOMPARE(blocks->spacing(), 12);
    const QMargins margins = blocks->contentsMargins();
    QCOMPARE(margins.left(), 9);
    QCOMPARE(margins.top(), 6);
    QCOMPARE(margins.bottom(), 6);
}

void tst_Keyboard::designSize_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<QSize>("size");
    QTest::newRow("ANSI") << Ansi << QSize(818, 177);
    QTest::newRow("ISO") << Iso << QSize(832, 181);
    QTest::newRow("BR") << Br << QSize(814, 181);
    QTest::newRow("JP") << Jp << QSize(855, 181);
}

void tst_Keyboard::designSize()
{
    QFETCH(int, layout);
    QFETCH(QSize, size);
    Keyboard keyboard(layout, English);
    QCOMPARE(keyboard.size(), size);
    keyboard.show();
    QCOMPARE(keyboard.size(), size);
    for (const int scanCode : keysOf(layout)) {
        const QRect place = rectIn(&keyboard, keyOf(&keyboard, scanCode));
        QVERIFY2(keyboard.rect().contains(place), qPrintable(nameOf(scanCode)));
    }
}

void tst_Keyboard::keysOfALayout()
{
    QFETCH(int, layout);
    const auto keyboard = shown(layout);
    const auto *const group = keyboard->findChild<ButtonGroupEx *>();
    std::set<int> found;
    const auto keys = keyboard->findChildren<KeyBtn *>();
    for (KeyBtn *key : keys) {
        const int id = group->id(key);
        QCOMPARE(key->objectName(), nameOf(id));
        QVERIFY(key->isCheckable());
        found.insert(id);
    }
    QCOMPARE(std::size_t(keys.size()), found.size());
    QVERIFY(found == keysOf(layout));
}

void tst_Keyboard::placesOfTheKeys()
{
    QFETCH(int, layout);
    const auto keyboard = shown(layout);
    QCoreApplication::processEvents();
    const auto rectOf = [&](int scanCode) {
        return rectIn(keyboard.get(), keyOf(keyboard.get(), scanCode));
    };
    int bottom = 0;
    for (const QString &row : mainRows(layout)) {
        const std::vector<int> keys = scanCodes(row);
        const int top = rectOf(keys.front()).top();
        QVERIFY(top >= bottom);
        bottom = rectOf(keys.front()).bottom();
        for (std::size_t i = 1; i < keys.size(); ++i) {
            QVERIFY2(rectOf(keys[i - 1]).right() < rectOf(keys[i]).left(), qPrintable(row));
            const bool isTallEnter = layout != Ansi && keys[i] == 28;
            if (!isTallEnter)
                QCOMPARE(rectOf(keys[i]).top(), top);
        }
    }
    if (layout != Ansi) {
        QVERIFY(rectOf(28).top() <= rectOf(15).top());
        QVERIFY(rectOf(28).bottom() >= rectOf(58).bottom());
        QVERIFY(rectOf(28).left() > rectOf(27).right());
    }
    for (const auto &block : {navigationRows(), keypadRows()}) {
        int end = 0;
        for (const auto &row : block) {
            int right = rectOf(84).left() - 1;
            for (const int scanCode : row) {
                if (scanCode == 0)
                    continue;
                QVERIFY2(rectOf(scanCode).left() > right, qPrintable(nameOf(scanCode)));
                right = rectOf(scanCode).right();
            }
            if (row.front() == 0)
                continue;
            QVERIFY(rectOf(row.front()).top() > end);
            end = rectOf(row.front()).bottom();
        }
    }
    // The columns of the keypad.
    QCOMPARE(rectOf(79).left(), rectOf(71).left());
    QVERIFY(rectOf(284).top() < rectOf(83).top());
    QVERIFY(rectOf(284).bottom() >= rectOf(83).top());
    if (layout == Br) {
        QCOMPARE(rectOf(126).left(), rectOf(78).left());
        QCOMPARE(rectOf(126).top(), rectOf(75).top());
    } else {
        QVERIFY(rectOf(78).bottom() > rectOf(75).top());
    }
}

void tst_Keyboard::legends_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<int>("language");
    for (int layout = Ansi; layout <= Jp; ++layout) {
        for (int language = 0; language < 15; ++language)
            QTest::addRow("layout %d language %d", layout, language) << layout << language;
    }
}

void tst_Keyboard::legends()
{
    QFETCH(int, layout);
    QFETCH(int, language);
    const Keyboard keyboard(layout, language);
    for (const int scanCode : keysOf(layout))
        QCOMPARE(keyOf(&keyboard, scanCode)->text(), expectedLegend(scanCode, language));
}

void tst_Keyboard::sizes_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QVector<int>>("lengths");
    using Lengths = QVector<int>;
    // clang-format off
    // lengths: unit, 2.3, 1.25, 1.7, 1.95, 2.7, 2.65, 3.2, 1.9, 8 and 5.6 times the unit
    QTest::newRow("half")     <<  55 << "font-size:2px;}"  << Lengths{6, 13, 7, 10, 11, 16, 15, 19, 11, 48, 33};
    QTest::newRow("a unit of 14") << 111 << "font-size:4px;}"  << Lengths{14, 32, 17, 23, 27, 37, 37, 44, 26, 112, 78};
    QTest::newRow("design")   << 181 << "font-size:7px;}"  << Lengths{22, 50, 27, 37, 42, 59, 58, 70, 41, 176, 123};
    QTest::newRow("larger")   << 234 << "font-size:9px;}"  << Lengths{29, 66, 36, 49, 56, 78, 76, 92, 55, 232, 162};
    QTest::newRow("double")   << 468 << "font-size:19px;}" << Lengths{59, 135, 73, 100, 115, 159, 156, 188, 112, 472, 330};
    // clang-format on
}

void tst_Keyboard::sizes()
{
    QFETCH(int, height);
    QFETCH(QString, sheet);
    QFETCH(QVector<int>, lengths);
    enum Length { Unit, W23, W125, X170, X195, X270, X265, X320, X190, X800, X560 };
    struct Row
    {
        int scanCode;
        std::array<Length, 4> width;
        std::array<Length, 4> height;
    };
    // clang-format off
    const std::vector<Row> special = {
        // key, widths in ANSI, ISO, BR, JP,      heights
        { 15, {{X170, X170, X170, X170}}, {{Unit, Unit, Unit, Unit}}},
        { 58, {{X195, X195, X195, X195}}, {{Unit, Unit, Unit, Unit}}},
        { 42, {{X270, W125, W125, X270}}, {{Unit, Unit, Unit, Unit}}},
        { 14, {{W23,  W23,  W23,  Unit}}, {{Unit, Unit, Unit, Unit}}},
        { 43, {{X170, Unit, Unit, Unit}}, {{Unit, Unit, Unit, Unit}}},
        { 28, {{X265, W125, W125, W125}}, {{Unit, W23,  W23,  W23 }}},
        { 54, {{X320, X320, X190, X190}}, {{Unit, Unit, Unit, Unit}}},
        { 29, {{W125, W125, W125, W125}}, {{Unit, Unit, Unit, Unit}}},
        {347, {{W125, W125, W125, W125}}, {{Unit, Unit, Unit, Unit}}},
        { 56, {{W125, W125, W125, W125}}, {{Unit, Unit, Unit, Unit}}},
        {312, {{W125, W125, W125, W125}}, {{Unit, Unit, Unit, Unit}}},
        {285, {{W125, W125, W125, W125}}, {{Unit, Unit, Unit, Unit}}},
        {348, {{W125, W125, W125, Unit}}, {{Unit, Unit, Unit, Unit}}},
        {123, {{Unit, Unit, Unit, W125}}, {{Unit, Unit, Unit, Unit}}},
        {121, {{Unit, Unit, Unit, W125}}, {{Unit, Unit, Unit, Unit}}},
        {112, {{Unit, Unit, Unit, W125}}, {{Unit, Unit, Unit, Unit}}},
        { 57, {{X800, X800, X800, X560}}, {{Unit, Unit, Unit, Unit}}},
        { 82, {{W23,  W23,  W23,  W23 }}, {{Unit, Unit, Unit, Unit}}},
        { 78, {{Unit, Unit, Unit, Unit}}, {{W23,  W23,  Unit, W23 }}},
        {284, {{Unit, Unit, Unit, Unit}}, {{W23,  W23,  W23,  W23 }}},
    };
    // clang-format on
    for (int layout = Ansi; layout <= Jp; ++layout) {
        const auto keyboard = shown(layout);
        keyboard->resize(2000, height);
        QCOMPARE(keyboard->styleSheet(), sheet);
        for (const int scanCode : keysOf(layout)) {
            QSize expected(lengths[Unit], lengths[Unit]);
            for (const Row &row : special) {
                if (row.scanCode == scanCode)
                    expected = {lengths[row.width[std::size_t(layout)]],
                                lengths[row.height[std::size_t(layout)]]};
            }
            const QPushButton *const key = keyOf(keyboard.get(), scanCode);
            QVERIFY2(key->size() == expected, qPrintable(key->objectName()));
            QCOMPARE(key->minimumSize(), expected);
            QCOMPARE(key->maximumSize(), expected);
        }
        const QSize square(lengths[Unit], lengths[Unit]);
        QCOMPARE(child<QPushButton>(keyboard.get(), "key_0")->size(), square);
        QCOMPARE(child<QPushButton>(keyboard.get(), "key_1")->size(), square);
        QCOMPARE(child<QPushButton>(keyboard.get(), "key_2")->size(),
                 QSize(lengths[W125], lengths[Unit]));
    }
}

void tst_Keyboard::fillers()
{
    const auto keyboard = shown(Ansi);
    const auto *const group = keyboard->findChild<ButtonGroupEx *>();
    for (const char *name : {"key_0", "key_1", "key_2"}) {
        auto *const filler = child<QPushButton>(keyboard.get(), QLatin1String(name));
        QVERIFY(!group->buttons().contains(filler));
        QCOMPARE(filler->focusPolicy(), Qt::NoFocus);
    }
    QCOMPARE(child<QPushButton>(keyboard.get(), "key_2")->styleSheet(),
             QStringLiteral("background:transparent;border:1px solid white;border-radius:2px;"
                            "min-height:1px;"));
}

void tst_Keyboard::sheetOfAKey()
{
    const KeyBtn key(nullptr);
    QCOMPARE(key.styleSheet(),
             QStringLiteral("QPushButton{background:rgb(99,99,99);border:1px solid white;"
                            "border-radius:2px;min-height:1px;text-align:top;}"
                            ":hover{background:rgba(255,255,255,50);}"
                            ":checked{background:#fffd00fd}"));
    QVERIFY(key.isCheckable());
}

void tst_Keyboard::sizesSurviveRestyling()
{
    QWidget page;
    auto *const keyboard = new Keyboard(Ansi, English, &page);
    keyboard->resize(900, 234);
    page.show();
    page.setStyleSheet(QStringLiteral("QPushButton{color:white;min-height:60px;}"));
    QCoreApplication::processEvents();
    QCOMPARE(keyOf(keyboard, 30)->size(), QSize(29, 29));
    QCOMPARE(keyOf(keyboard, 30)->minimumSize(), QSize(29, 29));
    QCOMPARE(keyOf(keyboard, 28)->size(), QSize(76, 29));
}

void tst_Keyboard::sameUnitSetsNoSheet()
{
    class StyleChanges : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::StyleChange ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    const auto keyboard = shown(Ansi);
    StyleChanges changes;
    keyOf(keyboard.get(), 30)->installEventFilter(&changes);
    keyboard->resize(1200, 236);
    keyboard->resize(900, 234);
    QCOMPARE(changes.count, 0);
    keyboard->resize(900, 300);
    QVERIFY(changes.count > 0);
}

void tst_Keyboard::shrinksInALayout()
{
    QWidget page;
    auto *const rows = new QVBoxLayout(&page);
    auto *const keyboard = new Keyboard(Ansi, English, &page);
    rows->addWidget(keyboard);
    page.resize(1800, 468);
    page.show();
    QCoreApplication::processEvents();
    QCOMPARE(page.size(), QSize(1800, 468));
    page.resize(400, 111);
    QCoreApplication::processEvents();
    QCOMPARE(page.size(), QSize(400, 111));
    QVERIFY(keyboard->height() < 111);
}

void tst_Keyboard::clickGivesTheCode()
{
    QFETCH(int, layout);
    const auto keyboard = shown(layout);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    for (const int scanCode : keysOf(layout)) {
        clickOn(keyOf(keyboard.get(), scanCode));
        vantrix_key_mapping expected;
        expected.code = deviceCodes().at(scanCode);
        QCOMPARE(lastRecord(spy), expected);
        QCOMPARE(keyboard->findChild<ButtonGroupEx *>()->checkedButton()->objectName(),
                 nameOf(scanCode));
    }
    QCOMPARE(std::size_t(spy.count()), keysOf(layout).size());
}

void tst_Keyboard::secondClickClears()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    clickOn(keyOf(keyboard.get(), 48));
    clickOn(keyOf(keyboard.get(), 48));
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5, 255}));
    QCOMPARE(lastRecord(spy), clearedKey());
    QVERIFY(!keyOf(keyboard.get(), 48)->isChecked());
}

void tst_Keyboard::spaceIsAClick()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    pressKey(keyOf(keyboard.get(), 48), Qt::Key_Space);
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5}));
    pressKey(keyOf(keyboard.get(), 48), Qt::Key_Space);
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5, 255}));
}

void tst_Keyboard::selectKeyCode_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("scanCode");
    QTest::newRow("letter") << Ansi << 5 << 48;
    QTest::newRow("Enter") << Ansi << 40 << 28;
    QTest::newRow("keypad Enter") << Ansi << 88 << 284;
    QTest::newRow("right Ctrl") << Jp << 228 << 285;
    // The first scan code with usage 100 is 86, wherever that key is missing.
    QTest::newRow("additional key, ISO") << Iso << 100 << 86;
    QTest::newRow("additional key, ANSI") << Ansi << 100 << 0;
    QTest::newRow("additional key, JP") << Jp << 100 << 0;
    QTest::newRow("Ro") << Jp << 135 << 115;
    QTest::newRow("keypad comma") << Br << 133 << 126;
    QTest::newRow("backlight") << Ansi << 385 << 0;
    QTest::newRow("disabled") << Ansi << 0 << 0;
    QTest::newRow("unassigned") << Ansi << 255 << 0;
    QTest::newRow("F13") << Ansi << 104 << 0;
}

void tst_Keyboard::selectKeyCode()
{
    QFETCH(int, layout);
    QFETCH(int, code);
    QFETCH(int, scanCode);
    const auto keyboard = shown(layout);
    keyboard->selectKeyCode(4);
    QVERIFY(keyOf(keyboard.get(), 30)->isChecked());
    keyboard->selectKeyCode(ushort(code));
    const QAbstractButton *const checked = keyboard->findChild<ButtonGroupEx *>()->checkedButton();
    QCOMPARE(checked ? checked->objectName() : QString(), scanCode ? nameOf(scanCode) : QString());
}

void tst_Keyboard::showingEmitsNothing()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    for (int code = 0; code < 260; ++code)
        keyboard->selectKeyCode(ushort(code));
    keyboard->clearChecked();
    QCOMPARE(spy.count(), 0);
    QVERIFY(!keyboard->findChild<ButtonGroupEx *>()->checkedButton());
}

void tst_Keyboard::realKeyToggles()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    QVERIFY(releaseKey(keyboard.get(), 48));
    QVERIFY(keyOf(keyboard.get(), 48)->isChecked());
    QVERIFY(releaseKey(keyboard.get(), 54));
    QVERIFY(!keyOf(keyboard.get(), 48)->isChecked());
    QVERIFY(releaseKey(keyboard.get(), 54));
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5, 229, 255}));
    QCOMPARE(lastRecord(spy), clearedKey());
}

void tst_Keyboard::bothEnters()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    releaseKey(keyboard.get(), 284);
    QVERIFY(keyOf(keyboard.get(), 284)->isChecked());
    QVERIFY(!keyOf(keyboard.get(), 28)->isChecked());
    releaseKey(keyboard.get(), 28);
    QCOMPARE(codesOf(spy), (std::vector<ushort>{88, 40}));
}

void tst_Keyboard::keysWithoutAButton()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    for (const quint32 scanCode : {86u, 0u, 100u, 349u, 350u, 0xffffffffu})
        QVERIFY(releaseKey(keyboard.get(), scanCode));
    QCOMPARE(spy.count(), 0);
}

void tst_Keyboard::hiddenKeyboardIgnoresKeys()
{
    const auto keyboard = shown(Ansi);
    keyboard->hide();
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    releaseKey(keyboard.get(), 48);
    QCOMPARE(spy.count(), 0);
}

void tst_Keyboard::flaggedRepeats()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    pressNative(keyboard.get(), 48, 1000);
    for (ulong time = 1500; time < 2000; time += 40) {
        releaseKey(keyboard.get(), 48, time, true);
        pressNative(keyboard.get(), 48, time, 0, true);
    }
    QCOMPARE(spy.count(), 0);
    releaseKey(keyboard.get(), 48, 2010);
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5}));
}

void tst_Keyboard::unflaggedRepeats()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    pressNative(keyboard.get(), 48, 1000);
    for (ulong time = 1500; time < 2000; time += 40) {
        releaseKey(keyboard.get(), 48, time);
        pressNative(keyboard.get(), 48, time);
    }
    releaseKey(keyboard.get(), 48, 2010);
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5}));
    // Pressed anew it toggles again.
    pressNative(keyboard.get(), 48, 3000);
    releaseKey(keyboard.get(), 48, 3080);
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5, 255}));
}

void tst_Keyboard::mixedRepeats()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    pressNative(keyboard.get(), 48, 1000);
    releaseKey(keyboard.get(), 48, 1500, true);
    pressNative(keyboard.get(), 48, 1500, 0, true);
    releaseKey(keyboard.get(), 48, 1540);
    pressNative(keyboard.get(), 48, 1540);
    releaseKey(keyboard.get(), 48, 1580, true);
    pressNative(keyboard.get(), 48, 1580, 0, true);
    releaseKey(keyboard.get(), 48, 1600);
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5}));
}

void tst_Keyboard::quickPressesAreNoRepeats()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    pressNative(keyboard.get(), 48, 1000);
    releaseKey(keyboard.get(), 48, 1010);
    pressNative(keyboard.get(), 48, 1011);
    releaseKey(keyboard.get(), 48, 1020);
    // Another key at the moment of a release.
    pressNative(keyboard.get(), 30, 1020);
    releaseKey(keyboard.get(), 30, 1030);
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5, 255, 4}));
    // Events that were made by hand bear no time.
    for (int i = 0; i < 2; ++i) {
        pressNative(keyboard.get(), 31);
        releaseKey(keyboard.get(), 31);
    }
    QCOMPARE(codesOf(spy), (std::vector<ushort>{5, 255, 4, 22, 255}));
}

void tst_Keyboard::keysOfTheFocusedButtonStayThere()
{
    const auto keyboard = shown(Ansi);
    QSignalSpy spy(keyboard.get(), &Keyboard::sigKeyChanged);
    QVERIFY(releaseKey(keyOf(keyboard.get(), 30), 15));
    QCOMPARE(spy.count(), 0);
}

void tst_Keyboard::captureGrabs()
{
    FakeSystemHotKey service;
    const auto keyboard = shown(Ansi);
    keyboard->setKeyCapture(true);
    QCOMPARE(QWidget::keyboardGrabber(), keyboard.get());
    QCOMPARE(service.capturing, keyboard.get());
    keyboard->setKeyCapture(true);
    QCOMPARE(service.startCount, 1);
    keyboard->setKeyCapture(false);
    QVERIFY(!QWidget::keyboardGrabber());
    QVERIFY(!service.capturing);
    keyboard->setKeyCapture(false);
    QCOMPARE(service.stopCount, 1);
}

void tst_Keyboard::captureTakesEveryKey()
{
    QWidget page;
    auto *const rows = new QVBoxLayout(&page);
    auto *const before = new QLineEdit(&page);
    auto *const keyboard = new Keyboard(Ansi, English, &page);
    rows->addWidget(before);
    rows->addWidget(keyboard);
    page.resize(900, 300);
    page.show();
    QVERIFY(QTest::qWaitForWindowActive(&page));
    before->setFocus();
    keyboard->setKeyCapture(true);
    QSignalSpy spy(keyboard, &Keyboard::sigKeyChanged);
    const std::vector<std::pair<int, quint32>> keys = {{Qt::Key_Tab, 15},
                                                       {Qt::Key_Escape, 1},
                                                       {Qt::Key_Left, 331},
                                                       {Qt::Key_Return, 28},
                                                       {Qt::Key_Backtab, 15}};
    for (const auto &[key, scanCode] : keys) {
        QVERIFY(pressNative(keyboard, scanCode, 0, key));
        QVERIFY(releaseKey(keyboard, scanCode));
        QCOMPARE(QApplication::focusWidget(), before);
    }
    QCOMPARE(codesOf(spy), (std::vector<ushort>{43, 41, 80, 40, 43}));
    // What the window gets goes to the one who holds the keyboard.
    QTest::keyClick(page.windowHandle(), Qt::Key_X);
    QCOMPARE(before->text(), QString());
    keyboard->setKeyCapture(false);
    QVERIFY(!pressNative(keyboard, 1, 0, Qt::Key_Escape));
}

void tst_Keyboard::captureTakesShortcuts()
{
    const auto keyboard = shown(Ansi);
    QKeyEvent before(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
    before.ignore();
    QCoreApplication::sendEvent(keyboard.get(), &before);
    QVERIFY(!before.isAccepted());
    keyboard->setKeyCapture(true);
    QKeyEvent during(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
    during.ignore();
    QCoreApplication::sendEvent(keyboard.get(), &during);
    QVERIFY(during.isAccepted());
}

void tst_Keyboard::capturePausesForModals()
{
    FakeSystemHotKey service;
    const auto keyboard = shown(Ansi);
    keyboard->setKeyCapture(true);
    bool wasFree = false;
    Modal::setAnswerer([&](const ModalPrompt &) {
        wasFree = !QWidget::keyboardGrabber() && !service.capturing;
        return QVariant(1);
    });
    Modal::question(nullptr, QStringLiteral("title"), QStringLiteral("text"));
    QVERIFY(wasFree);
    QCOMPARE(QWidget::keyboardGrabber(), keyboard.get());
    QCOMPARE(service.capturing, keyboard.get());
    // The permission can go while the dialog is open.
    Modal::setAnswerer([&](const ModalPrompt &) {
        keyboard->setKeyCapture(false);
        return QVariant(1);
    });
    Modal::question(nullptr, QStringLiteral("title"), QStringLiteral("text"));
    QVERIFY(!QWidget::keyboardGrabber());
    Modal::setAnswerer({});
}

void tst_Keyboard::capturePausesWhileHidden()
{
    const auto keyboard = shown(Ansi);
    keyboard->setKeyCapture(true);
    keyboard->hide();
    QVERIFY(!QWidget::keyboardGrabber());
    keyboard->show();
    QCOMPARE(QWidget::keyboardGrabber(), keyboard.get());
}

void tst_Keyboard::capturePausesWhileInactive()
{
    const auto keyboard = shown(Ansi);
    keyboard->setKeyCapture(true);
    emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    QVERIFY(!QWidget::keyboardGrabber());
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    QCOMPARE(QWidget::keyboardGrabber(), keyboard.get());
}

void tst_Keyboard::captureEndsWithTheKeyboard()
{
    FakeSystemHotKey service;
    auto keyboard = shown(Ansi);
    keyboard->setKeyCapture(true);
    keyboard.reset();
    QVERIFY(!QWidget::keyboardGrabber());
    QVERIFY(!service.capturing);
    QCOMPARE(service.stopCount, 1);
}

void tst_Keyboard::captureComesBackFromAnotherGrabber()
{
    FakeSystemHotKey service;
    const auto keyboard = shown(Ansi);
    keyboard->setKeyCapture(true);
    QWidget other;
    other.grabKeyboard();
    keyboard->setKeyCapture(true);
    QCOMPARE(QWidget::keyboardGrabber(), keyboard.get());
    QCOMPARE(service.capturing, keyboard.get());
}

void tst_Keyboard::captureWithoutAService()
{
    const auto keyboard = shown(Ansi);
    keyboard->setKeyCapture(true);
    QCOMPARE(QWidget::keyboardGrabber(), keyboard.get());
    keyboard->setKeyCapture(false);
    QVERIFY(!QWidget::keyboardGrabber());
}

VANTRIX_TEST_MAIN(tst_Keyboard)
#include "tst_Keyboard.moc"
