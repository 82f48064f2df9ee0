#include "application/AppDetection.h"

#include "interfaces/CfgFile.h"
#include "interfaces/IVantrixProfileCfg.h"
#include "vocabulary/AppTables.h"

#include <QFile>
#include <QSettings>
#include <QThreadPool>
#include <QtConcurrentRun>

namespace {

const QString &uninstallKey()
{
    static const QString key = QStringLiteral(
        R"(HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall\)");
    return key;
}

/// The groups whose name starts with the code, in their order.
QStringList productGroups(const QString &productCode)
{
    QStringList kept;
    const QSettings settings(uninstallKey(), QSettings::NativeFormat);
    for (const QString &group : settings.childGroups()) {
        if (group.startsWith(productCode))
            kept << group;
    }
    return kept;
}

/// A path that exists, or an empty one.
QString findPath(int appType)
{
    QStringList latest;
    CfgFile::ReadLatestAppPath(latest);
    if (appType < 0 || appType >= latest.size())
        return {};
    QString path = latest.at(appType);
    if (!QFile::exists(path))
        AppDetection::registryPath(appType, path);
    return path;
}

/// Detects without taking one of the pool's threads from others: the interface thread, too, waits
/// for the pool when it converts large pictures.
void detectAside(int appType)
{
    QThreadPool::globalInstance()->releaseThread();
    AppDetection::detect(appType);
    QThreadPool::globalInstance()->reserveThread();
}

} // namespace

void AppDetection::start()
{
    for (int appType = 0; appType <= 2; ++appType)
        QtConcurrent::run(detectAside, appType);
}

void AppDetection::detect(int appType)
{
    if (!IVantrixProfileCfg::isInstalled())
        return;
    QString path;
    IVantrixProfileCfg::Instance()->getAppPath(appType, path);
    if (!path.isEmpty() && QFile::exists(path))
        return;
    path = findPath(appType);
    // Searching takes long enough for the host to have taken its store away meanwhile.
    if (IVantrixProfileCfg::isInstalled())
        IVantrixProfileCfg::Instance()->setAppPath(appType, path);
}

void AppDetection::registryPath(int appType, QString &path)
{
    path.clear();
    const auto id = AppIds().find(appType);
    if (id == AppIds().end())
        return;
    QString latest;
    latestVersion(uninstallKey(), productGroups(QString::fromLatin1(id->second.productCode)),
                  latest);
    if (latest.isEmpty())
        return;
    const QSettings settings(uninstallKey() + latest, QSettings::NativeFormat);
    const QString candidate =
        settings.value(QStringLiteral("InstallLocation"), QVariant()).toString() +
        QLatin1Char('/') + QString::fromLatin1(id->second.executable) + QStringLiteral(".exe");
    if (QFile::exists(candidate))
        path = candidate;
}

void AppDetection::latestVersion(const QString &keyPath, const QStringList &productKeys,
                                 QString &latestKey)
{
    int bestMajor = 0;
    int bestMinor = 0;
    for (const QString &group : productKeys) {
        const QSettings settings(keyPath + group, QSettings::NativeFormat);
        const int major = int(settings.value(QStringLiteral("VersionMajor"), QVariant()).toUInt());
        const int minor = int(settings.value(QStringLiteral("VersionMinor"), QVariant()).toUInt());
        if (major < bestMajor || (major == bestMajor && minor < bestMinor))
            continue;
        bestMajor = major;
        bestMinor = minor;
        latestKey = group;
    }
}
