#include "platform/linux/linuxtreeremoval.h"

#include "platform/linux/linuxdirectoryentries.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cstdio>

namespace platform {

Status TreeRemoval::run(const QByteArray &name)
{
    const Result<Description> parent = describe(m_current);
    if (!parent)
        return parent.status();
    m_identity = parent.value().identity;
    removeFolder(name);
    while (!m_levels.empty()) {
        std::vector<QByteArray> &folders = m_levels.back().folders;
        if (!folders.empty()) {
            const QByteArray next = std::move(folders.back());
            folders.pop_back();
            removeFolder(next);
        } else if (const Status left = leave(); !left) {
            note(left);
            break;
        }
    }
    return m_firstFailure;
}

Result<TreeRemoval::Description> TreeRemoval::describe(const FileDescriptor &folder) const
{
    struct statx file = {};
    if (fileCalls().statx(folder.get(), "", AT_EMPTY_PATH, STATX_INO, &file) != 0)
        return statusFromErrno(errno, "statx");
    Description description;
    description.identity = {::makedev(file.stx_dev_major, file.stx_dev_minor), file.stx_ino};
    // The device number is only the fallback for kernels that do not report mounts, because a bind mount
    // shares the device number of its source, and a btrfs subvolume has its own without being mounted.
    if (file.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT)
        description.isMountPoint = file.stx_attributes & STATX_ATTR_MOUNT_ROOT;
    else
        description.isMountPoint = description.identity.device != m_identity.device;
    return description;
}

// Tries to remove the folder without listing it, because most folders are empty by now and rmdir() refuses
// mount points.
void TreeRemoval::removeFolder(const QByteArray &name)
{
    if (fileCalls().unlinkat(m_current.get(), name.constData(), AT_REMOVEDIR) == 0 || isAbsentErrno(errno))
        return;
    const Status status = statusFromErrno(errno, "unlinkat");
    const bool isTop = m_levels.empty();
    if (status.native == ENOTDIR && !isTop) { // replaced by a link or file meanwhile
        if (fileCalls().unlinkat(m_current.get(), name.constData(), 0) != 0 && !isAbsentErrno(errno))
            note(statusFromErrno(errno, "unlinkat"));
    } else if (status.native == ENOTDIR || (status.native == EBUSY && !isTop)) {
        note(status);
    } else {
        enter(name, status);
    }
}

void TreeRemoval::enter(const QByteArray &name, const Status &whyNotRemoved)
{
    constexpr int Flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    FileDescriptor folder(
        uninterrupted([&] { return fileCalls().openat(m_current.get(), name.constData(), Flags, 0); }));
    if (!folder.isValid()) {
        if (!isAbsentErrno(errno))
            note(statusFromErrno(errno, "openat"));
        return;
    }
    const Result<Description> description = describe(folder);
    const bool isTop = m_levels.empty();
    if (!description || (description.value().isMountPoint && !isTop)) {
        note(description ? whyNotRemoved : description.status());
        return;
    }
    m_levels.push_back({name, m_identity, {}});
    m_current = std::move(folder);
    m_identity = description.value().identity;
    emptyCurrent(m_levels.back().folders);
}

// Removes all entries except folders. The listing is completed first, because file systems differ in how a
// deletion affects a listing in progress.
void TreeRemoval::emptyCurrent(std::vector<QByteArray> &folders)
{
    FileDescriptor listed(fileCalls().fcntl(m_current.get(), F_DUPFD_CLOEXEC, 0));
    if (!listed.isValid()) {
        note(statusFromErrno(errno, "fcntl"));
        return;
    }
    std::vector<QByteArray> others;
    const Status seen = readEntries(std::move(listed), [&](const char *name, FileKind kind) {
        (kind == FileKind::Folder ? folders : others).emplace_back(name);
        return true;
    });
    note(seen);
    for (const QByteArray &name : others) {
        if (fileCalls().unlinkat(m_current.get(), name.constData(), 0) == 0 || isAbsentErrno(errno))
            continue;
        note(statusFromErrno(errno, "unlinkat"));
    }
}

Status TreeRemoval::leave()
{
    FileDescriptor above(uninterrupted(
        [&] { return fileCalls().openat(m_current.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC, 0); }));
    if (!above.isValid())
        return statusFromErrno(errno, "openat");
    const Level level = std::move(m_levels.back());
    m_levels.pop_back();
    const Result<Description> description = describe(above);
    if (!description)
        return description.status();
    if (description.value().identity != level.parent)
        return {GeneralFailure, 0, "openat"};
    m_current = std::move(above);
    m_identity = level.parent;
    if (fileCalls().unlinkat(m_current.get(), level.name.constData(), AT_REMOVEDIR) != 0 &&
        !isAbsentErrno(errno))
        note(statusFromErrno(errno, "unlinkat"));
    return {};
}

void TreeRemoval::note(const Status &status)
{
    if (m_firstFailure)
        m_firstFailure = status;
}

} // namespace platform
