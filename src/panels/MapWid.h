#pragma once

#include "core/records.h"

#include <QWidget>

#include <map>
#include <string>

class MapWid : public QWidget
{
    Q_OBJECT

public:
    explicit MapWid(QWidget *parent = nullptr);

    void updateUi(int iOwner, int iProfile);
    void refreshAssigns();
    void slotAddKeyAssignMacro(std::string strMacroName);
    void slotDelKeyAssignMacro(std::string strMacroName);
    void slotRenameKeyAssignMacro(std::string strOldName, std::string strNewName);
    void setKeySelected(bool selected);
    void setCurrentInput(int input);
    void setCaptureEnabled(bool enabled);
    void setOverlayMask(const QRegion &keyBoardRegion);

public slots:
    void slotResetCurrKey();

signals:
    void sigVantrixKeyAssigned(vantrix_key_mapping key);
    void sigApplicationAssigned(int iAppType, int iFuncId);
    void sigGetVantrixMask(QWidget *mainWid);
    void sigDualActionDepthChanged(int iDepth);
    void sigDualActionAssigned(vantrix_key_mapping key);
    void sigDualActionBack();
    void sigDualActionApply();
    void sigCreateMacro();
    void sigAssignedKey(QString strMacroNo, QString strMacroName, std::map<uchar, uchar> assign);
    void sigMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                          int iShortcutId = -1);
    void sigRenameMacro(QString strMacroNo, QString strMacroName);
    void sigVantrixKeySelected(vantrix_key_mapping key);
    void sigApplicationSelected(int iAppType, int iFuncId);
    void sigDualActionSelected(int input1, int input2, vantrix_presso_digital key);
    void sigMacroSelected(QString strMacroNo);
};
