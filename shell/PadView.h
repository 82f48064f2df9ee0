#pragma once

#include "host/KeyContent.h"

#include <QPixmap>
#include <QWidget>

#include <array>
#include <set>

/// One key of the picture.
struct PadKey
{
    QString text;        ///< what stands on the key
    QString description; ///< the key in words, for the tool tip and for screen readers
    int inputType = 0;   ///< InputType, gives the colour

    /// A key as it is stored; a key without an assignment shows what it sends all the same.
    static PadKey of(int keyIdx, const KeyContent &content);
};
using PadKeys = std::array<PadKey, KeyCount>;
/// All keys of a profile.
PadKeys padKeys(const ProfileKeys &keys);

/// The picture of the pad with its 28 keys, to look at, to choose from and to press.
///
/// *Mouse.* A press chooses a key and, in a view that can be pressed, takes it down to
/// `FirstDepth`; dragging down takes it deeper and up less deep, one percent a pixel; the release
/// lets it come up.
/// *Keyboard.* The arrows choose the neighbour; Space held takes the key down to `FirstDepth`,
/// with Shift to `FullDepth`; Return activates.
class PadView : public QWidget
{
    Q_OBJECT

public:
    static constexpr int FirstDepth = 30; ///< percent
    static constexpr int FullDepth = 100;

    explicit PadView(QWidget *parent = nullptr);

    void setKeys(const PadKeys &keys);
    const PadKeys &keys() const { return m_keys; }
    /// Lights these keys and dims the others; none lit: all are as bright.
    void setLit(const std::set<int> &keys);
    const std::set<int> &lit() const { return m_lit; }
    /// Whether keys can be pressed; false at first.
    void setPressable(bool pressable) { m_pressable = pressable; }
    /// Chooses a key without a signal; NoKey for none.
    void setCurrentKey(int keyIdx);
    int currentKey() const { return m_current; }
    /// Shows how far a key is down, in percent.
    void setDepth(int keyIdx, int percent);

    /// Where a key lies; empty for an index outside the pad.
    QRectF keyRect(int keyIdx) const;
    /// Key at a place of the widget; NoKey beside all keys.
    int keyAt(const QPointF &place) const;

    QSize sizeHint() const override { return {300, 377}; }
    QSize minimumSizeHint() const override { return {159, 200}; }

signals:
    /// The user chose a key.
    void currentKeyChanged(int keyIdx);
    /// The user moves a key to a depth in percent, 0 for up.
    void depthRequested(int keyIdx, int percent);
    /// The user double-clicked a key or pressed Return on it.
    void activated(int keyIdx);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QRectF pictureRect() const;
    const QPixmap &picture(const QSize &size);
    void choose(int keyIdx);
    void press(int keyIdx, int percent);
    void letGo();
    int neighbour(int keyIdx, int dx, int dy) const;
    void paintKey(QPainter &painter, int keyIdx) const;
    QFont textFont(const QString &text, const QSizeF &size) const;
    bool isDim(int keyIdx) const { return !m_lit.empty() && m_lit.count(keyIdx) == 0; }

    PadKeys m_keys;
    std::array<int, KeyCount> m_depths{};
    std::set<int> m_lit;
    QPixmap m_picture;
    int m_current;
    int m_pressed; ///< key held by mouse or keyboard
    qreal m_pressedAt = 0;
    bool m_pressable = false;
};
