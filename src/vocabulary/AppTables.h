#pragma once

/// The functions of the three creative applications (AppType), 19 for each, ids 0 to 18.

#include <QString>

#include <map>
#include <vector>

struct vantrix_macro_record;

constexpr int AppFuncCount = 19;

/// How an application is found in the registry.
struct AppId
{
    const char *productCode; ///< prefix of its uninstall keys
    const char *executable;  ///< stem of its executable
};
const std::map<int, AppId> &AppIds();

/// Application type to the function id that launches it.
const std::map<int, int> &AppLaunchFuncs();
/// Application type to the functions that are kept as a plain key code.
const std::map<int, std::vector<int>> &AppDirectFuncs();
bool isDirectFunc(int appType, int funcId);

/// Function id to the device codes it plays; empty map for an unknown type.
const std::map<int, std::vector<ushort>> &AppShortcuts(int appType);
/// Function id to the path of its picture; functions without a picture have no row.
const std::map<int, QString> &AppImages(int appType);
/// Function id to its untranslated hint; functions without a hint have no row.
const std::map<int, const char *> &AppHints(int appType);

/// Untranslated name of a function: "UNKNOWN" for an id outside 0 to 18; empty for an unknown
/// application type.
const char *appFunctionName(int appType, int funcId);
/// The same in the language of the interface.
QString appFunctionText(int appType, int funcId);
/// The hint of a function in the language of the interface; empty for a function without one.
QString appHintText(int appType, int funcId);

/// Untranslated display name of an application, "UNKNOWN" for any other type.
const char *appTypeName(int appType);
/// The same in the language of the interface.
QString appTypeText(int appType);

/// Fills a macro record with the key sequence of a function: cleared first, each code pressed in
/// order with a delay of 20 milliseconds, released in the opposite order. An unknown type or id
/// gives an empty sequence. The record's `code` stays 0.
void buildAppMacro(int appType, int funcId, vantrix_macro_record *record);
