#pragma once

#include "platform/files.h"

#include <sys/stat.h>

namespace platform {

inline FileKind fileKindFromMode(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FileKind::Regular;
    case S_IFDIR:
        return FileKind::Folder;
    case S_IFLNK:
        return FileKind::Link;
    default:
        return FileKind::Special;
    }
}

} // namespace platform
