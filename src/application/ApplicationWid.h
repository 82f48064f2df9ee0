#pragma once

#include <QWidget>

class ApplicationWid : public QWidget
{
    Q_OBJECT

public:
    explicit ApplicationWid(QWidget *parent = nullptr);

    void resetPanel();

signals:
    void sigApplicationAssigned(int iAppType, int iFuncId);
    void sigApplicationSelected(int iAppType, int iFuncId);
    void sigVantrixKeySelected();
};
