#include "ShellRoad.h"

#include "XGestures.h"

#include <QtTest>

void ShellRoad::start(int language, const QSize &size)
{
    m_services = std::make_unique<HostServices>(m_folder->path());
    m_services->environment().setLanguage(language);
    m_context = std::make_unique<ShellContext>(*m_services);
    m_window = std::make_unique<MainWindow>(*m_context);
    if (size.isValid())
        m_window->resize(size);
    m_window->move(0, 0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    XGestures::focus(m_window.get());
}

void ShellRoad::quit()
{
    m_window->close();
    m_window.reset();
    m_context.reset();
    m_services.reset();
}
