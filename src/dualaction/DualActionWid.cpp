#include "dualaction/DualActionWid.h"

DualActionWid::DualActionWid(QWidget *parent) : QWidget(parent) {}

void DualActionWid::resetPanel() {}

void DualActionWid::setOverlayMask(QRegion) {}

void DualActionWid::slotDualActionSelected(int, int, vantrix_presso_digital) {}
