#pragma once

#include "engine/basewipeworker.h"

#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

// What a worker said, in order, from whatever thread. Outlives the worker's job.
class WorkerRecord
{
public:
    // Called with every line, in the thread that said it, before it is recorded.
    std::function<void(const QString &line)> onLine;

    explicit WorkerRecord(BaseWipeWorker &worker) { attach(worker); }
    WorkerRecord() = default;

    void attach(BaseWipeWorker &worker)
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

    // "0 text" for a line of the log with its level, "error text", "pass 1/7", "finished true".
    QStringList lines() const
    {
        const QMutexLocker locker(&m_mutex);
        return m_lines;
    }
    QList<int> percents() const
    {
        const QMutexLocker locker(&m_mutex);
        return m_percents;
    }
    QList<qint64> bytes() const
    {
        const QMutexLocker locker(&m_mutex);
        return m_bytes;
    }
    // How many finished() there were, and what the last one carried.
    int finishedCount() const { return static_cast<int>(lines().filter(QStringLiteral("finished ")).size()); }
    bool succeeded() const { return lines().contains(QStringLiteral("finished true")); }

private:
    void add(const QString &line)
    {
        if (onLine)
            onLine(line);
        const QMutexLocker locker(&m_mutex);
        m_lines.append(line);
    }

    mutable QMutex m_mutex;
    QStringList m_lines;
    QList<int> m_percents;
    QList<qint64> m_bytes;
};
