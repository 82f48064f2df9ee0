#include "interfaces/IEnvironment.h"
#include "interfaces/IParseVantrix.h"
#include "interfaces/ISystemHotKey.h"
#include "interfaces/IVantrixProfileCfg.h"

#include <atomic>

namespace {

template <class T>
std::atomic<T *> installed{nullptr};

// clang-format off
template <class T> constexpr const char *serviceName = nullptr;
template <> constexpr const char *serviceName<IVantrixProfileCfg> = "IVantrixProfileCfg";
template <> constexpr const char *serviceName<IParseVantrix> = "IParseVantrix";
template <> constexpr const char *serviceName<IEnvironment> = "IEnvironment";
template <> constexpr const char *serviceName<ISystemHotKey> = "ISystemHotKey";
// clang-format on

} // namespace

template <class T>
T *ServiceInstance<T>::Instance()
{
    T *service = installed<T>;
    if (!service)
        qFatal("%s::Instance(): no service is installed; call %s::setInstance() first",
               serviceName<T>, serviceName<T>);
    return service;
}

template <class T>
void ServiceInstance<T>::setInstance(T *service)
{
    installed<T> = service;
}

template <class T>
bool ServiceInstance<T>::isInstalled()
{
    return installed<T> != nullptr;
}

template class ServiceInstance<IVantrixProfileCfg>;
template class ServiceInstance<IParseVantrix>;
template class ServiceInstance<IEnvironment>;
template class ServiceInstance<ISystemHotKey>;
