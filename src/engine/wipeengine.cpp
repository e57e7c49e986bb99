#include "engine/wipeengine.h"

#include "engine/diskwipeworker.h"
#include "engine/driveidentity.h"
#include "engine/filewipeworker.h"
#include "engine/freespacewipeworker.h"
#include "model/displaytext.h"
#include "model/joboutcome.h"
#include "model/wipereport.h"
#include "model/wipetask.h"
#include "platform/devices.h"
#include "platform/platform.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDebug>
#include <QThread>

#include <numeric>
#include <utility>

namespace {

constexpr qint64 SpeedIntervalMs = 1000;

quint64 freeBytesOf(const WipeTask &task)
{
    const PartitionInfo partition = task.partition();
    if (!partition.driveLetter.isEmpty())
        return static_cast<quint64>(partition.freeBytes);
    const QList<PartitionInfo> partitions = task.disk().partitions;
    return std::accumulate(
        partitions.begin(), partitions.end(), quint64{0},
        [](quint64 sum, const PartitionInfo &p) { return sum + static_cast<quint64>(p.freeBytes); });
}

} // namespace

WipeEngine::WipeEngine(QObject *parent)
    : QObject(parent)
{}

WipeEngine::~WipeEngine()
{
    stop();
    cleanUpThread();
}

void WipeEngine::setTask(WipeTask *task)
{
    if (m_running) {
        emit errorOccurred(tr("无法在运行时更改任务"));
        return;
    }
    if (task != m_task) {
        ++m_job;
        m_released.reset();
    }
    m_task = task;
}

void WipeEngine::deleteTask(WipeTask *task)
{
    if (!task || !m_thread || !m_thread->isRunning()) {
        delete task;
        return;
    }
    task->setParent(this);
    connect(m_thread, &QThread::finished, task, &QObject::deleteLater);
}

std::optional<Refusal> WipeEngine::makeReady()
{
    const bool isFreeSpaceJob = m_task && !m_running && m_task->operationType() == FreeSpaceWipe;
    return isFreeSpaceJob ? FreeSpaceWipeWorker::obstacleOf(*m_task) : releaseVolumes();
}

std::optional<Refusal> WipeEngine::releaseVolumes()
{
    if (!m_task || m_running || m_released || m_task->operationType() != DiskWipe || !m_task->isWholeDrive())
        return {};
    if (const QString error = m_task->validationError(); !error.isEmpty())
        return Refusal{error};
    platform::VolumeRelease release =
        platform::Platform::current().devices().releaseVolumes(identityOf(m_task->disk()));
    if (release.volumes)
        m_released = std::move(release.volumes);
    if (m_released)
        return {};
    return Refusal{releaseProblem(release)};
}

QString WipeEngine::releaseProblem(const platform::VolumeRelease &release)
{
    qDebug().noquote() << "[DiskWipe]" << release.failure.diagnostic();
    const QString volume = displayText(release.volume);
    const bool isInUse = release.failure.code == platform::SharingViolation;
    QString problem;
    if (volume.isEmpty())
        problem = isInUse ? tr("The drive is in use by another program.")
                          : tr("The drive cannot be rid of its volumes, error %1.").arg(release.failure.code);
    else
        problem = isInUse ? tr("Volume %1 is in use and cannot be unmounted.").arg(volume)
                          : tr("Volume %1 cannot be unmounted, error %2.")
                                .arg(volume, QString::number(release.failure.code));
    problem += u' ' + tr("Nothing was written.");
    if (!release.notRestored.isEmpty())
        problem += u' ' + tr("Not mounted again: %1").arg(displayText(release.notRestored.join(u", ")));
    return problem;
}

void WipeEngine::start()
{
    qDebug() << "=== WipeEngine::start() ===";
    qDebug() << "Task valid:" << (m_task != nullptr);
    if (!m_task) {
        emit errorOccurred(tr("没有设置任务"));
        return;
    }
    qDebug() << "Operation type:" << static_cast<int>(m_task->operationType());
    const bool valid = m_task->isValid();
    qDebug() << "Task is valid:" << valid;
    if (!valid) {
        emit errorOccurred(m_task->validationError());
        return;
    }
    if (m_running) {
        emit errorOccurred(tr("任务已在运行"));
        return;
    }

    beginReport();
    if (!createWorker()) {
        emit errorOccurred(tr("创建工作线程失败"));
        return;
    }

    m_running = true;
    m_stopRequested = false;
    m_progress = 0;
    m_bytesWritten = 0;
    m_startTime = m_clock();
    m_lastSpeedTime = m_startTime;
    m_lastSpeedBytes = 0;
    m_totalPasses = m_task->method().passCount();
    m_currentPass = 1;
    m_lastError.clear();
    if (m_isStopWanted && m_isStopWanted()) {
        m_stopRequested = true;
        m_worker->stop();
    }

    m_thread->start();
    // A started thread ends only through a call that waits for this one, so a thread that is not running was
    // refused by the system.
    if (!m_thread->isRunning()) {
        m_running = false;
        delete m_worker;
        m_worker = nullptr;
        emit errorOccurred(tr("创建工作线程失败"));
        return;
    }
    emit started();
    emit logMessage(tr("开始擦除任务..."), 0);
    emit logMessage(tr("擦除方法: %1 (%2次覆写)").arg(m_task->method().name).arg(m_totalPasses), 0);
}

void WipeEngine::beginReport()
{
    const OperationType type = m_task->operationType();
    // A task that ran before must not keep its old results.
    m_task->clearOutcome();
    m_task->updateReport([this, type](WipeReport &report) {
        report.verificationPassed = false;
        report.errorMessage.clear();
        report.operationType = type;
        report.method = m_task->method();
        report.startTime = m_clock();
        report.status = WipeStatus::Running;
        if (type == DiskWipe || type == PartitionWipe || type == FreeSpaceWipe)
            report.disk = m_task->disk();
        // Always in 512-byte units, whatever the sector size, so that reports can be compared.
        if (type == DiskWipe || type == PartitionWipe)
            report.totalSectors = static_cast<quint64>(m_task->disk().sizeBytes) >> 9;
        if (type == FreeSpaceWipe)
            report.totalBytes = freeBytesOf(*m_task);
    });
}

BaseWipeWorker *WipeEngine::makeDiskWorker()
{
    auto *worker = new DiskWipeWorker(m_task);
    worker->setReleasedVolumes(std::move(m_released));
    return worker;
}

BaseWipeWorker *WipeEngine::makeWorker()
{
    switch (m_task->operationType()) {
    case DiskWipe:
    case PartitionWipe:
        return makeDiskWorker();
    case FreeSpaceWipe:
        return new FreeSpaceWipeWorker(m_task);
    case FileWipe:
        return new FileWipeWorker(m_task);
    }
    return nullptr;
}

bool WipeEngine::createWorker()
{
    cleanUpThread();
    ++m_job;
    m_thread = new QThread(this);
    m_worker = makeWorker();
    if (!m_worker)
        return false;
    m_worker->moveToThread(m_thread);
    connectWorker();
    return true;
}

void WipeEngine::connectWorker()
{
    connect(m_thread, &QThread::started, m_worker, &BaseWipeWorker::process);
    // The worker reports whole percents and the slot takes a double; a plain connection refuses this
    // conversion.
    connect(m_worker, &BaseWipeWorker::progressChanged, this,
            [relay = forThisJob(&WipeEngine::onWorkerProgress)](int percent) { relay(percent); });
    connect(m_worker, &BaseWipeWorker::passChanged, this, forThisJob(&WipeEngine::onWorkerPassChanged));
    connect(m_worker, &BaseWipeWorker::bytesWritten, this, forThisJob(&WipeEngine::onWorkerBytesWritten));
    connect(m_worker, &BaseWipeWorker::finished, this, forThisJob(&WipeEngine::onWorkerFinished));
    connect(m_worker, &BaseWipeWorker::errorOccurred, this, forThisJob(&WipeEngine::onWorkerError));
    connect(m_worker, &BaseWipeWorker::logMessage, this, forThisJob(&WipeEngine::onWorkerLogMessage));
    connect(m_worker, &BaseWipeWorker::finished, m_thread, &QThread::quit);
    connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
}

void WipeEngine::cleanUpThread()
{
    if (m_thread) {
        if (m_thread->isRunning()) {
            m_thread->quit();
            m_thread->wait();
        }
        delete m_thread;
    }
    m_thread = nullptr;
    m_worker = nullptr;
}

void WipeEngine::stop()
{
    if (!m_running)
        return;
    m_stopRequested = true;
    m_worker->stop();
    if (m_thread->isRunning()) {
        m_thread->quit();
        m_thread->wait(QDeadlineTimer(m_stopPatience));
    }
    m_running = false;
    if (m_task) {
        m_task->updateReport([this](WipeReport &report) {
            report.status = WipeStatus::Cancelled;
            report.endTime = m_clock();
        });
        m_task->setOutcome(JobOutcome::Cancelled);
    }
    emit stopped();
    emit logMessage(tr("任务已停止"), 1);
}

void WipeEngine::waitForEnd()
{
    if (!m_thread)
        return;
    m_thread->quit();
    m_thread->wait();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

OutcomeRecord WipeEngine::outcome() const
{
    return m_task ? m_task->outcome() : OutcomeRecord();
}

QStringList WipeEngine::dismountedVolumes() const
{
    return m_task ? m_task->dismountedVolumes() : QStringList();
}

WipeReport WipeEngine::report() const
{
    return m_task ? m_task->report() : WipeReport();
}

void WipeEngine::onWorkerProgress(double percent)
{
    m_progress = percent;
    emit progressChanged(static_cast<int>(percent));

    const QDateTime now = m_clock();
    const qint64 elapsed = m_lastSpeedTime.msecsTo(now);
    if (elapsed < SpeedIntervalMs)
        return;
    const auto delta = static_cast<quint64>(m_bytesWritten) - static_cast<quint64>(m_lastSpeedBytes);
    m_currentSpeed = static_cast<double>(delta) / (static_cast<double>(elapsed) / 1000.0);
    m_lastSpeedBytes = m_bytesWritten;
    m_lastSpeedTime = now;
    emit speedUpdated(m_currentSpeed);
}

void WipeEngine::onWorkerPassChanged(int pass, int totalPasses)
{
    m_currentPass = pass;
    m_totalPasses = totalPasses;
    emit passChanged(pass, totalPasses);
    emit logMessage(tr("第 %1/%2 次覆写").arg(pass).arg(totalPasses), 0);
}

void WipeEngine::onWorkerBytesWritten(qint64 bytes)
{
    m_bytesWritten = bytes;
    emit bytesProcessed(bytes, m_totalBytes);
}

void WipeEngine::onWorkerError(const QString &error)
{
    m_lastError = error;
    emit errorOccurred(error);
    emit logMessage(tr("错误: %1").arg(error), 2);
}

void WipeEngine::onWorkerLogMessage(const QString &message, int level)
{
    if (level == 2)
        m_lastError = message;
    emit logMessage(message, level);
}

// A worker may end after stop() gave up waiting. Its result then replaces the cancelled mark, and completed()
// follows stopped().
void WipeEngine::onWorkerFinished(bool success)
{
    m_running = false;
    if (!m_task)
        return;
    m_task->updateReport([this, success](WipeReport &report) {
        report.endTime = m_clock();
        report.bytesWritten = static_cast<quint64>(m_bytesWritten);
        report.status = success ? WipeStatus::Completed : WipeStatus::Failed;
        if (success)
            report.verificationPassed = true;
        else
            report.errorMessage = m_lastError;
    });
    m_task->setOutcome(success           ? JobOutcome::Complete
                       : m_stopRequested ? JobOutcome::Cancelled
                                         : JobOutcome::Failed);
    emit logMessage(success ? tr("擦除完成!") : tr("擦除失败"), success ? 0 : 2);
    emit completed(success);
}
