#include "panels/BackLightWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelRecords.h"
#include "toolkit/FixedBtn.h"
#include "toolkit/NarrowText.h"
#include "vocabulary/KeyCodes.h"

#include "ui_BackLightUi.h"

#include <algorithm>
#include <array>

namespace {

constexpr int Rows = 3;

/// The room that the entries leave of a low panel, in pixels.
struct Room
{
    int lowestPanel; ///< from which height on
    int outside;     ///< around the box
    int inside;      ///< around the title and the entries
    int between;     ///< between these
    bool title;
};

constexpr std::array<Room, 3> Rooms = {{
    {171, 9, 9, 6, true},
    {80, 0, 3, 2, true},
    {0, 0, 1, 1, false},
}};

class BackLightBtn : public FixedBtn
{
public:
    BackLightBtn(const QString &name, QWidget *parent) : FixedBtn(parent)
    {
        setText(name);
        setStyleSheet(functionSheet(InputType::Backlight));
        ensurePolished();
        // The sheet has no padding, and the longest names would touch their borders.
        m_sizeHint = QPushButton::sizeHint() + QSize(12, 0);
        m_fontHeight = fontInfo().pixelSize();
        keepTextNarrow(this, 4);
    }

    /// That of the name at its usual width, also when it is narrowed.
    QSize sizeHint() const override { return m_sizeHint; }
    QSize minimumSizeHint() const override { return {1, m_sizeHint.height()}; }

    /// As high as it likes to be, or lower with a smaller name.
    void fitInto(int height)
    {
        height = std::clamp(height, 1, m_sizeHint.height());
        QFont smaller = font();
        smaller.setPixelSize(std::clamp(height - 4, 1, m_fontHeight));
        setFont(smaller);
        fixSize(-1, height);
        narrowText(this, text(), width() - 4);
    }

private:
    QSize m_sizeHint;
    int m_fontHeight;
};

} // namespace

BackLightWid::BackLightWid(QWidget *parent)
    : FunctionWid(parent), m_ui(std::make_unique<Ui::BackLightUi>())
{
    m_ui->setupUi(this);
    int number = 0;
    for (const ushort code : InputKeyLists().at(InputType::Backlight)) {
        auto *const button = new BackLightBtn(keyFunctionText(code), m_ui->widget);
        addFunction(button, code);
        m_ui->m_layout->addWidget(button, number / 2 % 3, number % 2);
        ++number;
    }
    connect(group(), &ButtonGroupEx::sigButtonClicked, this, &BackLightWid::slotKeyClicked);
    m_minimumSizeHint = layout()->totalMinimumSize();
}

BackLightWid::~BackLightWid() = default;

QSize BackLightWid::minimumSizeHint() const
{
    // That of entries at their usual height, whatever they have been shrunk to.
    return m_minimumSizeHint;
}

void BackLightWid::resizeEvent(QResizeEvent *)
{
    const auto room = std::find_if(Rooms.begin(), Rooms.end(),
                                   [this](const Room &row) { return height() >= row.lowestPanel; });
    const auto frame = [](QLayout *layout, int margin) {
        layout->setContentsMargins(margin, margin, margin, margin);
    };
    frame(layout(), room->outside);
    frame(m_ui->verticalLayout, room->inside);
    m_ui->verticalLayout->setSpacing(room->between);
    m_ui->m_layout->setSpacing(room->between);
    m_ui->label->setVisible(room->title);
    const int title = room->title ? m_ui->label->sizeHint().height() + room->between : 0;
    const int left = height() - 2 * (room->outside + room->inside) - title;
    const auto buttons = group()->buttons();
    for (QAbstractButton *const button : buttons)
        static_cast<BackLightBtn *>(button)->fitInto((left + room->between) / Rows - room->between);
    // The box tells its panel what it needs now only once it is laid out anew itself.
    m_ui->verticalLayout->activate();
    layout()->activate();
}

void BackLightWid::slotKeyClicked(QAbstractButton *button)
{
    emit sigBackLightChanged(recordOfClick(group(), button));
}
