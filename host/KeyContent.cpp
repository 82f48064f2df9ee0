#include "host/KeyContent.h"

#include "vocabulary/KeyCodes.h"

namespace {

constexpr int BacklightKey = 21;
constexpr ushort BacklightKeyCode = 385;

} // namespace

bool operator==(const KeyContent &a, const KeyContent &b)
{
    return a.mapping == b.mapping && a.app == b.app && a.hotKey == b.hotKey &&
           a.shortcut == b.shortcut && a.extended == b.extended && a.macroName == b.macroName;
}

bool hasExtra(const KeyContent &key)
{
    return key.app || key.hotKey || key.shortcut || key.extended || key.macroName;
}

vantrix_key_mapping freshMapping(int keyIdx)
{
    return keyIdx == BacklightKey ? plainKey(BacklightKeyCode) : clearedKey();
}

KeyContent freshKey(int keyIdx)
{
    KeyContent key;
    key.mapping = freshMapping(keyIdx);
    return key;
}

ProfileKeys freshKeys()
{
    ProfileKeys keys;
    for (int i = 0; i < KeyCount; ++i)
        keys[std::size_t(i)] = freshKey(i);
    return keys;
}

KeyContent actingKey(int keyIdx, KeyContent key)
{
    if (!hasExtra(key) && !isDualAction(key.mapping) &&
        effectiveCode(key.mapping) == UnassignedCode)
        key.mapping = plainKey(defaultCodeOfKey(keyIdx));
    return key;
}
