#include "platform/nativeplatform.h"
#include "platform/windows/windowsdevices.h"
#include "platform/windows/windowsfiles.h"
#include "platform/windows/windowsfolders.h"
#include "platform/windows/windowssession.h"

namespace platform {

namespace {

class WindowsPlatform : public Platform
{
public:
    Files &files() override { return m_files; }
    Folders &folders() override { return m_folders; }
    Devices &devices() override { return m_devices; }
    Session &session() override { return m_session; }

private:
    WindowsFiles m_files;
    WindowsFolders m_folders;
    WindowsDevices m_devices;
    WindowsSession m_session;
};

} // namespace

std::unique_ptr<Platform> createNativePlatform()
{
    return std::make_unique<WindowsPlatform>();
}

} // namespace platform
