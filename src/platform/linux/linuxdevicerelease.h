#pragma once

#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxvolume.h"

#include <QByteArray>
#include <QStringList>

namespace platform {

/// The layers on a block device, and the commands that remove them.
class DeviceRelease
{
public:
    explicit DeviceRelease(const SystemTree &tree);

    /// The layers on the device or a partition of it, the lowest first: "LUKS secret", "LVM vg-data", "RAID
    /// md0".
    QStringList holders(const QByteArray &device) const;
    /// The commands that remove all these layers, the highest first.
    QStringList commands(const QByteArray &device) const;
    /// The commands that unmount the device's file system everywhere.
    QStringList unmountCommands(const QByteArray &device) const;

private:
    QString mappedName(const QByteArray &device) const;
    QString description(const QByteArray &device) const;
    QString command(const QByteArray &device) const;

    SystemTree m_tree;
    BlockTree m_blocks;
    VolumeTable m_volumes;
};

} // namespace platform
