#include "host/StoreKeeper.h"

#include "host/StoreMigration.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>

namespace {

bool hasOwner(const QLockFile &lock)
{
    qint64 process = 0;
    QString host;
    QString program;
    return lock.getLockInfo(&process, &host, &program);
}

QString lockSuffix()
{
    return QStringLiteral(".lock");
}

} // namespace

StoreKeeper::StoreKeeper(const QString &name) : m_name(name), m_lock(name + lockSuffix())
{
    // a lock never grows old: it ends with its process, which the lock file itself finds out
    m_lock.setStaleLockTime(0);
}

StoreKeeper::~StoreKeeper() = default;

StoreContent StoreKeeper::open()
{
    StoreContent content;
    if (m_name.isEmpty())
        return content;
    if (!lock() && m_lock.error() == QLockFile::LockFailedError) {
        readOnly(&content);
        return content;
    }
    takeOver(&content);
    return content;
}

bool StoreKeeper::lock()
{
    // The lock lies beside the store, in a folder that may be new or gone.
    QDir().mkpath(QFileInfo(m_name).absolutePath());
    if (m_lock.isLocked() || m_lock.tryLock(0))
        return true;
    // Whoever is killed while making the lock file leaves one without a name, of which nobody can
    // tell that its owner is gone. A living owner needs but a moment to write its name, and the
    // file of one that lives is not removed.
    if (m_lock.error() != QLockFile::LockFailedError || hasOwner(m_lock))
        return false;
    QThread::msleep(20);
    return !hasOwner(m_lock) && m_lock.removeStaleLockFile() && m_lock.tryLock(0);
}

void StoreKeeper::readOnly(StoreContent *content)
{
    m_access = SecondReader;
    readElsewhere(m_name, content);
    say(tr("Another window has the store %1 open. It is shown here, but changes made here are "
           "not kept.")
            .arg(shortName(m_name)));
}

StoreKeeper::Reading StoreKeeper::readElsewhere(const QString &name, StoreContent *content)
{
    if (!QFile::exists(name))
        return Unread;
    StoreFile file;
    const StoreError error = file.open(name, StoreFile::ReadOnlyAccess);
    if (error == StoreError::Older) {
        const QTemporaryDir elsewhere;
        const QString copy = elsewhere.filePath(QStringLiteral("store"));
        const bool isCopied = StoreMigration::migrate(name, copy) == StoreError::None;
        return isCopied ? readElsewhere(copy, content) : Unread;
    }
    StoreContent loaded;
    if (error != StoreError::None || file.load(&loaded) != StoreError::None)
        return Unread;
    *content = std::move(loaded);
    return file.isWhole() ? Whole : Partly;
}

/// Opens the file for writing; on failure `content` is what can be read all the same.
void StoreKeeper::takeOver(StoreContent *content)
{
    const StoreError error = openAny(content);
    if (error == StoreError::None) {
        m_access = Writer;
        return;
    }
    m_file.close();
    m_access = InMemory;
    m_writeAll = true;
    m_saved = false;
    report(error);
    if (m_isRead)
        return;
    Reading reading = readElsewhere(m_name, content);
    m_isRead = reading == Whole;
    if (reading == Unread)
        reading = readElsewhere(backupName(), content);
    if (!m_isRead && QFile::exists(m_name))
        say(reading == Unread
                ? tr("What it holds is shown as soon as it can be read.")
                : tr("The last good copy of it is shown until what it holds can be read."));
}

StoreError StoreKeeper::openAny(StoreContent *content)
{
    if (!QFile::exists(m_name))
        return openNew(content);
    m_backupIsFresh = !QFile::exists(m_name + QStringLiteral("-wal")) &&
                      QFileInfo(backupName()).lastModified() >= QFileInfo(m_name).lastModified();
    const StoreError error = m_file.open(m_name, StoreFile::ReadWrite);
    switch (error) {
    case StoreError::None:
        return openAndLoad(content);
    case StoreError::Older:
        return openOlder(content);
    case StoreError::Damaged:
    case StoreError::Newer:
        return openInsteadOf(error, content);
    default:
        return error;
    }
}

StoreError StoreKeeper::openAndLoad(StoreContent *content)
{
    StoreContent loaded;
    StoreError error = m_file.load(&loaded);
    if (error == StoreError::Damaged)
        return openInsteadOf(error, content);
    if (error != StoreError::None)
        return error;
    *content = std::move(loaded);
    m_isRead = true;
    // a file in a folder that can't be written opens without complaint, so ask it
    error = m_file.probe();
    if (error == StoreError::None && !m_backupIsFresh)
        m_file.copyTo(backupName());
    return error;
}

StoreError StoreKeeper::openNew(StoreContent *content)
{
    bool isFound = false;
    const StoreError error = openCopy(content, &isFound);
    if (isFound)
        say(tr("The store %1 was missing. The last good copy of it is used.")
                .arg(shortName(m_name)));
    return error;
}

/// Opens what was just put in place, or an empty store when nothing was.
StoreError StoreKeeper::openFresh(StoreContent *content)
{
    if (!QFile::exists(m_name)) {
        const StoreError error = StoreFile::create(m_name);
        if (error != StoreError::None)
            return error;
    }
    const StoreError error = m_file.open(m_name, StoreFile::ReadWrite);
    if (error == StoreError::Older)
        return openOlder(content);
    return error == StoreError::None ? openAndLoad(content) : error;
}

/// Opens the last good copy where the store should be, or an empty store when there is none. A
/// copy for which there is no room is read all the same.
StoreError StoreKeeper::openCopy(StoreContent *content, bool *isFound)
{
    *isFound = readElsewhere(backupName(), content) != Unread;
    m_isRead = *isFound; // there is no other file that could be read later
    if (!*isFound)
        return openFresh(content);
    StoreFile backup;
    backup.open(backupName(), StoreFile::ReadOnlyAccess);
    const StoreError error = backup.copyTo(m_name);
    return error == StoreError::None ? openFresh(content) : error;
}

StoreError StoreKeeper::openInsteadOf(StoreError error, StoreContent *content)
{
    m_file.close();
    const bool newer = error == StoreError::Newer;
    const QString aside =
        StoreFile::setAside(m_name, newer ? QStringLiteral("newer") : QStringLiteral("broken"));
    const QString reason = newer
                               ? tr("The store %1 was written by a newer version of this program.")
                               : tr("The store %1 is damaged and cannot be read.");
    const QString outcome = aside.isEmpty() ? tr("It was left as it is.")
                                            : tr("It was kept as %1.").arg(shortName(aside));
    bool isFound = false;
    StoreError result = StoreError::ReadOnly;
    if (aside.isEmpty())
        isFound = readElsewhere(backupName(), content) != Unread;
    else
        result = openCopy(content, &isFound);
    m_isRead = true; // what is left of the file is never used
    const QString copy = isFound ? tr("The last good copy is used.")
                                 : tr("There is no good copy of it, so everything starts empty.");
    say(reason.arg(shortName(m_name)) + QLatin1Char(' ') + outcome + QLatin1Char(' ') + copy);
    return result;
}

StoreError StoreKeeper::openOlder(StoreContent *content)
{
    m_file.close();
    const QString kept =
        QStringLiteral("%1.v%2").arg(m_name).arg(StoreMigration::versionOf(m_name));
    StoreFile original;
    original.open(m_name, StoreFile::ReadOnlyAccess);
    StoreError error = original.copyTo(kept);
    original.close();
    if (error == StoreError::None)
        error = StoreMigration::migrate(m_name, m_name);
    if (error == StoreError::None)
        error = m_file.open(m_name, StoreFile::ReadWrite);
    if (error == StoreError::None) {
        say(tr("The store %1 was brought up to date. The file of the earlier version was kept as "
               "%2.")
                .arg(shortName(m_name), shortName(kept)));
        return openAndLoad(content);
    }
    return error;
}

bool StoreKeeper::reopen()
{
    if (isLost())
        return writeAnew();
    if (!lock())
        return false;
    const bool wasRead = m_isRead;
    const bool isThere = QFile::exists(m_name);
    StoreContent found;
    const StoreError error = wasRead && !isThere ? openFresh(&found) : openAny(&found);
    if (error != StoreError::None) {
        m_isRead = wasRead;
        m_file.close();
        report(error);
        return false;
    }
    m_access = Writer;
    m_writeAll = true;
    if (!wasRead && isThere)
        m_found = std::move(found);
    return true;
}

/// Makes a new file beside the one that could not be read in time.
StoreError StoreKeeper::replaceUnread()
{
    m_found.reset();
    m_file.close();
    const QString aside = StoreFile::setAside(m_name, QStringLiteral("unread"));
    StoreError error = aside.isEmpty() ? StoreError::ReadOnly : StoreFile::create(m_name);
    if (error == StoreError::None)
        error = m_file.open(m_name, StoreFile::ReadWrite);
    if (!aside.isEmpty())
        say(tr("The store %1 could not be read before something was changed. It was kept as %2, "
               "and a new store was begun.")
                .arg(shortName(m_name), shortName(aside)));
    else
        m_isRead = false;
    return error;
}

/// Sees to it that what is written goes to the file of that name.
bool StoreKeeper::checkPlace()
{
    if (m_file.isInPlace())
        return true;
    m_file.close();
    m_file.removeLeftovers();
    m_access = InMemory;
    return writeAnew();
}

/// Makes the file again that went while the program was running.
bool StoreKeeper::writeAnew()
{
    const StoreError error = makeAnew();
    if (error != StoreError::None) {
        m_file.close();
        report(error);
        return false;
    }
    m_access = Writer;
    m_writeAll = true;
    return true;
}

StoreError StoreKeeper::makeAnew()
{
    const QString aside =
        QFile::exists(m_name) ? StoreFile::setAside(m_name, QStringLiteral("replaced")) : QString();
    if (!aside.isEmpty())
        m_lossNote = tr("The store %1 was replaced by another file while the program was running. "
                        "That file was kept as %2, and the store was written again.")
                         .arg(shortName(m_name), shortName(aside));
    else if (m_lossNote.isEmpty())
        m_lossNote = tr("The store %1 was removed while the program was running. It was written "
                        "again.")
                         .arg(shortName(m_name));
    if (QFile::exists(m_name))
        return StoreError::ReadOnly; // it could not be set aside
    if (!QFile::exists(m_name + lockSuffix()))
        m_lock.unlock();
    if (!lock())
        return StoreError::ReadOnly;
    for (const QString &left : {QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(m_name + left);
    const StoreError error = StoreFile::create(m_name);
    return error == StoreError::None ? m_file.open(m_name, StoreFile::ReadWrite) : error;
}

bool StoreKeeper::save(const StoreState &state, const StoreHistory &history,
                       const std::set<RecordId> &changed)
{
    if (m_name.isEmpty()) {
        ++m_transactions;
        return true;
    }
    if (m_access == SecondReader)
        return true;
    m_saved = false;
    const bool ready = m_access == Writer ? checkPlace() : reopen();
    if (!ready)
        return false;
    const bool hasWork = std::any_of(changed.begin(), changed.end(),
                                     [](const RecordId &id) { return isWork(id.table); });
    if (m_found && !hasWork) {
        say(tr("The store %1 can be read again, and is shown as it is.").arg(shortName(m_name)));
        settle();
        return true;
    }
    StoreError error = m_found ? replaceUnread() : StoreError::None;
    if (error == StoreError::None)
        error = m_writeAll ? m_file.saveAll(state, history) : m_file.save(state, history, changed);
    if (error != StoreError::None) {
        if (error == StoreError::ReadOnly || error == StoreError::Damaged || !m_file.isOpen()) {
            // such a connection does not recover by itself
            m_file.close();
            m_access = InMemory;
        }
        report(error);
        return false;
    }
    ++m_transactions;
    m_backupIsFresh = false;
    if (isLost())
        say(std::exchange(m_lossNote, QString()));
    if (m_reported != StoreError::None)
        say(tr("All changes are saved again."));
    settle();
    return true;
}

/// Disk and memory hold the same.
void StoreKeeper::settle()
{
    m_writeAll = false;
    m_saved = true;
    m_reported = StoreError::None;
}

void StoreKeeper::close()
{
    if (m_access == Writer && m_saved && m_file.isOpen() && !m_backupIsFresh && m_file.isInPlace())
        m_file.copyTo(backupName());
    m_file.close();
    m_lock.unlock();
    m_access = InMemory;
}

void StoreKeeper::report(StoreError error)
{
    // once is enough: the same trouble comes back with every attempt to save
    if (error == m_reported)
        return;
    m_reported = error;
    const QString name = shortName(m_name);
    const QString meanwhile =
        QLatin1Char(' ') + tr("Changes are kept in memory and saved as soon as possible.");
    if (error == StoreError::Full)
        say(tr("There is no room on the disk for the store %1.").arg(name) + meanwhile);
    else if (error == StoreError::Busy)
        say(tr("Another program is using the store %1.").arg(name) + meanwhile);
    else
        say(tr("The store %1 cannot be written.").arg(name) + meanwhile);
}

void StoreKeeper::say(const QString &message)
{
    m_messages << message;
}

QStringList StoreKeeper::takeMessages()
{
    QStringList messages;
    messages.swap(m_messages);
    return messages;
}

QString StoreKeeper::shortName(const QString &name) const
{
    return QFileInfo(name).fileName();
}
