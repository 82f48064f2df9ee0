#include "panels/MouseKey.h"

#include "core/records.h"
#include "toolkit/NarrowText.h"
#include "vocabulary/Common.h"
#include "vocabulary/KeyCodes.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPathStroker>

#include <algorithm>

namespace {

constexpr int DotRadius = 2;
/// What a hot spot is wider than its line and its box.
constexpr int DotRoom = 6;
constexpr int QuarterAngle = 90;

/// Quarter of the ring: where it starts, and the top left corner of the square that its name is
/// centred in, in sixths of the radius from the centre.
struct Quarter
{
    int startAngle;
    QPoint nameOffset;
};

// clang-format off
const std::map<ushort, Quarter> Quarters = {
    // code, degrees, sixths
    {481, { 45, {-3, -7}}},
    {483, {315, { 1, -3}}},
    {485, {225, {-3,  1}}},
    {487, {135, {-7, -3}}},
};

/// Line of a hot spot as a fraction of its box; {25, 36} for codes without a row.
const std::map<ushort, std::pair<int, int>> LineFractions = {
    {488, {36, 32}},
    {489, { 2,  1}},
    {498, {30, 40}},
};
// clang-format on

MouseKey::Figure figureOf(ushort code)
{
    if (Quarters.count(code))
        return MouseKey::Figure::Ring;
    const bool isLeft = code == 496 || code == 499 || code == 500;
    return isLeft ? MouseKey::Figure::BoxLeft : MouseKey::Figure::BoxRight;
}

QRectF squareAround(int radius)
{
    return QRect(-radius, -radius, 2 * radius, 2 * radius);
}

QPainterPath quarterRing(int startAngle, int outer, int inner)
{
    QPainterPath path;
    path.arcMoveTo(squareAround(outer), startAngle);
    path.arcTo(squareAround(outer), startAngle, QuarterAngle);
    path.arcTo(squareAround(inner), startAngle + QuarterAngle, -QuarterAngle);
    path.closeSubpath();
    return path;
}

} // namespace

MouseKey::MouseKey(ushort code, const QString &name, QWidget *parent)
    : QPushButton(name, parent), m_code(code),
      m_figure(figureOf(code)), m_penColors{{Normal, Qt::white},
                                            {Hover, Qt::white},
                                            {Checked, inputColor(InputType::Mouse)}},
      m_brushColors{{Normal, Qt::transparent},
                    {Hover, QColor(255, 255, 255, 50)},
                    {Checked, inputColor(InputType::Mouse)}}
{
    setCheckable(true);
    setMouseTracking(true);
    setAccessibleName(name);
    setToolTip(name);
}

void MouseKey::setFigureSize(int mainSize, int fontPixelSize)
{
    m_mainSize = mainSize;
    QFont smaller = QApplication::font();
    smaller.setPixelSize(std::max(1, fontPixelSize));
    setFont(smaller);
    if (m_figure == Figure::Ring)
        setRingShape();
    else
        setHotSpotShape();
    narrowText(this, nameText(), nameRoom());
    update();
}

void MouseKey::setHotSpotShape()
{
    setFixedSize(lineLength() + m_mainSize + DotRoom, boxHeight());
    const int lineTop = boxHeight() / 2 - 1;
    QRegion shape(boxRect());
    shape += QRect(0, lineTop, width(), 3).intersected(rect());
    shape += QRect(dotCenter(), QSize(1, 1)).adjusted(-4, -4, 4, 4).intersected(rect());
    setMask(shape);
}

void MouseKey::setRingShape()
{
    setFixedSize(2 * m_mainSize + 2, 2 * m_mainSize + 2);
    m_ring = quarterRing(Quarters.at(m_code).startAngle, m_mainSize, m_mainSize / 3);
    QPainterPathStroker pen;
    pen.setWidth(4);
    const QPainterPath drawn = m_ring.united(pen.createStroke(m_ring));
    setMask(QRegion(drawn.translated(center()).toFillPolygon().toPolygon()));
}

int MouseKey::lineLength() const
{
    const auto row = LineFractions.find(m_code);
    return row == LineFractions.end() ? m_mainSize * 25 / 36
                                      : m_mainSize * row->second.first / row->second.second;
}

int MouseKey::boxHeight() const
{
    return m_mainSize / 3;
}

QRect MouseKey::boxRect() const
{
    const int left = m_figure == Figure::BoxLeft ? 0 : lineLength() + 4;
    return {left, 0, m_mainSize, boxHeight()};
}

QPoint MouseKey::dotCenter() const
{
    const int x = m_figure == Figure::BoxLeft ? m_mainSize + lineLength() : 4;
    return {x, boxHeight() / 2};
}

QPoint MouseKey::center() const
{
    return {width() / 2, height() / 2};
}

QString MouseKey::nameText() const
{
    QString name = text();
    if (m_figure == Figure::Ring)
        Common::TextWrap(name);
    return name;
}

int MouseKey::nameRoom() const
{
    // The ring is two thirds of its radius thick; names keep off the lines.
    return m_figure == Figure::Ring ? m_mainSize * 7 / 12 : m_mainSize * 9 / 10;
}

QRect MouseKey::nameRect() const
{
    if (m_figure != Figure::Ring)
        return boxRect();
    const QPoint offset = Quarters.at(m_code).nameOffset;
    return {center() + QPoint(offset.x() * m_mainSize / 6, offset.y() * m_mainSize / 6),
            QSize(m_mainSize, m_mainSize)};
}

MouseKey::State MouseKey::shownState() const
{
    return isChecked() ? Checked : m_state;
}

void MouseKey::setState(State state)
{
    m_state = state;
    update();
}

void MouseKey::enterEvent(QEvent *event)
{
    QPushButton::enterEvent(event);
    setState(Hover);
}

void MouseKey::leaveEvent(QEvent *event)
{
    QPushButton::leaveEvent(event);
    setState(Normal);
}

bool MouseKey::hitButton(const QPoint &pos) const
{
    return m_figure == Figure::Ring ? m_ring.contains(pos - center()) : QPushButton::hitButton(pos);
}

void MouseKey::trackPointer(const QPoint &pos)
{
    m_pointer = pos - center();
    if (m_ring.contains(m_pointer))
        raise();
    else
        lower();
}

MouseKey *MouseKey::siblingAt(const QPoint &pos) const
{
    const QPoint at = mapToParent(pos);
    const auto siblings = parentWidget()->findChildren<MouseKey *>();
    const auto found = std::find_if(siblings.begin(), siblings.end(), [&](MouseKey *key) {
        return key->m_figure == Figure::Ring && key->hitButton(key->mapFromParent(at));
    });
    return found == siblings.end() ? nullptr : *found;
}

bool MouseKey::handOver(const QMouseEvent *event)
{
    const QPointer<MouseKey> taker = m_taker;
    if (!taker)
        return false;
    if (event->type() == QEvent::MouseButtonRelease)
        m_taker = nullptr;
    const QPoint at = taker->mapFromParent(mapToParent(event->pos()));
    QMouseEvent copy(event->type(), at, event->button(), event->buttons(), event->modifiers());
    QCoreApplication::sendEvent(taker, &copy);
    return true;
}

void MouseKey::mousePressEvent(QMouseEvent *event)
{
    if (m_figure == Figure::Ring) {
        trackPointer(event->pos());
        m_taker = hitButton(event->pos()) ? nullptr : siblingAt(event->pos());
        if (handOver(event))
            return;
    }
    QPushButton::mousePressEvent(event);
}

void MouseKey::mouseMoveEvent(QMouseEvent *event)
{
    if (m_figure == Figure::Ring) {
        trackPointer(event->pos());
        if (handOver(event))
            return;
    }
    QPushButton::mouseMoveEvent(event);
}

void MouseKey::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_figure == Figure::Ring) {
        trackPointer(event->pos());
        // A click may take the whole page away, so nothing may follow it.
        if (handOver(event))
            return;
    }
    // Outside the ring the base class un-presses the button and sends nothing.
    QPushButton::mouseReleaseEvent(event);
}

void MouseKey::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_penColors.at(shownState()), 1));
    painter.setBrush(m_brushColors.at(shownState()));
    if (m_figure == Figure::Ring)
        painter.drawPath(m_ring.translated(center()));
    else
        drawHotSpot(&painter);
    painter.setPen(Qt::white);
    painter.drawText(nameRect(), Qt::AlignCenter, nameText());
}

void MouseKey::drawHotSpot(QPainter *painter) const
{
    const QPointF dot = QPointF(dotCenter()) + QPointF(0.5, 0.5);
    const QRect box = boxRect();
    const qreal boxSide = m_figure == Figure::BoxLeft ? box.right() + 1 : box.left();
    painter->drawLine(QPointF(boxSide, dot.y()), dot);
    painter->drawEllipse(dot, DotRadius, DotRadius);
    // The line of the border lies inside the box.
    painter->drawRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5));
}
