#include "platform/linux/linuxdevices.h"
#include "platform/linux/linuxfiles.h"
#include "platform/linux/linuxfolders.h"
#include "platform/linux/linuxsession.h"
#include "platform/nativeplatform.h"

namespace platform {

namespace {

class LinuxPlatform : public Platform
{
public:
    Files &files() override { return m_files; }
    Folders &folders() override { return m_folders; }
    Devices &devices() override { return m_devices; }
    Session &session() override { return m_session; }

private:
    LinuxFiles m_files;
    LinuxFolders m_folders;
    LinuxDevices m_devices;
    LinuxSession m_session;
};

} // namespace

std::unique_ptr<Platform> createNativePlatform()
{
    return std::make_unique<LinuxPlatform>();
}

} // namespace platform
