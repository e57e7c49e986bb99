#include "engine/heldvolumes.h"

#include "engine/failurewords.h"
#include "model/displaytext.h"
#include "platform/devicefailure.h"
#include "platform/platform.h"
#include "platform/storagereplies.h"

#include <utility>

namespace {
constexpr int LockAttempts = 30;
}

HeldVolumes::HeldVolumes(RunningJob &job)
    : m_job(job)
{}

bool HeldVolumes::lock(const platform::DriveIdentity &drive)
{
    const QList<Found> volumes = find(drive.number);
    if (volumes.isEmpty()) {
        noteNone();
        return true;
    }
    for (const Found &volume : volumes) {
        if (m_job.isStopping())
            break;
        hold(volume, drive);
    }
    return !m_volumes.empty();
}

void HeldVolumes::noteNone()
{
    m_job.note(tr("警告: 未找到任何卷，可能是无分区磁盘"), RunningJob::Warning);
}

QStringList HeldVolumes::inSight(int driveNumber)
{
    QStringList names;
    for (const Found &volume : find(driveNumber))
        names.append(volume.name);
    if (names.isEmpty())
        noteNone();
    return names;
}

QList<HeldVolumes::Found> HeldVolumes::find(int driveNumber)
{
    m_job.note(tr("正在查找磁盘 %1 上的卷...").arg(driveNumber));
    platform::Devices &devices = platform::Platform::current().devices();
    QList<Found> found;
    for (const QString &name : devices.volumeNames()) {
        const auto query = devices.queryVolume(name);
        if (!query)
            continue;
        const auto extents = platform::allExtents(*query.value());
        if (!extents || extents.value().isEmpty() || extents.value().first().diskNumber != driveNumber)
            continue;
        found.append({name, extents.value()});
        QString shown = displayText(name);
        if (shown.endsWith(QLatin1Char(':')))
            shown.chop(1);
        m_job.note(tr("找到卷: %1:").arg(shown));
    }
    m_job.note(tr("共找到 %1 个需要锁定的卷").arg(found.size()));
    return found;
}

void HeldVolumes::hold(const Found &found, const platform::DriveIdentity &drive)
{
    const QString shownName = displayText(found.name);
    m_job.note(tr("正在处理卷: %1").arg(shownName));
    auto opened = platform::Platform::current().devices().openVolume(found.name, drive);
    if (!opened) {
        m_job.note(tr("无法打开卷 %1，错误码: %2").arg(shownName, QString::number(opened.code())),
                   RunningJob::Error);
        if (platform::isLockedByEncryption(opened.code()))
            m_job.note(FailureWords::of(opened.code()), RunningJob::Error);
        m_job.diagnose(opened.status());
        m_job.noteShortfall({.kind = ShortfallKind::VolumeNotOpened, .place = found.name});
        return;
    }
    // Listed before locking, so that every return path releases it.
    m_volumes.push_back({.name = found.name, .device = opened.take(), .extents = found.extents});
    platform::VolumeDevice &volume = *m_volumes.back().device;
    m_volumes.back().isLocked = lockVolume(volume, shownName);
    if (m_job.isStopping())
        return;
    if (dismountVolume(volume, shownName))
        m_dismounted.append(found.name);
    // After a refusal the last sectors of some volumes are out of reach, which the pass detects.
    static_cast<void>(volume.allowExtendedIo());
}

bool HeldVolumes::lockVolume(platform::VolumeDevice &volume, const QString &shownName)
{
    m_job.note(tr("正在锁定卷 %1...").arg(shownName));
    platform::Status locked;
    for (int attempt = 0; attempt < LockAttempts; ++attempt) {
        locked = volume.lock();
        if (locked) {
            m_job.note(tr("卷 %1 锁定成功").arg(shownName));
            return true;
        }
        if (!m_job.wait(m_lockRetryDelay))
            return false;
    }
    m_job.note(tr("警告: 卷 %1 锁定失败，错误码: %2").arg(shownName, QString::number(locked.code)),
               RunningJob::Warning);
    m_job.diagnose(locked);
    return false;
}

bool HeldVolumes::dismountVolume(platform::VolumeDevice &volume, const QString &shownName)
{
    m_job.note(tr("正在卸载卷 %1...").arg(shownName));
    const platform::Status dismounted = volume.dismount();
    if (dismounted) {
        m_job.note(tr("卷 %1 卸载成功").arg(shownName));
        return true;
    }
    m_job.note(tr("警告: 卷 %1 卸载失败，错误码: %2").arg(shownName, QString::number(dismounted.code)),
               RunningJob::Warning);
    m_job.diagnose(dismounted);
    return false;
}

void HeldVolumes::release()
{
    for (Volume &volume : m_volumes) {
        // Closing the handle ends the lock as well.
        static_cast<void>(volume.device->unlock());
        volume.device.reset();
    }
    m_volumes.clear();
}
