#include "panels/NarrowText.h"

#include <QFontMetrics>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int NarrowestStretch = 50;

} // namespace

void narrowText(QWidget *widget, const QString &text, int room)
{
    widget->ensurePolished();
    QFont font = widget->font();
    const int present = font.stretch() == QFont::AnyStretch ? 100 : font.stretch();
    font.setStretch(QFont::Unstretched);
    const int needed = QFontMetrics(font).size(Qt::TextShowMnemonic, text).width();
    const int stretch = std::clamp(100 * room / std::max(1, needed), NarrowestStretch, 100);
    if (stretch == present)
        return;
    font.setStretch(stretch);
    widget->setFont(font);
}
