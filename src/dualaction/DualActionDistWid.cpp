#include "dualaction/DualActionDistWid.h"

#include "ui_DualActionDistUi.h"

#include <QSignalBlocker>

DualActionDistWid::DualActionDistWid(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::DualActionDistUi)
{
    m_ui->setupUi(this);
    connect(m_ui->m_distanceSlider, &QSlider::valueChanged, this,
            &DualActionDistWid::slotDistanceChanged);
}

DualActionDistWid::~DualActionDistWid() = default;

void DualActionDistWid::setDistance(int percent)
{
    showDistance(percent);
    const QSignalBlocker blocker(m_ui->m_distanceSlider);
    m_ui->m_distanceSlider->setValue(percent);
}

int DualActionDistWid::distance() const
{
    return m_ui->m_distanceSlider->value();
}

void DualActionDistWid::slotDistanceChanged(int iVal)
{
    showDistance(iVal);
    emit sigDualActionDepthChanged(iVal);
}

void DualActionDistWid::showDistance(int percent)
{
    m_ui->m_distanceLab->setText(QString::number(percent) + QLatin1Char('%'));
}
