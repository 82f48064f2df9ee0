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

/// Tells one content from any other.
QByteArray printOf(const StoreContent &content)
{
    QByteArray bytes = content.state.toBytes() + QByteArray::number(content.position);
    for (const StoreStep &step : content.steps)
        bytes += step.body;
    return bytes;
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

/// True when the lock file is that of another program that lives: it came with the folder, say.
bool StoreKeeper::isLockOfAnother()
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!m_lock.getLockInfo(&process, &host, &program) ||
        process == QCoreApplication::applicationPid())
        return false;
    QLockFile probe(m_name + lockSuffix());
    probe.setStaleLockTime(0);
    return !probe.tryLock(0);
}

void StoreKeeper::readOnly(StoreContent *content)
{
    m_access = SecondReader;
    const bool isShown = readElsewhere(m_name, content) == StoreError::None;
    say(tr("Another window has the store %1 open.").arg(shortName(m_name)) + QLatin1Char(' ') +
        (isShown ? tr("It is shown here, but changes made here are not kept.")
                 : tr("It cannot be read here, and changes made here are not kept.")));
}

StoreError StoreKeeper::readElsewhere(const QString &name, StoreContent *content)
{
    if (!QFile::exists(name))
        return StoreError::ReadOnly;
    StoreFile file;
    StoreError error = file.open(name, StoreFile::ReadOnlyAccess);
    if (error == StoreError::Older) {
        const QTemporaryDir elsewhere;
        const QString copy = elsewhere.filePath(QStringLiteral("store"));
        error = StoreMigration::migrate(name, copy);
        return error == StoreError::None ? readElsewhere(copy, content) : error;
    }
    StoreContent loaded;
    if (error == StoreError::None)
        error = file.load(&loaded);
    if (error == StoreError::None)
        *content = std::move(loaded);
    return error;
}

/// Opens the file for writing; on failure `content` is what can be read all the same.
void StoreKeeper::takeOver(StoreContent *content)
{
    const StoreError error = openAny(content);
    if (error == StoreError::None) {
        m_access = Writer;
        settle();
        return;
    }
    m_file.close();
    m_access = InMemory;
    m_writeAll = true;
    m_saved = false;
    report(error);
    const StoreError reading = readElsewhere(m_name, content);
    const bool isUseless = reading == StoreError::Damaged || reading == StoreError::Newer;
    if (reading != StoreError::None && !isUseless && QFile::exists(m_name))
        say(readElsewhere(backupName(), content) == StoreError::None
                ? tr("The last good copy of it is shown until what it holds can be read.")
                : tr("What it holds is shown as soon as it can be read."));
    m_base = printOf(*content);
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
    // a file in a folder that can't be written opens without complaint, so ask it
    error = m_file.probe();
    if (error == StoreError::None && !m_backupIsFresh)
        m_file.copyTo(backupName());
    return error;
}

StoreError StoreKeeper::openNew(StoreContent *content)
{
    // a journal without its file would be played on the next one of that name
    StoreFile::setAside(m_name, QStringLiteral("missing"));
    if (hasAll())
        return openFresh(content);
    bool isFound = false;
    const StoreError error = openCopy(content, &isFound);
    if (isFound && isNews(*content))
        say(tr("The store %1 was missing. The last good copy of it is used.")
                .arg(shortName(m_name)));
    return error;
}

/// Whether memory has what the store held, so that no copy and no empty store takes its place.
bool StoreKeeper::hasAll() const
{
    return isOwner() || (m_base && *m_base != printOf(StoreContent()));
}

/// Puts a store with all that memory has where none is; without room for it, nothing appears.
StoreError StoreKeeper::createWhole()
{
    const QString unfinished = m_name + QStringLiteral(".new");
    StoreFile::remove(unfinished);
    StoreError error = StoreFile::create(unfinished);
    if (error == StoreError::None) {
        StoreFile file;
        error = file.open(unfinished, StoreFile::ReadWrite);
        if (error == StoreError::None)
            error = file.saveAll(*m_state, *m_history);
    }
    if (error == StoreError::None && QFile::exists(unfinished + QStringLiteral("-wal")))
        error = StoreError::Full; // its journal could not be taken in
    if (error == StoreError::None && !StoreFile::replace(unfinished, m_name))
        error = StoreError::ReadOnly;
    if (error != StoreError::None)
        StoreFile::remove(unfinished);
    else
        m_base.reset();
    return error;
}

/// Whether a content is another than what memory began with.
bool StoreKeeper::isNews(const StoreContent &content) const
{
    return !m_base || printOf(content) != *m_base;
}

/// Opens what was just put in place, or an empty store when nothing was.
StoreError StoreKeeper::openFresh(StoreContent *content)
{
    if (!QFile::exists(m_name)) {
        const StoreError error = hasAll() ? createWhole() : StoreFile::create(m_name);
        if (error != StoreError::None)
            return error;
    }
    const StoreError error = m_file.open(m_name, StoreFile::ReadWrite);
    if (error == StoreError::Older)
        return openOlder(content);
    return error == StoreError::None ? openAndLoad(content) : error;
}

/// Opens the last good copy where the store should be, or an empty store when there is none. A
/// copy for which there is no room is read all the same, and one that cannot be read is kept.
StoreError StoreKeeper::openCopy(StoreContent *content, bool *isFound)
{
    const StoreError reading = readElsewhere(backupName(), content);
    *isFound = reading == StoreError::None;
    if (*isFound) {
        StoreFile backup;
        backup.open(backupName(), StoreFile::ReadOnlyAccess);
        const StoreError error = backup.copyTo(m_name);
        return error == StoreError::None ? openFresh(content) : error;
    }
    if (QFile::exists(backupName())) {
        const QString aside = StoreFile::setAside(backupName(), reading == StoreError::Damaged
                                                                    ? QStringLiteral("broken")
                                                                    : QStringLiteral("unread"));
        if (aside.isEmpty())
            return StoreError::ReadOnly;
        say(tr("The copy %1 cannot be read. It was kept as %2.")
                .arg(shortName(backupName()), shortName(aside)));
    }
    return openFresh(content);
}

StoreError StoreKeeper::openInsteadOf(StoreError error, StoreContent *content)
{
    m_file.close();
    const bool newer = error == StoreError::Newer;
    const QString aside =
        StoreFile::setAside(m_name, newer ? QStringLiteral("newer") : QStringLiteral("broken"));
    QString text = newer ? tr("The store %1 was written by a newer version of this program.")
                         : tr("The store %1 is damaged and cannot be read.");
    text = text.arg(shortName(m_name)) + QLatin1Char(' ') +
           (aside.isEmpty() ? tr("It was left as it is.")
                            : tr("It was kept as %1.").arg(shortName(aside)));
    if (hasAll()) {
        say(text);
        return aside.isEmpty() ? StoreError::ReadOnly : openFresh(content);
    }
    bool isFound = false;
    StoreError result = StoreError::ReadOnly;
    if (aside.isEmpty())
        isFound = readElsewhere(backupName(), content) == StoreError::None;
    else
        result = openCopy(content, &isFound);
    say(text + QLatin1Char(' ') +
        (isFound ? tr("The last good copy is used.")
                 : tr("There is no good copy of it, so everything starts empty.")));
    return result;
}

StoreError StoreKeeper::openOlder(StoreContent *content)
{
    m_file.close();
    const QString version =
        QStringLiteral("%1.v%2").arg(m_name).arg(StoreMigration::versionOf(m_name));
    QString kept = version;
    for (int number = 2; QFile::exists(kept); ++number)
        kept = QStringLiteral("%1-%2").arg(version).arg(number);
    StoreFile original;
    original.open(m_name, StoreFile::ReadOnlyAccess);
    StoreError error = original.copyTo(kept);
    original.close();
    if (error == StoreError::None) {
        error = StoreMigration::migrate(m_name, m_name);
        if (error != StoreError::None)
            StoreFile::remove(kept); // each attempt would leave another one
    }
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
    // the file could not be reached for a while
    if (isOwner() && StoreFile::idOf(m_name) == m_ownId)
        m_lossNote.clear();
    // the file was this program's, and another one is there now, or none
    if (isLost() || (isOwner() && StoreFile::idOf(m_name) != m_ownId))
        return writeAnew();
    if (!lock()) {
        if (m_lock.error() == QLockFile::LockFailedError)
            report(StoreError::Busy);
        return false;
    }
    const int said = m_messages.size();
    StoreContent found;
    const StoreError error = openAny(&found);
    if (error != StoreError::None) {
        m_file.close();
        report(error);
        return false;
    }
    m_access = Writer;
    m_writeAll = true;
    if (m_base && isNews(found)) {
        m_found = std::move(found);
        m_isFoundTold = m_messages.size() > said;
    }
    return true;
}

/// Makes a new file beside the one that is not what was shown.
StoreError StoreKeeper::replaceFound()
{
    m_found.reset();
    m_file.close();
    const QString aside = StoreFile::setAside(m_name, QStringLiteral("unread"));
    if (aside.isEmpty())
        return StoreError::ReadOnly;
    m_base.reset();
    m_lossNote = tr("The store %1 on the disk was another than what was shown here when something "
                    "was changed. It was kept as %2, and a new one was begun.")
                     .arg(shortName(m_name), shortName(aside));
    return makeAnew();
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
    if (isLockOfAnother())
        return StoreError::Busy;
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
    StoreFile::remove(m_name); // what SQLite left beside it
    const StoreError error = createWhole();
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
    m_state = &state;
    m_history = &history;
    const bool ready = m_access == Writer ? checkPlace() : reopen();
    if (!ready)
        return false;
    const bool hasWork = std::any_of(changed.begin(), changed.end(),
                                     [](const RecordId &id) { return isWork(id.table); });
    if (m_found && !hasWork) {
        if (!m_isFoundTold)
            say(tr("The store %1 is shown as it is on the disk now.").arg(shortName(m_name)));
        settle();
        return true;
    }
    StoreError error = m_found ? replaceFound() : StoreError::None;
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
    m_base.reset();
    m_ownId = m_file.id();
}

void StoreKeeper::close(const StoreState &state, const StoreHistory &history)
{
    if (m_access == Writer && m_saved && m_file.isOpen() && !m_backupIsFresh &&
        m_file.isInPlace() && m_file.copyTo(backupName()) != StoreError::None) {
        m_file.close();
        m_state = &state;
        m_history = &history;
        // it may have been damaged while the program was running, and memory has it all
        if (StoreFile().open(m_name, StoreFile::ReadOnlyAccess) == StoreError::Damaged &&
            !StoreFile::setAside(m_name, QStringLiteral("broken")).isEmpty() &&
            createWhole() == StoreError::None &&
            m_file.open(m_name, StoreFile::ReadWrite) == StoreError::None)
            m_file.copyTo(backupName());
    }
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
