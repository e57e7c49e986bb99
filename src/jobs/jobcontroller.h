#pragma once

#include "jobs/jobend.h"
#include "model/operationtype.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class WipeEngine;
class WipeTask;
namespace platform {
class AwakeHold;
}

/// One job at a time, from its task to the record of its end. However a job ends, by itself, stopped, by the
/// end of the program or its restart, it ends here once: what is to be kept of it is kept first, then those
/// who wait for the end hear of it. The system is kept awake from the start until what is to be kept is kept.
/// Interface thread.
class JobController : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Idle,
        Running,
        Stopping,   ///< the user has stopped the job, whose worker may still be at its last transfer
        Closing,    ///< the program goes when the job has ended
        Restarting, ///< the same, and another run of it takes over
    };

    explicit JobController(QObject *parent = nullptr);
    /// Stops a job that runs and waits for its end, which is kept.
    ~JobController() override;

    WipeEngine &engine() const { return *m_engine; }
    State state() const { return m_state; }

    /// Keeps what is to be kept of a job, and notes in the end what became of that. Called once for each job.
    using Keep = std::function<void(JobEnd &end)>;
    void setKeep(Keep keep) { m_keep = std::move(keep); }

    /// The window, as QWidget::winId() tells it, at which the system shows why it is not to be shut down.
    void setWindow(quintptr window) { m_window = window; }
    /// A job is running and a shutdown can be refused for its sake: the user is shown the reason and decides.
    bool delaysShutdown() const;

    WipeTask *task() const { return m_task; }
    /// Takes the place of the task before, which a job that is still ending has until then.
    WipeTask &newTask(OperationType type);
    WipeTask &takeTask(std::unique_ptr<WipeTask> task); ///< the same, with a task that is there already

    /// Why no job can start yet, in words for the user. Empty: the one before has ended.
    QString pendingJob() const;

    /// Makes ready what the job needs: a certificate id of its own where its report is to be stored, and what
    /// WipeEngine::makeReady() does. What is in the way of that, in words for the user; empty: nothing.
    QString makeReady(bool storesReport);

    /// Starts the job of the task. Not empty: it was refused, and why, in words for the user.
    QString start();

    /// Nothing without a job. Waits for the worker as long as WipeEngine::stop() does.
    void stop();

    /// Stops the job because the program goes, and calls the function when the end is kept; at once without a
    /// job. Of the end nobody hears. State: Closing or Restarting.
    void leave(State whither, std::function<void()> then = {});

    /// The same, and returns when the end is kept, however long the worker's last transfer takes.
    void finish();

    /// The worker has come to its end.
    void complete(bool success);

signals:
    /// Of a job that ran by itself or was stopped. What is to be kept is kept.
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
