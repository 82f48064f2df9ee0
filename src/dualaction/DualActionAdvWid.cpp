#include "dualaction/DualActionAdvWid.h"

DualActionAdvWid::DualActionAdvWid(QWidget *parent) : QWidget(parent) {}

void DualActionAdvWid::slotSearch(QString) {}

void DualActionAdvWid::slotVantrixKeySelected(vantrix_key_mapping) {}
