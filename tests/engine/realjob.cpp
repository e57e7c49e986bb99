#include "engine/realjob.h"

#include "engine/wipeengine.h"
#include "platform/devices.h"
#include "platform/platform.h"
#include "services/diskmanager.h"

#include <QSignalSpy>

RealJob runRealJob(WipeTask &task, int patienceMs)
{
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    RealJob job;
    QObject::connect(&engine, &WipeEngine::logMessage, &engine,
                     [&job](const QString &message, int) { job.log.append(message); });
    QObject::connect(&engine, &WipeEngine::errorOccurred, &engine,
                     [&job](const QString &error) { job.errors.append(error); });
    engine.setTask(&task);
    if (const auto refusal = engine.releaseVolumes()) {
        job.errors.append(refusal->message);
        return job;
    }
    engine.start();
    if (engine.isRunning() && (!completed.isEmpty() || completed.wait(patienceMs)))
        job.success = completed[0][0].toBool();
    job.report = engine.report();
    job.outcome = engine.outcome().outcome();
    return job;
}

DiskInfo diskAt(const QString &node)
{
    for (const DiskInfo &disk : DiskManager::enumerateDisks()) {
        if (disk.devicePath == node)
            return disk;
    }
    return {};
}

PartitionInfo volumeAt(const QString &mountPoint)
{
    PartitionInfo partition;
    for (const platform::MountedVolume &mounted : platform::Platform::current().devices().mountedVolumes()) {
        if (mounted.name == mountPoint) {
            partition.driveLetter = mounted.name;
            partition.identity = mounted.identity;
        }
    }
    return partition;
}
