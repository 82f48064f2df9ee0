#pragma once

#include "interfaces/VantrixExport.h"

#include <QButtonGroup>

/// A group of checkable buttons of which at most one is checked, and a click on the checked one
/// unchecks it. Buttons stay owned by their parents.
///
/// Mouse, Space, `click()` and `animateClick()` count as clicks; setting the check state from code
/// does not.
class VANTRIX_EXPORT ButtonGroupEx : public QButtonGroup
{
    Q_OBJECT

public:
    explicit ButtonGroupEx(QObject *parent = nullptr);

    /// Unchecks all buttons.
    void setNoneButtonChecked();
    /// Sets the check state of one button; an unknown id changes nothing.
    void setButtonChecked(int id, bool bChecked);

signals:
    /// On each click, after the check state has changed.
    void sigButtonClicked(QAbstractButton *button);
};
