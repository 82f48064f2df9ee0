#include "core/VantrixMapWid.h"

#include "advanced/AssignMenuWid.h"
#include "core/BoardFixture.h"
#include "core/LegendWid.h"
#include "core/PageFixture.h"
#include "interfaces/ButtonGroupEx.h"
#include "interfaces/CfgFile.h"
#include "macro/AssignKey.h"
#include "macro/MacroAdvWid.h"
#include "panels/InputWid.h"
#include "panels/Keyboard.h"
#include "panels/MapWid.h"
#include "panels/PressoWid.h"
#include "panels/SidePanelWid.h"
#include "support/TestMain.h"
#include "toolkit/FocusRing.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTemporaryFile>
#include <QVBoxLayout>

class tst_VantrixMapWid : public QObject, PageFixture
{
    Q_OBJECT

private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void form();
    void legend();
    void modeButtons();
    void freshPage();
    void detectsTheApplications();
    void geometry_data();
    void geometry();
    void heightOfThePanels_data();
    void heightOfThePanels();
    void keyboardKeepsClearOfTheButtons_data();
    void keyboardKeepsClearOfTheButtons();
    void advancedGeometry();
    void sizeStaysAsGiven_data();
    void sizeStaysAsGiven();
    void anySize();
    void updateUiShowsTheProfile();
    void updateUiOrder();
    void updateKeyMappingReadsAnew();
    void updateKeyMappingDropsStrayLabels();
    void modeClick();
    void modeClickShowsTheKeyAnew();
    void sameModeClickWritesNothing();
    void inputClick();
    void sidePanelChecksTheStoredPreset();
    void sidePanelGoesWithAnOddInput();
    void modeIsStoredLast();
    void sidePanelRule_data();
    void sidePanelRule();
    void foldedSidePanelLeavesThePressureSwitch_data();
    void foldedSidePanelLeavesThePressureSwitch();
    void menuRule();
    void captureRule();
    void captureEndsWithApply();
    void presets_data();
    void presets();
    void presetAfterPreset();
    void presetShowsTheSelectedKeyAnew();
    void pressureSwitch();
    void apply();
    void reset();
    void resetDeclined();
    void macros();
    void macrosOfTheDialog();
    void createMacroIsPassedOn();
    void deletedMacro();
    void deletionRenumbersTheFaces();
    void updateMacroAssign();
    void winShortcutKeys();
    void wholeRoadInSimpleMode();
    void boardTellsThePanels();
    void recordsAreMetaTypes();
    void panelsTellTheBoard();
    void boardTellsTheMenu();
    void menuTellsTheBoard();
    void boardMayAskToApply();
    void hiding();
    void relays();
    void pageMayDieInAWarning();
};

void tst_VantrixMapWid::form()
{
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    QCOMPARE(m_page->sizeHint(), QSize(784, 808));
    const auto *const layout = qobject_cast<QVBoxLayout *>(m_page->layout());
    QCOMPARE(layout->objectName(), QString("verticalLayout_2"));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins().top(), 0);
    QCOMPARE(layout->contentsMargins().bottom(), 5);
    QCOMPARE(find<QWidget>("m_stateWid")->styleSheet(), QString("background:rgb(51,51,51);"));
    QCOMPARE(find<QWidget>("m_stateWid")->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(find<QPushButton>("m_apply")->styleSheet(), QString("min-height:30px;"));
    QCOMPARE(find<QPushButton>("m_reset")->text(), QString("RESET"));
}

void tst_VantrixMapWid::legend()
{
    const QStringList expected{"KEYBOARD",        "MOUSE",       "MEDIA",       "MACRO",
                               "GAME CONTROLLER", "APPLICATION", "DUAL ACTION", "PRESSO FUNCTIONS",
                               "BACKLIGHT",       "PROFILE",     "DISABLED",    "UNASSIGNED"};
    QStringList texts;
    m_window->resize(1600, 900);
    m_page->resize(1600, 900);
    QLayout *const row = find<QWidget>("m_stateWid")->findChild<QHBoxLayout *>("m_stateLayout");
    int stretches = 0;
    for (int i = 0; i < row->count(); ++i) {
        QWidget *const widget = row->itemAt(i)->widget();
        if (!widget)
            ++stretches;
        else if (auto *const label = qobject_cast<QLabel *>(widget)) {
            texts << label->text();
            QCOMPARE(label->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
        } else {
            QCOMPARE(widget->size(), QSize(30, 30));
        }
    }
    QCOMPARE(texts, expected);
    QCOMPARE(stretches, 11);
    QVERIFY(!row->itemAt(row->count() - 1)->spacerItem());
}

void tst_VantrixMapWid::modeButtons()
{
    const QString sheet = find<QPushButton>("m_simple")->styleSheet();
    QCOMPARE(sheet.simplified(),
             QString("QPushButton{background:transparent;border-radius:5px;border:1px solid "
                     "#333333;min-height:30px;} "
                     ":checked{background:rgb(132,49,155);border:none;}"));
    QCOMPARE(find<QPushButton>("m_advanced")->styleSheet(), sheet);
    QVERIFY(find<QPushButton>("m_simple")->isChecked());
    QVERIFY(!find<QPushButton>("m_advanced")->isChecked());
}

void tst_VantrixMapWid::freshPage()
{
    QWidget window;
    const VantrixMapWid fresh(6, &window);
    for (const char *const name : {"m_sidePanelWid", "m_assignMenuWid"})
        QVERIFY(child<QWidget>(&fresh, name)->isHidden());
    QVERIFY(fresh.findChild<FocusRing *>());
    QCOMPARE(m_store->writes(), QStringList());
    // Nothing is selected before a profile shows, and the scope is that of profile 0.
    child<QPushButton>(&fresh, "key_7")->click();
    QCOMPARE(m_store->writes(), QStringList({"setCurrentKey 6 0 7"}));
}

void tst_VantrixMapWid::detectsTheApplications()
{
    QTemporaryFile program;
    QVERIFY(program.open());
    CfgFile::Locations locations;
    locations.latestAppPaths =
        QStringList({program.fileName(), program.fileName(), program.fileName()});
    CfgFile::setLocations(locations);
    {
        const VantrixMapWid fresh(6);
        QThreadPool::globalInstance()->waitForDone();
    }
    CfgFile::setLocations({});
    for (int appType = 0; appType < 3; ++appType) {
        QString path;
        m_store->getAppPath(appType, path);
        QCOMPARE(path, program.fileName());
    }
}

void tst_VantrixMapWid::geometry_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("advanced");
    QTest::addColumn<QRect>("simple");
    QTest::addColumn<QRect>("input");
    QTest::newRow("as drawn") << QSize(784, 808) << QRect(624, 6, 150, 40) << QRect(468, 6, 150, 40)
                              << QRect(6, 6, 156, 444);
    QTest::newRow("larger") << QSize(1500, 900) << QRect(1340, 6, 150, 40)
                            << QRect(1184, 6, 150, 40) << QRect(6, 6, 300, 495);
}

void tst_VantrixMapWid::geometry()
{
    QFETCH(QSize, size);
    QFETCH(QRect, advanced);
    QFETCH(QRect, simple);
    QFETCH(QRect, input);
    m_page->resize(size);
    QCoreApplication::processEvents();
    QCOMPARE(find<QWidget>("m_advanced")->geometry(), advanced);
    QCOMPARE(find<QWidget>("m_simple")->geometry(), simple);
    QCOMPARE(find<QWidget>("m_inputWid")->geometry(), input);
    const QRect legend = find<QWidget>("m_stateWid")->geometry();
    QCOMPARE(legend.bottom() + 1, size.height() - 5);
    const QRect reset(legend.x() + legend.width() - 150, size.height() - 46 - legend.height(), 150,
                      40);
    QCOMPARE(find<QWidget>("m_reset")->geometry(), reset);
    QCOMPARE(find<QWidget>("m_apply")->geometry(), reset.translated(0, -41));
    const int h = int(legend.height() * 1.2);
    QCOMPARE(
        find<QWidget>("m_pressoWid")->geometry(),
        QRect(legend.x(), size.height() - 6 - h - legend.height(), int(input.width() * 0.78), h));
    const QRect side = find<QWidget>("m_sidePanelWid")->geometry();
    QCOMPARE(side.topLeft(), QPoint(6 + 15, input.bottom() + 1 - 15));
    QCOMPARE(side.width(), input.width() - 30);
    QCOMPARE(find<QWidget>("m_assignWid")->size(),
             QSize(size.width() / 3, int(size.height() * 0.6)));
}

void tst_VantrixMapWid::heightOfThePanels_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("height");
    QTest::newRow("simple, whole") << 0 << 808;
    QTest::newRow("simple, small") << 0 << 300;
    QTest::newRow("simple, no room for panels") << 0 << 95;
    QTest::newRow("advanced") << 1 << 808;
}

void tst_VantrixMapWid::heightOfThePanels()
{
    QFETCH(int, mode);
    QFETCH(int, height);
    profile().mode = mode;
    m_page->updateUi(2);
    m_page->resize(784, height);
    const int legend = find<QWidget>("m_stateWid")->height();
    const int board = mode == 0 ? int(height * 0.6) : qMax(0, height - legend);
    QCOMPARE(find<QWidget>("m_assignWid")->height(), board);
    const int room = height - board - legend;
    const int expected = room >= height / 2 ? room - room / 3 : room;
    QCOMPARE(find<QWidget>("m_mapWid")->maximumHeight(), qMax(0, expected));
    QCOMPARE(find<QWidget>("m_mapWid")->minimumHeight(), qMax(0, expected));
}

void tst_VantrixMapWid::keyboardKeepsClearOfTheButtons_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(784, 808), QSize(1060, 806), QSize(1024, 700), QSize(1500, 900),
                             QSize(1900, 600), QSize(800, 1200)})
        QTest::addRow("%d by %d", size.width(), size.height()) << size;
}

void tst_VantrixMapWid::keyboardKeepsClearOfTheButtons()
{
    QFETCH(QSize, size);
    m_page->resize(size);
    QCoreApplication::processEvents();
    const auto rectOf = [this](const QWidget *widget) {
        return QRect(widget->mapTo(m_page, QPoint(0, 0)), widget->size());
    };
    const QRect keyboard = rectOf(m_page->findChild<Keyboard *>());
    for (const char *const name : {"m_apply", "m_reset", "m_pressoWid"})
        QVERIFY2(!keyboard.intersects(rectOf(find<QWidget>(name))), name);
    QVERIFY(keyboard.width() > 300);
}

void tst_VantrixMapWid::advancedGeometry()
{
    profile().mode = 1;
    m_page->updateUi(2);
    m_page->resize(1500, 900);
    const int legend = find<QWidget>("m_stateWid")->height();
    const QSize board(500, 900 - legend);
    QCOMPARE(find<QWidget>("m_assignWid")->size(), board);
    const int menu = int(board.height() * 0.35);
    QCOMPARE(find<QWidget>("m_assignMenuWid")->geometry(),
             QRect(975, int(board.height() * 0.95 - menu), 250, menu));
}

void tst_VantrixMapWid::sizeStaysAsGiven_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("way");
    for (const QSize size : {QSize(784, 808), QSize(1500, 900)}) {
        for (int way = 0; way < 3; ++way)
            QTest::addRow("%d wide, way %d", size.width(), way) << size << way;
    }
}

void tst_VantrixMapWid::sizeStaysAsGiven()
{
    QFETCH(QSize, size);
    QFETCH(int, way);
    QWidget host;
    VantrixMapWid page(5, way == 0 ? nullptr : &host);
    QWidget *const outer = way == 0 ? &page : &host;
    if (way == 1) {
        auto *const layout = new QVBoxLayout(&host);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(&page);
    }
    outer->resize(size);
    page.resize(size);
    outer->show();
    page.updateUi(2);
    for (int pass = 0; pass < 50; ++pass) {
        QCoreApplication::processEvents();
        QCOMPARE(page.size(), size);
        QCOMPARE(outer->size(), size);
    }
    QThreadPool::globalInstance()->waitForDone();
}

void tst_VantrixMapWid::anySize()
{
    for (int mode : {0, 1}) {
        profile().mode = mode;
        m_page->updateUi(2);
        key(7)->click();
        for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(10, 2000), QSize(4000, 10),
                                 QSize(320, 240), QSize(4000, 3000)}) {
            m_page->resize(size);
            QCoreApplication::processEvents();
            QCOMPARE(m_page->size(), size);
        }
    }
}

void tst_VantrixMapWid::updateUiShowsTheProfile()
{
    profile(3).keys[7] = plainKey(5);
    profile(3).mode = 1;
    m_store->pressoEnabled = false;
    m_page->updateUi(3);
    QCOMPARE(key(7)->text(), QString("B"));
    QVERIFY(find<QPushButton>("m_advanced")->isChecked());
    QVERIFY(find<QWidget>("m_inputWid")->isHidden());
    QVERIFY(find<QWidget>("m_mapWid")->isHidden());
    QVERIFY(find<QPushButton>("m_off")->isChecked());
    profile(3).mode = 0;
    m_page->updateUi(3);
    QVERIFY(!find<QWidget>("m_inputWid")->isHidden());
    QVERIFY(!find<QWidget>("m_mapWid")->isHidden());
}

void tst_VantrixMapWid::updateUiOrder()
{
    profile(3).input = 1;
    m_page->updateUi(3);
    // Only the new profile is asked for.
    QCOMPARE(m_store->calls().filter(" 5 2"), QStringList());
    QCOMPARE(m_store->writes(), QStringList({"setInput 5 3 1", "clearCurrentKey 5 3"}));
    const QStringList calls = m_store->calls();
    QVERIFY(calls.indexOf("getMode 5 3") < calls.indexOf("setInput 5 3 1"));
    QVERIFY(calls.indexOf("setInput 5 3 1") < calls.indexOf("getKeyMappings 5 3"));
    QVERIFY(calls.indexOf("getKeyMappings 5 3") < calls.indexOf("getPressoEnabled"));
    QCOMPARE(find<QStackedWidget>("m_map")->currentIndex(), 1);
}

void tst_VantrixMapWid::updateKeyMappingReadsAnew()
{
    key(3)->click();
    profile().keys[7] = plainKey(5);
    profile().hotKeys[8] = {0, "F1", "Help"};
    m_page->updateKeyMapping();
    QCOMPARE(key(7)->text(), QString("B"));
    QCOMPARE(key(8)->text(), QString("Help"));
    QVERIFY(!key(3)->isChecked());
    profile().hotKeys.clear();
    m_page->updateKeyMapping();
    QVERIFY(key(8)->text() != QString("Help"));
}

void tst_VantrixMapWid::updateKeyMappingDropsStrayLabels()
{
    // A label without anything behind it; its record is that of no plain code.
    profile().keys[7] = plainKey(9);
    profile().keys[7].type = 1;
    profile().macros[8] = "one";
    m_page->slotAddKeyAssignMacro("one");
    m_store->clearLog();
    m_page->updateKeyMapping();
    QCOMPARE(m_store->writes().filter("setKeyMapping"), QStringList({"setKeyMapping 5 2 7"}));
    QCOMPARE(profile().keys.at(7), plainKey(255));
    QCOMPARE(key(7)->text(), QString("W"));
    QCOMPARE(key(8)->text(), QString("M1"));
}

void tst_VantrixMapWid::modeClick()
{
    click("m_advanced");
    QCOMPARE(m_store->writes(), QStringList({"setMode 5 2 1"}));
    QVERIFY(find<QWidget>("m_inputWid")->isHidden());
    QVERIFY(find<QWidget>("m_mapWid")->isHidden());
    click("m_simple");
    QVERIFY(!find<QWidget>("m_mapWid")->isHidden());
    QCOMPARE(profile().mode, 0);
}

void tst_VantrixMapWid::modeClickShowsTheKeyAnew()
{
    key(7)->click();
    click("btn_48");
    find<AssignWid>("m_assignWid")->slotApplicationAssigned(0, 3);
    click("m_advanced");
    // The frame of the menu has the colour of applications by now.
    QVERIFY(find<QLabel>("m_keyLab")->styleSheet().contains("#ffffff00"));
    find<AssignWid>("m_assignWid")->slotVantrixKeyAssigned(plainKey(5));
    click("m_simple");
    QVERIFY(find<QPushButton>("btn_48")->isChecked());
}

void tst_VantrixMapWid::sameModeClickWritesNothing()
{
    const QRect before = find<QWidget>("m_mapWid")->geometry();
    click("m_simple");
    QCOMPARE(m_store->writes(), QStringList());
    QCOMPARE(find<QWidget>("m_mapWid")->geometry(), before);
}

void tst_VantrixMapWid::inputClick()
{
    const auto *const group = find<QWidget>("m_inputWid")->findChild<QButtonGroup *>();
    group->button(4)->click();
    QCOMPARE(m_store->writes(), QStringList({"setInput 5 2 4"}));
    QCOMPARE(find<QStackedWidget>("m_map")->currentIndex(), 4);
    QVERIFY(key(24)->isHidden());
    group->button(0)->click();
    QVERIFY(!key(24)->isHidden());
}

void tst_VantrixMapWid::sidePanelChecksTheStoredPreset()
{
    const auto checked = [this] {
        const auto groups = find<SidePanelWid>("m_sidePanelWid")->findChildren<ButtonGroupEx *>();
        for (const ButtonGroupEx *const group : groups) {
            if (group->button(8))
                return group->checkedId();
        }
        return -1;
    };
    const auto *const inputs = find<QWidget>("m_inputWid")->findChild<QButtonGroup *>();
    for (int preset : {4, 8}) {
        profile().panel = preset;
        inputs->button(10)->click();
        QCOMPARE(checked(), preset);
        inputs->button(0)->click();
    }
    m_store->clearLog();
    inputs->button(10)->click();
    QCOMPARE(m_store->writes(), QStringList({"setInput 5 2 10"}));
}

/// Inputs 11 and 12 have no button that would tell of them.
void tst_VantrixMapWid::sidePanelGoesWithAnOddInput()
{
    QWidget *const side = find<QWidget>("m_sidePanelWid");
    profile().input = 10;
    m_page->updateUi(2);
    QVERIFY(!side->isHidden());
    profile().input = 12;
    m_page->updateUi(2);
    QVERIFY(side->isHidden());
}

void tst_VantrixMapWid::modeIsStoredLast()
{
    clickOn(key(7));
    m_store->clearLog();
    click("m_advanced");
    QCOMPARE(m_store->calls().last(), QString("setMode 5 2 1"));
    m_store->clearLog();
    click("m_simple");
    QCOMPARE(m_store->calls().last(), QString("setMode 5 2 0"));
}

void tst_VantrixMapWid::sidePanelRule_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("click on the input") << 0;
    QTest::newRow("updateUi") << 1;
    QTest::newRow("back from advanced mode") << 2;
}

void tst_VantrixMapWid::sidePanelRule()
{
    QFETCH(int, way);
    QWidget *const side = find<QWidget>("m_sidePanelWid");
    const auto *const group = find<QWidget>("m_inputWid")->findChild<QButtonGroup *>();
    QVERIFY(side->isHidden());
    if (way == 0) {
        group->button(10)->click();
    } else {
        profile().input = 10;
        profile().mode = way == 2;
        m_page->updateUi(2);
    }
    if (way == 2) {
        QVERIFY(side->isHidden());
        click("m_simple");
    }
    QVERIFY(!side->isHidden());
    click("m_advanced");
    QVERIFY(side->isHidden());
    click("m_simple");
    group->button(1)->click();
    QVERIFY(side->isHidden());
}

void tst_VantrixMapWid::foldedSidePanelLeavesThePressureSwitch_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(784, 560), QSize(700, 500), QSize(640, 480), QSize(500, 400)})
        QTest::addRow("%d by %d", size.width(), size.height()) << size;
}

void tst_VantrixMapWid::foldedSidePanelLeavesThePressureSwitch()
{
    QFETCH(QSize, size);
    m_page->resize(size);
    find<QWidget>("m_inputWid")->findChild<QButtonGroup *>()->button(10)->click();
    QCoreApplication::processEvents();
    for (const char *const name : {"m_on", "m_off"}) {
        auto *const button = find<QPushButton>(name);
        const QPoint middle = button->mapTo(m_page, button->rect().center());
        QCOMPARE(m_page->childAt(middle), button);
    }
}

void tst_VantrixMapWid::menuRule()
{
    QWidget *const menu = find<QWidget>("m_assignMenuWid");
    key(3)->click();
    QVERIFY(menu->isHidden());
    click("m_advanced");
    QVERIFY(!menu->isHidden());
    key(3)->click();
    QVERIFY(menu->isHidden());
    key(4)->click();
    QVERIFY(!menu->isHidden());
    click("m_apply");
    QVERIFY(menu->isHidden());
    key(4)->click();
    m_page->updateUi(2);
    QVERIFY(menu->isHidden());
    key(4)->click();
    QVERIFY(!menu->isHidden());
    m_page->updateKeyMapping();
    QVERIFY(menu->isHidden());
    key(4)->click();
    click("m_simple");
    QVERIFY(menu->isHidden());
}

void tst_VantrixMapWid::captureRule()
{
    const auto *const group = find<QWidget>("m_inputWid")->findChild<QButtonGroup *>();
    QVERIFY(!isCapturing());
    key(3)->click();
    QVERIFY(isCapturing());
    key(4)->click();
    QVERIFY(isCapturing());
    key(4)->click();
    QVERIFY(!isCapturing());
    key(4)->click();
    group->button(1)->click();
    QVERIFY(!isCapturing());
    group->button(0)->click();
    QVERIFY(isCapturing());
    m_page->showMapping(false);
    QVERIFY(!isCapturing());
    m_page->showMapping(true);
    QVERIFY(isCapturing());
    click("m_advanced");
    QVERIFY(!isCapturing());
    m_page->showMapping(true);
    QVERIFY(!isCapturing());
    click("m_simple");
    QVERIFY(isCapturing());
    m_page->updateUi(2);
    QVERIFY(!isCapturing());
    key(3)->click();
    m_page->updateKeyMapping();
    QVERIFY(!isCapturing());
}

void tst_VantrixMapWid::captureEndsWithApply()
{
    key(3)->click();
    click("m_apply");
    QVERIFY(!isCapturing());
    QVERIFY(!key(3)->isChecked());
}

void tst_VantrixMapWid::presets_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("preset");
    const int inputs[] = {0, 0, 0, 4, 4, 4, 5, 5, 5};
    for (int preset = 0; preset < 9; ++preset)
        QTest::addRow("preset %d", preset) << inputs[preset] << preset;
}

void tst_VantrixMapWid::presets()
{
    QFETCH(int, input);
    QFETCH(int, preset);
    profile().hotKeys[24] = {0, "F1", "Help"};
    profile().macros[25] = "one";
    profile().shortcuts[26] = 3;
    m_page->updateUi(2);
    m_store->clearLog();
    m_page->slotPanelChanged(input, preset);
    const QStringList writes = m_store->writes();
    QCOMPARE(writes.at(0), QString("clearAssignsForPreset 5 2"));
    QCOMPARE(writes.at(1), QString("clearNamedMacros 5 2"));
    QCOMPARE(writes.at(2), QString("setInput 5 2 %1").arg(input));
    QCOMPARE(writes.last(), QString("setPanel 5 2 %1").arg(preset));
    QCOMPARE(profile().input, input);
    QCOMPARE(profile().panel, preset);
    QVERIFY(profile().hotKeys.empty());
    QVERIFY(profile().macros.empty());
    QVERIFY(profile().shortcuts.empty());
    QCOMPARE(profile().apps.size(), std::size_t(input == 5 ? 19 : 0));
    QVERIFY(profile().dirty);
}

void tst_VantrixMapWid::presetAfterPreset()
{
    const int inputs[] = {0, 0, 0, 4, 4, 4, 5, 5, 5};
    const auto faceOf = [this](int index) {
        const QImage icon = key(index)->icon().pixmap(30).toImage();
        return QVariantList{key(index)->text(), key(index)->styleSheet(), icon};
    };
    for (int second = 0; second < 9; ++second) {
        profile(100 + second) = {};
        m_page->updateUi(100 + second);
        m_page->slotPanelChanged(inputs[second], second);
        const FakeProfileCfg::Profile alone = profile(100 + second);
        QList<QVariantList> faces;
        for (int index = 0; index < 28; ++index)
            faces << faceOf(index);
        for (int first = 0; first < 9; ++first) {
            profile(200) = {};
            m_page->updateUi(200);
            m_page->slotPanelChanged(inputs[first], first);
            m_page->slotPanelChanged(inputs[second], second);
            const FakeProfileCfg::Profile &both = profile(200);
            QVERIFY(both.keys == alone.keys);
            QVERIFY(both.apps == alone.apps);
            QVERIFY(both.extended == alone.extended);
            for (int index = 0; index < 28; ++index)
                QCOMPARE(faceOf(index), faces.at(index));
        }
    }
}

void tst_VantrixMapWid::presetShowsTheSelectedKeyAnew()
{
    key(0)->click();
    m_page->slotPanelChanged(0, 1);
    QVERIFY(key(0)->isChecked());
    QVERIFY(find<QPushButton>("btn_2")->isChecked());
    m_page->slotPanelChanged(0, 0);
    QVERIFY(find<QPushButton>("btn_41")->isChecked());
    QVERIFY(!find<QPushButton>("btn_2")->isChecked());
}

void tst_VantrixMapWid::pressureSwitch()
{
    QSignalSpy request(m_page, &VantrixMapWid::sigSdkRequest);
    click("m_on");
    QCOMPARE(request.count(), 0);
    QCOMPARE(m_store->writes(), QStringList());
    click("m_off");
    QCOMPARE(request.count(), 1);
    QCOMPARE(request.at(0).at(0).toInt(), 23);
    QCOMPARE(request.at(0).at(1).value<void *>(), nullptr);
    QCOMPARE(m_store->writes(), QStringList({"setPressoEnabled 0"}));
    QVERIFY(!m_store->pressoEnabled);
}

void tst_VantrixMapWid::apply()
{
    QStringList told;
    connect(m_page, &VantrixMapWid::sigUpdateKeyMapping, this, [&] {
        QVERIFY(key(3)->isChecked());
        told << "keys";
    });
    connect(m_page, &VantrixMapWid::sigUpdateMacroAssign, this, [&] { told << "macros"; });
    key(3)->click();
    m_store->clearLog();
    click("m_apply");
    QCOMPARE(told, QStringList({"keys", "macros"}));
    QCOMPARE(m_store->writes(), QStringList({"clearCurrentKey 5 2"}));
    QVERIFY(!key(3)->isChecked());
}

void tst_VantrixMapWid::reset()
{
    int request = 0;
    m_parse->answer = &request;
    m_answer = 1;
    QSignalSpy told(m_page, &VantrixMapWid::sigSdkRequest);
    click("m_reset");
    QCOMPARE(m_asked, QStringList({"Reset|Are you sure you want to reset?"}));
    QCOMPARE(m_parse->ids, QVector<int>({2}));
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.at(0).at(0).toInt(), 5);
    QCOMPARE(told.at(0).at(1).value<void *>(), static_cast<void *>(&request));
    QCOMPARE(m_store->writes(), QStringList());
}

void tst_VantrixMapWid::resetDeclined()
{
    QSignalSpy told(m_page, &VantrixMapWid::sigSdkRequest);
    click("m_reset");
    QCOMPARE(m_asked.size(), 1);
    QCOMPARE(told.count(), 0);
    QVERIFY(m_parse->ids.isEmpty());
    QCOMPARE(m_store->writes(), QStringList());
}

void tst_VantrixMapWid::macros()
{
    profile().macros[7] = "one";
    m_page->slotAddKeyAssignMacro("one");
    m_page->slotAddKeyAssignMacro("two");
    m_page->updateKeyMapping();
    QCOMPARE(key(7)->toolTip(), QString("one"));
    m_page->slotRenameKeyAssignMacro("one", "eins");
    QCOMPARE(key(7)->toolTip(), QString("eins"));
}

void tst_VantrixMapWid::macrosOfTheDialog()
{
    const auto names = [this] {
        QStringList texts;
        const auto keys = m_window->findChild<MacroAdvWid *>()->findChildren<AssignKey *>();
        for (const AssignKey *const entry : keys)
            texts << entry->text();
        return texts;
    };
    const int before = names().size();
    m_page->slotAddKeyAssignMacro("one");
    QCOMPARE(names().size(), before + 1);
    QVERIFY(names().contains("one"));
    m_page->slotRenameKeyAssignMacro("one", "eins");
    QVERIFY(!names().contains("one"));
    QVERIFY(names().contains("eins"));
    m_page->slotDelKeyAssignMacro("eins");
    QTRY_COMPARE(names().size(), before);
}

void tst_VantrixMapWid::createMacroIsPassedOn()
{
    QSignalSpy told(m_page, &VantrixMapWid::sigSwitchToMacro);
    emit find<MapWid>("m_mapWid")->sigCreateMacro();
    QCOMPARE(told.count(), 1);
    emit find<AssignMenuWid>("m_assignMenuWid")->sigCreateMacro();
    QCOMPARE(told.count(), 2);
}

void tst_VantrixMapWid::deletedMacro()
{
    m_page->slotAddKeyAssignMacro("one");
    profile().macros[7] = "one";
    m_page->updateKeyMapping();
    QSignalSpy told(m_page, &VantrixMapWid::sigUpdateKeyMapping);
    m_store->clearLog();
    m_page->slotDelKeyAssignMacro("one");
    const QStringList writes = m_store->writes();
    QCOMPARE(writes, QStringList({"setKeyMapping 5 2 7", "setProfileDirty 5 2 1",
                                  "delNamedMacro 5 2 one"}));
    QCOMPARE(told.count(), 1);
    QCOMPARE(profile().keys.at(7), plainKey(255));
    m_page->slotDelKeyAssignMacro("never heard of");
    QCOMPARE(told.count(), 1);
}

void tst_VantrixMapWid::deletionRenumbersTheFaces()
{
    profile().macros = {{7, "one"}, {8, "two"}, {9, "same"}};
    for (const char *name : {"one", "two", "same", "same"})
        m_page->slotAddKeyAssignMacro(name);
    m_page->updateKeyMapping();
    m_page->slotUpdateMacroAssign();
    const auto faces = [this] {
        return QStringList({key(7)->text(), key(8)->text(), key(9)->text()});
    };
    QCOMPARE(faces().mid(0, 2), QStringList({"M1", "M2"}));
    m_store->clearLog();
    m_page->slotDelKeyAssignMacro("one");
    const QStringList calls = m_store->calls();
    QVERIFY(calls.lastIndexOf("getKeysOfMacro 5 2 two") >= 0);
    QVERIFY(calls.indexOf("delNamedMacro 5 2 one") > calls.lastIndexOf("getKeysOfMacro 5 2 two"));
    m_page->slotUpdateMacroAssign();
    QCOMPARE(profile().keys.at(7), plainKey(255));
    QVERIFY(key(7)->text() != QString("M1"));
    QCOMPARE(key(8)->text(), QString("M1"));
    QCOMPARE(key(8)->toolTip(), QString("two"));
    QVERIFY(profile().macros == (std::map<uchar, std::string>{{8, "two"}, {9, "same"}}));
}

void tst_VantrixMapWid::updateMacroAssign()
{
    m_page->slotAddKeyAssignMacro("one");
    profile().macros[7] = "one";
    m_page->updateKeyMapping();
    const QString text = key(7)->text();
    QSignalSpy told(m_page, &VantrixMapWid::sigUpdateKeyMapping);
    m_page->slotUpdateMacroAssign();
    QCOMPARE(told.count(), 1);
    QCOMPARE(key(7)->text(), text);
    profile().macros.clear();
    m_page->slotUpdateMacroAssign();
    QVERIFY(key(7)->text() != text);
}

void tst_VantrixMapWid::winShortcutKeys()
{
    profile().shortcuts[7] = 2;
    m_page->updateUi(2);
    QCOMPARE(key(7)->text(), QString("M3"));
    m_store->shortcutBase = 5;
    m_page->slotUpdateWinShortcutKeys();
    QCOMPARE(key(7)->text(), QString("M8"));
}

void tst_VantrixMapWid::wholeRoadInSimpleMode()
{
    QSignalSpy told(m_page, &VantrixMapWid::sigUpdateKeyMapping);
    key(7)->click();
    click("btn_48");
    QCOMPARE(key(7)->text(), QString("B"));
    QCOMPARE(profile().keys.at(7), plainKey(5));
    QVERIFY(profile().dirty);
    QCOMPARE(told.count(), 0);
    click("m_apply");
    QCOMPARE(told.count(), 1);
    // A second click on the same function clears the key.
    key(7)->click();
    QVERIFY(find<QPushButton>("btn_48")->isChecked());
    click("btn_48");
    QCOMPARE(profile().keys.at(7), plainKey(255));
}

void tst_VantrixMapWid::boardTellsThePanels()
{
    auto *const board = find<AssignWid>("m_assignWid");
    auto *const panels = find<MapWid>("m_mapWid");
    QSignalSpy key(panels, &MapWid::sigVantrixKeySelected);
    QSignalSpy application(panels, &MapWid::sigApplicationSelected);
    QSignalSpy dual(panels, &MapWid::sigDualActionSelected);
    QSignalSpy macro(panels, &MapWid::sigMacroSelected);
    emit board->sigVantrixKeySelected(plainKey(5));
    QCOMPARE(key.count(), 1);
    QVERIFY(find<QPushButton>("btn_48")->isChecked());
    emit board->sigResetCurrKey();
    QVERIFY(!find<QPushButton>("btn_48")->isChecked());
    emit board->sigApplicationSelected(1, 7);
    QCOMPARE(application.count(), 1);
    emit board->sigDualActionSelected(0, 1, {4, 481, 0, 30});
    QCOMPARE(dual.count(), 1);
    emit board->sigMacroSelected("M1");
    QCOMPARE(macro.count(), 1);
    QCOMPARE(m_store->writes(), QStringList());
}

void tst_VantrixMapWid::panelsTellTheBoard()
{
    auto *const panels = find<MapWid>("m_mapWid");
    key(7)->click();
    const auto stored = [this] {
        return profile().keys.at(7);
    };
    emit panels->sigVantrixKeyAssigned(plainKey(5));
    QCOMPARE(stored(), plainKey(5));
    emit panels->sigApplicationAssigned(1, 7);
    QCOMPARE(int(profile().apps.at(7).funcId), 7);
    emit panels->sigMacroAssigned(true, "M1", "one", -1);
    QCOMPARE(profile().macros.at(7), std::string("one"));
    emit panels->sigMacroAssigned(true, "M4", "Copy", 2);
    QCOMPARE(int(profile().shortcuts.at(7)), 2);
    emit panels->sigAssignedKey("M2", "two", {{7, 0}});
    QCOMPARE(key(7)->text(), QString("M2"));
    emit panels->sigRenameMacro("M2", "zwei");
    QCOMPARE(key(7)->toolTip(), QString("zwei"));

    vantrix_key_mapping pending = plainKey(5);
    pending.digital = {5, 481, 0, 30};
    m_store->clearLog();
    emit panels->sigDualActionAssigned(pending);
    QCOMPARE(m_store->writes(), QStringList({"setProfileDirty 5 2 1"}));
    emit panels->sigDualActionBack();
    QCOMPARE(key(7)->text(), QString("M2"));
    emit panels->sigDualActionAssigned(pending);
    emit panels->sigDualActionApply();
    QCOMPARE(int(stored().type), 3);
    QCOMPARE(int(stored().digital.depth), 30);
    emit panels->sigDualActionDepthChanged(60);
    QCOMPARE(int(stored().digital.depth), 60);
}

void tst_VantrixMapWid::boardTellsTheMenu()
{
    click("m_advanced");
    auto *const board = find<AssignWid>("m_assignWid");
    QWidget *const menu = find<QWidget>("m_assignMenuWid");
    const auto *const shown = find<QLabel>("m_assignLab");
    emit board->sigKeySelectionChanged(4);
    QCOMPARE(find<QLabel>("m_keyLab")->text(), QString("VANTRIX 05"));
    emit board->sigVantrixKeySelected(plainKey(5));
    QVERIFY(!menu->isHidden());
    QCOMPARE(shown->text(), QString("B"));
    emit board->sigUpdateVantrixKey(plainKey(6));
    QCOMPARE(shown->text(), QString("C"));
    emit board->sigApplicationAdvSelected("Save");
    QCOMPARE(shown->text(), QString("Save"));
    emit board->sigMacroSelected("M3");
    QCOMPARE(shown->text(), QString("M3"));
    emit board->sigDualActionSelectedToAdv(dualKey(4, 481, 0, 30));
    QCOMPARE(shown->text(), QString("A"));
    QVERIFY(!find<QLabel>("m_dualActionLab")->isHidden());
    emit board->sigApplicationSelected(1, 7);
    QVERIFY(find<QLabel>("m_dualActionLab")->isHidden());
    emit board->sigCancelKeySelection();
    QVERIFY(menu->isHidden());
}

void tst_VantrixMapWid::menuTellsTheBoard()
{
    auto *const menu = find<AssignMenuWid>("m_assignMenuWid");
    key(7)->click();
    emit menu->sigVantrixKeyAssigned(plainKey(5));
    QCOMPARE(profile().keys.at(7), plainKey(5));
    emit menu->sigApplicationAdvAssigned("CTRL+S", "Save");
    QCOMPARE(profile().hotKeys.at(7).keyName, QString("Save"));
    emit menu->sigMacroAssigned(true, "M1", "one", -1);
    QCOMPARE(profile().macros.at(7), std::string("one"));
    emit menu->sigMacroAssigned(true, "M4", "Copy", 2);
    QCOMPARE(int(profile().shortcuts.at(7)), 2);
}

void tst_VantrixMapWid::boardMayAskToApply()
{
    QSignalSpy told(m_page, &VantrixMapWid::sigUpdateKeyMapping);
    emit find<AssignWid>("m_assignWid")->sigApply();
    QCOMPARE(told.count(), 1);
}

void tst_VantrixMapWid::hiding()
{
    QSignalSpy told(m_page, &VantrixMapWid::sigHide);
    m_page->hide();
    QCOMPARE(told.count(), 1);
}

void tst_VantrixMapWid::relays()
{
    QStringList told;
    connect(m_page, &VantrixMapWid::sigMeridianKeyInfo, this, [&](QString &info, int scan) {
        told << QString("info %1").arg(scan);
        info = "NORTH";
    });
    connect(m_page, &VantrixMapWid::deleteMeridianKey, this,
            [&](int scan) { told << QString("meridian %1").arg(scan); });
    connect(m_page, &VantrixMapWid::deletePowerModeKey, this,
            [&](int scan) { told << QString("power %1").arg(scan); });
    profile().keys[11] = plainKey(0xC5);
    profile().keys[12] = plainKey(0xC1);
    m_page->updateUi(2);
    QCOMPARE(key(11)->text(), QString("NORTH"));
    profile().keys[11] = profile().keys[12] = plainKey(5);
    m_page->updateUi(2);
    QCOMPARE(told, QStringList({"info 30", "meridian 30", "power 31"}));
}

void tst_VantrixMapWid::pageMayDieInAWarning()
{
    profile().apps[7] = {0, 11, {}};
    profile().apps[8] = {1, 6, {}};
    Modal::setAnswerer([this](const ModalPrompt &) {
        delete m_page;
        return QVariant(0);
    });
    m_page->updateUi(2);
    QVERIFY(!m_page);
}

void tst_VantrixMapWid::recordsAreMetaTypes()
{
    for (const char *const name :
         {"vantrix_presso_digital", "vantrix_key_mapping", "vantrix_macro_record",
          "vantrix_shortcut_assign", "vantrix_extended_key", "vantrix_app_assign",
          "vantrix_hotkey_assign", "std::map<uchar,uchar>", "std::string"})
        QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name);
}

VANTRIX_TEST_MAIN(tst_VantrixMapWid)
#include "tst_VantrixMapWid.moc"
