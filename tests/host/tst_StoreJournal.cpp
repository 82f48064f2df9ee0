#include "StoreEdits.h"
#include "interfaces/Modal.h"
#include "support/TestMain.h"

#include <QDialog>
#include <QEventLoop>
#include <QTemporaryDir>

#include <thread>

/// How changes become transactions.
class tst_StoreJournal : public QObject
{
    Q_OBJECT

private slots:
    void presetIsOneTransaction();
    void aTurnIsOneTransaction();
    void twoTurnsAreTwo();
    void nothingChangedIsNone();
    void takenBackIsNone();
    void undoIsOne();
    void stepOverTurnsIsOne();
    void modalDialogBelongsToTheTurn();
    void signalsOncePerTurn();
    void pathsFromOtherThreads();
    void whatATurnFinishedIsOnDisk();
};

namespace {
constexpr int Owner = StoreEdits::Owner;

void assign(ProfileStore &store, int keyIdx, ushort code)
{
    const vantrix_key_mapping key = plainKey(code);
    store.setKeyMapping(Owner, 0, keyIdx, &key);
}

void applyPreset(ProfileStore &store)
{
    store.clearAssignsForPreset(Owner, 0);
    store.clearNamedMacros(Owner, 0);
    store.setInput(Owner, 0, 0);
    std::vector<vantrix_key_mapping> keys;
    for (int i = 0; i < KeyCount; ++i) {
        keys.push_back(plainKey(ushort(40 + i)));
        store.setKeyMapping(Owner, 0, i, &keys.back());
        store.setProfileDirty(Owner, 0, true);
    }
    store.setKeyMappings(Owner, 0, &keys);
    store.setPanel(Owner, 0, 2);
}
} // namespace

void tst_StoreJournal::presetIsOneTransaction()
{
    const QTemporaryDir folder;
    ProfileStore store(folder.filePath(QStringLiteral("store")));
    QCOMPARE(store.transactionCount(), 0);
    applyPreset(store);
    QCOMPARE(store.transactionCount(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(store.transactionCount(), 1);
    QCOMPARE(store.stepNames().size(), 1);
}

void tst_StoreJournal::aTurnIsOneTransaction()
{
    const QTemporaryDir folder;
    ProfileStore store(folder.filePath(QStringLiteral("store")));
    StoreEdits edits(store, 3);
    for (int i = 0; i < 30; ++i) {
        edits.look();
        edits.edit();
    }
    QCoreApplication::processEvents();
    QCOMPARE(store.transactionCount(), 1);
    QVERIFY(store.stepNames().size() > 20);
}

void tst_StoreJournal::twoTurnsAreTwo()
{
    const QTemporaryDir folder;
    ProfileStore store(folder.filePath(QStringLiteral("store")));
    assign(store, 1, 4);
    QCoreApplication::processEvents();
    store.setCurrentKey(Owner, 0, 2);
    QCoreApplication::processEvents();
    QCOMPARE(store.transactionCount(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(store.transactionCount(), 2);
}

void tst_StoreJournal::nothingChangedIsNone()
{
    const QTemporaryDir folder;
    ProfileStore store(folder.filePath(QStringLiteral("store")));
    assign(store, 1, 255);
    assign(store, 21, 385);
    store.delAppAssign(Owner, 0, 1);
    store.setMode(Owner, 0, 0);
    store.clearCurrentKey(Owner, 0);
    store.setPressoEnabled(1);
    store.setProfileDirty(Owner, 0, true);
    QVERIFY(store.flush());
    QCOMPARE(store.transactionCount(), 0);
}

void tst_StoreJournal::takenBackIsNone()
{
    const QTemporaryDir folder;
    ProfileStore store(folder.filePath(QStringLiteral("store")));
    assign(store, 1, 4);
    assign(store, 1, 255);
    QVERIFY(store.flush());
    QCOMPARE(store.stepNames(), QStringList());
    QCOMPARE(store.transactionCount(), 1);
}

void tst_StoreJournal::undoIsOne()
{
    const QTemporaryDir folder;
    ProfileStore store(folder.filePath(QStringLiteral("store")));
    applyPreset(store);
    store.flush();
    store.undo();
    QCoreApplication::processEvents();
    QCOMPARE(store.transactionCount(), 2);
    store.redo();
    QCoreApplication::processEvents();
    QCOMPARE(store.transactionCount(), 3);
}

void tst_StoreJournal::stepOverTurnsIsOne()
{
    const QTemporaryDir folder;
    ProfileStore store(folder.filePath(QStringLiteral("store")));
    {
        const StoreStepScope step(store, QStringLiteral("Import"));
        for (int i = 0; i < 5; ++i) {
            assign(store, i, 4);
            QCoreApplication::processEvents();
            QVERIFY(!store.flush());
        }
        QCOMPARE(store.transactionCount(), 0);
    }
    QCoreApplication::processEvents();
    QCOMPARE(store.transactionCount(), 1);
    QCOMPARE(store.stepNames(), QStringList(QStringLiteral("Import")));
}

void tst_StoreJournal::modalDialogBelongsToTheTurn()
{
    const QTemporaryDir folder;
    ProfileStore store(folder.filePath(QStringLiteral("store")));
    QEventLoop application;
    int inDialog = -1;
    const auto slot = [&] {
        assign(store, 1, 255);
        assign(store, 2, 4);
        QEventLoop dialog;
        QTimer::singleShot(200, &dialog, [&] {
            inDialog = store.transactionCount();
            dialog.quit();
        });
        dialog.exec();
        assign(store, 1, 5);
    };
    QTimer::singleShot(0, &store, slot);
    connect(&store, &ProfileStore::stepsChanged, &application, &QEventLoop::quit);
    application.exec();
    QCOMPARE(inDialog, 0);
    QCOMPARE(store.transactionCount(), 1);
    QCOMPARE(store.stepNames(), QStringList(QStringLiteral("Change 2 keys")));
}

void tst_StoreJournal::signalsOncePerTurn()
{
    ProfileStore store{QString()};
    QSignalSpy changed(&store, &ProfileStore::profileChanged);
    QSignalSpy replaced(&store, &ProfileStore::profileReplaced);
    QSignalSpy views(&store, &ProfileStore::viewChanged);
    QSignalSpy steps(&store, &ProfileStore::stepsChanged);
    applyPreset(store);
    QCOMPARE(changed.count(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toInt(), int(Owner));
    QCOMPARE(changed.at(0).at(1).toInt(), 0);
    QCOMPARE(replaced.count(), 0);
    QCOMPARE(views.count(), 1);
    QCOMPARE(steps.count(), 1);
    store.clearProfile(Owner, 0);
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 2);
    QCOMPARE(replaced.count(), 1);
}

void tst_StoreJournal::pathsFromOtherThreads()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("store"));
    {
        ProfileStore store(name);
        std::vector<std::thread> threads;
        for (int type = 0; type < 3; ++type) {
            threads.emplace_back([&store, type] {
                for (int i = 0; i < 200; ++i) {
                    store.setAppPath(type, QStringLiteral("/app%1/%2").arg(type).arg(i));
                    QString path;
                    store.getAppPath(type, path);
                    store.hasAppPath((type + 1) % 3);
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QString path;
        store.getAppPath(2, path);
        QCOMPARE(path, QStringLiteral("/app2/199"));
    }
    ProfileStore store(name);
    QString path;
    store.getAppPath(0, path);
    QCOMPARE(path, QStringLiteral("/app0/199"));
    QVERIFY(store.hasAppPath(1));
}

void tst_StoreJournal::whatATurnFinishedIsOnDisk()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("store"));
    ProfileStore store(name);
    assign(store, 1, 4);
    QCoreApplication::processEvents();
    assign(store, 2, 4);
    const ProfileStore reader(name);
    QVERIFY(reader.isReadOnly());
    QCOMPARE(int(reader.state().mapping(Owner, 0, 1).code), 4);
    QCOMPARE(int(reader.state().mapping(Owner, 0, 2).code), 255);
}

VANTRIX_TEST_MAIN(tst_StoreJournal)
#include "tst_StoreJournal.moc"
