#include "engine/diskwipeworker.h"

#include "model/displaytext.h"
#include "model/wipetask.h"
#include "platform/platform.h"

#include <utility>

namespace {
constexpr int LockAttempts = 30;
}

bool DiskWipeWorker::lockVolumes()
{
    const QStringList names = findVolumes();
    if (names.isEmpty()) {
        note(tr("警告: 未找到任何卷，可能是无分区磁盘"), Warning);
        return true;
    }
    for (const QString &name : names) {
        if (isStopRequested())
            break;
        holdVolume(name);
    }
    return !m_volumes.empty();
}

QStringList DiskWipeWorker::findVolumes()
{
    const int number = task().disk().diskNumber;
    note(tr("正在查找磁盘 %1 上的卷...").arg(number));
    platform::Devices &devices = platform::Platform::current().devices();
    QStringList found;
    for (const QString &name : devices.volumeNames()) {
        const auto query = devices.queryVolume(name);
        if (!query)
            continue;
        const auto extents = query.value()->extents(platform::ManyExtents);
        if (!extents || extents.value().isEmpty() || extents.value().first().diskNumber != number)
            continue;
        found.append(name);
        QString shown = displayText(name);
        if (shown.endsWith(QLatin1Char(':')))
            shown.chop(1);
        note(tr("找到卷: %1:").arg(shown));
    }
    note(tr("共找到 %1 个需要锁定的卷").arg(found.size()));
    return found;
}

void DiskWipeWorker::holdVolume(const QString &name)
{
    const QString shownName = displayText(name);
    note(tr("正在处理卷: %1").arg(shownName));
    auto opened = platform::Platform::current().devices().openVolume(name, identity());
    if (!opened) {
        note(tr("无法打开卷 %1，错误码: %2").arg(shownName, QString::number(opened.code())), Error);
        diagnose(opened.status());
        return;
    }
    // Held from here on, so that every way out releases it.
    m_volumes.push_back({opened.take()});
    platform::VolumeDevice &volume = *m_volumes.back().device;
    lockVolume(volume, shownName);
    if (isStopRequested())
        return;
    dismountVolume(volume, shownName);
    // Without it the last sectors of some volumes are out of reach; writing tells.
    static_cast<void>(volume.allowExtendedIo());
}

void DiskWipeWorker::lockVolume(platform::VolumeDevice &volume, const QString &shownName)
{
    note(tr("正在锁定卷 %1...").arg(shownName));
    platform::Status locked;
    for (int attempt = 0; attempt < LockAttempts; ++attempt) {
        locked = volume.lock();
        if (locked) {
            note(tr("卷 %1 锁定成功").arg(shownName));
            return;
        }
        if (!waitUnlessStopped(m_lockRetryDelay))
            return;
    }
    note(tr("警告: 卷 %1 锁定失败，错误码: %2").arg(shownName, QString::number(locked.code)), Warning);
    diagnose(locked);
}

void DiskWipeWorker::dismountVolume(platform::VolumeDevice &volume, const QString &shownName)
{
    note(tr("正在卸载卷 %1...").arg(shownName));
    const platform::Status dismounted = volume.dismount();
    if (dismounted) {
        note(tr("卷 %1 卸载成功").arg(shownName));
        return;
    }
    note(tr("警告: 卷 %1 卸载失败，错误码: %2").arg(shownName, QString::number(dismounted.code)), Warning);
    diagnose(dismounted);
}

void DiskWipeWorker::releaseVolumes()
{
    for (HeldVolume &volume : m_volumes) {
        // Closing the handle ends the lock as well.
        static_cast<void>(volume.device->unlock());
        volume.device.reset();
    }
    m_volumes.clear();
}
