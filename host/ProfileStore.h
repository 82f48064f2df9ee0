#pragma once

#include "host/StoreHistory.h"
#include "host/StoreState.h"
#include "interfaces/IVantrixProfileCfg.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <mutex>
#include <set>

class StoreKeeper;
struct StoreContent;

/// What a step back or forth led to: where to look, and what was selected there.
struct StepOutcome
{
    QString name;               ///< of the step
    int owner = 0;              ///< of the first profile it changed
    int profile = -1;           ///< -1: it changed no profile (macros, order, pressure)
    int currentKey = NoKey;     ///< selected key of that profile after the step
    std::set<int> keys;         ///< keys of that profile that it changed
    bool macrosChanged = false; ///< list or contents of the macros
    bool pressoChanged = false; ///< the pressure switch: tell the device
};

/// The profile store on one SQLite file. Memory holds the truth; the file follows.
///
/// *Turns.* All that is changed during one turn of the event loop is saved in one transaction at
/// its end, so a process that is killed leaves the state before or after a turn, never one
/// between. A turn that opens a modal dialog ends when the dialog is done and the slot has
/// returned. `flush` ends the turn at once. Destroying the store saves too.
///
/// *Steps.* Each turn that changes contents (keys, extras, names, order, macros, pressure) is a
/// step that can be undone; choosing another key ends the step as well. `beginStep`..`endStep`
/// make one step of more than a turn and give it a name; without them the name is made from what
/// changed ("Assign B to key 7"). Depth changes of one key that follow each other are one step.
/// The view (mode, input, preset, selected key) makes no steps and comes back with a step.
/// Settings, application paths and what the device has are outside the history.
/// Undo and redo survive the program's end.
///
/// *Trouble.* A file that is damaged, newer, locked, read-only, on a full disk or removed never
/// stops the store: it says so in plain words (`message`, `messages`), goes on in memory, and
/// saves as soon as it can be done. See StoreKeeper.
///
/// *Numbers.* Profiles 0 to 23 of any owner exist from the start; reads of others report false,
/// writes to them are passed over, like writes to keys outside 0 to 27.
///
/// *Threads.* Interface thread; `getAppPath`, `setAppPath`, `hasAppPath` from any thread.
class ProfileStore : public QObject, public IVantrixProfileCfg
{
    Q_OBJECT

public:
    /// Assigns that need a macro (application, hot key, shortcut, macro) a profile can hold.
    static constexpr int DefaultMacroAssignLimit = KeyCount;

    /// Opens the store of that file, and makes it if there is none. An empty name keeps everything
    /// in memory only.
    explicit ProfileStore(const QString &fileName, QObject *parent = nullptr);
    /// Saves what is left.
    ~ProfileStore() override;

    /// @name IVantrixProfileCfg
    // clang-format off
    void getAppPath(int appType, QString &path) override;
    void setAppPath(int appType, const QString &path) override;
    bool hasAppPath(int appType) override;
    bool getPressoEnabled() override;
    void setPressoEnabled(int enable) override;
    /// Nothing is kept: whether a profile differs from the device is found by comparing.
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
    /// Drops application functions, hot keys, shortcuts and extended codes of the profile.
    void clearAssignsForPreset(int iOwner, int iProfile) override;
    /// Number of the owner's macros.
    int getShortcutBase(int iOwner, int iProfile) override;
    /// True when the owner has a macro of that name or a key holds one; the map's values are the
    /// key indexes again.
    bool getKeysOfMacro(int iOwner, int iProfile, std::string macroName, std::map<uchar, uchar> *keys) override;
    void setNamedMacroKey(int iOwner, int iProfile, std::string macroName, int keyIdx) override;
    void delNamedMacroKey(int iOwner, int iProfile, int keyIdx) override;
    bool delNamedMacro(int iOwner, int iProfile, std::string macroName) override;
    void clearNamedMacros(int iOwner, int iProfile) override;
    // clang-format on

    /// All that is stored, to read, copy and compare.
    const StoreState &state() const { return m_state; }

    /// @name Profiles
    /// What the host changes in a profile is told by `profileReplaced`: show the profile again.
    void setProfileName(int owner, int profile, const QString &name);
    /// Replaces the order of the list; missing numbers follow at the end.
    void setProfileOrder(int owner, const std::vector<int> &order);
    /// Moves the profile at one place of the list to another.
    void moveProfile(int owner, int from, int to);
    /// Copies keys and name ("NAME COPY") over another profile.
    void duplicateProfile(int owner, int from, int to);
    /// Takes everything off the keys; the name stays.
    void clearProfile(int owner, int profile);
    void setProfileKeys(int owner, int profile, const ProfileKeys &keys);
    void setProfileKey(int owner, int profile, int keyIdx, const KeyContent &key);

    /// @name Macros
    /// Names are unique for an owner and not empty. Operations on a name that is not there, or to
    /// one that is taken, do nothing and return false. Tell the page by its macro slots, before
    /// `removeMacro`, after the others.
    bool addMacro(int owner, const QString &name, const vantrix_macro_record &record);
    bool setMacro(int owner, const QString &name, const vantrix_macro_record &record);
    /// Keys in all profiles follow.
    bool renameMacro(int owner, const QString &oldName, const QString &newName);
    /// Keys in all profiles lose it.
    bool removeMacro(int owner, const QString &name);
    bool moveMacro(int owner, int from, int to);
    /// For a key that is to play `record`, whatever its code: the macro of the wanted name when it
    /// plays that, else another one that does, else one that is added under a free name. `second`
    /// is true for one that was added.
    std::pair<QString, bool> macroPlaying(int owner, const QString &wanted,
                                          const vantrix_macro_record &record);
    /// The name, or "NAME 2" and so on, that no macro has yet, but for one that is `same`.
    QString freeMacroName(int owner, const QString &wanted,
                          const std::optional<vantrix_macro_record> &same = std::nullopt) const;
    /// Profile and key of every key that holds the macro.
    std::vector<std::pair<int, int>> keysOfMacro(int owner, const QString &name) const;

    /// @name Settings
    QString setting(const QString &name, const QString &defaultText = QString()) const;
    void setSetting(const QString &name, const QString &text);
    int macroAssignLimit() const;
    void setMacroAssignLimit(int limit);

    /// @name What the device has
    /// Rows that a device keeps in the store: `StoreTable::DeviceImage` and `DeviceSetting`.
    void setDeviceRecord(const RecordId &id, const QByteArray &bytes);

    /// @name Steps
    /// Between the two everything is one step of that name; an empty name is made from the
    /// changes. They nest; the outermost name counts. Nothing is saved before `endStep`.
    void beginStep(const QString &name = QString());
    void endStep();
    bool canUndo() const;
    bool canRedo() const;
    /// One step back or forth; without one, or between `beginStep` and `endStep`, a null outcome.
    std::optional<StepOutcome> undo();
    std::optional<StepOutcome> redo();
    /// As many steps as lead to that position, or as there are, saved and told at once. The
    /// outcome is that of the last one, with what the others changed beside keys.
    std::optional<StepOutcome> travelTo(int position);
    /// Names of all steps, oldest first; those from `stepPosition` on are undone.
    QStringList stepNames() const;
    int stepPosition() const;
    QString undoName() const; ///< name of the step that `undo` takes back; empty if there is none
    QString redoName() const;
    void setStepLimit(int limit);

    /// @name Saving
    /// Ends the turn: closes its step and saves. True when everything is on disk.
    bool flush();
    int transactionCount() const;
    /// True for a second store on the same file: it shows, and keeps nothing.
    bool isReadOnly() const;
    /// False while changes wait in memory for a disk that takes them.
    bool isSaved() const;
    /// True when the end of the process would lose more than settings and what was shown last:
    /// edits, what the device was sent, or all, where the file is gone. Always false for a store
    /// that keeps nothing.
    bool hasUnsavedWork() const;
    /// What was to be said so far, oldest first, also before anyone listened.
    const QStringList &messages() const { return m_messages; }
    /// Lets the file grow to that many pages only; 0 for no limit. Stands in for a full disk.
    void setPageLimit(int pages);
    int pageCount() const;

signals:
    /// Contents of keys or extras changed, by whomever; once a turn.
    void profileChanged(int owner, int profile);
    /// Contents changed by the host or by undo and redo: a page that shows it must show it again.
    /// Comes with `profileChanged`.
    void profileReplaced(int owner, int profile);
    /// Mode, input, preset or selected key changed.
    void viewChanged(int owner, int profile);
    /// Names or order of profiles changed.
    void profileListChanged(int owner);
    /// Macros came, went, or changed.
    void macrosChanged(int owner);
    void pressoChanged();
    /// A setting changed; "appPath" for the path of an application.
    void settingChanged(const QString &name);
    /// What the device has changed.
    void deviceChanged();
    /// Steps came, went, or were undone.
    void stepsChanged();
    void savedChanged(bool saved);
    /// Something the user should know, in plain words.
    void message(const QString &text);

private:
    class Replacing;
    using Scope = std::pair<int, int>;

    static bool isValid(int profile) { return profile >= 0 && profile < ProfileCount; }
    void take(StoreContent content);
    void readPaths();
    void replaceAll(StoreContent content);
    void change(const RecordId &id, const QByteArray &bytes);
    void put(const RecordId &id, const QByteArray &bytes);
    void note(const RecordId &id);
    void changeKey(StoreTable table, int owner, int profile, int keyIdx, const QByteArray &bytes);
    void changeView(StoreTable table, int owner, int profile, int value);
    void clearTable(StoreTable table, int owner, int profile);
    template <typename T, typename Read>
    bool readKeys(int profile, std::map<uchar, T> *out, Read read) const;
    void changeMacroNames(int owner, const QStringList &names);
    StepOutcome takeStep(bool isForth);
    StepOutcome outcomeOf(const QString &name, const ChangeSet &changes) const;
    void takeOverPaths();
    void scheduleTurnEnd();
    void onTurnEnd();
    void closeStep();
    bool save();
    void emitChanges();
    void tellMessages();

    /// What changed and was not told yet.
    struct News
    {
        std::set<Scope> profiles;
        std::set<Scope> replaced;
        std::set<Scope> views;
        std::set<int> lists;
        std::set<int> macros;
        std::set<QString> settings;
        bool presso = false;
        bool device = false;
        bool steps = false;
    };

    StoreState m_state;
    StoreHistory m_history;
    std::unique_ptr<StoreKeeper> m_keeper;
    std::set<RecordId> m_unsaved;
    News m_news;
    QStringList m_messages;
    QTimer m_retry;
    std::mutex m_pathMutex;
    std::map<int, QString> m_paths;
    QString m_stepName;
    int m_stepDepth = 0;
    int m_replacing = 0;
    int m_turnLevel = 0;
    int m_preset = -1;
    bool m_presetTurn = false;
    bool m_turnScheduled = false;
    bool m_wasSaved = true;
};

/// Makes one step of everything until it goes out of scope.
class StoreStepScope
{
public:
    explicit StoreStepScope(ProfileStore &store, const QString &name = QString()) : m_store(store)
    {
        m_store.beginStep(name);
    }
    ~StoreStepScope() { m_store.endStep(); }
    StoreStepScope(const StoreStepScope &) = delete;
    StoreStepScope &operator=(const StoreStepScope &) = delete;

private:
    ProfileStore &m_store;
};
