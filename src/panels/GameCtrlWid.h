#pragma once

#include "core/records.h"

#include <QWidget>

class GameCtrlWid : public QWidget
{
    Q_OBJECT

public:
    explicit GameCtrlWid(QWidget *parent = nullptr);

    void clearChecked();
    void setPadMode(bool flag);

public slots:
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigGameChanged(vantrix_key_mapping key);
};
