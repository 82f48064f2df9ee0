#pragma once

#include "interfaces/ISystemHotKey.h"

#include <QPointer>
#include <QWidget>

/// The key capture service of the reference host. The capturing widget grabs the keyboard by
/// itself, which is all that X11 and Wayland grant a program; this service knows who captures, so
/// that a shell can keep its own shortcuts out of the way. Interface thread.
class HostKeyCapture final : public QObject, public ISystemHotKey
{
    Q_OBJECT

public:
    void startKeyCapture(QWidget *widget) override;
    void stopKeyCapture() override;

    /// The widget that captures; null for none.
    QWidget *capturing() const { return m_widget; }

signals:
    /// Another widget captures, or none any more.
    void capturingChanged();

private:
    QPointer<QWidget> m_widget;
};
