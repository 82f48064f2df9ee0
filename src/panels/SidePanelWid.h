#pragma once

#include <QWidget>

class SidePanelWid : public QWidget
{
    Q_OBJECT

public:
    explicit SidePanelWid(QWidget *parent = nullptr);

    void setCurrentPanel(int keyboardType);

signals:
    void sigPanelChanged(int inputType, int keyboardType);
};
