#pragma once

#include "interfaces/IParseVantrix.h"

#include <map>

/// A request to the device, as the page hands it on with `sigSdkRequest`.
struct DeviceRequest
{
    static constexpr int Reset = 2;

    int id = 0; ///< Reset, or whatever was asked for
};

/// The request service of the reference host: makes a `DeviceRequest` for each id and keeps it.
/// `sigSdkRequest(5, data)` carries one with id `DeviceRequest::Reset`. Interface thread.
class HostParse final : public IParseVantrix
{
public:
    void makeSdkRequest(int id, void **request) override;

    /// The request behind the data of `sigSdkRequest`; null for data of another origin.
    const DeviceRequest *request(const void *data) const;

private:
    std::map<int, DeviceRequest> m_requests;
};
