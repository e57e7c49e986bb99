#include "engine/diskwipejob.h"

#include "platform/platform.h"
#include "support/describeddisk.h"
#include "support/deviceplatform.h"

#include <chrono>

QByteArray markedMedium(qint64 size)
{
    static QByteArray bytes; // created once, since most tests need a few MiB
    while (bytes.size() < size)
        bytes += QByteArrayLiteral("MARK") + QByteArray::number(bytes.size() / 16).rightJustified(12, '.');
    return bytes.first(size);
}

MemoryDrive markedDrive(int number, qint64 size, qint32 sectorSize)
{
    MemoryDrive drive(number, size, sectorSize);
    drive.medium = markedMedium(drive.medium.size());
    return drive;
}

DiskWipeJob::DiskWipeJob(qint32 method)
    : worker(&task)
{
    task.setOperationType(DiskWipe);
    task.setMethod(WipeMethod::fromType(method));
    task.setBufferSizeMB(1);
    task.setVerifySampleSize(20);
    worker.setLockRetryDelay(std::chrono::milliseconds(0));
    listen();
}

void DiskWipeJob::setPasses(const QList<PassPattern> &passes)
{
    WipeMethod method;
    method.passes = passes;
    task.setMethod(method);
}

void DiskWipeJob::chooseDrive(const MemoryDrive &drive)
{
    task.setDisk(describedDisk(drive));
}

bool DiskWipeJob::run(platform::Devices &devices)
{
    DevicePlatform platform(devices);
    const platform::ScopedPlatform scope(platform);
    worker.process();
    return endedProperly() && finished.first();
}

void DiskWipeJob::listen()
{
    // Direct, because the worker may run on its own thread, for which the test waits.
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
        [this](int pass, int total) { events += QStringLiteral("pass %1/%2").arg(pass).arg(total); }, direct);
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

QStringList DiskWipeJob::withPrefix(const QString &prefix) const
{
    QStringList found;
    for (const QString &event : events) {
        if (event.startsWith(prefix))
            found += event.sliced(prefix.size());
    }
    return found;
}
