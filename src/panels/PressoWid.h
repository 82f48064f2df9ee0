#pragma once

#include <QWidget>

class PressoWid : public QWidget
{
    Q_OBJECT

public:
    explicit PressoWid(QWidget *parent = nullptr);

    void setPressoEnable(bool bEnable);

signals:
    void sigPressoEnableChanged(int enable);
};
