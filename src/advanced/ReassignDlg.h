#pragma once

#include "core/records.h"

#include <QDialog>

#include <memory>
#include <string>

class QButtonGroup;
namespace Ui {
class ReassignDlg;
}

/// The modal dialog of advanced mode in which one key gets a new function: a dark veil over the
/// host's window, with the ten input types on the left and the chosen one's page on the right.
///
/// A pick on a page is only held. APPLY sends the last one, as one of `sigVantrixKeyAssigned`,
/// `sigMacroAssigned` and `sigApplicationAdvAssigned`, whatever page is in front; CANCEL, the
/// close button and Escape send nothing. Each opening forgets the pick of the one before. Built
/// once and used for every key; pages and search text stay as they were left.
class ReassignDlg : public QDialog
{
    Q_OBJECT

public:
    explicit ReassignDlg(QWidget *parent = nullptr);
    ~ReassignDlg() override;

    /// Opens for a key index on the page of the InputType `iState` (the keyboard page for a state
    /// without one) and returns when the dialog closes. Without a pick APPLY sends `*key` again; a
    /// record of type 1 tells nothing of the function, so then nothing is sent. The dialog may be
    /// gone afterwards.
    void openFor(int iKeyIdx, int iState, const vantrix_key_mapping *key);
    /// The pair by which the controller page asks the store. Empties the macro page: the host adds
    /// its macros again.
    void setProfile(int iOwner, int iProfile);

    void addKeyAssignMacro(std::string strMacroName);
    void delKeyAssignMacro(std::string strMacroName);
    void renameKeyAssignMacro(std::string strOldName, std::string strNewName);
    /// Checks a macro by its number ("M1"...) on the macro page; an empty number checks none.
    void setMacroSelected(QString strMacroNo);

signals:
    /// The pages set their check marks to this record: on opening, and after each pick.
    void sigVantrixKeySelected(vantrix_key_mapping key);
    void sigVantrixKeyAssigned(vantrix_key_mapping key);
    /// The user asked for a new macro; the dialog closes and drops the pick.
    void sigCreateMacro();
    void sigMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                          int iShortcutId);
    void sigApplicationAdvAssigned(QString strHotKey, QString strKeyName);
    /// The search text changed.
    void sigSearch(QString strText);

protected:
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private slots:
    void slotCreateMacro();
    void slotInputChanged(int input);
    void slotVantrixKeyAssigned(vantrix_key_mapping key);
    void slotMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                           int iShortcutId);
    void slotAppHotKeyChanged(QString strHotKey, QString strKeyName);
    void slotApply();
    void slotMainWindowMoved();

private:
    void setUpSearch();
    void buildInputs();
    void fillPickers();
    void orderTabs();
    void connectSearch();
    void connectSelection();
    void connectPicks();
    void resetPick(const vantrix_key_mapping &key);
    void sendPick();
    void coverMainWindow();

    const std::unique_ptr<Ui::ReassignDlg> m_ui;
    int m_iOwner = 0;
    int m_iProfile = 0;
    QButtonGroup *m_inputGroup;
    vantrix_key_mapping m_key;
    bool m_bMacroSelected = false;
    int m_iShortcutId = -1;
    QString m_strMacroNo;
    QString m_strMacroName;
    bool m_bAppKey = false;
    QString m_strHotKey;
    QString m_strKeyName;
    bool m_bPicked = false; ///< something was picked since the dialog opened
};
