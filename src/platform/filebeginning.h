#pragma once

#include "platform/status.h"

#include <QByteArray>
#include <QString>

namespace platform {

// The first bytes of a regular file, at most limit; fewer when it ends before. Read through the system's
// cache, for the small files that tell about others. Paths as in Files; links are not followed and nothing
// but a regular file is read (CannotAccessFile, AccessDenied for a folder), also no pipe waited for.
// Windows: CreateFileW with FILE_FLAG_OPEN_REPARSE_POINT and all sharing. Linux: O_NOFOLLOW | O_NONBLOCK.
Result<QByteArray> readBeginning(const QString &path, qint64 limit);

} // namespace platform
