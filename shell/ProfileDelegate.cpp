#include "shell/ProfileDelegate.h"

#include "shell/ShellStyle.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPainter>

namespace {

constexpr int RowHeight = 28;
constexpr int NumberRowHeight = 26;
constexpr int NumberWidth = 30;
/// Narrowest row that shows a name.
constexpr int NameRowWidth = 120;

} // namespace

void ProfileDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect, ShellStyle::accent());
    else if (option.state & QStyle::State_MouseOver)
        painter->fillRect(option.rect, ShellStyle::raised());
    if (index.data(MarkedRole).toBool()) {
        painter->setPen(QPen(ShellStyle::warning(), 2));
        painter->drawRoundedRect(option.rect.adjusted(2, 2, -2, -2), 4, 4);
    }
    if (option.rect.width() < NameRowWidth)
        paintNumber(painter, option, index);
    else
        paintRow(painter, option, index);
    painter->restore();
}

QSize ProfileDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const bool isNumber = option.rect.width() < NameRowWidth;
    return {40, qMax(isNumber ? NumberRowHeight : RowHeight, option.fontMetrics.height() + 8)};
}

QWidget *ProfileDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                       const QModelIndex &) const
{
    auto *editor = new QLineEdit(parent);
    editor->setObjectName(QStringLiteral("m_nameEdit"));
    editor->setMaxLength(MaxNameLength);
    return editor;
}

void ProfileDelegate::paintDirty(QPainter *painter, const QPointF &center)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(ShellStyle::warning());
    painter->drawEllipse(center, 4, 4);
}

/// The row of a strip: a number, in a frame if the device acts by the profile.
void ProfileDelegate::paintNumber(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index)
{
    QRect frame(0, 0, 28, 22);
    frame.moveCenter(option.rect.center() - QPoint(4, 0));
    painter->setPen(ShellStyle::text());
    if (index.data(OnDeviceRole).toBool())
        painter->drawRoundedRect(frame, 4, 4);
    painter->drawText(frame, Qt::AlignCenter, QString::number(index.data(ProfileRole).toInt() + 1));
    if (index.data(DirtyRole).toBool())
        paintDirty(painter, QPointF(option.rect.right() - 7, option.rect.center().y() + 1));
}

void ProfileDelegate::paintRow(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index)
{
    const bool isShown = option.state & QStyle::State_Selected;
    QRect rest = option.rect.adjusted(0, 0, -8, 0);
    paintState(painter, option, index, rest);
    painter->setFont(option.font);
    painter->setPen(isShown ? ShellStyle::text() : ShellStyle::dim());
    painter->drawText(rest.left(), rest.top(), NumberWidth, rest.height(),
                      Qt::AlignRight | Qt::AlignVCenter,
                      QString::number(index.data(ProfileRole).toInt() + 1));
    rest.setLeft(rest.left() + NumberWidth + 10);
    painter->setPen(ShellStyle::text());
    const QString name =
        option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, rest.width());
    painter->drawText(rest, Qt::AlignLeft | Qt::AlignVCenter, name);
}

/// Paints the marks at the right end and takes their room from `rest`.
void ProfileDelegate::paintState(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index, QRect &rest)
{
    if (index.data(DirtyRole).toBool())
        paintDirty(painter, QPointF(rest.right() - 4, rest.center().y() + 1));
    rest.setRight(rest.right() - 16);
    if (!index.data(OnDeviceRole).toBool())
        return;
    QFont small = option.font;
    small.setPixelSize(QFontInfo(option.font).pixelSize() * 3 / 4);
    const QString text = QCoreApplication::translate("ProfileList", "DEVICE");
    const int width = QFontMetrics(small).horizontalAdvance(text) + 10;
    const QRect badge(rest.right() - width, rest.center().y() - 8, width, 17);
    painter->setPen(QPen(ShellStyle::text(), 1));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(badge, 3, 3);
    painter->setFont(small);
    painter->drawText(badge, Qt::AlignCenter, text);
    rest.setRight(badge.left() - 6);
}
