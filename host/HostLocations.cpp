#include "host/HostLocations.h"

#include "core/records.h"
#include "host/ProfileStore.h"
#include "interfaces/CfgFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace {

/// Folders that may hold what comes with the program, seen from the program's own: installed in
/// bin/, all in one folder, and one to three levels below the top of a build tree.
constexpr const char *SharePlaces[] = {
    "../share/vantrixmap", ".", "share", "../share", "../../share", "../../../share"};

QString latestKey(int appType)
{
    return QStringLiteral("LatestAppPath/%1").arg(appType);
}

} // namespace

QString HostLocations::shareFolderOf(const QString &programFolder)
{
    const QDir program(programFolder);
    for (const char *place : SharePlaces) {
        QString folder = QDir::cleanPath(program.absoluteFilePath(QLatin1String(place)));
        if (QFileInfo(folder + CfgFile::hotkeysFolder()).isDir())
            return folder;
    }
    return QString();
}

QString HostLocations::hotKeysFolderKey()
{
    return QStringLiteral("hotKeysFolder");
}

HostLocations::HostLocations(const QString &dataFolder)
    : m_data(dataFolder), m_share(shareFolderOf(QCoreApplication::applicationDirPath()))
{
    if (m_data.isEmpty())
        m_data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(m_data);
}

QString HostLocations::storeFile() const
{
    return m_data + QStringLiteral("/profiles.sqlite");
}

QString HostLocations::hotKeysFolder(const ProfileStore &store) const
{
    QStringList folders = {store.setting(hotKeysFolderKey()), m_data + CfgFile::hotkeysFolder()};
    if (!m_share.isEmpty())
        folders << m_share + CfgFile::hotkeysFolder();
    for (const QString &folder : qAsConst(folders)) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    }
    return QString();
}

QStringList HostLocations::latestAppPaths() const
{
    const QSettings file(m_data + CfgFile::resetFile(), QSettings::IniFormat);
    QStringList paths;
    for (int appType = 0; appType < AppType::Count; ++appType)
        paths << file.value(latestKey(appType)).toString();
    return paths;
}

void HostLocations::setLatestAppPath(int appType, const QString &path)
{
    QSettings file(m_data + CfgFile::resetFile(), QSettings::IniFormat);
    file.setValue(latestKey(appType), path);
}

void HostLocations::install(const ProfileStore &store) const
{
    CfgFile::setLocations({hotKeysFolder(store), latestAppPaths()});
}
