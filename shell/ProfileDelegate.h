#pragma once

#include <QStyledItemDelegate>

/// Paints a row of the list of profiles: number, name, and what the device has of it. A row that
/// is too narrow for a name is a number alone.
class ProfileDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// What an item holds beside its name.
    enum Role {
        ProfileRole = Qt::UserRole, ///< int: number from 0
        DirtyRole,                  ///< bool: differs from what the device has
        OnDeviceRole,               ///< bool: the device acts by it
        MarkedRole                  ///< bool: lights up
    };
    static constexpr int MaxNameLength = 40;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

private:
    static void paintDirty(QPainter *painter, const QPointF &center);
    static void paintNumber(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index);
    static void paintRow(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index);
    static void paintState(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index, QRect &rest);
};
