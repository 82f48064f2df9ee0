#pragma once

#include "interfaces/VantrixExport.h"

#include <QPushButton>

class OstraMenu;

/// One entry of an OstraMenu.
class VANTRIX_EXPORT OstraAction : public QPushButton
{
    Q_OBJECT

public:
    /// `side` is 1 when its menu opens to the right, 0 when it opens to the left; `id` is what the
    /// menu reports when the entry is chosen, 0 for an entry with a menu of its own.
    OstraAction(int side, ushort id, const QString &text, QWidget *parent = nullptr);

    ushort id() const { return m_id; }
    /// The menu that the entry opens.
    void setOstraMenu(OstraMenu *menu);

private:
    int m_side;
    ushort m_id;
    OstraMenu *m_menu = nullptr;
};
