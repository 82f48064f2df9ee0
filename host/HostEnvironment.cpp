#include "host/HostEnvironment.h"

#include "vocabulary/KeyLegends.h"

int HostEnvironment::getLanguage()
{
    return m_language;
}

void HostEnvironment::setLanguage(int language)
{
    if (language >= 0 && language < LanguageCount)
        m_language = language;
}

QWindow *HostEnvironment::getMainWindow()
{
    if (m_window || !m_widget)
        return m_window;
    return m_widget->window()->windowHandle();
}

void HostEnvironment::setMainWindow(QWindow *window)
{
    m_window = window;
}

QWidget *HostEnvironment::getMainWidget()
{
    return m_widget;
}

void HostEnvironment::setMainWidget(QWidget *widget)
{
    m_widget = widget;
}
