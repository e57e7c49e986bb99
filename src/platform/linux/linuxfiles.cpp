#include "platform/linux/linuxfiles.h"

#include "platform/filenames.h"
#include "platform/linux/linuxattributes.h"
#include "platform/linux/linuxcontentplace.h"
#include "platform/linux/linuxdurabilitygroup.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfilehandle.h"
#include "platform/linux/linuxfileid.h"
#include "platform/linux/linuxfilekind.h"
#include "platform/linux/linuxfolderhandle.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <limits>

namespace platform {

namespace {

int flagsOf(OpenMode mode)
{
    switch (mode) {
    case OpenMode::Overwrite:
        return O_RDWR | O_DIRECT | O_DSYNC;
    case OpenMode::Verify:
        return O_RDONLY | O_DIRECT;
    case OpenMode::Truncate:
        return O_WRONLY;
    case OpenMode::CreateFill:
        return O_WRONLY | O_CREAT | O_TRUNC | O_DIRECT;
    }
    Q_UNREACHABLE();
}

Status refusalOf(mode_t mode, const char *operation)
{
    switch (fileKindFromMode(mode)) {
    case FileKind::Regular:
        return {};
    case FileKind::Folder:
        return statusFromErrno(EISDIR, operation);
    case FileKind::Link:
        return statusFromErrno(ELOOP, operation);
    case FileKind::Special:
        break;
    }
    return {CannotAccessFile, 0, operation};
}

FileDescriptor openFile(const EntryAt &entry, int flags)
{
    // O_NONBLOCK, because a pipe may have replaced the file since the lookup.
    constexpr int Always = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return FileDescriptor(uninterrupted([&] {
        return fileCalls().openat(entry.folder, entry.name.constData(), flags | Always, S_IRUSR | S_IWUSR);
    }));
}

// The entry of the name itself, without following a link.
Result<struct statx> look(const EntryAt &entry, unsigned int wanted)
{
    struct statx found = {};
    if (fileCalls().statx(entry.folder, entry.name.constData(), AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT,
                          wanted | MountMask, &found) != 0)
        return statusFromErrno(errno, "statx");
    return found;
}

// O_DSYNC would make each write of a member wait for the device.
int flagsOf(OpenMode mode, bool isMember)
{
    return isMember ? flagsOf(mode) & ~O_DSYNC : flagsOf(mode);
}

// A function and not a constant, because FileIdMask is defined in another file.
unsigned int infoMask()
{
    return STATX_TYPE | STATX_SIZE | STATX_BLOCKS | STATX_NLINK | FileIdMask;
}

FileInfo infoFrom(const struct statx &file)
{
    FileInfo info;
    info.kind = fileKindFromMode(file.stx_mode);
    info.size = info.kind == FileKind::Regular ? static_cast<qint64>(file.stx_size) : 0;
    constexpr qint64 Block = 512; // the unit of stx_blocks, independent of the file system
    if (info.kind == FileKind::Regular && (file.stx_mask & STATX_BLOCKS))
        info.allocatedBytes = static_cast<qint64>(file.stx_blocks) * Block;
    info.linkCount = qMax(1, static_cast<int>(file.stx_nlink));
    info.id = fileIdFrom(file);
    return info;
}

} // namespace

Result<FileInfo> fileInfoAt(int folder, const char *name)
{
    const Result<struct statx> found = look({folder, name}, infoMask());
    if (!found)
        return found.status();
    return infoFrom(found.value());
}

Result<FileInfo> LinuxFiles::info(const EntryPath &entry)
{
    const Result<EntryAt> at = locate(entry);
    if (!at)
        return at.status();
    const Result<struct statx> found = look(at.value(), infoMask());
    if (!found)
        return found.status();
    FileInfo info = infoFrom(found.value());
    info.isMounted = !at.value().refusalOf(found.value());
    return info;
}

Result<std::unique_ptr<FileHandle>> LinuxFiles::openIn(const std::shared_ptr<DurabilityGroup> &group,
                                                       const EntryPath &entry, OpenMode mode)
{
    const auto linuxGroup = std::dynamic_pointer_cast<LinuxDurabilityGroup>(group);
    const Result<EntryAt> at = locate(entry);
    if (!at)
        return at.status();
    // Checked before opening, because opening alone has effects on special files: a tape rewinds, a pipe's
    // writer wakes up.
    const Result<struct statx> found = look(at.value(), STATX_TYPE);
    if (!found) {
        if (mode != OpenMode::CreateFill || !isAbsentErrno(found.status().native))
            return found.status();
    } else if (const Status refusal = refusalOf(found.value().stx_mode, "statx"); !refusal) {
        return refusal;
    } else if (const Status mounted = at.value().refusalOf(found.value()); !mounted) {
        return mounted;
    }

    int flags = flagsOf(mode, linuxGroup && found && linuxGroup->contains(found.value()));
    FileDescriptor file = openFile(at.value(), flags);
    if (!file.isValid() && errno == EINVAL && (flags & O_DIRECT)) {
        flags &= ~O_DIRECT;
        file = openFile(at.value(), flags);
    }
    if (!file.isValid())
        return statusFromErrno(errno, "open");

    struct statx opened = {};
    if (fileCalls().statx(file.get(), "", AT_EMPTY_PATH, STATX_TYPE | MountMask | DirectTransfersMask,
                          &opened) != 0)
        return statusFromErrno(errno, "statx");
    if (const Status refusal = refusalOf(opened.stx_mode, "statx"); !refusal)
        return refusal;
    // A file system may have been mounted over the name since the lookup.
    if (const Status mounted = at.value().refusalOf(opened); !mounted)
        return mounted;
    OpenedFile handle;
    handle.directOn = (flags & O_DIRECT) != 0;
    if (handle.directOn)
        handle.direct = directTransfersOf(opened);
    handle.writeThrough = (flags & O_DSYNC) != 0 && isKnownToFlush(file.get());
    if (linuxGroup && linuxGroup->admits(file.get(), opened))
        handle.group = linuxGroup;
    handle.descriptor = std::move(file);
    return std::unique_ptr<FileHandle>(std::make_unique<LinuxFileHandle>(std::move(handle)));
}

Result<std::shared_ptr<DurabilityGroup>> LinuxFiles::beginGroup(const EntryPath &folder)
{
    const Result<EntryAt> at = locate(folder);
    if (!at)
        return at.status();
    if (!at.value().held)
        return Status{InvalidParameter, 0, "beginGroup"};
    return LinuxDurabilityGroup::begin(*at.value().held);
}

Status LinuxFiles::closeGroup(DurabilityGroup &group)
{
    auto *const linuxGroup = dynamic_cast<LinuxDurabilityGroup *>(&group);
    return linuxGroup ? linuxGroup->close() : Status{InvalidParameter, 0, "closeGroup"};
}

Result<ContentPlace> LinuxFiles::contentPlace(const EntryPath &entry)
{
    const Result<EntryAt> at = locate(entry);
    if (!at)
        return at.status();
    // Checked before opening, because opening alone has effects on special files. A file without content need
    // not be opened.
    const Result<struct statx> found = look(at.value(), STATX_TYPE | STATX_SIZE);
    if (!found)
        return found.status();
    if (const Status mounted = at.value().refusalOf(found.value()); !mounted)
        return mounted;
    if (!S_ISDIR(found.value().stx_mode)) {
        if (const Status refusal = refusalOf(found.value().stx_mode, "statx"); !refusal)
            return refusal;
        if (found.value().stx_size == 0)
            return ContentPlace{.elsewhere = {}, .bytes = 0};
    }
    const FileDescriptor file = openFile(at.value(), O_RDONLY);
    if (!file.isValid())
        return statusFromErrno(errno, "open");
    struct statx opened = {};
    if (fileCalls().statx(file.get(), "", AT_EMPTY_PATH, STATX_TYPE | MountMask, &opened) != 0)
        return statusFromErrno(errno, "statx");
    if (const Status mounted = at.value().refusalOf(opened); !mounted)
        return mounted;
    if (!S_ISDIR(opened.stx_mode)) {
        if (const Status refusal = refusalOf(opened.stx_mode, "statx"); !refusal)
            return refusal;
    }
    return contentPlaceOf(file.get());
}

Result<QList<NamedStream>> LinuxFiles::namedStreams(const EntryPath &entry)
{
    const Result<EntryAt> at = locate(entry);
    if (!at)
        return at.status();
    // Checked before opening, because opening alone has effects on special files.
    const Result<struct statx> found = look(at.value(), STATX_TYPE);
    if (!found)
        return found.status();
    const Status refusal =
        S_ISDIR(found.value().stx_mode) ? Status{} : refusalOf(found.value().stx_mode, "statx");
    if (!refusal)
        return refusal;
    if (const Status mounted = at.value().refusalOf(found.value()); !mounted)
        return mounted;
    const FileDescriptor file = openFile(at.value(), O_RDONLY);
    if (!file.isValid())
        return statusFromErrno(errno, "open");
    return attributesOf(file.get());
}

int LinuxFiles::spareOpenFiles()
{
    constexpr int Unlimited = std::numeric_limits<int>::max();
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= rlim_t(Unlimited))
        return Unlimited;
    const auto most = static_cast<int>(limit.rlim_cur);
    int spare = 0;
    // Counts the free descriptor numbers, and stops when there are plenty.
    constexpr int Plenty = 1024;
    for (int number = 0; number < most && spare < Plenty; ++number)
        spare += ::fcntl(number, F_GETFD) < 0 ? 1 : 0;
    return spare;
}

Status LinuxFiles::clearReadOnly(const EntryPath &entry)
{
    const Result<EntryAt> at = locate(entry);
    if (!at)
        return at.status();
    const Result<struct statx> found = look(at.value(), STATX_TYPE | STATX_MODE);
    if (!found)
        return found.status().isAbsent() ? Status{} : found.status();
    if (const Status mounted = at.value().refusalOf(found.value()); !mounted)
        return mounted;
    const mode_t mode = found.value().stx_mode;
    if (S_ISLNK(mode) || (mode & S_IWUSR))
        return {};
    if (fileCalls().fchmodat(at.value().folder, at.value().name.constData(), (mode & ALLPERMS) | S_IWUSR,
                             AT_SYMLINK_NOFOLLOW) != 0)
        return statusFromErrno(errno, "fchmodat");
    return {};
}

Status LinuxFiles::rename(const EntryPath &from, const EntryPath &to)
{
    const Result<EntryAt> source = locate(from);
    const Result<EntryAt> target = locate(to);
    if (!source || !target)
        return source ? target.status() : source.status();
    if (fileCalls().renameat(source.value().folder, source.value().name.constData(), target.value().folder,
                             target.value().name.constData()) != 0)
        return statusFromErrno(errno, "rename");
    return {};
}

Status LinuxFiles::remove(const EntryPath &entry)
{
    const Result<EntryAt> at = locate(entry);
    if (!at)
        return at.status();
    if (fileCalls().unlinkat(at.value().folder, at.value().name.constData(), 0) != 0)
        return statusFromErrno(errno, "unlink");
    return {};
}

} // namespace platform
