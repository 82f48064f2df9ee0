#include "dualaction/ActionAssignWid.h"

#include "toolkit/FocusRing.h"

#include "ui_ActionAssignUi.h"

#include <QApplication>
#include <QKeyEvent>

ActionAssignWid::ActionAssignWid(QWidget *parent) : QWidget(parent), m_ui(new Ui::ActionAssignUi)
{
    m_ui->setupUi(this);
    new FocusRing(this);
    connect(m_ui->m_keyboard, &KeyboardWid::sigKeyChanged, this,
            &ActionAssignWid::slotDualActionChanged);
    connect(m_ui->m_mouse, &MouseWid::sigMouseChanged, this,
            &ActionAssignWid::slotDualActionChanged);
    connect(m_ui->m_media, &MediaWid::sigMediaChanged, this,
            &ActionAssignWid::slotDualActionChanged);
    connect(m_ui->m_back, &QPushButton::clicked, this, &ActionAssignWid::slotBack);
    connect(m_ui->m_apply, &QPushButton::clicked, this, &ActionAssignWid::slotApply);
}

ActionAssignWid::~ActionAssignWid() = default;

void ActionAssignWid::openOverlay(int actionNo, int inputType, QString strAction, bool capture)
{
    setAction(actionNo, strAction);
    m_ui->m_map->setCurrentIndex(inputType);
    show();
    raise();
    m_ui->m_keyboard->setKeyCapture(capture && inputType == InputType::Keyboard);
}

void ActionAssignWid::setAction(int actionNo, const QString &strAction)
{
    m_actionNo = actionNo;
    m_ui->m_action->setText(strAction);
}

void ActionAssignWid::resetOverlay()
{
    m_ui->m_keyboard->clearChecked();
    m_ui->m_mouse->clearChecked();
    m_ui->m_media->clearChecked();
}

void ActionAssignWid::closeOverlay()
{
    m_ui->m_keyboard->setKeyCapture(false);
    hide();
}

void ActionAssignWid::slotDualActionChanged(vantrix_key_mapping key)
{
    emit sigDualActionChanged(m_actionNo, key);
}

void ActionAssignWid::slotBack()
{
    m_ui->m_keyboard->setKeyCapture(false);
    emit sigDualActionBack();
    hide();
}

void ActionAssignWid::slotApply()
{
    m_ui->m_keyboard->setKeyCapture(false);
    emit sigDualActionApply();
    hide();
}

void ActionAssignWid::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    m_focusedBefore = QApplication::focusWidget();
    nextStop(m_ui->m_map, true)->setFocus();
    qApp->installEventFilter(this);
}

void ActionAssignWid::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    qApp->removeEventFilter(this);
    if (m_focusedBefore && holdsFocus())
        m_focusedBefore->setFocus();
}

bool ActionAssignWid::eventFilter(QObject *watched, QEvent *event)
{
    const bool isHere = watched->isWidgetType() &&
                        static_cast<QWidget *>(watched)->window() == window() &&
                        !QWidget::keyboardGrabber();
    if (isHere && event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    // Within the overlay Tab comes by itself, after the widget that has the focus had its turn.
    if (isHere && event->type() == QEvent::KeyPress && !holdsFocus()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
            return focusNextPrevChild(key == Qt::Key_Tab);
    }
    return QWidget::eventFilter(watched, event);
}

bool ActionAssignWid::focusNextPrevChild(bool next)
{
    if (!isVisible())
        return QWidget::focusNextPrevChild(next);
    QWidget *const focused = QApplication::focusWidget();
    nextStop(focused ? focused : this, next)
        ->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

bool ActionAssignWid::holdsFocus() const
{
    return isAncestorOf(QApplication::focusWidget());
}

/// Whether Tab may stop there: at what can be clicked.
bool ActionAssignWid::isStop(const QWidget *widget) const
{
    if (!widget->isVisible() || !widget->isEnabled() || widget->focusProxy() ||
        (widget->focusPolicy() & Qt::TabFocus) == 0)
        return false;
    const QPoint middle = widget->mapTo(widget->window(), widget->rect().center());
    return isAncestorOf(widget) ||
           (!mask().isEmpty() && !mask().contains(mapFrom(window(), middle)));
}

QWidget *ActionAssignWid::nextStop(QWidget *from, bool next) const
{
    QWidget *at = from;
    do {
        at = next ? at->nextInFocusChain() : at->previousInFocusChain();
    } while (at != from && !isStop(at));
    return at;
}
