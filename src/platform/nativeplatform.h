#pragma once

#include "platform/platform.h"

#include <memory>

namespace platform {

// The operating system's own platform, without image drives. Each backend's folder implements it.
std::unique_ptr<Platform> createNativePlatform();

} // namespace platform
