#include "engine/basewipeworker.h"

#include "model/wipetask.h"

#include <QDeadlineTimer>
#include <QMutexLocker>
#include <QRandomGenerator>

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace {
constexpr std::chrono::milliseconds SpeedInterval{500};
}

BaseWipeWorker::BaseWipeWorker(WipeTask *task, QObject *parent)
    : QObject(parent)
    , m_task(task)
    , m_random(static_cast<quint32>(QRandomGenerator64::global()->generate()))
{}

BaseWipeWorker::~BaseWipeWorker() = default;

void BaseWipeWorker::stop()
{
    m_stopRequested.exchange(true);
    m_paused.exchange(false);
    // Without the lock a waiter could miss the wake-up between its check of the flags and its wait.
    QMutexLocker lock(&m_pauseMutex);
    m_pauseCondition.wakeAll();
}

void BaseWipeWorker::setClock(Clock clock)
{
    m_clock = std::move(clock);
    m_lastSpeedTime = m_clock();
}

void BaseWipeWorker::runJob()
{
    bool success = false;
    try {
        success = run();
    } catch (const std::bad_alloc &) {
        emit errorOccurred(tr("内存分配失败"));
    }
    complete();
    emit finished(success);
}

void BaseWipeWorker::note(const QString &message, NoteLevel level)
{
    emit logMessage(message, level);
}

void BaseWipeWorker::reportError(const QString &message)
{
    emit errorOccurred(message);
}

void BaseWipeWorker::noteShortfall(const Shortfall &shortfall)
{
    m_task->noteShortfall(shortfall);
}

void BaseWipeWorker::noteWritten(qint64 bytes)
{
    m_task->noteWritten(bytes);
}

void BaseWipeWorker::fill(std::byte *data, qint64 size, const PassPattern &pattern)
{
    fillBuffer(data, size, pattern);
}

void BaseWipeWorker::fillFrom(PatternGenerator &random, std::byte *data, qint64 size,
                              const PassPattern &pattern)
{
    fillBuffer(data, size, pattern, random);
}

bool BaseWipeWorker::matches(const std::byte *data, qint64 size, const PassPattern &pattern) const
{
    return verifyBuffer(data, size, pattern);
}

bool BaseWipeWorker::checkPauseStop()
{
    if (m_stopRequested.load())
        return false;
    if (!m_paused.load())
        return true;
    QMutexLocker lock(&m_pauseMutex);
    while (m_paused.load() && !m_stopRequested.load())
        m_pauseCondition.wait(&m_pauseMutex);
    return !m_stopRequested.load();
}

bool BaseWipeWorker::waitUnlessStopped(std::chrono::milliseconds time)
{
    const QDeadlineTimer deadline(time);
    QMutexLocker lock(&m_pauseMutex);
    while (!m_stopRequested.load()) {
        if (!m_pauseCondition.wait(&m_pauseMutex, deadline))
            break;
    }
    return !m_stopRequested.load();
}

void BaseWipeWorker::fillBuffer(std::byte *buffer, qint64 size, const PassPattern &pattern)
{
    fillBuffer(buffer, size, pattern, m_random);
}

void BaseWipeWorker::fillBuffer(std::byte *buffer, qint64 size, const PassPattern &pattern,
                                PatternGenerator &random)
{
    const auto count = static_cast<std::size_t>(std::max<qint64>(size, 0));
    switch (pattern.type) {
    case PatternType::Zeros:
        std::memset(buffer, 0x00, count);
        break;
    case PatternType::Ones:
        std::memset(buffer, 0xFF, count);
        break;
    case PatternType::Random:
        random.fill(buffer, size);
        break;
    case PatternType::Custom:
        std::memset(buffer, pattern.value, count);
        break;
    case PatternType::Complement:
        std::transform(buffer, buffer + count, buffer, [](std::byte b) { return ~b; });
        break;
    }
}

bool BaseWipeWorker::verifyBuffer(const std::byte *buffer, qint64 size, const PassPattern &pattern)
{
    const auto allEqual = [buffer, size](std::byte expected) {
        return std::all_of(buffer, buffer + std::max<qint64>(size, 0),
                           [expected](std::byte b) { return b == expected; });
    };
    switch (pattern.type) {
    case PatternType::Zeros:
        return allEqual(std::byte{0x00});
    case PatternType::Ones:
        return allEqual(std::byte{0xFF});
    case PatternType::Custom:
        return allEqual(std::byte{pattern.value});
    case PatternType::Random:
    case PatternType::Complement:
        break;
    }
    return true;
}

void BaseWipeWorker::noteReadBack(bool readsBack)
{
    const QList<PassPattern> passes = m_task->method().passes;
    const bool isAsked = m_task->verifyAfterWipe() && std::ranges::any_of(passes, &PassPattern::verify);
    const bool isComparable = std::ranges::any_of(passes, [](const PassPattern &pass) {
        return pass.verify && pass.type != PatternType::Random && pass.type != PatternType::Complement;
    });
    if (!isAsked)
        m_task->noteShortfall({ShortfallKind::NotReadBack});
    else if (!readsBack || !isComparable)
        m_task->noteShortfall({ShortfallKind::ReadBackImpossible});
}

void BaseWipeWorker::updateProgress(qint64 done, qint64 total)
{
    if (total == 0) {
        emit progressChanged(0);
        return;
    }
    const double passes = static_cast<double>(done) / static_cast<double>(total) + (m_currentPass - 1);
    const double percent = std::clamp(passes / m_totalPasses * 100.0, 0.0, 100.0);
    emit progressChanged(static_cast<int>(percent));

    const qint64 current = m_bytesBeforePass + done;
    emit bytesWritten(current);

    const auto now = m_clock();
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(now - m_lastSpeedTime);
    if (elapsed < SpeedInterval)
        return;
    const qint64 delta = current - m_lastSpeedBytes;
    if (delta > 0)
        emit speedUpdated(static_cast<double>(delta) * 1000.0 / static_cast<double>(elapsed.count()));
    m_lastSpeedBytes = current;
    m_lastSpeedTime = now;
}
