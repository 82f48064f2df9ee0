#include "panels/SidePanelWid.h"

SidePanelWid::SidePanelWid(QWidget *parent) : QWidget(parent) {}

void SidePanelWid::setCurrentPanel(int) {}
