#include "macro/MacroList.h"

#include <QEvent>

#include <utility>

MacroList::MacroList(QWidget *parent) : QListWidget(parent)
{
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (m_isBusy)
            m_isMoved = true;
        else
            emit sigSelectionSettled();
    });
}

void MacroList::mousePressEvent(QMouseEvent *event)
{
    m_isBusy = true;
    QListWidget::mousePressEvent(event);
    settle();
}

void MacroList::mouseReleaseEvent(QMouseEvent *event)
{
    m_isBusy = true;
    QListWidget::mouseReleaseEvent(event);
    settle();
}

void MacroList::keyPressEvent(QKeyEvent *event)
{
    m_isBusy = true;
    QListWidget::keyPressEvent(event);
    settle();
}

void MacroList::settle()
{
    m_isBusy = false;
    if (std::exchange(m_isMoved, false))
        emit sigSelectionSettled();
}

QItemSelectionModel::SelectionFlags MacroList::selectionCommand(const QModelIndex &index,
                                                                const QEvent *event) const
{
    if (!event || event->type() == QEvent::MouseMove)
        return QItemSelectionModel::NoUpdate;
    return QListWidget::selectionCommand(index, event);
}
