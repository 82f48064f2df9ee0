#include "interfaces/OstraDlg.h"

#include <QMouseEvent>

namespace {
/// Height in pixels of the upper edge by which the dialog is dragged.
constexpr int dragBarHeight = 40;
} // namespace

OstraDlg::OstraDlg(QWidget *parent) : QDialog(parent)
{
    setWindowFlag(Qt::FramelessWindowHint);
}

void OstraDlg::mousePressEvent(QMouseEvent *event)
{
    m_dragging = event->button() == Qt::LeftButton && event->pos().y() < dragBarHeight;
    m_dragOffset = event->globalPos() - pos();
    QDialog::mousePressEvent(event);
}

void OstraDlg::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragging)
        move(event->globalPos() - m_dragOffset);
    QDialog::mouseMoveEvent(event);
}

void OstraDlg::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragging = false;
    QDialog::mouseReleaseEvent(event);
}
