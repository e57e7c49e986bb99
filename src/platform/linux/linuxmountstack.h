#pragma once

#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxsystemtree.h"
#include "platform/linux/linuxvolume.h"
#include "platform/status.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace platform {

// Mounts that are taken down and put up again as they were: none before what it stands on, otherwise in the
// order in which they were mounted.
class MountStack
{
public:
    MountStack(const SystemTree &tree, QList<VolumeTable::Mount> mounts);

    // The mounts, what stands above others behind them.
    const QList<VolumeTable::Mount> &mounts() const { return m_mounts; }

    // The mount point of one on which another mount stands that does not belong to them; empty when there is
    // none.
    QString pointUnderOther() const;

    // Takes them down, the last one first, and stops where one is in use: its mount point is left in `inUse`.
    Status takeDown(QString &inUse);
    // Puts up again what was taken down. The mount points that stay empty are the answer.
    QStringList putUp();

private:
    bool isStanding(const MountEntry &entry) const;
    bool isUpAgain(qsizetype index) const;
    Status mountAgain(const VolumeTable::Mount &mount) const;

    VolumeTable m_table;
    BlockTree m_blocks;
    QList<VolumeTable::Mount> m_mounts;
    qsizetype m_standing = 0; // so many of them, from the first, are mounted
};

} // namespace platform
