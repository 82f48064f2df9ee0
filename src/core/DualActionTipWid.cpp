#include "core/DualActionTipWid.h"

#include "vocabulary/Common.h"

#include "ui_DualActionTipUi.h"

namespace {

void setTip(QLabel *label, const QString &title, const QString &name)
{
    QString shown;
    Common::SpecialCharHandle(name, shown);
    label->setText(QStringLiteral("  ") + title + QStringLiteral(" - ") + shown);
}

} // namespace

DualActionTipWid::DualActionTipWid(QWidget *parent)
    : TopWid(parent), m_ui(std::make_unique<Ui::DualActionTipUi>())
{
    m_ui->setupUi(this);
}

DualActionTipWid::~DualActionTipWid() = default;

void DualActionTipWid::setTips(QString action1Name, QString action2Name)
{
    setTip(m_ui->m_action1, tr("ACTION1"), action1Name);
    setTip(m_ui->m_action2, tr("ACTION2"), action2Name);
}
