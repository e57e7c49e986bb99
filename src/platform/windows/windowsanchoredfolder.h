#pragma once

#include "platform/anchoredfolder.h"
#include "platform/windows/windowsfolderlisting.h"

#include <string>

namespace platform {

/// A folder that is held open. Until destruction neither it nor a folder above it can be renamed or deleted,
/// so its path keeps leading to it.
class WindowsAnchoredFolder final : public AnchoredFolder
{
public:
    static Result<std::unique_ptr<AnchoredFolder>> open(const QString &path);

    WindowsAnchoredFolder(HeldFolder held, const QString &path, bool isClaimed)
        : m_held(std::move(held))
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
    Status hide() override;
    Status removeFolder(const QString &name) override;
    Status removeTree(const QString &name) override;
    Result<std::unique_ptr<VolumeJournal>> journal() override { return Status{NotSupported, 0, "journal"}; }

private:
    /// The path of an entry.
    Result<QString> entry(const QString &name) const;

    HeldFolder m_held;
    QString m_path;
    bool m_isClaimed;
};

} // namespace platform
