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

// Whether the kernel itself keeps O_DSYNC on the file system of an open file, and tells syncfs of lost
// writes. A file system in user space may take the flag and forget about it, and others are not known well
// enough.
bool isKnownToFlush(int file);

// Whether a kernel of this release tells syncfs of writes that were lost since its descriptor was opened.
// Pure.
bool tellsLostWrites(const char *release);

// What lies on one mount. A bind mount of the same file system is another one.
class LinuxDurabilityGroup final : public DurabilityGroup
{
public:
    static Result<std::shared_ptr<DurabilityGroup>> begin(const LinuxFolderHandle &folder);

    LinuxDurabilityGroup(FileDescriptor folder, quint64 mount)
        : m_mount(mount)
        , m_folder(std::move(folder))
    {}

    bool covers(const FolderHandle &folder) const override;
    // found: with MountMask.
    bool contains(const struct statx &found) const;
    // Whether an open file can be a member.
    bool admits(int file, const struct statx &found) const;

    // Leaves it to close() to bring the file to the medium; isWritten: bytes, not only its length. False when
    // the file has to do that itself. Any thread.
    bool take(int file, bool isWritten);

    Status close();

private:
    const quint64 m_mount;
    std::mutex m_mutex; // guards what follows
    FileDescriptor m_folder;
    FileDescriptor m_written; // one of the members
    bool m_isClosed = false;
};

} // namespace platform
