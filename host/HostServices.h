#pragma once

#include "host/HostEnvironment.h"
#include "host/HostKeyCapture.h"
#include "host/HostLocations.h"
#include "host/HostParse.h"
#include "host/ProfileStore.h"
#include "host/SimulatedDevice.h"

/// All services of the reference host, installed for as long as it lives.
///
/// Make it after the QApplication and before the first page, destroy it after the last page. Its
/// end waits for the global thread pool, since the page's background work asks for the store's
/// application paths. Before the first page, too, tell the environment its language and main
/// widget: `environment().setLanguage(...)`, `environment().setMainWidget(&window)`.
class HostServices
{
public:
    /// Installs everything, with its files in `dataFolder`; the user's standard data folder when
    /// that is empty.
    explicit HostServices(const QString &dataFolder = QString());
    ~HostServices();
    HostServices(const HostServices &) = delete;
    HostServices &operator=(const HostServices &) = delete;

    /// All of them live as long as this.
    ProfileStore &store() { return m_store; }
    SimulatedDevice &device() { return m_device; }
    HostEnvironment &environment() { return m_environment; }
    HostKeyCapture &keyCapture() { return m_keyCapture; }
    HostParse &parse() { return m_parse; }
    HostLocations &locations() { return m_locations; }

private:
    HostLocations m_locations;
    ProfileStore m_store;
    SimulatedDevice m_device;
    HostEnvironment m_environment;
    HostKeyCapture m_keyCapture;
    HostParse m_parse;
};
