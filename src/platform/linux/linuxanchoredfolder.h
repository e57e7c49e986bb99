#pragma once

#include "platform/anchoredfolder.h"
#include "platform/entrypath.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QByteArray>

namespace platform {

/// A folder by its descriptor.
class LinuxAnchoredFolder final : public AnchoredFolder
{
public:
    static Result<std::unique_ptr<AnchoredFolder>> open(const EntryPath &path);

    LinuxAnchoredFolder(FileDescriptor folder, const QString &path, bool isClaimed)
        : m_folder(std::move(folder))
        , m_path(path)
        , m_isClaimed(isClaimed)
    {}

    QString path() const override { return m_path; }
    bool isClaimed() const override { return m_isClaimed; }
    Result<QString> volumeIdentity() override;
    Result<SpaceInfo> space() override;
    Status forEachEntry(const Folders::Visitor &visit) override;
    Result<FileInfo> info(const QString &name) override;
    Result<std::unique_ptr<FileHandle>> createFile(const QString &name) override;
    Status removeFile(const QString &name) override;
    Result<std::unique_ptr<AnchoredFolder>> createFolder(const QString &name) override;
    Result<std::unique_ptr<AnchoredFolder>> openFolder(const QString &name) override;
    Status hide() override { return {}; }
    Status removeFolder(const QString &name) override;
    Status removeTree(const QString &name) override;
    Result<std::unique_ptr<VolumeJournal>> journal() override;

private:
    Status remove(const QString &name, int flags);

    FileDescriptor m_folder;
    QString m_path;
    bool m_isClaimed;
};

} // namespace platform
