#pragma once

#include "interfaces/VantrixExport.h"

#include <QWidget>

/// A widget that stays above its siblings whenever it is shown, and lets the pointer through.
class VANTRIX_EXPORT TopWid : public QWidget
{
    Q_OBJECT

public:
    explicit TopWid(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
};
