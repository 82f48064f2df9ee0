#pragma once

#include "core/records.h"

#include <QWidget>

#include <string>

class AssignMenuWid : public QWidget
{
    Q_OBJECT

public:
    explicit AssignMenuWid(QWidget *parent = nullptr);

    void setMode(int iMode);
    void setProfile(int iOwner, int iProfile);
    void addKeyAssignMacro(std::string strMacroName);
    void delKeyAssignMacro(std::string strMacroName);
    void renameKeyAssignMacro(std::string strOldName, std::string strNewName);

public slots:
    void slotKeySelectionChanged(int iKeyIdx);
    void slotVantrixKeySelected(vantrix_key_mapping key);
    void slotUpdateVantrixKey(vantrix_key_mapping key);
    void slotApplicationSelected(int iAppType, int iFuncId);
    void slotApplicationAdvSelected(QString strKeyName);
    void slotDualActionSelected(vantrix_key_mapping key);
    void slotMacroSelected(QString strMacroNo);

signals:
    void sigVantrixKeyAssigned(vantrix_key_mapping key);
    void sigCreateMacro();
    void sigMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                          int iShortcutId);
    void sigApplicationAdvAssigned(QString strHotKey, QString strKeyName);
};
