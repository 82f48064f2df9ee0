#pragma once

#include "interfaces/VantrixExport.h"

#include <QString>
#include <QStringList>

#ifdef Q_OS_WIN
struct HWND__;
using HWND = HWND__ *;
#else
struct VantrixNativeWindow;
/// Native handle of a window; outside Windows an opaque pointer that carries its WId.
using HWND = VantrixNativeWindow *;
#endif

/// Where the host keeps the files that the page names. Statics only; what is behind them comes
/// from one settable object, so that a test or a shell can point them anywhere.
class VANTRIX_EXPORT CfgFile
{
public:
    /// What the host tells.
    struct Locations
    {
        QString hotKeysFolder;      ///< root of the hot-key catalog; empty: there is none
        QStringList latestAppPaths; ///< latest known executable for each AppType
    };

    CfgFile() = delete;

    /// Replaces the locations. Any thread.
    static void setLocations(const Locations &locations);

    static QString filename();      ///< "/config/param/param.arg"
    static QString filename_chg();  ///< "/config/param/param_chg.arg"
    static QString hotkeysFolder(); ///< "/hotkeys", the fixed name part of the catalog's folder
    static QString resetFile();     ///< "/reset.ini"

    /// Fills the folder of the hot-key catalog; empty if there is none. Any thread.
    static void ReadAppHotKeysFolder(QString &folder);
    /// Fills one latest known path for each application type. Any thread.
    static void ReadLatestAppPath(QStringList &paths);
    /// Runs the open-file dialog over `parent`, through the toolkit's one place for modal things,
    /// and returns the chosen path, or an empty text. `filter` is a name and patterns in brackets.
    /// Interface thread.
    static QString getOpenFileName(HWND parent, const QString &title, const QString &dir,
                                   const wchar_t *filter);
};
