#include "core/LegendWid.h"

#include <QLabel>
#include <QLayout>

#include <algorithm>

namespace {

constexpr int NarrowestStretch = 40;
constexpr int StretchStep = 5;
constexpr int Gap = 3; ///< pixels between a colour and its text where there is room

int widthOf(const QLabel *label, const QString &text, int stretch)
{
    QFont font = label->font();
    font.setStretch(stretch);
    const QFontMetrics metrics(font, label);
    int width = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    return width;
}

/// In two lines at most, as even as the blanks allow: there is no room for a third.
QString broken(QString text)
{
    const int middle = text.size() / 2;
    int best = -1;
    for (int i = text.indexOf(QLatin1Char(' ')); i >= 0;
         i = text.indexOf(QLatin1Char(' '), i + 1)) {
        if (best < 0 || qAbs(i - middle) < qAbs(best - middle))
            best = i;
    }
    if (best >= 0)
        text[best] = QLatin1Char('\n');
    return text;
}

} // namespace

LegendWid::LegendWid(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
}

QSize LegendWid::minimumSizeHint() const
{
    return {1, QWidget::minimumSizeHint().height()};
}

void LegendWid::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitTexts();
}

int LegendWid::roomForTexts() const
{
    const QMargins margins = layout()->contentsMargins();
    QLayout *const row = layout()->itemAt(0)->layout();
    int taken = margins.left() + margins.right() - row->spacing();
    for (int i = 0; i < row->count(); ++i) {
        const QWidget *const widget = row->itemAt(i)->widget();
        if (!widget)
            continue;
        taken += row->spacing();
        if (!qobject_cast<const QLabel *>(widget))
            taken += widget->width();
    }
    return width() - taken;
}

void LegendWid::fitTexts()
{
    const auto labels = findChildren<QLabel *>();
    const int room = roomForTexts();
    const auto total = [&labels](bool isBroken, int stretch) {
        int sum = 0;
        for (const QLabel *const label : labels) {
            const QString text = label->accessibleName();
            sum += isBroken ? widthOf(label, broken(text), stretch)
                            : widthOf(label, text, stretch) + Gap;
        }
        return sum;
    };
    bool isBroken = false;
    int stretch = QFont::Unstretched;
    if (total(isBroken, stretch) > room) {
        isBroken = true;
        while (stretch > NarrowestStretch && total(isBroken, stretch) > room)
            stretch -= StretchStep;
    }
    for (QLabel *const label : labels) {
        QFont font = label->font();
        font.setStretch(stretch);
        label->setFont(font);
        const QString text = label->accessibleName();
        label->setText(isBroken ? broken(text) : text);
        label->setIndent(isBroken ? 0 : Gap);
        label->setFixedWidth(widthOf(label, label->text(), stretch) + label->indent());
    }
}
