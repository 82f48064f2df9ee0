#pragma once

#include "interfaces/ServiceInstance.h"

/// Builds requests for the device.
class VANTRIX_EXPORT IParseVantrix : public ServiceInstance<IParseVantrix>
{
public:
    /// Builds the request of the given id and leaves a pointer to it in `*request`, which starts
    /// as null. The page hands it on with `sigSdkRequest` without reading it; the service keeps
    /// owning it. The page uses id 2, the reset.
    virtual void makeSdkRequest(int id, void **request) = 0;

protected:
    ~IParseVantrix() = default;
};
