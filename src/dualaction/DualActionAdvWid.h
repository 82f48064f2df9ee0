#pragma once

#include "core/records.h"

#include <QWidget>

class DualActionAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit DualActionAdvWid(QWidget *parent = nullptr);

public slots:
    void slotSearch(QString strText);
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigDualActionChanged(vantrix_key_mapping key);
};
