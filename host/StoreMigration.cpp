#include "host/StoreMigration.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

namespace {

/// The statements that lead from a version to the next one.
QStringList stepFrom(int version)
{
    if (version != 1)
        return {};
    QStringList statements = {QStringLiteral("ALTER TABLE record RENAME TO record1")};
    statements += StoreFile::schema();
    statements += QStringLiteral("INSERT INTO record SELECT tbl, owner, profile, idx, '', value "
                                 "FROM record1");
    statements += QStringLiteral("DROP TABLE record1");
    return statements;
}

bool run(const QSqlDatabase &db, const QString &statement)
{
    QSqlQuery query(db);
    return query.exec(statement);
}

bool runSteps(const QSqlDatabase &db, int version)
{
    bool ok = run(db, QStringLiteral("BEGIN IMMEDIATE"));
    for (; ok && version < StoreFile::SchemaVersion; ++version) {
        const QStringList statements = stepFrom(version);
        ok = !statements.isEmpty();
        for (const QString &statement : statements)
            ok = ok && run(db, statement);
    }
    return ok && run(db, QStringLiteral("COMMIT"));
}

/// Runs `use` with a connection to the file.
template <typename Use>
auto withFile(const QString &name, Use use)
{
    const QString connection = QUuid::createUuid().toString(QUuid::WithoutBraces);
    auto result = [&] {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(name);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=200"));
        db.open();
        return use(db);
    }();
    QSqlDatabase::removeDatabase(connection);
    return result;
}

} // namespace

int StoreMigration::versionOf(const QString &name)
{
    return withFile(name, [](const QSqlDatabase &db) {
        QSqlQuery query(db);
        const bool ok = query.exec(QStringLiteral("PRAGMA user_version")) && query.next();
        return ok ? query.value(0).toInt() : 0;
    });
}

StoreError StoreMigration::migrate(const QString &name, const QString &target)
{
    const QString copy = target + QStringLiteral(".migrating");
    StoreFile::remove(copy);
    StoreFile source;
    StoreError error = source.open(name, StoreFile::ReadOnlyAccess);
    if (error != StoreError::Older)
        return error == StoreError::None ? StoreError::Failed : error;
    error = source.copyTo(copy);
    source.close();
    if (error != StoreError::None)
        return error;
    const int version = versionOf(copy);
    const bool ok =
        withFile(copy, [version](const QSqlDatabase &db) { return runSteps(db, version); });
    if (!ok)
        error = StoreError::Failed;
    else if (!StoreFile::replace(copy, target))
        error = StoreError::ReadOnly;
    if (error != StoreError::None)
        StoreFile::remove(copy);
    return error;
}
