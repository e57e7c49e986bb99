#include "jobs/jobcontroller.h"

#include "engine/wipeengine.h"
#include "jobs/certificatenumber.h"
#include "model/wipetask.h"
#include "platform/platform.h"
#include "platform/session.h"

#include <new>
#include <utility>

JobController::JobController(QObject *parent)
    : QObject(parent)
    , m_engine(new WipeEngine(this))
{
    connect(m_engine, &WipeEngine::completed, this, &JobController::complete);
    connect(m_engine, &WipeEngine::errorOccurred, this, [this](const QString &error) { m_refusal = error; });
}

JobController::~JobController()
{
    try {
        finish();
    } catch (const std::bad_alloc &) { // NOLINT(bugprone-empty-catch)
        // Without memory there is no record, but the engine can still stop its worker.
    }
    // Deleted before the task, which the engine's worker may read until it ends.
    delete m_engine;
    delete m_task;
}

WipeTask &JobController::newTask(OperationType type)
{
    auto task = std::make_unique<WipeTask>();
    task->setOperationType(type);
    return takeTask(std::move(task));
}

WipeTask &JobController::takeTask(std::unique_ptr<WipeTask> task)
{
    // The worker may have ended before its signal arrives here; until then the old task holds the report.
    if (m_state != State::Idle && !m_endingTask)
        m_endingTask = m_task;
    else
        m_engine->deleteTask(m_task);
    m_task = task.release();
    m_task->setParent(this);
    return *m_task;
}

// Starting now would block in the engine until the old worker has ended.
std::optional<Refusal> JobController::pendingJob() const
{
    if (m_state == State::Idle)
        return {};
    return Refusal{tr("The previous job is still ending.")};
}

std::optional<Refusal> JobController::makeReady(bool storesReport)
{
    if (m_state != State::Idle)
        return pendingJob();
    if (storesReport && m_task) {
        if (const auto refusal = claimCertificateId(*m_task))
            return refusal;
    }
    m_engine->setTask(m_task);
    return m_engine->makeReady();
}

std::optional<Refusal> JobController::start()
{
    if (m_state != State::Idle)
        return pendingJob();
    m_engine->setTask(m_task);
    m_refusal.clear();
    auto awake = platform::Platform::current().session().keepAwake({tr("An erasure is running."), m_window});
    m_engine->start();
    if (!m_engine->isRunning())
        return Refusal{m_refusal};
    m_state = State::Running;
    if (awake) {
        m_awake = awake.take();
    } else {
        constexpr int Warning = 1;
        emit m_engine->logMessage(
            tr("The system could not be kept from sleeping during this job, error %1").arg(awake.code()),
            Warning);
    }
    return {};
}

bool JobController::delaysShutdown() const
{
    return m_state == State::Running && m_awake && m_awake->delaysShutdown();
}

void JobController::stop()
{
    if (m_state != State::Running)
        return;
    m_state = State::Stopping;
    m_engine->stop();
}

void JobController::leave(State whither, std::function<void()> then)
{
    if (m_state == State::Idle) {
        if (then)
            then();
        return;
    }
    m_state = whither;
    if (then)
        m_then = std::move(then);
    m_engine->stop();
}

void JobController::finish()
{
    if (m_state == State::Idle)
        return;
    leave(m_state == State::Restarting ? State::Restarting : State::Closing);
    m_engine->waitForEnd();
}

void JobController::complete(bool success)
{
    JobEnd end;
    end.success = success;
    end.report = m_engine->report();
    end.outcome = m_engine->outcome();
    if (!success)
        end.leftUnmounted = m_engine->dismountedVolumes();
    {
        // Released before ended() is sent, because a receiver may show the end for hours.
        const auto awake = std::move(m_awake);
        if (m_keep)
            m_keep(end);
    }
    m_engine->deleteTask(std::exchange(m_endingTask, nullptr));
    const State was = std::exchange(m_state, State::Idle);
    const std::function<void()> then = std::exchange(m_then, {});
    if (was != State::Closing && was != State::Restarting)
        emit ended(end);
    else if (then)
        then();
}
