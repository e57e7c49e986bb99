#pragma once

#include "platform/files.h"

struct statx;

namespace platform {

// What has to be asked of statx for the identity of a file.
extern const unsigned int FileIdMask;

FileId fileIdFrom(const struct statx &file);

// Of an open file; NotSupported where numbers do not last.
Result<FileId> fileIdOf(int file);

} // namespace platform
