#pragma once

#include "interfaces/VantrixExport.h"

#include <QString>
#include <QStringList>

/// Finds the executables of the creative applications (AppType 0 to 2) and puts them into the
/// profile store: the stored path if its file exists, else the host's list of latest paths, else
/// the uninstall entries of the registry. Without a registry the walk reads what `QSettings` gives
/// for the same path, which is an INI file of that name.
///
/// Statics that hold nothing of any object: they run on any thread, and the page that started them
/// may go at any moment. Nothing happens when no store is installed.
class VANTRIX_EXPORT AppDetection
{
public:
    AppDetection() = delete;

    /// Starts one detection for each application on the global thread pool and returns at once.
    /// Nothing reports their end; the host waits for the pool before it removes the store.
    static void start();

    /// Looks for one application. What is found is stored, and so is the empty path when nothing
    /// is found; a stored path whose file exists stays untouched.
    static void detect(int appType);

    /// Gives the executable of the newest installation in the registry; empty for an unknown type,
    /// or when the newest one has no executable. Older ones are not tried.
    static void registryPath(int appType, QString &path);

    /// Gives the group of the highest "VersionMajor", "VersionMinor" among the groups under
    /// `keyPath`, which ends in a separator. Of equal ones the later wins; a missing number is 0.
    /// An empty list leaves `latestKey` as it is.
    static void latestVersion(const QString &keyPath, const QStringList &productKeys,
                              QString &latestKey);
};
