#pragma once

#include "platform/status.h"

#include <string>

namespace platform {

// How many volume shadow copies there are of the volume that holds the encoded path. NotSupported where its
// file system is none that they are made of; another failure when the path or a copy cannot be asked.
Result<int> shadowCopiesOf(const std::wstring &path);

} // namespace platform
