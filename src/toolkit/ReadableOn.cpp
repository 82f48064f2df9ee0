#include "toolkit/ReadableOn.h"

#include <QColor>

#include <cmath>

namespace {

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

} // namespace

QColor readableOn(const QColor &ground)
{
    const double luminance = 0.2126 * linear(ground.redF()) + 0.7152 * linear(ground.greenF()) +
                             0.0722 * linear(ground.blueF());
    // Where the contrast to black and the contrast to white are the same.
    constexpr double middle = 0.179;
    return luminance > middle ? Qt::black : Qt::white;
}
