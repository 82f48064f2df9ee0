#include "macro/MacroAdvWid.h"

MacroAdvWid::MacroAdvWid(QWidget *parent) : QWidget(parent) {}

void MacroAdvWid::addMacro(std::string) {}

void MacroAdvWid::delMacro(std::string) {}

void MacroAdvWid::renameMacro(std::string, std::string) {}

void MacroAdvWid::selectMacro(QString) {}

void MacroAdvWid::clearMacros() {}

void MacroAdvWid::slotSearch(QString) {}

void MacroAdvWid::slotVantrixKeySelected(vantrix_key_mapping) {}
