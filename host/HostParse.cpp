#include "host/HostParse.h"

void HostParse::makeSdkRequest(int id, void **request)
{
    DeviceRequest &made = m_requests[id];
    made.id = id;
    *request = &made;
}

const DeviceRequest *HostParse::request(const void *data) const
{
    for (const auto &row : m_requests) {
        if (&row.second == data)
            return &row.second;
    }
    return nullptr;
}
