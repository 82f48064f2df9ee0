#include "toolkit/FocusRing.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QPainter>

FocusRing::FocusRing(QWidget *root) : QWidget(root)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { follow(now); });
}

/// A scrolled list moves what holds its buttons, so everything between root and focus is watched.
void FocusRing::follow(QWidget *focused)
{
    for (QWidget *at = m_focused; at && at != parent(); at = at->parentWidget())
        at->removeEventFilter(this);
    const bool isBelow = focused && parentWidget()->isAncestorOf(focused) &&
                         qobject_cast<QAbstractButton *>(focused);
    m_focused = isBelow ? focused : nullptr;
    for (QWidget *at = m_focused; at && at != parent(); at = at->parentWidget())
        at->installEventFilter(this);
    place();
}

void FocusRing::place()
{
    const bool isWanted = m_focused && window()->testAttribute(Qt::WA_KeyboardFocusChange);
    const QRect seen = isWanted ? m_focused->visibleRegion().boundingRect() : QRect();
    setVisible(!seen.isEmpty());
    if (seen.isEmpty())
        return;
    setGeometry(QRect(m_focused->mapTo(parentWidget(), seen.topLeft()), seen.size()));
    raise();
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        place();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setPen(Qt::white);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
