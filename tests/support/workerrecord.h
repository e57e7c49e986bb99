#pragma once

#include "engine/basewipeworker.h"

#include <QList>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <functional>

// What a worker said, in order, from whatever thread. Outlives the worker's job.
class WorkerRecord
{
public:
    // Called with every line, in the thread that said it, before it is recorded.
    std::function<void(const QString &line)> onLine;

    explicit WorkerRecord(BaseWipeWorker &worker) { attach(worker); }
    WorkerRecord() = default;

    void attach(BaseWipeWorker &worker);

    // "0 text" for a line of the log with its level, "error text", "pass 1/7", "finished true".
    QStringList lines() const;
    QList<int> percents() const;
    QList<qint64> bytes() const;
    // How many finished() there were, and what the last one carried.
    int finishedCount() const;
    bool succeeded() const;

private:
    void add(const QString &line);

    mutable QMutex m_mutex;
    QStringList m_lines;
    QList<int> m_percents;
    QList<qint64> m_bytes;
};
