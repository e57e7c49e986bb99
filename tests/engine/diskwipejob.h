#pragma once

#include "engine/diskwipeworker.h"
#include "model/wipereport.h"
#include "model/wipetask.h"
#include "platform/devices.h"
#include "support/memorydevices.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

// The content of a drive before its wipe. No stretch of a sector is constant, and every sector differs.
QByteArray markedMedium(qint64 size);

MemoryDrive markedDrive(int number, qint64 size, qint32 sectorSize = 512);

// One run of the worker over devices, with all its signals. process() runs on the caller's thread.
class DiskWipeJob : public QObject
{
public:
    explicit DiskWipeJob(qint32 method = WipeMethod::Nist80088);

    void setPasses(const QList<PassPattern> &passes);
    void chooseDrive(const MemoryDrive &drive);

    // Returns false also when finished() did not come exactly once and last.
    bool run(platform::Devices &devices);

    bool endedProperly() const { return finished.size() == 1 && events.last().startsWith(u"finished"); }
    WipeReport report() const { return task.report(); }
    // Log lines, each with its level in front.
    QStringList log() const { return withPrefix(QStringLiteral("log ")); }
    QStringList errors() const { return withPrefix(QStringLiteral("error ")); }

    WipeTask task;
    DiskWipeWorker worker;
    QStringList events; // log lines, errors, passes and the end, in order
    QList<bool> finished;
    QList<int> percents;
    QList<qint64> bytes;

private:
    void listen();
    QStringList withPrefix(const QString &prefix) const;
};
