#include "application/ApplicationWid.h"

ApplicationWid::ApplicationWid(QWidget *parent) : QWidget(parent) {}

void ApplicationWid::resetPanel() {}
