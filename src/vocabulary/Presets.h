#pragma once

/// The nine presets, each a plan for all 28 keys. A preset's number is the `keyboardType` of the
/// page's signals.

#include "core/records.h"

#include <map>

constexpr int PresetCount = 9;

/// One row of the preset side panel.
struct PresetPanelRow
{
    const char *tag;  ///< one or two letters on a black square
    const char *name; ///< untranslated
    int inputType;    ///< InputType that the preset selects; -1 for a group
};
/// Groups of the side panel: number 0, 4 and 5 of the table.
const std::map<int, PresetPanelRow> &PresetGroups();
/// Presets 0 to 8 of the side panel.
const std::map<int, PresetPanelRow> &PresetPanels();

/// Preset to 28 device codes in key order; presets 0, 1 and 2.
const std::map<int, std::array<ushort, KeyCount>> &KeyboardPresets();
/// Preset to controller codes by key index; presets 3, 4 and 5.
const std::map<int, std::map<int, ushort>> &GamePresets();
/// Preset to 28 entries by key index; presets 6, 7 and 8. Entries for which isAppPresetCode is
/// true are device codes, the others function ids.
const std::map<int, std::array<ushort, KeyCount>> &AppPresetKeys();
constexpr bool isAppPresetCode(int keyIdx)
{
    return keyIdx == 0 || keyIdx >= 20;
}
/// Preset to application type; presets 6, 7 and 8.
const std::map<int, int> &AppPresetType();
