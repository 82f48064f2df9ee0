#pragma once

#include "core/records.h"

#include <QWidget>

#include <map>
#include <memory>
#include <string>

namespace Ui {
class MapUi;
}

/// The stack of simple mode's panels, one for each InputType from 0 to 10. It gathers what the
/// panels assign, hands them what the selected key does, and decides when the keyboard panel
/// captures the real keyboard: while its page shows, a pad key is selected and the page permits.
class MapWid : public QWidget
{
    Q_OBJECT

public:
    explicit MapWid(QWidget *parent = nullptr);
    ~MapWid() override;

    /// Shows the macros of a profile.
    void updateUi(int iOwner, int iProfile);
    /// Reads the macros' keys anew.
    void refreshAssigns();
    void slotAddKeyAssignMacro(std::string strMacroName);
    void slotDelKeyAssignMacro(std::string strMacroName);
    void slotRenameKeyAssignMacro(std::string strOldName, std::string strNewName);
    /// Says whether the board has a key selected; false at first.
    void setKeySelected(bool selected);
    /// Shows the panel of an input; a number without a panel changes nothing.
    void setCurrentInput(int input);
    /// The page's permission to capture keys; true until told otherwise.
    void setCaptureEnabled(bool enabled);
    /// Sizes of the lower corners that the page covers with its own; what a person clicks keeps
    /// clear of them.
    void setCoveredCorners(const QSize &left, const QSize &right);
    /// Outline of the pad for the dual action overlay, in the coordinates of the widget that
    /// `sigGetVantrixMask` named.
    void setOverlayMask(const QRegion &keyBoardRegion);

public slots:
    /// Clears the check marks of all panels.
    void slotResetCurrKey();

signals:
    // What the panels tell the page.
    void sigVantrixKeyAssigned(vantrix_key_mapping key);
    void sigApplicationAssigned(int iAppType, int iFuncId);
    void sigGetVantrixMask(QWidget *mainWid);
    void sigDualActionDepthChanged(int iDepth);
    void sigDualActionAssigned(vantrix_key_mapping key);
    void sigDualActionBack();
    void sigDualActionApply();
    void sigCreateMacro();
    void sigAssignedKey(QString strMacroNo, QString strMacroName, std::map<uchar, uchar> assign);
    /// `iShortcutId` is -1 for a macro that is no Windows shortcut.
    void sigMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                          int iShortcutId = -1);
    void sigRenameMacro(QString strMacroNo, QString strMacroName);
    // What the page tells the panels of the selected key.
    void sigVantrixKeySelected(vantrix_key_mapping key);
    void sigApplicationSelected(int iAppType, int iFuncId);
    void sigDualActionSelected(int input1, int input2, vantrix_presso_digital key);
    void sigMacroSelected(QString strMacroNo);

private:
    void connectSelection();
    void connectAssignments();
    void connectDualAction();
    void connectMacros();
    void updateCapture();

    std::unique_ptr<Ui::MapUi> m_ui;
    bool m_keySelected = false;
    bool m_captureEnabled = true;
    int m_input = InputType::Keyboard;
};
