#pragma once

#include "toolkit/FixedBtn.h"

/// One key of the drawn keyboard: checkable, its legend drawn from the top.
class KeyBtn : public FixedBtn
{
    Q_OBJECT

public:
    explicit KeyBtn(QWidget *parent);

    /// Draws the legend as narrow as it takes to find room in the key's present width.
    void fitLegend();

protected:
    /// Takes every release, so that keys typed while the button has the focus don't reach the
    /// keyboard around it, which would take them for keys to assign.
    void keyReleaseEvent(QKeyEvent *event) override;
};
