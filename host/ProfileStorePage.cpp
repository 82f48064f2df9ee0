// The operations of the store that the page calls.

#include "host/ProfileStore.h"

void ProfileStore::changeKey(StoreTable table, int owner, int profile, int keyIdx,
                             const QByteArray &bytes)
{
    if (isValid(profile) && isValidKey(keyIdx))
        change(profileRecord(table, owner, profile, keyIdx), bytes);
}

void ProfileStore::changeView(StoreTable table, int owner, int profile, int value)
{
    if (isValid(profile))
        change(profileRecord(table, owner, profile), StoreCodec::number(value));
}

void ProfileStore::clearTable(StoreTable table, int owner, int profile)
{
    for (int i = 0; i < KeyCount; ++i)
        changeKey(table, owner, profile, i, QByteArray());
}

/// Fills a map with what `read` finds on each key; false for a profile that does not exist.
template <typename T, typename Read>
bool ProfileStore::readKeys(int profile, std::map<uchar, T> *out, Read read) const
{
    out->clear();
    if (!isValid(profile))
        return false;
    for (int i = 0; i < KeyCount; ++i) {
        if (const auto found = read(i))
            out->emplace(uchar(i), *found);
    }
    return true;
}

bool ProfileStore::getPressoEnabled()
{
    return m_state.number(storeRecord(StoreTable::Presso)) != 0;
}

void ProfileStore::setPressoEnabled(int enable)
{
    change(storeRecord(StoreTable::Presso), StoreCodec::number(enable ? 1 : 0));
}

void ProfileStore::setProfileDirty(int, int, bool) {}

bool ProfileStore::canAddMacroAssign(int iOwner, int iProfile)
{
    int assigns = 0;
    for (const KeyContent &key : m_state.keys(iOwner, iProfile))
        assigns += int(key.app.has_value()) + int(key.hotKey.has_value()) +
                   int(key.shortcut.has_value()) + int(key.macroName.has_value());
    return assigns < macroAssignLimit();
}

void ProfileStore::setMode(int iOwner, int iProfile, int mode)
{
    changeView(StoreTable::Mode, iOwner, iProfile, mode);
}

int ProfileStore::getMode(int iOwner, int iProfile)
{
    return m_state.number(profileRecord(StoreTable::Mode, iOwner, iProfile));
}

void ProfileStore::setInput(int iOwner, int iProfile, int input)
{
    changeView(StoreTable::Input, iOwner, iProfile, input);
}

int ProfileStore::getInput(int iOwner, int iProfile)
{
    return m_state.number(profileRecord(StoreTable::Input, iOwner, iProfile));
}

void ProfileStore::setCurrentKey(int iOwner, int iProfile, int keyIdx)
{
    const int key = isValidKey(keyIdx) ? keyIdx : NoKey;
    // two clicks can arrive in one turn; what is done to another key is another step
    if (key != NoKey && key != getCurrentKey(iOwner, iProfile) && m_stepDepth == 0)
        closeStep();
    changeView(StoreTable::CurrentKey, iOwner, iProfile, key);
}

int ProfileStore::getCurrentKey(int iOwner, int iProfile)
{
    return m_state.number(profileRecord(StoreTable::CurrentKey, iOwner, iProfile));
}

void ProfileStore::clearCurrentKey(int iOwner, int iProfile)
{
    changeView(StoreTable::CurrentKey, iOwner, iProfile, NoKey);
}

void ProfileStore::setPanel(int iOwner, int iProfile, int keyboardType)
{
    if (m_presetTurn)
        m_preset = keyboardType;
    changeView(StoreTable::Panel, iOwner, iProfile, keyboardType);
}

int ProfileStore::getPanel(int iOwner, int iProfile)
{
    return m_state.number(profileRecord(StoreTable::Panel, iOwner, iProfile));
}

void ProfileStore::setKeyMapping(int iOwner, int iProfile, int keyIdx,
                                 const vantrix_key_mapping *mapping)
{
    changeKey(StoreTable::Mapping, iOwner, iProfile, keyIdx, StoreCodec::record(*mapping));
}

void ProfileStore::setKeyMappings(int iOwner, int iProfile,
                                  std::vector<vantrix_key_mapping> *mappings)
{
    int keyIdx = 0;
    for (const vantrix_key_mapping &mapping : *mappings)
        setKeyMapping(iOwner, iProfile, keyIdx++, &mapping);
}

bool ProfileStore::getKeyMappings(int iOwner, int iProfile,
                                  std::vector<vantrix_key_mapping> *mappings)
{
    mappings->clear();
    if (!isValid(iProfile))
        return false;
    for (int i = 0; i < KeyCount; ++i)
        mappings->push_back(m_state.mapping(iOwner, iProfile, i));
    return true;
}

void ProfileStore::setAppAssign(int iOwner, int iProfile, int keyIdx,
                                const vantrix_app_assign *assign)
{
    changeKey(StoreTable::AppAssign, iOwner, iProfile, keyIdx, StoreCodec::record(*assign));
}

void ProfileStore::delAppAssign(int iOwner, int iProfile, int keyIdx)
{
    changeKey(StoreTable::AppAssign, iOwner, iProfile, keyIdx, QByteArray());
}

bool ProfileStore::getAppAssign(int iOwner, int iProfile, int keyIdx, vantrix_app_assign *assign)
{
    const auto found = m_state.appAssign(iOwner, iProfile, keyIdx);
    *assign = found.value_or(vantrix_app_assign());
    return found.has_value();
}

bool ProfileStore::getAppAssigns(int iOwner, int iProfile,
                                 std::map<uchar, vantrix_app_assign> *assigns)
{
    return readKeys(iProfile, assigns,
                    [&](int key) { return m_state.appAssign(iOwner, iProfile, key); });
}

void ProfileStore::setHotKeyAssign(int iOwner, int iProfile, int keyIdx,
                                   const vantrix_hotkey_assign *assign)
{
    changeKey(StoreTable::HotKeyAssign, iOwner, iProfile, keyIdx, StoreCodec::hotKey(*assign));
}

void ProfileStore::delHotKeyAssign(int iOwner, int iProfile, int keyIdx)
{
    changeKey(StoreTable::HotKeyAssign, iOwner, iProfile, keyIdx, QByteArray());
}

bool ProfileStore::getHotKeyAssign(int iOwner, int iProfile, int keyIdx,
                                   vantrix_hotkey_assign *assign)
{
    const auto found = m_state.hotKeyAssign(iOwner, iProfile, keyIdx);
    *assign = found.value_or(vantrix_hotkey_assign());
    return found.has_value();
}

bool ProfileStore::getHotKeyAssigns(int iOwner, int iProfile,
                                    std::map<uchar, vantrix_hotkey_assign> *assigns)
{
    return readKeys(iProfile, assigns,
                    [&](int key) { return m_state.hotKeyAssign(iOwner, iProfile, key); });
}

void ProfileStore::setShortcutAssign(int iOwner, int iProfile, int keyIdx,
                                     const vantrix_shortcut_assign *assign)
{
    changeKey(StoreTable::Shortcut, iOwner, iProfile, keyIdx, StoreCodec::record(*assign));
}

void ProfileStore::delShortcutAssign(int iOwner, int iProfile, int keyIdx)
{
    changeKey(StoreTable::Shortcut, iOwner, iProfile, keyIdx, QByteArray());
}

bool ProfileStore::getShortcutAssigns(int iOwner, int iProfile, std::map<uchar, uchar> *assigns)
{
    return readKeys(iProfile, assigns, [&](int key) {
        const auto found = m_state.shortcut(iOwner, iProfile, key);
        return found ? std::optional<uchar>(found->id) : std::nullopt;
    });
}

void ProfileStore::setExtendedKey(int iOwner, int iProfile, int keyIdx,
                                  const vantrix_extended_key *key)
{
    changeKey(StoreTable::ExtendedKey, iOwner, iProfile, keyIdx, StoreCodec::record(*key));
}

void ProfileStore::delExtendedKey(int iOwner, int iProfile, int keyIdx)
{
    changeKey(StoreTable::ExtendedKey, iOwner, iProfile, keyIdx, QByteArray());
}

bool ProfileStore::getExtendedKeys(int iOwner, int iProfile,
                                   std::map<uchar, vantrix_extended_key> *keys)
{
    return readKeys(iProfile, keys,
                    [&](int key) { return m_state.extendedKey(iOwner, iProfile, key); });
}

void ProfileStore::clearAssignsForPreset(int iOwner, int iProfile)
{
    m_presetTurn = true;
    for (const StoreTable table : {StoreTable::AppAssign, StoreTable::HotKeyAssign,
                                   StoreTable::Shortcut, StoreTable::ExtendedKey})
        clearTable(table, iOwner, iProfile);
}

int ProfileStore::getShortcutBase(int iOwner, int)
{
    return int(m_state.macroNames(iOwner).size());
}

bool ProfileStore::getKeysOfMacro(int iOwner, int iProfile, std::string macroName,
                                  std::map<uchar, uchar> *keys)
{
    const QString name = QString::fromStdString(macroName);
    const bool exists = readKeys(iProfile, keys, [&](int key) {
        const auto held = m_state.macroKey(iOwner, iProfile, key);
        return held == name ? std::optional<uchar>(uchar(key)) : std::nullopt;
    });
    return exists && (!keys->empty() || m_state.macroNames(iOwner).contains(name));
}

void ProfileStore::setNamedMacroKey(int iOwner, int iProfile, std::string macroName, int keyIdx)
{
    changeKey(StoreTable::MacroKey, iOwner, iProfile, keyIdx,
              StoreCodec::text(QString::fromStdString(macroName)));
}

void ProfileStore::delNamedMacroKey(int iOwner, int iProfile, int keyIdx)
{
    changeKey(StoreTable::MacroKey, iOwner, iProfile, keyIdx, QByteArray());
}

bool ProfileStore::delNamedMacro(int iOwner, int iProfile, std::string macroName)
{
    std::map<uchar, uchar> keys;
    getKeysOfMacro(iOwner, iProfile, macroName, &keys);
    for (const auto &row : keys)
        delNamedMacroKey(iOwner, iProfile, row.first);
    return !keys.empty();
}

void ProfileStore::clearNamedMacros(int iOwner, int iProfile)
{
    clearTable(StoreTable::MacroKey, iOwner, iProfile);
}
