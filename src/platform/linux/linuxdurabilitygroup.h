#pragma once

#include "platform/durabilitygroup.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxfolderhandle.h"
#include "platform/status.h"

#include <QtGlobal>

#include <memory>
#include <mutex>

struct statx;

namespace platform {

/// Whether the kernel itself implements O_DSYNC for the file system of an open file, and reports lost writes
/// to syncfs. File systems in user space may ignore the flag, and for others it is not known well enough.
bool isKnownToFlush(int file);

/// Whether a kernel of this release reports to syncfs the writes that were lost since its descriptor was
/// opened. Pure.
bool tellsLostWrites(const char *release);

/// The files of one mount. A bind mount of the same file system is a different mount.
class LinuxDurabilityGroup final : public DurabilityGroup
{
public:
    static Result<std::shared_ptr<DurabilityGroup>> begin(const LinuxFolderHandle &folder);

    LinuxDurabilityGroup(FileDescriptor folder, quint64 mount)
        : m_mount(mount)
        , m_folder(std::move(folder))
    {}

    bool covers(const FolderHandle &folder) const override;
    /// found: with MountMask.
    bool contains(const struct statx &found) const;
    /// Whether an open file can be a member.
    bool admits(int file, const struct statx &found) const;

    /// Defers the flush of the file to close(). isWritten: its bytes changed, not only its length. False when
    /// the file needs a flush of its own. Any thread.
    bool take(int file, bool isWritten);

    Status close();

private:
    const quint64 m_mount;
    std::mutex m_mutex; ///< guards the members below
    FileDescriptor m_folder;
    FileDescriptor m_written; ///< one of the written members
    bool m_isClosed = false;
};

} // namespace platform
