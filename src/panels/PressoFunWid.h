#pragma once

#include "core/records.h"

#include <QWidget>

class PressoFunWid : public QWidget
{
    Q_OBJECT

public:
    explicit PressoFunWid(QWidget *parent = nullptr);

    void clearChecked();

public slots:
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigPressoFunChanged(vantrix_key_mapping key);
};
