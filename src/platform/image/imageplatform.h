#pragma once

#include "platform/forwarding.h"
#include "platform/image/imagedevices.h"
#include "platform/platform.h"

#include <memory>

namespace platform {

/// Adds image drives to another platform, or replaces its drives with them.
class ImagePlatform : public Platform
{
public:
    ImagePlatform(std::unique_ptr<Platform> base, const ImageDriveOptions &options);
    ~ImagePlatform() override;

    Files &files() override { return m_base->files(); }
    Folders &folders() override { return m_base->folders(); }
    Devices &devices() override { return m_devices; }
    Session &session() override { return *m_session; }

private:
    std::unique_ptr<Platform> m_base;
    ImageDevices m_devices;
    std::unique_ptr<Session> m_session;
};

} // namespace platform
