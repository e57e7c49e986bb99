#pragma once

#include "platform/files.h"

struct statx;

namespace platform {

/// The statx fields that identify a file.
extern const unsigned int FileIdMask;

FileId fileIdFrom(const struct statx &file);

/// For an open file; NotSupported where the file system may renumber its files.
Result<FileId> fileIdOf(int file);

} // namespace platform
