#pragma once

#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxvolume.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace platform {

// Follows what is mounted on a place down to the media that it needs: an overlay to the folders that it lays
// over one another, an image file to the file system that holds it.
class MediumTrace
{
public:
    explicit MediumTrace(const SystemTree &tree);

    // The mount points of block devices that hold what is mounted there, as Devices::queryVolume takes them.
    // Empty when there are none in sight.
    QStringList volumesUnder(const QString &mountPoint) const;

private:
    void follow(const QString &mountPoint, QSet<QString> &seen, QStringList &volumes) const;
    QStringList foldersUnder(const MountEntry &entry, const QByteArray &device) const;

    SystemTree m_tree;
    VolumeTable m_volumes;
};

} // namespace platform
