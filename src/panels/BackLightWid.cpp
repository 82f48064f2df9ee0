#include "panels/BackLightWid.h"

BackLightWid::BackLightWid(QWidget *parent) : QWidget(parent) {}

void BackLightWid::clearChecked() {}

void BackLightWid::slotVantrixKeySelected(vantrix_key_mapping) {}
