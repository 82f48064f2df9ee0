#include "host/StoreFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QUuid>
#include <QVariant>

#include <algorithm>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

// result codes of SQLite
enum SqliteCode { Busy = 5, Locked = 6, ReadOnly = 8, Corrupt = 11, Full = 13, CantOpen = 14 };
constexpr int NotADatabase = 26;

StoreError errorOf(const QSqlError &error)
{
    if (!error.isValid())
        return StoreError::None;
    // the low byte is the code proper, the rest tells it apart further
    switch (error.nativeErrorCode().toInt() & 0xff) {
    case Busy:
    case Locked:
        return StoreError::Busy;
    case ReadOnly:
    case CantOpen:
        return StoreError::ReadOnly;
    case Full:
        return StoreError::Full;
    case Corrupt:
    case NotADatabase:
        return StoreError::Damaged;
    default:
        return StoreError::Failed;
    }
}

/// First column of the first row; an invalid value on failure.
QVariant valueOf(const QSqlDatabase &db, const QString &sql)
{
    QSqlQuery query(db);
    return query.exec(sql) && query.next() ? query.value(0) : QVariant();
}

/// Makes sure that a file that was just written survives a power cut.
void syncFile(const QString &name)
{
#ifdef Q_OS_UNIX
    const int file = ::open(QFile::encodeName(name).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return;
    ::fsync(file);
    ::close(file);
#else
    Q_UNUSED(name)
#endif
}

std::filesystem::path pathOf(const QString &name)
{
    return std::filesystem::path(name.toStdU16String());
}

const QStringList &companions()
{
    static const QStringList suffixes = {QStringLiteral("-wal"), QStringLiteral("-shm"),
                                         QStringLiteral("-journal")};
    return suffixes;
}

} // namespace

struct StoreFile::Statements
{
    explicit Statements(const QSqlDatabase &db)
        : putRow(db), deleteRow(db), putStep(db), deleteStep(db), putMeta(db)
    {
    }

    QSqlQuery putRow;
    QSqlQuery deleteRow;
    QSqlQuery putStep;
    QSqlQuery deleteStep;
    QSqlQuery putMeta;
};

quint64 StoreFile::idOf(const QString &name)
{
#ifdef Q_OS_UNIX
    struct stat info = {};
    return ::stat(QFile::encodeName(name).constData(), &info) == 0 ? quint64(info.st_ino) : 0;
#else
    return QFile::exists(name) ? 1 : 0;
#endif
}

StoreFile::StoreFile() = default;

StoreFile::~StoreFile()
{
    close();
}

QStringList StoreFile::schema()
{
    return {
        QStringLiteral("CREATE TABLE record(tbl TEXT NOT NULL, owner INTEGER NOT NULL, "
                       "profile INTEGER NOT NULL, idx INTEGER NOT NULL, name TEXT NOT NULL, "
                       "value BLOB NOT NULL, PRIMARY KEY(tbl, owner, profile, idx, name)) "
                       "WITHOUT ROWID"),
        QStringLiteral(
            "CREATE TABLE step(id INTEGER PRIMARY KEY, name TEXT NOT NULL, body BLOB NOT NULL)"),
        QStringLiteral(
            "CREATE TABLE meta(name TEXT PRIMARY KEY, value BLOB NOT NULL) WITHOUT ROWID"),
        QStringLiteral("PRAGMA application_id=%1").arg(ApplicationId),
        QStringLiteral("PRAGMA user_version=%1").arg(SchemaVersion),
    };
}

StoreError StoreFile::open(const QString &name, Access access)
{
    close();
    m_name = name;
    m_fileId = idOf(name);
    m_companionIds.clear();
    const QString timeout = QStringLiteral("QSQLITE_BUSY_TIMEOUT=200");
    const QString reading = QStringLiteral("QSQLITE_OPEN_READONLY;") + timeout;
    if (access == ReadOnlyAccess) {
        const StoreError error = connect(name, reading);
        if (error != StoreError::ReadOnly && error != StoreError::Failed)
            return error;
        // SQLite keeps files beside a store even for reading, which takes a folder that can be
        // written and room, unless it is told that nobody writes; then it passes over its journal
        close();
        m_name = name;
        const QString url = QString::fromLatin1(QUrl::fromLocalFile(name).toEncoded()) +
                            QStringLiteral("?immutable=1");
        return connect(url, QStringLiteral("QSQLITE_OPEN_URI;") + reading);
    }
    const StoreError error = connect(name, timeout);
    if (error == StoreError::None) {
        valueOf(m_db, QStringLiteral("PRAGMA journal_mode=WAL"));
        valueOf(m_db, QStringLiteral("PRAGMA synchronous=FULL"));
    }
    return error;
}

StoreError StoreFile::connect(const QString &database, const QString &options)
{
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"),
                                     QUuid::createUuid().toString(QUuid::WithoutBraces));
    m_db.setDatabaseName(database);
    m_db.setConnectOptions(options);
    if (!m_db.open())
        return errorOf(m_db.lastError());
    return QFileInfo(m_name).size() == 0 ? StoreError::Damaged : check();
}

StoreError StoreFile::check() const
{
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("SELECT count(*) FROM sqlite_master")))
        return errorOf(query.lastError());
    query.finish();
    QVariant application;
    QVariant version;
    QVariant health;
    StoreError error = ask(QStringLiteral("PRAGMA application_id"), &application);
    if (error == StoreError::None && application.toInt() != ApplicationId)
        return StoreError::Damaged;
    if (error == StoreError::None)
        error = ask(QStringLiteral("PRAGMA user_version"), &version);
    if (error == StoreError::None && version.toInt() > SchemaVersion)
        return StoreError::Newer;
    if (error == StoreError::None)
        error = ask(QStringLiteral("PRAGMA quick_check"), &health);
    if (error != StoreError::None)
        return error;
    if (health.toString() != QLatin1String("ok"))
        return StoreError::Damaged;
    return version.toInt() < SchemaVersion ? StoreError::Older : StoreError::None;
}

/// First column of the first row.
StoreError StoreFile::ask(const QString &sql, QVariant *value) const
{
    QSqlQuery query(m_db);
    if (!query.exec(sql) || !query.next())
        return query.lastError().isValid() ? errorOf(query.lastError()) : StoreError::Damaged;
    *value = query.value(0);
    return StoreError::None;
}

void StoreFile::close()
{
    m_statements.reset();
    if (!m_db.isValid())
        return;
    const QString connection = m_db.connectionName();
    m_db.close();
    m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection);
}

bool StoreFile::isInPlace() const
{
    return m_fileId != 0 && idOf(m_name) == m_fileId;
}

/// They come with the first transaction.
void StoreFile::noteCompanions()
{
    for (const QString &companion : companions())
        m_companionIds.insert(idOf(m_name + companion));
}

void StoreFile::removeLeftovers()
{
    for (const QString &companion : companions()) {
        const quint64 id = idOf(m_name + companion);
        if (id != 0 && m_companionIds.count(id) > 0)
            QFile::remove(m_name + companion);
    }
}

StoreError StoreFile::execute(QSqlQuery &query) const
{
    if (query.exec()) {
        query.finish();
        return StoreError::None;
    }
    return errorOf(query.lastError());
}

bool StoreFile::prepare()
{
    if (m_statements)
        return true;
    auto statements = std::make_unique<Statements>(m_db);
    const bool ok =
        statements->putRow.prepare(
            QStringLiteral("INSERT OR REPLACE INTO record VALUES(?, ?, ?, ?, ?, ?)")) &&
        statements->deleteRow.prepare(
            QStringLiteral("DELETE FROM record WHERE tbl=? AND owner=? AND profile=? AND idx=? "
                           "AND name=?")) &&
        statements->putStep.prepare(
            QStringLiteral("INSERT OR REPLACE INTO step VALUES(?, ?, ?)")) &&
        statements->deleteStep.prepare(QStringLiteral("DELETE FROM step WHERE id=?")) &&
        statements->putMeta.prepare(QStringLiteral("INSERT OR REPLACE INTO meta VALUES(?, ?)"));
    if (ok)
        m_statements = std::move(statements);
    return ok;
}

StoreError StoreFile::begin()
{
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("BEGIN IMMEDIATE")))
        return errorOf(query.lastError());
    query.finish();
    if (isInPlace())
        noteCompanions();
    if (prepare())
        return StoreError::None;
    return end(StoreError::Damaged);
}

StoreError StoreFile::probe()
{
    StoreError error = begin();
    // takes up a page and gives it back, which is what a full disk or a file for reading refuses
    if (error == StoreError::None)
        error = writeMeta(QStringLiteral("probe"), QByteArray("1"));
    QSqlQuery(m_db).exec(QStringLiteral("ROLLBACK"));
    return error;
}

StoreError StoreFile::end(StoreError error)
{
    QSqlQuery query(m_db);
    if (error == StoreError::None) {
        if (query.exec(QStringLiteral("COMMIT")))
            return StoreError::None;
        error = errorOf(query.lastError());
    }
    // fails when SQLite has rolled back by itself, which is just as well
    query.exec(QStringLiteral("ROLLBACK"));
    return error;
}

StoreError StoreFile::writeRow(const RecordId &id, const QByteArray &bytes)
{
    QSqlQuery &query = bytes.isEmpty() ? m_statements->deleteRow : m_statements->putRow;
    query.bindValue(0, QString::fromLatin1(tableName(id.table)));
    query.bindValue(1, id.owner);
    query.bindValue(2, id.profile);
    query.bindValue(3, id.index);
    query.bindValue(4, id.name.isNull() ? QStringLiteral("") : id.name);
    if (!bytes.isEmpty())
        query.bindValue(5, bytes);
    return execute(query);
}

StoreError StoreFile::writeStep(qint64 id, const StoreStep *step)
{
    QSqlQuery &query = step ? m_statements->putStep : m_statements->deleteStep;
    query.bindValue(0, id);
    if (step) {
        query.bindValue(1, step->name.isNull() ? QStringLiteral("") : step->name);
        query.bindValue(2, step->body);
    }
    return execute(query);
}

StoreError StoreFile::writeMeta(const QString &name, const QByteArray &bytes)
{
    m_statements->putMeta.bindValue(0, name);
    m_statements->putMeta.bindValue(1, bytes);
    return execute(m_statements->putMeta);
}

StoreError StoreFile::write(const StoreState &state, const StoreHistory &history,
                            const std::set<RecordId> &changed)
{
    StoreError error = StoreError::None;
    for (const RecordId &id : changed) {
        if (error == StoreError::None)
            error = writeRow(id, state.record(id));
    }
    for (const qint64 id : history.changedSteps()) {
        if (error == StoreError::None)
            error = writeStep(id, history.step(id));
    }
    if (error == StoreError::None)
        error = writeMeta(QStringLiteral("position"), QByteArray::number(history.position()));
    if (error == StoreError::None)
        error = writeMeta(QStringLiteral("drift"), history.packedDrift());
    return error;
}

StoreError StoreFile::save(const StoreState &state, const StoreHistory &history,
                           const std::set<RecordId> &changed)
{
    const StoreError error = begin();
    return error == StoreError::None ? end(write(state, history, changed)) : error;
}

StoreError StoreFile::saveAll(const StoreState &state, const StoreHistory &history)
{
    StoreError error = begin();
    if (error != StoreError::None)
        return error;
    for (const char *table : {"record", "step"}) {
        QSqlQuery query(m_db);
        if (error == StoreError::None &&
            !query.exec(QStringLiteral("DELETE FROM %1").arg(QLatin1String(table))))
            error = errorOf(query.lastError());
    }
    std::set<RecordId> all;
    for (const auto &row : state.records())
        all.insert(row.first);
    StoreHistory whole = history;
    whole.markAllChanged();
    if (error == StoreError::None)
        error = write(state, whole, all);
    return end(error);
}

StoreError StoreFile::load(StoreContent *content) const
{
    const StoreError error = loadRows(content);
    return error == StoreError::None ? loadSteps(content) : error;
}

StoreError StoreFile::loadRows(StoreContent *content) const
{
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT tbl, owner, profile, idx, name, value FROM record")))
        return errorOf(query.lastError());
    while (query.next()) {
        RecordId id;
        if (!tableOfName(query.value(0).toString(), &id.table))
            continue;
        id.owner = query.value(1).toInt();
        id.profile = query.value(2).toInt();
        id.index = query.value(3).toInt();
        id.name = query.value(4).toString();
        content->state.setRecord(id, query.value(5).toByteArray());
    }
    return errorOf(query.lastError());
}

StoreError StoreFile::loadSteps(StoreContent *content) const
{
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT id, name, body FROM step ORDER BY id")))
        return errorOf(query.lastError());
    while (query.next()) {
        content->steps.push_back(
            {query.value(0).toLongLong(), query.value(1).toString(), query.value(2).toByteArray()});
    }
    const QString meta = QStringLiteral("SELECT value FROM meta WHERE name='%1'");
    content->position = valueOf(m_db, meta.arg(QStringLiteral("position"))).toInt();
    content->drift = valueOf(m_db, meta.arg(QStringLiteral("drift"))).toByteArray();
    return errorOf(query.lastError());
}

StoreError StoreFile::copyTo(const QString &name) const
{
    const QString unfinished = name + QStringLiteral(".part");
    remove(unfinished);
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("VACUUM INTO ?"));
    query.bindValue(0, unfinished);
    const StoreError error = execute(query);
    if (error != StoreError::None) {
        remove(unfinished);
        return error;
    }
    syncFile(unfinished);
    return replace(unfinished, name) ? StoreError::None : StoreError::ReadOnly;
}

void StoreFile::setPageLimit(int pages)
{
    constexpr int Unlimited = 0x7ffffffe;
    valueOf(m_db, QStringLiteral("PRAGMA max_page_count=%1").arg(pages > 0 ? pages : Unlimited));
}

int StoreFile::pageCount() const
{
    return valueOf(m_db, QStringLiteral("PRAGMA page_count")).toInt();
}

StoreError StoreFile::create(const QString &name)
{
    const QString unfinished = name + QStringLiteral(".part");
    remove(unfinished);
    const QString connection = QUuid::createUuid().toString(QUuid::WithoutBraces);
    StoreError error = StoreError::None;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(unfinished);
        if (!db.open())
            error = errorOf(db.lastError());
        const QStringList statements = schema();
        for (const QString &statement : statements) {
            QSqlQuery query(db);
            if (error == StoreError::None && !query.exec(statement))
                error = errorOf(query.lastError());
        }
    }
    QSqlDatabase::removeDatabase(connection);
    if (error == StoreError::None && !replace(unfinished, name))
        error = StoreError::ReadOnly;
    if (error != StoreError::None)
        remove(unfinished);
    return error;
}

QString StoreFile::setAside(const QString &name, const QString &suffix)
{
    const auto isTaken = [](const QString &wanted) {
        return QFile::exists(wanted) ||
               std::any_of(companions().begin(), companions().end(), [&](const QString &companion) {
                   return QFile::exists(wanted + companion);
               });
    };
    QString aside;
    for (int number = 1; aside.isEmpty() || isTaken(aside); ++number)
        aside = QStringLiteral("%1.%2-%3").arg(name, suffix).arg(number);
    if (QFile::exists(name) && !QFile::rename(name, aside))
        return QString();
    for (const QString &companion : companions())
        QFile::rename(name + companion, aside + companion);
    return aside;
}

bool StoreFile::replace(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(pathOf(from), pathOf(to), error);
    return !error;
}

void StoreFile::remove(const QString &name)
{
    QFile::remove(name);
    for (const QString &companion : companions())
        QFile::remove(name + companion);
}
