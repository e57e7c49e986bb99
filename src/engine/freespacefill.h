#pragma once

#include "engine/chunkpipeline.h"
#include "engine/runningjob.h"
#include "model/wipemethod.h"
#include "platform/files.h"
#include "platform/status.h"

#include <QCoreApplication>
#include <QString>

class FillFolder;
class VolumeSpace;

/// The passes over the free space of one volume. Each pass fills it with files until only a reserve is free.
/// Sizes are bytes. One thread.
class FreeSpaceFill
{
    Q_DECLARE_TR_FUNCTIONS(FreeSpaceWipeWorker)

public:
    struct Volume
    {
        QString root;
        qint64 freeAtStart = 0;
        qint64 chunkLimit = 0; ///< largest single write
    };

    /// All parameters outlive the object.
    FreeSpaceFill(RunningJob &job, FillFolder &folder, VolumeSpace &space, const Volume &volume);

    /// The part of a volume's free space that is never filled.
    static qint64 reserveFor(const QString &root);

    /// Deletes the files of the previous pass and waits until their space can be filled again.
    bool reclaim();
    /// Writes one pass. Also true when a stop ended it.
    bool write(const PassPattern &pattern);
    /// The free space that the pass took up.
    qint64 filled() const { return m_filled; }

private:
    struct Pass
    {
        qint64 reserve = 0;   ///< to stay free
        qint64 written = 0;   ///< and flushed
        qint64 lastFree = -1; ///< before the last chunk
        qint64 givenBack = 0; ///< by other programs meanwhile
    };

    qint64 noteReserve();
    bool writeFiles();
    bool writeFile(platform::FileHandle &file, qint64 &bytesInFile);
    platform::Result<qint64> writeChunk(platform::FileHandle &file, qint64 size, qint64 nextSize);
    bool countFilled();
    bool noteRoomLeft();
    bool endWithoutFile(const platform::Status &status);

    RunningJob &m_job;
    FillFolder &m_folder;
    VolumeSpace &m_space;
    const Volume m_volume;
    ChunkPipeline m_chunks;
    Pass m_pass;
    qint64 m_freeBefore = 0; ///< before the pass
    qint64 m_filled = 0;
};
