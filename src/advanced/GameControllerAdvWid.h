#pragma once

#include "core/records.h"

#include <QWidget>

class GameControllerAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit GameControllerAdvWid(QWidget *parent = nullptr);

    void setProfile(int iOwner, int iProfile);

public slots:
    void slotSearch(QString strText);

signals:
    void sigGameControllerChanged(vantrix_key_mapping key);
};
