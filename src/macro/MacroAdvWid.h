#pragma once

#include "core/records.h"

#include <QWidget>

#include <string>

class MacroAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit MacroAdvWid(QWidget *parent = nullptr);

    void addMacro(std::string name);
    void delMacro(std::string name);
    void renameMacro(std::string oldName, std::string newName);
    void selectMacro(QString strMacroNo);
    void clearMacros();

public slots:
    void slotSearch(QString strText);
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigCreateMacro();
    void sigMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                          int iShortcutId);
};
