#include "toolkit/FixedBtn.h"

#include <QEvent>

FixedBtn::FixedBtn(QWidget *parent) : QPushButton(parent) {}

void FixedBtn::fixSize(int width, int height)
{
    m_fixedWidth = width;
    m_fixedHeight = height;
    ensurePolished();
    applySize();
}

void FixedBtn::changeEvent(QEvent *event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        applySize();
}

void FixedBtn::applySize()
{
    if (m_fixedWidth >= 0)
        setFixedWidth(m_fixedWidth);
    if (m_fixedHeight >= 0)
        setFixedHeight(m_fixedHeight);
}
