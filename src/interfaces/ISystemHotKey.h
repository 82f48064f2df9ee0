#pragma once

#include "interfaces/ServiceInstance.h"

class QWidget;

/// Keeps system hot keys from swallowing what the user presses while a key is captured. The
/// capturing widget grabs the keyboard by itself. Interface thread only.
class VANTRIX_EXPORT ISystemHotKey : public ServiceInstance<ISystemHotKey>
{
public:
    /// Delivers keys to `widget` until `stopKeyCapture`.
    virtual void startKeyCapture(QWidget *widget) = 0;
    virtual void stopKeyCapture() = 0;

protected:
    ~ISystemHotKey() = default;
};
