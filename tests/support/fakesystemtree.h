#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A /sys, /proc, /dev and udev database of a machine that does not exist: what the kernel would say of LVM on
// two disks, say, without owning two disks.
class FakeSystemTree
{
public:
    platform::SystemTree tree() const;

    // Size in bytes, number as in "8:0".
    void addDrive(const QString &name, const QByteArray &number, qint64 size, const QByteArray &serial = {});
    void addPartition(const QString &drive, const QString &name, const QByteArray &number, qint64 start,
                      qint64 size);

    // A device-mapper or md device on top of others.
    void addStacked(const QString &name, const QByteArray &number, qint64 size, const QStringList &slaves);
    void addBtrfs(const QString &uuid, const QStringList &members);
    void removeDrive(const QString &name, const QByteArray &number);

    // One attribute, its path below the tree: "sys/block/sda/ro".
    void write(const QString &name, const QByteArray &text);
    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    QString makeDevice(const QString &folder, const QString &name, const QByteArray &number, qint64 size);

    QTemporaryDir m_folder;
};
