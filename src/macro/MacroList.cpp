#include "macro/MacroList.h"

#include <QEvent>

QItemSelectionModel::SelectionFlags MacroList::selectionCommand(const QModelIndex &index,
                                                                const QEvent *event) const
{
    if (!event || event->type() == QEvent::MouseMove)
        return QItemSelectionModel::NoUpdate;
    return QListWidget::selectionCommand(index, event);
}
