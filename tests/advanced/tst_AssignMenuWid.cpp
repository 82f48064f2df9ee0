#include "MenuRig.h"
#include "support/TestMain.h"

class tst_AssignMenuWid : public MenuRig
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void hasItsTexts();
    void namesTheKey_data();
    void namesTheKey();
    void showsEveryKindOfRecord_data();
    void showsEveryKindOfRecord();
    void showsBothActions_data();
    void showsBothActions();
    void dualActionIsLeftToItsOwnSlot();
    void dualActionWithoutFirstActionIsUnassigned();
    void showsLabels();
    void picturesHaveNames();
    void textsAreReadableOnTheirColour();
    void selectionSlotsHideTheSecondLabel();
    void updateLeavesTheSecondLabel();
    void revealsInAdvancedModeOnly();
    void comesBackAfterBeingHidden();
    void clears();
    void disables();
    void setsASheetOnlyWhenItChanges();
    void takesTheSizeItIsGiven_data();
    void takesTheSizeItIsGiven();
    void elidesToItsWidth();
    void tabOrderFollowsReading();
};

void tst_AssignMenuWid::hasItsTexts()
{
    QCOMPARE(button("m_reassignKey")->text(), QString("REASSIGN KEY"));
    QCOMPARE(button("m_controllerMode")->text(), QString("CONTROLLER MAPPING MODE"));
    QCOMPARE(button("m_dualActionMode")->text(), QString("DUAL ACTION MAPPING MODE"));
    QCOMPARE(button("m_clearKey")->text(), QString("CLEAR KEY ASSIGNMENT"));
    QCOMPARE(button("m_disableKey")->text(), QString("DISABLE KEY"));
}

void tst_AssignMenuWid::namesTheKey_data()
{
    QTest::addColumn<int>("keyIdx");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("hasModes");
    QTest::newRow("first") << 0 << "VANTRIX 01" << true;
    QTest::newRow("tenth") << 9 << "VANTRIX 10" << true;
    QTest::newRow("last of the block") << 23 << "VANTRIX 24" << true;
    QTest::newRow("first upper") << 24 << "VANTRIX 25" << false;
    QTest::newRow("last upper") << 27 << "VANTRIX 28" << false;
}

void tst_AssignMenuWid::namesTheKey()
{
    QFETCH(int, keyIdx);
    QFETCH(bool, hasModes);
    m_menu->slotKeySelectionChanged(keyIdx);
    QTEST(label("m_keyLab")->text(), "name");
    QCOMPARE(button("m_controllerMode")->isHidden(), !hasModes);
    QCOMPARE(button("m_dualActionMode")->isHidden(), !hasModes);
    for (const char *always : {"m_reassignKey", "m_clearKey", "m_disableKey"})
        QVERIFY2(!button(always)->isHidden(), always);
    QVERIFY2(m_menu->isHidden(), "naming a key shows nothing");
}

void tst_AssignMenuWid::showsEveryKindOfRecord_data()
{
    QTest::addColumn<int>("keyIdx");
    QTest::addColumn<vantrix_key_mapping>("key");
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("text");

    const QString none;
    const QString green("#ff00ff00");
    const QString magenta("#fffd00fd");
    const QString brown("#ffa67c52");
    QTest::newRow("keyboard") << 0 << plainKey(4) << magenta << none << "A";
    QTest::newRow("two lines") << 0 << plainKey(30) << magenta << none << "1\n!";
    QTest::newRow("ampersand") << 0 << plainKey(3079) << magenta << none << "&";
    QTest::newRow("scroll up") << 0 << plainKey(1280) << magenta << none << "SCROLL UP";
    QTest::newRow("profile up") << 0 << plainKey(1568) << magenta << none << "PROFILE[+]";
    QTest::newRow("mouse") << 0 << plainKey(496) << "#fff6941d" << none << "LEFT CLICK";
    QTest::newRow("media") << 0 << plainKey(240) << "#ff0054a6"
                           << ":/VantrixMap/Media/play_pause" << none;
    QTest::newRow("controller") << 0 << gameKey(462) << "#ff00aeee"
                                << ":/VantrixMap/GameCtrl/assign/a" << none;
    QTest::newRow("presso") << 0 << plainKey(312) << "#ff0000ff" << none << "CALIBRATE";
    QTest::newRow("backlight") << 0 << plainKey(385) << brown << none << "EFFECT CYCLE+";
    QTest::newRow("profile") << 0 << plainKey(1536) << "#fffff799" << none << "PROFILE 1";
    QTest::newRow("disabled") << 0 << plainKey(0) << "#ffff0000" << none << "DISABLE";
    QTest::newRow("unassigned") << 11 << plainKey(255) << green << none << "A";
    QTest::newRow("own default") << 11 << plainKey(4) << green << none << "A";
    QTest::newRow("385 on 21") << 21 << plainKey(385) << green << none << "EFFECT CYCLE+";
    QTest::newRow("402 on 26") << 26 << plainKey(402) << green << none << "LED DARKER-";
    QTest::newRow("403 on 27") << 27 << plainKey(403) << green << none << "LED BRIGHTER+";
    QTest::newRow("402 on 27") << 27 << plainKey(402) << brown << none << "LED DARKER-";
    QTest::newRow("volume up on 24") << 24 << plainKey(0xF6) << green << none << "VOLUME UP";
}

void tst_AssignMenuWid::showsEveryKindOfRecord()
{
    QFETCH(int, keyIdx);
    QFETCH(vantrix_key_mapping, key);
    QFETCH(QString, color);
    QFETCH(QString, image);
    m_menu->setMode(1);
    m_menu->resize(400, 260);
    select(keyIdx, key);
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf(color));
    QCOMPARE(label("m_assignLab")->styleSheet(), fillOf(color, image));
    QTEST(label("m_assignLab")->text(), "text");
    QVERIFY(label("m_dualActionLab")->isHidden());
    QVERIFY(!m_menu->isHidden());
}

void tst_AssignMenuWid::showsBothActions_data()
{
    QTest::addColumn<vantrix_key_mapping>("key");
    QTest::addColumn<QString>("firstSheet");
    QTest::addColumn<QString>("firstText");
    QTest::addColumn<QString>("secondSheet");
    QTest::addColumn<QString>("secondText");
    QTest::newRow("keyboard and mouse")
        << dualKey(4, 496) << fillOf("#fffd00fd") << "A" << fillOf("#fff6941d") << "LEFT CLICK";
    QTest::newRow("media and keyboard")
        << dualKey(240, 5) << fillOf("#ff0054a6", ":/VantrixMap/Media/play_pause") << ""
        << fillOf("#fffd00fd") << "B";
    QTest::newRow("a controller code counts as keyboard")
        << dualKey(462, 5) << fillOf("#fffd00fd") << "A BUTTON" << fillOf("#fffd00fd") << "B";
    QTest::newRow("no second action")
        << dualKey(5, 0) << fillOf("#fffd00fd") << "B" << fillOf("#ffff0000") << "DISABLE";
}

void tst_AssignMenuWid::showsBothActions()
{
    QFETCH(vantrix_key_mapping, key);
    m_menu->setMode(1);
    m_menu->resize(400, 260);
    m_menu->slotKeySelectionChanged(3);
    m_menu->slotDualActionSelected(key);
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ff3cb878"));
    QTEST(label("m_assignLab")->styleSheet(), "firstSheet");
    QTEST(label("m_assignLab")->text(), "firstText");
    QTEST(label("m_dualActionLab")->styleSheet(), "secondSheet");
    QTEST(label("m_dualActionLab")->text(), "secondText");
    QVERIFY(!label("m_dualActionLab")->isHidden());
    QVERIFY(!m_menu->isHidden());
}

void tst_AssignMenuWid::dualActionIsLeftToItsOwnSlot()
{
    select(3, plainKey(4));
    const QString frame = label("m_keyLab")->styleSheet();
    select(3, dualKey(5, 6));
    QCOMPARE(label("m_assignLab")->text(), QString("A"));
    QCOMPARE(label("m_keyLab")->styleSheet(), frame);
    QVERIFY(label("m_dualActionLab")->isHidden());
    m_menu->slotUpdateVantrixKey(dualKey(5, 6));
    QCOMPARE(label("m_assignLab")->text(), QString("A"));
}

void tst_AssignMenuWid::dualActionWithoutFirstActionIsUnassigned()
{
    m_menu->slotKeySelectionChanged(11);
    m_menu->slotDualActionSelected(dualKey(0, 5));
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ff00ff00"));
    QCOMPARE(label("m_assignLab")->text(), QString("A"));
    QVERIFY(label("m_dualActionLab")->isHidden());
}

void tst_AssignMenuWid::showsLabels()
{
    m_menu->setMode(1);
    m_menu->resize(400, 260);
    vantrix_key_mapping labelled = clearedKey();
    labelled.type = 1;
    select(0, labelled);
    m_menu->slotMacroSelected("M4");
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ffd50681"));
    QCOMPARE(label("m_assignLab")->styleSheet(), fillOf("#ffd50681"));
    QCOMPARE(label("m_assignLab")->text(), QString("M4"));

    select(0, labelled);
    m_menu->slotApplicationAdvSelected("Save As");
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ffffff00"));
    QCOMPARE(label("m_assignLab")->styleSheet(), fillOf("#ffffff00"));
    QCOMPARE(label("m_assignLab")->text(), QString("Save As"));

    m_menu->slotApplicationAdvSelected("Cut && Paste & Go");
    QCOMPARE(label("m_assignLab")->text(), QString("Cut && Paste & Go"));

    select(11, labelled);
    m_menu->slotApplicationSelected(0, 3);
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ffffff00"));
    QCOMPARE(label("m_assignLab")->styleSheet(), fillOf("#ffffff00"));
    QCOMPARE(label("m_assignLab")->text(), QString("A"));
}

void tst_AssignMenuWid::textsAreReadableOnTheirColour()
{
    const auto textColor = [this] {
        return label("m_assignLab")->palette().color(QPalette::WindowText);
    };
    select(0, plainKey(1536));
    QCOMPARE(textColor(), QColor(Qt::black));
    select(0, plainKey(312));
    QCOMPARE(textColor(), QColor(Qt::white));
    select(0, plainKey(255));
    QCOMPARE(textColor(), QColor(Qt::black));
}

void tst_AssignMenuWid::picturesHaveNames()
{
    select(0, plainKey(240));
    QCOMPARE(label("m_assignLab")->accessibleName(), QString("PLAY/PAUSE"));
    select(0, gameKey(462));
    QCOMPARE(label("m_assignLab")->accessibleName(), QString("A BUTTON"));
    select(0, plainKey(4));
    QCOMPARE(label("m_assignLab")->accessibleName(), QString());
}

void tst_AssignMenuWid::selectionSlotsHideTheSecondLabel()
{
    const QVector<std::function<void()>> selections = {
        [this] { m_menu->slotVantrixKeySelected(plainKey(4)); },
        [this] { m_menu->slotApplicationSelected(0, 1); },
        [this] { m_menu->slotApplicationAdvSelected("Copy"); },
        [this] { m_menu->slotMacroSelected("M1"); },
    };
    for (const auto &selection : selections) {
        m_menu->slotDualActionSelected(dualKey(4, 5));
        QVERIFY(!label("m_dualActionLab")->isHidden());
        selection();
        QVERIFY(label("m_dualActionLab")->isHidden());
    }
}

void tst_AssignMenuWid::updateLeavesTheSecondLabel()
{
    m_menu->slotDualActionSelected(dualKey(4, 5));
    m_menu->slotUpdateVantrixKey(plainKey(6));
    QCOMPARE(label("m_assignLab")->text(), QString("C"));
    QVERIFY(!label("m_dualActionLab")->isHidden());
}

void tst_AssignMenuWid::revealsInAdvancedModeOnly()
{
    const QVector<std::function<void()>> revealing = {
        [this] { m_menu->slotVantrixKeySelected(plainKey(4)); },
        [this] { m_menu->slotVantrixKeySelected(dualKey(4, 5)); },
        [this] { m_menu->slotApplicationSelected(0, 1); },
        [this] { m_menu->slotApplicationAdvSelected("Copy"); },
        [this] { m_menu->slotDualActionSelected(dualKey(4, 5)); },
        [this] { m_menu->slotMacroSelected("M1"); },
    };
    for (const auto &selection : revealing) {
        m_menu->setMode(0);
        m_menu->hide();
        selection();
        QVERIFY(m_menu->isHidden());
        m_menu->setMode(1);
        QVERIFY2(m_menu->isHidden(), "the mode alone shows nothing");
        selection();
        QVERIFY(!m_menu->isHidden());
    }
    m_menu->hide();
    m_menu->slotKeySelectionChanged(2);
    m_menu->slotUpdateVantrixKey(plainKey(5));
    QVERIFY(m_menu->isHidden());
}

void tst_AssignMenuWid::comesBackAfterBeingHidden()
{
    m_menu->setMode(1);
    select(0, plainKey(4));
    m_menu->hide();
    select(1, plainKey(4));
    QVERIFY(m_menu->isVisible());
}

void tst_AssignMenuWid::clears()
{
    QSignalSpy assigned(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    m_menu->slotKeySelectionChanged(11);
    m_menu->slotDualActionSelected(dualKey(5, 6));
    button("m_clearKey")->click();
    QCOMPARE(assigned.count(), 1);
    QCOMPARE(recordAt(assigned, 0), plainKey(255));
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ff00ff00"));
    QCOMPARE(label("m_assignLab")->text(), QString("A"));
    QVERIFY(!label("m_dualActionLab")->isHidden());
}

void tst_AssignMenuWid::disables()
{
    QSignalSpy assigned(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    m_menu->slotKeySelectionChanged(11);
    m_menu->slotDualActionSelected(dualKey(5, 6));
    button("m_disableKey")->click();
    QCOMPARE(assigned.count(), 1);
    QCOMPARE(recordAt(assigned, 0), vantrix_key_mapping());
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ffff0000"));
    QCOMPARE(label("m_assignLab")->text(), QString("DISABLE"));
    QVERIFY(!label("m_dualActionLab")->isHidden());
}

void tst_AssignMenuWid::setsASheetOnlyWhenItChanges()
{
    select(0, plainKey(4));
    struct Counter : QObject
    {
        int count = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::StyleChange ? 1 : 0;
            return false;
        }
    } counter;
    label("m_keyLab")->installEventFilter(&counter);
    label("m_assignLab")->installEventFilter(&counter);
    select(1, plainKey(6));
    m_menu->slotUpdateVantrixKey(plainKey(5));
    QCOMPARE(counter.count, 0);
    m_menu->slotUpdateVantrixKey(plainKey(496));
    QVERIFY(counter.count > 0);
}

void tst_AssignMenuWid::takesTheSizeItIsGiven_data()
{
    QTest::addColumn<QRect>("place");
    QTest::newRow("784 x 808") << QRect(509, 444, 130, 261);
    QTest::newRow("1280 x 800") << QRect(832, 451, 213, 262);
    QTest::newRow("1920 x 1080") << QRect(1248, 617, 320, 360);
}

void tst_AssignMenuWid::takesTheSizeItIsGiven()
{
    QFETCH(QRect, place);
    m_menu->setMode(1);
    select(0, plainKey(4));
    m_menu->setGeometry(place);
    QCoreApplication::processEvents();
    QCOMPARE(m_menu->geometry(), place);
    for (const char *name :
         {"m_reassignKey", "m_controllerMode", "m_dualActionMode", "m_clearKey", "m_disableKey"}) {
        const QPushButton *const command = button(name);
        QVERIFY(m_menu->rect().contains(
            QRect(command->mapTo(m_menu.get(), QPoint()), command->size())));
        QVERIFY2(command->fontMetrics().horizontalAdvance(command->text()) <= command->width(),
                 name);
    }
    const QLabel *const key = label("m_keyLab");
    const auto fits = [key] {
        return key->fontMetrics().horizontalAdvance(key->text()) <= key->width() - 2;
    };
    QVERIFY(fits());
    m_menu->slotKeySelectionChanged(27);
    QVERIFY(fits());
    m_menu->slotKeySelectionChanged(0);
    m_menu->resize(place.width() - 20, place.height());
    QCoreApplication::processEvents();
    QVERIFY(fits());
}

void tst_AssignMenuWid::elidesToItsWidth()
{
    const QString name("Select all of the layers of the whole document");
    m_menu->setMode(1);
    m_menu->resize(200, 260);
    m_menu->slotApplicationAdvSelected(name);
    QCoreApplication::processEvents();
    QVERIFY(label("m_assignLab")->text().endsWith(QChar(0x2026)));
    QCOMPARE(label("m_assignLab")->toolTip(), name);
    m_menu->resize(1000, 260);
    QCoreApplication::processEvents();
    QCOMPARE(label("m_assignLab")->text(), name);
    QCOMPARE(label("m_assignLab")->toolTip(), QString());
}

void tst_AssignMenuWid::tabOrderFollowsReading()
{
    m_menu->setMode(1);
    select(0, plainKey(4));
    m_main->activateWindow();
    button("m_reassignKey")->setFocus();
    for (const char *next :
         {"m_controllerMode", "m_dualActionMode", "m_clearKey", "m_disableKey"}) {
        pressKey(m_main->focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_main->focusWidget()->objectName(), QString(next));
    }
}

VANTRIX_TEST_MAIN(tst_AssignMenuWid)
#include "tst_AssignMenuWid.moc"
