#include "dualaction/DualActionAdvWid.h"

#include "dualaction/DualActionType.h"
#include "ui_DualActionAdvUi.h"

#include <QButtonGroup>
#include <QScopedValueRollback>

DualActionAdvWid::DualActionAdvWid(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::DualActionAdvUi), m_types(new QButtonGroup(this))
{
    m_ui->setupUi(this);
    m_ui->m_action1->setActionNo(1);
    m_ui->m_action2->setActionNo(2);
    m_ui->m_action1->resetAction();
    m_ui->m_action2->resetAction();
    m_ui->m_distanceWid->setDistance(50);
    buildTypes();

    connect(m_types, &QButtonGroup::idClicked, this, &DualActionAdvWid::slotUpdateActions);
    connect(m_ui->m_distanceWid, &DualActionDistWid::sigDualActionDepthChanged, this,
            &DualActionAdvWid::slotUpdateActions);
    for (const ActionBtn *action : {m_ui->m_action1, m_ui->m_action2})
        connect(action, &ActionBtn::sigUpdateActions, this, &DualActionAdvWid::slotUpdateActions);
    connect(m_ui->m_action1, &ActionBtn::clicked, m_ui->m_action2, &ActionBtn::slotHideMenu);
    connect(m_ui->m_action2, &ActionBtn::clicked, m_ui->m_action1, &ActionBtn::slotHideMenu);
}

DualActionAdvWid::~DualActionAdvWid() = default;

void DualActionAdvWid::buildTypes()
{
    m_ui->m_typeLayout->addStretch();
    for (const int type : {DualType::Normal, DualType::Toggle, DualType::Combine}) {
        auto *button = new DualActionType(type, this);
        m_types->addButton(button, type);
        m_ui->m_typeLayout->addWidget(button);
        m_ui->m_typeLayout->addStretch();
    }
    m_types->button(DualType::Normal)->setChecked(true);
}

void DualActionAdvWid::slotSearch(QString strText)
{
    Q_UNUSED(strText)
}

void DualActionAdvWid::slotVantrixKeySelected(vantrix_key_mapping key)
{
    // The dialog shows each change to all its pages, this one included: the echo makes the second
    // action usable and must leave alone what the user is just setting.
    if (m_reporting && key == record()) {
        m_ui->m_action2->setEnabled(isDualAction(key));
        return;
    }
    m_ui->m_action1->resetAction();
    m_ui->m_action2->resetAction();
    m_ui->m_distanceWid->setDistance(50);
    if (!isDualAction(key))
        return;
    m_ui->m_action1->setKeyCode(key.digital.firstAction);
    m_ui->m_action2->setKeyCode(key.digital.secondAction);
    m_ui->m_action2->setEnabled(true);
    m_ui->m_distanceWid->setDistance(key.digital.depth);
    if (QAbstractButton *const type = m_types->button(key.digital.dualType))
        type->setChecked(true);
}

void DualActionAdvWid::slotUpdateActions()
{
    const QScopedValueRollback<bool> reporting(m_reporting, true);
    emit sigDualActionChanged(record());
}

vantrix_key_mapping DualActionAdvWid::record() const
{
    vantrix_key_mapping key;
    key.type = KeyType::DualAction;
    key.digital.firstAction = m_ui->m_action1->keyCode();
    key.digital.secondAction = m_ui->m_action2->keyCode();
    key.digital.dualType = quint8(m_types->checkedId());
    key.digital.depth = quint8(m_ui->m_distanceWid->distance());
    return key;
}
