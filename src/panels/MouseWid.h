#pragma once

#include "core/records.h"

#include <QWidget>

class MouseWid : public QWidget
{
    Q_OBJECT

public:
    explicit MouseWid(QWidget *parent = nullptr);

    void clearChecked();

public slots:
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigMouseChanged(vantrix_key_mapping key);
};
