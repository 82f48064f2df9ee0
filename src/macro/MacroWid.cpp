#include "macro/MacroWid.h"

MacroWid::MacroWid(QWidget *parent) : QWidget(parent) {}

void MacroWid::addMacro(std::string) {}

void MacroWid::delMacro(std::string) {}

void MacroWid::renameMacro(std::string, std::string) {}

void MacroWid::refreshAssigns() {}

void MacroWid::setOwnerProfile(int, int) {}

void MacroWid::clearSelection() {}

void MacroWid::slotMacroSelected(QString) {}
