#include "engine/volumespace.h"

#include "model/units.h"
#include "platform/devicefailure.h"

#include <QDeadlineTimer>
#include <QDebug>

#include <algorithm>

namespace {

// Limits the wait when another program keeps deleting files.
constexpr std::chrono::seconds SettlePatience{10};

} // namespace

platform::Result<qint64> freeBytesOf(platform::AnchoredFolder &folder)
{
    const auto space = folder.space();
    if (!space)
        return space.status();
    return space.value().freeBytes;
}

// Space freed just before the job has to be filled as well, but some file systems (XFS) count it as free only
// moments later. So the figure has to stay the same for one poll.
platform::Result<qint64> VolumeSpace::settled(const FreeBytes &freeBytes)
{
    const QDeadlineTimer patience(SettlePatience);
    auto free = freeBytes();
    while (free && !patience.hasExpired() && m_job.wait(m_waits.poll)) {
        const qint64 last = free.value();
        free = freeBytes();
        if (free && free.value() <= last)
            break;
    }
    return free;
}

// Some file systems release the space of deleted files later (XFS in the background, Btrfs with its next
// commit). A pass that began at once would find the volume full, and end as done with nothing written.
bool VolumeSpace::waitFor(const FreeBytes &freeBytes, qint64 before, qint64 released)
{
    const qint64 takenByOthers = std::max(released / 16, std::min(released / 2, 64 * MiB));
    const qint64 expected = before + released - takenByOthers;
    qint64 most = before;
    QDeadlineTimer patience(m_waits.patience);
    while (released > 0) {
        const auto free = freeBytes();
        if (!free) {
            noteGone(free.status());
            return false;
        }
        if (free.value() >= expected)
            break;
        if (free.value() > most) {
            most = free.value();
            patience = QDeadlineTimer(m_waits.patience);
        }
        if (patience.hasExpired()) {
            m_job.note(tr("已删除的填充文件没有释放空间，无法继续覆写"), RunningJob::Error);
            return false;
        }
        if (!m_job.wait(m_waits.poll))
            break;
    }
    return true;
}

bool VolumeSpace::isGone(quint32 code)
{
    switch (code) {
    case platform::FileNotFound: // at the mount point of an unmounted volume
    case platform::PathNotFound:
    case platform::WriteProtect: // after an error a file system becomes read-only
        return true;
    default:
        return platform::isDeviceGone(code) || platform::isMediumFault(code);
    }
}

void VolumeSpace::noteGone(const platform::Status &status)
{
    qDebug().noquote() << "[FreeSpaceWipe] volume gone" << m_root << status.diagnostic();
    m_job.note(tr("卷不再可用，错误码: %1").arg(status.code), RunningJob::Error);
}
