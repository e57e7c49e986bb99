#pragma once

#include "engine/wipeengine.h"
#include "model/wipereport.h"
#include "model/wipetask.h"
#include "services/diskmanager.h"

#include <QSignalSpy>
#include <QString>
#include <QStringList>
#include <QTest>

// A job on the machine's own platform, run by the engine to its end.
struct RealJob
{
    bool success = false;
    WipeReport report;
    QStringList log;
    QStringList errors;

    bool hasLine(const QString &part) const { return !log.filter(part).isEmpty(); }
};

inline RealJob runRealJob(WipeTask &task, int patienceMs = 120000)
{
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    RealJob job;
    QObject::connect(&engine, &WipeEngine::logMessage, &engine,
                     [&job](const QString &message, int) { job.log.append(message); });
    QObject::connect(&engine, &WipeEngine::errorOccurred, &engine,
                     [&job](const QString &error) { job.errors.append(error); });
    engine.setTask(&task);
    engine.start();
    if (engine.isRunning() && (!completed.isEmpty() || completed.wait(patienceMs)))
        job.success = completed[0][0].toBool();
    job.report = engine.report();
    return job;
}

// The drive behind a node, as enumeration shows it; a default record when there is none.
inline DiskInfo diskAt(const QString &node)
{
    for (const DiskInfo &disk : DiskManager::enumerateDisks()) {
        if (disk.devicePath == node)
            return disk;
    }
    return {};
}
