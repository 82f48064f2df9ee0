#include "MenuRig.h"
#include "support/TestMain.h"

class tst_AssignMenuDialog : public MenuRig
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void opensOnThePageOfTheState_data();
    void opensOnThePageOfTheState();
    void opensTheModes();
    void passesOnARecord();
    void passesOnADualAction();
    void passesOnTheEndOfADualAction();
    void passesOnAMacro();
    void passesOnAHotKey();
    void asksForANewMacro();
    void applyWithoutAPickLeavesALabelledKey();
    void applyWithoutAPickSendsARecordAgain();
    void aMacroPickIsTheKeysFunctionFromThenOn();
    void anAbandonedMacroIsNotChecked();
    void outlivesTheMainWidget();
    void dialogDiesWithTheMenu();
    void menuDestroyedWhileTheDialogIsOpen();
    void mainWidgetDestroyedWhileTheDialogIsOpen();
    void menuDestroyedByThePick();
    void worksWithoutAMainWidget();
};

void tst_AssignMenuDialog::opensOnThePageOfTheState_data()
{
    QTest::addColumn<int>("keyIdx");
    QTest::addColumn<vantrix_key_mapping>("key");
    QTest::addColumn<int>("page");
    QTest::newRow("keyboard") << 0 << plainKey(4) << 0;
    QTest::newRow("mouse") << 0 << plainKey(496) << 1;
    QTest::newRow("media") << 0 << plainKey(240) << 2;
    QTest::newRow("controller") << 0 << gameKey(462) << 4;
    QTest::newRow("presso") << 0 << plainKey(312) << 7;
    QTest::newRow("backlight") << 0 << plainKey(385) << 8;
    QTest::newRow("profile") << 0 << plainKey(1536) << 9;
    QTest::newRow("disabled") << 0 << plainKey(0) << 0;
    QTest::newRow("unassigned") << 0 << plainKey(255) << 0;
    QTest::newRow("upper") << 24 << plainKey(240) << 2;
}

void tst_AssignMenuDialog::opensOnThePageOfTheState()
{
    QFETCH(int, keyIdx);
    QFETCH(vantrix_key_mapping, key);
    QFETCH(int, page);
    select(keyIdx, key);
    applyAfter("m_reassignKey", [&](QObject *opened) {
        QCOMPARE(opened, dialog());
        QCOMPARE(child<QStackedWidget>(opened, "m_stacked")->currentIndex(), page);
        QCOMPARE(child<QLabel>(opened, "m_keyNo")->text(), QString(keyIdx == 24 ? "25" : "01"));
    });
}

void tst_AssignMenuDialog::opensTheModes()
{
    const auto pageIs = [](int page) {
        return [page](QObject *opened) {
            QCOMPARE(child<QStackedWidget>(opened, "m_stacked")->currentIndex(), page);
        };
    };
    select(0, plainKey(4));
    applyAfter("m_controllerMode", pageIs(4));
    applyAfter("m_dualActionMode", pageIs(6));
    m_menu->slotMacroSelected("M2");
    applyAfter("m_reassignKey", pageIs(3));
    m_menu->slotApplicationSelected(0, 1);
    applyAfter("m_reassignKey", pageIs(5));
    m_menu->slotDualActionSelected(dualKey(4, 5));
    applyAfter("m_reassignKey", pageIs(6));
}

void tst_AssignMenuDialog::passesOnARecord()
{
    QSignalSpy assigned(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    m_menu->slotKeySelectionChanged(0);
    m_menu->slotDualActionSelected(dualKey(4, 5));
    applyAfter("m_reassignKey", [](QObject *opened) {
        emit child<AdvAssignWid>(opened, "m_mouse")->sigKeyChanged(plainKey(496));
    });
    QCOMPARE(assigned.count(), 1);
    QCOMPARE(recordAt(assigned, 0), plainKey(496));
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#fff6941d"));
    QVERIFY(label("m_dualActionLab")->isHidden());
}

void tst_AssignMenuDialog::passesOnADualAction()
{
    QSignalSpy assigned(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    select(0, plainKey(4));
    applyAfter("m_dualActionMode", [](QObject *opened) {
        emit child<DualActionAdvWid>(opened, "m_dualAction")->sigDualActionChanged(dualKey(5, 6));
    });
    QCOMPARE(assigned.count(), 1);
    QCOMPARE(recordAt(assigned, 0), dualKey(5, 6));
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ff3cb878"));
    QCOMPARE(label("m_assignLab")->text(), QString("B"));
    QCOMPARE(label("m_dualActionLab")->text(), QString("C"));
    QVERIFY(!label("m_dualActionLab")->isHidden());
}

void tst_AssignMenuDialog::passesOnTheEndOfADualAction()
{
    QSignalSpy assigned(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    m_menu->slotKeySelectionChanged(11);
    m_menu->slotDualActionSelected(dualKey(5, 6));
    applyAfter("m_dualActionMode", [](QObject *opened) {
        emit child<DualActionAdvWid>(opened, "m_dualAction")->sigDualActionChanged(dualKey(0, 0));
    });
    QCOMPARE(assigned.count(), 1);
    QCOMPARE(recordAt(assigned, 0), plainKey(255));
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ff00ff00"));
    QCOMPARE(label("m_assignLab")->text(), QString("A"));
    QVERIFY(label("m_dualActionLab")->isHidden());
}

void tst_AssignMenuDialog::passesOnAMacro()
{
    QSignalSpy assigned(m_menu.get(), &AssignMenuWid::sigMacroAssigned);
    QSignalSpy record(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    m_menu->slotKeySelectionChanged(11);
    m_menu->slotDualActionSelected(dualKey(5, 6));
    applyAfter("m_reassignKey", [](QObject *opened) {
        emit child<MacroAdvWid>(opened, "m_macro")->sigMacroAssigned(true, "M3", "Jump", 2);
    });
    QCOMPARE(assigned.count(), 1);
    QCOMPARE(assigned.at(0), (QVariantList{true, "M3", "Jump", 2}));
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ffd50681"));
    QCOMPARE(label("m_assignLab")->text(), QString("M3"));
    QVERIFY(label("m_dualActionLab")->isHidden());

    applyAfter("m_reassignKey", [](QObject *opened) {
        emit child<MacroAdvWid>(opened, "m_macro")->sigMacroAssigned(false, "M3", "Jump", 2);
    });
    QCOMPARE(assigned.count(), 2);
    QCOMPARE(assigned.at(1), (QVariantList{false, "M3", "Jump", 2}));
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ff00ff00"));
    QCOMPARE(label("m_assignLab")->text(), QString("A"));
    QCOMPARE(record.count(), 0);
}

void tst_AssignMenuDialog::passesOnAHotKey()
{
    QSignalSpy assigned(m_menu.get(), &AssignMenuWid::sigApplicationAdvAssigned);
    QSignalSpy record(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    m_menu->slotKeySelectionChanged(11);
    m_menu->slotDualActionSelected(dualKey(5, 6));
    applyAfter("m_reassignKey", [](QObject *opened) {
        emit child<ApplicationAdvWid>(opened, "m_application")
            ->sigAppHotKeyChanged("CTRL+S", "Save");
    });
    QCOMPARE(assigned.count(), 1);
    QCOMPARE(assigned.at(0), (QVariantList{"CTRL+S", "Save"}));
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ffffff00"));
    QCOMPARE(label("m_assignLab")->text(), QString("Save"));
    QVERIFY(label("m_dualActionLab")->isHidden());

    applyAfter("m_reassignKey", [](QObject *opened) {
        emit child<ApplicationAdvWid>(opened, "m_application")->sigAppHotKeyChanged("", "");
    });
    QCOMPARE(assigned.count(), 2);
    QCOMPARE(assigned.at(1), (QVariantList{"", ""}));
    QCOMPARE(label("m_keyLab")->styleSheet(), frameOf("#ff00ff00"));
    QCOMPARE(label("m_assignLab")->text(), QString("A"));
    QCOMPARE(record.count(), 0);
}

void tst_AssignMenuDialog::asksForANewMacro()
{
    QSignalSpy asked(m_menu.get(), &AssignMenuWid::sigCreateMacro);
    emit child<MacroAdvWid>(dialog(), "m_macro")->sigCreateMacro();
    QCOMPARE(asked.count(), 1);
}

void tst_AssignMenuDialog::applyWithoutAPickLeavesALabelledKey()
{
    QSignalSpy record(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    QSignalSpy macro(m_menu.get(), &AssignMenuWid::sigMacroAssigned);
    QSignalSpy hotKey(m_menu.get(), &AssignMenuWid::sigApplicationAdvAssigned);
    vantrix_key_mapping labelled = clearedKey();
    labelled.type = 1;
    const auto nothing = [](QObject *) {
    };

    select(0, labelled);
    m_menu->slotMacroSelected("M1");
    for (const char *command : {"m_reassignKey", "m_controllerMode", "m_dualActionMode"})
        applyAfter(command, nothing);
    select(1, labelled);
    m_menu->slotApplicationAdvSelected("Copy");
    applyAfter("m_reassignKey", nothing);
    select(2, labelled);
    m_menu->slotApplicationSelected(1, 1);
    applyAfter("m_reassignKey", nothing);
    QCOMPARE(record.count() + macro.count() + hotKey.count(), 0);
}

void tst_AssignMenuDialog::applyWithoutAPickSendsARecordAgain()
{
    QSignalSpy record(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    const auto nothing = [](QObject *) {
    };
    const QVector<vantrix_key_mapping> keys = {plainKey(4), plainKey(0), plainKey(255),
                                               gameKey(462)};
    for (const vantrix_key_mapping &key : keys) {
        select(0, key);
        applyAfter("m_reassignKey", nothing);
        QCOMPARE(recordAt(record, record.count() - 1), key);
    }
    m_menu->slotDualActionSelected(dualKey(4, 5));
    applyAfter("m_reassignKey", nothing);
    QCOMPARE(record.count(), 5);
    QCOMPARE(recordAt(record, 4), dualKey(4, 5));
}

void tst_AssignMenuDialog::aMacroPickIsTheKeysFunctionFromThenOn()
{
    QSignalSpy record(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned);
    select(0, plainKey(4));
    applyAfter("m_reassignKey", [](QObject *opened) {
        emit child<MacroAdvWid>(opened, "m_macro")->sigMacroAssigned(true, "M1", "Jump", -1);
    });
    applyAfter("m_reassignKey", [](QObject *) {});
    applyAfter("m_reassignKey", [](QObject *opened) {
        emit child<ApplicationAdvWid>(opened, "m_application")->sigAppHotKeyChanged("F1", "Help");
    });
    applyAfter("m_reassignKey", [](QObject *) {});
    QCOMPARE(record.count(), 0);
}

void tst_AssignMenuDialog::anAbandonedMacroIsNotChecked()
{
    const auto macroButton = [](const QObject *opened, const QString &name) {
        for (QPushButton *button :
             child<MacroAdvWid>(opened, "m_macro")->findChildren<QPushButton *>()) {
            if (button->text() == name)
                return button;
        }
        return static_cast<QPushButton *>(nullptr);
    };
    vantrix_key_mapping labelled = clearedKey();
    labelled.type = 1;
    m_menu->addKeyAssignMacro("Jump");
    m_menu->addKeyAssignMacro("Run");
    select(0, labelled);
    m_menu->slotMacroSelected("M1");
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        macroButton(prompt.dialog, "Run")->click();
        child<QPushButton>(prompt.dialog, "m_cancel")->click();
        return QVariant(0);
    });
    button("m_reassignKey")->click();
    const auto onlyChecked = [&](const char *name) {
        return [=](QObject *opened) {
            for (const char *each : {"Jump", "Run"})
                QCOMPARE(macroButton(opened, each)->isChecked(), QString(each) == name);
        };
    };
    applyAfter("m_reassignKey", onlyChecked("Jump"));
    applyAfter("m_controllerMode", onlyChecked("Jump"));
    select(1, labelled);
    m_menu->slotApplicationAdvSelected("Copy");
    applyAfter("m_reassignKey", onlyChecked("none"));
    m_menu->slotMacroSelected("M1");
    m_menu->slotApplicationSelected(0, 3);
    applyAfter("m_reassignKey", onlyChecked("none"));
}

void tst_AssignMenuDialog::outlivesTheMainWidget()
{
    m_menu->setParent(nullptr);
    m_menu->setMode(1);
    m_main.reset();
    m_menu->setProfile(1, 2);
    m_menu->addKeyAssignMacro("a");
    m_menu->renameKeyAssignMacro("a", "b");
    m_menu->delKeyAssignMacro("b");
    select(0, plainKey(4));
    m_menu->slotMacroSelected("M1");
    button("m_reassignKey")->click();
    QCOMPARE(label("m_assignLab")->text(), QString("M1"));
}

void tst_AssignMenuDialog::dialogDiesWithTheMenu()
{
    const QPointer<ReassignDlg> opened = dialog();
    QVERIFY(opened);
    m_menu.reset();
    QVERIFY(!opened);
}

void tst_AssignMenuDialog::menuDestroyedWhileTheDialogIsOpen()
{
    QTimer::singleShot(0, this, [this] {
        QVERIFY(dialog()->isVisible());
        m_menu.reset();
    });
    button("m_reassignKey")->click();
    QVERIFY(!m_menu);
}

void tst_AssignMenuDialog::mainWidgetDestroyedWhileTheDialogIsOpen()
{
    m_menu.release();
    QTimer::singleShot(0, this, [this] { m_main.reset(); });
    child<QPushButton>(m_main.get(), "m_reassignKey")->click();
    QVERIFY(!m_main);
}

void tst_AssignMenuDialog::menuDestroyedByThePick()
{
    connect(m_menu.get(), &AssignMenuWid::sigVantrixKeyAssigned, this, [this] { m_menu.reset(); });
    select(0, plainKey(4));
    QTimer::singleShot(0, this, [this] { child<QPushButton>(dialog(), "m_apply")->click(); });
    button("m_reassignKey")->click();
    QVERIFY(!m_menu);
}

void tst_AssignMenuDialog::worksWithoutAMainWidget()
{
    m_environment->mainWidget = nullptr;
    m_menu = std::make_unique<AssignMenuWid>();
    int opened = 0;
    Modal::setAnswerer([&](const ModalPrompt &prompt) {
        opened += prompt.dialog ? 1 : 0;
        return QVariant(0);
    });
    button("m_reassignKey")->click();
    QCOMPARE(opened, 1);
}

VANTRIX_TEST_MAIN(tst_AssignMenuDialog)
#include "tst_AssignMenuDialog.moc"
