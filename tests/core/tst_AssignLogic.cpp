#include "core/BoardFixture.h"
#include "support/TestMain.h"

#include <cstring>
#include <memory>

/// What an assignment means on the board and in the store, and in which order.
class tst_AssignLogic : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init() { m = std::make_unique<BoardFixture>(); }
    void cleanup() { m.reset(); }

    void noKeySelected_data();
    void noKeySelected();
    void plain();
    void plainTypes_data();
    void plainTypes();
    void clearingKey21();
    void extendedCode();
    void meridianCode();
    void powerModeCode();
    void application();
    void directApplicationFunction();
    void clearingAnApplication();
    void applicationAtTheLimit();
    void missingPath_data();
    void missingPath();
    void hotKey();
    void clearingAHotKey();
    void hotKeyAtTheLimit();
    void namedMacro();
    void shortcut();
    void takingAMacroOff();
    void macroAtTheLimit();
    void assignedKey();
    void renameMacro();
    void removeMacro();
    void shortcuts();
    void shortcutsStopAtAnUnknownKey();
    void labelCheck();
    void labelCheckAfterAFailedRead();
    void labelCheckSparesExtendedCodes();
    void refusedPickIsTakenBack_data();
    void refusedPickIsTakenBack();
    void isStoredBeforeItIsTold();

    void stagingBacksUp();
    void stagingAgainKeepsTheFirstBackup();
    void stagingNothingClears();
    void depthOfAnAppliedKey();
    void depthOfAStagedKey();
    void depthOfAPlainKey();
    void applyStoresAllStaged();
    void backRestoresAll();
    void backAfterAFailedRead();
    void backWithNoEntries();
    void renamedMacroComesBackRenamed();
    void renumberedLabelsComeBackRenumbered();
    void newerAssignmentEndsTheEdit_data();
    void newerAssignmentEndsTheEdit();
    void stagedKeyIsAnnouncedAsStaged();
    void anotherProfileEndsTheEdit();

    void keyboardPreset();
    void extendedCodesOfPreset2();
    void gamePreset();
    void appPreset();
    void samePresetAgainStylesNothing();
    void otherPresets_data();
    void otherPresets();

    void showProfile();
    void showProfileWritesNothing();
    void showProfileAfterAFailedRead();
    void profileSwitchStylesWhatChanged();
    void anyBytes();

private:
    vantrix_key_mapping staged(ushort code, ushort second, uchar depth)
    {
        vantrix_key_mapping key = plainKey(code);
        key.digital = {code, second, 0, depth};
        return key;
    }

    std::unique_ptr<BoardFixture> m;
};

void tst_AssignLogic::noKeySelected_data()
{
    QTest::addColumn<int>("slot");
    for (int slot = 0; slot < 6; ++slot)
        QTest::addRow("slot %d", slot) << slot;
}

void tst_AssignLogic::noKeySelected()
{
    QFETCH(int, slot);
    m->key(3)->setChecked(true);
    m->store.clearLog();
    switch (slot) {
    case 0:
        m->board.slotVantrixKeyAssigned(plainKey(5));
        break;
    case 1:
        m->board.slotApplicationAssigned(0, 1);
        break;
    case 2:
        m->board.slotApplicationAdvAssigned("CTRL+S", "Save");
        break;
    case 3:
        m->board.slotMacroAssigned(true, "M1", "one");
        break;
    case 4:
        m->board.slotDualActionAssigned(staged(4, 5, 50));
        break;
    default:
        m->board.slotDualActionDepthChanged(60);
        break;
    }
    QCOMPARE(m->calls(), QStringList({"getCurrentKey"}));
    QVERIFY(!m->key(3)->isChecked());
}

void tst_AssignLogic::plain()
{
    m->select(7);
    QSignalSpy told(&m->board, &AssignWid::sigUpdateVantrixKey);
    m->board.slotVantrixKeyAssigned(plainKey(5));
    QCOMPARE(m->calls(), QStringList{"getCurrentKey"} + extrasCleared(7) +
                             QStringList({"setKeyMapping 7", "setProfileDirty 1"}));
    QCOMPARE(m->stored(7), plainKey(5));
    QCOMPARE(m->key(7)->mapping(), plainKey(5));
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.at(0).at(0).value<vantrix_key_mapping>(), plainKey(5));
}

void tst_AssignLogic::plainTypes_data()
{
    QTest::addColumn<vantrix_key_mapping>("given");
    QTest::addColumn<vantrix_key_mapping>("kept");
    QTest::newRow("plain") << plainKey(5) << plainKey(5);
    QTest::newRow("disabled") << plainKey(0) << plainKey(0);
    QTest::newRow("game") << gameKey(474) << gameKey(474);
    QTest::newRow("dual") << dualKey(4, 5, 0, 30) << dualKey(4, 5, 0, 30);
    QTest::newRow("dual without a first action") << dualKey(0, 5, 0, 30) << plainKey(255);
}

void tst_AssignLogic::plainTypes()
{
    QFETCH(vantrix_key_mapping, given);
    QFETCH(vantrix_key_mapping, kept);
    m->select(7);
    m->board.slotVantrixKeyAssigned(given);
    QCOMPARE(m->stored(7), kept);
    QCOMPARE(m->key(7)->mapping(), kept);
}

void tst_AssignLogic::clearingKey21()
{
    m->select(21);
    m->board.slotVantrixKeyAssigned(plainKey(255));
    QCOMPARE(m->stored(21), plainKey(385));
    QCOMPARE(m->key(21)->mapping(), plainKey(385));
    m->board.slotVantrixKeyAssigned(gameKey(474));
    QCOMPARE(m->stored(21), gameKey(474));
}

void tst_AssignLogic::extendedCode()
{
    m->select(7);
    m->board.slotVantrixKeyAssigned(plainKey(2816));
    QCOMPARE(m->writes(), extrasCleared(7) + QStringList({"setExtendedKey 7", "setKeyMapping 7",
                                                          "setProfileDirty 1"}));
    QCOMPARE(m->stored(7), plainKey(255));
    QCOMPARE(ushort(m->profile().extended[7].code), ushort(2816));
    QCOMPARE(m->key(7)->mapping(), plainKey(2816));
    m->board.showProfile(7, 3);
    QCOMPARE(m->key(7)->mapping(), plainKey(2816));
    m->key(7)->click();
    m->board.slotVantrixKeyAssigned(plainKey(5));
    QCOMPARE(m->profile().extended.size(), std::size_t(0));
}

void tst_AssignLogic::meridianCode()
{
    QStringList told;
    connect(&m->board, &AssignWid::sigMeridianKeyInfo, this, [&](QString &info, int key) {
        told << QString("info %1").arg(key);
        QVERIFY(info.isEmpty());
        info = "NORTH";
    });
    connect(&m->board, &AssignWid::deleteMeridianKey, this,
            [&](int key) { told << QString("delete %1").arg(key); });
    m->select(11); // emits A, whose scan code is 30
    m->board.slotVantrixKeyAssigned(plainKey(0xC5));
    QCOMPARE(told, QStringList({"info 30"}));
    QCOMPARE(m->key(11)->text(), QString("NORTH"));
    m->board.slotVantrixKeyAssigned(plainKey(0xC5));
    QCOMPARE(told, QStringList({"info 30", "delete 30", "info 30"}));
    told.clear();
    m->board.slotVantrixKeyAssigned(plainKey(5));
    QCOMPARE(told, QStringList({"delete 30"}));
    QCOMPARE(m->key(11)->text(), QString("B"));
    // The light key has no scan code of its own.
    m->key(21)->click();
    told.clear();
    m->board.slotVantrixKeyAssigned(plainKey(0xC5));
    QCOMPARE(told, QStringList({"info 0"}));
}

void tst_AssignLogic::powerModeCode()
{
    QStringList told;
    connect(&m->board, &AssignWid::deletePowerModeKey, this,
            [&](int key) { told << QString::number(key); });
    m->select(11);
    for (const ushort code : {0xC1, 0xC1, 0xC4, 0xC5, 5})
        m->board.slotVantrixKeyAssigned(plainKey(code));
    // From 0xC1 to itself nothing is told; to 0xC4 and away from it, it is.
    QCOMPARE(told, QStringList({"30", "30"}));
}

void tst_AssignLogic::application()
{
    m->select(7);
    m->board.slotApplicationAssigned(1, 3);
    QCOMPARE(m->calls(), QStringList({"getCurrentKey", "canAddMacroAssign"}) + extrasCleared(7) +
                             QStringList({"setKeyMapping 7", "setProfileDirty 1", "setAppAssign 7",
                                          "setProfileDirty 1"}));
    QCOMPARE(m->stored(7), plainKey(255));
    const vantrix_app_assign assign = m->profile().apps.at(7);
    QCOMPARE(int(assign.appType), 1);
    QCOMPARE(int(assign.funcId), 3);
    QCOMPARE(ushort(assign.macro.code), ushort(0x1A));
    QCOMPARE(int(m->key(7)->mapping().type), 1);
    QVERIFY(m->warnings.isEmpty());
}

void tst_AssignLogic::directApplicationFunction()
{
    m->select(7);
    m->board.slotApplicationAssigned(0, 4);
    QCOMPARE(m->writes(), extrasCleared(7) + QStringList({"setKeyMapping 7", "setProfileDirty 1",
                                                          "setKeyMapping 7", "setAppAssign 7",
                                                          "setProfileDirty 1"}));
    const vantrix_app_assign assign = m->profile().apps.at(7);
    QCOMPARE(ushort(assign.macro.code), ushort(0));
    QCOMPARE(m->stored(7), plainKey(assign.macro.events[0].code));
}

void tst_AssignLogic::clearingAnApplication()
{
    m->select(7);
    m->board.slotApplicationAssigned(1, 3);
    m->store.canAddMacro = false;
    m->store.clearLog();
    m->board.slotApplicationAssigned(-1, -1);
    QCOMPARE(m->calls(), QStringList{"getCurrentKey"} + extrasCleared(7) +
                             QStringList({"setKeyMapping 7", "setProfileDirty 1"}));
    QCOMPARE(m->key(7)->mapping(), plainKey(255));
    QVERIFY(m->warnings.isEmpty());
}

void tst_AssignLogic::applicationAtTheLimit()
{
    m->select(7);
    m->board.slotVantrixKeyAssigned(plainKey(5));
    m->store.canAddMacro = false;
    m->store.clearLog();
    m->board.slotApplicationAssigned(1, 3);
    QCOMPARE(m->writes(), QStringList());
    QCOMPARE(m->warnings, QStringList({"warning|Macro assign has reached maximum limit"}));
    QCOMPARE(m->key(7)->mapping(), plainKey(5));
}

void tst_AssignLogic::missingPath_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("function");
    QTest::addColumn<QString>("name");
    QTest::newRow("photoshop") << 0 << 11 << "PHOTOSHOP";
    QTest::newRow("premiere") << 1 << 6 << "PREMIERE PRO";
    QTest::newRow("illustrator") << 2 << 10 << "ILLUSTRATOR";
}

void tst_AssignLogic::missingPath()
{
    QFETCH(int, type);
    QFETCH(int, function);
    QFETCH(QString, name);
    m->select(7);
    m->board.slotApplicationAssigned(type, function);
    QCOMPARE(m->warnings, QStringList({"warning|Fail to find the path of the program.\r\n"
                                       "Please assign it manually:" +
                                       name}));
    QCOMPARE(int(m->profile().apps.at(7).funcId), function);
    m->store.setAppPath(type, "there.exe");
    m->board.slotApplicationAssigned(type, function);
    QCOMPARE(m->warnings.size(), 1);
}

void tst_AssignLogic::hotKey()
{
    m->select(7);
    m->board.slotApplicationAdvAssigned("CTRL+S", "Save");
    QCOMPARE(m->calls(), QStringList({"getCurrentKey", "canAddMacroAssign"}) + extrasCleared(7) +
                             QStringList({"setKeyMapping 7", "setProfileDirty 1",
                                          "setHotKeyAssign 7", "setProfileDirty 1"}));
    QCOMPARE(m->profile().hotKeys.at(7), (vantrix_hotkey_assign{0, "CTRL+S", "Save"}));
    QCOMPARE(m->stored(7), plainKey(255));
    QCOMPARE(m->key(7)->text(), QString("Save"));
}

void tst_AssignLogic::clearingAHotKey()
{
    m->select(7);
    m->store.canAddMacro = false;
    m->board.slotApplicationAdvAssigned("CTRL+S", "");
    QCOMPARE(m->writes(), extrasCleared(7) + QStringList({"setKeyMapping 7", "setProfileDirty 1"}));
    QVERIFY(m->warnings.isEmpty());
}

void tst_AssignLogic::hotKeyAtTheLimit()
{
    m->select(7);
    m->store.canAddMacro = false;
    m->board.slotApplicationAdvAssigned("CTRL+S", "Save");
    QCOMPARE(m->writes(), QStringList());
    QCOMPARE(m->warnings.size(), 1);
}

void tst_AssignLogic::namedMacro()
{
    m->select(7);
    m->board.slotMacroAssigned(true, "M3", QString::fromUtf8("Größe"));
    QCOMPARE(m->calls(), QStringList({"getCurrentKey", "canAddMacroAssign"}) + extrasCleared(7) +
                             QStringList({"setKeyMapping 7", "setProfileDirty 1",
                                          QString::fromUtf8("setNamedMacroKey Größe 7")}));
    QCOMPARE(m->key(7)->text(), QString("M3"));
    QCOMPARE(m->key(7)->toolTip(), QString::fromUtf8("Größe"));
    QCOMPARE(m->stored(7), plainKey(255));
}

void tst_AssignLogic::shortcut()
{
    m->select(7);
    m->board.slotMacroAssigned(true, "M8", "Copy", 5);
    QCOMPARE(m->writes(), extrasCleared(7) + QStringList({"setKeyMapping 7", "setProfileDirty 1",
                                                          "setShortcutAssign 7 5"}));
    m->board.slotMacroAssigned(true, "M3", "Zero", 0);
    QCOMPARE(int(m->profile().shortcuts.at(7)), 0);
    QVERIFY(m->profile().macros.empty());
}

void tst_AssignLogic::takingAMacroOff()
{
    m->select(7);
    m->board.slotMacroAssigned(true, "M3", "three");
    m->store.canAddMacro = false;
    m->store.clearLog();
    m->board.slotMacroAssigned(false, "M3", "three");
    QCOMPARE(m->writes(), extrasCleared(7) + QStringList({"setKeyMapping 7", "setProfileDirty 1"}));
    QVERIFY(m->profile().macros.empty());
    QCOMPARE(m->key(7)->mapping(), plainKey(255));
}

void tst_AssignLogic::macroAtTheLimit()
{
    m->select(7);
    m->store.canAddMacro = false;
    m->board.slotMacroAssigned(true, "M3", "three");
    QCOMPARE(m->writes(), QStringList());
    QCOMPARE(m->warnings, QStringList({"warning|Macro assign has reached maximum limit"}));
}

void tst_AssignLogic::assignedKey()
{
    m->select(7);
    QSignalSpy told(&m->board, &AssignWid::sigMacroSelected);
    m->board.slotAssignedKey("M3", "three", {{2, 0}, {7, 0}, {99, 0}});
    QCOMPARE(m->writes(), QStringList());
    QCOMPARE(m->key(2)->text(), QString("M3"));
    QCOMPARE(m->key(7)->toolTip(), QString("three"));
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.at(0).at(0).toString(), QString("M3"));
}

void tst_AssignLogic::renameMacro()
{
    m->board.slotAssignedKey("M3", "three", {{2, 0}, {7, 0}});
    m->board.slotAssignedKey("M4", "four", {{9, 0}});
    m->store.clearLog();
    m->board.slotRenameMacro("M3", "drei");
    QCOMPARE(m->key(2)->toolTip(), QString("drei"));
    QCOMPARE(m->key(7)->toolTip(), QString("drei"));
    QCOMPARE(m->key(9)->toolTip(), QString("four"));
    QCOMPARE(m->calls(), QStringList());
}

void tst_AssignLogic::removeMacro()
{
    m->profile().macros = {{2, "three"}, {7, "three"}, {9, "four"}};
    m->board.slotAssignedKey("M3", "three", {{2, 0}, {7, 0}});
    m->store.clearLog();
    m->board.removeMacro("three");
    QCOMPARE(m->calls(),
             QStringList({"getKeysOfMacro three", "setKeyMapping 2", "setProfileDirty 1",
                          "setKeyMapping 7", "setProfileDirty 1"}));
    QCOMPARE(m->key(2)->mapping(), plainKey(255));
}

void tst_AssignLogic::shortcuts()
{
    m->profile().shortcuts = {{2, 0}, {7, 16}};
    m->store.shortcutBase = 4;
    m->select(7);
    QSignalSpy told(&m->board, &AssignWid::sigMacroSelected);
    m->board.slotUpdateWinShortcutKeys();
    QCOMPARE(m->calls().filter("Shortcut"), QStringList({"getShortcutAssigns", "getShortcutBase"}));
    QCOMPARE(m->key(2)->text(), QString("M5"));
    QCOMPARE(m->key(7)->text(), QString("M21"));
    QVERIFY(!m->key(7)->toolTip().isEmpty());
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.at(0).at(0).toString(), QString("M21"));
    QCOMPARE(m->writes(), QStringList());
}

void tst_AssignLogic::shortcutsStopAtAnUnknownKey()
{
    m->profile().shortcuts = {{2, 0}, {77, 1}, {200, 2}};
    m->board.slotUpdateWinShortcutKeys();
    QCOMPARE(m->key(2)->text(), QString("M1"));
}

void tst_AssignLogic::labelCheck()
{
    auto &profile = m->profile();
    profile.apps[1] = {0, 3, {}};
    profile.hotKeys[2] = {0, "F1", "Help"};
    profile.shortcuts[3] = 4;
    profile.extended[4].code = 2816;
    profile.keys[6] = dualKey(4, 5, 0, 50);
    m->board.showProfile(7, 3);
    m->board.slotAssignedKey("M3", "three", {{5, 0}});
    profile.hotKeys.clear();
    m->store.clearLog();
    m->board.checkLabels();
    QCOMPARE(m->calls(), QStringList({"getAppAssigns", "getHotKeyAssigns", "getShortcutAssigns",
                                      "getExtendedKeys", "setKeyMapping 2", "setProfileDirty 1",
                                      "setKeyMapping 5", "setProfileDirty 1"}));
    QCOMPARE(m->key(2)->mapping(), plainKey(255));
    QCOMPARE(m->key(5)->mapping(), plainKey(255));
    QCOMPARE(int(m->key(1)->mapping().type), 1);
    QCOMPARE(int(m->key(3)->mapping().type), 1);
}

void tst_AssignLogic::labelCheckAfterAFailedRead()
{
    m->board.slotAssignedKey("M3", "three", {{5, 0}});
    m->store.readsFail = true;
    m->board.checkLabels();
    QCOMPARE(m->writes(), QStringList());
    QCOMPARE(m->key(5)->text(), QString("M3"));
}

// Dual actions in edit

void tst_AssignLogic::labelCheckSparesExtendedCodes()
{
    m->profile().extended[7].code = 2816;
    m->board.slotAssignedKey("M3", "three", {{7, 0}, {8, 0}});
    m->store.clearLog();
    m->board.checkLabels();
    QCOMPARE(m->writes(), QStringList({"setKeyMapping 8", "setProfileDirty 1"}));
    QCOMPARE(m->key(7)->text(), QString("M3"));
}

void tst_AssignLogic::refusedPickIsTakenBack_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("announced");
    QTest::newRow("macro list") << 0 << 3 << 0;
    QTest::newRow("application panel") << 0 << 5 << 1;
    QTest::newRow("dialog") << 1 << 3 << 1;
}

void tst_AssignLogic::refusedPickIsTakenBack()
{
    QFETCH(int, mode);
    QFETCH(int, input);
    QFETCH(int, announced);
    m->profile().keys[7] = plainKey(9);
    m->board.showProfile(7, 3);
    m->select(7);
    m->profile().mode = mode;
    m->profile().input = input;
    m->store.canAddMacro = false;
    QSignalSpy told(&m->board, &AssignWid::sigVantrixKeySelected);
    if (input == 5)
        m->board.slotApplicationAssigned(0, 3);
    else
        m->board.slotMacroAssigned(true, "M3", "three");
    QCOMPARE(m->warnings.size(), 1);
    QCOMPARE(m->writes(), QStringList());
    QCOMPARE(told.count(), announced);
    if (announced == 1)
        QCOMPARE(told.at(0).at(0).value<vantrix_key_mapping>(), plainKey(9));
}

void tst_AssignLogic::isStoredBeforeItIsTold()
{
    m->select(7);
    vantrix_key_mapping stored;
    connect(&m->board, &AssignWid::sigUpdateVantrixKey, this, [&] { stored = m->stored(7); });
    m->board.slotVantrixKeyAssigned(plainKey(5));
    QCOMPARE(stored, plainKey(5));
}

void tst_AssignLogic::stagingBacksUp()
{
    m->select(7);
    m->board.slotDualActionAssigned(staged(5, 6, 40));
    QCOMPARE(m->calls(), QStringList({"getCurrentKey", "setProfileDirty 1"}));
    QCOMPARE(m->stored(7), plainKey(255));
    QCOMPARE(m->key(7)->mapping(), staged(5, 6, 40));
}

void tst_AssignLogic::stagingAgainKeepsTheFirstBackup()
{
    m->profile().keys[7] = plainKey(9);
    m->board.showProfile(7, 3);
    m->key(7)->click();
    m->board.slotDualActionAssigned(staged(5, 6, 40));
    m->board.slotDualActionAssigned(staged(8, 6, 40));
    m->board.slotDualActionBack();
    QCOMPARE(m->key(7)->mapping(), plainKey(9));
}

void tst_AssignLogic::stagingNothingClears()
{
    m->select(7);
    m->board.slotDualActionAssigned(staged(5, 6, 40));
    m->store.clearLog();
    m->board.slotDualActionAssigned(staged(0, 6, 40));
    QCOMPARE(m->calls(), QStringList{"getCurrentKey"} + extrasCleared(7) +
                             QStringList({"setKeyMapping 7", "setProfileDirty 1"}));
    m->store.clearLog();
    m->board.slotDualActionApply();
    QCOMPARE(m->writes(), QStringList());
}

void tst_AssignLogic::depthOfAnAppliedKey()
{
    m->profile().keys[7] = dualKey(4, 5, 0, 50);
    m->board.showProfile(7, 3);
    m->select(7);
    QSignalSpy told(&m->board, &AssignWid::sigDualActionSelectedToAdv);
    m->board.slotDualActionDepthChanged(70);
    QCOMPARE(m->calls(), QStringList({"getCurrentKey", "setKeyMapping 7", "setProfileDirty 1"}));
    QCOMPARE(m->stored(7), dualKey(4, 5, 0, 70));
    QCOMPARE(m->key(7)->text(), QString("70%"));
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.at(0).at(0).value<vantrix_key_mapping>(), dualKey(4, 5, 0, 70));
}

void tst_AssignLogic::depthOfAStagedKey()
{
    m->select(7);
    m->board.slotDualActionAssigned(staged(5, 6, 40));
    m->store.clearLog();
    m->board.slotDualActionDepthChanged(80);
    QCOMPARE(m->writes(), QStringList());
    m->board.slotDualActionApply();
    QCOMPARE(int(m->stored(7).digital.depth), 80);
}

void tst_AssignLogic::depthOfAPlainKey()
{
    m->select(7);
    m->board.slotDualActionDepthChanged(80);
    QCOMPARE(m->writes(), QStringList());
    m->board.slotDualActionApply();
    QCOMPARE(m->writes(), QStringList());
}

void tst_AssignLogic::applyStoresAllStaged()
{
    m->profile().apps[3] = {0, 3, {}};
    m->board.showProfile(7, 3);
    m->key(3)->click();
    m->board.slotDualActionAssigned(staged(5, 6, 40));
    m->key(7)->click();
    m->board.slotDualActionAssigned(staged(8, 9, 60));
    m->store.clearLog();
    QSignalSpy told(&m->board, &AssignWid::sigDualActionSelectedToAdv);
    m->board.slotDualActionApply();
    QCOMPARE(m->writes(), extrasCleared(3) + QStringList{"setKeyMapping 3"} + extrasCleared(7) +
                              QStringList{"setKeyMapping 7"});
    vantrix_key_mapping expected = staged(8, 9, 60);
    expected.type = 3;
    QCOMPARE(m->stored(7), expected);
    QVERIFY(m->profile().apps.empty());
    QCOMPARE(m->key(3)->text(), QString("40%"));
    QCOMPARE(m->key(7)->text(), QString("60%"));
    QCOMPARE(told.count(), 1);
    // The entries stay, the backups are gone.
    m->board.slotDualActionBack();
    QCOMPARE(m->key(7)->text(), QString("60%"));
}

void tst_AssignLogic::backRestoresAll()
{
    auto &profile = m->profile();
    profile.keys[0] = plainKey(9);
    profile.keys[1] = plainKey(244);
    profile.keys[2] = gameKey(474);
    profile.keys[3] = dualKey(4, 5, 0, 30);
    profile.apps[4] = {1, 3, {}};
    profile.hotKeys[5] = {0, "CTRL+S", "Save"};
    profile.extended[7].code = 2816;
    m->board.showProfile(7, 3);
    m->board.slotAssignedKey("M3", "three", {{6, 0}});
    struct Face
    {
        QString text, toolTip, sheet;
        vantrix_key_mapping record;
        bool hasIcon;
    };
    const auto face = [this](int index) {
        const VantrixKey *const key = m->key(index);
        return Face{key->text(), key->toolTip(), key->styleSheet(), key->mapping(),
                    !key->icon().isNull()};
    };
    std::vector<Face> before;
    for (int index = 0; index < 8; ++index)
        before.push_back(face(index));
    m->store.clearLog();
    for (int index = 0; index < 8; ++index) {
        m->key(index)->click();
        m->board.slotDualActionAssigned(staged(ushort(20 + index), 6, 40));
    }
    QCOMPARE(m->writes().filter("setKeyMapping"), QStringList());
    m->board.slotDualActionBack();
    for (int index = 0; index < 8; ++index) {
        const Face now = face(index);
        const Face &then = before[std::size_t(index)];
        QCOMPARE(now.text, then.text);
        QCOMPARE(now.toolTip, then.toolTip);
        QCOMPARE(now.sheet, then.sheet);
        QCOMPARE(now.record, then.record);
        QCOMPARE(now.hasIcon, then.hasIcon);
    }
}

void tst_AssignLogic::backAfterAFailedRead()
{
    m->select(7);
    m->board.slotDualActionAssigned(staged(5, 6, 40));
    m->store.readsFail = true;
    m->board.slotDualActionBack();
    QCOMPARE(m->key(7)->mapping(), staged(5, 6, 40));
    m->store.readsFail = false;
    m->board.slotDualActionBack();
    QCOMPARE(m->key(7)->mapping(), plainKey(255));
}

void tst_AssignLogic::backWithNoEntries()
{
    m->profile().keys[7] = dualKey(4, 5, 0, 30);
    m->board.showProfile(7, 3);
    m->key(7)->click();
    m->board.slotDualActionDepthChanged(70); // an entry without a backup
    m->store.clearLog();
    m->board.slotDualActionBack();
    QCOMPARE(m->calls(), QStringList({"getAppAssigns"}));
    QCOMPARE(m->key(7)->text(), QString("70%"));
    m->board.slotDualActionApply();
    QCOMPARE(m->writes(), QStringList());
}

void tst_AssignLogic::newerAssignmentEndsTheEdit_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<bool>("isApplyFirst");
    for (int slot = 0; slot < 5; ++slot) {
        QTest::addRow("slot %d, back first", slot) << slot << false;
        QTest::addRow("slot %d, apply first", slot) << slot << true;
    }
}

void tst_AssignLogic::newerAssignmentEndsTheEdit()
{
    QFETCH(int, slot);
    QFETCH(bool, isApplyFirst);
    m->select(7);
    m->board.slotDualActionAssigned(staged(5, 6, 40));
    m->board.slotDualActionApply();
    m->board.slotDualActionAssigned(staged(8, 6, 40));
    switch (slot) {
    case 0:
        m->board.slotVantrixKeyAssigned(plainKey(9));
        break;
    case 1:
        m->board.slotApplicationAssigned(0, 1);
        break;
    case 2:
        m->board.slotApplicationAdvAssigned("CTRL+S", "Save");
        break;
    case 3:
        m->board.slotMacroAssigned(true, "M1", "one");
        break;
    default:
        m->board.applyPreset(0, 1);
        break;
    }
    const QString text = m->key(7)->text();
    const vantrix_key_mapping record = m->key(7)->mapping();
    m->store.clearLog();
    if (isApplyFirst)
        m->board.slotDualActionApply();
    m->board.slotDualActionBack();
    m->board.slotDualActionApply();
    QCOMPARE(m->key(7)->text(), text);
    QCOMPARE(m->key(7)->mapping(), record);
    QCOMPARE(m->writes(), QStringList());
}

void tst_AssignLogic::stagedKeyIsAnnouncedAsStaged()
{
    m->profile().apps[7] = {0, 3, {}};
    m->board.showProfile(7, 3);
    m->key(7)->click();
    m->board.slotDualActionAssigned(staged(5, 481, 40));
    m->key(7)->click();
    QSignalSpy record(&m->board, &AssignWid::sigVantrixKeySelected);
    QSignalSpy app(&m->board, &AssignWid::sigApplicationSelected);
    QSignalSpy dual(&m->board, &AssignWid::sigDualActionSelected);
    QSignalSpy hotKey(&m->board, &AssignWid::sigApplicationAdvSelected);
    m->profile().hotKeys[7] = {0, "CTRL+S", "Save"};
    m->key(7)->click();
    QCOMPARE(hotKey.count(), 0);
    QCOMPARE(int(record.at(0).at(0).value<vantrix_key_mapping>().type), 3);
    QCOMPARE(app.count(), 0);
    QCOMPARE(dual.count(), 1);
    QCOMPARE(dual.at(0).at(0).toInt(), 0);
    QCOMPARE(dual.at(0).at(1).toInt(), 1);
    QCOMPARE(dual.at(0).at(2).value<vantrix_presso_digital>(), staged(5, 481, 40).digital);
}

void tst_AssignLogic::renamedMacroComesBackRenamed()
{
    m->profile().macros[7] = "three";
    m->board.slotAssignedKey("M3", "three", {{7, 0}});
    m->board.slotAssignedKey("M4", "four", {{8, 0}});
    for (int index : {7, 8}) {
        m->key(index)->click();
        m->board.slotDualActionAssigned(staged(5, 6, 40));
    }
    m->board.slotRenameMacro("M3", "drei");
    m->board.slotDualActionBack();
    QCOMPARE(m->key(7)->text(), QString("M3"));
    QCOMPARE(m->key(7)->toolTip(), QString("drei"));
    QCOMPARE(m->key(8)->toolTip(), QString("four"));
}

void tst_AssignLogic::renumberedLabelsComeBackRenumbered()
{
    m->profile().shortcuts[8] = 2;
    m->board.showProfile(7, 3);
    m->board.slotAssignedKey("M4", "four", {{7, 0}});
    for (int index : {8, 7}) {
        m->key(index)->click();
        m->board.slotDualActionAssigned(staged(5, 6, 40));
    }
    QSignalSpy told(&m->board, &AssignWid::sigMacroSelected);
    m->store.shortcutBase = 4;
    m->board.slotUpdateWinShortcutKeys();
    m->board.slotAssignedKey("M3", "four", {{7, 0}});
    // What is pending goes on showing, and so do the panels.
    QCOMPARE(told.count(), 0);
    for (int index : {7, 8})
        QCOMPARE(m->key(index)->mapping(), staged(5, 6, 40));
    m->board.slotDualActionBack();
    QCOMPARE(m->key(7)->text(), QString("M3"));
    QCOMPARE(m->key(8)->text(), QString("M7"));
    // Nothing is pending any more.
    m->board.slotAssignedKey("M2", "four", {{7, 0}});
    QCOMPARE(m->key(7)->text(), QString("M2"));
    QCOMPARE(told.count(), 1);
}

void tst_AssignLogic::anotherProfileEndsTheEdit()
{
    m->select(7);
    m->board.slotDualActionAssigned(staged(5, 6, 40));
    m->store.profile(7, 4).keys[7] = plainKey(9);
    m->board.showProfile(7, 4);
    m->store.clearLog();
    m->board.slotDualActionBack();
    QCOMPARE(m->key(7)->mapping(), plainKey(9));
    m->board.showProfile(7, 3);
    m->key(7)->click();
    m->board.slotDualActionAssigned(staged(5, 6, 40));
    m->board.showProfile(7, 4);
    m->store.clearLog();
    m->board.slotDualActionApply();
    QCOMPARE(m->store.writes(), QStringList());
    QCOMPARE(m->key(7)->mapping(), plainKey(9));
}

// Presets

void tst_AssignLogic::samePresetAgainStylesNothing()
{
    const auto styles = [this] {
        int sum = 0;
        for (int index = 0; index < 28; ++index)
            sum += m->key(index)->styleCount();
        return sum;
    };
    m->board.applyPreset(5, 6);
    const int before = styles();
    m->board.applyPreset(5, 6);
    QCOMPARE(styles(), before);
    m->board.applyPreset(4, 5);
    const int games = styles();
    m->board.applyPreset(4, 5);
    QCOMPARE(styles(), games);
}

void tst_AssignLogic::keyboardPreset()
{
    m->board.applyPreset(0, 1);
    QStringList expected;
    for (int index = 0; index < 28; ++index)
        expected << QString("setKeyMapping %1").arg(index) << "setProfileDirty 1";
    expected << "setKeyMappings 28"
             << "setProfileDirty 1";
    QCOMPARE(m->calls(), expected);
    QCOMPARE(m->stored(0), plainKey(0x1E));
    QCOMPARE(m->stored(19), plainKey(0x05));
    QCOMPARE(m->stored(27), plainKey(0xC7));
    QCOMPARE(m->key(5)->mapping(), plainKey(0x14));
}

void tst_AssignLogic::extendedCodesOfPreset2()
{
    m->board.applyPreset(0, 2);
    QCOMPARE(m->profile().extended.size(), std::size_t(2));
    QCOMPARE(ushort(m->profile().extended.at(1).code), ushort(0x74));
    QCOMPARE(ushort(m->profile().extended.at(3).code), ushort(0x75));
    for (int index : {1, 3})
        QCOMPARE(m->stored(index), plainKey(255));
    QCOMPARE(m->key(1)->mapping(), plainKey(0x74));
    QCOMPARE(m->key(3)->mapping(), plainKey(0x75));
}

void tst_AssignLogic::gamePreset()
{
    m->board.applyPreset(4, 4);
    QCOMPARE(m->stored(0), plainKey(0x35));
    QCOMPARE(m->stored(7), gameKey(223));
    QCOMPARE(m->stored(11), gameKey(474));
    QCOMPARE(m->stored(12), gameKey(222));
    QCOMPARE(m->stored(13), gameKey(730));
    QCOMPARE(m->key(7)->mapping(), gameKey(223));
    QStringList expected;
    for (int index = 0; index < 28; ++index)
        expected << QString("setKeyMapping %1").arg(index) << "setProfileDirty 1";
    expected << "setKeyMappings 28";
    for (int index : {7, 11, 12, 13})
        expected << QString("setKeyMapping %1").arg(index) << "setProfileDirty 1";
    expected << "setProfileDirty 1";
    QCOMPARE(m->calls(), expected);
}

void tst_AssignLogic::appPreset()
{
    m->board.applyPreset(5, 7);
    QCOMPARE(m->stored(0), plainKey(41));
    QCOMPARE(m->stored(20), plainKey(225));
    QCOMPARE(m->stored(27), plainKey(199));
    QCOMPARE(m->profile().apps.size(), std::size_t(19));
    QCOMPARE(int(m->profile().apps.at(1).appType), 2);
    QCOMPARE(int(m->profile().apps.at(4).funcId), 10);
    QCOMPARE(int(m->profile().apps.at(19).funcId), 14);
    QCOMPARE(int(m->key(1)->mapping().type), 1);
    QStringList expected;
    for (int index = 0; index < 28; ++index) {
        const QString place = QString::number(index);
        expected << "setKeyMapping " + place << "setProfileDirty 1";
        // LAUNCH AI, BRUSH OPACITY, MAGNIFYING and BRUSH SIZE are plain codes to the device.
        if (index == 4 || index == 9 || index == 11 || index == 14)
            expected << "setKeyMapping " + place;
        if (index >= 1 && index <= 19)
            expected << "setAppAssign " + place << "setProfileDirty 1";
    }
    expected << "setProfileDirty 1";
    QCOMPARE(m->calls(), expected);
    QCOMPARE(m->stored(4), plainKey(766));
    QCOMPARE(m->stored(9), plainKey(703));
    QCOMPARE(m->stored(11), plainKey(702));
    QCOMPARE(m->stored(14), plainKey(700));
    QCOMPARE(m->stored(1), plainKey(255));
    // The one that starts the program is warned of, once all keys are done.
    QCOMPARE(m->warnings.size(), 1);
    QVERIFY(m->warnings.at(0).endsWith("ILLUSTRATOR"));
}

void tst_AssignLogic::otherPresets_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("preset");
    QTest::newRow("other input") << 3 << 0;
    QTest::newRow("no such keyboard preset") << 0 << 3;
    QTest::newRow("no such application preset") << 5 << 0;
}

void tst_AssignLogic::otherPresets()
{
    QFETCH(int, input);
    QFETCH(int, preset);
    m->board.applyPreset(input, preset);
    QCOMPARE(m->calls(), QStringList({"setProfileDirty 1"}));
}

// Showing

void tst_AssignLogic::showProfile()
{
    auto &profile = m->store.profile(7, 4);
    profile.keys[0] = plainKey(5);
    profile.keys[1] = gameKey(474);
    profile.apps[2] = {0, 11, {}};
    profile.hotKeys[3] = {0, "CTRL+S", "Save"};
    profile.shortcuts[4] = 2;
    profile.extended[5].code = 2816;
    profile.currentKey = 4;
    m->key(9)->setChecked(true);
    QSignalSpy reset(&m->board, &AssignWid::sigResetCurrKey);
    m->board.showProfile(7, 4);
    QCOMPARE(m->store.calls().filter(QRegularExpression("^(?!getCurrentKey)")),
             QStringList({"clearCurrentKey 7 4", "getKeyMappings 7 4", "getAppAssigns 7 4",
                          "getHotKeyAssigns 7 4", "getShortcutAssigns 7 4", "getShortcutBase 7 4",
                          "getExtendedKeys 7 4"}));
    QCOMPARE(reset.count(), 1);
    QVERIFY(!m->key(9)->isChecked());
    QCOMPARE(m->key(0)->mapping(), plainKey(5));
    QCOMPARE(m->key(1)->mapping(), gameKey(474));
    QCOMPARE(int(m->key(2)->mapping().type), 1);
    QCOMPARE(m->key(3)->text(), QString("Save"));
    QCOMPARE(m->key(4)->text(), QString("M3"));
    QCOMPARE(m->key(5)->mapping(), plainKey(2816));
    QCOMPARE(m->warnings.size(), 1);
}

void tst_AssignLogic::showProfileWritesNothing()
{
    m->board.applyPreset(5, 6);
    m->board.showProfile(7, 3);
    m->store.clearLog();
    m->board.showProfile(7, 3);
    QCOMPARE(m->writes(), QStringList({"clearCurrentKey"}));
    for (int index = 0; index < 28; ++index) {
        m->store.clearLog();
        m->key(index)->click();
        QCOMPARE(m->writes(), QStringList({QString("setCurrentKey %1").arg(index)}));
    }
}

void tst_AssignLogic::showProfileAfterAFailedRead()
{
    m->profile().keys[7] = plainKey(9);
    m->board.showProfile(7, 3);
    m->store.readsFail = true;
    m->board.showProfile(7, 5);
    QCOMPARE(m->key(7)->mapping(), plainKey(9));
}

void tst_AssignLogic::profileSwitchStylesWhatChanged()
{
    const auto styles = [this] {
        int sum = 0;
        for (int index = 0; index < 28; ++index)
            sum += m->key(index)->styleCount();
        return sum;
    };
    for (int profile : {3, 4}) {
        auto &stored = m->store.profile(7, profile);
        for (int index = 0; index < 28; ++index)
            stored.keys[std::size_t(index)] = plainKey(ushort(4 + (index == 21 ? 0 : index % 9)));
        stored.apps[3] = {0, 3, {}};
        stored.hotKeys[4] = {0, "F1", "Help"};
        stored.shortcuts[5] = 2;
        stored.extended[6].code = 2816;
        stored.keys[7] = dualKey(4, 5, 0, 30 + profile);
        stored.keys[8] = gameKey(474);
    }
    m->store.profile(7, 4).keys[0] = gameKey(475);
    m->store.profile(7, 4).keys[1] = plainKey(0);
    m->board.showProfile(7, 3);
    const int before = styles();
    m->board.showProfile(7, 3);
    QCOMPARE(styles(), before);
    m->board.showProfile(7, 4);
    QCOMPARE(styles(), before + 2);
}

void tst_AssignLogic::anyBytes()
{
    quint32 seed = 12345;
    for (int round = 0; round < 200; ++round) {
        for (vantrix_key_mapping &key : m->profile().keys) {
            uchar bytes[sizeof key];
            for (uchar &byte : bytes) {
                seed = seed * 1664525 + 1013904223;
                byte = uchar(seed >> 24);
            }
            std::memcpy(static_cast<void *>(&key), bytes, sizeof key);
        }
        m->board.showProfile(7, 3);
        for (int index = 0; index < 28; ++index)
            m->key(index)->click();
    }
    QVERIFY(m->key(0));
}

VANTRIX_TEST_MAIN(tst_AssignLogic)
#include "tst_AssignLogic.moc"
