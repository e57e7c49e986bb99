#include "platform/linux/linuxfolderhandle.h"

#include "platform/filenames.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfileid.h"

#include <fcntl.h>
#include <linux/limits.h>

#include <cstdio>
#include <utility>

namespace platform {

namespace {

constexpr int HoldFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;

FileDescriptor openFolder(int above, const char *name, int flags)
{
    return FileDescriptor(
        uninterrupted([&] { return fileCalls().openat(above, name, HoldFlags | flags, 0); }));
}

// Opens the path in pieces, because the system refuses paths of PATH_MAX bytes or more.
FileDescriptor openLongPath(QByteArray path)
{
    constexpr qsizetype Longest = PATH_MAX - 1;
    FileDescriptor above;
    int start = AT_FDCWD;
    while (path.size() > Longest) {
        const qsizetype slash = path.lastIndexOf('/', Longest - 1);
        if (slash < 0) {
            errno = ENAMETOOLONG;
            return {};
        }
        FileDescriptor next = openFolder(start, path.left(slash + 1).constData(), 0);
        if (!next.isValid())
            return next;
        above = std::move(next);
        start = above.get();
        path.remove(0, slash + 1);
        while (path.startsWith('/'))
            path.remove(0, 1);
        if (path.isEmpty())
            path = ".";
    }
    return openFolder(start, path.constData(), 0);
}

Result<struct statx> describe(int folder)
{
    struct statx found = {};
    if (fileCalls().statx(folder, "", AT_EMPTY_PATH, STATX_TYPE | FileIdMask | MountMask, &found) != 0)
        return statusFromErrno(errno, "statx");
    return found;
}

bool isOneName(const QByteArray &name)
{
    return name != "." && name != ".." && !name.contains('/');
}

} // namespace

#ifdef STATX_MNT_ID
const unsigned int MountMask = STATX_MNT_ID;
#else
const unsigned int MountMask = 0;
#endif

bool isOnAnotherMount(const struct statx &folder, const struct statx &found)
{
#ifdef STATX_MNT_ID
    if (folder.stx_mask & found.stx_mask & STATX_MNT_ID)
        return folder.stx_mnt_id != found.stx_mnt_id;
#endif
    if (found.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT)
        return (found.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
    return folder.stx_dev_major != found.stx_dev_major || folder.stx_dev_minor != found.stx_dev_minor;
}

LinuxFolderHandle::LinuxFolderHandle(const QString &path, FileDescriptor folder, const struct statx &found)
    : FolderHandle(path)
    , m_folder(std::move(folder))
    , m_found(found)
    , m_id(fileIdOf(m_folder.get()))
{}

Result<std::shared_ptr<FolderHandle>> openHeld(const QString &path)
{
    const Result<QByteArray> name = encodePath(path);
    if (!name)
        return name.status();
    FileDescriptor folder = openLongPath(name.value());
    if (!folder.isValid())
        return statusFromErrno(errno, "openat");
    const Result<struct statx> found = describe(folder.get());
    if (!found)
        return found.status();
    return std::shared_ptr<FolderHandle>(
        std::make_shared<LinuxFolderHandle>(path, std::move(folder), found.value()));
}

Result<std::shared_ptr<FolderHandle>> openHeldIn(const LinuxFolderHandle &parent, const QString &name,
                                                 bool entersMounts)
{
    const Result<QByteArray> bytes = encodePath(name);
    if (!bytes)
        return bytes.status();
    if (bytes.value().isEmpty() || !isOneName(bytes.value()))
        return Status{InvalidParameter, 0, "openat"};
    FileDescriptor folder = openFolder(parent.descriptor(), bytes.value().constData(), O_NOFOLLOW);
    if (!folder.isValid())
        return statusFromErrno(errno == ELOOP ? ENOTDIR : errno, "openat");
    const Result<struct statx> found = describe(folder.get());
    if (!found)
        return found.status();
    if (!entersMounts && parent.isMounted(found.value()))
        return statusFromErrno(EXDEV, "openat");
    return std::shared_ptr<FolderHandle>(std::make_shared<LinuxFolderHandle>(
        pathInFolder(parent.path(), name), std::move(folder), found.value()));
}

Status EntryAt::refusalOf(const struct statx &found) const
{
    return held && held->isMounted(found) ? statusFromErrno(EXDEV, "statx") : Status{};
}

Result<EntryAt> locate(const EntryPath &entry)
{
    const Result<QByteArray> name = encodePath(entry.name());
    if (!name)
        return name.status();
    if (!entry.folder())
        return EntryAt{AT_FDCWD, name.value(), nullptr};
    const auto *const held = dynamic_cast<const LinuxFolderHandle *>(entry.folder());
    if (!held || !isOneName(name.value()))
        return Status{InvalidParameter, 0, "path"};
    return EntryAt{held->descriptor(), name.value().isEmpty() ? QByteArray(".") : name.value(), held};
}

} // namespace platform
