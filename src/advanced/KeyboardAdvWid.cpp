#include "advanced/KeyboardAdvWid.h"

KeyboardAdvWid::KeyboardAdvWid(QWidget *parent) : QWidget(parent) {}
