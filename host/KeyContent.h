#pragma once

#include "core/records.h"

#include <array>
#include <optional>

/// Everything that one key of a profile holds: its mapping and its extras, as stored. The page
/// keeps at most one extra on a key.
struct KeyContent
{
    vantrix_key_mapping mapping = clearedKey();
    std::optional<vantrix_app_assign> app;
    std::optional<vantrix_hotkey_assign> hotKey;
    std::optional<vantrix_shortcut_assign> shortcut;
    std::optional<vantrix_extended_key> extended;
    std::optional<QString> macroName;
};

bool operator==(const KeyContent &a, const KeyContent &b);
inline bool operator!=(const KeyContent &a, const KeyContent &b)
{
    return !(a == b);
}

/// Whether a key holds anything beyond its mapping.
bool hasExtra(const KeyContent &key);

/// What a key holds that nothing was ever assigned to: code 255, and 385 on key 21, whose own
/// function is a backlight code.
vantrix_key_mapping freshMapping(int keyIdx);
KeyContent freshKey(int keyIdx);

/// A key as it acts: without an assignment it sends its own code, as if that were assigned.
KeyContent actingKey(int keyIdx, KeyContent key);

/// All keys of a profile.
using ProfileKeys = std::array<KeyContent, KeyCount>;
ProfileKeys freshKeys();
