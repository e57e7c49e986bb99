#pragma once

#include "jobs/jobend.h"
#include "model/operationtype.h"
#include "model/refusal.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class WipeEngine;
class WipeTask;
namespace platform {
class AwakeHold;
}

/// Runs one job at a time, from its task to the record of its end. Every end of a job comes through here
/// exactly once, whether it ran to its end, was stopped, or the program ends or restarts. Its records are
/// stored first, then ended() is sent. The system is kept awake from the start until then. Interface thread.
class JobController : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Idle,
        Running,
        Stopping,   ///< the user has stopped the job; its worker may still be in its last transfer
        Closing,    ///< the program closes when the job has ended
        Restarting, ///< the program closes when the job has ended, and starts again
    };

    explicit JobController(QObject *parent = nullptr);
    /// Stops a running job, waits for its end and stores its records.
    ~JobController() override;

    WipeEngine &engine() const { return *m_engine; }
    State state() const { return m_state; }

    /// Stores the records of a job and notes the result in `end`. Called once for each job.
    using Keep = std::function<void(JobEnd &end)>;
    void setKeep(Keep keep) { m_keep = std::move(keep); }

    /// The window, as given by QWidget::winId(), at which the system shows the reason for refusing a
    /// shutdown.
    void setWindow(quintptr window) { m_window = window; }
    /// A job is running, and the system can delay a shutdown: it shows the reason to the user, who decides.
    bool delaysShutdown() const;

    WipeTask *task() const { return m_task; }
    /// Replaces the task. A job that is still ending keeps the old task until its end.
    WipeTask &newTask(OperationType type);
    WipeTask &takeTask(std::unique_ptr<WipeTask> task); ///< the same with an existing task

    /// Refuses as long as the previous job has not ended.
    std::optional<Refusal> pendingJob() const;

    /// Prepares the job: claims a free certificate id when its report is to be stored, and calls
    /// WipeEngine::makeReady().
    std::optional<Refusal> makeReady(bool storesReport);

    /// Starts the job of the task.
    std::optional<Refusal> start();

    /// Stops the job and waits for the worker as long as WipeEngine::stop() does. Does nothing without a job.
    void stop();

    /// Stops the job because the program closes, and calls `then` when its records are stored; at once
    /// without a job. ended() is not sent. State: Closing or Restarting.
    void leave(State whither, std::function<void()> then = {});

    /// Like leave(), but returns when the records are stored, without a limit for the worker's last transfer.
    void finish();

    /// Called when the worker has ended.
    void complete(bool success);

signals:
    /// A job ran to its end or was stopped. Its records are stored.
    void ended(const JobEnd &end);

private:
    WipeEngine *m_engine;
    WipeTask *m_task = nullptr;
    WipeTask *m_endingTask = nullptr; ///< of the job that is still ending, when there is a new one
    State m_state = State::Idle;
    Keep m_keep;
    std::function<void()> m_then;
    QString m_refusal;
    quintptr m_window = 0;
    std::unique_ptr<platform::AwakeHold> m_awake; ///< while a job runs, unless the system refused
};
