#include "host/ProfileStore.h"
#include "host/StoreFile.h"
#include "host/StoreMigration.h"
#include "support/TestMain.h"

#include <QDir>
#include <QTemporaryDir>

/// Files that earlier versions wrote, kept as they were. One test for each step.
class tst_StoreMigration : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void version1();
    void migratedStoreWorks();
    void killedInTheMiddle();
    void migrateNeedsAFile();
    void versionNow();

private:
    QString file() const { return m_folder->filePath(QStringLiteral("my.store")); }
    void take(const QString &name) const
    {
        QVERIFY(QFile::copy(QStringLiteral(DATA_DIR "/") + name, file()));
        QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
    }
    static QByteArray read(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// What store-v1.sqlite says.
    static void checkVersion1(const ProfileStore &store);

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {
const char *const Message = "The store my.store was brought up to date. The file of the earlier "
                            "version was kept as my.store.v1.";
}

void tst_StoreMigration::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_StoreMigration::checkVersion1(const ProfileStore &store)
{
    const StoreState &state = store.state();
    QCOMPARE(state.mapping(1, 0, 7), plainKey(5));
    QCOMPARE(state.mapping(1, 0, 8), gameKey(474));
    QCOMPARE(state.mapping(2, 23, 27), plainKey(0));
    QVERIFY(state.appAssign(1, 0, 9));
    QCOMPARE(int(state.appAssign(1, 0, 9)->funcId), 6);
    QCOMPARE(int(state.appAssign(1, 0, 9)->macro.count), 2);
    QCOMPARE(*state.shortcut(1, 0, 10), (vantrix_shortcut_assign{7, 0}));
    QCOMPARE(*state.extendedKey(1, 0, 11), (vantrix_extended_key{0, 3072}));
    QCOMPARE(state.hotKeyAssign(1, 0, 12)->hotKey, QStringLiteral("CTRL+S"));
    QCOMPARE(state.hotKeyAssign(1, 0, 12)->keyName, QStringLiteral("SAVE"));
    QCOMPARE(state.text(storeRecord(StoreTable::AppPath, 2)), QStringLiteral("/opt/ai.exe"));
    QCOMPARE(state.number(storeRecord(StoreTable::Presso)), 0);
    QCOMPARE(state.number(profileRecord(StoreTable::Mode, 1, 0)), 1);
    QCOMPARE(state.number(profileRecord(StoreTable::CurrentKey, 1, 0)), 7);
    QCOMPARE(int(state.records().size()), 11);
    QVERIFY(state.macroNames(1).isEmpty());
    QVERIFY(!store.canUndo());
}

void tst_StoreMigration::version1()
{
    take(QStringLiteral("store-v1.sqlite"));
    QCOMPARE(StoreMigration::versionOf(file()), 1);
    {
        const ProfileStore store(file());
        QCOMPARE(store.messages(), QStringList(QString::fromLatin1(Message)));
        checkVersion1(store);
        QVERIFY(store.isSaved());
    }
    QCOMPARE(StoreMigration::versionOf(file()), 2);
    // the original says what it said
    QCOMPARE(StoreMigration::versionOf(file() + QStringLiteral(".v1")), 1);
    QVERIFY(QFile::remove(file()));
    QVERIFY(QFile::remove(file() + QStringLiteral(".bak")));
    QVERIFY(QFile::copy(file() + QStringLiteral(".v1"), file()));
    checkVersion1(ProfileStore(file()));
}

void tst_StoreMigration::migratedStoreWorks()
{
    take(QStringLiteral("store-v1.sqlite"));
    {
        ProfileStore store(file());
        QVERIFY(store.addMacro(1, QStringLiteral("New"), vantrix_macro_record()));
        QVERIFY(store.flush());
    }
    ProfileStore store(file());
    QCOMPARE(store.messages(), QStringList());
    QCOMPARE(store.state().macroNames(1), QStringList(QStringLiteral("New")));
    QVERIFY(store.undo());
    checkVersion1(store);
}

void tst_StoreMigration::killedInTheMiddle()
{
    take(QStringLiteral("store-v1.sqlite"));
    // what a migration that was killed leaves behind
    QFile left(file() + QStringLiteral(".migrating"));
    QVERIFY(left.open(QIODevice::WriteOnly));
    left.write("half a copy");
    left.close();
    checkVersion1(ProfileStore(file()));
    QVERIFY(!QFile::exists(left.fileName()));
}

void tst_StoreMigration::migrateNeedsAFile()
{
    const QString target = m_folder->filePath(QStringLiteral("target"));
    QVERIFY(StoreMigration::migrate(file(), target) != StoreError::None);
    QVERIFY(!QFile::exists(target));
}

void tst_StoreMigration::versionNow()
{
    {
        ProfileStore store(file());
    }
    QCOMPARE(StoreMigration::versionOf(file()), 2);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).filter(QStringLiteral(".v")),
             QStringList());
}

VANTRIX_TEST_MAIN(tst_StoreMigration)
#include "tst_StoreMigration.moc"
