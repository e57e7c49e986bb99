#pragma once

#include "platform/entrypath.h"
#include "platform/folderhandle.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QByteArray>

#include <sys/stat.h>

#include <memory>

namespace platform {

/// Whether the entry found in a folder is a mount point. The device number is only the fallback for kernels
/// that do not report mounts, because a bind mount shares the device number of its source, and a btrfs
/// subvolume has its own without being mounted. Pure.
bool isOnAnotherMount(const struct statx &folder, const struct statx &found);

/// The statx fields that isOnAnotherMount() needs.
extern const unsigned int MountMask;

/// A folder that is open for lookups only (O_PATH), which needs no permission to list it.
class LinuxFolderHandle final : public FolderHandle
{
public:
    LinuxFolderHandle(const QString &path, FileDescriptor folder, const struct statx &found);

    Result<FileId> id() override { return m_id; }

    int descriptor() const { return m_folder.get(); }
    bool isMounted(const struct statx &found) const { return isOnAnotherMount(m_found, found); }
    const struct statx &found() const { return m_found; }

private:
    const FileDescriptor m_folder;
    const struct statx m_found;
    const Result<FileId> m_id;
};

/// Opens the path, follows its links, and accepts a path of any length.
Result<std::shared_ptr<FolderHandle>> openHeld(const QString &path);
/// PathNotFound when the entry itself is no folder.
Result<std::shared_ptr<FolderHandle>> openHeldIn(const LinuxFolderHandle &parent, const QString &name,
                                                 bool entersMounts);

/// An entry in the form for system calls: a name relative to a descriptor.
struct EntryAt
{
    int folder = -1;
    QByteArray name;
    const LinuxFolderHandle *held = nullptr;

    /// NotSameDevice for a mount point in a held folder.
    Status refusalOf(const struct statx &found) const;
};

/// Valid as long as the entry is. InvalidParameter for a folder handle of another backend, and for an invalid
/// name.
Result<EntryAt> locate(const EntryPath &entry);

} // namespace platform
