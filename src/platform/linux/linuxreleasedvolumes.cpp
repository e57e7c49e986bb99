#include "platform/linux/linuxreleasedvolumes.h"

#include "platform/linux/linuxdevicecalls.h"

#include <QDebug>
#include <QSet>

#include <linux/fs.h>
#include <sys/ioctl.h>

namespace platform {

LinuxReleasedVolumes::~LinuxReleasedVolumes()
{
    if (!m_isSettled)
        LinuxReleasedVolumes::restore();
}

// One name for each volume, whatever the number of its mounts.
QStringList LinuxReleasedVolumes::names() const
{
    QStringList names;
    QSet<QByteArray> seen;
    for (const VolumeTable::Mount &mount : m_mounts.mounts()) {
        if (seen.contains(mount.device))
            continue;
        seen.insert(mount.device);
        names.append(mount.entry.mountPoint);
    }
    return names;
}

QStringList LinuxReleasedVolumes::restore()
{
    m_isSettled = true;
    m_drive = {};
    return m_mounts.putUp();
}

Status LinuxReleasedVolumes::keep()
{
    m_isSettled = true;
    // Without a re-read the system would still offer the old partitions for mounting. The call fails on a
    // drive without partitions, which is harmless.
    if (m_drive.isValid() && deviceCalls().ioctl(m_drive.get(), BLKRRPART, nullptr) != 0)
        qDebug() << "[Mounts] The partition table was not read anew";
    m_drive = {};
    return {};
}

} // namespace platform
