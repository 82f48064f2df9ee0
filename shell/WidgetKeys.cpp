#include "shell/WidgetKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

WidgetKeys::WidgetKeys(QWidget *widget) : QObject(widget), m_widget(widget)
{
    widget->installEventFilter(this);
}

bool WidgetKeys::eventFilter(QObject *, QEvent *event)
{
    const QWidget *const focus = QApplication::focusWidget();
    if (focus && focus != m_widget && m_widget->isAncestorOf(focus))
        return false; // an editor in it has no use for the key
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *const key = static_cast<QKeyEvent *>(event);
    const auto action = m_actions.find(key->key() | int(key->modifiers() & ~Qt::KeypadModifier));
    if (action == m_actions.end())
        return false;
    event->accept(); // accepted, an override comes back as a press
    if (isPress)
        action->second();
    return true;
}
