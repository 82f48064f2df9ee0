#pragma once

#include <QPainterPath>
#include <QPointer>
#include <QPushButton>

#include <map>

/// One function of the mouse panel, drawn by hand: a hot spot, which is a box with a line that
/// ends in a dot on the picture of the mouse, or a quarter of the ring around the cursor.
///
/// The squares of the four ring segments overlap. A segment takes clicks only where its quarter
/// of the ring is; a click that reaches it elsewhere goes to the segment that is there, if any.
class MouseKey : public QPushButton
{
    Q_OBJECT

public:
    /// What the figure looks like.
    enum class Figure {
        BoxLeft,  ///< box, line, dot
        BoxRight, ///< dot, line, box
        Ring
    };

    /// `code` is the device code, `name` the translated function name.
    MouseKey(ushort code, const QString &name, QWidget *parent);

    /// Sets size, shape and font: `mainSize` is a box's width or the ring's outer radius in
    /// pixels. The position is the caller's.
    void setFigureSize(int mainSize, int fontPixelSize);
    Figure figure() const { return m_figure; }

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool hitButton(const QPoint &pos) const override;

private:
    enum State { Normal, Hover, Checked };

    int lineLength() const;
    int boxHeight() const;
    QRect boxRect() const;
    QPoint dotCenter() const;
    QString nameText() const;
    int nameRoom() const;
    QRect nameRect() const;
    QPoint center() const;
    State shownState() const;
    void setHotSpotShape();
    void setRingShape();
    void setState(State state);
    void trackPointer(const QPoint &pos);
    MouseKey *siblingAt(const QPoint &pos) const;
    bool handOver(const QMouseEvent *event);
    void drawHotSpot(QPainter *painter) const;

    ushort m_code;
    Figure m_figure;
    int m_mainSize = 0;
    QPainterPath m_ring; ///< relative to the widget's centre
    QPoint m_pointer;    ///< relative to the widget's centre
    State m_state = Normal;
    std::map<int, QColor> m_penColors;
    std::map<int, QColor> m_brushColors;
    QPointer<MouseKey> m_taker; ///< the segment that the present press belongs to
};
