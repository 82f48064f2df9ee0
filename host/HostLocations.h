#pragma once

#include <QString>
#include <QStringList>

class ProfileStore;

/// Where the reference host keeps and finds its files.
///
/// | what                | where                                                             |
/// |---------------------|-------------------------------------------------------------------|
/// | store               | `<data>/profiles.sqlite`                                          |
/// | hot-key catalog     | the setting `hotKeysFolder`, else `<data>/hotkeys`, else          |
/// |                     | `<share>/hotkeys`: the first that is a folder                     |
/// | latest known paths  | `<data>/reset.ini`, group `LatestAppPath`, keys `0`, `1`, `2`     |
///
/// The data folder is the user's; the share folder comes with the program and is found from where
/// the program lies, in a build tree as well as installed. A program elsewhere names it:
///
///     services.locations().setShareFolder("PREFIX/share/vantrixmap");
///     services.locations().install(services.store());
///
/// Interface thread.
class HostLocations
{
public:
    /// Name of the setting that names another catalog.
    static QString hotKeysFolderKey();
    /// The share folder of a program in `programFolder`: the first place, installed or in a build
    /// tree, that holds a catalog. Empty if none does.
    static QString shareFolderOf(const QString &programFolder);

    /// The standard data folder and the share folder of this program. `dataFolder` replaces the
    /// former.
    explicit HostLocations(const QString &dataFolder = QString());

    const QString &dataFolder() const { return m_data; }
    /// Another share folder than the program's, empty for none. The page learns of it with the
    /// next `install`.
    void setShareFolder(const QString &folder) { m_share = folder; }
    QString storeFile() const;
    /// The first of the three places that is a folder; empty if none is.
    QString hotKeysFolder(const ProfileStore &store) const;
    /// One for each AppType, empty where none is known.
    QStringList latestAppPaths() const;
    /// Keeps a path for the next time an application is looked for; `install` tells the page.
    void setLatestAppPath(int appType, const QString &path);

    /// Tells CfgFile all of it. To be repeated when a setting changed.
    void install(const ProfileStore &store) const;

private:
    QString m_data;
    QString m_share;
};
