#include "panels/Keyboard.h"

#include "interfaces/ButtonGroupEx.h"
#include "interfaces/ISystemHotKey.h"
#include "interfaces/Modal.h"
#include "panels/KeyBtn.h"
#include "platform/NativeKey.h"
#include "toolkit/FixedBtn.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyLegends.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr int BlockSpacing = 12;
constexpr int KeySpacing = 4;
constexpr int EscapeKey = 1;
constexpr int TabKey = 15;
constexpr int EnterKey = 28;
constexpr int LogoFiller = 0; ///< in the rows of the main block
constexpr double TallKey = 2.3;
constexpr double WideKey = 1.25;

constexpr std::array<QSize, KeyboardLayout::Count> DesignSizes = {{
    QSize(818, 177), // ANSI
    QSize(832, 181), // ISO
    QSize(814, 181), // BR
    QSize(855, 181), // JP
}};

/// Width and height of a key in units, by KeyboardLayout. Keys without a row are squares.
struct KeyFactors
{
    int scanCode;
    std::array<double, KeyboardLayout::Count> width;
    std::array<double, KeyboardLayout::Count> height;
};

// clang-format off
constexpr std::array<KeyFactors, 20> Factors = {{
    // key,  widths in ANSI, ISO, BR and JP,           heights
    { 15, {{1.7,     1.7,     1.7,     1.7    }}, {{1,       1,       1,       1      }}},
    { 58, {{1.95,    1.95,    1.95,    1.95   }}, {{1,       1,       1,       1      }}},
    { 42, {{2.7,     WideKey, WideKey, 2.7    }}, {{1,       1,       1,       1      }}},
    { 14, {{TallKey, TallKey, TallKey, 1      }}, {{1,       1,       1,       1      }}},
    { 43, {{1.7,     1,       1,       1      }}, {{1,       1,       1,       1      }}},
    { 28, {{2.65,    WideKey, WideKey, WideKey}}, {{1,       TallKey, TallKey, TallKey}}},
    { 54, {{3.2,     3.2,     1.9,     1.9    }}, {{1,       1,       1,       1      }}},
    { 29, {{WideKey, WideKey, WideKey, WideKey}}, {{1,       1,       1,       1      }}},
    {347, {{WideKey, WideKey, WideKey, WideKey}}, {{1,       1,       1,       1      }}},
    { 56, {{WideKey, WideKey, WideKey, WideKey}}, {{1,       1,       1,       1      }}},
    {312, {{WideKey, WideKey, WideKey, WideKey}}, {{1,       1,       1,       1      }}},
    {285, {{WideKey, WideKey, WideKey, WideKey}}, {{1,       1,       1,       1      }}},
    {348, {{WideKey, WideKey, WideKey, WideKey}}, {{1,       1,       1,       1      }}},
    {123, {{WideKey, WideKey, WideKey, WideKey}}, {{1,       1,       1,       1      }}},
    {121, {{WideKey, WideKey, WideKey, WideKey}}, {{1,       1,       1,       1      }}},
    {112, {{WideKey, WideKey, WideKey, WideKey}}, {{1,       1,       1,       1      }}},
    { 57, {{8,       8,       8,       5.6    }}, {{1,       1,       1,       1      }}},
    { 82, {{TallKey, TallKey, TallKey, TallKey}}, {{1,       1,       1,       1      }}},
    { 78, {{1,       1,       1,       1      }}, {{TallKey, TallKey, 1,       TallKey}}},
    {284, {{1,       1,       1,       1      }}, {{TallKey, TallKey, TallKey, TallKey}}},
}};

struct Cell
{
    int scanCode;
    int row;
    int column;
    int rowSpan = 1;
    int columnSpan = 1;
};

constexpr std::array<Cell, 13> NavigationCells = {{
    { 84, 0, 0}, { 70, 0, 1}, { 69, 0, 2},
    {338, 1, 0}, {327, 1, 1}, {329, 1, 2},
    {339, 2, 0}, {335, 2, 1}, {337, 2, 2},
                 {328, 4, 1},
    {331, 5, 0}, {336, 5, 1}, {333, 5, 2},
}};

/// All but the plus key and what stands below it.
constexpr std::array<Cell, 16> KeypadCells = {{
    {325, 1, 0}, {309, 1, 1}, { 55, 1, 2}, { 74, 1, 3},
    { 71, 2, 0}, { 72, 2, 1}, { 73, 2, 2},
    { 75, 3, 0}, { 76, 3, 1}, { 77, 3, 2},
    { 79, 4, 0}, { 80, 4, 1}, { 81, 4, 2}, {284, 4, 3, 2, 1},
    { 82, 5, 0, 1, 2},        { 83, 5, 2},
}};
constexpr std::array<Cell, 1> TallPlus = {{{78, 2, 3, 2, 1}}};
constexpr std::array<Cell, 2> PlusAndComma = {{{78, 2, 3}, {126, 3, 3}}};
// clang-format on

const KeyFactors *factorsOf(int scanCode)
{
    const auto row = std::find_if(Factors.begin(), Factors.end(), [scanCode](const KeyFactors &f) {
        return f.scanCode == scanCode;
    });
    return row == Factors.end() ? nullptr : &*row;
}

QSize sizeOfKey(int scanCode, int layout, int unit)
{
    if (scanCode == LogoFiller)
        return {int(unit * WideKey), unit};
    const KeyFactors *const factors = factorsOf(scanCode);
    if (!factors)
        return {unit, unit};
    const auto column = std::size_t(layout);
    return {int(unit * factors->width[column]), int(unit * factors->height[column])};
}

int unitOfHeight(int height)
{
    return height * 14 / 111;
}

int fontSizeOfUnit(int unit)
{
    return std::max(1, unit / 3);
}

/// F1, F5 and F9 stand apart from the key before them.
bool startsGroup(int scanCode)
{
    return scanCode == 59 || scanCode == 63 || scanCode == 67;
}

bool hasTallEnter(int layout)
{
    return layout != KeyboardLayout::Ansi;
}

/// A layout inside a layout, with the spacing between keys.
template <typename Layout>
Layout *spacedLayout(const char *name)
{
    auto *const layout = new Layout;
    layout->setObjectName(QLatin1String(name));
    layout->setSpacing(KeySpacing);
    return layout;
}

void levelRows(QGridLayout *grid)
{
    for (int row = 0; row < grid->rowCount(); ++row)
        grid->setRowStretch(row, 1);
}

} // namespace

Keyboard::Keyboard(int layout, int language, QWidget *parent)
    : QWidget(parent), m_layout(layout), m_group(new ButtonGroupEx(this)),
      m_navigationFiller(makeFiller(QStringLiteral("key_0"))),
      m_keypadFiller(makeFiller(QStringLiteral("key_1"))),
      m_logo(makeFiller(QStringLiteral("key_2")))
{
    resize(DesignSizes[std::size_t(layout)]);
    m_logo->setStyleSheet(QStringLiteral(
        "background:transparent;border:1px solid white;border-radius:2px;min-height:1px;"));
    m_logo->setIcon(QIcon(QStringLiteral(":/VantrixMap/logo.png")));

    auto *const blocks = new QHBoxLayout(this);
    blocks->setObjectName(QStringLiteral("horizontalLayout_2"));
    blocks->setSizeConstraint(QLayout::SetNoConstraint);
    blocks->setSpacing(BlockSpacing);
    blocks->setContentsMargins(9, 6, blocks->contentsMargins().right(), 6);
    buildMainBlock();
    buildNavigation();
    buildKeypad();
    blocks->setStretch(0, 15);
    blocks->setStretch(1, 3);
    blocks->setStretch(2, 4);
    fillGroup(language);

    connect(m_group, &ButtonGroupEx::sigButtonClicked, this, &Keyboard::slotKeyClicked);
    connect(Modal::instance(), &Modal::opening, this, [this] {
        ++m_modalCount;
        updateGrab();
    });
    connect(Modal::instance(), &Modal::closed, this, [this] {
        m_modalCount = std::max(0, m_modalCount - 1);
        updateGrab();
    });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                m_inactive = state != Qt::ApplicationActive;
                updateGrab();
            });
}

Keyboard::~Keyboard()
{
    setKeyCapture(false);
}

void Keyboard::buildMainBlock()
{
    auto *const rows = spacedLayout<QVBoxLayout>("verticalLayout");
    static_cast<QBoxLayout *>(layout())->addLayout(rows);
    auto scanRows = mainBlockRows(m_layout);
    if (!hasTallEnter(m_layout)) {
        for (const auto &row : scanRows)
            addRow(rows, row);
        return;
    }

    auto *const besideEnter = spacedLayout<QHBoxLayout>("horizontalLayout_6");
    auto *const tabAndCaps = spacedLayout<QVBoxLayout>("verticalLayout_2");
    besideEnter->addLayout(tabAndCaps);
    for (auto &row : scanRows) {
        const bool isCaps = row.back() == EnterKey;
        if (isCaps)
            row.pop_back();
        const bool isTab = row.front() == TabKey;
        addRow(isTab || isCaps ? tabAndCaps : rows, row);
        if (isCaps) {
            besideEnter->addWidget(makeKey(EnterKey), 0, Qt::AlignVCenter);
            rows->addLayout(besideEnter, 2);
        }
    }
}

void Keyboard::addRow(QBoxLayout *rows, const std::vector<int> &scanCodes)
{
    auto *const row = new QHBoxLayout;
    row->setSpacing(KeySpacing);
    // Rows of one height stand level with those of the other blocks.
    rows->addLayout(row, 1);
    const bool isFunctionRow = scanCodes.front() == EscapeKey;
    for (const int scanCode : scanCodes) {
        // What a row is narrower than the widest one goes between its keys, or its groups.
        if (row->count() > 0 && (!isFunctionRow || startsGroup(scanCode)))
            row->addStretch();
        if (scanCode == LogoFiller)
            row->addWidget(m_logo, 0, Qt::AlignVCenter);
        else
            row->addWidget(makeKey(scanCode), 0, Qt::AlignVCenter);
    }
}

void Keyboard::buildNavigation()
{
    auto *const grid = spacedLayout<QGridLayout>("gridLayout_2");
    static_cast<QBoxLayout *>(layout())->addLayout(grid);
    for (const Cell &cell : NavigationCells)
        addCell(grid, cell.scanCode, cell.row, cell.column);
    grid->addWidget(m_navigationFiller, 3, 1, Qt::AlignVCenter);
    levelRows(grid);
}

void Keyboard::buildKeypad()
{
    auto *const grid = spacedLayout<QGridLayout>("gridLayout");
    static_cast<QBoxLayout *>(layout())->addLayout(grid);
    const auto addAll = [this, grid](const auto &cells) {
        for (const Cell &cell : cells)
            addCell(grid, cell.scanCode, cell.row, cell.column, cell.rowSpan, cell.columnSpan);
    };
    grid->addWidget(m_keypadFiller, 0, 1, Qt::AlignVCenter);
    addAll(KeypadCells);
    if (m_layout == KeyboardLayout::Br)
        addAll(PlusAndComma);
    else
        addAll(TallPlus);
    levelRows(grid);
}

void Keyboard::addCell(QGridLayout *grid, int scanCode, int row, int column, int rowSpan,
                       int columnSpan)
{
    grid->addWidget(makeKey(scanCode), row, column, rowSpan, columnSpan, Qt::AlignVCenter);
}

FixedBtn *Keyboard::makeFiller(const QString &name)
{
    auto *const filler = new FixedBtn(this);
    filler->setObjectName(name);
    filler->setFocusPolicy(Qt::NoFocus);
    filler->setAttribute(Qt::WA_TransparentForMouseEvents);
    filler->setStyleSheet(QStringLiteral("background:transparent;border:none;"));
    return filler;
}

KeyBtn *Keyboard::makeKey(int scanCode)
{
    auto *const key = new KeyBtn(this);
    key->setObjectName(QStringLiteral("btn_%1").arg(scanCode));
    m_keys.emplace(scanCode, key);
    return key;
}

void Keyboard::fillGroup(int language)
{
    for (const auto &[scanCode, key] : m_keys) {
        key->setText(keyLegend(scanCode, language));
        m_group->addButton(key, scanCode);
    }
}

void Keyboard::selectKeyCode(ushort code)
{
    const int scanCode = scanOfKeyCode(code);
    if (m_group->button(scanCode))
        m_group->setButtonChecked(scanCode, true);
    else
        m_group->setNoneButtonChecked();
}

void Keyboard::clearChecked()
{
    m_group->setNoneButtonChecked();
}

void Keyboard::slotKeyClicked(QAbstractButton *pKey)
{
    const auto &codes = ScanToKeyCode();
    const auto row = codes.find(m_group->id(pKey));
    const bool hasCode = pKey->isChecked() && row != codes.end();
    emit sigKeyChanged(hasCode ? plainKey(row->second) : clearedKey());
}

void Keyboard::setKeyCapture(bool on)
{
    m_capture = on;
    updateGrab();
}

void Keyboard::updateGrab()
{
    const bool on = m_capture && m_modalCount == 0 && !m_hidden && !m_inactive;
    // Another widget may have taken the grab over since.
    const bool isHeld = m_grabbed && (!on || keyboardGrabber() == this);
    if (on == isHeld)
        return;
    m_grabbed = on;
    // What another page's keyboard has taken over is not this one's to let go of.
    auto *const grabber = qobject_cast<Keyboard *>(keyboardGrabber());
    if (!on && grabber && grabber != this)
        return;
    if (on)
        grabKeyboard();
    else
        releaseKeyboard();
    if (!ISystemHotKey::isInstalled())
        return;
    if (on)
        ISystemHotKey::Instance()->startKeyCapture(this);
    else
        ISystemHotKey::Instance()->stopKeyCapture();
}

bool Keyboard::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (!m_grabbed)
            break;
        event->accept();
        return true;
    case QEvent::KeyPress:
        // Tab would move the focus before keyPressEvent sees it.
        if (!m_grabbed)
            break;
        keyPressEvent(static_cast<QKeyEvent *>(event));
        return true;
    case QEvent::Show:
    case QEvent::Hide:
        m_hidden = event->type() == QEvent::Hide;
        updateGrab();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void Keyboard::keyPressEvent(QKeyEvent *event)
{
    const quint32 scanCode = nativeKeyOf(event).scanCode;
    // X11 makes a held key a chain of releases and presses, each pair with one time stamp, and
    // the repeat flag is missing whenever the press was not yet in the queue with the release.
    if (event->timestamp() != 0 && event->timestamp() == m_releasedAt && scanCode == m_releasedScan)
        m_repeatingScan = scanCode;
    else if (!event->isAutoRepeat())
        m_repeatingScan = 0;
    event->setAccepted(m_grabbed);
}

bool Keyboard::isRepeat(const QKeyEvent *release, quint32 scanCode)
{
    if (release->isAutoRepeat())
        return true;
    m_releasedScan = scanCode;
    m_releasedAt = release->timestamp();
    const bool isHeld = scanCode != 0 && scanCode == m_repeatingScan;
    m_repeatingScan = 0;
    return isHeld;
}

void Keyboard::keyReleaseEvent(QKeyEvent *event)
{
    if (!isVisible())
        return;
    event->accept();
    const quint32 scanCode = nativeKeyOf(event).scanCode;
    if (isRepeat(event, scanCode))
        return;
    QAbstractButton *const key = m_group->button(int(scanCode));
    if (!key)
        return;
    m_group->setButtonChecked(int(scanCode), !key->isChecked());
    slotKeyClicked(key);
}

void Keyboard::resizeEvent(QResizeEvent *)
{
    const int unit = unitOfHeight(height());
    if (unit == m_unit)
        return;
    m_unit = unit;
    setStyleSheet(QStringLiteral("font-size:%1px;}").arg(fontSizeOfUnit(unit)));
    fitKeys(unit);
    layout()->activate();
}

void Keyboard::fitKeys(int unit)
{
    for (const auto &[scanCode, key] : m_keys) {
        const QSize size = sizeOfKey(scanCode, m_layout, unit);
        key->fixSize(size.width(), size.height());
        key->fitLegend();
    }
    m_navigationFiller->fixSize(unit, unit);
    m_keypadFiller->fixSize(unit, unit);
    const QSize logo = sizeOfKey(LogoFiller, m_layout, unit);
    m_logo->fixSize(logo.width(), logo.height());
    m_logo->setIconSize({unit * 3 / 4, unit * 3 / 4});
}

int Keyboard::widthOfUnit(int unit) const
{
    int mainWidth = 0;
    for (const auto &row : mainBlockRows(m_layout)) {
        int width = KeySpacing * (int(row.size()) - 1);
        for (const int scanCode : row)
            width += sizeOfKey(scanCode, m_layout, unit).width();
        mainWidth = std::max(mainWidth, width);
    }
    const int navigation = 3 * unit + 2 * KeySpacing;
    // The keypad's zero may be wider than its two columns.
    const int twoColumns = std::max(2 * unit + KeySpacing, int(unit * TallKey));
    const int keypad = twoColumns + 2 * unit + 2 * KeySpacing;
    const QMargins margins = layout()->contentsMargins();
    return margins.left() + mainWidth + navigation + keypad + 2 * BlockSpacing + margins.right();
}

int Keyboard::widthAtHeight(int height) const
{
    return widthOfUnit(unitOfHeight(height));
}

int Keyboard::heightThatFits(int width) const
{
    int unit = 1;
    while (widthOfUnit(unit + 1) <= width)
        ++unit;
    return ((unit + 1) * 111 - 1) / 14;
}

QSize Keyboard::minimumSizeHint() const
{
    // The keys follow the height, so their fixed sizes must not keep the keyboard from shrinking.
    return {1, 1};
}
