#include "engine/wipeengine.h"
#include "model/wipereport.h"
#include "model/wipetask.h"
#include "services/diskmanager.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <ctime>

// quorvex-bench-job disk NODE zeros|random
// quorvex-bench-job free MOUNTPOINT zeros|random
// quorvex-bench-job files METHOD PATH...
//
// Runs one job and prints the seconds from its start to its end, those of the processors (Linux), the bytes
// that it wrote and its peak memory. The first two jobs have one pass without verification. Exit code 0 when
// the job succeeded.

namespace {

WipeMethod onePass(const QString &pattern)
{
    WipeMethod method = WipeMethod::fromType(WipeMethod::Nist80088);
    PassPattern pass;
    pass.type = pattern == u"random" ? PatternType::Random : PatternType::Zeros;
    method.passes = {pass};
    return method;
}

bool aimAtDisk(WipeTask &task, const QString &node)
{
    for (const DiskInfo &disk : DiskManager::enumerateDisks()) {
        if (disk.devicePath != node)
            continue;
        task.setOperationType(DiskWipe);
        task.setDisk(disk);
        return true;
    }
    return false;
}

bool aimAtVolume(WipeTask &task, const QString &mountPoint)
{
    task.setOperationType(FreeSpaceWipe);
    for (const DiskInfo &disk : DiskManager::enumerateDisks()) {
        for (const PartitionInfo &partition : disk.partitions) {
            if (partition.driveLetter != mountPoint)
                continue;
            task.setPartition(partition);
            return true;
        }
    }
    return false;
}

bool prepare(WipeTask &task, const QStringList &arguments)
{
    const QString kind = arguments.value(1);
    if (kind == u"files") {
        task.setOperationType(FileWipe);
        task.setMethod(WipeMethod::fromType(arguments.value(2).toInt()));
        task.addFiles(arguments.mid(3));
        return arguments.size() > 3;
    }
    task.setMethod(onePass(arguments.value(3)));
    if (kind == u"disk")
        return aimAtDisk(task, arguments.value(2));
    return kind == u"free" && aimAtVolume(task, arguments.value(2));
}

QByteArray peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return "unknown";
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed();
    }
    return "unknown";
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    WipeTask task;
    if (!prepare(task, QCoreApplication::arguments())) {
        std::fprintf(stderr, "no such target; see the head of benchjob.cpp\n");
        return 2;
    }
    WipeEngine engine;
    QObject::connect(&engine, &WipeEngine::errorOccurred, &application,
                     [](const QString &error) { std::fprintf(stderr, "%s\n", qUtf8Printable(error)); });
    QObject::connect(&engine, &WipeEngine::completed, &application,
                     [](bool success) { QCoreApplication::exit(success ? 0 : 1); });
    engine.setTask(&task);
    QElapsedTimer clock;
    clock.start();
    const std::clock_t processor = std::clock();
    engine.start();
    if (!engine.isRunning())
        return 3;
    const int code = QCoreApplication::exec();
    std::printf("seconds %.6f\n", double(clock.nsecsElapsed()) / 1e9);
    std::printf("processor %.6f\n", double(std::clock() - processor) / CLOCKS_PER_SEC);
    std::printf("bytes %llu memory %s\n", engine.report().bytesWritten, peakMemory().constData());
    return code;
}
