#include "panels/InputWid.h"

#include "core/records.h"
#include "interfaces/IVantrixProfileCfg.h"
#include "toolkit/NarrowText.h"
#include "toolkit/PanelStyle.h"
#include "vocabulary/KeyCodes.h"

#include "ui_InputUi.h"

#include <QButtonGroup>
#include <QPushButton>

namespace {

class InputBtn : public QPushButton
{
public:
    using QPushButton::QPushButton;

    QSize minimumSizeHint() const override
    {
        // A page at its first size has less room than the longest text takes with its padding.
        return {1, QPushButton::minimumSizeHint().height()};
    }
};

} // namespace

InputWid::InputWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::InputUi>()), m_group(new QButtonGroup(this))
{
    m_ui->setupUi(this);
    keepTextNarrow(m_ui->label);
    for (int input = InputType::Keyboard; input <= InputType::PresetMode; ++input) {
        auto *const button = new InputBtn(inputTypeText(input), m_ui->widget);
        button->setCheckable(true);
        button->setStyleSheet(selectorSheet());
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        keepTextNarrow(button, 4);
        m_ui->m_inputLayout->addWidget(button);
        m_group->addButton(button, input);
    }
    connect(m_group, &QButtonGroup::idClicked, this, &InputWid::slotInputChanged);
}

InputWid::~InputWid() = default;

void InputWid::setInput(int input)
{
    QAbstractButton *const button = m_group->button(input);
    if (!button)
        return;
    button->setChecked(true);
    emit sigInputChanged(input);
    IVantrixProfileCfg::Instance()->setInput(m_iOwner, m_iProfile, input);
}

void InputWid::updateUi(int iOwner, int iProfile)
{
    m_iOwner = iOwner;
    m_iProfile = iProfile;
    setInput(IVantrixProfileCfg::Instance()->getInput(iOwner, iProfile));
}

QMargins InputWid::innerMargins() const
{
    return m_ui->verticalLayout_4->contentsMargins();
}

void InputWid::slotInputChanged(int input)
{
    IVantrixProfileCfg *const store = IVantrixProfileCfg::Instance();
    if (store->getInput(m_iOwner, m_iProfile) == input)
        return;
    store->setInput(m_iOwner, m_iProfile, input);
    emit sigInputChanged(input);
}
