#include "vocabulary/AppTables.h"

#include "core/records.h"
#include "support/TestMain.h"

#include <QPixmap>

namespace {

struct FunctionRow
{
    int type;
    int id;
    const char *name;
    std::vector<ushort> sequence;
    const char *picture; ///< null for none
};

// clang-format off
const std::vector<FunctionRow> Functions = {
    // type, id, name, sequence, picture
    // Photoshop
    {0,  0, "A1", {59}, nullptr},
    {0,  1, "A2", {60}, nullptr},
    {0,  2, "A3", {61}, nullptr},
    {0,  3, "BLUR", {716}, ":/VantrixMap/Application/PS/blur"},
    {0,  4, "BRUSH SIZE", {719}, ":/VantrixMap/Application/PS/brush_size"},
    {0,  5, "BRUSH HARDNESS", {718}, ":/VantrixMap/Application/PS/brush_hardness"},
    {0,  6, "CROP", {6}, ":/VantrixMap/Application/PS/crop"},
    {0,  7, "CLONE STAMP", {22}, ":/VantrixMap/Application/PS/clone_stamp"},
    {0,  8, "DODGE", {714}, ":/VantrixMap/Application/PS/dodge"},
    {0,  9, "EYEDROP", {12}, ":/VantrixMap/Application/PS/eyedrop"},
    {0, 10, "LASSO", {15}, ":/VantrixMap/Application/PS/lasso"},
    {0, 11, "LAUNCH PS", {764}, ":/VantrixMap/Application/PS/ps"},
    {0, 12, "MOVE", {25}, ":/VantrixMap/Application/PS/move"},
    {0, 13, "RECTANGULAR MARQUEE", {16}, ":/VantrixMap/Application/PS/marquee"},
    {0, 14, "MAGNIFYING", {717}, ":/VantrixMap/Application/PS/magnifying"},
    {0, 15, "PEN", {19}, ":/VantrixMap/Application/PS/pen"},
    {0, 16, "POINTER", {4}, ":/VantrixMap/Application/PS/pointer"},
    {0, 17, "QUICK SELECTION", {26}, ":/VantrixMap/Application/PS/quick_selection"},
    {0, 18, "TEXT", {23}, ":/VantrixMap/Application/PS/text"},
    // Premiere Pro
    {1,  0, "BACKWARD", {699}, ":/VantrixMap/Application/PR/backward"},
    {1,  1, "COMPARISON", {59}, ":/VantrixMap/Application/PR/comparison"},
    {1,  2, "FORWARD", {698}, ":/VantrixMap/Application/PR/forward"},
    {1,  3, "GO TO IN", {225, 12}, ":/VantrixMap/Application/PR/go_to_in"},
    {1,  4, "GO TO OUT", {225, 18}, ":/VantrixMap/Application/PR/go_to_out"},
    {1,  5, "HAND", {11}, ":/VantrixMap/Application/PR/hand"},
    {1,  6, "LAUNCH PR", {765}, ":/VantrixMap/Application/PR/pr"},
    {1,  7, "MARK IN", {12}, ":/VantrixMap/Application/PR/mark_in"},
    {1,  8, "MARK OUT", {18}, ":/VantrixMap/Application/PR/mark_out"},
    {1,  9, "PEN", {19}, ":/VantrixMap/Application/PR/pen"},
    {1, 10, "PLAY-STOP TOGGLE", {44}, ":/VantrixMap/Application/PR/play_stop_toggle"},
    {1, 11, "RAZOR", {6}, ":/VantrixMap/Application/PR/razor"},
    {1, 12, "RIPPLE EDIT", {5}, ":/VantrixMap/Application/PR/ripple"},
    {1, 13, "SLIP", {28}, ":/VantrixMap/Application/PR/slip"},
    {1, 14, "STEP BACK 1 FRAME", {80}, ":/VantrixMap/Application/PR/step_back"},
    {1, 15, "STEP FORWARD 1 FRAME", {79}, ":/VantrixMap/Application/PR/step_forward"},
    {1, 16, "SELECTION", {25}, ":/VantrixMap/Application/PR/selection"},
    {1, 17, "TEXT", {23}, ":/VantrixMap/Application/PR/text"},
    {1, 18, "TRACK SELECT FORWARD", {4}, ":/VantrixMap/Application/PR/track_select"},
    // Illustrator
    {2,  0, "A1", {59}, nullptr},
    {2,  1, "A2", {60}, nullptr},
    {2,  2, "A3", {61}, nullptr},
    {2,  3, "ARTBOARD", {225, 18}, ":/VantrixMap/Application/AI/artboard"},
    {2,  4, "BRUSH SIZE", {700}, ":/VantrixMap/Application/AI/brush_size"},
    {2,  5, "BRUSH OPACITY", {703}, ":/VantrixMap/Application/AI/brush_hardness"},
    {2,  6, "DIRECT SELECTION", {4}, ":/VantrixMap/Application/AI/direct_selection"},
    {2,  7, "ELLIPSE", {15}, ":/VantrixMap/Application/AI/ellipse"},
    {2,  8, "EYEDROP", {12}, ":/VantrixMap/Application/AI/eyedrop"},
    {2,  9, "LASSO", {20}, ":/VantrixMap/Application/AI/lasso"},
    {2, 10, "LAUNCH AI", {766}, ":/VantrixMap/Application/AI/ai"},
    {2, 11, "MAGNIFYING", {702}, ":/VantrixMap/Application/AI/magnifying"},
    {2, 12, "PEN", {19}, ":/VantrixMap/Application/AI/pen"},
    {2, 13, "POLYGON", {31}, ":/VantrixMap/Application/AI/polygon"},
    {2, 14, "ROTATE", {21}, ":/VantrixMap/Application/AI/rotate"},
    {2, 15, "RECTANGLE", {16}, ":/VantrixMap/Application/AI/rectangle"},
    {2, 16, "ROUNDED RECTANGLE", {30}, ":/VantrixMap/Application/AI/rounded_rect"},
    {2, 17, "SELECTION", {25}, ":/VantrixMap/Application/AI/selection"},
    {2, 18, "TEXT", {23}, ":/VantrixMap/Application/AI/text"},
};

struct HintRow { int type; int id; const char *text; };
const std::vector<HintRow> Hints = {
    {0, 0, "Play Action 1. Please assign F2 to an Action in Photoshop"},
    {0, 1, "Play Action 2. Please assign F3 to an Action in Photoshop"},
    {0, 2, "Play Action 3. Please assign F4 to an Action in Photoshop"},
    {0, 3, "To use Presso(Pressure Sensitive) Blur,\nplease assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)"},
    {0, 8, ""},
    {1, 1, "COMPARISON\nPlease assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)"},
    {2, 0, "Play Action 1. Please assign F2 to an Action in Illustrator"},
    {2, 1, "Play Action 2. Please assign F3 to an Action in Illustrator"},
    {2, 2, "Play Action 3. Please assign F4 to an Action in Illustrator"},
    {2, 16, "ROUNDED RECTANGLE\nPlease assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)"},
    {2, 13, "POLYGON\nPlease assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)"},
};
// clang-format on

const char *const Applications[] = {"PHOTOSHOP", "PREMIERE PRO", "ILLUSTRATOR"};

} // namespace

/// The functions of the creative applications, row by row.
class tst_AppTables : public QObject
{
    Q_OBJECT

private slots:
    void function_data();
    void function();
    void hint_data();
    void hint();
    void hintsOfAllOthers();
    void macro_data();
    void macro();
    void macroOfNoFunction_data();
    void macroOfNoFunction();
    void application_data();
    void application();
    void noApplication();
    void directFuncs();
    void namesOfNoFunction();
    void sharedPictureAndName();
};

void tst_AppTables::function_data()
{
    QTest::addColumn<int>("row");
    QCOMPARE(Functions.size(), std::size_t(3 * 19));
    for (std::size_t row = 0; row < Functions.size(); ++row) {
        const FunctionRow &function = Functions[row];
        QTest::addRow("%s %d %s", Applications[function.type], function.id, function.name)
            << int(row);
    }
}

void tst_AppTables::function()
{
    QFETCH(int, row);
    const FunctionRow &expected = Functions[std::size_t(row)];
    QCOMPARE(appFunctionName(expected.type, expected.id), expected.name);
    const auto &shortcuts = AppShortcuts(expected.type);
    QCOMPARE(shortcuts.size(), std::size_t(19));
    QVERIFY(shortcuts.count(expected.id));
    QVERIFY(shortcuts.at(expected.id) == expected.sequence);
    const auto &images = AppImages(expected.type);
    QCOMPARE(images.count(expected.id), std::size_t(expected.picture ? 1 : 0));
    if (expected.picture) {
        QCOMPARE(images.at(expected.id), QString::fromLatin1(expected.picture));
        QVERIFY(!QPixmap(images.at(expected.id)).isNull());
    }
}

void tst_AppTables::hint_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t row = 0; row < Hints.size(); ++row)
        QTest::addRow("%s %d", Applications[Hints[row].type], Hints[row].id) << int(row);
}

void tst_AppTables::hint()
{
    QFETCH(int, row);
    const HintRow &expected = Hints[std::size_t(row)];
    const auto &hints = AppHints(expected.type);
    QVERIFY(hints.count(expected.id));
    QCOMPARE(hints.at(expected.id), expected.text);
}

void tst_AppTables::hintsOfAllOthers()
{
    QCOMPARE(AppHints(0).size(), std::size_t(5));
    QCOMPARE(AppHints(1).size(), std::size_t(1));
    QCOMPARE(AppHints(2).size(), std::size_t(5));
    QVERIFY(AppHints(3).empty());
    QVERIFY(AppHints(-1).empty());
}

void tst_AppTables::macro_data()
{
    function_data();
}

/// Keys go down in order and come up in the opposite order, 20 milliseconds after each.
void tst_AppTables::macro()
{
    QFETCH(int, row);
    const FunctionRow &function = Functions[std::size_t(row)];
    vantrix_macro_record record;
    record.type = 7;
    record.code = 99;
    record.reserved[16] = 1;
    record.count = 200;
    record.events[126].code = 5;
    buildAppMacro(function.type, function.id, &record);
    QCOMPARE(int(record.type), 0);
    QCOMPARE(ushort(record.code), ushort(0));
    QCOMPARE(int(record.reserved[16]), 0);
    const int keys = int(function.sequence.size());
    QCOMPARE(int(record.count), 2 * keys);
    for (int place = 0; place < 127; ++place) {
        const vantrix_macro_event event = record.events[std::size_t(place)];
        const bool isPress = place < keys;
        const bool isUsed = place < 2 * keys;
        const int key = isPress ? place : 2 * keys - 1 - place;
        QCOMPARE(ushort(event.code), isUsed ? function.sequence[std::size_t(key)] : ushort(0));
        QCOMPARE(int(event.state), isPress ? 1 : 0);
        QCOMPARE(ushort(event.delay), ushort(isUsed ? 20 : 0));
    }
}

void tst_AppTables::macroOfNoFunction_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("id");
    QTest::newRow("id past the last") << 0 << 19;
    QTest::newRow("negative id") << 1 << -1;
    QTest::newRow("type past the last") << 3 << 0;
    QTest::newRow("negative type") << -1 << 0;
}

void tst_AppTables::macroOfNoFunction()
{
    QFETCH(int, type);
    QFETCH(int, id);
    vantrix_macro_record record;
    record.count = 4;
    record.events[0].code = 4;
    buildAppMacro(type, id, &record);
    QCOMPARE(record, vantrix_macro_record());
}

void tst_AppTables::application_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("productCode");
    QTest::addColumn<QString>("executable");
    QTest::addColumn<int>("launch");
    QTest::newRow("0") << "PHOTOSHOP"
                       << "PHSP"
                       << "Photoshop" << 11;
    QTest::newRow("1") << "PREMIERE PRO"
                       << "PPRO"
                       << "Adobe Premiere Pro" << 6;
    QTest::newRow("2") << "ILLUSTRATOR"
                       << "ILST"
                       << "Illustrator" << 10;
}

void tst_AppTables::application()
{
    const int type = QByteArray(QTest::currentDataTag()).toInt();
    QFETCH(QString, name);
    QFETCH(QString, productCode);
    QFETCH(QString, executable);
    QFETCH(int, launch);
    QCOMPARE(QString::fromLatin1(appTypeName(type)), name);
    QVERIFY(AppIds().count(type));
    QVERIFY(AppLaunchFuncs().count(type));
    QCOMPARE(QString::fromLatin1(AppIds().at(type).productCode), productCode);
    QCOMPARE(QString::fromLatin1(AppIds().at(type).executable), executable);
    QCOMPARE(AppLaunchFuncs().at(type), launch);
}

void tst_AppTables::noApplication()
{
    QCOMPARE(AppIds().size(), std::size_t(3));
    QCOMPARE(AppLaunchFuncs().size(), std::size_t(3));
    for (const int type : {-1, 3, 255}) {
        QCOMPARE(appTypeName(type), "UNKNOWN");
        QVERIFY(AppShortcuts(type).empty());
        QVERIFY(AppImages(type).empty());
    }
}

void tst_AppTables::directFuncs()
{
    const std::map<int, std::vector<int>> expected = {
        {0, {3, 4, 5, 8, 14, 11}}, {1, {0, 2, 6}}, {2, {4, 5, 11, 10}}};
    QVERIFY(AppDirectFuncs() == expected);
    for (int type = -1; type < 4; ++type) {
        for (int id = -1; id < 20; ++id) {
            const auto row = expected.find(type);
            const bool isDirect = row != expected.end() &&
                                  std::count(row->second.begin(), row->second.end(), id) == 1;
            QCOMPARE(isDirectFunc(type, id), isDirect);
        }
    }
}

void tst_AppTables::namesOfNoFunction()
{
    for (const int type : {0, 1, 2}) {
        for (const int id : {-1, 19, 255})
            QCOMPARE(appFunctionName(type, id), "UNKNOWN");
    }
}

void tst_AppTables::sharedPictureAndName()
{
    QCOMPARE(appFunctionName(2, 5), "BRUSH OPACITY");
    QVERIFY(AppImages(2).count(5));
    QCOMPARE(AppImages(2).at(5), QStringLiteral(":/VantrixMap/Application/AI/brush_hardness"));
    QCOMPARE(appFunctionName(0, 15), "PEN");
    QCOMPARE(appFunctionName(1, 9), "PEN");
    QCOMPARE(appFunctionName(2, 12), "PEN");
    for (const int type : {0, 2}) {
        for (const int id : {0, 1, 2})
            QCOMPARE(AppImages(type).count(id), std::size_t(0));
    }
}

VANTRIX_TEST_MAIN(tst_AppTables)
#include "tst_AppTables.moc"
