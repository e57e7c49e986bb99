#include "platform/linux/linuxvolume.h"

#include "platform/filenames.h"
#include "platform/linux/linuxdevicecalls.h"
#include "platform/linux/linuxerrnotable.h"

#include <QSet>

#include <algorithm>
#include <cerrno>

#include <sys/mount.h>

namespace platform {

VolumeTable::VolumeTable(const SystemTree &tree)
    : m_tree(tree)
    , m_blocks(tree)
{}

QList<MountEntry> VolumeTable::entries() const
{
    return parseMountInfo(readAttribute(m_tree.proc + QLatin1String("/self/mountinfo")));
}

// A file system on several devices has a device number of its own without a block device, so its device comes
// from its source.
QByteArray VolumeTable::deviceOf(const MountEntry &entry) const
{
    return m_blocks.exists(entry.deviceNumber) ? entry.deviceNumber : BlockTree::deviceOfNode(entry.source);
}

QList<VolumeTable::Mount> VolumeTable::mounts() const
{
    QList<Mount> mounts;
    for (const MountEntry &entry : entries()) {
        const QByteArray device = deviceOf(entry);
        if (!device.isEmpty())
            mounts.append({entry, device});
    }
    return mounts;
}

QList<VolumeTable::Volume> VolumeTable::mounted() const
{
    QList<Volume> volumes;
    QSet<QByteArray> seen;
    for (const auto &[entry, device] : mounts()) {
        if (seen.contains(device))
            continue;
        seen.insert(device);
        volumes.append({entry.mountPoint, device, entry.fileSystem, true});
    }
    return volumes;
}

VolumeTable::Volume VolumeTable::byName(const QString &name) const
{
    // The latest mount on a mount point hides the earlier ones.
    const QList<MountEntry> table = entries();
    for (auto entry = table.rbegin(); entry != table.rend(); ++entry) {
        if (entry->mountPoint == name)
            return {name, deviceOf(*entry), entry->fileSystem, true};
    }
    return {name, BlockTree::deviceOfNode(name), {}, false};
}

MountEntry VolumeTable::entryOver(const QString &path) const
{
    MountEntry nearest;
    for (const MountEntry &entry : entries()) {
        const bool isAbove =
            entry.mountPoint == u"/" || path == entry.mountPoint || path.startsWith(entry.mountPoint + u'/');
        if (isAbove && entry.mountPoint.size() >= nearest.mountPoint.size())
            nearest = entry;
    }
    return nearest;
}

QString VolumeTable::mountPointOver(const QString &path) const
{
    const MountEntry nearest = entryOver(path);
    return nearest.mountPoint.isEmpty() || deviceOf(nearest).isEmpty() ? QString() : nearest.mountPoint;
}

QStringList VolumeTable::mountPointsOf(const QByteArray &device) const
{
    QStringList points;
    for (const MountEntry &entry : entries()) {
        if (deviceOf(entry) == device)
            points.prepend(entry.mountPoint);
    }
    return points;
}

LinuxVolumeDevice::LinuxVolumeDevice(BlockTransfers transfers, VolumeTable table, QByteArray device,
                                     QString node)
    : LinuxTransfers<VolumeDevice>(std::move(transfers))
    , m_table(std::move(table))
    , m_device(std::move(device))
    , m_node(std::move(node))
{}

Result<qint64> LinuxVolumeDevice::write(const void *data, qint64 size)
{
    if (!m_isExclusive)
        return Status{SharingViolation, 0, "write to a volume in use"};
    return LinuxTransfers<VolumeDevice>::write(data, size);
}

Status LinuxVolumeDevice::unmountEverywhere()
{
    Status first;
    for (const QString &point : m_table.mountPointsOf(m_device)) {
        if (deviceCalls().umount2(encodeName(point).constData(), UMOUNT_NOFOLLOW) != 0 && first.ok())
            first = statusFromErrno(errno, "umount2");
    }
    return first;
}

// The new descriptor is opened before the old one is closed, so that a failure leaves the handle unchanged.
Status LinuxVolumeDevice::reopen(bool exclusive)
{
    Result<FileDescriptor> fd =
        openBlockDevice(m_node, m_device, exclusive ? DriveAccess::Alone : DriveAccess::BesideOwnVolumes);
    if (!fd)
        return fd.status();
    m_transfers.exchangeDescriptor(fd.take());
    m_isExclusive = exclusive;
    return {};
}

Status LinuxVolumeDevice::lock()
{
    if (m_isExclusive)
        return {};
    const Status unmounted = unmountEverywhere();
    if (!unmounted)
        return unmounted;
    return reopen(true);
}

Status LinuxVolumeDevice::dismount()
{
    return lock();
}

Status LinuxVolumeDevice::unlock()
{
    return m_isExclusive ? reopen(false) : Status();
}

} // namespace platform
