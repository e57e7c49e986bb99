#include "platform/linux/linuxcontentplace.h"

#include "platform/linux/linuxdevicecalls.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <linux/fiemap.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <optional>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// Missing from the kernel's public headers.
constexpr quint32 BcachefsMagic = 0xCA451A4E;
constexpr quint32 ZfsMagic = 0x2FC12FC1;
constexpr quint32 UbifsMagic = 0x24051905;
constexpr quint32 HfsMagic = 0x4244;
constexpr quint32 HfsPlusMagic = 0x482B;

// File systems that never write in place and have no flag for single files.
bool alwaysRelocates(quint32 fileSystem)
{
    switch (fileSystem) {
    case F2FS_SUPER_MAGIC:
    case NILFS_SUPER_MAGIC:
    case JFFS2_SUPER_MAGIC:
    case UbifsMagic:
    case BcachefsMagic:
    case ZfsMagic:
        return true;
    default:
        return false;
    }
}

// File systems that write in place although they report no extents.
bool writesInPlace(quint32 fileSystem)
{
    switch (fileSystem) {
    case TMPFS_MAGIC:
    case RAMFS_MAGIC:
    case MSDOS_SUPER_MAGIC:
    case EXFAT_SUPER_MAGIC:
    case EXT4_SUPER_MAGIC: // ext2 and ext3 as well
    case UDF_SUPER_MAGIC:
    case HfsMagic:
    case HfsPlusMagic:
        return true;
    default:
        return false;
    }
}

// File systems that report the extents of the file as presented by the server.
bool isElsewhereInTheNetwork(quint32 fileSystem)
{
    return fileSystem == CIFS_SUPER_MAGIC || fileSystem == SMB2_SUPER_MAGIC || fileSystem == SMB_SUPER_MAGIC;
}

ElsewhereReasons reasonsOfExtent(quint32 flags)
{
    ElsewhereReasons reasons;
    if (flags & FIEMAP_EXTENT_SHARED)
        reasons |= Elsewhere::Shared;
    if (flags & (FIEMAP_EXTENT_DATA_INLINE | FIEMAP_EXTENT_DATA_TAIL))
        reasons |= Elsewhere::Inline;
    if (flags & FIEMAP_EXTENT_ENCODED)
        reasons |= Elsewhere::Encoded;
    // Content with delayed allocation is only in the cache, and its first write allocates its blocks.
    if ((flags & FIEMAP_EXTENT_UNKNOWN) && !(flags & FIEMAP_EXTENT_DELALLOC))
        reasons |= Elsewhere::Unknown;
    return reasons;
}

// The mount table does not show the file system's own default.
bool journalsData(dev_t device)
{
    const QString node = QFile::symLinkTarget(
        u"/sys/dev/block/%1:%2"_s.arg(QString::number(major(device)), QString::number(minor(device))));
    QFile options(u"/proc/fs/ext4/%1/options"_s.arg(QFileInfo(node).fileName()));
    return !node.isEmpty() && options.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
           options.readAll().split('\n').contains("data=journal");
}

bool isUnsupported(int error)
{
    return error == EOPNOTSUPP || error == ENOTTY || error == EINVAL || error == ENOSYS || error == EBADR;
}

// The next extents from a position; no value where the file system has no extent map.
Result<std::optional<QList<FileExtent>>> nextExtents(int file, qint64 from, bool &isLast)
{
    constexpr quint32 AtOnce = 128;
    struct Request
    {
        alignas(fiemap) std::array<std::byte, sizeof(fiemap) + AtOnce * sizeof(fiemap_extent)> bytes{};
    };
    Request request;
    fiemap head = {};
    head.fm_start = static_cast<quint64>(from);
    head.fm_length = FIEMAP_MAX_OFFSET - head.fm_start;
    head.fm_flags = FIEMAP_FLAG_SYNC;
    head.fm_extent_count = AtOnce;
    std::memcpy(request.bytes.data(), &head, sizeof head);
    if (uninterrupted([&] { return deviceCalls().ioctl(file, FS_IOC_FIEMAP, request.bytes.data()); }) != 0) {
        if (isUnsupported(errno))
            return std::optional<QList<FileExtent>>();
        return statusFromErrno(errno, "FS_IOC_FIEMAP");
    }
    std::memcpy(&head, request.bytes.data(), sizeof head);
    QList<FileExtent> extents;
    isLast = head.fm_mapped_extents == 0;
    for (quint32 i = 0; i < std::min(head.fm_mapped_extents, AtOnce); ++i) {
        fiemap_extent extent = {};
        std::memcpy(&extent, request.bytes.data() + sizeof head + i * sizeof extent, sizeof extent);
        extents.append(
            {static_cast<qint64>(extent.fe_logical), static_cast<qint64>(extent.fe_length), extent.fe_flags});
        isLast = isLast || (extent.fe_flags & FIEMAP_EXTENT_LAST);
    }
    return std::optional(extents);
}

// All extents of a file; no value where the file system has no extent map.
Result<std::optional<QList<FileExtent>>> extentsOf(int file, qint64 size)
{
    QList<FileExtent> all;
    qint64 from = 0;
    for (bool isLast = false; !isLast && from < size;) {
        auto next = nextExtents(file, from, isLast);
        if (!next || !next.value())
            return next;
        for (const FileExtent &extent : *next.value())
            from = std::max(from, extent.start + extent.length);
        all += *next.value();
    }
    return std::optional(all);
}

} // namespace

ElsewhereReasons reasonsOf(const FileTraits &traits)
{
    ElsewhereReasons reasons;
    if (traits.fileSystem == BTRFS_SUPER_MAGIC ? !(traits.flags & FS_NOCOW_FL)
                                               : alwaysRelocates(traits.fileSystem))
        reasons |= Elsewhere::Relocating;
    if (traits.journalsData || (traits.flags & FS_JOURNAL_DATA_FL))
        reasons |= Elsewhere::Journalled;
    // Opening a file for writing copies it up, which hides whether its content came from a lower layer.
    if (traits.fileSystem == OVERLAYFS_SUPER_MAGIC)
        reasons |= Elsewhere::LowerLayer;
    if (isElsewhereInTheNetwork(traits.fileSystem))
        reasons |= Elsewhere::Unknown;
    if (!reasons && !traits.hasExtentMap && !writesInPlace(traits.fileSystem))
        reasons |= Elsewhere::Unknown;
    return reasons;
}

ContentPlace placeOf(const QList<FileExtent> &extents, qint64 size)
{
    ContentPlace place{.elsewhere = {}, .bytes = 0};
    for (const FileExtent &extent : extents) {
        const ElsewhereReasons reasons = reasonsOfExtent(extent.flags);
        if (!reasons || extent.start >= size)
            continue;
        place.elsewhere |= reasons;
        place.bytes += std::min(extent.length, size - extent.start);
    }
    return place;
}

Result<ContentPlace> contentPlaceOf(int file)
{
    struct stat status = {};
    if (fileCalls().fstat(file, &status) != 0)
        return statusFromErrno(errno, "fstat");
    const bool isFolder = S_ISDIR(status.st_mode);
    if (!isFolder && status.st_size <= 0)
        return ContentPlace{.elsewhere = {}, .bytes = 0};
    struct statfs volume = {};
    if (fileCalls().fstatfs(file, &volume) != 0)
        return statusFromErrno(errno, "fstatfs");
    FileTraits traits;
    traits.fileSystem = static_cast<quint32>(volume.f_type);
    // The kernel declares the argument as long and writes an int.
    int flags = 0;
    if (deviceCalls().ioctl(file, FS_IOC_GETFLAGS, &flags) == 0)
        traits.flags = static_cast<quint32>(flags);
    traits.journalsData = traits.fileSystem == EXT4_SUPER_MAGIC && journalsData(status.st_dev);
    // Folders report no extents even where files do.
    traits.hasExtentMap = true;
    ElsewhereReasons reasons = reasonsOf(traits);
    if (isFolder)
        return ContentPlace{.elsewhere = reasons, .bytes = -1};
    if (!reasons) {
        const auto extents = extentsOf(file, status.st_size);
        if (!extents)
            return extents.status();
        if (extents.value())
            return placeOf(*extents.value(), status.st_size);
        traits.hasExtentMap = false;
        reasons = reasonsOf(traits);
    }
    return ContentPlace{.elsewhere = reasons, .bytes = reasons ? qint64(status.st_size) : 0};
}

} // namespace platform
