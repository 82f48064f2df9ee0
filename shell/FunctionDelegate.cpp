#include "shell/FunctionDelegate.h"

#include "shell/ShellStyle.h"

#include <QPainter>

namespace {

constexpr int RowHeight = 30;
constexpr int ChipWidth = 6;
constexpr int ChipRoom = 14;

} // namespace

void FunctionDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    const QVariant kind = index.data(KindRole);
    if (!kind.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    painter->save();
    if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect, option.palette.highlight());
    QStyleOptionViewItem text = option;
    text.rect.setLeft(option.rect.left() + ChipRoom);
    QStyledItemDelegate::paint(painter, text, index);
    QRect chip(option.rect.left() + 4, option.rect.top() + 6, ChipWidth, option.rect.height() - 12);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ShellStyle::kind(kind.toInt()));
    painter->drawRoundedRect(chip, 2, 2);
    painter->restore();
}

QSize FunctionDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(qMax(size.height(), RowHeight));
    if (index.data(KindRole).isValid())
        size.rwidth() += ChipRoom;
    return size;
}
