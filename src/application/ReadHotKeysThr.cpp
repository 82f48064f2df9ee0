#include "application/ReadHotKeysThr.h"

#include "application/HotKeyRelay.h"
#include "interfaces/CfgFile.h"

#include <QDeadlineTimer>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QPointer>

#include <algorithm>
#include <map>
#include <vector>

namespace {

/// Longest time that one turn of the event loop hands out results.
constexpr int PortionMs = 10;

QString joined(const QString &folder, const QString &name)
{
    return folder + QLatin1Char('/') + name;
}

/// The names of a kind in a folder, sorted ignoring case, as `QDir` lists them; an iterator does
/// not look at each entry twice as its lists do.
QStringList namesIn(const QString &folder, QDir::Filter kind)
{
    std::vector<std::pair<QString, QString>> names;
    QDirIterator entries(folder, kind | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        names.emplace_back(entries.fileName().toLower(), entries.fileName());
    }
    std::sort(names.begin(), names.end());
    QStringList sorted;
    for (const auto &name : names)
        sorted << name.second;
    return sorted;
}

} // namespace

ReadHotKeysThr::ReadHotKeysThr(QObject *parent)
    : QThread(parent), m_relay(std::make_shared<HotKeyRelay>(this, "slotTake"))
{
    qRegisterMetaType<HotKeyMap>("std::map<QString, std::map< QString, QString >>");
}

ReadHotKeysThr::~ReadHotKeysThr()
{
    abandon();
    stopRead();
}

void ReadHotKeysThr::startRead()
{
    m_bStop = false;
    start(QThread::InheritPriority);
}

void ReadHotKeysThr::stopRead()
{
    // Exchanges, not stores: they take over from the walk's last store, which is where the thread
    // sanitizer sees that the walk is over.
    m_bStop.exchange(true);
    wait(QDeadlineTimer(QDeadlineTimer::Forever));
    m_bStop.exchange(true);
}

void ReadHotKeysThr::abandon()
{
    m_relay->close();
}

void ReadHotKeysThr::run()
{
    if (!m_bStop) {
        QString folder;
        CfgFile::ReadAppHotKeysFolder(folder);
        if (!folder.isEmpty())
            readCatalogFolder(folder, *m_relay);
    }
    m_bStop = true;
}

void ReadHotKeysThr::readCatalogFolder(const QString &strFolder, HotKeyRelay &relay)
{
    const QStringList topLevels = namesIn(strFolder, QDir::Dirs);
    for (const QString &topLevel : topLevels) {
        if (relay.isClosed())
            return;
        readTopLevel(joined(strFolder, topLevel), topLevel, relay);
    }
}

void ReadHotKeysThr::readTopLevel(const QString &strFolder, const QString &strTopLev,
                                  HotKeyRelay &relay)
{
    HotKeyRelay::Found found;
    found.topLevel = strTopLev;
    relay.put(found);
    found.kind = HotKeyRelay::Kind::SecondLevels;
    found.secondLevels = namesIn(strFolder, QDir::Dirs);
    relay.put(found);

    // The files go by the folders' names with case, unlike the folders themselves.
    QStringList folders = found.secondLevels;
    std::sort(folders.begin(), folders.end());
    for (const QString &secondLevel : folders) {
        const QString folder = joined(strFolder, secondLevel);
        const QStringList files = namesIn(folder, QDir::Files);
        for (const QString &file : files) {
            if (relay.isClosed())
                return;
            const QString thirdLevel = file.left(file.indexOf(QLatin1Char('.')));
            relay.start({strTopLev, secondLevel, thirdLevel, joined(folder, file)});
        }
    }
}

void ReadHotKeysThr::slotTake()
{
    const QPointer<ReadHotKeysThr> alive(this);
    const std::shared_ptr<HotKeyRelay> relay = m_relay;
    QElapsedTimer time;
    time.start();
    HotKeyRelay::Found found;
    while (alive && time.elapsed() < PortionMs && relay->take(found)) {
        switch (found.kind) {
        case HotKeyRelay::Kind::TopLevel:
            emit sigAddTopLevel(found.topLevel);
            break;
        case HotKeyRelay::Kind::SecondLevels:
            emit sigAddSecondLev(found.topLevel, found.secondLevels);
            break;
        case HotKeyRelay::Kind::HotKeys:
            emit sigAddHotKeys(found.topLevel, found.secondLevel, found.thirdLevel, found.hotKeys);
            break;
        }
    }
    relay->wakeAgain();
}
