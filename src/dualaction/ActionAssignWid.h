#pragma once

#include "core/records.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ActionAssignUi;
}

/// The darkened layer over the whole main widget, with a hole where the pad is, on which the
/// function of one action of a dual action is picked from the keyboard, mouse or media page.
///
/// One overlay serves both actions; it remembers for which it is open. It opens with
/// `openOverlay` and closes only with BACK or APPLY. While it is open on the keyboard page it
/// holds the keyboard, as KeyboardWid tells. It is a child of the main widget and may
/// be destroyed before its owner.
class ActionAssignWid : public QWidget
{
    Q_OBJECT

public:
    explicit ActionAssignWid(QWidget *parent = nullptr);
    ~ActionAssignWid() override;

    /// Opens for action 1 or 2 on the page of an InputType 0 to 2, with the action's title.
    void openOverlay(int actionNo, int inputType, QString strAction);
    /// Aims what is picked from now on at action 1 or 2, and shows its title.
    void setAction(int actionNo, const QString &strAction);
    /// Clears the check marks of the three pages.
    void resetOverlay();
    /// Hides the layer and lets the keyboard go, without a signal.
    void closeOverlay();

signals:
    /// A function was picked or, with code 255, taken back. Each pick is passed on at once.
    void sigDualActionChanged(int actionNo, vantrix_key_mapping key);
    void sigDualActionBack();
    void sigDualActionApply();

private slots:
    void slotDualActionChanged(vantrix_key_mapping key);
    void slotBack();
    void slotApply();

private:
    const std::unique_ptr<Ui::ActionAssignUi> m_ui;
    int m_actionNo = 0;
};
