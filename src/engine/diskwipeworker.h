#pragma once

#include "engine/basewipeworker.h"
#include "engine/chunkpipeline.h"
#include "engine/diskverification.h"
#include "engine/wipecoverage.h"
#include "platform/devices.h"

#include <QStringList>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

// Overwrites the disk of its task: locks and dismounts every volume on it, opens the drive and writes the
// passes. As long as a volume is held, they are written through the volumes and what lies outside them stays;
// the drive itself is written when no volume is found on it. A partition wipe is the same job, with every
// volume of that disk.
//
// What the job did goes into the task's report before finished(): the sectors that received every pass, and
// the samples read back.
class DiskWipeWorker : public BaseWipeWorker
{
    Q_OBJECT

public:
    explicit DiskWipeWorker(WipeTask *task, QObject *parent = nullptr);
    ~DiskWipeWorker() override;

    // The wait after each failed attempt to lock a volume, 500 ms unless set before process().
    std::chrono::milliseconds lockRetryDelay() const { return m_lockRetryDelay; }
    void setLockRetryDelay(std::chrono::milliseconds delay) { m_lockRetryDelay = delay; }

public slots:
    void process() override;

private:
    struct HeldVolume
    {
        std::unique_ptr<platform::VolumeDevice> device;
        qint64 readable = 0; // bytes that a verification may expect to read, after a pass
    };
    enum class VolumeEnd { Complete, Boundary, Stopped, Failed };

    // diskwipeworker.cpp: the job
    bool run();
    bool cancelled();
    void noteTarget();
    bool measureDisk();
    platform::Status openDisk();
    bool measureVolumes();
    bool writePasses();
    static QString patternLabel(const PassPattern &pattern);
    void closeDevices();
    void fillReport();
    void noteShortfalls(quint64 wipedSectors);
    void note(const QString &message, LogLevel level = Information) { emit logMessage(message, level); }

    // diskwipevolumes.cpp: finding, locking and releasing volumes
    bool lockVolumes();
    QStringList findVolumes();
    void holdVolume(const QString &name);
    void lockVolume(platform::VolumeDevice &volume, const QString &shownName);
    void dismountVolume(platform::VolumeDevice &volume, const QString &shownName);
    void releaseVolumes();

    // diskwipepass.cpp: writing and reading back one pass
    bool writePass(const PassPattern &pattern);
    bool writeDrive(qint64 &covered);
    bool writeDriveChunks(qint64 &offset);
    bool writeVolumes(QList<qint64> &covered);
    bool writeVolume(qsizetype index, qint64 &total, qint64 &covered);
    VolumeEnd writeVolumeChunks(platform::VolumeDevice &volume, qint64 size, qint64 &position, qint64 &total);
    VolumeEnd endOfVolume(const platform::Status &failure, qint64 position);
    bool flushDevice(platform::RawDevice &device);
    bool verifyPass(const PassPattern &pattern);
    qint64 bufferSize() const;
    qint64 chunkSize(qint64 remaining) const;

    platform::DriveIdentity identity() const;
    static void diagnose(const platform::Status &failure);

    std::unique_ptr<platform::RawDevice> m_drive;
    std::vector<HeldVolume> m_volumes; // in the order in which they were found
    bool m_writesVolumes = false;      // as long as a volume is held when the passes begin
    qint64 m_diskSize = 0;
    qint32 m_sectorSize = 512;
    quint64 m_sectorCount = 0;

    std::optional<ChunkPipeline> m_chunks; // while passes are written
    DiskVerification m_verification;
    WipeCoverage m_coverage;
    std::chrono::milliseconds m_lockRetryDelay{500};
};
