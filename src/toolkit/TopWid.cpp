#include "interfaces/TopWid.h"

TopWid::TopWid(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void TopWid::showEvent(QShowEvent *event)
{
    raise();
    QWidget::showEvent(event);
}
