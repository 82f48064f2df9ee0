#pragma once

#include "core/records.h"

#include <QWidget>

#include <vector>

class AdvAssignWid : public QWidget
{
    Q_OBJECT

public:
    explicit AdvAssignWid(QWidget *parent = nullptr);

    void setKeys(QString strTitle, const std::vector<ushort> &lsKeys);

public slots:
    void slotSearch(QString strText);
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigKeyChanged(vantrix_key_mapping key);
};
