#pragma once

#include "model/diskinfo.h"
#include "model/joboutcome.h"
#include "model/wipereport.h"
#include "model/wipetask.h"

#include <QString>
#include <QStringList>

// A job on the real platform, run by the engine to its end.
struct RealJob
{
    bool success = false;
    JobOutcome outcome = JobOutcome::Failed;
    WipeReport report;
    QStringList log;
    QStringList errors;

    bool hasLine(const QString &part) const { return !log.filter(part).isEmpty(); }
};

RealJob runRealJob(WipeTask &task, int patienceMs = 120000);

// The record of the drive behind a device node; a default record without a drive.
DiskInfo diskAt(const QString &node);

// The record of the volume mounted there, as the lists of both programs contain it; a default record without
// one.
PartitionInfo volumeAt(const QString &mountPoint);
