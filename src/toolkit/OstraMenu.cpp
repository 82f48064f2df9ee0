#include "interfaces/OstraMenu.h"

#include "interfaces/OstraAction.h"

OstraMenu::OstraMenu(QWidget *parent) : QWidget(parent) {}

void OstraMenu::addOstraActions(QList<OstraAction *> actions, int maxRows)
{
    Q_UNUSED(actions)
    Q_UNUSED(maxRows)
}

void OstraMenu::hideMenu()
{
    hide();
}
