#include "dualaction/ActionAssignWid.h"

#include "toolkit/FocusRing.h"

#include "ui_ActionAssignUi.h"

ActionAssignWid::ActionAssignWid(QWidget *parent) : QWidget(parent), m_ui(new Ui::ActionAssignUi)
{
    m_ui->setupUi(this);
    new FocusRing(this);
    connect(m_ui->m_keyboard, &KeyboardWid::sigKeyChanged, this,
            &ActionAssignWid::slotDualActionChanged);
    connect(m_ui->m_mouse, &MouseWid::sigMouseChanged, this,
            &ActionAssignWid::slotDualActionChanged);
    connect(m_ui->m_media, &MediaWid::sigMediaChanged, this,
            &ActionAssignWid::slotDualActionChanged);
    connect(m_ui->m_back, &QPushButton::clicked, this, &ActionAssignWid::slotBack);
    connect(m_ui->m_apply, &QPushButton::clicked, this, &ActionAssignWid::slotApply);
}

ActionAssignWid::~ActionAssignWid() = default;

void ActionAssignWid::openOverlay(int actionNo, int inputType, QString strAction)
{
    setAction(actionNo, strAction);
    m_ui->m_map->setCurrentIndex(inputType);
    show();
    raise();
    m_ui->m_keyboard->setKeyCapture(inputType == InputType::Keyboard);
}

void ActionAssignWid::setAction(int actionNo, const QString &strAction)
{
    m_actionNo = actionNo;
    m_ui->m_action->setText(strAction);
}

void ActionAssignWid::resetOverlay()
{
    m_ui->m_keyboard->clearChecked();
    m_ui->m_mouse->clearChecked();
    m_ui->m_media->clearChecked();
}

void ActionAssignWid::closeOverlay()
{
    m_ui->m_keyboard->setKeyCapture(false);
    hide();
}

void ActionAssignWid::slotDualActionChanged(vantrix_key_mapping key)
{
    emit sigDualActionChanged(m_actionNo, key);
}

void ActionAssignWid::slotBack()
{
    m_ui->m_keyboard->setKeyCapture(false);
    emit sigDualActionBack();
    hide();
}

void ActionAssignWid::slotApply()
{
    m_ui->m_keyboard->setKeyCapture(false);
    emit sigDualActionApply();
    hide();
}
