#pragma once

#include "core/records.h"

#include <QRegion>
#include <QWidget>

class DualActionWid : public QWidget
{
    Q_OBJECT

public:
    explicit DualActionWid(QWidget *parent = nullptr);

    void resetPanel();
    void setOverlayMask(QRegion keyBoardRegion);

public slots:
    void slotDualActionSelected(int input1, int input2, vantrix_presso_digital key);

signals:
    void sigGetVantrixMask(QWidget *mainWid);
    void sigDualActionDepthChanged(int iDepth);
    void sigDualActionChanged(vantrix_key_mapping key);
    void sigDualActionBack();
    void sigDualActionApply();
};
