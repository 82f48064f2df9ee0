#include "host/StepName.h"

#include "host/KeyText.h"
#include "vocabulary/Presets.h"

namespace {

bool isKeyTable(StoreTable table)
{
    return table >= StoreTable::Mapping && table <= StoreTable::MacroKey;
}

bool has(const ChangeSet &changes, StoreTable table)
{
    return std::any_of(changes.begin(), changes.end(),
                       [table](const auto &row) { return row.first.table == table; });
}

/// The keys that were changed, as rows of mappings.
std::vector<RecordId> keysOf(const ChangeSet &changes)
{
    std::map<RecordId, bool> keys;
    for (const auto &row : changes) {
        RecordId id = row.first;
        if (!isKeyTable(id.table))
            continue;
        id.table = StoreTable::Mapping;
        keys[id] = true;
    }
    std::vector<RecordId> result;
    result.reserve(keys.size());
    for (const auto &row : keys)
        result.push_back(row.first);
    return result;
}

/// The mapping of a row, before or after; the default's where there is no row.
vantrix_key_mapping mappingOf(const RecordId &id, const QByteArray &bytes)
{
    return StoreCodec::record<vantrix_key_mapping>(bytes).value_or(freshMapping(id.index));
}

/// True when the depth of a dual action is all that changed.
bool isDepth(const RecordId &id, const RecordChange &change)
{
    if (id.table != StoreTable::Mapping)
        return false;
    vantrix_key_mapping before = mappingOf(id, change.before);
    const vantrix_key_mapping after = mappingOf(id, change.after);
    before.digital.depth = after.digital.depth;
    return isDualAction(after) && before == after;
}

} // namespace

bool StepName::isSameDepth(const ChangeSet &first, const ChangeSet &second)
{
    if (first.size() != 1 || second.size() != 1)
        return false;
    const auto &[id, change] = *first.begin();
    return id == second.begin()->first && isDepth(id, change) &&
           isDepth(id, second.begin()->second);
}

QString StepName::ofKey(const RecordId &key, const ChangeSet &changes, const StoreState &state)
{
    const KeyContent content = state.key(key.owner, key.profile, key.index);
    const auto mapping = changes.find(key);
    if (mapping != changes.end() && isDepth(key, mapping->second))
        return tr("Depth of key %1: %2%").arg(key.index).arg(content.mapping.digital.depth);
    if (KeyText::isCleared(key.index, content))
        return tr("Clear key %1").arg(key.index);
    return tr("Assign %1 to key %2")
        .arg(KeyText::functionName(key.index, content), QString::number(key.index));
}

QString StepName::ofKeys(const ChangeSet &changes, const StoreState &state)
{
    const std::vector<RecordId> keys = keysOf(changes);
    if (keys.size() == 1)
        return ofKey(keys.front(), changes, state);
    bool oneProfile = true;
    bool allCleared = true;
    bool allDual = true;
    for (const RecordId &id : keys) {
        const KeyContent content = state.key(id.owner, id.profile, id.index);
        oneProfile &= id.owner == keys.front().owner && id.profile == keys.front().profile;
        allCleared &= KeyText::isCleared(id.index, content);
        allDual &= isDualAction(content.mapping);
    }
    const int count = int(keys.size());
    if (!oneProfile)
        return tr("Change %n key(s) in several profiles", nullptr, count);
    if (allCleared)
        return tr("Clear %1 keys").arg(count);
    return allDual ? tr("Dual actions on %1 keys").arg(count) : tr("Change %1 keys").arg(count);
}

QString StepName::ofMacros(const ChangeSet &changes)
{
    QString added;
    QString removed;
    QString changed;
    for (const auto &[id, change] : changes) {
        if (id.table != StoreTable::Macro)
            continue;
        QString &name =
            change.before.isEmpty() ? added : (change.after.isEmpty() ? removed : changed);
        name = id.name;
    }
    if (!added.isEmpty() && !removed.isEmpty())
        return tr("Rename macro %1 to %2").arg(removed, added);
    if (!added.isEmpty())
        return tr("Create macro %1").arg(added);
    if (!removed.isEmpty())
        return tr("Delete macro %1").arg(removed);
    return changed.isEmpty() ? tr("Move a macro") : tr("Edit macro %1").arg(changed);
}

QString StepName::of(const ChangeSet &changes, const StoreState &state, int preset)
{
    const auto row = PresetPanels().find(preset);
    if (row != PresetPanels().end())
        return tr("Preset: %1").arg(tr(row->second.name));
    if (has(changes, StoreTable::Macro) || has(changes, StoreTable::MacroOrder))
        return ofMacros(changes);
    if (!keysOf(changes).empty())
        return ofKeys(changes, state);
    for (const auto &[id, change] : changes) {
        if (id.table == StoreTable::ProfileName)
            return tr("Name profile %1: %2")
                .arg(QString::number(id.profile + 1), state.profileName(id.owner, id.profile));
        if (id.table == StoreTable::ProfileOrder)
            return tr("Move a profile");
        if (id.table == StoreTable::Presso)
            return change.after.isEmpty() ? tr("Pressure sensing on") : tr("Pressure sensing off");
    }
    return tr("Change");
}
