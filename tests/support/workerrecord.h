#pragma once

#include "engine/basewipeworker.h"

#include <QList>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <functional>

// Records the messages of a worker in order, from any thread. Outlives the worker's job.
class WorkerRecord
{
public:
    // Called with every line before it is recorded, on the thread that sent it.
    std::function<void(const QString &line)> onLine;

    explicit WorkerRecord(BaseWipeWorker &worker) { attach(worker); }
    WorkerRecord() = default;

    void attach(BaseWipeWorker &worker);

    // "0 text" for a line of the log with its level, "error text", "pass 1/7", "finished true".
    QStringList lines() const;
    QList<int> percents() const;
    QList<qint64> bytes() const;
    // The number of finished() signals, and the arguments of the last one.
    int finishedCount() const;
    bool succeeded() const;

private:
    void add(const QString &line);

    mutable QMutex m_mutex;
    QStringList m_lines;
    QList<int> m_percents;
    QList<qint64> m_bytes;
};
