#include "application/BranchArea.h"

#include <QEvent>
#include <QScrollBar>

BranchArea::BranchArea(QWidget *parent) : QScrollArea(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize BranchArea::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    // Its wishes, but no wider than it has to be.
    QSize size(widget()->minimumSizeHint().width(), widget()->sizeHint().height());
    if (size.width() > width() - 2 * frameWidth())
        size.rheight() += horizontalScrollBar()->sizeHint().height();
    return size + QSize(2 * frameWidth(), 2 * frameWidth());
}

QSize BranchArea::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

bool BranchArea::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return handled;
}

void BranchArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    // Another width may need, or no longer need, the bar.
    updateGeometry();
}
