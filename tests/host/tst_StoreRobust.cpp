#include "StoreEdits.h"
#include "support/TestMain.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

/// Files that are not as they should be. Whatever happens, the store opens and says why.
class tst_StoreRobust : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void notSqlite();
    void emptyFile();
    void truncated();
    void brokenPages();
    void anotherProgramsDatabase();
    void newerVersion();
    void brokenWithoutCopy();
    void brokenTwice();
    void brokenCopyToo();
    void missingFile();
    void missingFolder();
    void readOnlyFolder();
    void brokenInReadOnlyFolder();
    void heldAtStart_data();
    void heldAtStart();
    void unreadableAtStart();
    void copyThatCannotBeRead_data();
    void copyThatCannotBeRead();
    void savedByAnotherMeanwhile();
    void broughtBackMeanwhile();
    void folderThatCannotBeLookedInto();
    void damagedBeforeItCouldBeRead();
    void journalWithoutAFile();
    void removedAndClosed();
    void lockOfAnotherProgram();
    void olderTwice();
    void roomForAnEmptyStoreOnly_data();
    void roomForAnEmptyStoreOnly();
    void memoryComesBeforeCopies_data();
    void memoryComesBeforeCopies();
    void settingsMadeBeforeItCouldBeRead();
    void olderThatCannotBeMigrated();
    void folderThatCannotBeEnteredForAWhile();
    void nothingIsSavedInsideAStep();
    void damagedWhileRunning();
    void secondStoreCannotRead();
    void journalInReadOnlyFolder();
    void fullDiskAtStart();
    void brokenOnAFullDisk();
    void missingOnAFullDisk();
    void fullDisk();
    void removedWhileRunning();
    void replacedWhileRunning();
    void replacedByAnotherStore();
    void folderRemovedWhileRunning();
    void folderReplacedWhileRunning();
    void unsavedWork_data();
    void unsavedWork();
    void heldByAnotherProgram();
    void secondStoreOnlyReads();
    void lockWithoutAnOwner();
    void copyIsMadeAtCleanClose();
    void oddRows();
    void memoryOnly();

private:
    static constexpr int Owner = StoreEdits::Owner;

    QString file() const { return m_folder->filePath(QStringLiteral("my.store")); }
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files, QDir::Name); }
    void letOthersRead() const
    {
        QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7055));
    }
    static void assign(ProfileStore &store, int keyIdx, ushort code)
    {
        const vantrix_key_mapping key = plainKey(code);
        store.setKeyMapping(Owner, 0, keyIdx, &key);
    }
    static int codeOf(const ProfileStore &store, int keyIdx)
    {
        return int(store.state().mapping(Owner, 0, keyIdx).code);
    }
    /// Saves and closes a store that has code 4 on key 1 and got 5 on key 2, and reads it again.
    void checkReopened(std::unique_ptr<ProfileStore> store) const
    {
        QVERIFY(store->flush());
        store.reset();
        const ProfileStore again(file());
        QCOMPARE(codeOf(again, 1), 4);
        QCOMPARE(codeOf(again, 2), 5);
    }
    /// A store with key 1 on code 4 and a good copy of it.
    void makeStore() const
    {
        ProfileStore store(file());
        assign(store, 1, 4);
    }
    static QByteArray read(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString &name, const QByteArray &bytes)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }
    static void runSql(const QString &name, const QStringList &statements)
    {
        {
            QSqlDatabase db =
                QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("test"));
            db.setDatabaseName(name);
            QVERIFY(db.open());
            for (const QString &statement : statements) {
                QSqlQuery query(db);
                QVERIFY2(query.exec(statement), qPrintable(statement));
            }
        }
        QSqlDatabase::removeDatabase(QStringLiteral("test"));
    }
    /// Opens a store that is broken by those bytes and checks that nothing of it is lost.
    void checkSetAside(const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const char *const Damaged = "The store my.store is damaged and cannot be read. It was kept as "
                            "my.store.broken-1. The last good copy is used.";

/// What a person without rights on a folder may do, also when root runs the test.
class OrdinaryUser
{
public:
#ifdef Q_OS_LINUX
    OrdinaryUser()
    {
        ::setfsuid(65534);
    }
    ~OrdinaryUser()
    {
        ::setfsuid(::geteuid());
    }
#endif
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;
};

#ifdef Q_OS_LINUX
/// No file can grow beyond a size, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t room = 0)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit none = {room, m_limit.rlim_max};
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit m_limit = {};
    void (*m_handler)(int) = nullptr;
};
#endif

/// Another program that keeps everybody from a file.
class Holder
{
public:
    explicit Holder(const QString &name)
    {
        QSqlDatabase db =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("holder"));
        db.setDatabaseName(name);
        m_isHolding =
            db.open() && db.exec(QStringLiteral("PRAGMA locking_mode=EXCLUSIVE")).isActive() &&
            db.exec(QStringLiteral("BEGIN EXCLUSIVE")).lastError().type() == QSqlError::NoError;
    }
    ~Holder()
    {
        QSqlDatabase::database(QStringLiteral("holder")).close();
        QSqlDatabase::removeDatabase(QStringLiteral("holder"));
    }
    Holder(const Holder &) = delete;
    Holder &operator=(const Holder &) = delete;
    bool isHolding() const { return m_isHolding; }

private:
    bool m_isHolding = false;
};

const char *const CannotBeWritten = "The store my.store cannot be written. Changes are kept in "
                                    "memory and saved as soon as possible.";

} // namespace

void tst_StoreRobust::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_StoreRobust::checkSetAside(const QByteArray &bytes) const
{
    write(file(), bytes);
    const ProfileStore store(file());
    QCOMPARE(store.messages(), QStringList(QString::fromLatin1(Damaged)));
    QCOMPARE(read(file() + QStringLiteral(".broken-1")), bytes);
    QCOMPARE(codeOf(store, 1), 4);
    QVERIFY(store.isSaved());
}

void tst_StoreRobust::notSqlite()
{
    makeStore();
    checkSetAside("This is a letter to a friend, and no store at all.\n");
}

void tst_StoreRobust::emptyFile()
{
    makeStore();
    checkSetAside(QByteArray());
}

void tst_StoreRobust::truncated()
{
    makeStore();
    const QByteArray whole = read(file());
    QVERIFY(whole.size() > 8192);
    checkSetAside(whole.left(whole.size() / 2));
}

void tst_StoreRobust::brokenPages()
{
    makeStore();
    QByteArray bytes = read(file());
    bytes.replace(4096, 4096, QByteArray(4096, '\x5a'));
    checkSetAside(bytes);
}

void tst_StoreRobust::anotherProgramsDatabase()
{
    makeStore();
    const QString other = m_folder->filePath(QStringLiteral("other"));
    runSql(other, {QStringLiteral("CREATE TABLE addresses(name TEXT)")});
    checkSetAside(read(other));
}

void tst_StoreRobust::newerVersion()
{
    makeStore();
    QVERIFY(QFile::copy(file(), file() + QStringLiteral(".new")));
    QVERIFY(QFile::remove(file()));
    runSql(file() + QStringLiteral(".new"),
           {QStringLiteral("PRAGMA user_version=99"), QStringLiteral("CREATE TABLE later(a)")});
    QVERIFY(QFile::rename(file() + QStringLiteral(".new"), file()));
    const QByteArray bytes = read(file());
    const ProfileStore store(file());
    QCOMPARE(store.messages(),
             QStringList(QStringLiteral(
                 "The store my.store was written by a newer version of this program. It was kept "
                 "as my.store.newer-1. The last good copy is used.")));
    QCOMPARE(read(file() + QStringLiteral(".newer-1")), bytes);
    QCOMPARE(codeOf(store, 1), 4);
}

void tst_StoreRobust::brokenWithoutCopy()
{
    write(file(), "nonsense");
    ProfileStore store(file());
    QCOMPARE(store.messages(),
             QStringList(QStringLiteral(
                 "The store my.store is damaged and cannot be read. It was kept as "
                 "my.store.broken-1. There is no good copy of it, so everything starts empty.")));
    QCOMPARE(read(file() + QStringLiteral(".broken-1")), QByteArray("nonsense"));
    assign(store, 2, 9);
    QVERIFY(store.flush());
}

void tst_StoreRobust::brokenTwice()
{
    makeStore();
    write(file(), "first");
    {
        const ProfileStore store(file());
    }
    write(file(), "second");
    const ProfileStore store(file());
    QCOMPARE(read(file() + QStringLiteral(".broken-1")), QByteArray("first"));
    QCOMPARE(read(file() + QStringLiteral(".broken-2")), QByteArray("second"));
    QCOMPARE(codeOf(store, 1), 4);
}

void tst_StoreRobust::brokenCopyToo()
{
    makeStore();
    write(file(), "nonsense");
    write(file() + QStringLiteral(".bak"), "nonsense");
    const ProfileStore store(file());
    QCOMPARE(store.messages(),
             QStringList({QStringLiteral("The copy my.store.bak cannot be read. It was kept as "
                                         "my.store.bak.broken-1."),
                          QStringLiteral("The store my.store is damaged and cannot be read. It was "
                                         "kept as my.store.broken-1. There is no good copy of it, "
                                         "so everything starts empty.")}));
    QCOMPARE(codeOf(store, 1), 255);
    QCOMPARE(read(file() + QStringLiteral(".bak.broken-1")), QByteArray("nonsense"));
}

void tst_StoreRobust::missingFile()
{
    makeStore();
    QVERIFY(QFile::remove(file()));
    const ProfileStore store(file());
    QCOMPARE(store.messages(),
             QStringList(QStringLiteral(
                 "The store my.store was missing. The last good copy of it is used.")));
    QCOMPARE(codeOf(store, 1), 4);
}

void tst_StoreRobust::missingFolder()
{
    const QString name = m_folder->filePath(QStringLiteral("a/b/my.store"));
    {
        ProfileStore store(name);
        QCOMPARE(store.messages(), QStringList());
        assign(store, 1, 4);
    }
    QCOMPARE(codeOf(ProfileStore(name), 1), 4);
}

void tst_StoreRobust::readOnlyFolder()
{
#ifdef Q_OS_LINUX
    makeStore();
    letOthersRead();
    std::unique_ptr<ProfileStore> store;
    {
        const OrdinaryUser user;
        store = std::make_unique<ProfileStore>(file());
        QCOMPARE(store->messages(),
                 QStringList(QStringLiteral("The store my.store cannot be written. Changes are "
                                            "kept in memory and saved as soon as possible.")));
        QCOMPARE(codeOf(*store, 1), 4);
        assign(*store, 2, 5);
        QVERIFY(!store->flush());
        QVERIFY(!store->isSaved());
        QCOMPARE(store->messages().size(), 1);
    }
    QVERIFY(store->flush());
    QVERIFY(store->isSaved());
    QCOMPARE(store->messages().last(), QStringLiteral("All changes are saved again."));
    checkReopened(std::move(store));
#else
    QSKIP("needs a second user");
#endif
}

void tst_StoreRobust::brokenInReadOnlyFolder()
{
#ifdef Q_OS_LINUX
    makeStore();
    write(file(), "nonsense");
    letOthersRead();
    const OrdinaryUser user;
    const ProfileStore store(file());
    QCOMPARE(store.messages(),
             QStringList({QStringLiteral("The store my.store is damaged and cannot be read. It was "
                                         "left as it is. The last good copy is used."),
                          QStringLiteral("The store my.store cannot be written. Changes are kept "
                                         "in memory and saved as soon as possible.")}));
    QCOMPARE(codeOf(store, 1), 4);
    QCOMPARE(read(file()), QByteArray("nonsense"));
#else
    QSKIP("needs a second user");
#endif
}

void tst_StoreRobust::heldAtStart_data()
{
    QTest::addColumn<int>("copy"); // 0 none, 1 older than the store, 2 the same
    QTest::addColumn<bool>("isEdited");
    for (const int copy : {0, 1, 2}) {
        for (const bool isEdited : {false, true})
            QTest::addRow("copy %d, edited %d", copy, isEdited) << copy << isEdited;
    }
}

/// What was not shown is never written over.
void tst_StoreRobust::heldAtStart()
{
    QFETCH(int, copy);
    QFETCH(bool, isEdited);
    const QString copyName = file() + QStringLiteral(".bak");
    makeStore();
    QVERIFY(QFile::copy(copyName, file() + QStringLiteral(".older")));
    {
        ProfileStore store(file());
        assign(store, 3, 6);
    }
    if (copy < 2)
        QVERIFY(QFile::remove(copyName));
    if (copy == 1)
        QVERIFY(QFile::rename(file() + QStringLiteral(".older"), copyName));
    std::unique_ptr<ProfileStore> store;
    {
        const Holder holder(file());
        QVERIFY(holder.isHolding());
        store = std::make_unique<ProfileStore>(file());
        QCOMPARE(codeOf(*store, 1), copy > 0 ? 4 : 255);
        QCOMPARE(codeOf(*store, 3), copy == 2 ? 6 : 255);
        store->setCurrentKey(Owner, 0, 9);
        store->setMacroAssignLimit(7);
        if (isEdited)
            assign(*store, 2, 5);
        QVERIFY(!store->flush());
        QCOMPARE(store->messages(),
                 QStringList({QStringLiteral("Another program is using the store my.store. Changes "
                                             "are kept in memory and saved as soon as possible."),
                              copy > 0 ? QStringLiteral("The last good copy of it is shown until "
                                                        "what it holds can be read.")
                                       : QStringLiteral("What it holds is shown as soon as it can "
                                                        "be read.")}));
    }
    QSignalSpy replaced(store.get(), &ProfileStore::profileReplaced);
    QTRY_VERIFY(store->isSaved());
    QCoreApplication::processEvents();
    const bool isSame = copy == 2;
    const bool isAside = isEdited && !isSame;
    QStringList messages;
    if (isSame)
        messages << QStringLiteral("All changes are saved again.");
    else if (!isEdited)
        messages << QStringLiteral("The store my.store is shown as it is on the disk now.");
    else
        messages << QStringLiteral("The store my.store on the disk was another than what was shown "
                                   "here when something was changed. It was kept as "
                                   "my.store.unread-1, and a new one was begun.")
                 << QStringLiteral("All changes are saved again.");
    QCOMPARE(store->messages().mid(2), messages);
    QCOMPARE(replaced.count(), isEdited || isSame ? 0 : 1);
    const auto check = [&](const ProfileStore &shown) {
        QCOMPARE(codeOf(shown, 1), isAside && copy == 0 ? 255 : 4);
        QCOMPARE(codeOf(shown, 2), isEdited ? 5 : 255);
        QCOMPARE(codeOf(shown, 3), isAside ? 255 : 6);
        QCOMPARE(shown.macroAssignLimit(), 7);
    };
    check(*store);
    store.reset();
    check(ProfileStore(file()));
    const QString unread = file() + QStringLiteral(".unread-1");
    QCOMPARE(QFile::exists(unread), isAside);
    if (isAside)
        QCOMPARE(codeOf(ProfileStore(unread), 3), 6);
}

void tst_StoreRobust::unreadableAtStart()
{
#ifdef Q_OS_LINUX
    makeStore();
    QVERIFY(QFile::remove(file() + QStringLiteral(".bak")));
    letOthersRead();
    QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
    std::unique_ptr<ProfileStore> store;
    {
        const OrdinaryUser user;
        store = std::make_unique<ProfileStore>(file());
        QCOMPARE(
            store->messages(),
            QStringList({QString::fromLatin1(CannotBeWritten),
                         QStringLiteral("What it holds is shown as soon as it can be read.")}));
        QCOMPARE(codeOf(*store, 1), 255);
    }
    QTRY_COMPARE(codeOf(*store, 1), 4);
    assign(*store, 2, 5);
    checkReopened(std::move(store));
#else
    QSKIP("needs a second user");
#endif
}

void tst_StoreRobust::copyThatCannotBeRead_data()
{
    QTest::addColumn<bool>("isMissing");
    QTest::newRow("damaged store") << false;
    QTest::newRow("missing store") << true;
}

/// The last thing that is left of the contents is kept.
void tst_StoreRobust::copyThatCannotBeRead()
{
    QFETCH(bool, isMissing);
    makeStore();
    if (isMissing)
        QVERIFY(QFile::remove(file()));
    else
        write(file(), "nonsense");
    {
        const Holder holder(file() + QStringLiteral(".bak"));
        QVERIFY(holder.isHolding());
        const ProfileStore store(file());
        QCOMPARE(codeOf(store, 1), 255);
        QCOMPARE(store.messages().first(),
                 QStringLiteral("The copy my.store.bak cannot be read. It was kept as "
                                "my.store.bak.unread-1."));
    }
    QCOMPARE(codeOf(ProfileStore(file() + QStringLiteral(".bak.unread-1")), 1), 4);
}

/// A store that could not be written at first, and was by somebody else.
void tst_StoreRobust::savedByAnotherMeanwhile()
{
#ifdef Q_OS_LINUX
    makeStore();
    letOthersRead();
    std::unique_ptr<ProfileStore> guest;
    {
        const OrdinaryUser user;
        guest = std::make_unique<ProfileStore>(file());
    }
    {
        ProfileStore owner(file());
        QVERIFY(!owner.isReadOnly());
        assign(owner, 9, 9);
    }
    QTRY_VERIFY(guest->isSaved());
    QCOMPARE(codeOf(*guest, 9), 9);
    guest.reset();
    QCOMPARE(codeOf(ProfileStore(file()), 9), 9);
#else
    QSKIP("needs a second user");
#endif
}

/// A file that was damaged, or missing, and is there again before anything could be saved.
void tst_StoreRobust::broughtBackMeanwhile()
{
#ifdef Q_OS_LINUX
    const QString good = m_folder->filePath(QStringLiteral("good"));
    {
        ProfileStore store(good);
        assign(store, 1, 9);
    }
    makeStore();
    write(file(), "nonsense");
    letOthersRead();
    std::unique_ptr<ProfileStore> store;
    {
        const OrdinaryUser user;
        store = std::make_unique<ProfileStore>(file());
        QCOMPARE(codeOf(*store, 1), 4);
    }
    QVERIFY(QFile::remove(file()));
    QVERIFY(QFile::rename(good, file()));
    QTRY_VERIFY(store->isSaved());
    QCOMPARE(codeOf(*store, 1), 9);
    store.reset();
    QCOMPARE(codeOf(ProfileStore(file()), 1), 9);
#else
    QSKIP("needs a second user");
#endif
}

void tst_StoreRobust::folderThatCannotBeLookedInto()
{
#ifdef Q_OS_LINUX
    makeStore();
    QVERIFY(QFile::remove(file()));
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7000));
    std::unique_ptr<ProfileStore> store;
    {
        const OrdinaryUser user;
        store = std::make_unique<ProfileStore>(file());
        QCOMPARE(codeOf(*store, 1), 255);
    }
    QTRY_VERIFY(store->isSaved());
    QCOMPARE(codeOf(*store, 1), 4);
    QCOMPARE(store->messages().last(),
             QStringLiteral("The store my.store was missing. The last good copy of it is used."));
#else
    QSKIP("needs a second user");
#endif
}

void tst_StoreRobust::damagedBeforeItCouldBeRead()
{
#ifdef Q_OS_LINUX
    makeStore();
    write(file(), "nonsense");
    letOthersRead();
    QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
    std::unique_ptr<ProfileStore> store;
    {
        const OrdinaryUser user;
        store = std::make_unique<ProfileStore>(file());
        assign(*store, 2, 5);
        QVERIFY(!store->flush());
    }
    QVERIFY(store->flush());
    QCOMPARE(store->messages().mid(2),
             QStringList({QStringLiteral("The store my.store is damaged and cannot be read. It was "
                                         "kept as my.store.broken-1."),
                          QStringLiteral("All changes are saved again.")}));
    QCOMPARE(read(file() + QStringLiteral(".broken-1")), QByteArray("nonsense"));
    checkReopened(std::move(store));
#else
    QSKIP("needs a second user");
#endif
}

/// The journal of a file that is gone is not played on the copy that takes its place.
void tst_StoreRobust::journalWithoutAFile()
{
    makeStore();
    QByteArray journal;
    {
        ProfileStore store(file());
        for (int i = 0; i < KeyCount; ++i) {
            assign(store, i, ushort(30 + i));
            store.flush();
        }
        journal = read(file() + QStringLiteral("-wal"));
        QVERIFY(!journal.isEmpty());
    }
    makeStore(); // key 1 on 4 again, in the copy too
    QVERIFY(QFile::remove(file()));
    write(file() + QStringLiteral("-wal"), journal);
    const ProfileStore store(file());
    QCOMPARE(store.messages(),
             QStringList(QStringLiteral(
                 "The store my.store was missing. The last good copy of it is used.")));
    QCOMPARE(codeOf(store, 1), 4);
    QVERIFY(store.isSaved());
    QCOMPARE(read(file() + QStringLiteral(".missing-1-wal")), journal);
}

void tst_StoreRobust::removedAndClosed()
{
    {
        ProfileStore store(file());
        assign(store, 1, 4);
        assign(store, 2, 5);
        QVERIFY(store.flush());
        QVERIFY(QFile::remove(file()));
    }
    const ProfileStore again(file());
    QCOMPARE(again.messages(), QStringList());
    QCOMPARE(codeOf(again, 1), 4);
    QCOMPARE(codeOf(again, 2), 5);
}

/// The folder was made anew by another window, which has the store now.
void tst_StoreRobust::lockOfAnotherProgram()
{
#ifdef Q_OS_LINUX
    makeStore();
    ProfileStore store(file());
    const QString lock = file() + QStringLiteral(".lock");
    const QByteArray own = read(lock);
    QVERIFY(own.startsWith(QByteArray::number(QCoreApplication::applicationPid()) + '\n'));
    QVERIFY(QFile::remove(lock));
    // the parent of this process lives as long as it does
    const QString parent = QStringLiteral("/proc/%1/exe").arg(::getppid());
    QList<QByteArray> lines = own.split('\n');
    lines[0] = QByteArray::number(::getppid());
    lines[1] = QFileInfo(QFile::symLinkTarget(parent)).fileName().toUtf8();
    write(lock, lines.join('\n'));
    const QByteArray others("another's");
    QVERIFY(QFile::remove(file()));
    write(file(), others);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("our own lock file")));
    assign(store, 2, 5);
    QVERIFY(!store.flush());
    QCOMPARE(read(file()), others);
    QVERIFY(QFile::remove(lock));
    QVERIFY(store.flush());
    QCOMPARE(read(file() + QStringLiteral(".replaced-1")), others);
#else
    QSKIP("needs to know other processes");
#endif
}

void tst_StoreRobust::olderTwice()
{
    const QString older = QFINDTESTDATA("data/store-v1.sqlite");
    for (const char *kept : {".v1", ".v1-2"}) {
        QFile::remove(file());
        QVERIFY(QFile::copy(older, file()));
        QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
        const ProfileStore store(file());
        QCOMPARE(read(file() + QLatin1String(kept)).isEmpty(), false);
        QVERIFY(store.messages().first().contains(QLatin1String(kept)));
    }
}

void tst_StoreRobust::roomForAnEmptyStoreOnly_data()
{
    QTest::addColumn<bool>("isReplaced");
    QTest::newRow("removed") << false;
    QTest::newRow("replaced") << true;
}

/// An empty store in place of a full one would be taken for the last word at the next start.
void tst_StoreRobust::roomForAnEmptyStoreOnly()
{
#ifdef Q_OS_LINUX
    QFETCH(bool, isReplaced);
    {
        ProfileStore store(file());
        for (int i = 0; i < 200; ++i) {
            store.setProfileName(Owner, i % 24, QString::number(i).repeated(40));
            assign(store, i % 28, ushort(5 + i % 20));
            store.flush();
        }
    }
    {
        ProfileStore store(file());
        QVERIFY(QFile::remove(file()));
        if (isReplaced)
            write(file(), "another");
        const FullDisk nearly(34000);
        QVERIFY(!store.flush());
        QVERIFY(store.hasUnsavedWork());
    }
    const ProfileStore again(file());
    QCOMPARE(again.messages(),
             QStringList(QStringLiteral(
                 "The store my.store was missing. The last good copy of it is used.")));
    QCOMPARE(again.stepNames().size(), 200);
#else
    QSKIP("needs a limit on the size of files");
#endif
}

void tst_StoreRobust::memoryComesBeforeCopies_data()
{
    QTest::addColumn<bool>("isDamaged");
    QTest::addColumn<bool>("hasCopy");
    QTest::addColumn<bool>("isEdited");
    for (int i = 0; i < 8; ++i) {
        QTest::addRow("damaged %d, copy %d, edited %d", i & 1, i >> 1 & 1, i >> 2)
            << bool(i & 1) << bool(i >> 1 & 1) << bool(i >> 2);
    }
}

/// Read whole where nothing could be written; then the file goes.
void tst_StoreRobust::memoryComesBeforeCopies()
{
#ifdef Q_OS_LINUX
    QFETCH(bool, isDamaged);
    QFETCH(bool, hasCopy);
    QFETCH(bool, isEdited);
    const QString copy = file() + QStringLiteral(".bak");
    const QString older = file() + QStringLiteral(".older");
    makeStore();
    QVERIFY(QFile::rename(copy, older));
    {
        ProfileStore store(file());
        assign(store, 3, 6);
    }
    QVERIFY(QFile::remove(copy));
    if (hasCopy)
        QVERIFY(QFile::rename(older, copy));
    letOthersRead();
    std::unique_ptr<ProfileStore> store;
    {
        const OrdinaryUser user;
        store = std::make_unique<ProfileStore>(file());
        if (isEdited)
            assign(*store, 2, 5);
        QVERIFY(!store->flush());
    }
    QVERIFY(QFile::remove(file()));
    if (isDamaged)
        write(file(), "nonsense");
    QTRY_VERIFY(store->isSaved());
    store.reset();
    const ProfileStore again(file());
    QCOMPARE(codeOf(again, 1), 4);
    QCOMPARE(codeOf(again, 2), isEdited ? 5 : 255);
    QCOMPARE(codeOf(again, 3), 6);
    QVERIFY(!QFile::exists(file() + QStringLiteral(".unread-1")));
#else
    QSKIP("needs a second user");
#endif
}

/// It can be read as the program closes.
void tst_StoreRobust::settingsMadeBeforeItCouldBeRead()
{
    makeStore();
    QVERIFY(QFile::remove(file() + QStringLiteral(".bak")));
    std::unique_ptr<ProfileStore> store;
    {
        const Holder holder(file());
        store = std::make_unique<ProfileStore>(file());
        store->setMacroAssignLimit(7);
        store->setAppPath(1, QStringLiteral("/mine"));
        QVERIFY(!store->flush());
    }
    store.reset();
    ProfileStore again(file());
    QString path;
    again.getAppPath(1, path);
    QCOMPARE(path, QStringLiteral("/mine"));
    QCOMPARE(again.macroAssignLimit(), 7);
    QCOMPARE(codeOf(again, 1), 4);
}

void tst_StoreRobust::olderThatCannotBeMigrated()
{
    makeStore();
    QVERIFY(QFile::remove(file() + QStringLiteral(".bak")));
    runSql(file(), {QStringLiteral("DROP TABLE record"), QStringLiteral("CREATE TABLE record(a)"),
                    QStringLiteral("PRAGMA user_version=1")});
    ProfileStore store(file());
    for (int i = 0; i < 3; ++i) {
        assign(store, 2, ushort(5 + i));
        QVERIFY(!store.flush());
    }
    QVERIFY(QFile::exists(file()));
    QVERIFY(!QFile::exists(file() + QStringLiteral(".v1-2")));
}

void tst_StoreRobust::folderThatCannotBeEnteredForAWhile()
{
#ifdef Q_OS_LINUX
    makeStore();
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7077));
    QFile::setPermissions(file(), QFile::Permissions(0x6666));
    std::unique_ptr<ProfileStore> store;
    {
        const OrdinaryUser user;
        store = std::make_unique<ProfileStore>(file());
        QVERIFY(store->isSaved());
    }
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7000));
    {
        const OrdinaryUser user;
        assign(*store, 2, 5);
        QVERIFY(!store->flush());
    }
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7077));
    {
        const OrdinaryUser user;
        QVERIFY(store->flush());
    }
    QVERIFY(!QFile::exists(file() + QStringLiteral(".replaced-1")));
    QCOMPARE(store->messages().last(), QStringLiteral("All changes are saved again."));
    checkReopened(std::move(store));
#else
    QSKIP("needs a second user");
#endif
}

void tst_StoreRobust::nothingIsSavedInsideAStep()
{
    makeStore();
    ProfileStore store(file());
    store.setPageLimit(store.pageCount());
    for (int size = 1000; store.isSaved() && size < 1'000'000; size *= 2) {
        store.setSetting(QStringLiteral("large"), QString(size, QLatin1Char('x')));
        store.flush();
    }
    QVERIFY(!store.isSaved());
    store.setPageLimit(0);
    store.beginStep(QStringLiteral("Step"));
    assign(store, 2, 5);
    QTest::qWait(2500); // an attempt to save comes every two seconds
    QVERIFY(!store.isSaved());
    store.endStep();
    QTRY_VERIFY(store.isSaved());
    QCOMPARE(store.stepNames().last(), QStringLiteral("Step"));
}

/// The file is found to be damaged when its copy is to be made.
void tst_StoreRobust::damagedWhileRunning()
{
    makeStore();
    {
        ProfileStore store(file());
        for (int i = 0; i < 60; ++i)
            store.setSetting(QStringLiteral("n%1").arg(i), QString(100000, QLatin1Char('a')));
    }
    {
        ProfileStore store(file());
        QFile damaged(file());
        QVERIFY(damaged.open(QIODevice::ReadWrite));
        QVERIFY(damaged.seek(damaged.size() / 2 & ~4095));
        damaged.write(QByteArray(8192, '\x5a'));
        damaged.close();
        assign(store, 2, 5);
        store.flush();
    }
    const ProfileStore again(file());
    QCOMPARE(codeOf(again, 1), 4);
    QCOMPARE(codeOf(again, 2), 5);
}

void tst_StoreRobust::secondStoreCannotRead()
{
#ifdef Q_OS_LINUX
    makeStore();
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7077));
    ProfileStore first(file());
    QFile::setPermissions(file(), QFile::Permissions());
    const OrdinaryUser user;
    const ProfileStore store(file());
    QVERIFY(store.isReadOnly());
    QCOMPARE(store.messages(),
             QStringList(QStringLiteral("Another window has the store my.store open. It cannot be "
                                        "read here, and changes made here are not kept.")));
#else
    QSKIP("needs a second user");
#endif
}

/// What was written last lies in the journal of a program that was killed.
void tst_StoreRobust::journalInReadOnlyFolder()
{
#ifdef Q_OS_LINUX
    makeStore();
    {
        ProfileStore killed(file());
        assign(killed, 2, 5);
        QVERIFY(killed.flush());
        for (const char *suffix : {"", "-wal"}) {
            QVERIFY(QFile::copy(file() + QLatin1String(suffix),
                                m_folder->filePath(QLatin1String("left")) + QLatin1String(suffix)));
        }
    }
    for (const char *suffix : {"", "-wal"}) {
        QFile::remove(file() + QLatin1String(suffix));
        QVERIFY(QFile::rename(m_folder->filePath(QLatin1String("left")) + QLatin1String(suffix),
                              file() + QLatin1String(suffix)));
    }
    letOthersRead();
    std::unique_ptr<ProfileStore> store;
    {
        const OrdinaryUser user;
        store = std::make_unique<ProfileStore>(file());
        QCOMPARE(codeOf(*store, 1), 4);
        QCOMPARE(codeOf(*store, 2), 255);
    }
    QTRY_COMPARE(codeOf(*store, 2), 5);
    QCOMPARE(codeOf(*store, 1), 4);
#else
    QSKIP("needs a second user");
#endif
}

void tst_StoreRobust::fullDiskAtStart()
{
#ifdef Q_OS_LINUX
    makeStore();
    std::unique_ptr<ProfileStore> store;
    {
        const FullDisk full;
        store = std::make_unique<ProfileStore>(file());
        QCOMPARE(store->messages(), QStringList(QString::fromLatin1(CannotBeWritten)));
        QCOMPARE(codeOf(*store, 1), 4);
        assign(*store, 2, 5);
        QVERIFY(!store->flush());
    }
    checkReopened(std::move(store));
    QVERIFY(!QFile::exists(file() + QStringLiteral(".unread-1")));
#else
    QSKIP("needs a limit on the size of files");
#endif
}

void tst_StoreRobust::brokenOnAFullDisk()
{
#ifdef Q_OS_LINUX
    makeStore();
    write(file(), "nonsense");
    std::unique_ptr<ProfileStore> store;
    {
        const FullDisk full;
        store = std::make_unique<ProfileStore>(file());
        QCOMPARE(store->messages(),
                 QStringList({QString::fromLatin1(Damaged), QString::fromLatin1(CannotBeWritten)}));
        QCOMPARE(codeOf(*store, 1), 4);
        assign(*store, 2, 5);
        QVERIFY(!store->flush());
    }
    QVERIFY(store->flush());
    QCOMPARE(store->messages().mid(2), QStringList(QStringLiteral("All changes are saved again.")));
    checkReopened(std::move(store));
    QCOMPARE(read(file() + QStringLiteral(".broken-1")), QByteArray("nonsense"));
#else
    QSKIP("needs a limit on the size of files");
#endif
}

void tst_StoreRobust::missingOnAFullDisk()
{
#ifdef Q_OS_LINUX
    makeStore();
    QVERIFY(QFile::remove(file()));
    std::unique_ptr<ProfileStore> store;
    {
        const FullDisk full;
        store = std::make_unique<ProfileStore>(file());
        QCOMPARE(codeOf(*store, 1), 4);
        assign(*store, 2, 5);
        QVERIFY(!store->flush());
    }
    checkReopened(std::move(store));
#else
    QSKIP("needs a limit on the size of files");
#endif
}

void tst_StoreRobust::fullDisk()
{
    makeStore();
    ProfileStore store(file());
    QSignalSpy told(&store, &ProfileStore::message);
    QSignalSpy saved(&store, &ProfileStore::savedChanged);
    store.setPageLimit(store.pageCount());
    StoreEdits edits(store, 5);
    while (store.flush()) {
        edits.look();
        edits.edit();
    }
    QVERIFY(!store.isSaved());
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.at(0).at(0).toString(),
             QStringLiteral("There is no room on the disk for the store my.store. Changes are kept "
                            "in memory and saved as soon as possible."));
    assign(store, 3, 9);
    QVERIFY(!store.flush());
    QCOMPARE(told.count(), 1);
    const int transactions = store.transactionCount();
    store.setPageLimit(0);
    // nobody has to do anything more for it
    QTRY_VERIFY(store.isSaved());
    QCOMPARE(store.transactionCount(), transactions + 1);
    QCOMPARE(store.messages().last(), QStringLiteral("All changes are saved again."));
    QCOMPARE(saved.count(), 2);
    const ProfileStore reader(file());
    QVERIFY(reader.state() == store.state());
    QCOMPARE(reader.stepNames(), store.stepNames());
}

void tst_StoreRobust::removedWhileRunning()
{
    makeStore();
    {
        ProfileStore store(file());
        QVERIFY(QFile::remove(file()));
        assign(store, 2, 5);
        QVERIFY(store.flush());
        QCOMPARE(store.messages(),
                 QStringList(QStringLiteral("The store my.store was removed while the program was "
                                            "running. It was written again.")));
    }
    ProfileStore store(file());
    QCOMPARE(store.messages(), QStringList());
    QCOMPARE(codeOf(store, 1), 4);
    QCOMPARE(codeOf(store, 2), 5);
    QCOMPARE(store.stepNames().size(), 2);
}

void tst_StoreRobust::replacedWhileRunning()
{
    makeStore();
    ProfileStore store(file());
    write(m_folder->filePath(QStringLiteral("other")), "other");
    QVERIFY(QFile::remove(file()));
    QVERIFY(QFile::rename(m_folder->filePath(QStringLiteral("other")), file()));
    assign(store, 2, 5);
    QVERIFY(store.flush());
    QCOMPARE(store.messages(),
             QStringList(QStringLiteral(
                 "The store my.store was replaced by another file while the program was running. "
                 "That file was kept as my.store.replaced-1, and the store was written again.")));
    QCOMPARE(read(file() + QStringLiteral(".replaced-1")), QByteArray("other"));
    const ProfileStore reader(file());
    QVERIFY(reader.state() == store.state());
}

/// As by somebody who brings back a copy while the program runs.
void tst_StoreRobust::replacedByAnotherStore()
{
    const QString other = m_folder->filePath(QStringLiteral("other"));
    {
        ProfileStore store(other);
        assign(store, 1, 9);
        assign(store, 2, 8);
    }
    QVERIFY(QFile::remove(other + QStringLiteral(".bak")));
    makeStore();
    ProfileStore store(file());
    assign(store, 3, 6);
    QVERIFY(store.flush());
    QVERIFY(QFile::exists(file() + QStringLiteral("-wal")));
    QVERIFY(QFile::remove(file()));
    QVERIFY(QFile::rename(other, file()));
    assign(store, 2, 5);
    QVERIFY(store.flush());
    const ProfileStore kept(file() + QStringLiteral(".replaced-1"));
    QCOMPARE(codeOf(kept, 1), 9);
    QCOMPARE(codeOf(kept, 2), 8);
    QCOMPARE(codeOf(kept, 3), 255);
    const ProfileStore reader(file());
    QVERIFY(reader.state() == store.state());
}

void tst_StoreRobust::folderRemovedWhileRunning()
{
    const QString name = m_folder->filePath(QStringLiteral("a/my.store"));
    ProfileStore store(name);
    assign(store, 1, 4);
    QVERIFY(store.flush());
    QVERIFY(QDir(m_folder->filePath(QStringLiteral("a"))).removeRecursively());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("our own lock file")));
    assign(store, 2, 5);
    QVERIFY(store.flush());
    const ProfileStore reader(name);
    QVERIFY(reader.state() == store.state());
}

/// Something stands where the folder was, and goes again.
void tst_StoreRobust::folderReplacedWhileRunning()
{
    const QString folder = m_folder->filePath(QStringLiteral("a"));
    const QString name = folder + QStringLiteral("/my.store");
    ProfileStore store(name);
    assign(store, 1, 4);
    QVERIFY(store.flush());
    QVERIFY(!store.hasUnsavedWork());
    QVERIFY(QDir(folder).removeRecursively());
    write(folder, "other");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("our own lock file")));
    store.setSetting(QStringLiteral("width"), QStringLiteral("100"));
    QVERIFY(!store.flush());
    QVERIFY(store.hasUnsavedWork());
    QCOMPARE(store.messages(),
             QStringList(QStringLiteral("The store my.store cannot be written. Changes are kept in "
                                        "memory and saved as soon as possible.")));
    QVERIFY(QFile::remove(folder));
    QVERIFY(store.flush());
    QVERIFY(!store.hasUnsavedWork());
    QCOMPARE(store.messages().mid(1),
             QStringList({QStringLiteral("The store my.store was removed while the program was "
                                         "running. It was written again."),
                          QStringLiteral("All changes are saved again.")}));
    const ProfileStore reader(name);
    QVERIFY(reader.state() == store.state());
}

void tst_StoreRobust::unsavedWork_data()
{
    QTest::addColumn<int>("what");
    QTest::addColumn<bool>("isWork");
    QTest::newRow("setting") << 0 << false;
    QTest::newRow("selected key") << 1 << false;
    QTest::newRow("key") << 2 << true;
    QTest::newRow("device image") << 3 << true;
}

void tst_StoreRobust::unsavedWork()
{
    QFETCH(int, what);
    QFETCH(bool, isWork);
    makeStore();
    ProfileStore store(file());
    store.setPageLimit(store.pageCount());
    for (int size = 1000; store.isSaved() && size < 1'000'000; size *= 2) {
        store.setSetting(QStringLiteral("large"), QString(size, QLatin1Char('x')));
        store.flush();
    }
    QVERIFY(!store.hasUnsavedWork());
    if (what == 0)
        store.setSetting(QStringLiteral("width"), QStringLiteral("100"));
    if (what == 1)
        store.setCurrentKey(0, 0, 5);
    if (what == 2)
        assign(store, 2, 5);
    if (what == 3)
        store.setDeviceRecord(profileRecord(StoreTable::DeviceImage, 0, 0), QByteArray("image"));
    QVERIFY(!store.flush());
    QCOMPARE(store.hasUnsavedWork(), isWork);
    store.setPageLimit(0);
    QVERIFY(store.flush());
    QVERIFY(!store.hasUnsavedWork());
}

void tst_StoreRobust::heldByAnotherProgram()
{
    makeStore();
    ProfileStore store(file());
    {
        QSqlDatabase db =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("holder"));
        db.setDatabaseName(file());
        QVERIFY(db.open());
        QSqlQuery query(db);
        QVERIFY(query.exec(QStringLiteral("BEGIN IMMEDIATE")));
        assign(store, 2, 5);
        QVERIFY(!store.flush());
        QCOMPARE(store.messages(),
                 QStringList(QStringLiteral("Another program is using the store my.store. Changes "
                                            "are kept in memory and saved as soon as possible.")));
        QVERIFY(query.exec(QStringLiteral("ROLLBACK")));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("holder"));
    QVERIFY(store.flush());
    QCOMPARE(store.messages().last(), QStringLiteral("All changes are saved again."));
}

/// As a process leaves it that is killed between making the file and writing its name.
void tst_StoreRobust::lockWithoutAnOwner()
{
    write(file() + QStringLiteral(".lock"), QByteArray());
    const ProfileStore store(file());
    QCOMPARE(store.messages(), QStringList());
    QVERIFY(!store.isReadOnly());
}

void tst_StoreRobust::secondStoreOnlyReads()
{
    makeStore();
    ProfileStore first(file());
    {
        ProfileStore second(file());
        QVERIFY(second.isReadOnly());
        QCOMPARE(second.messages(),
                 QStringList(QStringLiteral("Another window has the store my.store open. It is "
                                            "shown here, but changes made here are not kept.")));
        QCOMPARE(codeOf(second, 1), 4);
        assign(second, 2, 5);
        QVERIFY(second.flush());
        QCOMPARE(codeOf(second, 2), 5);
        QCOMPARE(second.transactionCount(), 0);
    }
    QVERIFY(!first.isReadOnly());
    assign(first, 3, 6);
    QVERIFY(first.flush());
    const ProfileStore third(file());
    QCOMPARE(codeOf(third, 2), 255);
    QCOMPARE(codeOf(third, 3), 6);
}

void tst_StoreRobust::copyIsMadeAtCleanClose()
{
    makeStore();
    QCOMPARE(files(), QStringList({QStringLiteral("my.store"), QStringLiteral("my.store.bak")}));
    {
        ProfileStore store(file());
        assign(store, 2, 5);
    }
    QFile::remove(file());
    QVERIFY(QFile::copy(file() + QStringLiteral(".bak"), file()));
    QCOMPARE(codeOf(ProfileStore(file()), 2), 5);
}

void tst_StoreRobust::oddRows()
{
    makeStore();
    runSql(file(),
           {QStringLiteral("INSERT INTO record VALUES('mapping', 1, 0, 2, '', x'0102')"),
            QStringLiteral("INSERT INTO record VALUES('mapping', 1, 0, 3, '', "
                           "x'ffffffffffffffffffffff')"),
            QStringLiteral("INSERT INTO record VALUES('unheard-of', 1, 0, 3, '', x'00')"),
            QStringLiteral("INSERT INTO record VALUES('hotkey', 1, 0, 4, '', x'00ff')"),
            QStringLiteral("INSERT INTO record VALUES('macroorder', 1, 0, 0, '', x'7fffffff')"),
            QStringLiteral("INSERT INTO record VALUES('profileorder', 1, 0, 0, '', x'05ff0505')"),
            QStringLiteral("INSERT INTO record VALUES('mode', 1, 0, 0, '', x'ff')")});
    ProfileStore store(file());
    QCOMPARE(codeOf(store, 2), 255);
    QCOMPARE(codeOf(store, 3), 0xffff);
    QCOMPARE(store.getMode(Owner, 0), 0);
    std::map<uchar, vantrix_hotkey_assign> hotKeys;
    QVERIFY(store.getHotKeyAssigns(Owner, 0, &hotKeys));
    QVERIFY(hotKeys.empty());
    const std::vector<int> order = store.state().profileOrder(Owner);
    QCOMPARE(int(order.size()), 24);
    QCOMPARE(order.at(0), 5);
    QCOMPARE(order.at(1), 0);
    QVERIFY(store.state().macroNames(Owner).isEmpty());
}

void tst_StoreRobust::memoryOnly()
{
    ProfileStore store{QString()};
    assign(store, 1, 4);
    QVERIFY(store.flush());
    QCOMPARE(store.messages(), QStringList());
    QVERIFY(store.isSaved());
}

VANTRIX_TEST_MAIN(tst_StoreRobust)
#include "tst_StoreRobust.moc"
