#include "fakes/FakeProfileCfg.h"

namespace {

QString textOf(int number)
{
    return QString::number(number);
}

QString textOf(const std::string &text)
{
    return QString::fromStdString(text);
}

/// The row of a key, when there is one.
template <typename T>
bool read(const std::map<uchar, T> &rows, int keyIdx, T *out)
{
    const auto row = rows.find(uchar(keyIdx));
    if (row == rows.end())
        return false;
    *out = row->second;
    return true;
}

} // namespace

FakeProfileCfg::FakeProfileCfg()
{
    setInstance(this);
}

FakeProfileCfg::~FakeProfileCfg()
{
    setInstance(nullptr);
}

QStringList FakeProfileCfg::writes() const
{
    QStringList writes;
    for (const QString &call : m_calls) {
        if (!call.startsWith(QLatin1String("get")) && !call.startsWith(QLatin1String("can")))
            writes << call;
    }
    return writes;
}

template <typename... Arguments>
void FakeProfileCfg::note(const char *call, Arguments... arguments)
{
    const QStringList words{QString::fromLatin1(call), textOf(arguments)...};
    m_calls << words.join(QLatin1Char(' '));
}

void FakeProfileCfg::getAppPath(int appType, QString &path)
{
    if (beforeAppPath)
        beforeAppPath();
    const QMutexLocker lock(&m_pathMutex);
    path = m_appPaths[appType];
}

void FakeProfileCfg::setAppPath(int appType, const QString &path)
{
    const QMutexLocker lock(&m_pathMutex);
    m_appPaths[appType] = path;
    ++setAppPathCount;
}

bool FakeProfileCfg::hasAppPath(int appType)
{
    const QMutexLocker lock(&m_pathMutex);
    return !m_appPaths[appType].isEmpty();
}

bool FakeProfileCfg::getPressoEnabled()
{
    note("getPressoEnabled");
    return pressoEnabled;
}

void FakeProfileCfg::setPressoEnabled(int enable)
{
    note("setPressoEnabled", enable);
    pressoEnabled = enable != 0;
}

void FakeProfileCfg::setProfileDirty(int iOwner, int iProfile, bool dirty)
{
    note("setProfileDirty", iOwner, iProfile, int(dirty));
    profile(iOwner, iProfile).dirty = dirty;
}

bool FakeProfileCfg::canAddMacroAssign(int iOwner, int iProfile)
{
    note("canAddMacroAssign", iOwner, iProfile);
    return canAddMacro;
}

void FakeProfileCfg::setMode(int iOwner, int iProfile, int mode)
{
    note("setMode", iOwner, iProfile, mode);
    profile(iOwner, iProfile).mode = mode;
}

int FakeProfileCfg::getMode(int iOwner, int iProfile)
{
    note("getMode", iOwner, iProfile);
    return profile(iOwner, iProfile).mode;
}

void FakeProfileCfg::setInput(int iOwner, int iProfile, int input)
{
    note("setInput", iOwner, iProfile, input);
    profile(iOwner, iProfile).input = input;
}

int FakeProfileCfg::getInput(int iOwner, int iProfile)
{
    note("getInput", iOwner, iProfile);
    return profile(iOwner, iProfile).input;
}

void FakeProfileCfg::setCurrentKey(int iOwner, int iProfile, int keyIdx)
{
    note("setCurrentKey", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).currentKey = keyIdx;
}

int FakeProfileCfg::getCurrentKey(int iOwner, int iProfile)
{
    note("getCurrentKey", iOwner, iProfile);
    return profile(iOwner, iProfile).currentKey;
}

void FakeProfileCfg::clearCurrentKey(int iOwner, int iProfile)
{
    note("clearCurrentKey", iOwner, iProfile);
    profile(iOwner, iProfile).currentKey = KeyCount;
}

void FakeProfileCfg::setPanel(int iOwner, int iProfile, int keyboardType)
{
    note("setPanel", iOwner, iProfile, keyboardType);
    profile(iOwner, iProfile).panel = keyboardType;
}

int FakeProfileCfg::getPanel(int iOwner, int iProfile)
{
    note("getPanel", iOwner, iProfile);
    return profile(iOwner, iProfile).panel;
}

void FakeProfileCfg::setKeyMapping(int iOwner, int iProfile, int keyIdx,
                                   const vantrix_key_mapping *mapping)
{
    note("setKeyMapping", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).keys.at(std::size_t(keyIdx)) = *mapping;
}

void FakeProfileCfg::setKeyMappings(int iOwner, int iProfile,
                                    std::vector<vantrix_key_mapping> *mappings)
{
    note("setKeyMappings", iOwner, iProfile, int(mappings->size()));
    auto &keys = profile(iOwner, iProfile).keys;
    std::copy(mappings->begin(), mappings->end(), keys.begin());
}

bool FakeProfileCfg::getKeyMappings(int iOwner, int iProfile,
                                    std::vector<vantrix_key_mapping> *mappings)
{
    note("getKeyMappings", iOwner, iProfile);
    if (readsFail)
        return false;
    *mappings = profile(iOwner, iProfile).keys;
    return true;
}

void FakeProfileCfg::setAppAssign(int iOwner, int iProfile, int keyIdx,
                                  const vantrix_app_assign *assign)
{
    note("setAppAssign", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).apps[uchar(keyIdx)] = *assign;
}

void FakeProfileCfg::delAppAssign(int iOwner, int iProfile, int keyIdx)
{
    note("delAppAssign", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).apps.erase(uchar(keyIdx));
}

bool FakeProfileCfg::getAppAssign(int iOwner, int iProfile, int keyIdx, vantrix_app_assign *assign)
{
    note("getAppAssign", iOwner, iProfile, keyIdx);
    return !readsFail && read(profile(iOwner, iProfile).apps, keyIdx, assign);
}

bool FakeProfileCfg::getAppAssigns(int iOwner, int iProfile,
                                   std::map<uchar, vantrix_app_assign> *assigns)
{
    note("getAppAssigns", iOwner, iProfile);
    if (readsFail)
        return false;
    *assigns = profile(iOwner, iProfile).apps;
    return true;
}

void FakeProfileCfg::setHotKeyAssign(int iOwner, int iProfile, int keyIdx,
                                     const vantrix_hotkey_assign *assign)
{
    note("setHotKeyAssign", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).hotKeys[uchar(keyIdx)] = *assign;
}

void FakeProfileCfg::delHotKeyAssign(int iOwner, int iProfile, int keyIdx)
{
    note("delHotKeyAssign", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).hotKeys.erase(uchar(keyIdx));
}

bool FakeProfileCfg::getHotKeyAssign(int iOwner, int iProfile, int keyIdx,
                                     vantrix_hotkey_assign *assign)
{
    note("getHotKeyAssign", iOwner, iProfile, keyIdx);
    return !readsFail && read(profile(iOwner, iProfile).hotKeys, keyIdx, assign);
}

bool FakeProfileCfg::getHotKeyAssigns(int iOwner, int iProfile,
                                      std::map<uchar, vantrix_hotkey_assign> *assigns)
{
    note("getHotKeyAssigns", iOwner, iProfile);
    if (readsFail)
        return false;
    *assigns = profile(iOwner, iProfile).hotKeys;
    return true;
}

void FakeProfileCfg::setShortcutAssign(int iOwner, int iProfile, int keyIdx,
                                       const vantrix_shortcut_assign *assign)
{
    note("setShortcutAssign", iOwner, iProfile, keyIdx, assign->id);
    profile(iOwner, iProfile).shortcuts[uchar(keyIdx)] = assign->id;
}

void FakeProfileCfg::delShortcutAssign(int iOwner, int iProfile, int keyIdx)
{
    note("delShortcutAssign", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).shortcuts.erase(uchar(keyIdx));
}

bool FakeProfileCfg::getShortcutAssigns(int iOwner, int iProfile, std::map<uchar, uchar> *assigns)
{
    note("getShortcutAssigns", iOwner, iProfile);
    if (readsFail)
        return false;
    *assigns = profile(iOwner, iProfile).shortcuts;
    return true;
}

void FakeProfileCfg::setExtendedKey(int iOwner, int iProfile, int keyIdx,
                                    const vantrix_extended_key *assign)
{
    note("setExtendedKey", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).extended[uchar(keyIdx)] = *assign;
}

void FakeProfileCfg::delExtendedKey(int iOwner, int iProfile, int keyIdx)
{
    note("delExtendedKey", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).extended.erase(uchar(keyIdx));
}

bool FakeProfileCfg::getExtendedKeys(int iOwner, int iProfile,
                                     std::map<uchar, vantrix_extended_key> *assigns)
{
    note("getExtendedKeys", iOwner, iProfile);
    if (readsFail)
        return false;
    *assigns = profile(iOwner, iProfile).extended;
    return true;
}

void FakeProfileCfg::clearAssignsForPreset(int iOwner, int iProfile)
{
    note("clearAssignsForPreset", iOwner, iProfile);
    Profile &cleared = profile(iOwner, iProfile);
    cleared.apps.clear();
    cleared.hotKeys.clear();
    cleared.shortcuts.clear();
    cleared.extended.clear();
}

int FakeProfileCfg::getShortcutBase(int iOwner, int iProfile)
{
    note("getShortcutBase", iOwner, iProfile);
    return shortcutBase;
}

bool FakeProfileCfg::getKeysOfMacro(int iOwner, int iProfile, std::string macroName,
                                    std::map<uchar, uchar> *keys)
{
    note("getKeysOfMacro", iOwner, iProfile, macroName);
    if (readsFail)
        return false;
    keys->clear();
    for (const auto &[key, name] : profile(iOwner, iProfile).macros) {
        if (name == macroName)
            (*keys)[key] = key;
    }
    return true;
}

void FakeProfileCfg::setNamedMacroKey(int iOwner, int iProfile, std::string macroName, int keyIdx)
{
    note("setNamedMacroKey", iOwner, iProfile, macroName, keyIdx);
    profile(iOwner, iProfile).macros[uchar(keyIdx)] = macroName;
}

void FakeProfileCfg::delNamedMacroKey(int iOwner, int iProfile, int keyIdx)
{
    note("delNamedMacroKey", iOwner, iProfile, keyIdx);
    profile(iOwner, iProfile).macros.erase(uchar(keyIdx));
}

bool FakeProfileCfg::delNamedMacro(int iOwner, int iProfile, std::string macroName)
{
    note("delNamedMacro", iOwner, iProfile, macroName);
    auto &macros = profile(iOwner, iProfile).macros;
    const std::size_t before = macros.size();
    for (auto row = macros.begin(); row != macros.end();)
        row = row->second == macroName ? macros.erase(row) : std::next(row);
    return macros.size() != before;
}

void FakeProfileCfg::clearNamedMacros(int iOwner, int iProfile)
{
    note("clearNamedMacros", iOwner, iProfile);
    profile(iOwner, iProfile).macros.clear();
}
