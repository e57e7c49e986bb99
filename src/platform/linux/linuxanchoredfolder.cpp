#include "platform/linux/linuxanchoredfolder.h"

#include "platform/entrypath.h"
#include "platform/filenames.h"
#include "platform/linux/linuxdirectoryentries.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfilehandle.h"
#include "platform/linux/linuxfileid.h"
#include "platform/linux/linuxfilekind.h"
#include "platform/linux/linuxfiles.h"
#include "platform/linux/linuxfolderhandle.h"
#include "platform/linux/linuxtreeremoval.h"
#include "platform/linux/linuxvolumeidentity.h"
#include "platform/linux/linuxvolumejournal.h"
#include "platform/linux/linuxvolumespace.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

namespace platform {

namespace {

constexpr int FolderFlags = O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

Result<QByteArray> component(const QString &name)
{
    const QByteArray bytes = encodeName(name);
    if (bytes.isEmpty() || bytes == "." || bytes == ".." || bytes.contains('/') || bytes.contains('\0'))
        return Status{InvalidParameter, 0, "name"};
    return bytes;
}

// Falls back to O_PATH, because files can be created even in a folder that may not be listed.
FileDescriptor openFolderAt(int above, const char *name)
{
    const auto openAs = [&](int how) {
        return FileDescriptor(
            uninterrupted([&] { return fileCalls().openat(above, name, how | FolderFlags, 0); }));
    };
    FileDescriptor folder = openAs(O_RDONLY);
    return !folder.isValid() && errno == EACCES ? openAs(O_PATH) : std::move(folder);
}

// Locks the folder for the life of the descriptor. False where the file system has no locks.
Result<bool> claim(int folder)
{
    if (uninterrupted([&] { return fileCalls().flock(folder, LOCK_EX | LOCK_NB); }) == 0)
        return true;
    if (errno == EWOULDBLOCK)
        return Status{SharingViolation, errno, "flock"};
    return false;
}

} // namespace

Result<std::unique_ptr<AnchoredFolder>> LinuxAnchoredFolder::open(const EntryPath &path)
{
    const Result<EntryAt> at = locate(path);
    if (!at)
        return at.status();
    FileDescriptor folder = openFolderAt(at.value().folder, at.value().name.constData());
    if (!folder.isValid())
        return statusFromErrno(errno, "open");
    if (at.value().held) {
        struct statx found = {};
        if (fileCalls().statx(folder.get(), "", AT_EMPTY_PATH, MountMask, &found) != 0)
            return statusFromErrno(errno, "statx");
        if (const Status mounted = at.value().refusalOf(found); !mounted)
            return mounted;
    }
    return std::unique_ptr<AnchoredFolder>(
        std::make_unique<LinuxAnchoredFolder>(std::move(folder), path.path(), false));
}

Result<QString> LinuxAnchoredFolder::volumeIdentity()
{
    return volumeIdentityOf(m_folder.get(), SystemTree());
}

Result<SpaceInfo> LinuxAnchoredFolder::space()
{
    return spaceOf(m_folder.get());
}

Status LinuxAnchoredFolder::forEachEntry(const Folders::Visitor &visit)
{
    // Reopened, so that the listing has a position of its own.
    FileDescriptor listed(
        uninterrupted([&] { return fileCalls().openat(m_folder.get(), ".", O_RDONLY | FolderFlags, 0); }));
    if (!listed.isValid())
        return statusFromErrno(errno, "openat");
    return readEntries(std::move(listed), [&](const char *entry, FileKind kind) {
        return visit(decodeName(QByteArrayView(entry)), kind);
    });
}

Result<FileInfo> LinuxAnchoredFolder::info(const QString &name)
{
    const Result<QByteArray> entry = component(name);
    if (!entry)
        return entry.status();
    return fileInfoAt(m_folder.get(), entry.value().constData());
}

Result<std::unique_ptr<FileHandle>> LinuxAnchoredFolder::createFile(const QString &name)
{
    const Result<QByteArray> entry = component(name);
    if (!entry)
        return entry.status();
    constexpr int Flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    OpenedFile file;
    file.descriptor = FileDescriptor(uninterrupted([&] {
        return fileCalls().openat(m_folder.get(), entry.value().constData(), Flags, S_IRUSR | S_IWUSR);
    }));
    if (!file.descriptor.isValid())
        return statusFromErrno(errno, "openat");
    // Set after creation, because an openat() that fails because of O_DIRECT has already created the file.
    file.directOn = fileCalls().fcntl(file.descriptor.get(), F_SETFL, O_DIRECT) == 0;
    struct statx opened = {};
    if (file.directOn &&
        fileCalls().statx(file.descriptor.get(), "", AT_EMPTY_PATH, DirectTransfersMask, &opened) == 0)
        file.direct = directTransfersOf(opened);
    return std::unique_ptr<FileHandle>(std::make_unique<LinuxFileHandle>(std::move(file)));
}

Status LinuxAnchoredFolder::removeFile(const QString &name)
{
    return remove(name, 0);
}

Result<std::unique_ptr<AnchoredFolder>> LinuxAnchoredFolder::createFolder(const QString &name)
{
    const Result<QByteArray> entry = component(name);
    if (!entry)
        return entry.status();
    if (fileCalls().mkdirat(m_folder.get(), entry.value().constData(), S_IRWXU) != 0)
        return statusFromErrno(errno, "mkdirat");
    Result<std::unique_ptr<AnchoredFolder>> opened = openFolder(name);
    // The caller knows nothing of a folder that it did not get, and would leave it behind.
    if (!opened)
        static_cast<void>(removeFolder(name));
    return opened;
}

Result<std::unique_ptr<AnchoredFolder>> LinuxAnchoredFolder::openFolder(const QString &name)
{
    const Result<QByteArray> entry = component(name);
    if (!entry)
        return entry.status();
    FileDescriptor folder(uninterrupted([&] {
        return fileCalls().openat(m_folder.get(), entry.value().constData(), O_RDONLY | FolderFlags, 0);
    }));
    if (!folder.isValid())
        return statusFromErrno(errno, "openat");
    const Result<bool> claimed = claim(folder.get());
    if (!claimed)
        return claimed.status();
    return std::unique_ptr<AnchoredFolder>(std::make_unique<LinuxAnchoredFolder>(
        std::move(folder), pathInFolder(m_path, name), claimed.value()));
}

Status LinuxAnchoredFolder::removeFolder(const QString &name)
{
    return remove(name, AT_REMOVEDIR);
}

Status LinuxAnchoredFolder::removeTree(const QString &name)
{
    const Result<QByteArray> entry = component(name);
    if (!entry)
        return entry.status();
    struct stat found = {};
    if (fileCalls().fstatat(m_folder.get(), entry.value().constData(), &found, AT_SYMLINK_NOFOLLOW) != 0)
        return statusFromErrno(errno, "fstatat");
    if (!S_ISDIR(found.st_mode))
        return statusFromErrno(ENOTDIR, "fstatat");
    FileDescriptor parent(fileCalls().fcntl(m_folder.get(), F_DUPFD_CLOEXEC, 0));
    if (!parent.isValid())
        return statusFromErrno(errno, "fcntl");
    return TreeRemoval(std::move(parent)).run(entry.value());
}

Result<std::unique_ptr<VolumeJournal>> LinuxAnchoredFolder::journal()
{
    return journalOf(m_folder.get(), SystemTree());
}

Status LinuxAnchoredFolder::remove(const QString &name, int flags)
{
    const Result<QByteArray> entry = component(name);
    if (!entry)
        return entry.status();
    if (fileCalls().unlinkat(m_folder.get(), entry.value().constData(), flags) != 0)
        return statusFromErrno(errno, "unlinkat");
    return {};
}

} // namespace platform
