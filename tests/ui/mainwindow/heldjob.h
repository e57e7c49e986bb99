#pragma once

#include "ui/mainwindow/drivewindow.h"

#include "model/joboutcome.h"

#include <QSemaphore>

#include <atomic>
#include <memory>
#include <optional>

class JobController;
class WipeEngine;

// A job on a drive in memory that waits with each write until the test lets it go on.
struct HeldJob
{
    HeldJob();
    // No test leaves a worker that waits for it.
    ~HeldJob();
    HeldJob(const HeldJob &) = delete;
    HeldJob &operator=(const HeldJob &) = delete;

    WipeEngine &engine() const;
    JobController &job() const;
    // From the home page to the first write.
    void start();
    // Nothing unless there is exactly one report.
    std::optional<JobOutcome> storedOutcome() const;

    DriveWindow drives;
    MemoryDevices &memory;
    std::atomic<bool> isWriting{false};
    QSemaphore letGo;
    std::unique_ptr<WindowFixture> fixture;
};
