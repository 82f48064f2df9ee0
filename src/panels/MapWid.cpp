#include "panels/MapWid.h"

MapWid::MapWid(QWidget *parent) : QWidget(parent) {}

void MapWid::updateUi(int, int) {}

void MapWid::refreshAssigns() {}

void MapWid::slotAddKeyAssignMacro(std::string) {}

void MapWid::slotDelKeyAssignMacro(std::string) {}

void MapWid::slotRenameKeyAssignMacro(std::string, std::string) {}

void MapWid::setKeySelected(bool) {}

void MapWid::setCurrentInput(int) {}

void MapWid::setCaptureEnabled(bool) {}

void MapWid::setOverlayMask(const QRegion &) {}

void MapWid::slotResetCurrKey() {}
