#include "panels/PressoFunWid.h"

PressoFunWid::PressoFunWid(QWidget *parent) : QWidget(parent) {}

void PressoFunWid::clearChecked() {}

void PressoFunWid::slotVantrixKeySelected(vantrix_key_mapping) {}
