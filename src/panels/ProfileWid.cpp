#include "panels/ProfileWid.h"

ProfileWid::ProfileWid(QWidget *parent) : QWidget(parent) {}

void ProfileWid::clearChecked() {}

void ProfileWid::slotVantrixKeySelected(vantrix_key_mapping) {}
