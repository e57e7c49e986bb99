#pragma once

#include "platform/platform.h"

#include <memory>

namespace platform {

/// The operating system's own platform, without image drives. Each backend's folder implements it.
std::unique_ptr<Platform> createNativePlatform();

/// Holds the four parts of a backend, which live as long as this object.
template <typename FilesPart, typename FoldersPart, typename DevicesPart, typename SessionPart>
class BackendPlatform final : public Platform
{
public:
    Files &files() override { return m_files; }
    Folders &folders() override { return m_folders; }
    Devices &devices() override { return m_devices; }
    Session &session() override { return m_session; }

private:
    FilesPart m_files;
    FoldersPart m_folders;
    DevicesPart m_devices;
    SessionPart m_session;
};

} // namespace platform
