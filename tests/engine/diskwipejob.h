#pragma once

#include "engine/diskwipeworker.h"
#include "model/wipetask.h"
#include "support/deviceplatform.h"
#include "support/memorydevices.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

// Bytes that are on a drive before its wipe: no stretch of a sector is constant, and every sector differs.
inline QByteArray markedMedium(qint64 size)
{
    static QByteArray bytes; // made once: most tests want a few MiB
    while (bytes.size() < size)
        bytes += QByteArrayLiteral("MARK") + QByteArray::number(bytes.size() / 16).rightJustified(12, '.');
    return bytes.first(size);
}

inline MemoryDrive markedDrive(int number, qint64 size, qint32 sectorSize = 512)
{
    MemoryDrive drive(number, size, sectorSize);
    drive.medium = markedMedium(drive.medium.size());
    return drive;
}

// One run of the worker over devices, and everything it said. process() runs on the caller's thread.
class DiskWipeJob : public QObject
{
public:
    explicit DiskWipeJob(qint32 method = WipeMethod::Nist80088)
        : worker(&task)
    {
        task.setOperationType(DiskWipe);
        task.setMethod(WipeMethod::fromType(method));
        task.setBufferSizeMB(1);
        task.setVerifySampleSize(20);
        worker.setLockRetryDelay(std::chrono::milliseconds(0));
        listen();
    }

    void setPasses(const QList<PassPattern> &passes)
    {
        WipeMethod method;
        method.passes = passes;
        task.setMethod(method);
    }

    void chooseDrive(const MemoryDrive &drive)
    {
        DiskInfo disk;
        disk.diskNumber = drive.number;
        disk.model = drive.model;
        disk.serialNumber = drive.serialNumber;
        disk.sizeBytes = drive.sizeBytes;
        disk.bytesPerSector = drive.sectorSize;
        task.setDisk(disk);
    }

    // False also when finished() did not come exactly once and last.
    bool run(platform::Devices &devices)
    {
        DevicePlatform platform(devices);
        const platform::ScopedPlatform scope(platform);
        worker.process();
        return endedProperly() && finished.first();
    }

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
    void listen()
    {
        // Direct: the worker may run on a thread of its own, which the test then waits for.
        const auto direct = Qt::DirectConnection;
        connect(
            &worker, &BaseWipeWorker::logMessage, this,
            [this](const QString &text, int level) { events += QStringLiteral("log %1 ").arg(level) + text; },
            direct);
        connect(
            &worker, &BaseWipeWorker::errorOccurred, this,
            [this](const QString &error) { events += QStringLiteral("error ") + error; }, direct);
        connect(
            &worker, &BaseWipeWorker::passChanged, this,
            [this](int pass, int total) { events += QStringLiteral("pass %1/%2").arg(pass).arg(total); },
            direct);
        connect(
            &worker, &BaseWipeWorker::finished, this,
            [this](bool success) {
                finished += success;
                events += QStringLiteral("finished %1").arg(success);
            },
            direct);
        connect(
            &worker, &BaseWipeWorker::progressChanged, this, [this](int percent) { percents += percent; },
            direct);
        connect(
            &worker, &BaseWipeWorker::bytesWritten, this, [this](qint64 count) { bytes += count; }, direct);
    }

    QStringList withPrefix(const QString &prefix) const
    {
        QStringList found;
        for (const QString &event : events) {
            if (event.startsWith(prefix))
                found += event.sliced(prefix.size());
        }
        return found;
    }
};
