#pragma once

#include "platform/files.h"

namespace platform {

// Files by way of Win32 calls. Without state.
class WindowsFiles final : public Files
{
public:
    Result<FileInfo> info(const EntryPath &entry) override;
    Result<std::unique_ptr<FileHandle>> openIn(const std::shared_ptr<DurabilityGroup> &group,
                                               const EntryPath &entry, OpenMode mode) override;
    Result<std::shared_ptr<DurabilityGroup>> beginGroup(const EntryPath &folder) override;
    Status closeGroup(DurabilityGroup &group) override;
    Result<ContentPlace> contentPlace(const EntryPath &entry) override;
    Result<QList<NamedStream>> namedStreams(const EntryPath &entry) override;
    Result<QByteArray> readBeginning(const QString &path, qint64 limit) override;
    Result<std::unique_ptr<QFileDevice>> openForAppending(const QString &path) override;
    Status clearReadOnly(const EntryPath &entry) override;
    Status rename(const EntryPath &from, const EntryPath &to) override;
    Status remove(const EntryPath &entry) override;
};

} // namespace platform
