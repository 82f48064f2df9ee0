#pragma once

#include "core/records.h"

#include <QWidget>

class MediaWid : public QWidget
{
    Q_OBJECT

public:
    explicit MediaWid(QWidget *parent = nullptr);

    void clearChecked();

public slots:
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigMediaChanged(vantrix_key_mapping key);
};
