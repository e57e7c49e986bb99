#pragma once

#include "ui/mainwindow/drivewindow.h"

#include "model/joboutcome.h"

#include <QSemaphore>

#include <atomic>
#include <memory>
#include <optional>

class JobController;
class WipeEngine;

// A job on a drive in memory whose writes wait until the test releases them.
struct HeldJob
{
    HeldJob();
    // Releases the worker, which would otherwise wait forever.
    ~HeldJob();
    HeldJob(const HeldJob &) = delete;
    HeldJob &operator=(const HeldJob &) = delete;

    WipeEngine &engine() const;
    JobController &job() const;
    // Goes from the home page to the first write.
    void start();
    // The outcome in the stored report; empty unless exactly one report exists.
    std::optional<JobOutcome> storedOutcome() const;

    DriveWindow drives;
    MemoryDevices &memory;
    std::atomic<bool> isWriting{false};
    QSemaphore letGo;
    std::unique_ptr<WindowFixture> fixture;
};
