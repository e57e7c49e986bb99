#include "platform/nativeplatform.h"
#include "platform/windows/windowsdevices.h"
#include "platform/windows/windowsfiles.h"
#include "platform/windows/windowsfolders.h"
#include "platform/windows/windowssession.h"

namespace platform {

std::unique_ptr<Platform> createNativePlatform()
{
    return std::make_unique<BackendPlatform<WindowsFiles, WindowsFolders, WindowsDevices, WindowsSession>>();
}

} // namespace platform
