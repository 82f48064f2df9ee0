#include "shell/ProfileCheck.h"

#include "ShellFixture.h"
#include "support/TestMain.h"
#include "vocabulary/AppTables.h"

#include <memory>

class tst_ProfileCheck : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_shell = std::make_unique<ShellFixture>(); }
    void cleanup() { m_shell.reset(); }
    void freshProfilesAreRight();
    void missingMacro();
    void emptyMacro();
    void macroWithEvents();
    void secondActionMissing();
    void firstActionMissing();
    void wholeDualAction();
    void applicationNotFound();
    void applicationFound();
    void noWayBack();
    void wayBackOverOthers();
    void profileCodes_data();
    void profileCodes();
    void noWayBackFromAMacro();
    void sharedFunction();
    void sharedWithAnUnassignedKey();
    void sharedMacroAndApplication();
    void unassignedKeysShareNothing();
    void disabledKeysShareNothing();
    void dualActionsDifferByDepth();
    void worstFirst();
    void allProfilesInListOrder();

private:
    using Findings = std::vector<CheckFinding>;

    ProfileStore &store() { return m_shell->store(); }
    Findings check(int profile = 0)
    {
        store().flush();
        return ProfileCheck(store(), 0).check(profile);
    }
    void assign(int keyIdx, ushort code, int profile = 0)
    {
        m_shell->assign(keyIdx, code, profile);
    }
    void assignDual(int keyIdx, ushort first, ushort second, uchar depth = 50)
    {
        vantrix_key_mapping key = clearedKey();
        key.type = 3;
        key.digital.firstAction = first;
        key.digital.secondAction = second;
        key.digital.depth = depth;
        store().setKeyMapping(0, 0, keyIdx, &key);
    }
    void assignApp(int keyIdx, int appType, int funcId)
    {
        vantrix_app_assign app;
        app.appType = appType;
        app.funcId = funcId;
        buildAppMacro(appType, funcId, &app.macro);
        store().setAppAssign(0, 0, keyIdx, &app);
    }
    static QStringList texts(const Findings &findings)
    {
        QStringList list;
        for (const CheckFinding &finding : findings)
            list << finding.text;
        return list;
    }

    std::unique_ptr<ShellFixture> m_shell;
};

using Places = std::vector<KeyPlace>;

void tst_ProfileCheck::freshProfilesAreRight()
{
    QVERIFY(ProfileCheck(store(), 0).checkAll().empty());
}

void tst_ProfileCheck::missingMacro()
{
    store().setNamedMacroKey(0, 0, "Lost", 6);
    const Findings findings = check();
    QCOMPARE(texts(findings), QStringList(QStringLiteral(
                                  "Key 6 has the macro \"Lost\", which is not there any more.")));
    QCOMPARE(findings[0].kind, CheckFinding::MacroMissing);
    QCOMPARE(findings[0].profile, 0);
    QVERIFY(findings[0].places == Places({{0, 6}}));
}

void tst_ProfileCheck::emptyMacro()
{
    store().addMacro(0, QStringLiteral("Later"), vantrix_macro_record());
    store().setNamedMacroKey(0, 0, "Later", 27);
    const Findings findings = check();
    QCOMPARE(texts(findings),
             QStringList(QStringLiteral("Key 27 has the macro \"Later\", which is empty.")));
    QCOMPARE(findings[0].kind, CheckFinding::MacroEmpty);
    QVERIFY(findings[0].places == Places({{0, 27}}));
}

void tst_ProfileCheck::macroWithEvents()
{
    vantrix_macro_record record;
    record.count = 1;
    store().addMacro(0, QStringLiteral("Full"), record);
    store().setNamedMacroKey(0, 0, "Full", 27);
    QVERIFY(check().empty());
}

void tst_ProfileCheck::secondActionMissing()
{
    assignDual(12, 4, 0);
    const Findings findings = check();
    QCOMPARE(texts(findings),
             QStringList(QStringLiteral("Key 12 has a dual action without a second action.")));
    QCOMPARE(findings[0].kind, CheckFinding::ActionMissing);
    QVERIFY(findings[0].places == Places({{0, 12}}));
}

void tst_ProfileCheck::firstActionMissing()
{
    assignDual(12, 0, 5);
    QCOMPARE(texts(check()),
             QStringList(QStringLiteral("Key 12 has a dual action without a first action.")));
}

void tst_ProfileCheck::wholeDualAction()
{
    assignDual(12, 4, 5);
    QVERIFY(check().empty());
}

void tst_ProfileCheck::applicationNotFound()
{
    assignApp(3, 0, 3);
    assignApp(4, 1, 5);
    assignApp(5, 1, 6);
    const Findings findings = check();
    QCOMPARE(texts(findings),
             QStringList(
                 {QStringLiteral(
                      "Key 3 has a function of PHOTOSHOP, which was not found on this computer."),
                  QStringLiteral("Keys 4 and 5 have functions of PREMIERE PRO, which was not "
                                 "found on this computer.")}));
    QCOMPARE(findings[1].kind, CheckFinding::ApplicationNotFound);
    QVERIFY(findings[1].places == Places({{0, 4}, {0, 5}}));
}

void tst_ProfileCheck::applicationFound()
{
    assignApp(3, 0, 3);
    store().setAppPath(0, QStringLiteral("/ps.exe"));
    QVERIFY(check().empty());
}

void tst_ProfileCheck::noWayBack()
{
    assign(5, 1538); // to profile 3
    store().setProfileName(0, 0, QStringLiteral("Work"));
    QVERIFY(check(0).empty());
    const Findings findings = check(2);
    QCOMPARE(texts(findings),
             QStringList(QStringLiteral("Key 5 of Work leads to this profile, and no key leads "
                                        "back.")));
    QCOMPARE(findings[0].kind, CheckFinding::NoWayBack);
    QVERIFY(findings[0].places == Places({{2, 28}, {0, 5}}));
    assign(9, 1536, 2);
    QVERIFY(check(2).empty());
}

void tst_ProfileCheck::wayBackOverOthers()
{
    assign(5, 1538);    // 1 to 3
    assign(6, 1540, 2); // 3 to 5
    QVERIFY(!check(2).empty());
    assign(7, 1536, 4); // 5 to 1
    QVERIFY(check(2).empty());
    QVERIFY(check(4).empty());
}

void tst_ProfileCheck::profileCodes_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("to"); // -1: nowhere
    QTest::newRow("next") << 3 << 1570 << 4;
    QTest::newRow("next around") << 23 << 1570 << 0;
    QTest::newRow("previous") << 3 << 1571 << 2;
    QTest::newRow("previous around") << 0 << 1571 << 23;
    QTest::newRow("up") << 3 << 1568 << 4;
    QTest::newRow("up at the end") << 23 << 1568 << -1;
    QTest::newRow("down") << 3 << 1569 << 2;
    QTest::newRow("down at the end") << 0 << 1569 << -1;
    QTest::newRow("last profile") << 3 << 1559 << 23;
    QTest::newRow("to itself") << 3 << 1539 << -1;
    QTest::newRow("past the last") << 3 << 1560 << -1;
}

void tst_ProfileCheck::profileCodes()
{
    QFETCH(int, from);
    QFETCH(int, code);
    QFETCH(int, to);
    assign(10, ushort(code), from);
    const Findings findings = ProfileCheck(store(), 0).checkAll();
    QCOMPARE(int(findings.size()), to < 0 ? 0 : 1);
    if (to >= 0)
        QVERIFY(findings[0].places == Places({{to, 28}, {from, 10}}));
}

void tst_ProfileCheck::noWayBackFromAMacro()
{
    vantrix_macro_record record;
    record.count = 1;
    store().addMacro(0, QStringLiteral("M"), record);
    assign(5, 1538);
    store().setNamedMacroKey(0, 0, "M", 5); // the macro is what the key does
    QVERIFY(check(2).empty());
}

void tst_ProfileCheck::sharedFunction()
{
    for (const int key : {3, 7, 24})
        assign(key, 5);
    const Findings findings = check();
    QCOMPARE(texts(findings), QStringList(QStringLiteral("Keys 3, 7 and 24 do the same: B.")));
    QCOMPARE(findings[0].kind, CheckFinding::SharedFunction);
    QVERIFY(findings[0].places == Places({{0, 3}, {0, 7}, {0, 24}}));
}

void tst_ProfileCheck::sharedWithAnUnassignedKey()
{
    assign(3, 4); // key 11 sends A by itself
    QCOMPARE(texts(check()), QStringList(QStringLiteral("Keys 3 and 11 do the same: A.")));
}

void tst_ProfileCheck::sharedMacroAndApplication()
{
    vantrix_macro_record record;
    record.count = 1;
    store().addMacro(0, QStringLiteral("M"), record);
    store().setNamedMacroKey(0, 0, "M", 1);
    store().setNamedMacroKey(0, 0, "M", 2);
    store().setAppPath(0, QStringLiteral("/ps.exe"));
    assignApp(8, 0, 3);
    assignApp(9, 0, 3);
    assignApp(10, 0, 4);
    QCOMPARE(texts(check()),
             QStringList({QStringLiteral("Keys 1 and 2 do the same: M."),
                          QStringLiteral("Keys 8 and 9 do the same: PHOTOSHOP: BLUR.")}));
}

void tst_ProfileCheck::unassignedKeysShareNothing()
{
    for (const int key : {0, 1, 2})
        assign(key, 255);
    QVERIFY(check().empty());
}

void tst_ProfileCheck::disabledKeysShareNothing()
{
    for (const int key : {0, 1, 2})
        assign(key, 0);
    QVERIFY(check().empty());
}

void tst_ProfileCheck::dualActionsDifferByDepth()
{
    assignDual(1, 4, 5, 40);
    assignDual(2, 4, 5, 50);
    QVERIFY(check().empty());
    assignDual(2, 4, 5, 40);
    QCOMPARE(texts(check()),
             QStringList(QStringLiteral("Keys 1 and 2 do the same: A > B at 40%.")));
}

void tst_ProfileCheck::worstFirst()
{
    assign(20, 5);
    assign(21, 5);
    assign(5, 1538, 1);
    assignApp(15, 0, 3);
    assignDual(10, 4, 0);
    store().addMacro(0, QStringLiteral("Later"), vantrix_macro_record());
    store().setNamedMacroKey(0, 0, "Later", 1);
    store().setNamedMacroKey(0, 0, "Lost", 2);
    assign(19, 1537, 2); // into profile 2, whose own key leads back
    assign(22, 1536, 3); // into profile 1
    QList<int> kinds;
    for (const CheckFinding &finding : check())
        kinds << finding.kind;
    QCOMPARE(kinds, QList<int>({CheckFinding::MacroMissing, CheckFinding::MacroEmpty,
                                CheckFinding::ActionMissing, CheckFinding::ApplicationNotFound,
                                CheckFinding::NoWayBack, CheckFinding::SharedFunction}));
}

void tst_ProfileCheck::allProfilesInListOrder()
{
    for (const int profile : {1, 2}) {
        assign(3, 5, profile);
        assign(4, 5, profile);
    }
    store().setProfileOrder(0, {2, 1});
    const Findings findings = ProfileCheck(store(), 0).checkAll();
    QCOMPARE(int(findings.size()), 2);
    QCOMPARE(findings[0].profile, 2);
    QCOMPARE(findings[1].profile, 1);
}

VANTRIX_TEST_MAIN(tst_ProfileCheck)
#include "tst_ProfileCheck.moc"
