#pragma once

#include "core/records.h"

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

class ButtonGroupEx;
class QAbstractButton;
class SearchGrid;
namespace Ui {
class MacroAdvUi;
}

/// The advanced picker of macros: the user's macros, which the host adds and removes by name, and
/// the seventeen Windows shortcuts of WinShortcutKeys, each list under a head that folds it.
///
/// To everybody else both are macros with a number: "M" and a position from 1 on, where the
/// shortcuts follow the user's macros. Adding a macro thus moves the numbers of all shortcuts. The
/// numbers are never stored; a macro's name and a shortcut's id are.
///
/// The picker only reports clicks and takes nothing back if the host refuses them. Showing
/// something never emits. Interface thread only.
class MacroAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit MacroAdvWid(QWidget *parent = nullptr);
    ~MacroAdvWid() override;

    /// Appends a user macro; names need not differ.
    void addMacro(std::string name);
    /// Removes every user macro of that name. The check mark on a user macro is lost.
    void delMacro(std::string name);
    /// Renames the first user macro of that name.
    void renameMacro(std::string oldName, std::string newName);
    /// Checks the entry with that number, "M1" being the first user macro; none for a number that
    /// there is not.
    void selectMacro(QString strMacroNo);
    /// Removes all user macros.
    void clearMacros();

public slots:
    /// Leaves the entries visible whose text starts with `strText`. Folded lists stay folded.
    void slotSearch(QString strText);
    /// Unchecks all for a key that holds something else than a label; whoever knows what a label
    /// stands for calls `selectMacro`.
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigCreateMacro();
    /// A click on an entry; `bSelected` is false when it unchecked the entry, which frees the key.
    /// `iShortcutId` is 0 to 16 for a shortcut, -1 for a user macro.
    void sigMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                          int iShortcutId);

private slots:
    void slotUserBtnClicked();
    void slotWinBtnClicked();
    void slotMacroKeyClicked(QAbstractButton *button);

private:
    void buildShortcuts();
    void appendMacro(const std::string &name);
    int userMacroCount() const { return int(m_names.size()); }

    const std::unique_ptr<Ui::MacroAdvUi> m_ui;
    ButtonGroupEx *const m_group;
    std::unique_ptr<SearchGrid> m_userGrid;
    std::unique_ptr<SearchGrid> m_winGrid;
    std::vector<std::string> m_names; ///< of the user macros; their buttons' ids count from 17
    QString m_search;
};
