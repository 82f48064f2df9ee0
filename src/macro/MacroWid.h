#pragma once

#include <QWidget>

#include <map>
#include <memory>
#include <string>

class MacroItem;

namespace Ui {
class MacroUi;
}

/// The panel that binds the selected key to one of the macros that the shell has told the page
/// about. Macros are recorded and kept elsewhere; the panel knows their names.
///
/// The name, UTF-8, is a macro's identity in the store. Its number, "M" and the place in the list
/// from 1, is what a key shows; it changes when an earlier macro goes and is stored nowhere. Two
/// macros may have the same name; operations by name then concern the first of them.
class MacroWid : public QWidget
{
    Q_OBJECT

public:
    explicit MacroWid(QWidget *parent = nullptr);
    ~MacroWid() override;

    /// Appends a macro and announces the keys that carry it.
    void addMacro(std::string name);
    /// Removes a macro, numbers the ones behind it anew and announces their keys.
    void delMacro(std::string name);
    /// Gives a macro another name, which sigRenameMacro tells.
    void renameMacro(std::string oldName, std::string newName);
    /// Announces the keys of all macros, in list order.
    void refreshAssigns();
    /// Sets the scope of the store's operations and empties the list.
    void setOwnerProfile(int iOwner, int iProfile);
    /// Deselects everything; emits nothing.
    void clearSelection();

public slots:
    /// Shows the macro of that number as selected, none when there is no such number. Emits
    /// nothing.
    void slotMacroSelected(QString strMacroNo);

signals:
    /// The user wants to record a new macro.
    void sigCreateMacro();
    /// These keys carry this macro. Only the keys of the map, which are key indexes, count. Not
    /// emitted for a macro without keys.
    void sigAssignedKey(QString strMacroNo, QString strMacroName, std::map<uchar, uchar> assign);
    /// The user picked a macro, or, with `bSelected` false, took it back. `iShortcutId` is always
    /// -1: this panel has no Windows shortcuts.
    void sigMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                          int iShortcutId = -1);
    /// The macro of that number has a new name.
    void sigRenameMacro(QString strMacroNo, QString strMacroName);

private slots:
    void slotMacroChanged();

private:
    MacroItem *item(int row) const;
    /// Row of the first macro of that name, -1 when there is none.
    int rowOfName(const std::string &name) const;
    void announceKeys(const MacroItem *macro);

    std::unique_ptr<Ui::MacroUi> m_ui;
    int m_iOwner = 0;
    int m_iProfile = 0;
};
