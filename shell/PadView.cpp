#include "shell/PadView.h"

#include "host/KeyText.h"
#include "host/StoreState.h"
#include "shell/KeyTitle.h"
#include "shell/ShellStyle.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/Common.h"
#include "vocabulary/KeyCodes.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {

/// Places in the picture of the pad, in its own pixels. Neither the display above the seam nor the
/// shadow below the pad are shown.
constexpr QSizeF WholePicture(425, 740);
constexpr qreal Seam = 185;
constexpr qreal Shadow = 715;
constexpr QSizeF PictureSize(WholePicture.width(), Shadow - Seam);
constexpr qreal Pitch = 71;
constexpr qreal KeySize = 68;
constexpr QPointF FirstKey(37, 335 - Seam);
constexpr int Columns = 5;
/// The upper keys, 24 to 27, in two plates of two.
constexpr QRectF UpperKeys[] = {{237, 205 - Seam, 151, 42},
                                {237, 251 - Seam, 151, 42},
                                {38, 251 - Seam, 151, 42},
                                {38, 205 - Seam, 151, 42}};
constexpr int WideKey = 23;

QRectF placeOf(int keyIdx)
{
    if (keyIdx >= MainKeyCount)
        return UpperKeys[keyIdx - MainKeyCount];
    const QPointF step(Pitch * (keyIdx % Columns), Pitch * (keyIdx / Columns));
    const qreal width = keyIdx == WideKey ? KeySize + Pitch : KeySize;
    return {FirstKey + step, QSizeF(width, KeySize)};
}

/// What stands on a key: short, since its colour tells the kind.
QString faceText(int keyIdx, const KeyContent &content)
{
    if (content.app)
        return appFunctionText(content.app->appType, content.app->funcId);
    if (content.hotKey)
        return content.hotKey->keyName;
    return KeyText::isCleared(keyIdx, content) ? KeyText::codeName(defaultCodeOfKey(keyIdx))
                                               : KeyText::functionName(keyIdx, content);
}

} // namespace

PadKey PadKey::of(int keyIdx, const KeyContent &content)
{
    PadKey key;
    const QString function = KeyText::functionName(keyIdx, content);
    key.text = faceText(keyIdx, content);
    key.description = QStringLiteral("%1: %2").arg(KeyTitle::withLegend(keyIdx), function);
    key.inputType = KeyText::inputType(keyIdx, content);
    return key;
}

PadKeys padKeys(const ProfileKeys &keys)
{
    PadKeys pad;
    for (int i = 0; i < KeyCount; ++i)
        pad[std::size_t(i)] = PadKey::of(i, keys[std::size_t(i)]);
    return pad;
}

PadView::PadView(QWidget *parent) : QWidget(parent), m_current(NoKey), m_pressed(NoKey)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Picture of the pad"));
}

void PadView::setKeys(const PadKeys &keys)
{
    m_keys = keys;
    update();
}

void PadView::setLit(const std::set<int> &keys)
{
    m_lit = keys;
    update();
}

void PadView::setCurrentKey(int keyIdx)
{
    m_current = isValidKey(keyIdx) ? keyIdx : NoKey;
    setAccessibleDescription(m_current == NoKey ? QString()
                                                : m_keys[std::size_t(m_current)].description);
    update();
}

void PadView::setDepth(int keyIdx, int percent)
{
    if (!isValidKey(keyIdx))
        return;
    m_depths[std::size_t(keyIdx)] = percent;
    update();
}

// ---- places ----

QRectF PadView::pictureRect() const
{
    QRectF rect(QPointF(), PictureSize.scaled(size(), Qt::KeepAspectRatio));
    rect.moveCenter(QRectF(this->rect()).center());
    return rect;
}

QRectF PadView::keyRect(int keyIdx) const
{
    if (!isValidKey(keyIdx))
        return {};
    const QRectF picture = pictureRect();
    const qreal scale = picture.width() / PictureSize.width();
    const QRectF place = placeOf(keyIdx);
    return {picture.topLeft() + place.topLeft() * scale, place.size() * scale};
}

int PadView::keyAt(const QPointF &place) const
{
    for (int i = 0; i < KeyCount; ++i) {
        if (keyRect(i).contains(place))
            return i;
    }
    return NoKey;
}

int PadView::neighbour(int keyIdx, int dx, int dy) const
{
    if (!isValidKey(keyIdx))
        return 0;
    const QPointF from = keyRect(keyIdx).center();
    int best = keyIdx;
    qreal least = 0;
    for (int i = 0; i < KeyCount; ++i) {
        const QPointF way = keyRect(i).center() - from;
        const qreal along = way.x() * dx + way.y() * dy;
        const qreal across = std::abs(way.x() * dy) + std::abs(way.y() * dx);
        // what lies more aside than ahead is no neighbour in that direction
        if (along < 1 || across > along * 1.5)
            continue;
        const qreal distance = along + across * 2;
        if (best == keyIdx || distance < least) {
            best = i;
            least = distance;
        }
    }
    return best;
}

// ---- painting ----

const QPixmap &PadView::picture(const QSize &size)
{
    const qreal ratio = devicePixelRatioF();
    const QSize wanted = size * ratio;
    if (m_picture.size() != wanted) {
        const QPixmap whole(QStringLiteral(":/VantrixMap/vantrix.png"));
        const qreal scale = whole.height() / WholePicture.height();
        const QRectF shown(0, Seam * scale, whole.width(), PictureSize.height() * scale);
        m_picture = whole.copy(shown.toRect())
                        .scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_picture.setDevicePixelRatio(ratio);
    }
    return m_picture;
}

void PadView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect place = pictureRect().toRect();
    painter.drawPixmap(place.topLeft(), picture(place.size()));
    for (int i = 0; i < KeyCount; ++i)
        paintKey(painter, i);
}

void PadView::paintKey(QPainter &painter, int keyIdx) const
{
    const PadKey &key = m_keys[std::size_t(keyIdx)];
    const QRectF rect = keyRect(keyIdx).adjusted(1, 1, -1, -1);
    const qreal round = std::min<qreal>(6, rect.height() / 8);
    QColor colour = ShellStyle::kind(key.inputType);
    painter.save();
    painter.setOpacity(isDim(keyIdx) ? 0.3 : 1);
    QColor fill = colour;
    fill.setAlpha(m_lit.count(keyIdx) > 0 ? 130 : 38);
    painter.setPen(QPen(colour, m_lit.count(keyIdx) > 0 ? 2 : 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(rect, round, round);
    const int depth = m_depths[std::size_t(keyIdx)];
    if (depth > 0) {
        QRectF travel = rect;
        travel.setHeight(rect.height() * depth / 100);
        colour.setAlpha(170);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawRoundedRect(travel, round, round);
    }
    if (keyIdx == m_current) {
        painter.setPen(QPen(Qt::white, hasFocus() ? 2.5 : 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), round, round);
    }
    painter.setPen(Qt::white);
    painter.setClipRect(rect);
    painter.setFont(textFont(key.text, rect.size()));
    painter.drawText(rect.adjusted(2, 1, -2, -1), Qt::AlignCenter | Qt::TextWordWrap, key.text);
    painter.restore();
}

/// The largest and widest font in which a text fits a key; the smallest one if none does.
QFont PadView::textFont(const QString &text, const QSizeF &size) const
{
    constexpr int Largest = 15;
    constexpr int Smallest = 7;
    const QRectF room(QPointF(), size - QSizeF(4, 2));
    QFont best = font();
    for (int pixels = std::clamp(int(size.height() / 3), Smallest, Largest); pixels >= Smallest;
         --pixels) {
        for (const int stretch : {int(QFont::Unstretched), int(QFont::Condensed)}) {
            best.setPixelSize(pixels);
            best.setStretch(stretch);
            const QFontMetricsF metrics(best);
            if (room.contains(metrics.boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text)))
                return best;
        }
    }
    return best;
}

// ---- choosing and pressing ----

bool PadView::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        auto *const help = static_cast<QHelpEvent *>(event);
        const int keyIdx = keyAt(help->pos());
        if (keyIdx == NoKey)
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(),
                               Common::PlainTip(m_keys[std::size_t(keyIdx)].description), this);
        return true;
    }
    return QWidget::event(event);
}

void PadView::choose(int keyIdx)
{
    if (!isValidKey(keyIdx) || keyIdx == m_current)
        return;
    setCurrentKey(keyIdx);
    emit currentKeyChanged(keyIdx);
}

void PadView::press(int keyIdx, int percent)
{
    if (!m_pressable || !isValidKey(keyIdx))
        return;
    m_pressed = keyIdx;
    emit depthRequested(keyIdx, percent);
}

void PadView::letGo()
{
    if (m_pressed == NoKey)
        return;
    const int keyIdx = m_pressed;
    m_pressed = NoKey;
    emit depthRequested(keyIdx, 0);
}

void PadView::mousePressEvent(QMouseEvent *event)
{
    const int keyIdx = keyAt(event->localPos());
    if (event->button() != Qt::LeftButton || keyIdx == NoKey)
        return;
    letGo();
    choose(keyIdx);
    m_pressedAt = event->localPos().y();
    press(keyIdx, FirstDepth);
}

void PadView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_pressed == NoKey || !(event->buttons() & Qt::LeftButton))
        return;
    const int deeper = qRound(event->localPos().y() - m_pressedAt);
    emit depthRequested(m_pressed, std::clamp(FirstDepth + deeper, 0, FullDepth));
}

void PadView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        letGo();
}

void PadView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (m_pressable)
        mousePressEvent(event);
    else if (keyAt(event->localPos()) != NoKey)
        emit activated(m_current);
}

void PadView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return choose(neighbour(m_current, -1, 0));
    case Qt::Key_Right:
        return choose(neighbour(m_current, 1, 0));
    case Qt::Key_Up:
        return choose(neighbour(m_current, 0, -1));
    case Qt::Key_Down:
        return choose(neighbour(m_current, 0, 1));
    case Qt::Key_Space:
        if (!event->isAutoRepeat() && m_pressed == NoKey)
            press(m_current, event->modifiers() & Qt::ShiftModifier ? FullDepth : FirstDepth);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_current != NoKey)
            emit activated(m_current);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PadView::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        letGo();
    else
        QWidget::keyReleaseEvent(event);
}

void PadView::focusOutEvent(QFocusEvent *event)
{
    letGo();
    update();
    QWidget::focusOutEvent(event);
}
