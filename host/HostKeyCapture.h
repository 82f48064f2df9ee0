#pragma once

#include "interfaces/ISystemHotKey.h"

#include <QPointer>
#include <QWidget>

/// The key capture service of the reference host. The capturing widget grabs the keyboard by
/// itself; this service knows who captures, and asks the window system, where it can, to leave
/// system hot keys alone meanwhile. Interface thread.
class HostKeyCapture final : public ISystemHotKey
{
public:
    void startKeyCapture(QWidget *widget) override;
    void stopKeyCapture() override;

    /// The widget that captures; null for none.
    QWidget *capturing() const { return m_widget; }

private:
    QPointer<QWidget> m_widget;
};
