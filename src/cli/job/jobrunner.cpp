#include "cli/job/jobrunner.h"

#include "cli/io/stoprequest.h"
#include "engine/wipeengine.h"
#include "jobs/jobcontroller.h"
#include "model/wipetask.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <algorithm>

namespace cli {

namespace {

// At most ten updates a second.
constexpr qint64 ProgressIntervalMs = 100;

class Run
{
public:
    Run(JobController &controller, const QString &target, JobView &view, StopRequest &stop)
        : m_controller(controller)
        , m_engine(controller.engine())
        , m_task(*controller.task())
        , m_target(target)
        , m_view(view)
        , m_stop(stop)
    {
        connectJob();
        m_engine.setStopProbe([this] { return m_stop.isRequested(); });
    }
    ~Run() { m_engine.setStopProbe({}); }
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

    JobResult result()
    {
        // The plan has claimed the certificate ids of all jobs before the question.
        std::optional<::Refusal> refusal;
        if (!m_stop.isRequested())
            refusal = m_controller.makeReady(false);
        if (!refusal)
            refusal = m_controller.start();
        if (refusal) {
            m_result.lastError = refusal->message;
            return m_result;
        }
        // Only the probe has seen a request that came before the engine's thread existed.
        if (m_stop.isRequested())
            m_controller.stop();
        m_loop.exec();
        return m_result;
    }

private:
    void connectJob();
    void onBytesProcessed(qint64 bytes);

    JobController &m_controller;
    WipeEngine &m_engine;
    WipeTask &m_task;
    QString m_target;
    JobView &m_view;
    StopRequest &m_stop;
    JobResult m_result;
    JobProgress m_progress;
    QElapsedTimer m_sinceProgress; // not started before the first update
    QEventLoop m_loop;
};

void Run::connectJob()
{
    QObject::connect(&m_engine, &WipeEngine::started, &m_loop, [this] { m_view.started(m_task, m_target); });
    QObject::connect(&m_engine, &WipeEngine::logMessage, &m_loop,
                     [this](const QString &message, int level) { m_view.log(message, level); });
    QObject::connect(&m_engine, &WipeEngine::errorOccurred, &m_loop, [this](const QString &error) {
        m_result.lastError = error;
        m_view.engineError(error);
    });
    QObject::connect(&m_engine, &WipeEngine::passChanged, &m_loop, [this](int pass, int passes) {
        m_progress.pass = pass;
        m_progress.passes = passes;
        m_view.passChanged(pass, passes);
    });
    QObject::connect(&m_engine, &WipeEngine::progressChanged, &m_loop,
                     [this](int percent) { m_progress.percent = percent; });
    QObject::connect(&m_engine, &WipeEngine::speedUpdated, &m_loop,
                     [this](double bytesPerSecond) { m_progress.bytesPerSecond = bytesPerSecond; });
    // Is emitted after progressChanged of the same moment.
    QObject::connect(&m_engine, &WipeEngine::bytesProcessed, &m_loop,
                     [this](qint64 bytes) { onBytesProcessed(bytes); });
    QObject::connect(&m_controller, &JobController::ended, &m_loop, [this](const JobEnd &end) {
        m_result.wasStarted = true;
        m_result.end = end;
        m_loop.quit();
    });
    QObject::connect(&m_stop, &StopRequest::requested, &m_controller, &JobController::stop);
}

void Run::onBytesProcessed(qint64 bytes)
{
    // The engine's number counts earlier passes of files twice.
    m_progress.bytes = std::min(bytes, m_task.written());
    if (m_sinceProgress.isValid() && m_sinceProgress.elapsed() < ProgressIntervalMs)
        return;
    m_sinceProgress.start();
    m_view.progress(m_progress);
}

} // namespace

JobResult runJob(JobController &controller, const QString &target, JobView &view, StopRequest &stop)
{
    return Run(controller, target, view, stop).result();
}

} // namespace cli
