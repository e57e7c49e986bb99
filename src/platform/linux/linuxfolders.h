#pragma once

#include "platform/folders.h"

namespace platform {

/// Folders through POSIX calls. Without state.
class LinuxFolders final : public Folders
{
public:
    Result<std::unique_ptr<AnchoredFolder>> anchor(const EntryPath &folder) override;
    Status forEachEntry(const EntryPath &folder, const Visitor &visit) override;
    Result<std::shared_ptr<FolderHandle>> hold(const QString &folder) override;
    Result<std::shared_ptr<FolderHandle>> holdIn(const std::shared_ptr<FolderHandle> &parent,
                                                 const QString &name, Mounts mounts) override;
    Status create(const QString &folder) override;
    Status removeEmpty(const EntryPath &folder) override;
    /// Stays on the file system of the folder. A file system mounted inside keeps its contents, and its mount
    /// point counts as a failure (SharingViolation). Any depth, with a few descriptors.
    Status removeTree(const QString &folder) override;
    Result<FolderOwner> owner(const QString &folder) override;
    Status hide(const QString &path) override;
    Result<SpaceInfo> space(const QString &path) override;
    bool mayDistrustProgram(quint32) override { return false; }
    Result<int> snapshots(const QString &) override { return Status{NotSupported, 0, "snapshots"}; }
};

} // namespace platform
