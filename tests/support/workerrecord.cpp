#include "support/workerrecord.h"

#include <QMutexLocker>

void WorkerRecord::attach(BaseWipeWorker &worker)
{
    const auto now = Qt::DirectConnection;
    QObject::connect(
        &worker, &BaseWipeWorker::logMessage, &worker,
        [this](const QString &text, int level) { add(QStringLiteral("%1 ").arg(level) + text); }, now);
    QObject::connect(
        &worker, &BaseWipeWorker::errorOccurred, &worker,
        [this](const QString &text) { add(QStringLiteral("error ") + text); }, now);
    QObject::connect(
        &worker, &BaseWipeWorker::passChanged, &worker,
        [this](int pass, int passes) { add(QStringLiteral("pass %1/%2").arg(pass).arg(passes)); }, now);
    QObject::connect(
        &worker, &BaseWipeWorker::finished, &worker,
        [this](bool success) {
            add(success ? QStringLiteral("finished true") : QStringLiteral("finished false"));
        },
        now);
    QObject::connect(
        &worker, &BaseWipeWorker::progressChanged, &worker,
        [this](int percent) {
            const QMutexLocker locker(&m_mutex);
            m_percents.append(percent);
        },
        now);
    QObject::connect(
        &worker, &BaseWipeWorker::bytesWritten, &worker,
        [this](qint64 bytes) {
            const QMutexLocker locker(&m_mutex);
            m_bytes.append(bytes);
        },
        now);
}

QStringList WorkerRecord::lines() const
{
    const QMutexLocker locker(&m_mutex);
    return m_lines;
}

QList<int> WorkerRecord::percents() const
{
    const QMutexLocker locker(&m_mutex);
    return m_percents;
}

QList<qint64> WorkerRecord::bytes() const
{
    const QMutexLocker locker(&m_mutex);
    return m_bytes;
}

int WorkerRecord::finishedCount() const
{
    return static_cast<int>(lines().filter(QStringLiteral("finished ")).size());
}

bool WorkerRecord::succeeded() const
{
    return lines().contains(QStringLiteral("finished true"));
}

void WorkerRecord::add(const QString &line)
{
    if (onLine)
        onLine(line);
    const QMutexLocker locker(&m_mutex);
    m_lines.append(line);
}
