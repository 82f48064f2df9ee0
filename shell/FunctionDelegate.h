#pragma once

#include <QStyledItemDelegate>

/// Paints an item that names a function of a key with the colour of its kind in front. The kind
/// (InputType) is the item's data of role `KindRole`; without one the item is painted as always.
class FunctionDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int KindRole = Qt::UserRole + 20;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
