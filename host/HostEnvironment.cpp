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
    return m_widget ? m_widget->window()->windowHandle() : nullptr;
}

QWidget *HostEnvironment::getMainWidget()
{
    return m_widget;
}

void HostEnvironment::setMainWidget(QWidget *widget)
{
    m_widget = widget;
}
