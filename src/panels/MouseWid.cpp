#include "panels/MouseWid.h"

MouseWid::MouseWid(QWidget *parent) : QWidget(parent) {}

void MouseWid::clearChecked() {}

void MouseWid::slotVantrixKeySelected(vantrix_key_mapping) {}
