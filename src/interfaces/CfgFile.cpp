#include "interfaces/CfgFile.h"

#include "interfaces/Modal.h"

#include <QMutex>
#include <QMutexLocker>
#include <QWidget>

namespace {

QMutex locationsMutex;

CfgFile::Locations &locations()
{
    static CfgFile::Locations theLocations;
    return theLocations;
}

} // namespace

void CfgFile::setLocations(const Locations &newLocations)
{
    const QMutexLocker lock(&locationsMutex);
    locations() = newLocations;
}

QString CfgFile::filename()
{
    return QStringLiteral("/config/param/param.arg");
}

QString CfgFile::filename_chg()
{
    return QStringLiteral("/config/param/param_chg.arg");
}

QString CfgFile::hotkeysFolder()
{
    return QStringLiteral("/hotkeys");
}

QString CfgFile::resetFile()
{
    return QStringLiteral("/reset.ini");
}

void CfgFile::ReadAppHotKeysFolder(QString &folder)
{
    const QMutexLocker lock(&locationsMutex);
    folder = locations().hotKeysFolder;
}

void CfgFile::ReadLatestAppPath(QStringList &paths)
{
    const QMutexLocker lock(&locationsMutex);
    paths = locations().latestAppPaths;
}

QString CfgFile::getOpenFileName(HWND parent, const QString &title, const QString &dir,
                                 const wchar_t *filter)
{
    QWidget *window = QWidget::find(reinterpret_cast<WId>(parent));
    return Modal::openFileName(window, title, dir, QString::fromWCharArray(filter));
}
