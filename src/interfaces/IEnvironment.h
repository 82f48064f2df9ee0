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
    /// The top-level window, whose geometry the dialog of advanced mode takes each time it opens;
    /// while it is null, the dialog has the place and size that the window system gives it.
    virtual QWindow *getMainWindow() = 0;
    /// The widget that parents overlays and dialogs, usually the window that holds the page. The
    /// page asks for it in its constructor, so set it first: a page that was made while it was null
    /// has a dialog without a parent. While it is null, picking an action of a dual action does
    /// nothing, since the overlay has nothing to lie over.
    virtual QWidget *getMainWidget() = 0;

protected:
    ~IEnvironment() = default;
};
