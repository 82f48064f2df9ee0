#include "panels/PressoWid.h"

#include "ui_PressoUi.h"

#include <QButtonGroup>
#include <QSignalBlocker>

#include <algorithm>

PressoWid::PressoWid(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::PressoUi>()), m_group(new QButtonGroup(this))
{
    m_ui->setupUi(this);
    m_group->addButton(m_ui->m_on, 1);
    m_group->addButton(m_ui->m_off, 0);
    connect(m_group, &QButtonGroup::idClicked, this, &PressoWid::sigPressoEnableChanged);
}

PressoWid::~PressoWid() = default;

void PressoWid::setPressoEnable(bool bEnable)
{
    const QSignalBlocker blocker(m_group);
    m_group->button(bEnable ? 1 : 0)->setChecked(true);
}

void PressoWid::resizeEvent(QResizeEvent *)
{
    const int height = this->height() / 5;
    QFont text = font();
    text.setPixelSize(std::clamp(height - 3, 1, 12));
    for (FixedBtn *const button : {m_ui->m_on, m_ui->m_off}) {
        button->setFont(text);
        button->fixSize(-1, height);
    }
}
