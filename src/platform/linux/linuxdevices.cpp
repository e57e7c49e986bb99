#include "platform/linux/linuxdevices.h"

#include "platform/filenames.h"
#include "platform/linux/linuxdevicerelease.h"
#include "platform/linux/linuxdrivedescription.h"
#include "platform/linux/linuxreleasedvolumes.h"
#include "platform/linux/linuxvolumeidentity.h"
#include "platform/linux/linuxvolumelabel.h"
#include "platform/storagereplies.h"

#include <algorithm>

#include <sys/statvfs.h>

namespace platform {

namespace {

Status noSuchDrive()
{
    return {FileNotFound, 0, "drive number"};
}

// A query of a whole drive or a volume, by its kernel name and the identity at its opening.
class LinuxQuery : public DeviceQuery
{
public:
    LinuxQuery(SystemTree tree, const QString &kernelName, QList<Extent> extents, DeviceUse use = {})
        : m_tree(std::move(tree))
        , m_name(kernelName)
        , m_queue(m_tree.sys + QLatin1String("/block/") + kernelName + QLatin1String("/queue/"))
        , m_extents(std::move(extents))
        , m_use(std::move(use))
    {}

    Result<Geometry> geometry() override
    {
        const auto sector = static_cast<qint32>(readNumber(m_queue + QLatin1String("logical_block_size")));
        const qint64 size =
            readLength(m_tree.sys + QLatin1String("/class/block/") + m_name + QLatin1String("/size"));
        if (sector <= 0 || size <= 0)
            return Status{NotReady, 0, "geometry"};
        return Geometry{size / sector * sector, sector};
    }
    Result<QByteArray> descriptor() override { return encodeDeviceDescriptor(describeDrive(m_tree, m_name)); }
    Result<QString> worldWideName() override
    {
        const QString name = platform::worldWideName(m_tree, m_name);
        if (name.isEmpty())
            return Status{NotSupported, 0, "wwid"};
        return name;
    }
    Result<bool> seekPenalty() override
    {
        const QByteArray rotational = readAttribute(m_queue + QLatin1String("rotational"));
        if (rotational.isEmpty())
            return Status{NotSupported, 0, "rotational"};
        return rotational != "0";
    }
    Result<bool> trimEnabled() override
    {
        return readNumber(m_queue + QLatin1String("discard_max_bytes")) > 0;
    }
    Result<DeviceUse> use() override { return m_use; }
    Result<QList<Extent>> extents(int maxExtents) override
    {
        if (m_extents.size() > maxExtents)
            return Status{MoreData, 0, "extents"};
        return m_extents;
    }

private:
    SystemTree m_tree;
    QString m_name;
    QString m_queue;
    QList<Extent> m_extents;
    DeviceUse m_use;
};

bool isOnLocalDrive(const QString &kernelName)
{
    static const QStringList others{QStringLiteral("sr"), QStringLiteral("ram"), QStringLiteral("zram")};
    return std::ranges::none_of(others, [&](const QString &other) { return kernelName.startsWith(other); });
}

} // namespace

LinuxDevices::LinuxDevices(const SystemTree &tree)
    : m_tree(tree)
    , m_blocks(tree)
    , m_volumes(tree)
    , m_registry(tree)
{}

QString LinuxDevices::drivePath(int number)
{
    const std::optional<Drive> drive = m_registry.byNumber(number);
    return drive ? m_blocks.node(drive->device) : QString();
}

Result<std::unique_ptr<DeviceQuery>> LinuxDevices::queryDrive(int number)
{
    const std::optional<Drive> drive = m_registry.byNumber(number);
    if (!drive)
        return noSuchDrive();
    const QList<Extent> itself{{number, 0, drive->sizeBytes}};
    const DeviceRelease release(m_tree);
    DeviceUse use{m_blocks.isReadOnly(drive->device), release.holders(drive->device),
                  release.commands(drive->device)};
    return std::unique_ptr<DeviceQuery>(
        std::make_unique<LinuxQuery>(m_tree, drive->kernelName, itself, std::move(use)));
}

QList<Extent> LinuxDevices::extentsOf(const QByteArray &device)
{
    QList<Extent> extents;
    const QList<Drive> drives = m_registry.drives();
    // An opened volume writes to the device itself, so its drive comes first among those of a file system on
    // several devices.
    QList<QByteArray> members = m_blocks.fileSystemMembers(device);
    members.removeAll(device);
    members.prepend(device);
    for (const QByteArray &member : std::as_const(members)) {
        for (const DriveExtent &found : m_blocks.extentsOf(member)) {
            const auto drive = std::ranges::find(drives, found.drive, &Drive::device);
            const int number = drive == drives.end() ? -1 : drive->number;
            extents.append({number, found.startingOffset, found.length});
        }
    }
    return extents;
}

Result<std::unique_ptr<DeviceQuery>> LinuxDevices::queryVolume(const QString &name)
{
    const VolumeTable::Volume volume = m_volumes.byName(name);
    if (volume.device.isEmpty())
        return Status{FileNotFound, 0, "volume name"};
    DeviceUse use{
        m_blocks.isReadOnly(volume.device), {}, DeviceRelease(m_tree).unmountCommands(volume.device)};
    return std::unique_ptr<DeviceQuery>(std::make_unique<LinuxQuery>(
        m_tree, m_blocks.kernelName(volume.device), extentsOf(volume.device), std::move(use)));
}

Status LinuxDevices::checkIdentity(const DriveIdentity &chosen, const Drive &present) const
{
    LinuxQuery query(m_tree, present.kernelName, {});
    if (query.geometry() && identityOf(chosen.number, query) == chosen)
        return {};
    return {NotReady, 0, "identity check"};
}

Result<FileDescriptor> LinuxDevices::openChosen(const DriveIdentity &drive, DriveAccess access)
{
    const std::optional<Drive> present = m_registry.byNumber(drive.number);
    if (!present)
        return Status{NotReady, 0, "drive number"};
    Result<FileDescriptor> fd = openBlockDevice(m_blocks.node(present->device), present->device, access);
    if (!fd)
        return fd.status();
    // Queried after opening, because the device could be replaced by another before it is held.
    const std::optional<Drive> held = m_registry.byNumber(drive.number);
    const Status identity = held && held->isSameDevice(*present) ? checkIdentity(drive, *held)
                                                                 : Status{NotReady, 0, "identity check"};
    if (!identity)
        return identity;
    return fd;
}

Result<std::unique_ptr<RawDevice>> LinuxDevices::openDrive(const DriveIdentity &drive, DriveAccess access)
{
    Result<FileDescriptor> fd = openChosen(drive, access);
    if (!fd)
        return fd.status();
    Result<BlockTransfers> transfers = BlockTransfers::on(fd.take());
    if (!transfers)
        return transfers.status();
    return std::unique_ptr<RawDevice>(std::make_unique<LinuxRawDevice>(transfers.take()));
}

Result<std::unique_ptr<VolumeDevice>> LinuxDevices::openVolume(const QString &name,
                                                               const DriveIdentity &drive)
{
    const VolumeTable::Volume volume = m_volumes.byName(name);
    if (volume.device.isEmpty())
        return Status{FileNotFound, 0, "volume name"};
    const QString node = m_blocks.node(volume.device);
    Result<FileDescriptor> fd = openBlockDevice(node, volume.device, DriveAccess::BesideOwnVolumes);
    if (!fd)
        return fd.status();
    const QList<Extent> extents = extentsOf(volume.device);
    const std::optional<Drive> present = m_registry.byNumber(drive.number);
    if (!present || !liesOnlyOn(extents, drive.number))
        return Status{NotReady, 0, "identity check"};
    const Status identity = checkIdentity(drive, *present);
    if (!identity)
        return identity;
    Result<BlockTransfers> transfers = BlockTransfers::on(fd.take());
    if (!transfers)
        return transfers.status();
    return std::unique_ptr<VolumeDevice>(
        std::make_unique<LinuxVolumeDevice>(transfers.take(), m_volumes, volume.device, node));
}

QList<VolumeTable::Mount> LinuxDevices::mountsOn(int driveNumber)
{
    QList<VolumeTable::Mount> mounts = m_volumes.mounts();
    mounts.removeIf([this, driveNumber](const VolumeTable::Mount &mount) {
        const QList<Extent> extents = extentsOf(mount.device);
        return std::ranges::none_of(
            extents, [driveNumber](const Extent &extent) { return extent.diskNumber == driveNumber; });
    });
    return mounts;
}

VolumeRelease LinuxDevices::releaseVolumes(const DriveIdentity &drive)
{
    const std::optional<Drive> present = m_registry.byNumber(drive.number);
    const Status identity = present ? checkIdentity(drive, *present) : Status{NotReady, 0, "drive number"};
    if (!identity)
        return {.failure = identity};
    auto released = std::make_unique<LinuxReleasedVolumes>(MountStack(m_tree, mountsOn(drive.number)));
    MountStack &mounts = released->mounts();
    for (const VolumeTable::Mount &mount : mounts.mounts()) {
        if (!liesOnlyOn(extentsOf(mount.device), drive.number))
            return {.failure = {NotReady, 0, "volume extents"}, .volume = mount.entry.mountPoint};
    }
    if (const QString point = mounts.pointUnderOther(); !point.isEmpty())
        return {.failure = {SharingViolation, 0, "mount table"}, .volume = point};

    VolumeRelease release;
    release.failure = mounts.takeDown(release.volume);
    if (release.failure.ok()) {
        // A user of the drive without a visible mount shows only now.
        Result<FileDescriptor> held = openChosen(drive, DriveAccess::Alone);
        if (held)
            released->setDrive(held.take());
        else
            release.failure = held.status();
    }
    if (release.failure.ok())
        release.volumes = std::move(released);
    else
        release.notRestored = released->restore();
    return release;
}

QStringList LinuxDevices::volumeNames()
{
    QStringList names;
    for (const VolumeTable::Volume &volume : m_volumes.mounted())
        names.append(volume.name);
    return names;
}

QList<MountedVolume> LinuxDevices::mountedVolumes()
{
    QList<MountedVolume> volumes;
    for (const VolumeTable::Volume &volume : m_volumes.mounted()) {
        MountedVolume mounted;
        mounted.name = volume.name;
        mounted.rootPath = volume.name;
        mounted.fileSystem = volume.fileSystem;
        mounted.label = volumeLabel(m_tree, volume.device, volume.name);
        mounted.isLocal = isOnLocalDrive(m_blocks.kernelName(volume.device));
        struct statvfs room = {};
        if (::statvfs(encodeName(volume.name).constData(), &room) == 0) {
            mounted.totalBytes = static_cast<qint64>(room.f_blocks) * static_cast<qint64>(room.f_frsize);
            mounted.freeBytes = static_cast<qint64>(room.f_bfree) * static_cast<qint64>(room.f_frsize);
            mounted.isReady = true;
            mounted.identity = volumeIdentityAt(volume.name, m_tree);
        }
        volumes.append(mounted);
    }
    return volumes;
}

} // namespace platform
