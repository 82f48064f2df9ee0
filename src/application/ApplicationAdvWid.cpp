#include "application/ApplicationAdvWid.h"

ApplicationAdvWid::ApplicationAdvWid(QWidget *parent) : QWidget(parent) {}
