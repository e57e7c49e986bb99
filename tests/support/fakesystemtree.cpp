#include "support/fakesystemtree.h"

#include "support/testfiles.h"

#include <QDir>
#include <QFile>

platform::SystemTree FakeSystemTree::tree() const
{
    return {path(QStringLiteral("sys")), path(QStringLiteral("proc")), path(QStringLiteral("dev")),
            path(QStringLiteral("udev"))};
}

void FakeSystemTree::addDrive(const QString &name, const QByteArray &number, qint64 size,
                              const QByteArray &serial)
{
    const QString folder = makeDevice(QStringLiteral("sys/devices/") + name, name, number, size);
    QDir(path(QStringLiteral("sys"))).mkpath(QStringLiteral("block"));
    QFile::link(path(folder), path(QStringLiteral("sys/block/") + name));
    write(folder + QStringLiteral("/queue/logical_block_size"), "512\n");
    write(folder + QStringLiteral("/queue/rotational"), "1\n");
    if (!serial.isEmpty())
        write(folder + QStringLiteral("/device/serial"), serial + '\n');
}

void FakeSystemTree::addPartition(const QString &drive, const QString &name, const QByteArray &number,
                                  qint64 start, qint64 size)
{
    const QString folder =
        makeDevice(QStringLiteral("sys/devices/%1/%2").arg(drive, name), name, number, size);
    write(folder + QStringLiteral("/partition"), "1\n");
    write(folder + QStringLiteral("/start"), QByteArray::number(start / 512) + '\n');
}

void FakeSystemTree::addStacked(const QString &name, const QByteArray &number, qint64 size,
                                const QStringList &slaves)
{
    addDrive(name, number, size);
    for (const QString &slave : slaves)
        QDir().mkpath(path(QStringLiteral("sys/devices/%1/slaves/%2").arg(name, slave)));
    for (const QString &slave : slaves)
        QDir().mkpath(path(QStringLiteral("sys/class/block/%1/holders/%2").arg(slave, name)));
}

void FakeSystemTree::addBtrfs(const QString &uuid, const QStringList &members)
{
    for (const QString &member : members)
        QDir().mkpath(path(QStringLiteral("sys/fs/btrfs/%1/devices/%2").arg(uuid, member)));
}

void FakeSystemTree::removeDrive(const QString &name, const QByteArray &number)
{
    QFile::remove(path(QStringLiteral("sys/block/") + name));
    QFile::remove(path(QStringLiteral("sys/class/block/") + name));
    QFile::remove(path(QStringLiteral("sys/dev/block/") + QString::fromLatin1(number)));
    QDir(path(QStringLiteral("sys/devices/") + name)).removeRecursively();
}

void FakeSystemTree::write(const QString &name, const QByteArray &text)
{
    writeFile(path(name), text);
}

QString FakeSystemTree::makeDevice(const QString &folder, const QString &name, const QByteArray &number,
                                   qint64 size)
{
    write(folder + QStringLiteral("/dev"), number + '\n');
    write(folder + QStringLiteral("/size"), QByteArray::number(size / 512) + '\n');
    for (const QString &parent : {QStringLiteral("sys/class/block"), QStringLiteral("sys/dev/block")})
        QDir().mkpath(path(parent));
    QFile::link(path(folder), path(QStringLiteral("sys/class/block/") + name));
    QFile::link(path(folder), path(QStringLiteral("sys/dev/block/") + QString::fromLatin1(number)));
    return folder;
}
