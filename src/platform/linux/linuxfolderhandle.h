#pragma once

#include "platform/entrypath.h"
#include "platform/folderhandle.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QByteArray>

#include <sys/stat.h>

#include <memory>

namespace platform {

// Whether what was found in a folder is mounted over its name there. A bind mount shares the device number of
// what it shows, and a btrfs subvolume has its own without being mounted: only kernels that do not tell
// mounts themselves are left to the device number. Pure.
bool isOnAnotherMount(const struct statx &folder, const struct statx &found);

// What has to be asked of statx for that.
extern const unsigned int MountMask;

// A folder held for lookups alone (O_PATH), which takes no permission to list it.
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

// Opened under the path, wherever links in it lead, and however long it is.
Result<std::shared_ptr<FolderHandle>> openHeld(const QString &path);
// PathNotFound for what is no folder itself.
Result<std::shared_ptr<FolderHandle>> openHeldIn(const LinuxFolderHandle &parent, const QString &name,
                                                 bool entersMounts);

// An entry as system calls take it: a name relative to a descriptor.
struct EntryAt
{
    int folder = -1;
    QByteArray name;
    const LinuxFolderHandle *held = nullptr;

    // NotSameDevice for what is mounted over the name in a held folder.
    Status refusalOf(const struct statx &found) const;
};

// Valid as long as the entry is. A held folder of another system's fails with InvalidParameter, and so does a
// name that is none.
Result<EntryAt> locate(const EntryPath &entry);

} // namespace platform
