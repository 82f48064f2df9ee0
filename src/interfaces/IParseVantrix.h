#pragma once

#include "interfaces/ServiceInstance.h"

/// Builds requests for the device. Interface thread only.
class VANTRIX_EXPORT IParseVantrix : public ServiceInstance<IParseVantrix>
{
public:
    /// Builds the request of the given id and leaves a pointer to it in `*request`, which starts
    /// as null. The page hands it on with `sigSdkRequest` without reading it; the service keeps
    /// owning it, and it must live until that signal's slots have returned. Null is allowed and is
    /// handed on as well. The page uses id 2, the reset.
    virtual void makeSdkRequest(int id, void **request) = 0;

protected:
    ~IParseVantrix() = default;
};
