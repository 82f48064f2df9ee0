#pragma once

#include <QPointer>
#include <QWidget>

/// A white line around whatever has the keyboard's focus below a widget, for buttons whose sheets
/// leave them no border to show it by. It appears once the user moves by keyboard, as native focus
/// marks do, lies over its neighbours and takes no part in clicks or layouts.
class FocusRing : public QWidget
{
    Q_OBJECT

public:
    /// Rings what has the focus below `root`, which owns the ring.
    explicit FocusRing(QWidget *root);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow(QWidget *focused);
    void place();

    QPointer<QWidget> m_focused;
};
