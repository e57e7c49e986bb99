#include "cli/jobrunner.h"

#include "cli/stoprequest.h"
#include "engine/wipeengine.h"
#include "model/wipetask.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <algorithm>

namespace cli {

namespace {

// Ten a second at most.
constexpr qint64 ProgressIntervalMs = 100;

class Run
{
public:
    Run(WipeTask &task, const QString &target, JobView &view, StopRequest &stop)
        : m_task(task)
        , m_target(target)
        , m_view(view)
        , m_stop(stop)
    {
        connectEngine();
        m_engine.setStopProbe([this] { return m_stop.isRequested(); });
    }

    JobResult result()
    {
        m_engine.setTask(&m_task);
        const QString problem = m_stop.isRequested() ? QString() : m_engine.makeReady();
        if (!problem.isEmpty()) {
            m_result.lastError = problem;
            m_result.report = m_engine.report();
            return m_result;
        }
        m_engine.start();
        if (m_engine.isRunning()) {
            // A request that came before the engine's thread was there has only been seen by the probe.
            if (m_stop.isRequested())
                m_engine.stop();
            m_loop.exec();
            m_result.outcome = m_engine.outcome();
            m_result.wasStarted = true;
        }
        m_result.report = m_engine.report();
        return m_result;
    }

private:
    void connectEngine();
    void onBytesProcessed(qint64 bytes);

    WipeTask &m_task;
    QString m_target;
    JobView &m_view;
    StopRequest &m_stop;
    JobResult m_result;
    JobProgress m_progress;
    QElapsedTimer m_sinceProgress; // not running before the first report
    QEventLoop m_loop;
    WipeEngine m_engine;
};

void Run::connectEngine()
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
    // Comes after the percentage of the same moment.
    QObject::connect(&m_engine, &WipeEngine::bytesProcessed, &m_loop,
                     [this](qint64 bytes) { onBytesProcessed(bytes); });
    QObject::connect(&m_engine, &WipeEngine::completed, &m_loop, &QEventLoop::quit);
    // The worker's end, not stopped(), ends the job: stop() waits only so long for it.
    QObject::connect(&m_stop, &StopRequest::requested, &m_engine, &WipeEngine::stop);
}

void Run::onBytesProcessed(qint64 bytes)
{
    // The engine's figure counts the earlier passes of files twice.
    m_progress.bytes = std::min(bytes, m_task.written());
    if (m_sinceProgress.isValid() && m_sinceProgress.elapsed() < ProgressIntervalMs)
        return;
    m_sinceProgress.start();
    m_view.progress(m_progress);
}

} // namespace

JobResult runJob(WipeTask &task, const QString &target, JobView &view, StopRequest &stop)
{
    return Run(task, target, view, stop).result();
}

} // namespace cli
