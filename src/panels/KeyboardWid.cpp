#include "panels/KeyboardWid.h"

KeyboardWid::KeyboardWid(QWidget *parent) : QWidget(parent) {}

void KeyboardWid::clearChecked() {}

void KeyboardWid::setKeyCapture(bool) {}

void KeyboardWid::slotVantrixKeySelected(vantrix_key_mapping) {}
