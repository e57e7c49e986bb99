#include "platform/windows/windowshelddrive.h"

#include "platform/windows/windowsdiskattributes.h"

namespace platform {

WindowsHeldDrive::~WindowsHeldDrive()
{
    m_volumes.unlock();
    lookAnew(handle());
}

} // namespace platform
