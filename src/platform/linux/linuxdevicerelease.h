#pragma once

#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxvolume.h"

#include <QByteArray>
#include <QStringList>

namespace platform {

// Who stands on a block device, and how it is got rid of.
class DeviceRelease
{
public:
    explicit DeviceRelease(const SystemTree &tree);

    // What is built on the device or a partition of it, the lowest first: "LUKS secret", "LVM vg-data",
    // "RAID md0".
    QStringList holders(const QByteArray &device) const;
    // Takes all of that down, the highest first.
    QStringList commands(const QByteArray &device) const;
    // Unmounts the file system of the device everywhere.
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
