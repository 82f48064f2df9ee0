#pragma once

#include "interfaces/VantrixExport.h"

#include <QButtonGroup>
#include <QPointer>

/// A group of checkable buttons of which at most one is checked, and a click on the checked one
/// unchecks it. Buttons stay owned by their parents.
///
/// Mouse, Space, Enter, `click()` and `animateClick()` count as clicks; setting the check state
/// from code does not.
///
/// By keyboard, Tab goes to the group's first visible button and then on behind the group; arrows
/// go from one button to the nearest one in their direction, without checking it.
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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followFocus(QWidget *now);
    QAbstractButton *nearest(int arrowKey) const;

    QPointer<QWidget> m_focused; ///< a widget, since a button may be losing its focus as it goes
};
