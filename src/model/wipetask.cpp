#include "model/wipetask.h"

#include "model/displaytext.h"

#include <QDebug>
#include <QFileInfo>
#include <QSet>
#include <QThread>
#include <QUuid>

#include <algorithm>
#include <array>
#include <functional>

namespace {
enum class Check : std::size_t {
    Passed,
    NoDisk,
    SystemDisk,
    NoPartition,
    SystemPartition,
    NoFreeSpaceTarget,
    NoFiles,
    FileMissing,
    ThreadCount,
    BufferSize,
};

struct CheckText
{
    const char *trace;
    const char *message;
};

// Indexed by Check. %1 is the path that is missing.
constexpr std::array checkTexts{
    CheckText{"=== isValid() returns TRUE ===", nullptr},
    CheckText{"FAIL: DiskWipe - disk number < 0",
              QT_TRANSLATE_NOOP("WipeTask", "Please select a disk to wipe")},
    CheckText{"FAIL: DiskWipe - is system disk",
              QT_TRANSLATE_NOOP("WipeTask", "Cannot wipe system disk. Please boot from external drive.")},
    CheckText{"FAIL: PartitionWipe - no partition selected",
              QT_TRANSLATE_NOOP("WipeTask", "Please select a partition to wipe")},
    CheckText{
        "FAIL: PartitionWipe - is system partition",
        QT_TRANSLATE_NOOP("WipeTask", "Cannot wipe system partition. Please boot from external drive.")},
    CheckText{"FAIL: FreeSpaceWipe - no partition and no disk",
              QT_TRANSLATE_NOOP("WipeTask", "Please select a disk or partition for free space wipe")},
    CheckText{"FAIL: FileWipe - no files", QT_TRANSLATE_NOOP("WipeTask", "Please add files to wipe")},
    CheckText{"FAIL: FileWipe - file not found: %1", QT_TRANSLATE_NOOP("WipeTask", "File not found: %1")},
    CheckText{"FAIL: thread count out of range", QT_TRANSLATE_NOOP("WipeTask", "线程数必须在1-32之间")},
    CheckText{"FAIL: buffer size out of range",
              QT_TRANSLATE_NOOP("WipeTask", "缓冲区大小必须在1-1024 MB之间")},
};

struct CheckResult
{
    Check check = Check::Passed;
    QString path; ///< of FileMissing

    const CheckText &text() const { return checkTexts[static_cast<std::size_t>(check)]; }
    QString withPath(const QString &text) const
    {
        return check == Check::FileMissing ? text.arg(displayText(path)) : text;
    }
};

/// Receives the traces of the checks line by line, so that both callers share the checks.
using Trace = std::function<void(const QString &line)>;

QString asText(bool truth)
{
    return truth ? QStringLiteral("true") : QStringLiteral("false");
}

Check checkDisk(const WipeTask &task)
{
    const DiskInfo disk = task.disk();
    if (disk.diskNumber < 0)
        return Check::NoDisk;
    return disk.isSystemDisk ? Check::SystemDisk : Check::Passed;
}

Check checkPartition(const WipeTask &task)
{
    // Deliberately loose: an index alone counts as a selection.
    const PartitionInfo partition = task.partition();
    if (partition.driveLetter.isEmpty() && partition.partitionIndex < 0)
        return Check::NoPartition;
    return partition.isSystem ? Check::SystemPartition : Check::Passed;
}

Check checkFreeSpace(const WipeTask &task, const Trace &trace)
{
    const bool noLetter = task.partition().driveLetter.isEmpty();
    const qint32 diskNumber = task.disk().diskNumber;
    trace(QStringLiteral("FreeSpaceWipe validation:"));
    trace(QStringLiteral("  - partition.driveLetter.isEmpty(): %1").arg(asText(noLetter)));
    trace(QStringLiteral("  - disk.diskNumber(): %1").arg(diskNumber));
    if (noLetter && diskNumber < 0)
        return Check::NoFreeSpaceTarget;
    trace(QStringLiteral("FreeSpaceWipe - validation passed (will find drive in worker)"));
    return Check::Passed;
}

/// A broken link counts as existing, because the link itself is removed. Qt would look up another name for
/// one that is no valid Unicode, so such a name is accepted and the worker checks it.
bool pathExists(const QString &path)
{
    if (!path.isValidUtf16())
        return true;
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

CheckResult checkFiles(const WipeTask &task)
{
    const QStringList files = task.files();
    if (files.isEmpty())
        return {Check::NoFiles, {}};
    for (const QString &path : files) {
        if (!pathExists(path))
            return {Check::FileMissing, path};
    }
    return {};
}

CheckResult checkTarget(const WipeTask &task, const Trace &trace)
{
    switch (task.operationType()) {
    case DiskWipe:
        return {checkDisk(task), {}};
    case PartitionWipe:
        return {checkPartition(task), {}};
    case FreeSpaceWipe:
        return {checkFreeSpace(task, trace), {}};
    case FileWipe:
        return checkFiles(task);
    }
    return {}; // an unknown operation has no target to check
}

bool isInRange(qint32 value, qint32 maximum)
{
    return value >= 1 && value <= maximum;
}

Check checkTuning(const WipeTask &task, const Trace &trace)
{
    trace(QStringLiteral("Thread count: %1").arg(task.threadCount()));
    if (!isInRange(task.threadCount(), WipeTask::MostThreads))
        return Check::ThreadCount;
    trace(QStringLiteral("Buffer size MB: %1").arg(task.bufferSizeMB()));
    return isInRange(task.bufferSizeMB(), WipeTask::LargestBufferMB) ? Check::Passed : Check::BufferSize;
}

CheckResult firstFailure(const WipeTask &task, const Trace &trace)
{
    trace(QStringLiteral("=== WipeTask::isValid() ==="));
    trace(QStringLiteral("Operation type: %1").arg(static_cast<qint32>(task.operationType())));
    trace(QStringLiteral("Target partition driveLetter: %1").arg(displayText(task.partition().driveLetter)));
    trace(QStringLiteral("Target disk number: %1").arg(task.disk().diskNumber));
    trace(QStringLiteral("Target disk partitions count: %1").arg(task.disk().partitions.size()));
    const CheckResult target = checkTarget(task, trace);
    return target.check == Check::Passed ? CheckResult{checkTuning(task, trace), {}} : target;
}
} // namespace

// The default job must be valid on every machine, so the thread count is limited to 32.
WipeTask::WipeTask(QObject *parent)
    : QObject(parent)
    , m_threadCount(qBound(1, QThread::idealThreadCount(), MostThreads))
    , m_id(QUuid::createUuid().toString(QUuid::WithoutBraces))
{}

void WipeTask::addFiles(const QStringList &paths)
{
    // Searching the list for each path would be quadratic and take hours for a million files.
    QSet<QString> known(m_files.cbegin(), m_files.cend());
    known.reserve(m_files.size() + paths.size());
    for (const QString &path : paths) {
        const qsizetype before = known.size();
        known.insert(path);
        if (known.size() != before)
            m_files.append(path);
    }
}

WipeReport WipeTask::report() const
{
    const QMutexLocker locker(&m_reportMutex);
    return m_report;
}

void WipeTask::setReport(const WipeReport &report)
{
    const QMutexLocker locker(&m_reportMutex);
    m_report = report;
}

OutcomeRecord WipeTask::outcome() const
{
    const QMutexLocker locker(&m_outcomeMutex);
    return m_outcome;
}

void WipeTask::noteShortfall(const Shortfall &shortfall)
{
    const QMutexLocker locker(&m_outcomeMutex);
    m_outcome.note(shortfall);
}

void WipeTask::noteWritten(qint64 bytes)
{
    const QMutexLocker locker(&m_outcomeMutex);
    m_outcome.addWritten(bytes);
}

qint64 WipeTask::written() const
{
    const QMutexLocker locker(&m_outcomeMutex);
    return std::max<qint64>(m_outcome.written(), 0);
}

void WipeTask::noteVolume(const QString &volume)
{
    const QMutexLocker locker(&m_outcomeMutex);
    m_outcome.addVolume(volume);
}

void WipeTask::setOutcome(JobOutcome outcome)
{
    const QMutexLocker locker(&m_outcomeMutex);
    m_outcome.setOutcome(outcome);
}

void WipeTask::clearOutcome()
{
    const QMutexLocker locker(&m_outcomeMutex);
    m_outcome = OutcomeRecord();
    m_outcome.addWritten(0);
    for (const Shortfall &omission : m_omissions)
        m_outcome.note(omission);
}

QStringList WipeTask::dismountedVolumes() const
{
    const QMutexLocker locker(&m_reportMutex);
    return m_dismountedVolumes;
}

void WipeTask::setDismountedVolumes(const QStringList &volumes)
{
    const QMutexLocker locker(&m_reportMutex);
    m_dismountedVolumes = volumes;
}

bool WipeTask::isValid() const
{
    const Trace trace = [](const QString &line) { qDebug().noquote() << line; };
    const CheckResult result = firstFailure(*this, trace);
    trace(result.withPath(QLatin1String(result.text().trace)));
    return result.check == Check::Passed;
}

QString WipeTask::validationError() const
{
    const CheckResult result = firstFailure(*this, [](const QString &) {});
    return result.check == Check::Passed ? QString() : result.withPath(tr(result.text().message));
}
