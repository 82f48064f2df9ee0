#include "panels/KeyBtn.h"

#include "vocabulary/KeyCodes.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

const QString &sheet()
{
    static const QString text =
        QStringLiteral("QPushButton{background:rgb(99,99,99);border:1px solid white;"
                       "border-radius:2px;min-height:1px;text-align:top;}"
                       ":hover{background:rgba(255,255,255,50);}:checked{background:") +
        inputColor(InputType::Keyboard).name(QColor::HexArgb) + QLatin1Char('}');
    return text;
}

constexpr int MeasuredSize = 100;
constexpr int Borders = 2;
constexpr int NarrowestStretch = 50;

int widthOf(const QString &legend, QFont font)
{
    font.setPixelSize(MeasuredSize);
    font.setStretch(QFont::Unstretched);
    return QFontMetrics(font).size(Qt::TextShowMnemonic, legend).width();
}

} // namespace

KeyBtn::KeyBtn(QWidget *parent) : FixedBtn(parent)
{
    setCheckable(true);
    setStyleSheet(sheet());
}

void KeyBtn::fitLegend(int pixelSize)
{
    if (m_measured != text()) {
        m_measured = text();
        m_legendWidth = widthOf(m_measured, font());
    }
    const int needed = std::max(1, m_legendWidth * pixelSize);
    const int room = (width() - Borders) * MeasuredSize;
    const int stretch = std::clamp(100 * room / needed, NarrowestStretch, 100);
    QFont narrowed = font();
    if (narrowed.stretch() == stretch || (narrowed.stretch() == 0 && stretch == 100))
        return;
    narrowed.setStretch(stretch);
    setFont(narrowed);
}

void KeyBtn::keyReleaseEvent(QKeyEvent *event)
{
    FixedBtn::keyReleaseEvent(event);
    event->accept();
}
