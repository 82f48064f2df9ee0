#pragma once

#include "core/records.h"
#include "interfaces/IVantrixProfileCfg.h"

#include <QMutex>
#include <QStringList>

/// A profile store in memory, installed while it lives. It keeps a log of the calls, so that a
/// test can compare their order, and its answers can be scripted.
class FakeProfileCfg final : public IVantrixProfileCfg
{
public:
    struct Profile
    {
        int mode = Mode::Simple;
        int input = InputType::Keyboard;
        int currentKey = KeyCount;
        int panel = 0;
        bool dirty = false;
        std::vector<vantrix_key_mapping> keys{std::size_t(KeyCount), clearedKey()};
        std::map<uchar, vantrix_app_assign> apps;
        std::map<uchar, vantrix_hotkey_assign> hotKeys;
        std::map<uchar, uchar> shortcuts;
        std::map<uchar, vantrix_extended_key> extended;
        std::map<uchar, std::string> macros;
    };

    FakeProfileCfg();
    ~FakeProfileCfg();

    Profile &profile(int iOwner, int iProfile) { return m_profiles[{iOwner, iProfile}]; }
    /// Every call in order, as "setInput 0 1 4": name, scope and numbers or texts. The calls
    /// about application paths, which come from any thread, are left out.
    QStringList calls() const { return m_calls; }
    /// The calls that change something.
    QStringList writes() const;
    void clearLog() { m_calls.clear(); }

    bool readsFail = false; ///< makes every read that can fail do so
    bool canAddMacro = true;
    int shortcutBase = 0;
    bool pressoEnabled = true;
    int setAppPathCount = 0;
    /// Runs on the thread that asks for an application path, before it gets an answer.
    std::function<void()> beforeAppPath;

    // clang-format off
    void getAppPath(int appType, QString &path) override;
    void setAppPath(int appType, const QString &path) override;
    bool hasAppPath(int appType) override;
    bool getPressoEnabled() override;
    void setPressoEnabled(int enable) override;
    void setProfileDirty(int iOwner, int iProfile, bool dirty) override;
    bool canAddMacroAssign(int iOwner, int iProfile) override;
    void setMode(int iOwner, int iProfile, int mode) override;
    int getMode(int iOwner, int iProfile) override;
    void setInput(int iOwner, int iProfile, int input) override;
    int getInput(int iOwner, int iProfile) override;
    void setCurrentKey(int iOwner, int iProfile, int keyIdx) override;
    int getCurrentKey(int iOwner, int iProfile) override;
    void clearCurrentKey(int iOwner, int iProfile) override;
    void setPanel(int iOwner, int iProfile, int keyboardType) override;
    int getPanel(int iOwner, int iProfile) override;
    void setKeyMapping(int iOwner, int iProfile, int keyIdx, const vantrix_key_mapping *mapping) override;
    void setKeyMappings(int iOwner, int iProfile, std::vector<vantrix_key_mapping> *mappings) override;
    bool getKeyMappings(int iOwner, int iProfile, std::vector<vantrix_key_mapping> *mappings) override;
    void setAppAssign(int iOwner, int iProfile, int keyIdx, const vantrix_app_assign *assign) override;
    void delAppAssign(int iOwner, int iProfile, int keyIdx) override;
    bool getAppAssign(int iOwner, int iProfile, int keyIdx, vantrix_app_assign *assign) override;
    bool getAppAssigns(int iOwner, int iProfile, std::map<uchar, vantrix_app_assign> *assigns) override;
    void setHotKeyAssign(int iOwner, int iProfile, int keyIdx, const vantrix_hotkey_assign *assign) override;
    void delHotKeyAssign(int iOwner, int iProfile, int keyIdx) override;
    bool getHotKeyAssign(int iOwner, int iProfile, int keyIdx, vantrix_hotkey_assign *assign) override;
    bool getHotKeyAssigns(int iOwner, int iProfile, std::map<uchar, vantrix_hotkey_assign> *assigns) override;
    void setShortcutAssign(int iOwner, int iProfile, int keyIdx, const vantrix_shortcut_assign *assign) override;
    void delShortcutAssign(int iOwner, int iProfile, int keyIdx) override;
    bool getShortcutAssigns(int iOwner, int iProfile, std::map<uchar, uchar> *assigns) override;
    void setExtendedKey(int iOwner, int iProfile, int keyIdx, const vantrix_extended_key *key) override;
    void delExtendedKey(int iOwner, int iProfile, int keyIdx) override;
    bool getExtendedKeys(int iOwner, int iProfile, std::map<uchar, vantrix_extended_key> *keys) override;
    void clearAssignsForPreset(int iOwner, int iProfile) override;
    int getShortcutBase(int iOwner, int iProfile) override;
    bool getKeysOfMacro(int iOwner, int iProfile, std::string macroName, std::map<uchar, uchar> *keys) override;
    void setNamedMacroKey(int iOwner, int iProfile, std::string macroName, int keyIdx) override;
    void delNamedMacroKey(int iOwner, int iProfile, int keyIdx) override;
    bool delNamedMacro(int iOwner, int iProfile, std::string macroName) override;
    void clearNamedMacros(int iOwner, int iProfile) override;
    // clang-format on

private:
    template <typename... Arguments>
    void note(const char *call, Arguments... arguments);

    std::map<std::pair<int, int>, Profile> m_profiles;
    QStringList m_calls;
    QMutex m_pathMutex;
    std::map<int, QString> m_appPaths;
};
