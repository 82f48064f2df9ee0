#include "dualaction/ActionWid.h"

#include "core/records.h"
#include "ui_ActionUi.h"
#include "vocabulary/KeyCodes.h"

#include <QButtonGroup>

MenuBtn::MenuBtn(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setCheckable(true);
    setStyleSheet(QStringLiteral(
        "QPushButton{background:transparent;color:white;border:1px solid white;min-height:25px;"
        "font-size:11px;}:hover{background:rgba(255,255,255,50);}:checked{background:rgb(132,50,"
        "155)}"));
}

ActionWid::ActionWid(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::ActionUi), m_group(new QButtonGroup(this))
{
    m_ui->setupUi(this);
    buildMenu();
    m_ui->m_assignMenu->hide();
    connect(m_ui->m_action, &QPushButton::clicked, this, &ActionWid::slotActionClicked);
    connect(m_group, &QButtonGroup::idClicked, this, &ActionWid::slotActionAssigned);
}

ActionWid::~ActionWid() = default;

void ActionWid::buildMenu()
{
    for (const int input : {InputType::Keyboard, InputType::Mouse, InputType::Media}) {
        auto *button = new MenuBtn(inputTypeText(input), m_ui->m_assignMenu);
        m_group->addButton(button, input);
        m_ui->m_layout->addWidget(button);
    }
}

void ActionWid::setActionNo(int actionNo)
{
    m_actionNo = actionNo;
    m_ui->m_action->setText(tr("ACTION") + QStringLiteral("  ") + QString::number(actionNo));
}

QString ActionWid::title() const
{
    return m_ui->m_action->text();
}

void ActionWid::setInput(int inputType)
{
    QAbstractButton *const button = m_group->button(inputType);
    if (!button)
        return;
    m_ui->m_assignMenu->show();
    button->setChecked(true);
}

void ActionWid::setActionEnabled(bool enabled)
{
    m_ui->m_action->setEnabled(enabled);
    if (!enabled)
        m_ui->m_assignMenu->hide();
}

void ActionWid::resetAction()
{
    m_code = 0;
    m_ui->m_assignMenu->hide();
}

void ActionWid::slotActionClicked()
{
    m_ui->m_assignMenu->setVisible(m_ui->m_assignMenu->isHidden());
}

void ActionWid::slotActionAssigned(int inputType)
{
    emit sigActionAssigned(m_actionNo, inputType, title());
}
