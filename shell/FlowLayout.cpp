#include "shell/FlowLayout.h"

#include <QWidget>

FlowLayout::FlowLayout(QWidget *parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(5);
}

FlowLayout::~FlowLayout()
{
    for (QLayoutItem *const item : m_items)
        delete item;
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[std::size_t(index)] : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    QLayoutItem *const item = itemAt(index);
    if (item)
        m_items.erase(m_items.begin() + index);
    return item;
}

int FlowLayout::heightForWidth(int width) const
{
    return place(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *const item : m_items)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    place(rect, true);
}

/// Places all items, or only finds out how high they are.
int FlowLayout::place(const QRect &rect, bool move) const
{
    const QRect room = rect.marginsRemoved(contentsMargins());
    int x = room.x();
    int y = room.y();
    int rowHeight = 0;
    for (QLayoutItem *const item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (x > room.x() && x + size.width() > room.x() + room.width()) {
            x = room.x();
            y += rowHeight + spacing();
            rowHeight = 0;
        }
        if (move)
            item->setGeometry(
                QRect(QPoint(x, y), size.boundedTo(QSize(room.width(), size.height()))));
        x += size.width() + spacing();
        rowHeight = std::max(rowHeight, size.height());
    }
    return y + rowHeight - rect.y() + contentsMargins().bottom();
}
