#pragma once

#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxsystemtree.h"
#include "platform/linux/linuxvolume.h"
#include "platform/status.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace platform {

/// Mounts that are unmounted and mounted again as they were. Every mount comes after the mount that it stands
/// on, otherwise in the order of mounting.
class MountStack
{
public:
    MountStack(const SystemTree &tree, QList<VolumeTable::Mount> mounts);

    /// The mounts, the lower ones first.
    const QList<VolumeTable::Mount> &mounts() const { return m_mounts; }

    /// The mount point of a mount in the stack below a mount outside it; empty when there is none.
    QString pointUnderOther() const;

    /// Unmounts the stack, the last mount first, and stops at the first mount in use, whose mount point is
    /// stored in `inUse`.
    Status takeDown(QString &inUse);
    /// Mounts the unmounted ones again, and returns the mount points that stay empty.
    QStringList putUp();

private:
    bool isStanding(const MountEntry &entry) const;
    bool isUpAgain(qsizetype index) const;
    Status mountAgain(const VolumeTable::Mount &mount) const;

    VolumeTable m_table;
    BlockTree m_blocks;
    QList<VolumeTable::Mount> m_mounts;
    qsizetype m_standing = 0; ///< number of mounts, counted from the first, that are mounted
};

} // namespace platform
