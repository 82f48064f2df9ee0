#pragma once

#include "interfaces/VantrixExport.h"

/// The one installed object of a service. The page asks for it with `T::Instance()`; the host
/// installs it with `T::setInstance()` before it makes a page, keeps owning it, and removes it
/// with null after the last page is gone and the global thread pool is idle.
///
/// Any thread may ask; installing and removing belongs to the interface thread.
template <class T>
class VANTRIX_EXPORT ServiceInstance
{
public:
    /// The installed service. Asking with nothing installed is a programming error: it ends the
    /// program with a message that names the service.
    static T *Instance();
    static void setInstance(T *service);
    static bool isInstalled();

protected:
    ~ServiceInstance() = default;
};
