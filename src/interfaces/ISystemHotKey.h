#pragma once

#include "interfaces/ServiceInstance.h"

class QWidget;

/// Keeps system hot keys from swallowing what the user presses while a key is captured. The
/// capturing widget grabs the keyboard by itself. Interface thread only.
class VANTRIX_EXPORT ISystemHotKey : public ServiceInstance<ISystemHotKey>
{
public:
    /// Delivers keys to `widget`, which stays its owner's, until `stopKeyCapture`; the page calls
    /// that before the widget goes. A second start takes the place of the first.
    virtual void startKeyCapture(QWidget *widget) = 0;
    /// Ends it; nothing without a start.
    virtual void stopKeyCapture() = 0;

protected:
    ~ISystemHotKey() = default;
};
