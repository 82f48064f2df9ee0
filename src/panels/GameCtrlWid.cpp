#include "panels/GameCtrlWid.h"

GameCtrlWid::GameCtrlWid(QWidget *parent) : QWidget(parent) {}

void GameCtrlWid::clearChecked() {}

void GameCtrlWid::setPadMode(bool) {}

void GameCtrlWid::slotVantrixKeySelected(vantrix_key_mapping) {}
