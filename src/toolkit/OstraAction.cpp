#include "interfaces/OstraAction.h"

#include "interfaces/OstraMenu.h"

#include <QKeyEvent>

OstraAction::OstraAction(int side, ushort id, const QString &text, QWidget *parent)
    : QPushButton(text, parent), m_side(side), m_id(id)
{
    connect(this, &QPushButton::clicked, this, &OstraAction::choose);
}

OstraAction::~OstraAction()
{
    delete m_menu.data();
}

OstraMenu *OstraAction::ostraMenu() const
{
    return m_menu;
}

void OstraAction::setOstraMenu(OstraMenu *menu)
{
    m_menu = menu;
}

void OstraAction::openMenu()
{
    if (!m_menu || !owner())
        return;
    owner()->closeMenusBut(this);
    if (m_menu->isVisible())
        return;
    m_menu->ensurePolished();
    m_menu->adjustSize();
    const int x = m_side == 1 ? width() : -m_menu->width();
    m_menu->popup(this, mapToGlobal(QPoint(x, 0)));
}

void OstraAction::enterEvent(QEvent *event)
{
    if (m_menu)
        openMenu();
    else if (owner())
        owner()->closeMenusBut(nullptr);
    QPushButton::enterEvent(event);
}

void OstraAction::keyPressEvent(QKeyEvent *event)
{
    const bool opens = event->key() == (m_side == 1 ? Qt::Key_Right : Qt::Key_Left);
    if (m_menu && opens) {
        choose();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        animateClick();
    } else if (event->key() == Qt::Key_Space) {
        QPushButton::keyPressEvent(event);
    } else {
        // The button would move the focus by its own idea of neighbours.
        event->ignore();
    }
}

OstraMenu *OstraAction::owner() const
{
    return qobject_cast<OstraMenu *>(parentWidget());
}

void OstraAction::choose()
{
    if (m_menu) {
        openMenu();
        m_menu->focusFirst();
    } else if (owner()) {
        emit owner()->sigActionChanged(m_id, text());
    }
}
