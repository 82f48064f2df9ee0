#pragma once

#include <QPointer>
#include <QPushButton>

#include <vector>

class OstraMenu;

/// One of the two actions of the advanced dual action form: a button with a menu of all functions
/// that an action can have, by kind and, for the keyboard, by category.
///
/// The menu lies over the window of the button; the button holds it by QPointer and deletes it.
class ActionBtn : public QPushButton
{
    Q_OBJECT

public:
    explicit ActionBtn(QWidget *parent = nullptr);
    ~ActionBtn() override;

    /// Number of the action, 1 or 2; builds the menus.
    void setActionNo(int actionNo);
    /// No function; the title; usable only as action 1.
    void resetAction();
    /// Shows a device code; 0 resets.
    void setKeyCode(ushort code);
    ushort keyCode() const { return m_code; }

public slots:
    void slotHideMenu();

signals:
    /// A function was chosen from the menu.
    void sigUpdateActions();

private slots:
    void slotBtnClicked();
    void slotActionChanged(ushort id, QString strText);

private:
    OstraMenu *buildTopMenu();
    OstraMenu *buildKeyboardMenu(OstraMenu *parent);
    OstraMenu *buildCodeMenu(const std::vector<ushort> &codes, OstraMenu *parent);

    int m_actionNo = 0;
    ushort m_code = 0;
    int m_side = 0;
    QPointer<OstraMenu> m_popup;
};
