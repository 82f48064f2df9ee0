#pragma once

#include "core/records.h"

#include <QWidget>

class KeyboardAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit KeyboardAdvWid(QWidget *parent = nullptr);

signals:
    void sigSearch(QString strText);
    void sigVantrixKeySelected(vantrix_key_mapping key);
    void sigKeyChanged(vantrix_key_mapping key);
};
