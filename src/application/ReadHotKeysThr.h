#pragma once

#include "application/HotKeyFile.h"
#include "interfaces/VantrixExport.h"

#include <QStringList>
#include <QThread>

#include <atomic>
#include <memory>

class HotKeyRelay;

/// Reads the hot-key catalog in the background: one walk over its folders on this thread, one task
/// for each file on the global thread pool (`HotKeyFile` tells the format). Keeps nothing of what
/// it reads; everything leaves by signal.
///
/// The catalog is a folder of folders of folders: applications, areas, files. Symbolic links and
/// hidden entries are not read, nor is anything at another depth. The walk goes by name, ignoring
/// case. Folders must be named in upper case: `sigAddHotKeys` carries upper case names only.
///
/// All failures are silent: without a root nothing is emitted, and a file that cannot be read is
/// left out.
///
/// Signals leave on the thread that the reader lives in, through its event loop, in portions that
/// leave the loop room. For one application they come in the order of their declaration; files come
/// as they are finished. A reader may be destroyed at any moment, also from a slot of its signals:
/// what is under way then ends without it.
class VANTRIX_EXPORT ReadHotKeysThr : public QThread
{
    Q_OBJECT

public:
    explicit ReadHotKeysThr(QObject *parent = nullptr);
    ~ReadHotKeysThr() override;

    /// Starts the walk. It reads the root's place from `CfgFile` when it begins.
    void startRead();
    /// Waits for the walk, with no time limit. Tasks of files go on, and so do the signals.
    void stopRead();
    /// Nobody wants the rest: no signal comes any more, and the walk and the tasks end as soon as
    /// they notice.
    void abandon();

signals:
    /// An application's folder, as spelled.
    void sigAddTopLevel(QString strTopLev);
    /// The folders in it, as spelled, in the order of the walk.
    void sigAddSecondLev(QString strTopLev, QStringList lsSecondLev);
    /// One file: the names of its folders and its own up to the first ".", in upper case, and what
    /// stands in it, which may be nothing.
    void sigAddHotKeys(QString strTopLev, QString strSecondLev, QString strThirdLev,
                       std::map<QString, std::map<QString, QString>> mHotKeys);

protected:
    void run() override;

private slots:
    void slotTake();

private:
    static void readCatalogFolder(const QString &strFolder, HotKeyRelay &relay);
    static void readTopLevel(const QString &strFolder, const QString &strTopLev,
                             HotKeyRelay &relay);

    std::atomic<bool> m_bStop{false};
    const std::shared_ptr<HotKeyRelay> m_relay;
};
