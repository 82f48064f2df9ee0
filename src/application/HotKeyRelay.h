#pragma once

#include "application/HotKeyFile.h"

#include <QRunnable>
#include <QStringList>

#include <atomic>
#include <deque>
#include <memory>

class QObject;

/// What a reader of the hot-key catalog shares with its walk and with its tasks on the global
/// thread pool: the files that are still to be read, what has been found and not been taken yet,
/// and whether anybody still waits for it.
///
/// One task is started for each file. A task owns a share of the relay, so it needs nothing of the
/// reader, which may die at any moment; after `close` tasks end at their next look and what they
/// found is dropped. Found things come out in the order in which they were put in.
class HotKeyRelay : public QRunnable, public std::enable_shared_from_this<HotKeyRelay>
{
public:
    enum class Kind { TopLevel, SecondLevels, HotKeys };

    /// One thing found. Names of hot keys are in upper case, the others as spelled on disk.
    struct Found
    {
        Kind kind = Kind::TopLevel;
        QString topLevel;
        QStringList secondLevels; ///< of SecondLevels
        QString secondLevel;      ///< of HotKeys, as the two below
        QString thirdLevel;
        HotKeyMap hotKeys;
    };

    /// One file to read, and where it belongs.
    struct File
    {
        QString topLevel;
        QString secondLevel;
        QString thirdLevel;
        QString path;
    };

    /// `reader` gets its slot `wakeSlot` called through its event loop when something can be
    /// taken, once until everything was taken. Not owned.
    HotKeyRelay(QObject *reader, const char *wakeSlot);

    /// Nobody waits any more. The reader's thread; any number of times.
    void close();
    bool isClosed() const { return m_closed; }

    /// Adds something found. Any thread.
    void put(Found found);
    /// Takes what was found first; false if there is nothing. The reader's thread.
    bool take(Found &found);
    /// Wakes the reader once more for what it left. The reader's thread.
    void wakeAgain();

    /// Starts a task for a file. Any thread.
    void start(File file);

    /// The task; for the thread pool.
    void run() override;

private:
    struct Waiting
    {
        File file;
        std::shared_ptr<HotKeyRelay> share;
    };

    void readHotKeyFile(const File &file);

    std::atomic<bool> m_closed{false};
    QObject *m_reader;
    const char *const m_wakeSlot;
    bool m_woken = false;
    std::deque<Found> m_found;
    std::deque<Waiting> m_files;
};
