#include "StoreEdits.h"
#include "support/TestMain.h"

#include <QTemporaryDir>

class tst_StoreUndo : public QObject
{
    Q_OBJECT

private slots:
    void thousandEdits_data();
    void thousandEdits();
    void historySurvivesReopening();
    void selectionComesBack();
    void modeComesBack();
    void viewMakesNoStep();
    void anotherKeyIsAnotherStep();
    void newStepDropsRedo();
    void takenBackInOneTurn();
    void depthsJoin();
    void namedStepOverTurns();
    void stepNames_data();
    void stepNames();
    void presetName();
    void namesOfMacrosAndProfiles();
    void outcomeTellsWhere();
    void limitDropsTheOldest();
    void nothingToUndo();

private:
    static constexpr int Owner = StoreEdits::Owner;

    static void assign(ProfileStore &store, int keyIdx, ushort code)
    {
        const vantrix_key_mapping key = plainKey(code);
        store.setKeyMapping(Owner, 0, keyIdx, &key);
    }
    static void assignDual(ProfileStore &store, int keyIdx, int depth)
    {
        vantrix_key_mapping key;
        key.type = KeyType::DualAction;
        key.digital = {4, 5, DualType::Normal, quint8(depth)};
        store.setKeyMapping(Owner, 0, keyIdx, &key);
    }
};

void tst_StoreUndo::thousandEdits_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 3; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_StoreUndo::thousandEdits()
{
    QFETCH(quint32, seed);
    ProfileStore store{QString()};
    StoreEdits edits(store, seed);
    edits.look();
    store.flush();
    std::vector<QByteArray> right_before;
    std::vector<QByteArray> right_after;
    for (int i = 0; i < 1000; ++i) {
        right_before.push_back(store.state().toBytes());
        edits.edit();
        store.flush();
        right_after.push_back(store.state().toBytes());
        edits.look();
        store.flush();
    }
    QCOMPARE(store.stepNames().size(), 1000);
    for (int i = 999; i >= 0; --i) {
        QVERIFY(store.undo());
        QVERIFY2(store.state().toBytes() == right_before[std::size_t(i)],
                 qPrintable(QStringLiteral("undo of step %1: %2").arg(i).arg(store.redoName())));
    }
    QVERIFY(!store.undo());
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(store.redo());
        QVERIFY2(store.state().toBytes() == right_after[std::size_t(i)],
                 qPrintable(QStringLiteral("redo of step %1: %2").arg(i).arg(store.undoName())));
    }
    QVERIFY(!store.redo());
}

void tst_StoreUndo::historySurvivesReopening()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("store"));
    QByteArray start;
    QByteArray middle;
    QByteArray end;
    {
        ProfileStore store(name);
        StoreEdits edits(store, 7);
        edits.look();
        store.flush();
        start = store.state().toBytes();
        for (int i = 0; i < 20; ++i) {
            edits.edit();
            store.flush();
            if (i == 9)
                middle = store.state().toBytes();
            end = store.state().toBytes();
            edits.look();
            store.flush();
        }
        for (int i = 0; i < 5; ++i)
            store.undo();
    }
    ProfileStore store(name);
    QCOMPARE(store.stepNames().size(), 20);
    QCOMPARE(store.stepPosition(), 15);
    while (store.stepPosition() > 0)
        store.undo();
    QVERIFY(store.state().toBytes() == start);
    while (store.stepPosition() < 10)
        store.redo();
    QVERIFY(store.state().toBytes() == middle);
    while (store.redo()) {
    }
    QVERIFY(store.state().toBytes() == end);
}

void tst_StoreUndo::selectionComesBack()
{
    ProfileStore store{QString()};
    store.setCurrentKey(Owner, 0, 7);
    store.flush();
    assign(store, 7, 5);
    store.flush();
    store.setCurrentKey(Owner, 0, 9);
    store.flush();
    QVERIFY(store.undo());
    QCOMPARE(store.getCurrentKey(Owner, 0), 7);
    store.clearCurrentKey(Owner, 0);
    store.flush();
    QVERIFY(store.redo());
    QCOMPARE(store.getCurrentKey(Owner, 0), 7);
}

void tst_StoreUndo::modeComesBack()
{
    ProfileStore store{QString()};
    store.setMode(Owner, 0, 1);
    store.setInput(Owner, 0, 4);
    store.flush();
    assign(store, 7, 5);
    store.flush();
    store.setMode(Owner, 0, 0);
    store.setInput(Owner, 0, 2);
    store.flush();
    store.undo();
    QCOMPARE(store.getMode(Owner, 0), 1);
    QCOMPARE(store.getInput(Owner, 0), 4);
}

void tst_StoreUndo::viewMakesNoStep()
{
    ProfileStore store{QString()};
    store.setMode(Owner, 0, 1);
    store.setInput(Owner, 0, 3);
    store.setPanel(Owner, 0, 5);
    store.setCurrentKey(Owner, 0, 1);
    store.setSetting(QStringLiteral("language"), QStringLiteral("3"));
    store.setAppPath(0, QStringLiteral("/ps.exe"));
    store.flush();
    QVERIFY(!store.canUndo());
    QCOMPARE(store.stepNames(), QStringList());
}

void tst_StoreUndo::anotherKeyIsAnotherStep()
{
    ProfileStore store{QString()};
    store.setCurrentKey(Owner, 0, 1);
    assign(store, 1, 4);
    store.setCurrentKey(Owner, 0, 2);
    assign(store, 2, 5);
    store.flush();
    QCOMPARE(store.stepNames(), QStringList({QStringLiteral("Assign A to key 1"),
                                             QStringLiteral("Assign B to key 2")}));
    QCOMPARE(store.transactionCount(), 1);
}

void tst_StoreUndo::newStepDropsRedo()
{
    ProfileStore store{QString()};
    assign(store, 1, 4);
    store.flush();
    assign(store, 2, 5);
    store.flush();
    store.undo();
    QVERIFY(store.canRedo());
    assign(store, 3, 6);
    QVERIFY(!store.canRedo());
    store.flush();
    QCOMPARE(store.stepNames(), QStringList({QStringLiteral("Assign A to key 1"),
                                             QStringLiteral("Assign C to key 3")}));
    store.undo();
    store.undo();
    QVERIFY(store.state().records().empty());
}

void tst_StoreUndo::takenBackInOneTurn()
{
    ProfileStore store{QString()};
    assign(store, 1, 4);
    assign(store, 1, 255);
    store.flush();
    QVERIFY(!store.canUndo());
}

void tst_StoreUndo::depthsJoin()
{
    ProfileStore store{QString()};
    assignDual(store, 3, 50);
    store.flush();
    for (const int depth : {51, 55, 60, 70}) {
        assignDual(store, 3, depth);
        store.flush();
    }
    QCOMPARE(store.stepNames(), QStringList({QStringLiteral("Assign A > B at 50% to key 3"),
                                             QStringLiteral("Depth of key 3: 70%")}));
    store.undo();
    QCOMPARE(int(store.state().mapping(Owner, 0, 3).digital.depth), 50);
    store.redo();
    QCOMPARE(int(store.state().mapping(Owner, 0, 3).digital.depth), 70);
    store.setCurrentKey(Owner, 0, 3);
    store.flush();
    assignDual(store, 3, 20);
    store.flush();
    QCOMPARE(store.stepNames().size(), 3);
    assignDual(store, 3, 70);
    store.flush();
    QCOMPARE(store.stepNames().size(), 2);
}

void tst_StoreUndo::namedStepOverTurns()
{
    ProfileStore store{QString()};
    assign(store, 0, 4);
    store.beginStep(QStringLiteral("Import"));
    assign(store, 1, 4);
    QCoreApplication::processEvents();
    store.beginStep(QStringLiteral("inner"));
    assign(store, 2, 4);
    store.endStep();
    QVERIFY(!store.undo());
    store.endStep();
    QCOMPARE(store.stepNames(),
             QStringList({QStringLiteral("Assign A to key 0"), QStringLiteral("Import")}));
    store.undo();
    QCOMPARE(int(store.state().mapping(Owner, 0, 2).code), 255);
    QCOMPARE(int(store.state().mapping(Owner, 0, 0).code), 4);
}

void tst_StoreUndo::stepNames_data()
{
    QTest::addColumn<vantrix_key_mapping>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("letter") << plainKey(5) << QStringLiteral("Assign B to key 7");
    QTest::newRow("media") << plainKey(246) << QStringLiteral("Assign VOLUME UP to key 7");
    QTest::newRow("controller") << gameKey(474) << QStringLiteral("Assign L STICK LEFT to key 7");
    QTest::newRow("disabled") << plainKey(0) << QStringLiteral("Assign DISABLED to key 7");
    QTest::newRow("cleared") << clearedKey() << QStringLiteral("Clear key 7");
}

void tst_StoreUndo::stepNames()
{
    QFETCH(vantrix_key_mapping, key);
    QFETCH(QString, name);
    ProfileStore store{QString()};
    assign(store, 7, 4);
    store.flush();
    store.setKeyMapping(Owner, 0, 7, &key);
    QCOMPARE(store.undoName(), name);
    store.flush();
    QCOMPARE(store.undoName(), name);
}

void tst_StoreUndo::presetName()
{
    ProfileStore store{QString()};
    assign(store, 7, 4);
    store.flush();
    store.clearAssignsForPreset(Owner, 0);
    store.clearNamedMacros(Owner, 0);
    store.setInput(Owner, 0, 0);
    for (int i = 0; i < KeyCount; ++i)
        assign(store, i, ushort(40 + i));
    store.setPanel(Owner, 0, 2);
    store.flush();
    assign(store, 0, 4);
    store.setPanel(Owner, 0, 0);
    store.flush();
    QCOMPARE(store.stepNames(), QStringList({QStringLiteral("Assign A to key 7"),
                                             QStringLiteral("Preset: Numpad Mode"),
                                             QStringLiteral("Assign A to key 0")}));
}

void tst_StoreUndo::namesOfMacrosAndProfiles()
{
    ProfileStore store{QString()};
    vantrix_macro_record record;
    const auto step = [&store](bool done) {
        QVERIFY(done);
        store.flush();
    };
    step(store.addMacro(Owner, QStringLiteral("One"), record));
    step(store.addMacro(Owner, QStringLiteral("Two"), record));
    record.count = 2;
    step(store.setMacro(Owner, QStringLiteral("One"), record));
    step(store.moveMacro(Owner, 0, 1));
    step(store.renameMacro(Owner, QStringLiteral("One"), QStringLiteral("Uno")));
    step(store.removeMacro(Owner, QStringLiteral("Uno")));
    store.setProfileName(Owner, 2, QStringLiteral("Work"));
    store.flush();
    store.moveProfile(Owner, 0, 3);
    store.flush();
    store.setPressoEnabled(0);
    store.flush();
    store.setPressoEnabled(1);
    store.flush();
    QCOMPARE(store.stepNames(),
             QStringList(
                 {QStringLiteral("Create macro One"), QStringLiteral("Create macro Two"),
                  QStringLiteral("Edit macro One"), QStringLiteral("Move a macro"),
                  QStringLiteral("Rename macro One to Uno"), QStringLiteral("Delete macro Uno"),
                  QStringLiteral("Name profile 3: Work"), QStringLiteral("Move a profile"),
                  QStringLiteral("Pressure sensing off"), QStringLiteral("Pressure sensing on")}));
}

void tst_StoreUndo::outcomeTellsWhere()
{
    ProfileStore store{QString()};
    store.setCurrentKey(Owner, 4, 9);
    store.flush();
    const vantrix_key_mapping key = plainKey(5);
    store.setKeyMapping(Owner, 4, 9, &key);
    store.flush();
    QSignalSpy replaced(&store, &ProfileStore::profileReplaced);
    QSignalSpy steps(&store, &ProfileStore::stepsChanged);
    const auto outcome = store.undo();
    QVERIFY(outcome);
    QCOMPARE(outcome->name, QStringLiteral("Assign B to key 9"));
    QCOMPARE(outcome->owner, int(Owner));
    QCOMPARE(outcome->profile, 4);
    QCOMPARE(outcome->currentKey, 9);
    QVERIFY(outcome->keys == std::set<int>{9});
    QVERIFY(!outcome->macrosChanged && !outcome->pressoChanged);
    QCOMPARE(replaced.count(), 1);
    QCOMPARE(replaced.at(0).at(1).toInt(), 4);
    QCOMPARE(steps.count(), 1);
}

void tst_StoreUndo::limitDropsTheOldest()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("store"));
    {
        ProfileStore store(name);
        store.setStepLimit(3);
        for (int i = 0; i < 5; ++i) {
            assign(store, i, 4);
            store.flush();
        }
    }
    ProfileStore store(name);
    QCOMPARE(store.stepNames(),
             QStringList({QStringLiteral("Assign A to key 2"), QStringLiteral("Assign A to key 3"),
                          QStringLiteral("Assign A to key 4")}));
    while (store.undo()) {
    }
    QCOMPARE(int(store.state().mapping(Owner, 0, 1).code), 4);
    QCOMPARE(int(store.state().mapping(Owner, 0, 2).code), 255);
}

void tst_StoreUndo::nothingToUndo()
{
    ProfileStore store{QString()};
    QVERIFY(!store.canUndo());
    QVERIFY(!store.canRedo());
    QVERIFY(!store.undo());
    QVERIFY(!store.redo());
    QCOMPARE(store.undoName(), QString());
    QCOMPARE(store.redoName(), QString());
    store.endStep();
}

VANTRIX_TEST_MAIN(tst_StoreUndo)
#include "tst_StoreUndo.moc"
