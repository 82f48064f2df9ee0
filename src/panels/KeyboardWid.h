#pragma once

#include "core/records.h"

#include <QWidget>

class KeyboardWid : public QWidget
{
    Q_OBJECT

public:
    explicit KeyboardWid(QWidget *parent = nullptr);

    void clearChecked();
    void setKeyCapture(bool on);

public slots:
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigKeyChanged(vantrix_key_mapping key);
};
