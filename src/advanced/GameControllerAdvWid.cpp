#include "advanced/GameControllerAdvWid.h"

GameControllerAdvWid::GameControllerAdvWid(QWidget *parent) : QWidget(parent) {}

void GameControllerAdvWid::setProfile(int, int) {}

void GameControllerAdvWid::slotSearch(QString) {}
