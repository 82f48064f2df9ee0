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
/// The shell calls `updateUi` to show a profile, `showMapping` as it shows or leaves the page, and
/// answers the signals. Everything here belongs to the interface thread. Any size will do; the
/// page is drawn for 784 by 808 pixels and more, and for a dark palette with light texts, which is
/// the application's to set.
class VANTRIX_EXPORT VantrixMapWid : public QWidget
{
    Q_OBJECT

public:
    /// `iOwner` is handed on to every call of the store and never interpreted.
    explicit VantrixMapWid(int iOwner, QWidget *parent = nullptr);
    ~VantrixMapWid() override;

    /// Shows a profile of the store; no key is selected afterwards.
    void updateUi(int iProfile);
    /// Reads the present profile anew; no key is selected afterwards. The mode stays.
    void updateKeyMapping();
    /// Tells whether the page shows. True at first. While false, the page never captures the
    /// keyboard.
    void showMapping(bool show);

    /// 784 by 808 pixels.
    QSize sizeHint() const override;
    /// Small and constant, so that no content makes the page grow.
    QSize minimumSizeHint() const override;

public slots:
    /// Applies a preset to the whole pad: the input it belongs to, and its number, 0 to 8.
    void slotPanelChanged(int inputType, int keyboardType);
    /// The shell has a new macro. Names are UTF-8.
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
    /// with null after pressure sensing was switched.
    void sigSdkRequest(int cmd, void *data);
    /// The user wants to create a macro; the shell opens its macro page.
    void sigSwitchToMacro();
    /// On APPLY, right after `sigUpdateKeyMapping`.
    void sigUpdateMacroAssign();
    /// The page was hidden.
    void sigHide();
    /// The companion feature's key was assigned. Connect directly: the receiver fills `keyInfo`,
    /// the text of the key, before it returns. `key` is the native scan code of the key's default
    /// code, as in the next two.
    void sigMeridianKeyInfo(QString &keyInfo, int key);
    void deleteMeridianKey(int key);
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
    void showStored();

    Private *m_data;
};
