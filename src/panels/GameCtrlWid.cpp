#include "panels/GameCtrlWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/CtrlPart.h"
#include "panels/PanelRecords.h"
#include "vocabulary/KeyCodes.h"

#include "ui_GameCtrlUi.h"

namespace {

/// Fractions of the picture are told in 158ths of its width and 116ths of its height.
constexpr int Columns = 158;
constexpr int Rows = 116;

// clang-format off
constexpr std::array<ushort, 2> Bumpers = {{466, 467}};
constexpr std::array<ushort, 2> Triggers = {{222, 223}};
constexpr std::array<ushort, 6> FaceAndSystem = {{462, 463, 464, 465, 468, 469}};
constexpr std::array<ushort, 4> PadFirstForm = {{458, 459, 460, 461}};
constexpr std::array<ushort, 4> PadSecondForm = {{473, 729, 1241, 2265}};
constexpr std::array<ushort, 8> StickDirections = {{731, 475, 474, 730, 733, 477, 476, 732}};
/// Press, left, up, right, down.
constexpr std::array<ushort, 5> LeftStick = {{471, 474, 731, 730, 475}};
constexpr std::array<ushort, 5> RightStick = {{472, 476, 733, 732, 477}};
// clang-format on

QSize square(int side)
{
    return {side, side};
}

} // namespace

GameCtrlWid::GameCtrlWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::GameCtrlUi>()), m_group(new ButtonGroupEx(this)),
      m_picture(QStringLiteral(":/VantrixMap/GameCtrl/game"))
{
    m_ui->setupUi(this);
    connect(m_group, &ButtonGroupEx::sigButtonClicked, this, &GameCtrlWid::slotGameKeyClicked);
}

GameCtrlWid::~GameCtrlWid() = default;

void GameCtrlWid::clearChecked()
{
    m_group->setNoneButtonChecked();
}

void GameCtrlWid::setPadMode(bool flag)
{
    m_padMode = flag;
    qDeleteAll(m_group->buttons());
    buildControls();
    placeControls();
}

template <typename Part, typename Codes>
void GameCtrlWid::addAll(const Codes &codes)
{
    for (const ushort code : codes)
        add(new Part(code, this), code);
}

void GameCtrlWid::add(CtrlPart *control, ushort code)
{
    const QString name = keyFunctionText(code);
    control->setAccessibleName(name);
    control->setToolTip(name);
    m_group->addButton(control, code);
    // The panel may be visible already.
    control->show();
}

void GameCtrlWid::buildControls()
{
    addAll<CtrlBtn>(Bumpers);
    add(new GameBtn(LeftStick.front(), this, tr("L")), LeftStick.front());
    add(new GameBtn(RightStick.front(), this, tr("R")), RightStick.front());
    addAll<GameBtn>(FaceAndSystem);
    addAll<DirectBtn>(m_padMode ? PadFirstForm : PadSecondForm);
    if (!m_padMode) {
        addAll<CtrlBtn>(Triggers);
        addAll<DirectBtn>(StickDirections);
    }
    add(new LogoBtn(470, this), 470);
}

QSize GameCtrlWid::minimumSizeHint() const
{
    // The picture's size follows from the panel's, so it must not keep the panel from shrinking.
    return {1, 1};
}

void GameCtrlWid::resizeEvent(QResizeEvent *)
{
    m_pictureSize = m_picture.fittedInto({width(), height() - height() / 10});
    m_picture.showIn(m_ui->m_backgroundLab, m_pictureSize);
    m_topLeft = {(width() - m_pictureSize.width()) / 2, (height() - m_pictureSize.height()) / 2};
    m_center = {width() / 2, height() / 2};
    placeControls();
    layout()->activate();
}

int GameCtrlWid::x(int parts) const
{
    return parts * m_pictureSize.width() / Columns;
}

int GameCtrlWid::y(int parts) const
{
    return parts * m_pictureSize.height() / Rows;
}

void GameCtrlWid::place(ushort code, int left, int top, const QSize &size)
{
    if (QAbstractButton *const control = m_group->button(code))
        static_cast<CtrlPart *>(control)->place({{left, top}, size});
}

void GameCtrlWid::placeControls()
{
    placePad();
    placeShoulders();
    placeSticks();
    placeFaceButtons();
    placeSystemButtons();
    const QSize logo(x(16), y(12));
    place(470, m_center.x() - logo.width() / 2, m_center.y() - y(10) - logo.height(), logo);
}

void GameCtrlWid::placePad()
{
    const int side = x(7);
    const int half = side / 2;
    const int offset = x(14);
    const int ax = m_center.x() - x(23) + 1;
    const int ay = m_center.y() + y(12);
    const auto &[up, down, left, right] = m_padMode ? PadFirstForm : PadSecondForm;
    place(left, ax - offset, ay - half, square(side));
    place(up, ax - half, ay - offset, square(side));
    place(right, ax - side + offset, ay - half, square(side));
    place(down, ax - half, ay - side + offset, square(side));
}

void GameCtrlWid::placeShoulders()
{
    const QSize bumper(x(18), y(13));
    const int bumperX = m_topLeft.x() + bumper.width() / 4;
    const int bumperY = m_topLeft.y() + y(18);
    place(466, bumperX, bumperY, bumper);
    place(467, 2 * m_center.x() - bumperX - bumper.width(), bumperY, bumper);

    const QSize trigger(x(13), y(18));
    const int triggerX = m_topLeft.x() + x(27);
    place(222, triggerX, m_topLeft.y(), trigger);
    place(223, 2 * m_center.x() - trigger.width() - triggerX, m_topLeft.y(), trigger);
}

void GameCtrlWid::placeSticks()
{
    placeStick(m_topLeft.x() + 1 + x(27), m_topLeft.y() + y(35), LeftStick);
    placeStick(m_center.x() + 1 + x(11), m_center.y() + y(3), RightStick);
}

void GameCtrlWid::placeStick(int left, int top, const std::array<ushort, 5> &codes)
{
    const int stick = x(18);
    const int side = x(7);
    const int half = side / 2;
    const int middle = stick / 2 - half;
    const int far = stick - side + half;
    const auto &[press, toLeft, toTop, toRight, toBottom] = codes;
    place(press, left, top, square(stick));
    place(toLeft, left - half, top + middle, square(side));
    place(toTop, left + middle, top - half, square(side));
    place(toRight, left + far, top + middle, square(side));
    place(toBottom, left + middle, top + far, square(side));
}

void GameCtrlWid::placeFaceButtons()
{
    const int bx = m_center.x() + x(42);
    const int by = m_center.y() - y(12);
    const int offset = x(15);
    const int side = x(10);
    const int half = side / 2;
    place(464, bx - offset, by - half, square(side));
    place(465, bx - half, by - offset, square(side));
    place(462, bx - half, by + offset - side, square(side));
    place(463, bx + offset - side, by - half, square(side));
}

void GameCtrlWid::placeSystemButtons()
{
    const int side = x(7);
    const int dx = x(13);
    const int top = m_center.y() - y(8) - side;
    place(468, m_center.x() - dx - side, top, square(side));
    place(469, m_center.x() + dx, top, square(side));
}

void GameCtrlWid::slotGameKeyClicked(QAbstractButton *button)
{
    vantrix_key_mapping key = gameKey(ushort(m_group->id(button)));
    if (!button->isChecked()) {
        key.type = KeyType::Plain;
        key.altCode = UnassignedCode;
    }
    emit sigGameChanged(key);
}

void GameCtrlWid::slotVantrixKeySelected(vantrix_key_mapping key)
{
    if (key.type == KeyType::GameController)
        checkButton(m_group, key.altCode);
}
