#pragma once

#include "platform/folders.h"

namespace platform {

// Folders by way of Win32 calls. Without state.
class WindowsFolders final : public Folders
{
public:
    Result<std::unique_ptr<AnchoredFolder>> anchor(const QString &folder) override;
    Status forEachEntry(const EntryPath &folder, const Visitor &visit) override;
    Result<std::shared_ptr<FolderHandle>> hold(const QString &folder) override;
    Result<std::shared_ptr<FolderHandle>> holdIn(const std::shared_ptr<FolderHandle> &parent,
                                                 const QString &name, Mounts mounts) override;
    Status create(const QString &folder) override;
    // A link to a folder is refused with PathNotFound; Files::remove() is for those.
    Status removeEmpty(const EntryPath &folder) override;
    // Read-only entries too. A mounted volume inside loses its mount point and keeps its contents.
    Status removeTree(const QString &folder) override;
    Result<FolderOwner> owner(const QString &) override { return Status{NotSupported, 0, "folder owner"}; }
    Status hide(const QString &path) override;
    // For a file or link: of the volume on which it stands itself.
    Result<SpaceInfo> space(const QString &path) override;
    bool mayDistrustProgram(quint32 code) override { return code == AccessDenied || code == FileNotFound; }
    Result<int> snapshots(const QString &path) override;
};

} // namespace platform
