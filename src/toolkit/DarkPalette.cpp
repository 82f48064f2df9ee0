#include "toolkit/DarkPalette.h"

#include <QPalette>

#include <cmath>

namespace {

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

} // namespace

QPalette darkPalette()
{
    const QColor disabled(140, 140, 140);
    QPalette palette(QColor(53, 53, 53), QColor(40, 40, 40));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    palette.setColor(QPalette::Base, QColor(25, 25, 25));
    palette.setColor(QPalette::PlaceholderText, QColor(225, 225, 225));
    palette.setColor(QPalette::Highlight, QColor(214, 150, 235));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::ToolTipBase, QColor(25, 25, 25));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    return palette;
}

QColor readableOn(const QColor &ground)
{
    const double luminance = 0.2126 * linear(ground.redF()) + 0.7152 * linear(ground.greenF()) +
                             0.0722 * linear(ground.blueF());
    // Where the contrast to black and the contrast to white are the same.
    constexpr double middle = 0.179;
    return luminance > middle ? Qt::black : Qt::white;
}
