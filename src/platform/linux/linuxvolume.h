#pragma once

#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxmounttable.h"
#include "platform/linux/linuxrawdevice.h"
#include "platform/linux/linuxsystemtree.h"

#include <QList>

namespace platform {

/// The mounts of block devices in a mount table, and the devices below them.
class VolumeTable
{
public:
    explicit VolumeTable(const SystemTree &tree);

    struct Volume
    {
        QString name;      ///< mount point, or the node of an unmounted volume
        QByteArray device; ///< the block device
        QByteArray fileSystem;
        bool isMounted = false;
    };

    /// A mount and the block device of its file system.
    struct Mount
    {
        MountEntry entry;
        QByteArray device;
    };
    /// Every mount of a block device, in mount order.
    QList<Mount> mounts() const;
    /// Every mount in the table.
    QList<MountEntry> entries() const;

    /// One volume per device, under its first mount point, in mount order.
    QList<Volume> mounted() const;
    /// By mount point or node; the device is empty when there is no such volume.
    Volume byName(const QString &name) const;
    /// The mount that a path lies on, the latest one where several share a mount point.
    MountEntry entryOver(const QString &path) const;
    /// The mount point of the block device that holds the file (a swap file, for example); empty when there
    /// is none.
    QString mountPointOver(const QString &path) const;
    /// All mount points of the device's file system, the latest mount first.
    QStringList mountPointsOf(const QByteArray &device) const;

private:
    QByteArray deviceOf(const MountEntry &entry) const;

    SystemTree m_tree;
    BlockTree m_blocks;
};

/// A volume opened for raw transfers. write() works only while the volume is unmounted and held exclusively,
/// which lock() and dismount() ensure.
class LinuxVolumeDevice : public LinuxTransfers<VolumeDevice>
{
public:
    LinuxVolumeDevice(BlockTransfers transfers, VolumeTable table, QByteArray device, QString node);

    Result<qint64> write(const void *data, qint64 size) override;
    Status lock() override;
    Status dismount() override;
    Status allowExtendedIo() override { return {}; }
    Status unlock() override;

private:
    Status unmountEverywhere();
    Status reopen(bool exclusive);

    VolumeTable m_table;
    QByteArray m_device;
    QString m_node;
    bool m_isExclusive = false;
};

} // namespace platform
