#pragma once

#include "interfaces/IEnvironment.h"

#include <QPointer>
#include <QWidget>
#include <QWindow>

/// The environment service of the reference host: what the shell tells it. Interface thread.
class HostEnvironment final : public IEnvironment
{
public:
    /// The installed language; 0 (the first of `LanguageIndex`) until set. Numbers outside 0 to
    /// 14 are passed over.
    int getLanguage() override;
    void setLanguage(int language);

    /// The window of the main widget; null while there is none.
    QWindow *getMainWindow() override;
    QWidget *getMainWidget() override;
    /// Not owned; a widget that is gone is null again. Set it before the first page is made.
    void setMainWidget(QWidget *widget);

private:
    int m_language = 0;
    QPointer<QWidget> m_widget;
};
