#pragma once

#include "interfaces/ServiceInstance.h"

#include <QtGlobal>

#include <map>
#include <string>
#include <vector>

class QString;
struct vantrix_key_mapping;
struct vantrix_app_assign;
struct vantrix_hotkey_assign;
struct vantrix_shortcut_assign;
struct vantrix_extended_key;

/// The profile store: the owner of all persistent state behind the page.
///
/// `iOwner` is the number the page was constructed with, `iProfile` the argument of `updateUi`;
/// together they are the scope of a call. Key indexes run from 0 to 27. Reads report failure by
/// false, writes have no failure that the page could see. Outputs are filled from scratch.
///
/// All calls come from the interface thread, save `getAppPath`, `setAppPath` and `hasAppPath`,
/// which must be safe from any thread at any time.
class VANTRIX_EXPORT IVantrixProfileCfg : public ServiceInstance<IVantrixProfileCfg>
{
public:
    // clang-format off
    /// Executable of a creative application (AppType); empty if none is stored.
    virtual void getAppPath(int appType, QString &path) = 0;
    virtual void setAppPath(int appType, const QString &path) = 0;
    virtual bool hasAppPath(int appType) = 0;
    /// Pressure sensing, one switch for everything.
    virtual bool getPressoEnabled() = 0;
    virtual void setPressoEnabled(int enable) = 0;
    /// Called with true after every write that changes a profile.
    virtual void setProfileDirty(int iOwner, int iProfile, bool dirty) = 0;
    /// False when the limit of macro assigns is reached.
    virtual bool canAddMacroAssign(int iOwner, int iProfile) = 0;
    /// 0 simple, 1 advanced.
    virtual void setMode(int iOwner, int iProfile, int mode) = 0;
    virtual int getMode(int iOwner, int iProfile) = 0;
    /// InputType of the open panel.
    virtual void setInput(int iOwner, int iProfile, int input) = 0;
    virtual int getInput(int iOwner, int iProfile) = 0;
    virtual void setCurrentKey(int iOwner, int iProfile, int keyIdx) = 0;
    /// Selected key in the low 16 bits; 28 or more: none.
    virtual int getCurrentKey(int iOwner, int iProfile) = 0;
    virtual void clearCurrentKey(int iOwner, int iProfile) = 0;
    /// Number of the preset applied last, 0 to 8.
    virtual void setPanel(int iOwner, int iProfile, int keyboardType) = 0;
    virtual int getPanel(int iOwner, int iProfile) = 0;
    /// Replaces one key.
    virtual void setKeyMapping(int iOwner, int iProfile, int keyIdx, const vantrix_key_mapping *mapping) = 0;
    /// Replaces keys 0 upward.
    virtual void setKeyMappings(int iOwner, int iProfile, std::vector<vantrix_key_mapping> *mappings) = 0;
    /// One record for each key in index order; false leaves nothing to show.
    virtual bool getKeyMappings(int iOwner, int iProfile, std::vector<vantrix_key_mapping> *mappings) = 0;
    /// Application functions on keys. Deleting what is not there does nothing.
    virtual void setAppAssign(int iOwner, int iProfile, int keyIdx, const vantrix_app_assign *assign) = 0;
    virtual void delAppAssign(int iOwner, int iProfile, int keyIdx) = 0;
    virtual bool getAppAssign(int iOwner, int iProfile, int keyIdx, vantrix_app_assign *assign) = 0;
    virtual bool getAppAssigns(int iOwner, int iProfile, std::map<uchar, vantrix_app_assign> *assigns) = 0;
    /// Hot keys of the catalog on keys.
    virtual void setHotKeyAssign(int iOwner, int iProfile, int keyIdx, const vantrix_hotkey_assign *assign) = 0;
    virtual void delHotKeyAssign(int iOwner, int iProfile, int keyIdx) = 0;
    virtual bool getHotKeyAssign(int iOwner, int iProfile, int keyIdx, vantrix_hotkey_assign *assign) = 0;
    virtual bool getHotKeyAssigns(int iOwner, int iProfile, std::map<uchar, vantrix_hotkey_assign> *assigns) = 0;
    /// Windows shortcuts on keys; the map gives the shortcut id (0 to 16) of a key.
    virtual void setShortcutAssign(int iOwner, int iProfile, int keyIdx, const vantrix_shortcut_assign *assign) = 0;
    virtual void delShortcutAssign(int iOwner, int iProfile, int keyIdx) = 0;
    virtual bool getShortcutAssigns(int iOwner, int iProfile, std::map<uchar, uchar> *assigns) = 0;
    /// Extended codes on keys.
    virtual void setExtendedKey(int iOwner, int iProfile, int keyIdx, const vantrix_extended_key *key) = 0;
    virtual void delExtendedKey(int iOwner, int iProfile, int keyIdx) = 0;
    virtual bool getExtendedKeys(int iOwner, int iProfile, std::map<uchar, vantrix_extended_key> *keys) = 0;
    /// First step of a preset change: drops what the old preset assigned.
    virtual void clearAssignsForPreset(int iOwner, int iProfile) = 0;
    /// Count of macros before the first Windows shortcut; shortcut id i is macro number count + 1 + i.
    virtual int getShortcutBase(int iOwner, int iProfile) = 0;
    /// Named macros on keys; names are UTF-8. The page reads only the keys of the map.
    virtual bool getKeysOfMacro(int iOwner, int iProfile, std::string macroName, std::map<uchar, uchar> *keys) = 0;
    virtual void setNamedMacroKey(int iOwner, int iProfile, std::string macroName, int keyIdx) = 0;
    virtual void delNamedMacroKey(int iOwner, int iProfile, int keyIdx) = 0;
    /// Takes the macro out of this profile; true when something changed.
    virtual bool delNamedMacro(int iOwner, int iProfile, std::string macroName) = 0;
    /// Second step of a preset change: takes all named macros off the keys.
    virtual void clearNamedMacros(int iOwner, int iProfile) = 0;
    // clang-format on

protected:
    ~IVantrixProfileCfg() = default;
};
