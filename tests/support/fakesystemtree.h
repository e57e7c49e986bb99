#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// The /sys, /proc, /dev and udev database of an invented machine, for setups such as LVM on two disks that
// the test machine lacks.
class FakeSystemTree
{
public:
    platform::SystemTree tree() const;

    // Size in bytes; the number has the form "8:0".
    void addDrive(const QString &name, const QByteArray &number, qint64 size, const QByteArray &serial = {});
    void addPartition(const QString &drive, const QString &name, const QByteArray &number, qint64 start,
                      qint64 size);

    // A device-mapper or md device on top of others.
    void addStacked(const QString &name, const QByteArray &number, qint64 size, const QStringList &slaves);
    void addBtrfs(const QString &uuid, const QStringList &members);
    void removeDrive(const QString &name, const QByteArray &number);

    // Writes one attribute. Its path is relative to the tree: "sys/block/sda/ro".
    void write(const QString &name, const QByteArray &text);
    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    QString makeDevice(const QString &folder, const QString &name, const QByteArray &number, qint64 size);

    QTemporaryDir m_folder;
};
