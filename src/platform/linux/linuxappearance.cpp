#include "platform/appearance.h"

namespace platform {

void keepLightFrames()
{}

bool hasHighContrast()
{
    return false;
}

} // namespace platform
