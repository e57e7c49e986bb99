#pragma once

#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxvolume.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace platform {

/// Traces a mount down to its media: an overlay to its layers, an image file to the file system that holds
/// it.
class MediumTrace
{
public:
    explicit MediumTrace(const SystemTree &tree);

    /// The mount points of the block devices below a mount, as Devices::queryVolume takes them. Empty when
    /// none is visible.
    QStringList volumesUnder(const QString &mountPoint) const;

private:
    void follow(const QString &mountPoint, QSet<QString> &seen, QStringList &volumes) const;
    QStringList foldersUnder(const MountEntry &entry, const QByteArray &device) const;

    SystemTree m_tree;
    VolumeTable m_volumes;
};

} // namespace platform
