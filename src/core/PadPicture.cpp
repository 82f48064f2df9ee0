#include "core/PadPicture.h"

#include "core/records.h"

#include <QBitmap>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace {

constexpr qreal UpperPart = 65. / 260;  ///< what simple mode cuts away, in picture heights
constexpr qreal GroundPart = 25. / 425; ///< height of the ground below the pad, in picture widths
constexpr int Trim = 15;                ///< pixels that the outline loses at the bottom

QPixmap partFor(int mode, bool isDense)
{
    const QPixmap whole(isDense ? QStringLiteral(":/VantrixMap/vantrix@2x.png")
                                : QStringLiteral(":/VantrixMap/vantrix.png"));
    const int cut = mode == Mode::Simple ? int(whole.height() * UpperPart) : 0;
    return whole.copy(0, cut, whole.width(), whole.height() - cut);
}

/// Leaves no more of the ground below the pad than the outline loses, so that the outline ends with
/// the pad.
void cutGround(QPixmap *picture, const QSize &size)
{
    const int excess = qRound(size.width() * GroundPart) - Trim;
    if (excess <= 0)
        return;
    QPainter painter(picture);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(0, size.height() - excess, size.width(), excess, Qt::transparent);
}

} // namespace

PadPicture::PadPicture(QWidget *parent) : QLabel(parent) {}

QSize PadPicture::showPart(int mode, const QSize &room)
{
    const qreal ratio = devicePixelRatioF();
    const QPixmap part = partFor(mode, ratio > 1);
    const QSize fitted = part.size().scaled(room, Qt::KeepAspectRatio);
    QPixmap picture = part.scaled(fitted * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    cutGround(&picture, fitted);
    setPixmap(picture);
    return fitted;
}

QRegion PadPicture::outlineIn(const QWidget *mainWid) const
{
    const QPixmap picture = pixmap(Qt::ReturnByValue);
    if (!mainWid || !picture.hasAlphaChannel())
        return {};
    // A mask counts device pixels, a region those of the window.
    QRegion outline(picture.scaled(size()).mask());
    outline.translate(mainWid->mapFromGlobal(mapToGlobal(QPoint(0, 0))));

    std::vector<QRect> rects(outline.begin(), outline.end());
    if (rects.empty())
        return {};
    const auto shorter = [](const QRect &a, const QRect &b) {
        return a.height() < b.height();
    };
    // The lowest of them.
    const auto tallest = std::max_element(rects.rbegin(), rects.rend(), shorter).base() - 1;
    rects.front().adjust(6, 0, -5, 0);
    tallest->adjust(0, 0, -1, -Trim);
    rects.erase(tallest + 1, rects.end());
    QRegion region;
    region.setRects(rects.data(), int(rects.size()));
    return region;
}
