#include "application/HotKeyRelay.h"

#include <QMetaObject>
#include <QObject>
#include <QThreadPool>

#include <mutex>

namespace {

// One for all relays, so that a task can take it before it reads anything of its relay: inside the
// pool, tasks are handed over by means that the thread sanitizer cannot see.
std::mutex relayMutex;

using Lock = std::lock_guard<std::mutex>;

} // namespace

HotKeyRelay::HotKeyRelay(QObject *reader, const char *wakeSlot)
    : m_reader(reader), m_wakeSlot(wakeSlot)
{
    // One object is the task of every file; its shares decide when it goes.
    setAutoDelete(false);
}

void HotKeyRelay::close()
{
    std::deque<Found> dropped;
    const Lock lock(relayMutex);
    m_closed = true;
    m_reader = nullptr;
    dropped.swap(m_found);
}

void HotKeyRelay::put(Found found)
{
    const Lock lock(relayMutex);
    if (!m_reader)
        return;
    m_found.push_back(std::move(found));
    if (!m_woken)
        QMetaObject::invokeMethod(m_reader, m_wakeSlot, Qt::QueuedConnection);
    m_woken = true;
}

bool HotKeyRelay::take(Found &found)
{
    const Lock lock(relayMutex);
    m_woken = !m_found.empty();
    if (!m_woken)
        return false;
    found = std::move(m_found.front());
    m_found.pop_front();
    return true;
}

void HotKeyRelay::wakeAgain()
{
    const Lock lock(relayMutex);
    m_woken = !m_found.empty();
    if (m_reader && m_woken)
        QMetaObject::invokeMethod(m_reader, m_wakeSlot, Qt::QueuedConnection);
}

void HotKeyRelay::start(File file)
{
    {
        const Lock lock(relayMutex);
        m_files.push_back({std::move(file), shared_from_this()});
    }
    QThreadPool::globalInstance()->start(this);
}

void HotKeyRelay::run()
{
    Waiting next;
    {
        const Lock lock(relayMutex);
        next = std::move(m_files.front());
        m_files.pop_front();
    }
    readHotKeyFile(next.file);
}

void HotKeyRelay::readHotKeyFile(const File &file)
{
    Found found;
    if (m_closed || !HotKeyFile::read(file.path, found.hotKeys, [this] { return isClosed(); }))
        return;
    found.kind = Kind::HotKeys;
    found.topLevel = file.topLevel.toUpper();
    found.secondLevel = file.secondLevel.toUpper();
    found.thirdLevel = file.thirdLevel.toUpper();
    put(std::move(found));
}
