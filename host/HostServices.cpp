#include "host/HostServices.h"

#include "interfaces/CfgFile.h"

#include <QThreadPool>

HostServices::HostServices(const QString &dataFolder)
    : m_locations(dataFolder), m_store(m_locations.storeFile()), m_device(&m_store)
{
    IVantrixProfileCfg::setInstance(&m_store);
    IEnvironment::setInstance(&m_environment);
    ISystemHotKey::setInstance(&m_keyCapture);
    IParseVantrix::setInstance(&m_parse);
    m_locations.install(m_store);
    QObject::connect(&m_store, &ProfileStore::settingChanged, &m_store,
                     [this](const QString &name) {
                         if (name == HostLocations::hotKeysFolderKey())
                             m_locations.install(m_store);
                     });
}

HostServices::~HostServices()
{
    QThreadPool::globalInstance()->waitForDone();
    IVantrixProfileCfg::setInstance(nullptr);
    IEnvironment::setInstance(nullptr);
    ISystemHotKey::setInstance(nullptr);
    IParseVantrix::setInstance(nullptr);
    CfgFile::setLocations({});
}
