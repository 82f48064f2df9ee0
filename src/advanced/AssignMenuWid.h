#pragma once

#include "core/records.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <string>

class QLabel;
class ReassignDlg;
namespace Ui {
class AssignMenuUi;
}

/// The small menu that stands beside the board in advanced mode: it names the selected key, shows
/// in colour what the key does, and reassigns, clears or disables it.
///
/// It holds a copy of the selected key's record and writes nothing: what the user decides leaves
/// as `sigVantrixKeyAssigned`, `sigMacroAssigned` or `sigApplicationAdvAssigned`, each on APPLY of
/// its dialog; clearing and disabling leave at once. The page places it, and hides it when no key
/// is selected; the slots of the selection show it again as long as the mode is advanced.
///
/// The dialog is made here, once, as a child of the environment's main widget; either may be
/// destroyed first, also while the dialog is open. The environment must be installed.
class AssignMenuWid : public QWidget
{
    Q_OBJECT

public:
    explicit AssignMenuWid(QWidget *parent = nullptr);
    ~AssignMenuWid() override;

    /// The page's mode; the slots below show the menu only when it is not 0.
    void setMode(int iMode);
    /// The pair by which the dialog's controller page asks the store. Empties the list of macros,
    /// also for the same pair: the host adds them again.
    void setProfile(int iOwner, int iProfile);
    void addKeyAssignMacro(std::string strMacroName);
    void delKeyAssignMacro(std::string strMacroName);
    void renameKeyAssignMacro(std::string strOldName, std::string strNewName);

public slots:
    /// Names the key and offers the two mapping modes, which keys 24 to 27 do not have.
    void slotKeySelectionChanged(int iKeyIdx);
    /// Shows the selected key's record. A record of type 3 is left to `slotDualActionSelected`.
    void slotVantrixKeySelected(vantrix_key_mapping key);
    /// Shows what was just assigned to the selected key; never shows the menu.
    void slotUpdateVantrixKey(vantrix_key_mapping key);
    void slotApplicationSelected(int iAppType, int iFuncId);
    void slotApplicationAdvSelected(QString strKeyName);
    void slotDualActionSelected(vantrix_key_mapping key);
    void slotMacroSelected(QString strMacroNo);

signals:
    /// The selected key gets this record; a `code` of 255 clears it.
    void sigVantrixKeyAssigned(vantrix_key_mapping key);
    /// The user asked for a new macro.
    void sigCreateMacro();
    /// The selected key gets a macro (`iShortcutId` -1) or a Windows shortcut, or loses it.
    void sigMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                          int iShortcutId);
    /// The selected key gets a hot key of the catalog; an empty name takes it off.
    void sigApplicationAdvAssigned(QString strHotKey, QString strKeyName);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void slotKeyReassign();
    void slotControllerMode();
    void slotDualActionMode();
    void slotClearKeyAssign();
    void slotDisableKey();
    void slotVantrixKeyAssigned(vantrix_key_mapping key);
    void slotMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                           int iShortcutId);
    void slotApplicationAdvAssigned(QString strHotKey, QString strKeyName);

private:
    void connectButtons();
    void connectDialog();
    void openDialog(int iState);
    void takePlain(const vantrix_key_mapping &key);
    void takeDualAction(const vantrix_key_mapping &key);
    void takeLabel(int iState, const QString &strText);
    void showMapping(int iState, ushort code, QLabel *lab);
    QString mappingText(int iState, ushort code) const;
    void applyState(int iState, const QString &strImage, const QString &strText, QLabel *lab);
    void colorFrame();
    void showDualActionLab();
    void reveal();

    const std::unique_ptr<Ui::AssignMenuUi> m_ui;
    int m_iMode = Mode::Simple;
    int m_iState = 0;
    ushort m_iKeyIdx = 0;
    vantrix_key_mapping m_key;
    QPointer<ReassignDlg> m_reassignDlg;
    QString m_strMacroNo; ///< number of the key's macro, empty when it has none
};
