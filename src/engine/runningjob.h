#pragma once

#include "engine/patterngenerator.h"
#include "model/joboutcome.h"
#include "model/wipemethod.h"
#include "platform/status.h"

#include <QString>
#include <QtGlobal>

#include <chrono>
#include <cstddef>

/// The parts of a job talk to their worker through this: its log, its stop and pause, its patterns and its
/// progress. A part says in its own header which functions it calls on other threads than the worker's.
class RunningJob
{
public:
    /// The levels of BaseWipeWorker::logMessage().
    enum NoteLevel { Information = 0, Warning = 1, Error = 2 };

    /// Adds a line to the log that the user sees. Any thread.
    virtual void note(const QString &message, NoteLevel level = Information) = 0;
    /// Tells the user why the job fails. Worker's thread.
    virtual void reportError(const QString &message) = 0;
    /// Writes the system's answer to the debug output. Any thread.
    virtual void diagnose(const platform::Status &failure) = 0;
    /// Adds to the outcome of the job. Any thread.
    virtual void noteShortfall(const Shortfall &shortfall) = 0;
    /// Counts bytes that the medium has taken. Any thread.
    virtual void noteWritten(qint64 bytes) = 0;

    /// Whether a stop is requested. Any thread.
    virtual bool isStopping() const = 0;
    /// Waits while the job is paused. False when a stop is requested. Any thread.
    virtual bool mayGoOn() = 0;
    /// Waits for the time given. False when a stop is requested. Any thread.
    virtual bool wait(std::chrono::milliseconds time) = 0;

    /// Fills the buffer for a pass; random data come from the worker's generator. One thread at a time.
    virtual void fill(std::byte *data, qint64 size, const PassPattern &pattern) = 0;
    /// The same with a generator of the caller's. Any thread.
    virtual void fillFrom(PatternGenerator &random, std::byte *data, qint64 size,
                          const PassPattern &pattern) = 0;
    /// Whether the data read back are those that the pass wrote. Data that cannot be foretold match. Any
    /// thread.
    virtual bool matches(const std::byte *data, qint64 size, const PassPattern &pattern) const = 0;
    /// A seed for a generator of the caller's. Worker's thread.
    virtual quint32 drawSeed() = 0;

    /// Reports the progress. Both are bytes of the current pass. One thread at a time.
    virtual void progress(qint64 done, qint64 total) = 0;

protected:
    RunningJob() = default;
    ~RunningJob() = default;
    RunningJob(const RunningJob &) = default;
    RunningJob &operator=(const RunningJob &) = default;
};
