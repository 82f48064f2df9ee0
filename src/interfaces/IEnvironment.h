#pragma once

#include "interfaces/ServiceInstance.h"

class QWidget;
class QWindow;

/// What the page must know of the application around it. Interface thread only.
class VANTRIX_EXPORT IEnvironment : public ServiceInstance<IEnvironment>
{
public:
    /// Index of the interface language, 0 to 14 as in `LanguageIndex`; it selects the legends of
    /// the keycaps.
    virtual int getLanguage() = 0;
    /// The top-level window, whose geometry a full-window dialog takes; null if there is none yet.
    virtual QWindow *getMainWindow() = 0;
    /// The widget that parents overlays and dialogs; null if there is none yet.
    virtual QWidget *getMainWidget() = 0;

protected:
    ~IEnvironment() = default;
};
