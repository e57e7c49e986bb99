#pragma once

#include "engine/runningjob.h"
#include "platform/anchoredfolder.h"
#include "platform/status.h"

#include <QCoreApplication>
#include <QString>

#include <chrono>
#include <functional>

platform::Result<qint64> freeBytesOf(platform::AnchoredFolder &folder);

// The free space of the volume of a job, as far as time plays a part in it: file systems count the space of
// deleted files as free only moments later.
class VolumeSpace
{
    Q_DECLARE_TR_FUNCTIONS(FreeSpaceWipeWorker)

public:
    using FreeBytes = std::function<platform::Result<qint64>()>;

    // How long deleted files may keep their space while nothing of it comes back, and how often that is
    // looked at.
    struct Waits
    {
        std::chrono::milliseconds patience{60'000};
        std::chrono::milliseconds poll{100};
    };

    // The job outlives this. root: for the debug output.
    VolumeSpace(RunningJob &job, const QString &root, const Waits &waits)
        : m_job(job)
        , m_root(root)
        , m_waits(waits)
    {}

    // What the free space comes to when nobody changes it any more.
    platform::Result<qint64> settled(const FreeBytes &freeBytes);
    // Waits for the bytes of files that were deleted when so many were free before. False when they do not
    // come, which is told, or when the volume is gone.
    bool waitFor(const FreeBytes &freeBytes, qint64 before, qint64 released);

    // What the answers of a volume say that was unmounted, pulled out or failed.
    static bool isGone(quint32 code);
    void noteGone(const platform::Status &status);

private:
    RunningJob &m_job;
    QString m_root;
    Waits m_waits;
};
