#include "platform/linux/linuxfolders.h"

#include "platform/filenames.h"
#include "platform/linux/linuxanchoredfolder.h"
#include "platform/linux/linuxdirectoryentries.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfolderhandle.h"
#include "platform/linux/linuxtreeremoval.h"
#include "platform/linux/linuxvolumespace.h"

#include <QList>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// The position of the slash before a path's last component, -1 without one. Several slashes in a row are one
// separator.
qsizetype endOfParent(const QByteArray &path, qsizetype length)
{
    qsizetype end = path.lastIndexOf('/', length - 1);
    while (end > 0 && path[end - 1] == '/')
        --end;
    return end;
}

Status makeFolder(const QByteArray &path)
{
    if (fileCalls().mkdirat(AT_FDCWD, path.constData(), S_IRWXU) == 0)
        return {};
    const Status status = statusFromErrno(errno, "mkdir");
    struct stat found = {};
    if (status.native == EEXIST &&
        fileCalls().fstatat(AT_FDCWD, path.constData(), &found, AT_SYMLINK_NOFOLLOW) == 0 &&
        S_ISDIR(found.st_mode))
        return {};
    return status;
}

} // namespace

Result<std::unique_ptr<AnchoredFolder>> LinuxFolders::anchor(const EntryPath &folder)
{
    return LinuxAnchoredFolder::open(folder);
}

Status LinuxFolders::forEachEntry(const EntryPath &folder, const Visitor &visit)
{
    const Result<EntryAt> at = locate(folder);
    if (!at)
        return at.status();
    constexpr int Flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    FileDescriptor opened(uninterrupted(
        [&] { return fileCalls().openat(at.value().folder, at.value().name.constData(), Flags, 0); }));
    if (!opened.isValid())
        return statusFromErrno(errno, "open");
    if (at.value().held) {
        struct statx found = {};
        if (fileCalls().statx(opened.get(), "", AT_EMPTY_PATH, MountMask, &found) != 0)
            return statusFromErrno(errno, "statx");
        if (const Status mounted = at.value().refusalOf(found); !mounted)
            return mounted;
    }
    return readEntries(std::move(opened), [&](const char *entry, FileKind kind) {
        return visit(decodeName(QByteArrayView(entry)), kind);
    });
}

Result<std::shared_ptr<FolderHandle>> LinuxFolders::hold(const QString &folder)
{
    return openHeld(folder);
}

Result<std::shared_ptr<FolderHandle>> LinuxFolders::holdIn(const std::shared_ptr<FolderHandle> &parent,
                                                           const QString &name, Mounts mounts)
{
    const auto *const above = dynamic_cast<const LinuxFolderHandle *>(parent.get());
    if (!above)
        return Status{InvalidParameter, 0, "openat"};
    return openHeldIn(*above, name, mounts == Mounts::Enter);
}

Status LinuxFolders::create(const QString &folder)
{
    const Result<QByteArray> name = encodePath(folder);
    if (!name)
        return name.status();
    // Goes up from the end to the first folder that exists or can be created, then creates the missing
    // folders on the way down.
    const QByteArray &path = name.value();
    QList<qsizetype> missing;
    qsizetype length = path.size();
    Status status = makeFolder(path);
    while (status.native == ENOENT && endOfParent(path, length) > 0) {
        missing.append(length);
        length = endOfParent(path, length);
        status = makeFolder(path.left(length));
    }
    while (status && !missing.isEmpty())
        status = makeFolder(path.left(missing.takeLast()));
    return status;
}

Status LinuxFolders::removeEmpty(const EntryPath &folder)
{
    const Result<EntryAt> at = locate(folder);
    if (!at)
        return at.status();
    if (fileCalls().unlinkat(at.value().folder, at.value().name.constData(), AT_REMOVEDIR) != 0)
        return statusFromErrno(errno, "rmdir");
    return {};
}

Status LinuxFolders::removeTree(const QString &folder)
{
    const Result<QByteArray> path = encodePath(folder);
    if (!path)
        return path.status();
    struct stat found = {};
    if (fileCalls().fstatat(AT_FDCWD, path.value().constData(), &found, AT_SYMLINK_NOFOLLOW) != 0)
        return statusFromErrno(errno, "lstat");
    if (!S_ISDIR(found.st_mode))
        return statusFromErrno(ENOTDIR, "lstat");
    const qsizetype slash = path.value().lastIndexOf('/');
    const QByteArray name = path.value().mid(slash + 1);
    // The root itself, and paths whose last component is not the folder's own name.
    if (name.isEmpty() || name == "." || name == "..")
        return {InvalidParameter, 0, "rmdir"};
    const QByteArray above = slash < 0 ? QByteArray(".") : path.value().left(slash + 1);
    FileDescriptor parent(uninterrupted([&] {
        return fileCalls().openat(AT_FDCWD, above.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC, 0);
    }));
    if (!parent.isValid())
        return statusFromErrno(errno, "open");
    return TreeRemoval(std::move(parent)).run(name);
}

Status LinuxFolders::hide(const QString &path)
{
    const Result<QByteArray> name = encodePath(path);
    if (!name)
        return name.status();
    struct stat found = {};
    if (fileCalls().fstatat(AT_FDCWD, name.value().constData(), &found, AT_SYMLINK_NOFOLLOW) != 0)
        return statusFromErrno(errno, "lstat");
    return {};
}

Result<FolderOwner> LinuxFolders::owner(const QString &folder)
{
    const Result<QByteArray> name = encodePath(folder);
    if (!name)
        return name.status();
    struct stat found = {};
    if (fileCalls().fstatat(AT_FDCWD, name.value().constData(), &found, AT_SYMLINK_NOFOLLOW) != 0)
        return statusFromErrno(errno, "lstat");
    if (!S_ISDIR(found.st_mode))
        return statusFromErrno(ENOTDIR, "lstat");
    return FolderOwner{found.st_uid == ::geteuid(), (found.st_mode & S_ISVTX) != 0};
}

Result<SpaceInfo> LinuxFolders::space(const QString &path)
{
    const Result<QByteArray> name = encodePath(path);
    if (!name)
        return name.status();
    // statvfs() would follow a link to another volume.
    const FileDescriptor opened(uninterrupted([&] {
        return fileCalls().openat(AT_FDCWD, name.value().constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC, 0);
    }));
    if (!opened.isValid())
        return statusFromErrno(errno, "open");
    return spaceOf(opened.get());
}

} // namespace platform
