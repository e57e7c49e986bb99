#pragma once

#include "platform/folders.h"

namespace platform {

/// Folders through Win32 calls. Stateless.
class WindowsFolders final : public Folders
{
public:
    Result<std::unique_ptr<AnchoredFolder>> anchor(const EntryPath &folder) override;
    Status forEachEntry(const EntryPath &folder, const Visitor &visit) override;
    Result<std::shared_ptr<FolderHandle>> hold(const QString &folder) override;
    Result<std::shared_ptr<FolderHandle>> holdIn(const std::shared_ptr<FolderHandle> &parent,
                                                 const QString &name, Mounts mounts) override;
    Status create(const QString &folder) override;
    /// Refuses a link to a folder with PathNotFound; Files::remove() removes those.
    Status removeEmpty(const EntryPath &folder) override;
    /// Removes read-only entries too. A volume mounted inside loses its mount point and keeps its content.
    Status removeTree(const QString &folder) override;
    Result<FolderOwner> owner(const QString &) override { return Status{NotSupported, 0, "folder owner"}; }
    Status hide(const QString &path) override;
    /// The space of the volume on which a file or link itself stands.
    Result<SpaceInfo> space(const QString &path) override;
    bool mayDistrustProgram(quint32 code) override { return code == AccessDenied || code == FileNotFound; }
    Result<int> snapshots(const QString &path) override;
};

} // namespace platform
