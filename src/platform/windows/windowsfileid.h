#pragma once

#include "platform/files.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

/// The identity of a file; number 0 where the file system has none. A time of birth is not needed, since NTFS
/// never reuses the number of a deleted file, and any program could change that time.
inline FileId fileIdFrom(const BY_HANDLE_FILE_INFORMATION &file)
{
    return {file.dwVolumeSerialNumber, quint64(file.nFileIndexHigh) << 32 | file.nFileIndexLow, 0};
}

} // namespace platform
