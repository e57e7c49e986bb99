#include "platform/linux/linuxdevices.h"
#include "platform/linux/linuxfiles.h"
#include "platform/linux/linuxfolders.h"
#include "platform/linux/linuxsession.h"
#include "platform/nativeplatform.h"

namespace platform {

std::unique_ptr<Platform> createNativePlatform()
{
    return std::make_unique<BackendPlatform<LinuxFiles, LinuxFolders, LinuxDevices, LinuxSession>>();
}

} // namespace platform
