#include "platform/linux/linuxmediumtrace.h"

#include "platform/filenames.h"
#include "platform/linux/linuxmounttable.h"

namespace platform {

MediumTrace::MediumTrace(const SystemTree &tree)
    : m_tree(tree)
    , m_volumes(tree)
{}

QStringList MediumTrace::volumesUnder(const QString &mountPoint) const
{
    QSet<QString> seen;
    QStringList volumes;
    follow(mountPoint, seen, volumes);
    return volumes;
}

void MediumTrace::follow(const QString &mountPoint, QSet<QString> &seen, QStringList &volumes) const
{
    if (mountPoint.isEmpty() || seen.contains(mountPoint))
        return;
    seen.insert(mountPoint);
    const VolumeTable::Volume volume = m_volumes.byName(mountPoint);
    if (!volume.isMounted)
        return;
    if (!volume.device.isEmpty())
        volumes.append(mountPoint);
    for (const QString &folder : foldersUnder(m_volumes.entryOver(mountPoint), volume.device))
        follow(m_volumes.entryOver(folder).mountPoint, seen, volumes);
}

QStringList MediumTrace::foldersUnder(const MountEntry &entry, const QByteArray &device) const
{
    if (!device.isEmpty()) {
        const QByteArray file =
            readAttribute(m_tree.sys + QLatin1String("/dev/block/") + QString::fromLatin1(device) +
                          QLatin1String("/loop/backing_file"));
        return file.isEmpty() ? QStringList() : QStringList{decodeName(file)};
    }
    QStringList folders;
    if (entry.fileSystem != "overlay")
        return folders;
    for (const QString &option : entry.options.split(u',')) {
        const qsizetype equals = option.indexOf(u'=');
        const QString name = option.left(equals);
        if (name == QLatin1String("lowerdir") || name == QLatin1String("upperdir"))
            folders += option.mid(equals + 1).split(u':', Qt::SkipEmptyParts);
    }
    return folders;
}

} // namespace platform
