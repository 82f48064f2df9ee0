#pragma once

#include "host/StoreFile.h"

#include <QCoreApplication>
#include <QLockFile>
#include <QStringList>

#include <optional>
#include <utility>

/// Keeps a store's memory on disk, whatever happens to the disk. It decides what StoreFile does:
///
/// - One writer: a lock file beside the store; who comes second reads only.
/// - A file that is damaged or newer is set aside under a numbered name, never written to; the
///   last good copy ("name.bak", made when a store is opened and closed in good health) takes its
///   place.
/// - A file of an earlier version is migrated on a copy; the original stays as "name.v1".
/// - A file that cannot be written leaves everything in memory, and each later `save` tries again.
/// - A file that could not be opened for writing is not written over when it can be, unless it
///   holds what memory began with: it is shown then, or set aside where something was made.
///
/// What the user should know is put in plain words into `takeMessages`.
class StoreKeeper
{
    Q_DECLARE_TR_FUNCTIONS(StoreKeeper)

public:
    /// An empty name keeps nothing on disk.
    explicit StoreKeeper(const QString &name);
    ~StoreKeeper();

    /// Finds or makes the file and gives what it holds.
    StoreContent open();
    /// Saves rows and steps; true when all that was ever given is on disk. `changed` and the
    /// history's changed steps must grow until a call returned true.
    bool save(const StoreState &state, const StoreHistory &history,
              const std::set<RecordId> &changed);
    /// Makes the last good copy, then lets go of file and lock. Only after a successful save.
    void close(const StoreState &state, const StoreHistory &history);

    bool isSecondReader() const { return m_access == SecondReader; }
    /// False while changes wait for a disk that takes them.
    bool isSaved() const { return m_saved; }
    /// True while the file that held everything is gone and nothing was written in its stead.
    bool isLost() const { return !m_lossNote.isEmpty(); }
    /// True when the file that holds everything is not where it was, which `save` mends.
    bool isMissing() const { return m_access == Writer && !m_file.isInPlace(); }
    /// Transactions made so far.
    int transactionCount() const { return m_transactions; }
    QStringList takeMessages();
    /// What the file holds that could not be opened for writing at first, where it is another than
    /// what memory began with: it takes the place of everything in memory. `save` finds it.
    std::optional<StoreContent> takeFound() { return std::exchange(m_found, std::nullopt); }

    StoreFile &file() { return m_file; }
    QString backupName() const { return m_name + QStringLiteral(".bak"); }

private:
    enum AccessState { InMemory, SecondReader, Writer };

    bool lock();
    void takeOver(StoreContent *content);
    StoreError openAny(StoreContent *content);
    StoreError openNew(StoreContent *content);
    StoreError openFresh(StoreContent *content);
    StoreError openOlder(StoreContent *content);
    StoreError openInsteadOf(StoreError error, StoreContent *content);
    StoreError openAndLoad(StoreContent *content);
    StoreError openCopy(StoreContent *content, bool *isFound);
    void readOnly(StoreContent *content);
    bool reopen();
    StoreError replaceFound();
    void settle();
    bool isOwner() const { return m_ownId != 0; }
    bool hasAll() const;
    StoreError createWhole();
    bool isLockOfAnother();
    bool isNews(const StoreContent &content) const;
    bool checkPlace();
    bool writeAnew();
    StoreError makeAnew();
    StoreError readElsewhere(const QString &name, StoreContent *content);
    void report(StoreError error);
    void say(const QString &message);
    QString shortName(const QString &name) const;

    QString m_name;
    QLockFile m_lock;
    StoreFile m_file;
    QStringList m_messages;
    /// What became of a file that went while the program was running, for when it is back.
    QString m_lossNote;
    /// Tells what memory began with, while the file has not been this program's.
    std::optional<QByteArray> m_base;
    std::optional<StoreContent> m_found;
    bool m_isFoundTold = false;
    quint64 m_ownId = 0; ///< of the file that is this program's; 0: none is yet
    AccessState m_access = InMemory;
    StoreError m_reported = StoreError::None;
    bool m_writeAll = false;
    bool m_saved = true;
    bool m_backupIsFresh = false;
    int m_transactions = 0;
    const StoreState *m_state = nullptr; ///< what `save` was given, while it runs
    const StoreHistory *m_history = nullptr;
};
