#pragma once

#include "core/records.h"

#include <QPointer>
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
///
/// While it is open, what it covers cannot be worked by keyboard either: it takes the focus and
/// gives it back when it closes, Tab goes around among its own widgets and those in the hole, and
/// the shortcuts of the window rest.
class ActionAssignWid : public QWidget
{
    Q_OBJECT

public:
    explicit ActionAssignWid(QWidget *parent = nullptr);
    ~ActionAssignWid() override;

    /// Opens for action 1 or 2 on the page of an InputType 0 to 2, with the action's title.
    /// Without `capture` the keyboard page leaves the real keyboard alone, and its keys are chosen
    /// like those of the other pages.
    void openOverlay(int actionNo, int inputType, QString strAction, bool capture = true);
    /// Aims what is picked from now on at action 1 or 2, and shows its title.
    void setAction(int actionNo, const QString &strAction);
    /// Clears the check marks of the three pages.
    void resetOverlay();
    /// Hides the layer and lets the keyboard go, without a signal.
    void closeOverlay();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A function was picked or, with code 255, taken back. Each pick is passed on at once.
    void sigDualActionChanged(int actionNo, vantrix_key_mapping key);
    void sigDualActionBack();
    void sigDualActionApply();

protected:
    bool focusNextPrevChild(bool next) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void slotDualActionChanged(vantrix_key_mapping key);
    void slotBack();
    void slotApply();

private:
    bool holdsFocus() const;
    bool isStop(const QWidget *widget) const;
    QWidget *nextStop(QWidget *from, bool next) const;

    const std::unique_ptr<Ui::ActionAssignUi> m_ui;
    int m_actionNo = 0;
    QPointer<QWidget> m_focusedBefore; ///< had the focus when the overlay opened
};
