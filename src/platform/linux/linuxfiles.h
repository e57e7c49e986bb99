#pragma once

#include "platform/files.h"

namespace platform {

// What stands under the name in an open folder, or under the path with AT_FDCWD.
Result<FileInfo> fileInfoAt(int folder, const char *name);

// Files by way of POSIX calls. Without state.
class LinuxFiles final : public Files
{
public:
    Result<FileInfo> info(const QString &path) override;
    Result<std::unique_ptr<FileHandle>> open(const QString &path, OpenMode mode) override;
    Result<ContentPlace> contentPlace(const QString &path) override;
    Result<QByteArray> readBeginning(const QString &path, qint64 limit) override;
    Status clearReadOnly(const QString &path) override;
    Status rename(const QString &from, const QString &to) override;
    Status remove(const QString &path) override;
};

} // namespace platform
