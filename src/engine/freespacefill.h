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

// The passes over the free space of one volume: each fills it with files until only a reserve is free. Sizes
// are bytes. One thread.
class FreeSpaceFill
{
    Q_DECLARE_TR_FUNCTIONS(FreeSpaceWipeWorker)

public:
    struct Volume
    {
        QString root;
        qint64 freeAtStart = 0;
        qint64 chunkLimit = 0; // of one write
    };

    // All outlive this.
    FreeSpaceFill(RunningJob &job, FillFolder &folder, VolumeSpace &space, const Volume &volume);

    // How much of a volume's free space is never filled.
    static qint64 reserveFor(const QString &root);

    // Deletes the files of the pass before and makes sure that their space can be filled again.
    bool reclaim();
    // One pass. True also when it was left by a stop.
    bool write(const PassPattern &pattern);
    // What the space gave up for the pass.
    qint64 filled() const { return m_filled; }

private:
    // The pass at work.
    struct Pass
    {
        qint64 reserve = 0;   // to stay free
        qint64 written = 0;   // and flushed
        qint64 lastFree = -1; // before the last chunk
        qint64 givenBack = 0; // by others meanwhile
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
    qint64 m_freeBefore = 0; // the pass
    qint64 m_filled = 0;
};
