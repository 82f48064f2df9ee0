#pragma once

#include "core/VantrixKey.h"
#include "core/records.h"

#include <QRegion>
#include <QWidget>

#include <map>
#include <memory>
#include <string>
#include <vector>

class ButtonGroupEx;
class PadPicture;
class QAbstractButton;
class QSpacerItem;
namespace Ui {
class AssignUi;
}

/// The picture of the pad with its 28 keys over it, and everything that an assignment means once
/// it lands on a key. It is the only writer of mappings and of the five extras that a key can have
/// (application function, catalog hot key, Windows shortcut, named macro, extended code); a new
/// assignment clears them first, so a key never has two.
///
/// The selected key lives in the store, and the check mark of the keys mirrors it. The slots that
/// act on the selected key uncheck the keys and do nothing more when the store says that none is.
class AssignWid : public QWidget
{
    Q_OBJECT

public:
    explicit AssignWid(QWidget *parent = nullptr);
    ~AssignWid() override;

    /// Takes the scope of all store calls, before anything else can ask the store.
    void setScope(int iOwner, int iProfile);
    /// Drops the selection and pending dual actions and shows what the store has. Paths that are
    /// missing are warned of at the end, one box after the other; the board may be gone then.
    void showProfile(int iOwner, int iProfile);
    /// Unchecks the keys and tells the store and the panels.
    void dropSelection();
    /// Applies the input that was just selected: hides or shows the upper keys, and tells the
    /// panels of the selected key anew.
    void applyInput(int input);
    /// Tells the panels of the selected key anew, if there is one.
    void announceSelection();
    /// Lays picture and keys out within the board's size for a mode.
    void layoutForMode(int mode);
    /// The pad's outline in the coordinates of `mainWid`; empty without a widget or a picture.
    QRegion keyBoardRegion(const QWidget *mainWid) const;
    /// Applies a preset to all keys: `inputType` as the preset list reports it, `keyboardType` the
    /// preset's number, 0 to 8.
    void applyPreset(int inputType, int keyboardType);
    /// Clears every key that holds the macro; true if the selected key is among them.
    bool removeMacro(const std::string &macroName);
    /// Clears the keys whose label has lost its assign; true if the selected key is among them.
    /// Named macros lose their labels with it; the macro panel's refresh gives these back.
    bool checkLabels();
    /// Selected key from the store, KeyCount or more for none.
    int currentKey() const;

public slots:
    void slotVantrixKeyAssigned(vantrix_key_mapping key);
    /// An `iAppType` below 0 clears the key.
    void slotApplicationAssigned(int iAppType, int iFuncId);
    /// An empty `strKeyName` clears the key.
    void slotApplicationAdvAssigned(QString strHotKey, QString strKeyName);
    /// A depth of 10 to 90 percent for a dual action key; nothing for any other.
    void slotDualActionDepthChanged(int iDepth);
    /// Keeps a dual action pending; a `firstAction` of 0 clears the key at once.
    void slotDualActionAssigned(vantrix_key_mapping key);
    /// Gives all pending keys back what they showed.
    void slotDualActionBack();
    /// Stores all pending dual actions.
    void slotDualActionApply();
    /// Labels the keys that hold a macro; writes nothing.
    void slotAssignedKey(QString strMacroNo, QString strMacroName, std::map<uchar, uchar> assign);
    /// `iShortcutId` 0 to 16 is a Windows shortcut, -1 the macro of that name; `bSelected` false
    /// clears the key.
    void slotMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                           int iShortcutId = -1);
    void slotRenameMacro(QString strMacroNo, QString strMacroName);
    /// Labels the keys that hold a Windows shortcut.
    void slotUpdateWinShortcutKeys();

signals:
    /// Declared for the page; nothing on the board asks to apply.
    void sigApply();
    /// The panels shall forget the key they show: before every selection change, when the
    /// selection is dropped, when the input changes and when a profile is shown.
    void sigResetCurrKey();
    /// The user unchecked the selected key.
    void sigCancelKeySelection();
    void sigKeySelectionChanged(int iKeyIdx);
    /// The first signal of each announcement; the others follow when they apply.
    void sigVantrixKeySelected(vantrix_key_mapping key);
    /// slotVantrixKeyAssigned has stored a mapping.
    void sigUpdateVantrixKey(vantrix_key_mapping key);
    void sigApplicationSelected(int iAppType, int iFuncId);
    void sigApplicationAdvSelected(QString strKeyName);
    /// `input1` and `input2` are the InputTypes of the two actions.
    void sigDualActionSelected(int input1, int input2, vantrix_presso_digital key);
    /// The same for the advanced menu, and after the selected key's dual action has changed.
    void sigDualActionSelectedToAdv(vantrix_key_mapping key);
    void sigMacroSelected(QString strMacroNo);
    /// The companion feature's key was assigned. Connect directly: the receiver fills `keyInfo`
    /// before it returns. `key` is the scan code of the key's default code, as in the next two.
    void sigMeridianKeyInfo(QString &keyInfo, int key);
    void deleteMeridianKey(int key);
    void deletePowerModeKey(int key);

private slots:
    void slotKeySelected(QAbstractButton *pBtn);

private:
    /// What a key under dual action edit showed before.
    struct Backup
    {
        vantrix_key_mapping mapping;
        VantrixKey::Label label;
    };
    enum class Save { No, Yes };

    void makeKeys();
    VantrixKey *keyButton(int keyIdx) const;
    VantrixKey *selectedButton(int *keyIdx);
    void announce(int keyIdx);
    void updateUpperKeys(int mode, int input);

    void writeKey(int keyIdx, const vantrix_key_mapping &mapping, Save save);
    void tellSpecialKeys(VantrixKey *button, int keyIdx, ushort newCode);
    void storeKey(int keyIdx, vantrix_key_mapping mapping);
    void storeMapping(int keyIdx, const vantrix_key_mapping &mapping);
    void markDirty();
    void clearExtras(int keyIdx);
    void dropStaged(int keyIdx);
    void assignKey(int keyIdx, const vantrix_key_mapping &mapping);
    void clearKeyForLabel(int keyIdx);
    bool hasRoomForMacro();

    void showMacroLabel(int keyIdx, const QString &text, const QString &toolTip);
    void showAppFunction(VantrixKey *button, int appType, int funcId);
    void storeAppFunction(int keyIdx, int appType, int funcId);
    void warnOfMissingPaths();

    void applyKeyboardPreset(int keyboardType);
    void applyGamePreset(int keyboardType);
    void applyAppPreset(int keyboardType);
    void loadMappings();
    void loadLabels();
    void loadExtendedKeys();

    const std::unique_ptr<Ui::AssignUi> m_ui;
    int m_iOwner = 0;
    int m_iProfile = 0;
    PadPicture *m_picture;
    QSpacerItem *m_below;
    ButtonGroupEx *m_keys;
    std::map<int, vantrix_key_mapping> m_dualStage;
    std::map<int, Backup> m_keyBackup;
    std::vector<int> m_missingPaths; ///< applications to warn of when the work is done
};
