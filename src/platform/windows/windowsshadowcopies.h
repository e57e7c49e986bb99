#pragma once

#include "platform/status.h"

#include <string>

namespace platform {

/// The number of volume shadow copies of the volume that holds the encoded path. Fails with NotSupported
/// where the file system cannot have any, and with another error when the path or a copy cannot be queried.
Result<int> shadowCopiesOf(const std::wstring &path);

} // namespace platform
