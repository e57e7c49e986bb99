#pragma once

#include "engine/runningjob.h"
#include "platform/anchoredfolder.h"
#include "platform/status.h"

#include <QCoreApplication>
#include <QString>

#include <chrono>
#include <functional>

platform::Result<qint64> freeBytesOf(platform::AnchoredFolder &folder);

/// Waits for the free space of a job's volume to settle, because file systems count the space of deleted
/// files as free only moments later.
class VolumeSpace
{
    Q_DECLARE_TR_FUNCTIONS(FreeSpaceWipeWorker)

public:
    /// Asks for the current free space in bytes.
    using FreeBytes = std::function<platform::Result<qint64>()>;

    /// How long to wait for the space of deleted files while none of it comes back, and how often to look.
    struct Waits
    {
        std::chrono::milliseconds patience{60'000};
        std::chrono::milliseconds poll{100};
    };

    /// The job outlives the object. root: for the debug output.
    VolumeSpace(RunningJob &job, const QString &root, const Waits &waits)
        : m_job(job)
        , m_root(root)
        , m_waits(waits)
    {}

    /// The free space once it no longer changes.
    platform::Result<qint64> settled(const FreeBytes &freeBytes);
    /// Waits for the bytes of deleted files to become free; before is the free space before the deletion.
    /// Returns false when they do not, which is logged, or when the volume is gone.
    bool waitFor(const FreeBytes &freeBytes, qint64 before, qint64 released);

    /// Whether the code means that the volume was unmounted, pulled out or failed.
    static bool isGone(quint32 code);
    void noteGone(const platform::Status &status);

private:
    RunningJob &m_job;
    QString m_root;
    Waits m_waits;
};
