#pragma once

#include "platform/devices.h"
#include "platform/platform.h"

// A platform with devices only. Any other request ends the test.
class DevicePlatform : public platform::Platform
{
public:
    explicit DevicePlatform(platform::Devices &devices)
        : m_devices(devices)
    {}
    platform::Files &files() override { qFatal("no files in this test"); }
    platform::Folders &folders() override { qFatal("no folders in this test"); }
    platform::Devices &devices() override { return m_devices; }
    platform::Session &session() override { qFatal("no session in this test"); }

private:
    platform::Devices &m_devices;
};
