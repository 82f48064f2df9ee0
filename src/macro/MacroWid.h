#pragma once

#include <QWidget>

#include <map>
#include <string>

class MacroWid : public QWidget
{
    Q_OBJECT

public:
    explicit MacroWid(QWidget *parent = nullptr);

    void addMacro(std::string name);
    void delMacro(std::string name);
    void renameMacro(std::string oldName, std::string newName);
    void refreshAssigns();
    void setOwnerProfile(int iOwner, int iProfile);
    void clearSelection();

public slots:
    void slotMacroSelected(QString strMacroNo);

signals:
    void sigCreateMacro();
    void sigAssignedKey(QString strMacroNo, QString strMacroName, std::map<uchar, uchar> assign);
    void sigMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                          int iShortcutId = -1);
    void sigRenameMacro(QString strMacroNo, QString strMacroName);
};
