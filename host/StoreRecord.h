#pragma once

/// The rows that the profile store is made of. A store is nothing but a map from `RecordId` to
/// bytes; everything it can say about profiles, macros and settings is one of these rows. Because
/// every change is a `RecordChange`, undo, saving and differences need to know nothing else.

#include <QByteArray>
#include <QString>

#include <map>
#include <tuple>

/// The kinds of rows. The names of the rows in a store file come from `tableName`.
enum class StoreTable : quint8 {
    AppPath,       ///< index: AppType; UTF-8 path
    Presso,        ///< decimal 0 or 1
    Setting,       ///< name: key; UTF-8 text
    Mode,          ///< owner, profile; decimal
    Input,         ///< owner, profile; decimal InputType
    CurrentKey,    ///< owner, profile; decimal key index
    Panel,         ///< owner, profile; decimal number of a preset
    Mapping,       ///< owner, profile, index: key; vantrix_key_mapping, 11 bytes
    AppAssign,     ///< owner, profile, index: key; vantrix_app_assign, 664 bytes
    HotKeyAssign,  ///< owner, profile, index: key; flag and two texts
    Shortcut,      ///< owner, profile, index: key; vantrix_shortcut_assign, 2 bytes
    ExtendedKey,   ///< owner, profile, index: key; vantrix_extended_key, 3 bytes
    MacroKey,      ///< owner, profile, index: key; UTF-8 name of the macro
    ProfileName,   ///< owner, profile; UTF-8
    ProfileOrder,  ///< owner; one byte a profile, in the order of the list
    Macro,         ///< owner, name: macro; vantrix_macro_record, 656 bytes
    MacroOrder,    ///< owner; list of names
    DeviceImage,   ///< owner, profile; what the device was sent last
    DeviceSetting, ///< name: key; what else the device keeps
};
constexpr int StoreTableCount = int(StoreTable::DeviceSetting) + 1;

/// What a row is to the history of steps.
enum class StoreKind {
    Content, ///< a change of it makes a step that can be undone
    View,    ///< makes no step, but comes back with the step
    Outside  ///< not in the history: settings, found paths, and what the device has
};

/// Name of a row. Parts that a table does not use stay at 0 or empty.
struct RecordId
{
    StoreTable table = StoreTable::Setting;
    int owner = 0;
    int profile = 0;
    int index = 0;
    QString name;
};

inline bool operator<(const RecordId &a, const RecordId &b)
{
    return std::tie(a.table, a.owner, a.profile, a.index, a.name) <
           std::tie(b.table, b.owner, b.profile, b.index, b.name);
}
inline bool operator==(const RecordId &a, const RecordId &b)
{
    return std::tie(a.table, a.owner, a.profile, a.index, a.name) ==
           std::tie(b.table, b.owner, b.profile, b.index, b.name);
}

/// One change: the bytes before and after. Empty bytes: there is no such row, its default holds.
struct RecordChange
{
    QByteArray before;
    QByteArray after;
};

/// Changes that belong together, at most one for each row.
using ChangeSet = std::map<RecordId, RecordChange>;

/// Adds a later change to a set: the first "before" and the last "after" stay, and a row that is
/// back where it was leaves the set.
void addChange(ChangeSet &changes, const RecordId &id, const RecordChange &change);

StoreKind kindOf(StoreTable table);
/// Whether a row is something that a person made and would miss: contents, and what was sent.
bool isWork(StoreTable table);
/// Name of a table in store files; never changes once a version has written it.
const char *tableName(StoreTable table);
/// The table of that name; false if there is none.
bool tableOfName(const QString &name, StoreTable *table);

/// A row of the whole store.
RecordId storeRecord(StoreTable table, int index = 0);
/// A row of the whole store, told by a name.
RecordId namedRecord(StoreTable table, const QString &name, int owner = 0);
/// A row of an owner or of a profile.
RecordId profileRecord(StoreTable table, int owner, int profile = 0, int index = 0);
