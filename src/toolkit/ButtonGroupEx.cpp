#include "interfaces/ButtonGroupEx.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QScrollArea>

namespace {

/// How far it is from one rectangle to another in the direction of an arrow key; -1 when the other
/// does not lie there. What lies aside counts as farther, most of all in another row or column.
int distance(const QRect &from, const QRect &to, int arrowKey)
{
    const QPoint way = to.center() - from.center();
    const bool isUpright = arrowKey == Qt::Key_Up || arrowKey == Qt::Key_Down;
    int ahead = 0;
    // clang-format off
    switch (arrowKey) {
    case Qt::Key_Up:    ahead = from.top() - to.center().y();    break;
    case Qt::Key_Down:  ahead = to.center().y() - from.bottom(); break;
    case Qt::Key_Left:  ahead = from.left() - to.center().x();   break;
    case Qt::Key_Right: ahead = to.center().x() - from.right();  break;
    default: break;
    }
    // clang-format on
    if (ahead <= 0)
        return -1;
    const int aside = qAbs(isUpright ? way.x() : way.y());
    const bool isInLine = isUpright ? to.left() <= from.right() && from.left() <= to.right()
                                    : to.top() <= from.bottom() && from.top() <= to.bottom();
    return isInLine ? 8 * ahead + aside : 8 * ahead + 32 * aside;
}

QRect placeOf(const QWidget *widget)
{
    return QRect(widget->mapTo(widget->window(), QPoint()), widget->size());
}

void scrollTo(QWidget *widget)
{
    for (QWidget *at = widget->parentWidget(); at; at = at->parentWidget()) {
        if (auto *const area = qobject_cast<QScrollArea *>(at))
            area->ensureWidgetVisible(widget);
    }
}

bool isEnter(const QKeyEvent *key)
{
    return (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
           (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// Clicks as the key comes up, as Space does: a click may hand the keyboard to somebody else.
void workByEnter(QAbstractButton *button, const QKeyEvent *key)
{
    if (key->isAutoRepeat())
        return;
    if (key->type() == QEvent::KeyPress) {
        button->setDown(true);
    } else if (button->isDown()) {
        button->setDown(false);
        button->click();
    }
}

} // namespace

ButtonGroupEx::ButtonGroupEx(QObject *parent) : QButtonGroup(parent)
{
    // An exclusive QButtonGroup refuses to uncheck its checked button.
    setExclusive(false);
    connect(this, qOverload<QAbstractButton *, bool>(&QButtonGroup::buttonToggled), this,
            [this](QAbstractButton *toggled, bool checked) {
                if (!checked)
                    return;
                const auto all = buttons();
                for (QAbstractButton *button : all) {
                    if (button != toggled)
                        button->setChecked(false);
                }
            });
    connect(this, qOverload<QAbstractButton *>(&QButtonGroup::buttonClicked), this,
            &ButtonGroupEx::sigButtonClicked);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { followFocus(now); });
}

void ButtonGroupEx::setNoneButtonChecked()
{
    const auto all = buttons();
    for (QAbstractButton *button : all)
        button->setChecked(false);
}

void ButtonGroupEx::setButtonChecked(int id, bool bChecked)
{
    if (QAbstractButton *const found = button(id))
        found->setChecked(bChecked);
}

/// Qt lets Tab stop only at the button of a group that had the focus last, even if it is hidden by
/// now, and arrows nowhere. So the group opens up again whenever the focus leaves it.
void ButtonGroupEx::followFocus(QWidget *now)
{
    auto *const pressed = qobject_cast<QAbstractButton *>(now);
    QAbstractButton *const mine = pressed && pressed->group() == this ? pressed : nullptr;
    if (mine == m_focused)
        return;
    if (m_focused)
        m_focused->removeEventFilter(this);
    m_focused = mine;
    if (mine) {
        mine->installEventFilter(this);
        return;
    }
    const auto all = buttons();
    for (QAbstractButton *button : all) {
        if (button->focusPolicy() != Qt::NoFocus)
            button->setFocusPolicy(Qt::FocusPolicy(button->focusPolicy() | Qt::TabFocus));
    }
}

bool ButtonGroupEx::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (watched == m_focused && (isPress || event->type() == QEvent::KeyRelease)) {
        auto *const button = static_cast<QAbstractButton *>(watched);
        const auto *const key = static_cast<QKeyEvent *>(event);
        if (isEnter(key)) {
            workByEnter(button, key);
            return true;
        }
        if (QAbstractButton *const next = isPress ? nearest(key->key()) : nullptr) {
            next->setFocus(Qt::TabFocusReason);
            scrollTo(next);
            return true;
        }
    }
    return QButtonGroup::eventFilter(watched, event);
}

QAbstractButton *ButtonGroupEx::nearest(int arrowKey) const
{
    QAbstractButton *found = nullptr;
    int shortest = 0;
    const QRect from = placeOf(m_focused);
    const auto all = buttons();
    for (QAbstractButton *button : all) {
        if (!button->isVisible() || !button->isEnabled() || button->focusPolicy() == Qt::NoFocus ||
            button->window() != m_focused->window())
            continue;
        const int far = distance(from, placeOf(button), arrowKey);
        if (far > 0 && (!found || far < shortest)) {
            found = button;
            shortest = far;
        }
    }
    return found;
}
