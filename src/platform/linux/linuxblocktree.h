#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace platform {

/// A part of a whole drive that lies below a block device.
struct DriveExtent
{
    QByteArray drive;          ///< device number of the whole drive, "8:0"
    qint64 startingOffset = 0; ///< bytes
    qint64 length = 0;         ///< bytes

    bool operator==(const DriveExtent &) const = default;
};

/// The stacking of block devices, read from /sys at each call. Devices are identified by their numbers,
/// "8:1".
class BlockTree
{
public:
    explicit BlockTree(SystemTree tree)
        : m_tree(std::move(tree))
    {}

    bool exists(const QByteArray &device) const;
    /// The kernel's name of the device, "sda1" or "dm-0"; empty when the device is gone.
    QString kernelName(const QByteArray &device) const;
    /// The device's node, "/dev/sda1"; empty when the device is gone.
    QString node(const QByteArray &device) const;
    /// The device number of a node or of a link to one; empty when the path is no block device.
    static QByteArray deviceOfNode(const QString &path);
    /// The device number for a kernel name; empty when there is none.
    QByteArray deviceOfName(const QString &kernelName) const;

    /// The members of the btrfs file system that the device belongs to; at least the device itself.
    QList<QByteArray> fileSystemMembers(const QByteArray &device) const;

    /// The drives below a device, through partitions, LVM, dm-crypt and md, each extent once. A whole drive
    /// is its own only extent.
    QList<DriveExtent> extentsOf(const QByteArray &device) const;

    /// The devices that are built on a device or on its partitions, every device after those below it.
    QList<QByteArray> holdersOf(const QByteArray &device) const;
    bool isReadOnly(const QByteArray &device) const;

private:
    QStringList partitionsOf(const QByteArray &device) const;
    QString folder(const QByteArray &device) const;
    DriveExtent leafExtent(const QByteArray &device) const;

    SystemTree m_tree;
};

} // namespace platform
