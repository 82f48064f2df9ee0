#pragma once

#include "host/StoreHistory.h"
#include "host/StoreState.h"

#include <QSqlDatabase>

#include <memory>

class QSqlQuery;

/// What can be wrong with a store file.
enum class StoreError {
    None,
    Damaged, ///< not a store, truncated, or its pages contradict each other
    Newer,   ///< written by a version to come
    Older,   ///< an earlier schema: to be migrated
    ReadOnly,
    Full,   ///< no room on the disk
    Busy,   ///< another program holds the file
    Failed, ///< anything else the system reports
};

/// What a store file holds.
struct StoreContent
{
    StoreState state;
    std::deque<StoreStep> steps;
    int position = 0;
    QByteArray drift;
};

/// One SQLite file and the connection to it: WAL, full synchronisation, a lock time-out of a fifth
/// of a second. It reads everything, writes what it is told in one transaction, and decides
/// nothing.
class StoreFile
{
public:
    enum Access { ReadWrite, ReadOnlyAccess };
    static constexpr int SchemaVersion = 2;
    /// Marks our files among all SQLite files.
    static constexpr int ApplicationId = 0x56544d50;

    StoreFile();
    ~StoreFile();
    StoreFile(const StoreFile &) = delete;
    StoreFile &operator=(const StoreFile &) = delete;

    /// Opens a file that exists and looks at its version and its health. For reading, a file in a
    /// folder that cannot be written is opened too.
    StoreError open(const QString &name, Access access);
    void close();
    bool isOpen() const { return m_db.isOpen(); }
    /// A number that tells the file that was opened from any other.
    quint64 id() const { return m_fileId; }
    /// The same for the file of that name; 0 if there is none.
    static quint64 idOf(const QString &name);
    /// True while the file of that name still is the one that was opened.
    bool isInPlace() const;
    /// Takes away what SQLite keeps beside a file, once closed, where it still is of the file that
    /// was open and not of another that has taken its place.
    void removeLeftovers();

    /// Whether it can be written at all; writes nothing.
    StoreError probe();
    /// Reads everything.
    StoreError load(StoreContent *content) const;
    /// Writes rows, steps that came or went, and the place in the history: all of it or nothing.
    StoreError save(const StoreState &state, const StoreHistory &history,
                    const std::set<RecordId> &changed);
    /// Replaces all rows and steps.
    StoreError saveAll(const StoreState &state, const StoreHistory &history);
    /// Writes a sound copy in place of `name`.
    StoreError copyTo(const QString &name) const;
    /// Lets the file grow to that many pages only; 0 for no limit. It stands in for a full disk.
    void setPageLimit(int pages);
    int pageCount() const;

    /// Makes an empty store. The name appears only when the store is complete.
    static StoreError create(const QString &name);
    /// Renames a file, and what SQLite keeps beside it, to "name.suffix-1" or the next free
    /// number. Gives the new name, empty if it could not be done. Without the file, what lies
    /// beside it is renamed.
    static QString setAside(const QString &name, const QString &suffix);
    /// Renames over what may be there, all at once.
    static bool replace(const QString &from, const QString &to);
    /// Takes a file away together with what SQLite keeps beside it.
    static void remove(const QString &name);
    /// The statements that make an empty store of the current version.
    static QStringList schema();

private:
    StoreError connect(const QString &database, const QString &options);
    StoreError check() const;
    StoreError ask(const QString &sql, QVariant *value) const;
    bool prepare();
    StoreError execute(QSqlQuery &query) const;
    StoreError begin();
    void noteCompanions();
    StoreError end(StoreError error);
    StoreError write(const StoreState &state, const StoreHistory &history,
                     const std::set<RecordId> &changed);
    StoreError writeRow(const RecordId &id, const QByteArray &bytes);
    StoreError writeStep(qint64 id, const StoreStep *step);
    StoreError writeMeta(const QString &name, const QByteArray &bytes);
    StoreError loadRows(StoreContent *content) const;
    StoreError loadSteps(StoreContent *content) const;

    struct Statements;
    QSqlDatabase m_db;
    QString m_name;
    quint64 m_fileId = 0;
    std::set<quint64> m_companionIds;
    std::unique_ptr<Statements> m_statements;
};
