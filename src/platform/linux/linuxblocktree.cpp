#include "platform/linux/linuxblocktree.h"

#include "platform/filenames.h"
#include "platform/linux/linuxfilecalls.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace platform {

QString BlockTree::folder(const QByteArray &device) const
{
    return m_tree.sys + QLatin1String("/dev/block/") + QString::fromLatin1(device);
}

bool BlockTree::exists(const QByteArray &device) const
{
    return !device.isEmpty() && QFileInfo::exists(folder(device));
}

QString BlockTree::kernelName(const QByteArray &device) const
{
    return exists(device) ? QFileInfo(QFileInfo(folder(device)).canonicalFilePath()).fileName() : QString();
}

QString BlockTree::node(const QByteArray &device) const
{
    const QString name = kernelName(device);
    // The kernel replaces '/' by '!' in names such as cciss/c0d0.
    return name.isEmpty() ? QString() : m_tree.dev + u'/' + QString(name).replace(u'!', u'/');
}

QByteArray BlockTree::deviceOfNode(const QString &path)
{
    struct stat info = {};
    if (fileCalls().fstatat(AT_FDCWD, encodeName(path).constData(), &info, 0) != 0 || !S_ISBLK(info.st_mode))
        return {};
    return QByteArray::number(major(info.st_rdev)) + ':' + QByteArray::number(minor(info.st_rdev));
}

QByteArray BlockTree::deviceOfName(const QString &kernelName) const
{
    return readAttribute(m_tree.sys + QLatin1String("/class/block/") + kernelName + QLatin1String("/dev"));
}

QList<QByteArray> BlockTree::fileSystemMembers(const QByteArray &device) const
{
    const QString name = kernelName(device);
    const QDir fileSystems(m_tree.sys + QLatin1String("/fs/btrfs"));
    for (const QString &uuid : fileSystems.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QStringList names = QDir(fileSystems.filePath(uuid + QLatin1String("/devices")))
                                      .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        if (!names.contains(name))
            continue;
        QList<QByteArray> members;
        for (const QString &member : names)
            members.append(deviceOfName(member));
        return members;
    }
    return {device};
}

DriveExtent BlockTree::leafExtent(const QByteArray &device) const
{
    const QString path = QFileInfo(folder(device)).canonicalFilePath();
    const qint64 length = readLength(path + QLatin1String("/size"));
    if (!QFileInfo::exists(path + QLatin1String("/partition")))
        return {device, 0, length};
    const QByteArray drive = readAttribute(QFileInfo(path).path() + QLatin1String("/dev"));
    return {drive, readLength(path + QLatin1String("/start")), length};
}

bool BlockTree::isReadOnly(const QByteArray &device) const
{
    return readNumber(folder(device) + QLatin1String("/ro")) != 0;
}

QStringList BlockTree::partitionsOf(const QByteArray &device) const
{
    const QDir whole(folder(device));
    QStringList partitions = whole.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    partitions.removeIf([&whole](const QString &name) {
        return !QFileInfo::exists(whole.filePath(name + QLatin1String("/partition")));
    });
    return partitions;
}

QList<QByteArray> BlockTree::holdersOf(const QByteArray &device) const
{
    QList<QByteArray> holders;
    QList<QByteArray> open{device};
    while (!open.isEmpty()) {
        const QByteArray next = open.takeFirst();
        if (!exists(next))
            continue;
        for (const QString &partition : partitionsOf(next))
            open.append(deviceOfName(partition));
        const QStringList above = QDir(folder(next) + QLatin1String("/holders"))
                                      .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        for (const QString &name : above) {
            const QByteArray holder = deviceOfName(name);
            if (holder.isEmpty())
                continue;
            // A holder that is reached again over a longer path moves further up.
            holders.removeAll(holder);
            holders.append(holder);
            open.append(holder);
        }
    }
    return holders;
}

QList<DriveExtent> BlockTree::extentsOf(const QByteArray &device) const
{
    QList<DriveExtent> extents;
    QList<QByteArray> open{device};
    QSet<QByteArray> seen;
    while (!open.isEmpty()) {
        const QByteArray next = open.takeFirst();
        if (seen.contains(next) || !exists(next))
            continue;
        seen.insert(next);
        const QStringList slaves = QDir(folder(next) + QLatin1String("/slaves"))
                                       .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        for (const QString &slave : slaves)
            open.append(deviceOfName(slave));
        if (!slaves.isEmpty())
            continue;
        const DriveExtent extent = leafExtent(next);
        // A partition of a device that itself has lower devices (md with partitions).
        if (extent.drive != next && !QDir(folder(extent.drive) + QLatin1String("/slaves"))
                                         .isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot))
            open.append(extent.drive);
        else
            extents.append(extent);
    }
    return extents;
}

} // namespace platform
