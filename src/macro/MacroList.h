#pragma once

#include <QListWidget>

/// The list of macros: a multi-selection, so that a click toggles an entry, that only a click or
/// Space changes. Drags, searches by typing and "select all" would assign macros by the way.
class MacroList : public QListWidget
{
    Q_OBJECT

public:
    using QListWidget::QListWidget;

    void selectAll() override {}

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
};
