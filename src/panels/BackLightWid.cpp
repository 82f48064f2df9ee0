#include "panels/BackLightWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelRecords.h"
#include "vocabulary/KeyCodes.h"

#include "ui_BackLightUi.h"

#include <QPushButton>

namespace {

class BackLightBtn : public QPushButton
{
public:
    using QPushButton::QPushButton;
};

} // namespace

BackLightWid::BackLightWid(QWidget *parent)
    : FunctionWid(parent), m_ui(std::make_unique<Ui::BackLightUi>())
{
    m_ui->setupUi(this);
    int number = 0;
    for (const ushort code : InputKeyLists().at(InputType::Backlight)) {
        auto *const button = new BackLightBtn(tr(keyFunctionName(code)), m_ui->widget);
        button->setStyleSheet(functionSheet(InputType::Backlight));
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
