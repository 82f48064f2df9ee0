#include "advanced/AdvAssignWid.h"

AdvAssignWid::AdvAssignWid(QWidget *parent) : QWidget(parent) {}

void AdvAssignWid::setKeys(QString, const std::vector<ushort> &) {}

void AdvAssignWid::slotSearch(QString) {}

void AdvAssignWid::slotVantrixKeySelected(vantrix_key_mapping) {}
