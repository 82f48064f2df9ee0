#pragma once

#include "interfaces/VantrixExport.h"

#include <QWidget>

#include <string>

/// The key-mapping page: the picture of the pad on which a person picks one of 28 keys, and below
/// or beside it everything that the key can do.
///
/// The page keeps no mapping. All state is read from and written to the profile store
/// (IVantrixProfileCfg) as it changes; APPLY only tells the shell to send it to the device. Install
/// the services of `interfaces/` before the page is made and remove them after it is gone.
///
/// The shell calls `updateUi` to show a profile and tells the macros after it, calls `showMapping`
/// as it shows or leaves the page, and answers the signals. IEnvironment's main widget must stand
/// before the page is made. Everything here belongs to the interface thread. Any size will do; the
/// page is drawn for 784 by 808 pixels and more, and for a dark palette with light texts, which is
/// the application's to set. Some of its sheets make Qt warn: see `isSheetWarning`.
class VANTRIX_EXPORT VantrixMapWid : public QWidget
{
    Q_OBJECT

public:
    /// `iOwner` is handed on to every call of the store and never interpreted.
    explicit VantrixMapWid(int iOwner, QWidget *parent = nullptr);
    ~VantrixMapWid() override;

    /// Shows a profile of the store, 0 to 23 on this pad; the number is handed on to the store as
    /// it is. No key is selected afterwards. Where the store fails to read the mappings, the keys
    /// keep what they showed.
    ///
    /// It empties the macro lists: tell every macro anew with `slotAddKeyAssignMacro`, in the
    /// store's order. Until then keys with a macro have no name.
    ///
    /// Missing paths of applications are warned of in modal boxes; the page may be destroyed
    /// meanwhile.
    void updateUi(int iProfile);
    /// Reads the present profile's keys anew; no key is selected afterwards. Mode and macro lists
    /// stay. Failed reads and warnings as in `updateUi`.
    void updateKeyMapping();
    /// Tells whether the page shows. True at first. While false, the page never captures the
    /// keyboard.
    void showMapping(bool show);

    /// 784 by 808 pixels.
    QSize sizeHint() const override;
    /// Small and constant, so that no content makes the page grow.
    QSize minimumSizeHint() const override;

public slots:
    /// Applies a preset to the whole pad: the input it belongs to (InputType), and its number, 0 to
    /// 8.
    void slotPanelChanged(int inputType, int keyboardType);
    /// One more macro for the end of the lists: a new one, and each one after `updateUi`. Labels
    /// the keys that hold it. Names are UTF-8.
    void slotAddKeyAssignMacro(std::string strMacroName);
    /// The shell is about to delete a macro; call this while the store still knows it.
    void slotDelKeyAssignMacro(std::string strMacroName);
    void slotRenameKeyAssignMacro(std::string strOldName, std::string strNewName);
    /// The macros' keys have changed in the store.
    void slotUpdateMacroAssign();
    /// The count of macros before the first Windows shortcut has changed.
    void slotUpdateWinShortcutKeys();

signals:
    /// The shell shall read the key mappings from the store and send them to the device: on APPLY,
    /// on `slotUpdateMacroAssign`, and on `slotDelKeyAssignMacro` when that changed the profile.
    void sigUpdateKeyMapping();
    /// A request to the device: 5 with the service's request after the user confirmed a reset, 23
    /// with null after pressure sensing was switched. The request stays the service's
    /// (IParseVantrix).
    void sigSdkRequest(int cmd, void *data);
    /// The user wants to create a macro; the shell opens its macro page.
    void sigSwitchToMacro();
    /// On APPLY, right after `sigUpdateKeyMapping`.
    void sigUpdateMacroAssign();
    /// The page was hidden.
    void sigHide();
    /// A key was given the companion feature's code, or shows it as a profile is shown. Connect
    /// directly: the receiver fills `keyInfo`, the text of the key, before it returns. `key` is the
    /// native scan code of the key's default code, as in the next two.
    void sigMeridianKeyInfo(QString &keyInfo, int key);
    /// A key that had the companion feature's code is written anew, by an assignment or as a
    /// profile is shown. Comes before `sigMeridianKeyInfo` when it keeps the code.
    void deleteMeridianKey(int key);
    /// A key that had a power mode's code gets another code, in the same ways.
    void deletePowerModeKey(int key);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void slotModeChanged(int iMode);
    void slotInputChanged(int input);
    void slotGetVantrixMask(QWidget *mainWid);
    void slotPressoEnableChanged(int enable);
    void slotApply();
    void slotReset();

private:
    struct Private;

    void createStateLab();
    void createButtons();
    void connectButtons();
    void connectAssignMenu();
    void connectPanels();
    void connectShell();
    void connectCapture();
    int mode() const;
    void placeButtons();
    void placeSidePanels();
    void tellCoveredCorners();
    void updateMode(int mode);
    void resizeAssignMenu();
    void updateMenuVisible(int mode);
    void updateSidePanelVisible(int mode);
    void updateCapture();
    void updateCaptureFor(int mode);
    void showStored();
    void checkLabels();

    Private *m_data;
};
