#pragma once

#include "engine/basewipeworker.h"
#include "platform/files.h"
#include "platform/status.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>

class ChunkPipeline;
struct DiskInfo;
struct PartitionInfo;

// Overwrites the unused space of one or more volumes and leaves their files alone: each pass fills the volume
// with temporary files until only a reserve is free, and at the end many small files and folders are made and
// deleted, so that the file system's records of deleted files are used again.
//
// The task names a volume, or a disk all of whose mounted volumes are wiped one after the other. The first
// volume that fails ends the job. Whatever ends it, no fill file stays behind.
class FreeSpaceWipeWorker : public BaseWipeWorker
{
    Q_OBJECT

public:
    explicit FreeSpaceWipeWorker(WipeTask *task, QObject *parent = nullptr);
    ~FreeSpaceWipeWorker() override;

    // The first volume whose first extent lies on the drive, as Devices names it; empty when there is none.
    static QString findDriveForDisk(int diskNumber);

    // How many bytes of a volume's free space are never filled.
    static qint64 reserveFor(const QString &root);

public slots:
    void process() override;

protected:
    // How long deleted files may keep their space while nothing of it comes back, and how often that is
    // looked at.
    std::chrono::milliseconds m_releasePatience{60'000};
    std::chrono::milliseconds m_releasePoll{100};

private:
    struct FillFile
    {
        QString path;
        qint64 bytes = 0;
    };
    // One pass over the free space of the current volume. Sizes are bytes.
    struct Fill
    {
        ChunkPipeline &chunks;
        qint64 chunkLimit = 0;
        qint64 reserve = 0;   // to stay free
        qint64 written = 0;   // and flushed
        qint64 lastFree = -1; // before the last chunk
        qint64 givenBack = 0; // by others meanwhile
    };

    bool run() override;
    void complete() override;
    QStringList volumesOf(const PartitionInfo &partition);
    QStringList volumesOf(const DiskInfo &disk);
    bool wipeVolumes(const QStringList &volumes);

    bool wipeVolume(const QString &root);
    static platform::Status checkMounted(const QString &root);
    bool cleanUpAfterCrash();
    platform::Result<qint64> settledFreeBytes();
    bool createTemporaryFolder();
    bool runPasses();
    static QString patternLabel(const PassPattern &pattern);
    platform::Status removeTemporaries();
    qint64 removeFillFiles();

    bool reclaimSpace();
    static platform::Result<qint64> freeBytes(const QString &path);
    bool waitForSpace(const QString &path, qint64 before, qint64 released);
    bool fillFreeSpace(const PassPattern &pattern, ChunkPipeline &chunks);
    qint64 reserveForVolume();
    bool writeFillFiles(Fill &fill);
    void noteRoomLeft(const Fill &fill);
    bool endsWithoutFile(const platform::Status &status, const Fill &fill);
    bool writeFillFile(platform::FileHandle &file, Fill &fill, qint64 &bytesInFile);
    platform::Result<qint64> writeChunk(platform::FileHandle &file, const Fill &fill, qint64 size,
                                        qint64 nextSize);
    bool countFilled(const Fill &fill);
    static bool isVolumeGone(quint32 code);
    void logVolumeGone(const platform::Status &status);
    bool failVolumeGone(const platform::Status &status);

    void cleanResidue();
    platform::Status cleanFileRecords();
    platform::Status cleanDirectoryEntries();
    platform::Status removeResidueFolder(const QString &folder);

    QString m_root; // of the current volume, ends in "/" or "\"
    QString m_temporaryFolder;
    qint64 m_freeAtStart = 0;    // bytes
    QList<FillFile> m_fillFiles; // of the current pass
    qint64 m_freeBeforePass = 0; // bytes
    qint64 m_filledInPass = 0;   // bytes that the space gave up for the current pass
    quint64 m_wipedSectors = 0;  // 512-byte units, over all volumes
};
