#pragma once

#include "core/records.h"

#include <QWidget>

class BackLightWid : public QWidget
{
    Q_OBJECT

public:
    explicit BackLightWid(QWidget *parent = nullptr);

    void clearChecked();

public slots:
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigBackLightChanged(vantrix_key_mapping key);
};
