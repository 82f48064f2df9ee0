#include "panels/MouseWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/MouseKey.h"
#include "panels/PanelRecords.h"
#include "vocabulary/KeyCodes.h"

#include "ui_MouseUi.h"

#include <algorithm>
#include <array>

namespace {

/// Fractions of the picture are told in 70ths of its width and 112ths of its height.
constexpr int Columns = 70;
constexpr int Rows = 112;
constexpr std::array<ushort, 2> HorizontalScroll = {{1282, 1283}};

struct HotSpot
{
    ushort code;
    int size;   ///< in 70ths
    int x;      ///< in 70ths; of the right edge where the box is on the left
    int y;      ///< in 112ths
    int xShift; ///< in pixels
};

/// Quarter of the ring and where it stands off from the others, in pixels.
struct RingShift
{
    ushort code;
    int x;
    int y;
};

// clang-format off
constexpr std::array<HotSpot, 7> HotSpots = {{
    {496, 36, 19, 22,  0},
    {500, 36,  9, 40,  4},
    {499, 36, 10, 60,  4},
    {488, 32, 33,  4, -2},
    {498, 45, 33, 19, -2},
    {489, 45, 33, 29, -2},
    {497, 36, 45, 40,  0},
}};

constexpr std::array<RingShift, 4> Ring = {{
    {481,  0, -2},
    {483,  2,  0},
    {485,  0,  2},
    {487, -2,  0},
}};
// clang-format on

/// From the ring's centre to the widest reach of its segments to the left, beyond the radius.
constexpr int RingReach = 2;
/// Width of everything at a picture of width 70, the ring as near to the mouse as it may come, and
/// what is added to that at every size.
constexpr int NarrowestColumns = 314;
constexpr int NarrowestExtra = 28;

} // namespace

MouseWid::MouseWid(QWidget *parent)
    : FunctionWid(parent), m_ui(std::make_unique<Ui::MouseUi>()),
      m_mouse(QStringLiteral(":/VantrixMap/Mouse/mouse")),
      m_cursor(QStringLiteral(":/VantrixMap/Mouse/cursor")), m_cursorLab(new QLabel(this))
{
    m_ui->setupUi(this);
    m_cursorLab->setObjectName(QStringLiteral("m_cursorLab"));
    m_cursorLab->setAlignment(Qt::AlignCenter);
    for (const ushort code : InputKeyLists().at(InputType::Mouse)) {
        if (std::find(HorizontalScroll.begin(), HorizontalScroll.end(), code) ==
            HorizontalScroll.end())
            addFunction(new MouseKey(code, keyFunctionText(code), this), code);
    }
    connect(group(), &ButtonGroupEx::sigButtonClicked, this, &MouseWid::slotMouseKeyClicked);
}

MouseWid::~MouseWid() = default;

QSize MouseWid::minimumSizeHint() const
{
    // The picture's size follows from the panel's, so it must not keep the panel from shrinking.
    return {1, 1};
}

QSize MouseWid::fittedPicture() const
{
    const int widest = std::max(0, (width() - NarrowestExtra) * Columns / NarrowestColumns);
    return m_mouse.fittedInto({std::min(width(), widest), height() - height() / 10});
}

void MouseWid::resizeEvent(QResizeEvent *)
{
    m_pictureSize = fittedPicture();
    m_mouse.showIn(m_ui->m_backgroundLab, m_pictureSize);
    placeHotSpots();
    placeCursor();
    layout()->activate();
}

void MouseWid::placeHotSpots()
{
    const int w = m_pictureSize.width();
    const int h = m_pictureSize.height();
    const int left = (width() - w) / 2;
    const int top = (height() - h) / 2 - h / 18;
    for (const HotSpot &spot : HotSpots) {
        auto *const key = static_cast<MouseKey *>(group()->button(spot.code));
        key->setFigureSize(spot.size * w / Columns, w / 12);
        const int own = key->figure() == MouseKey::Figure::BoxLeft ? key->width() : 0;
        key->move(spot.x * w / Columns - own + left + spot.xShift, spot.y * h / Rows + top);
    }
}

void MouseWid::placeCursor()
{
    const int w = m_pictureSize.width();
    const int radius = w / 2;
    const int left = (width() - w) / 2;
    const int cx = std::max(left - 126 * w / Columns, radius + RingReach);
    const int cy = height() / 2;

    const int base = w / 10;
    const int cursorHeight = base * 3 / 2;
    m_cursor.showIn(m_cursorLab, m_cursor.fittedInto({base, cursorHeight}));
    m_cursorLab->setFixedSize(base, cursorHeight);
    m_cursorLab->move(cx - base / 2, cy - cursorHeight / 2);

    for (const RingShift &shift : Ring) {
        auto *const key = static_cast<MouseKey *>(group()->button(shift.code));
        key->setFigureSize(radius, w / 12);
        key->move(cx - radius + shift.x, cy - radius + shift.y);
    }
}

void MouseWid::slotMouseKeyClicked(QAbstractButton *button)
{
    emit sigMouseChanged(recordOfClick(group(), button));
}
