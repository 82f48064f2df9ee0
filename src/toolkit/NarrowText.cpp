#include "toolkit/NarrowText.h"

#include <QEvent>
#include <QFontMetrics>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int NarrowestStretch = 50;

int widthOf(const QString &text, const QFont &font)
{
    return QFontMetrics(font).size(Qt::TextShowMnemonic, text).width();
}

class NarrowsOnResize : public QObject
{
public:
    NarrowsOnResize(QWidget *widget, int margins) : QObject(widget), m_margins(margins)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize) {
            auto *const widget = static_cast<QWidget *>(watched);
            narrowText(widget, widget->property("text").toString(), widget->width() - m_margins);
        }
        return false;
    }

private:
    int m_margins;
};

} // namespace

void narrowText(QWidget *widget, const QString &text, int room)
{
    widget->ensurePolished();
    QFont font = widget->font();
    const int present = font.stretch() == QFont::AnyStretch ? 100 : font.stretch();
    font.setStretch(QFont::Unstretched);
    const int needed = std::max(1, widthOf(text, font));
    font.setStretch(std::clamp(100 * room / needed, NarrowestStretch, 100));
    // Hinting makes narrow letters somewhat wider than their share.
    while (font.stretch() > NarrowestStretch && widthOf(text, font) > room)
        font.setStretch(font.stretch() - 1);
    if (font.stretch() != present)
        widget->setFont(font);
}

void keepTextNarrow(QWidget *widget, int margins)
{
    new NarrowsOnResize(widget, margins);
}
