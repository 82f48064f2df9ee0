#pragma once

#include "interfaces/VantrixExport.h"

#include <QPointer>
#include <QPushButton>

class OstraMenu;

/// One entry of an OstraMenu. It deletes the menu that it opens.
class VANTRIX_EXPORT OstraAction : public QPushButton
{
    Q_OBJECT

public:
    /// `side` is 1 when its menu opens to the right, 0 when it opens to the left; `id` is what the
    /// menu reports when the entry is chosen, 0 for an entry with a menu of its own.
    OstraAction(int side, ushort id, const QString &text, QWidget *parent = nullptr);
    ~OstraAction() override;

    int side() const { return m_side; }
    ushort id() const { return m_id; }
    /// The menu that the entry opens, null for none. The entry takes it over.
    void setOstraMenu(OstraMenu *menu);
    OstraMenu *ostraMenu() const;
    /// Opens the entry's menu beside it.
    void openMenu();

protected:
    void enterEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    OstraMenu *owner() const;
    void choose();

    int m_side;
    ushort m_id;
    QPointer<OstraMenu> m_menu;
};
