#include "interfaces/OstraAction.h"

OstraAction::OstraAction(int side, ushort id, const QString &text, QWidget *parent)
    : QPushButton(text, parent), m_side(side), m_id(id)
{
}

void OstraAction::setOstraMenu(OstraMenu *menu)
{
    m_menu = menu;
}
