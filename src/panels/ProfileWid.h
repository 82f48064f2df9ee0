#pragma once

#include "core/records.h"

#include <QWidget>

class ProfileWid : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileWid(QWidget *parent = nullptr);

    void clearChecked();

public slots:
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigProfileChanged(vantrix_key_mapping key);
};
