#pragma once

#include <QStyledItemDelegate>

/// Editors for the cells of a MacroEventModel: a list of the two events, a list of keys in which
/// one can type, and a number of milliseconds.
class MacroEventDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
};
