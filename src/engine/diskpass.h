#pragma once

#include "engine/chunkpipeline.h"
#include "engine/diskverification.h"
#include "engine/heldvolumes.h"
#include "engine/runningjob.h"
#include "engine/wipecoverage.h"
#include "platform/devices.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <optional>

class WipeTask;

/// The targets of a disk job: the volumes while one is held, else the drive itself.
struct DiskMedium
{
    std::unique_ptr<platform::RawDevice> drive; ///< null when it could not be opened
    HeldVolumes volumes;
    qint64 size = 0; ///< bytes
    qint32 sectorSize = 512;

    qint64 sectorCount() const { return size / sectorSize; }
};

/// Writes the passes of a disk job one after the other, reads them back where the method asks for it, and
/// records how far each pass came. One thread.
class DiskPass
{
    Q_DECLARE_TR_FUNCTIONS(DiskWipeWorker)

public:
    /// All parameters outlive the object.
    DiskPass(RunningJob &job, const WipeTask &task, DiskMedium &medium);

    /// Writes one pass. Also true when a stop ended it.
    bool write(const PassPattern &pattern);
    /// Frees the write buffers after the last pass.
    void releaseBuffers() { m_chunks.reset(); }

    /// Whether the medium may have changed; true from the first attempt to write to it.
    bool hasBegun() const { return m_hasBegun; }

    /// Results over all passes so far.
    const WipeCoverage &coverage() const { return m_coverage; }
    const DiskVerification &verification() const { return m_verification; }

private:
    enum class VolumeEnd { Complete, Boundary, Stopped, Failed };

    bool writeDrive();
    bool writeDriveChunks(qint64 &offset);
    bool writeVolumes();
    bool writeVolume(qsizetype index, qint64 &total);
    void noteUncovered(qsizetype index, qint64 bytes);
    VolumeEnd writeVolumeChunks(platform::VolumeDevice &volume, qint64 size, qint64 &position, qint64 &total);
    VolumeEnd endOfVolume(const platform::Status &failure, qint64 position);
    void noteMeaning(const platform::Status &failure);
    bool flush(platform::RawDevice &device);
    bool verify(const PassPattern &pattern);
    qint64 bufferSize() const;
    qint64 chunkSize(qint64 remaining) const;

    RunningJob &m_job;
    const WipeTask &m_task;
    DiskMedium &m_medium;
    std::optional<ChunkPipeline> m_chunks;
    DiskVerification m_verification;
    WipeCoverage m_coverage;
    bool m_hasBegun = false;
};
