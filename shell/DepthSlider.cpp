#include "shell/DepthSlider.h"

#include "shell/ShellStyle.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

DepthSlider::DepthSlider(QWidget *parent) : QSlider(Qt::Vertical, parent)
{
    setRange(0, 100);
    setPageStep(10);
    setInvertedAppearance(true); // down is deeper
    setInvertedControls(true);
}

void DepthSlider::setEdges(const std::vector<int> &percents)
{
    m_edges = percents;
    update();
}

QSize DepthSlider::sizeHint() const
{
    return QSlider::sizeHint() + QSize(20, 0); // room for the marks at both sides
}

void DepthSlider::paintEvent(QPaintEvent *event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const int span = height() - handle.height();
    {
        QPainter painter(this);
        painter.setPen(QPen(ShellStyle::warning(), 2));
        for (const int edge : m_edges) {
            const int y = handle.height() / 2 + QStyle::sliderPositionFromValue(0, 100, edge, span);
            painter.drawLine(0, y, width() / 2 - 6, y);
            painter.drawLine(width() / 2 + 6, y, width(), y);
        }
    }
    QSlider::paintEvent(event);
}
