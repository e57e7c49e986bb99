#pragma once

#include "platform/files.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

// Number 0 where the file system has none. NTFS never gives the number of a deleted file again, so that no
// time of birth is needed, which anybody could change.
inline FileId fileIdFrom(const BY_HANDLE_FILE_INFORMATION &file)
{
    return {file.dwVolumeSerialNumber, quint64(file.nFileIndexHigh) << 32 | file.nFileIndexLow, 0};
}

} // namespace platform
