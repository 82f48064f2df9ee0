#pragma once

struct DeviceImage;

/// Where profiles are sent. The simulated device is one; a transport to a real one is another.
/// Interface thread.
class Device
{
public:
    virtual ~Device() = default;
    /// Takes a complete image in place of what it had of that profile; false if it did not arrive.
    virtual bool send(const DeviceImage &image) = 0;
};
