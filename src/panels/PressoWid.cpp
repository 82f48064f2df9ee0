#include "panels/PressoWid.h"

PressoWid::PressoWid(QWidget *parent) : QWidget(parent) {}

void PressoWid::setPressoEnable(bool) {}
