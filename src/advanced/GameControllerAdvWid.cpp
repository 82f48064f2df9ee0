#include "advanced/GameControllerAdvWid.h"

#include "advanced/ControllerKeyWid.h"
#include "interfaces/IVantrixProfileCfg.h"

#include "ui_GameControllerAdvUi.h"

#include <QEvent>

#include <algorithm>
#include <vector>

namespace {

enum Side { Left, LeftEnd, Centre, Right, RightEnd };

struct Row
{
    ushort code;
    Side side; ///< an end is followed by a gap
};

// clang-format off
constexpr Row Rows[] = {
    // code  side
    {466,  Left},
    {222,  LeftEnd},
    {731,  Left},
    {475,  Left},
    {474,  Left},
    {730,  Left},
    {471,  LeftEnd},
    {473,  Left},
    {729,  Left},
    {1241, Left},
    {2265, Left},
    {470,  Centre},
    {468,  Centre},
    {469,  Centre},
    {467,  Right},
    {223,  RightEnd},
    {464,  Right},
    {465,  Right},
    {462,  Right},
    {463,  RightEnd},
    {733,  Right},
    {477,  Right},
    {476,  Right},
    {732,  Right},
    {472,  Right},
};
// clang-format on
static_assert(sizeof(Rows) / sizeof(Rows[0]) == 25);

constexpr ushort LeftBumper = 466;
constexpr double CentreOfPicture = 0.28;

void addToColumn(QVBoxLayout *column, QWidget *row, Side side)
{
    column->addWidget(row);
    if (side == LeftEnd || side == RightEnd)
        column->addStretch();
}

/// Rows on the picture that grow with their keys stay legible where they leave its dark panel.
void setBackdrop(QWidget *row)
{
    QPalette palette = row->palette();
    palette.setColor(QPalette::Window, QColor(23, 23, 24));
    row->setPalette(palette);
    row->setAutoFillBackground(true);
}

} // namespace

GameControllerAdvWid::GameControllerAdvWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::GameControllerAdvUi>())
{
    m_ui->setupUi(this);
    for (const Row &place : Rows) {
        auto *const row = new ControllerKeyWid(place.code, this);
        row->setObjectName(QStringLiteral("controllerKey_%1").arg(place.code));
        m_mKeys[place.code] = row;
        if (place.side == Centre)
            setBackdrop(row);
        else
            addToColumn(place.side < Centre ? m_ui->m_leftLayout : m_ui->m_rightLayout, row,
                        place.side);
        connect(row, &ControllerKeyWid::sigAddCurrKeyToGamepad, this,
                &GameControllerAdvWid::slotDelCurrKeyToGamepad);
        connect(row, &ControllerKeyWid::sigGameControllerChanged, this,
                &GameControllerAdvWid::sigGameControllerChanged);
    }
    reservePicture();
}

GameControllerAdvWid::~GameControllerAdvWid() = default;

void GameControllerAdvWid::reservePicture()
{
    int width = 0;
    for (const auto &[code, row] : m_mKeys)
        width = std::max(width, row->minimumSizeHint().width());
    m_ui->m_backgroundLab->setMinimumWidth(int(width / (1 - CentreOfPicture)));
}

void GameControllerAdvWid::setProfile(int iOwner, int iProfile)
{
    IVantrixProfileCfg *const store = IVantrixProfileCfg::Instance();
    const int current = store->getCurrentKey(iOwner, iProfile) & 0xFFFF;
    std::vector<vantrix_key_mapping> mappings;
    const bool known = store->getKeyMappings(iOwner, iProfile, &mappings);

    std::map<ushort, std::vector<int>> keysOfCode;
    for (int keyIdx = 0; keyIdx < int(mappings.size()); ++keyIdx) {
        const vantrix_key_mapping &key = mappings[std::size_t(keyIdx)];
        if (key.type != KeyType::GameController)
            continue;
        std::vector<int> &keys = keysOfCode[effectiveCode(key)];
        keys.insert(keyIdx == current ? keys.begin() : keys.end(), keyIdx);
    }
    for (const auto &[code, row] : m_mKeys)
        row->setKeys(current, known ? keysOfCode[code] : row->keys());
}

void GameControllerAdvWid::slotDelCurrKeyToGamepad(ushort iKeyId)
{
    for (const auto &[code, row] : m_mKeys) {
        if (code != iKeyId)
            row->delCurrKey();
    }
}

void GameControllerAdvWid::slotSearch(QString strText)
{
    for (const auto &[code, row] : m_mKeys)
        row->search(strText);
}

bool GameControllerAdvWid::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    // A row that gets more keys grows without a resize of the page.
    if (event->type() == QEvent::LayoutRequest)
        placeCentreRows();
    return handled;
}

void GameControllerAdvWid::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeCentreRows();
}

void GameControllerAdvWid::placeCentreRows()
{
    const QRect bumper = m_mKeys.at(LeftBumper)->geometry();
    const int x =
        int(bumper.x() + bumper.width() + CentreOfPicture * m_ui->m_backgroundLab->width());
    int y = bumper.y();
    for (const ushort code : {470, 468, 469}) {
        m_mKeys.at(code)->setGeometry(x, y, bumper.width(), bumper.height());
        y += bumper.height() + 1;
    }
}
