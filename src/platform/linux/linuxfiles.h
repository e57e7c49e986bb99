#pragma once

#include "platform/files.h"

namespace platform {

/// The entry of the name in an open folder, or of the path with AT_FDCWD.
Result<FileInfo> fileInfoAt(int folder, const char *name);

/// Files through POSIX calls. Without state.
class LinuxFiles final : public Files
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
    bool isStream(const QString &path) override;
    bool openStream(QFile &stream, QIODevice::OpenMode mode) override;
    bool isWrittenOut(const QFileDevice &file) override;
    int spareOpenFiles() override;
    Status clearReadOnly(const EntryPath &entry) override;
    Status rename(const EntryPath &from, const EntryPath &to) override;
    Status remove(const EntryPath &entry) override;
};

} // namespace platform
