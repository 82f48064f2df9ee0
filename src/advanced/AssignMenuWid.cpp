#include "advanced/AssignMenuWid.h"

AssignMenuWid::AssignMenuWid(QWidget *parent) : QWidget(parent) {}

void AssignMenuWid::setMode(int) {}

void AssignMenuWid::setProfile(int, int) {}

void AssignMenuWid::addKeyAssignMacro(std::string) {}

void AssignMenuWid::delKeyAssignMacro(std::string) {}

void AssignMenuWid::renameKeyAssignMacro(std::string, std::string) {}

void AssignMenuWid::slotKeySelectionChanged(int) {}

void AssignMenuWid::slotVantrixKeySelected(vantrix_key_mapping) {}

void AssignMenuWid::slotUpdateVantrixKey(vantrix_key_mapping) {}

void AssignMenuWid::slotApplicationSelected(int, int) {}

void AssignMenuWid::slotApplicationAdvSelected(QString) {}

void AssignMenuWid::slotDualActionSelected(vantrix_key_mapping) {}

void AssignMenuWid::slotMacroSelected(QString) {}
