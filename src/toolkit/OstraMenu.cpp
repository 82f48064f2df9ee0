#include "interfaces/OstraMenu.h"

#include "interfaces/OstraAction.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>

#include <algorithm>

OstraMenu::OstraMenu(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("ostraMenu"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(
        QStringLiteral("OstraMenu{background:rgb(51,51,51);border:1px solid %1;}"
                       "QPushButton{background:transparent;border:none;color:white;min-height:24px;"
                       "min-width:70px;padding:0 10px;text-align:left;font-size:11px;}"
                       "QPushButton:hover{background:rgba(255,255,255,50);}"
                       "QPushButton:focus{background:%1;}")
            .arg(QStringLiteral("rgb(132,50,155)")));
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    hide();
}

void OstraMenu::addOstraActions(QList<OstraAction *> actions, int maxRows)
{
    m_maxRows = qMax(1, maxRows);
    auto *const grid = static_cast<QGridLayout *>(layout());
    for (OstraAction *action : qAsConst(actions)) {
        const int place = m_actions.size();
        grid->addWidget(action, place % m_maxRows, place / m_maxRows);
        m_actions << action;
    }
}

void OstraMenu::popup(QWidget *anchor, const QPoint &globalPos)
{
    QWidget *const window = anchor->window();
    m_anchor = anchor;
    if (parentWidget() != window)
        setParent(window);
    ensurePolished();
    adjustSize();
    const QPoint wanted = window->mapFromGlobal(globalPos);
    const int right = qMax(0, window->width() - width());
    const int bottom = qMax(0, window->height() - height());
    move(qBound(0, wanted.x(), right), qBound(0, wanted.y(), bottom));
    show();
    raise();
    qApp->installEventFilter(this);
}

void OstraMenu::hideMenu()
{
    closeMenusBut(nullptr);
    hide();
}

void OstraMenu::focusFirst()
{
    if (!m_actions.isEmpty())
        m_actions.first()->setFocus(Qt::PopupFocusReason);
}

bool OstraMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
        const auto *const pressed = static_cast<QWidget *>(watched);
        const bool onAnchor = m_anchor && (pressed == m_anchor || m_anchor->isAncestorOf(pressed));
        if (!onAnchor && !holds(pressed))
            hideMenu();
    } else if (event->type() == QEvent::Resize && watched == parentWidget()) {
        hideMenu();
    }
    return QWidget::eventFilter(watched, event);
}

void OstraMenu::keyPressEvent(QKeyEvent *event)
{
    // clang-format off
    switch (event->key()) {
    case Qt::Key_Up: moveFocus(-1, 0); break;
    case Qt::Key_Down: moveFocus(1, 0); break;
    case Qt::Key_Left: moveFocus(0, -1); break;
    case Qt::Key_Right: moveFocus(0, 1); break;
    case Qt::Key_Escape: closeToAnchor(); break;
    default: QWidget::keyPressEvent(event); return;
    }
    // clang-format on
    event->accept();
}

void OstraMenu::hideEvent(QHideEvent *event)
{
    qApp->removeEventFilter(this);
    closeMenusBut(nullptr);
    // A menu that went with its window does not come back with it.
    if (!isHidden())
        hide();
    QWidget::hideEvent(event);
}

void OstraMenu::moveFocus(int rows, int columns)
{
    const int count = m_actions.size();
    const int current = m_actions.indexOf(qobject_cast<OstraAction *>(focusWidget()));
    if (current < 0) {
        focusFirst();
        return;
    }
    const int next = current + rows + columns * m_maxRows;
    if (columns == 0)
        m_actions.at((next + count) % count)->setFocus();
    else if (next >= 0 && next < count)
        m_actions.at(next)->setFocus();
    else if (isWayBack(columns))
        closeToAnchor();
}

/// Whether a step sideways leads from this menu to the entry that opened it.
bool OstraMenu::isWayBack(int columns) const
{
    const auto *const entry = qobject_cast<OstraAction *>(m_anchor);
    return entry && columns == (entry->side() == 1 ? -1 : 1);
}

void OstraMenu::closeToAnchor()
{
    hideMenu();
    if (m_anchor)
        m_anchor->setFocus(Qt::PopupFocusReason);
}

/// Whether a widget lies in this menu, in one that its entries have open, or in the one it was
/// opened from.
bool OstraMenu::holds(const QWidget *widget) const
{
    if (widget == this || isAncestorOf(widget))
        return true;
    const auto open = [widget](const OstraAction *action) {
        const OstraMenu *const menu = action->ostraMenu();
        return menu && menu->isVisible() && menu->holds(widget);
    };
    return std::any_of(m_actions.begin(), m_actions.end(), open);
}

void OstraMenu::closeMenusBut(const OstraAction *kept)
{
    for (const OstraAction *action : qAsConst(m_actions)) {
        if (action != kept && action->ostraMenu())
            action->ostraMenu()->hideMenu();
    }
}
