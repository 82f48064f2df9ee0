#include "host/StoreRecord.h"

#include <array>

namespace {

struct TableRow
{
    const char *name;
    StoreKind kind;
};

// clang-format off
// In the order of StoreTable: name in store files, kind.
constexpr std::array<TableRow, StoreTableCount> Tables = {{
    {"apppath",       StoreKind::Outside},
    {"presso",        StoreKind::Content},
    {"setting",       StoreKind::Outside},
    {"mode",          StoreKind::View},
    {"input",         StoreKind::View},
    {"currentkey",    StoreKind::View},
    {"panel",         StoreKind::View},
    {"mapping",       StoreKind::Content},
    {"app",           StoreKind::Content},
    {"hotkey",        StoreKind::Content},
    {"shortcut",      StoreKind::Content},
    {"extended",      StoreKind::Content},
    {"macrokey",      StoreKind::Content},
    {"profilename",   StoreKind::Content},
    {"profileorder",  StoreKind::Content},
    {"macro",         StoreKind::Content},
    {"macroorder",    StoreKind::Content},
    {"deviceimage",   StoreKind::Outside},
    {"devicesetting", StoreKind::Outside},
}};
// clang-format on

} // namespace

void addChange(ChangeSet &changes, const RecordId &id, const RecordChange &change)
{
    const auto found = changes.find(id);
    if (found == changes.end()) {
        changes.emplace(id, change);
        return;
    }
    found->second.after = change.after;
    if (found->second.before == found->second.after)
        changes.erase(found);
}

StoreKind kindOf(StoreTable table)
{
    return Tables[std::size_t(table)].kind;
}

bool isWork(StoreTable table)
{
    return kindOf(table) == StoreKind::Content || table == StoreTable::DeviceImage;
}

const char *tableName(StoreTable table)
{
    return Tables[std::size_t(table)].name;
}

bool tableOfName(const QString &name, StoreTable *table)
{
    for (std::size_t i = 0; i < Tables.size(); ++i) {
        if (name == QLatin1String(Tables[i].name)) {
            *table = StoreTable(i);
            return true;
        }
    }
    return false;
}

RecordId storeRecord(StoreTable table, int index)
{
    return {table, 0, 0, index, QString()};
}

RecordId namedRecord(StoreTable table, const QString &name, int owner)
{
    return {table, owner, 0, 0, name};
}

RecordId profileRecord(StoreTable table, int owner, int profile, int index)
{
    return {table, owner, profile, index, QString()};
}
