#include "panels/BackLightWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelRecords.h"
#include "toolkit/NarrowText.h"
#include "vocabulary/KeyCodes.h"

#include "ui_BackLightUi.h"

#include <QPushButton>

namespace {

class BackLightBtn : public QPushButton
{
public:
    BackLightBtn(const QString &name, QWidget *parent) : QPushButton(name, parent)
    {
        setStyleSheet(functionSheet(InputType::Backlight));
        ensurePolished();
        // The sheet has no padding, and the longest names would touch their borders.
        m_sizeHint = QPushButton::sizeHint() + QSize(12, 0);
        keepTextNarrow(this, 4);
    }

    /// That of the name at its usual width, also when it is narrowed.
    QSize sizeHint() const override { return m_sizeHint; }
    QSize minimumSizeHint() const override { return {1, m_sizeHint.height()}; }

private:
    QSize m_sizeHint;
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
}

BackLightWid::~BackLightWid() = default;

void BackLightWid::slotKeyClicked(QAbstractButton *button)
{
    emit sigBackLightChanged(recordOfClick(group(), button));
}
