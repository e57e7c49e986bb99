#pragma once

#include "engine/basewipeworker.h"
#include "engine/diskpass.h"
#include "platform/devices.h"

#include <chrono>
#include <memory>
#include <utility>

/// Overwrites the disk of its task: locks and dismounts every volume on it, opens the drive and writes the
/// passes. While a volume is held, the passes go through the volumes and the bytes outside them stay. The
/// drive itself is written when no volume is found on it. A partition wipe is the same job, with every volume
/// of that disk.
///
/// A whole-drive job takes no volume; it fails when the drive still has one. When nothing was written, it
/// gives the volumes released for it back.
///
/// Before finished() the worker writes its results into the task's report: the sectors that received every
/// pass, and the samples read back.
class DiskWipeWorker : public BaseWipeWorker
{
    Q_OBJECT

public:
    explicit DiskWipeWorker(WipeTask *task, QObject *parent = nullptr);
    ~DiskWipeWorker() override;

    /// The volumes that were released for a whole-drive job. To be set before process().
    void setReleasedVolumes(std::unique_ptr<platform::ReleasedVolumes> volumes)
    {
        m_released = std::move(volumes);
    }

    /// The wait after each failed attempt to lock a volume, 500 ms unless set before process().
    std::chrono::milliseconds lockRetryDelay() const { return m_medium.volumes.lockRetryDelay(); }
    void setLockRetryDelay(std::chrono::milliseconds delay) { m_medium.volumes.setLockRetryDelay(delay); }

public slots:
    void process() override;

private:
    bool run() override;
    void complete() override;
    bool cancelled();
    void noteTarget();
    bool lockVolumes();
    bool checkVolumesAreGone();
    bool measureDisk();
    platform::Status openDisk();
    bool measureVolumes();
    bool writePasses();
    bool writePass(const PassPattern &pattern);
    static QString patternLabel(const PassPattern &pattern);
    void closeDevices();
    void releaseVolumes();
    void settleReleasedVolumes();
    void noteUnreachedEnd();
    void fillReport();
    void noteShortfalls(quint64 wipedSectors);

    void diagnose(const platform::Status &failure) override;

    DiskMedium m_medium{.drive = {}, .volumes = HeldVolumes(*this)};
    DiskPass m_pass;
    std::unique_ptr<platform::ReleasedVolumes> m_released;
    bool m_writesVolumes = false; ///< a volume is held when the passes begin
};
