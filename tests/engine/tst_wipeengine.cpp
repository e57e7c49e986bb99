#include "engine/wipeengine.h"
#include "support/describeddisk.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "model/units.h"
#include "model/wipereport.h"
#include "model/wipetask.h"
#include "platform/devices.h"
#include "platform/forwarding.h"
#include "platform/platform.h"
#include "platform/storagereplies.h"
#include "refusedthreads.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QMetaMethod>
#include <QMetaObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <chrono>
#include <optional>
#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr int Patience = 60'000; // ms, reached only by failures

// A raw device that blocks every write until it is released.
class GatedDevice : public platform::ForwardingRawDevice
{
public:
    GatedDevice(std::unique_ptr<platform::RawDevice> target, std::atomic<bool> &open,
                std::atomic<int> &waiting, std::atomic<int> &handles)
        : platform::ForwardingRawDevice(std::move(target))
        , m_open(open)
        , m_waiting(waiting)
        , m_handles(handles)
    {
        ++m_handles;
    }
    ~GatedDevice() override { --m_handles; }
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        ++m_waiting;
        m_open.wait(false);
        return platform::ForwardingRawDevice::write(data, size);
    }

private:
    std::atomic<bool> &m_open;
    std::atomic<int> &m_waiting;
    std::atomic<int> &m_handles;
};

class GatedDevices : public platform::ForwardingDevices
{
public:
    using ForwardingDevices::ForwardingDevices;
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override
    {
        auto device = ForwardingDevices::openDrive(drive, access);
        if (!device)
            return device.status();
        return std::unique_ptr<platform::RawDevice>(
            std::make_unique<GatedDevice>(device.take(), open, waiting, handles));
    }
    void letGo()
    {
        open = true;
        open.notify_all();
    }

    std::atomic<bool> open{false};
    std::atomic<int> waiting{0};
    std::atomic<int> handles{0}; // currently open
};

// An image as the only drive, whose writes can be blocked.
class ImageMachine
{
public:
    explicit ImageMachine(qint64 size, bool gated = false)
        : m_image(writeFile(m_folder.filePath(QStringLiteral("disk.img")), QByteArray(size, 'M')))
        , m_platform(platform::createPlatform({{m_image}, true}))
        , devices(m_platform->devices())
        , m_gated(m_platform->files(), m_platform->folders(), devices, m_platform->session())
        , m_scope(gated ? static_cast<platform::Platform &>(m_gated) : *m_platform)
    {
        disk = describedDisk(m_platform->devices(), 0);
    }

    QByteArray content() const { return contentOf(m_image); }

private:
    QTemporaryDir m_folder;
    QString m_image;
    std::unique_ptr<platform::Platform> m_platform;

public:
    GatedDevices devices;
    DiskInfo disk;

private:
    platform::ForwardingPlatform m_gated;
    platform::ScopedPlatform m_scope;
};

void makeDiskTask(WipeTask &task, const ImageMachine &machine)
{
    task.setOperationType(DiskWipe);
    task.setDisk(machine.disk);
    task.setBufferSizeMB(1);
}

// A disk job whose first write is blocked until it is released. The destructor releases it, however the test
// ends, because the engine waits for it.
class GatedJob
{
public:
    explicit GatedJob(qint64 size)
        : machine(size, true)
    {
        makeDiskTask(task, machine);
        engine->setTask(&task);
    }
    ~GatedJob() { letGo(); }
    GatedJob(const GatedJob &) = delete;
    GatedJob &operator=(const GatedJob &) = delete;

    bool isWriting() const { return machine.devices.waiting > 0; }
    bool isDriveOpen() const { return machine.devices.handles > 0; }
    void letGo() { machine.devices.letGo(); }

    // From here on the engine's clock shows `now`.
    void stopTheClock()
    {
        engine->setClock([this] { return now; });
    }
    // Sends the worker's signal.
    void reportBytes(qint64 bytes)
    {
        QMetaObject::invokeMethod(&*engine, "onWorkerBytesWritten", Q_ARG(qint64, bytes));
    }
    void reportPercent(double percent)
    {
        QMetaObject::invokeMethod(&*engine, "onWorkerProgress", Q_ARG(double, percent));
    }

    // Stops the engine while the worker is in a write. The write ends after the given time, unless stop()
    // returns before. Returns whether stop() waited for the worker.
    bool stopWaits(std::chrono::milliseconds writeTime)
    {
        std::atomic<bool> returned{false};
        std::thread device([&] {
            for (auto time = 0ms; time < writeTime && !returned; time += 1ms)
                std::this_thread::sleep_for(1ms);
            if (!returned)
                letGo();
        });
        engine->stop();
        const bool ended = !isDriveOpen();
        returned = true;
        device.join();
        return ended;
    }

    ImageMachine machine;
    WipeTask task;
    QDateTime now = QDateTime::currentDateTime();
    std::optional<WipeEngine> engine{std::in_place};
};

QStringList messages(const QSignalSpy &spy)
{
    QStringList list;
    for (const QList<QVariant> &arguments : spy)
        list.append(arguments.at(0).toString());
    return list;
}

// Lines of the log, each with its level in front.
QStringList linesWithLevels(const QSignalSpy &spy)
{
    QStringList list;
    for (const QList<QVariant> &arguments : spy)
        list.append(QStringLiteral("%1 ").arg(arguments.at(1).toInt()) + arguments.at(0).toString());
    return list;
}

} // namespace

class tst_WipeEngine : public QObject
{
    Q_OBJECT

private slots:
    void signalsInTheirOrder();
    void startWithoutTask();
    void startWithAnInvalidTask();
    void unknownOperationTypeGivesNoWorker();
    void aThreadThatTheSystemRefusesIsTold();
    void setTaskWhileRunning();
    void secondStartWhileRunning();
    void invalidTaskIsToldEvenWhileRunning();
    void diskJobFromTaskToReport();
    void fileJobFromTaskToReport();
    void failedJobKeepsItsLastError();
    void driveOfTheJobIsInItsReport_data();
    void driveOfTheJobIsInItsReport();
    void totalSectorsCount512ByteUnits();
    void freeBytesOfTheVolumeBecomeTotalBytes();
    void freeBytesOfAllVolumesOfADisk();
    void bytesProcessedCarriesNoTotal();
    void noSpeedWithinASecond();
    void speedIsOfTheTimeSinceTheLastSample();
    void figuresOfALaterJobBeginAnew();
    void aLaterJobThatWroteNothingReportsNothing();
    void timesAreTheClocks();
    void stopWhenIdle();
    void aStopWantedBeforeTheStartTouchesNothing();
    void stopDuringAJob();
    void stopLeavesAWorkerThatDoesNotEnd();
    void completedFollowsStopped();
    void whatAnEarlierJobLeftBehindIsNotHeard();
    void aTaskSetAfterStopIsNotMarked();
    void destructionDuringAJob();
    void reportWithoutTaskIsFresh();
    void aTaskThatRunsAgainStartsClean();
    void outcomeOfACompleteJob();
    void outcomeOfAJobThatFellShort();
    void outcomeOfAFailedJob();
    void outcomeOfAStoppedJob();
    void outcomeOfAJobThatWasStoppedTooLate();
    void outcomeWithoutTask();
};

void tst_WipeEngine::signalsInTheirOrder()
{
    const QMetaObject &meta = WipeEngine::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            names.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(names, QStringList(
                        {QStringLiteral("progressChanged(int)"), QStringLiteral("passChanged(int,int)"),
                         QStringLiteral("bytesProcessed(qlonglong,qlonglong)"),
                         QStringLiteral("speedUpdated(double)"), QStringLiteral("started()"),
                         QStringLiteral("paused()"), QStringLiteral("resumed()"), QStringLiteral("stopped()"),
                         QStringLiteral("completed(bool)"), QStringLiteral("logMessage(QString,int)"),
                         QStringLiteral("errorOccurred(QString)"), QStringLiteral("verificationStarted()"),
                         QStringLiteral("verificationProgress(int)"),
                         QStringLiteral("verificationCompleted(bool)")}));
}

void tst_WipeEngine::startWithoutTask()
{
    WipeEngine engine;
    QSignalSpy errors(&engine, &WipeEngine::errorOccurred);
    QSignalSpy lines(&engine, &WipeEngine::logMessage);
    engine.start();
    QCOMPARE(messages(errors), QStringList({QStringLiteral("没有设置任务")}));
    QCOMPARE(lines.size(), 0);
    QVERIFY(!engine.isRunning());
}

void tst_WipeEngine::startWithAnInvalidTask()
{
    WipeTask task; // a file wipe without files
    const WipeReport before = task.report();
    WipeEngine engine;
    QSignalSpy errors(&engine, &WipeEngine::errorOccurred);
    engine.setTask(&task);
    engine.start();
    QCOMPARE(messages(errors), QStringList({QStringLiteral("Please add files to wipe")}));
    QCOMPARE(task.report(), before);
}

void tst_WipeEngine::aThreadThatTheSystemRefusesIsTold()
{
    if (!RefusedThreads::isPossible())
        QSKIP(RefusedThreads::whyNot);
    const QTemporaryDir folder;
    WipeTask task;
    task.setOperationType(FileWipe);
    task.setFiles({writeFile(folder.filePath(QStringLiteral("a")), QByteArray(1000, 'M'))});
    WipeEngine engine;
    QSignalSpy errors(&engine, &WipeEngine::errorOccurred);
    QSignalSpy starts(&engine, &WipeEngine::started);
    QSignalSpy ends(&engine, &WipeEngine::completed);
    engine.setTask(&task);
    {
        const RefusedThreads refused;
        engine.start();
    }
    QCOMPARE(messages(errors), QStringList({QStringLiteral("创建工作线程失败")}));
    QVERIFY(!engine.isRunning());
    QCOMPARE(starts.size(), 0);
    // The failed attempt does not block the next one.
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(ends.size(), 1, Patience);
    QCOMPARE(engine.report().status, WipeStatus::Completed);
}

void tst_WipeEngine::unknownOperationTypeGivesNoWorker()
{
    WipeTask task;
    task.setOperationType(static_cast<OperationType>(9));
    WipeEngine engine;
    QSignalSpy errors(&engine, &WipeEngine::errorOccurred);
    engine.setTask(&task);
    engine.start();
    QCOMPARE(messages(errors), QStringList({QStringLiteral("创建工作线程失败")}));
    QVERIFY(!engine.isRunning());
    QCOMPARE(engine.report().status, WipeStatus::Running);
    QVERIFY(engine.report().startTime.isValid());
}

void tst_WipeEngine::setTaskWhileRunning()
{
    GatedJob job(2 * MiB);
    WipeTask other;
    job.engine->start();
    QSignalSpy errors(&*job.engine, &WipeEngine::errorOccurred);
    job.engine->setTask(&other);
    QCOMPARE(messages(errors), QStringList({QStringLiteral("无法在运行时更改任务")}));
    QCOMPARE(job.engine->report().certificateId, job.task.report().certificateId);
    job.letGo();
    QTRY_VERIFY_WITH_TIMEOUT(!job.engine->isRunning(), Patience);
}

void tst_WipeEngine::secondStartWhileRunning()
{
    GatedJob job(2 * MiB);
    job.engine->start();
    const QDateTime start = job.engine->report().startTime;
    QSignalSpy errors(&*job.engine, &WipeEngine::errorOccurred);
    job.engine->start();
    QCOMPARE(messages(errors), QStringList({QStringLiteral("任务已在运行")}));
    QCOMPARE(job.engine->report().startTime, start);
    job.letGo();
    QTRY_COMPARE_WITH_TIMEOUT(job.engine->report().status, WipeStatus::Completed, Patience);
}

void tst_WipeEngine::invalidTaskIsToldEvenWhileRunning()
{
    GatedJob job(2 * MiB);
    job.engine->start();
    job.task.setThreadCount(0);
    QSignalSpy errors(&*job.engine, &WipeEngine::errorOccurred);
    job.engine->start();
    QCOMPARE(messages(errors), QStringList({QStringLiteral("线程数必须在1-32之间")}));
    job.letGo();
    QTRY_VERIFY_WITH_TIMEOUT(!job.engine->isRunning(), Patience);
}

void tst_WipeEngine::diskJobFromTaskToReport()
{
    ImageMachine machine(3 * MiB + 512);
    WipeTask task;
    makeDiskTask(task, machine);
    task.setMethod(WipeMethod::fromType(WipeMethod::GermanVsitr));
    WipeEngine engine;
    QSignalSpy lines(&engine, &WipeEngine::logMessage);
    QSignalSpy passes(&engine, &WipeEngine::passChanged);
    QSignalSpy started(&engine, &WipeEngine::started);
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.setTask(&task);
    engine.start();
    QCOMPARE(started.size(), 1);
    QVERIFY(engine.isRunning());
    QCOMPARE(linesWithLevels(lines), QStringList({QStringLiteral("0 开始擦除任务..."),
                                                  QStringLiteral("0 擦除方法: German VSITR (7次覆写)")}));
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    QCOMPARE(completed[0][0].toBool(), true);
    QCOMPARE(passes.size(), 7);
    QVERIFY(linesWithLevels(lines).contains(QStringLiteral("0 第 7/7 次覆写")));
    QCOMPARE(linesWithLevels(lines).last(), QStringLiteral("0 擦除完成!"));

    QCOMPARE(machine.content(), QByteArray(3 * MiB + 512, '\xAA'));
    const WipeReport report = engine.report();
    QCOMPARE(report.status, WipeStatus::Completed);
    QCOMPARE(report.operationType, DiskWipe);
    QCOMPARE(report.method, task.method());
    QCOMPARE(report.disk, machine.disk);
    QCOMPARE(report.totalSectors, quint64(6145));
    QCOMPARE(report.wipedSectors, quint64(6145));
    QCOMPARE(report.bytesWritten, quint64(7 * (3 * MiB + 512)));
    QVERIFY(report.verificationPassed);
    QCOMPARE(report.verificationSampleSize, 1000);
    QVERIFY(report.endTime >= report.startTime);
    QVERIFY(report.errorMessage.isEmpty());
}

void tst_WipeEngine::fileJobFromTaskToReport()
{
    const QTemporaryDir folder;
    const QString first = writeFile(folder.filePath(QStringLiteral("a")), QByteArray(10000, 'M'));
    const QString second = writeFile(folder.filePath(QStringLiteral("b")), QByteArray(5, 'M'));
    WipeTask task;
    task.addFiles({first, second});
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.setTask(&task);
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    QCOMPARE(completed[0][0].toBool(), true);
    QVERIFY(!QFile::exists(first));
    QVERIFY(!QFile::exists(second));
    QCOMPARE(engine.report().fileCount, 2);
    QCOMPARE(engine.report().totalBytes, quint64(10005));
    QCOMPARE(engine.report().disk, DiskInfo());
}

void tst_WipeEngine::failedJobKeepsItsLastError()
{
    ImageMachine machine(2 * MiB);
    WipeTask task;
    makeDiskTask(task, machine);
    DiskInfo other = machine.disk;
    other.serialNumber = QStringLiteral("ANOTHER");
    task.setDisk(other);
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    QSignalSpy lines(&engine, &WipeEngine::logMessage);
    engine.setTask(&task);
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    QCOMPARE(completed[0][0].toBool(), false);
    QCOMPARE(engine.report().status, WipeStatus::Failed);
    QVERIFY(!engine.report().verificationPassed);
    QCOMPARE(engine.report().errorMessage, QStringLiteral("无法获取磁盘信息"));
    QVERIFY(linesWithLevels(lines).contains(QStringLiteral("2 错误: 无法获取磁盘信息")));
    QCOMPARE(linesWithLevels(lines).last(), QStringLiteral("2 擦除失败"));
    QCOMPARE(machine.content(), QByteArray(2 * MiB, 'M'));
}

void tst_WipeEngine::driveOfTheJobIsInItsReport_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("disk") << static_cast<int>(DiskWipe);
    QTest::newRow("partition") << static_cast<int>(PartitionWipe);
    QTest::newRow("free space") << static_cast<int>(FreeSpaceWipe);
}

void tst_WipeEngine::driveOfTheJobIsInItsReport()
{
    QFETCH(int, type);
    const ImageMachine machine(MiB); // no drive has this number
    WipeTask task;
    task.setOperationType(static_cast<OperationType>(type));
    DiskInfo disk;
    disk.diskNumber = 31;
    disk.model = QStringLiteral("Model");
    disk.serialNumber = QStringLiteral("S-31");
    disk.sizeBytes = 4 * MiB;
    task.setDisk(disk);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QCOMPARE(engine.report().operationType, static_cast<OperationType>(type));
    QCOMPARE(engine.report().disk, disk);
    QTRY_VERIFY_WITH_TIMEOUT(!engine.isRunning(), Patience);
    QCOMPARE(engine.report().disk, disk);
}

void tst_WipeEngine::totalSectorsCount512ByteUnits()
{
    // No drive has this number, so the job only gets as far as its report.
    const ImageMachine machine(MiB);
    WipeTask task;
    task.setOperationType(PartitionWipe);
    DiskInfo disk;
    disk.diskNumber = 31;
    disk.sizeBytes = 500000000000;
    disk.bytesPerSector = 4096;
    task.setDisk(disk);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QCOMPARE(engine.report().totalSectors, quint64(976562500));
    QTRY_VERIFY_WITH_TIMEOUT(!engine.isRunning(), Patience);
}

void tst_WipeEngine::freeBytesOfTheVolumeBecomeTotalBytes()
{
    const QTemporaryDir folder;
    WipeTask task;
    task.setOperationType(FreeSpaceWipe);
    PartitionInfo partition;
    partition.driveLetter = folder.filePath(QStringLiteral("gone"));
    partition.freeBytes = 777;
    task.setPartition(partition);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QCOMPARE(engine.report().totalBytes, quint64(777));
    engine.stop();
}

void tst_WipeEngine::freeBytesOfAllVolumesOfADisk()
{
    const ImageMachine machine(MiB);
    WipeTask task;
    task.setOperationType(FreeSpaceWipe);
    DiskInfo disk;
    disk.diskNumber = 31;
    PartitionInfo partition; // a volume without a letter is counted but not wiped
    partition.freeBytes = 1000;
    disk.addPartition(partition);
    partition.freeBytes = 234;
    disk.addPartition(partition);
    task.setDisk(disk);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QCOMPARE(engine.report().totalBytes, quint64(1234));
    QCOMPARE(engine.report().disk, disk);
    QTRY_VERIFY_WITH_TIMEOUT(!engine.isRunning(), Patience);
}

void tst_WipeEngine::bytesProcessedCarriesNoTotal()
{
    ImageMachine machine(4 * MiB);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    QSignalSpy bytes(&engine, &WipeEngine::bytesProcessed);
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.setTask(&task);
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    QVERIFY(!bytes.isEmpty());
    for (const QList<QVariant> &arguments : bytes)
        QCOMPARE(arguments[1].toLongLong(), 0);
    QCOMPARE(bytes.last()[0].toLongLong(), 4 * MiB);
}

void tst_WipeEngine::noSpeedWithinASecond()
{
    GatedJob job(2 * MiB);
    job.stopTheClock();
    job.engine->start();
    QSignalSpy speeds(&*job.engine, &WipeEngine::speedUpdated);
    QSignalSpy percents(&*job.engine, &WipeEngine::progressChanged);
    job.reportBytes(500);
    job.reportPercent(10.9);
    job.now = job.now.addMSecs(999);
    job.reportPercent(11.9);
    QCOMPARE(speeds.size(), 0);
    QCOMPARE(percents.size(), 2);
    QCOMPARE(percents[1][0].toInt(), 11);
    job.now = job.now.addMSecs(1);
    job.reportPercent(12.0);
    QCOMPARE(speeds.size(), 1);
}

void tst_WipeEngine::speedIsOfTheTimeSinceTheLastSample()
{
    GatedJob job(2 * MiB);
    job.stopTheClock();
    job.engine->start();
    QSignalSpy speeds(&*job.engine, &WipeEngine::speedUpdated);
    const auto sample = [&](qint64 bytes, qint64 ms) {
        job.now = job.now.addMSecs(ms);
        job.reportBytes(bytes);
        job.reportPercent(50.0);
        return speeds.isEmpty() ? -1.0 : speeds.takeFirst()[0].toDouble();
    };
    QCOMPARE(sample(1'000'000, 2'000), 500'000.0);
    QCOMPARE(sample(1'100'000, 999), -1.0);
    // Counts the bytes since the last sample, not since the start or the last report.
    QCOMPARE(sample(1'300'000, 501), 200'000.0);
    QCOMPARE(sample(1'300'000, 1'000), 0.0);
    QCOMPARE(sample(1'300'500, 1'250), 400.0);
}

void tst_WipeEngine::figuresOfALaterJobBeginAnew()
{
    GatedJob job(2 * MiB);
    job.stopTheClock();
    job.engine->start();
    job.reportBytes(8'000'000);
    job.now = job.now.addMSecs(1'000);
    job.reportPercent(50.0);
    job.letGo();
    job.engine->stop();

    job.machine.devices.open = false;
    job.now = job.now.addMSecs(10'000);
    job.engine->start();
    QSignalSpy speeds(&*job.engine, &WipeEngine::speedUpdated);
    job.now = job.now.addMSecs(1'000);
    job.reportBytes(3'000);
    job.reportPercent(10.0);
    QCOMPARE(speeds.size(), 1);
    QCOMPARE(speeds[0][0].toDouble(), 3'000.0);
}

void tst_WipeEngine::aLaterJobThatWroteNothingReportsNothing()
{
    ImageMachine machine(2 * MiB);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.setTask(&task);
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    QCOMPARE(engine.report().bytesWritten, quint64(2 * MiB));

    WipeTask next;
    makeDiskTask(next, machine);
    DiskInfo other = machine.disk;
    other.serialNumber = QStringLiteral("ANOTHER");
    next.setDisk(other);
    engine.setTask(&next);
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 2, Patience);
    QCOMPARE(engine.report().status, WipeStatus::Failed);
    QCOMPARE(engine.report().bytesWritten, quint64(0));
}

void tst_WipeEngine::timesAreTheClocks()
{
    ImageMachine machine(MiB);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    engine.setTask(&task);
    const QDateTime before = QDateTime::currentDateTime();
    engine.start();
    QTRY_VERIFY_WITH_TIMEOUT(!engine.isRunning(), Patience);
    const QDateTime after = QDateTime::currentDateTime();
    QVERIFY(engine.report().startTime >= before);
    QVERIFY(engine.report().endTime >= engine.report().startTime);
    QVERIFY(engine.report().endTime <= after);

    const QDateTime noon(QDate(2020, 2, 29), QTime(12, 0));
    engine.setClock([noon] { return noon; });
    engine.start();
    QCOMPARE(engine.report().startTime, noon);
    QTRY_VERIFY_WITH_TIMEOUT(!engine.isRunning(), Patience);
    QCOMPARE(engine.report().endTime, noon);
}

void tst_WipeEngine::stopWhenIdle()
{
    WipeEngine engine;
    QSignalSpy stopped(&engine, &WipeEngine::stopped);
    QSignalSpy lines(&engine, &WipeEngine::logMessage);
    engine.stop();
    QCOMPARE(stopped.size(), 0);
    QCOMPARE(lines.size(), 0);
}

// Simulates Ctrl+C while the volumes are unmounted.
void tst_WipeEngine::aStopWantedBeforeTheStartTouchesNothing()
{
    ImageMachine machine(2 * MiB);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    bool isStopWanted = true;
    engine.setStopProbe([&isStopWanted] { return isStopWanted; });
    engine.setTask(&task);
    QSignalSpy lines(&engine, &WipeEngine::logMessage);
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    QCOMPARE(completed[0][0].toBool(), false);
    QCOMPARE(engine.outcome().outcome(), JobOutcome::Cancelled);
    QVERIFY(linesWithLevels(lines).contains(QStringLiteral("1 擦除已取消")));
    QVERIFY(!linesWithLevels(lines).contains(QStringLiteral("0 正在锁定磁盘卷...")));
    QCOMPARE(machine.content(), QByteArray(2 * MiB, 'M'));

    isStopWanted = false;
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 2, Patience);
    QCOMPARE(engine.outcome().outcome(), JobOutcome::Complete);
}

void tst_WipeEngine::stopDuringAJob()
{
    GatedJob job(8 * MiB);
    QCOMPARE(job.engine->stopPatience(), 5000ms);
    job.engine->setStopPatience(1h);
    QSignalSpy lines(&*job.engine, &WipeEngine::logMessage);
    QStringList order;
    connect(&*job.engine, &WipeEngine::stopped, this, [&order] { order.append(QStringLiteral("stopped")); });
    connect(&*job.engine, &WipeEngine::logMessage, this,
            [&order](const QString &line) { order.append(line); });
    job.engine->start();
    QTRY_VERIFY_WITH_TIMEOUT(job.isWriting(), Patience);
    order.clear();
    // The current write ends only during stop(), like on a slow device.
    QVERIFY(job.stopWaits(200ms));
    QVERIFY(!job.engine->isRunning());
    QCOMPARE(job.engine->report().status, WipeStatus::Cancelled);
    QVERIFY(job.engine->report().endTime.isValid());
    QCOMPARE(linesWithLevels(lines).last(), QStringLiteral("1 任务已停止"));
    QCOMPARE(order, QStringList({QStringLiteral("stopped"), QStringLiteral("任务已停止")}));
}

void tst_WipeEngine::stopLeavesAWorkerThatDoesNotEnd()
{
    GatedJob job(8 * MiB);
    job.engine->setStopPatience(0ms);
    QSignalSpy stopped(&*job.engine, &WipeEngine::stopped);
    QSignalSpy completed(&*job.engine, &WipeEngine::completed);
    job.engine->start();
    QTRY_VERIFY_WITH_TIMEOUT(job.isWriting(), Patience);
    QVERIFY(!job.stopWaits(30s));
    QCOMPARE(stopped.size(), 1);
    QCOMPARE(job.engine->report().status, WipeStatus::Cancelled);
    QCOMPARE(completed.size(), 0);
    job.letGo();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    QCOMPARE(completed[0][0].toBool(), false);
}

void tst_WipeEngine::completedFollowsStopped()
{
    GatedJob job(8 * MiB);
    QSignalSpy completed(&*job.engine, &WipeEngine::completed);
    job.engine->start();
    QTRY_VERIFY_WITH_TIMEOUT(job.isWriting(), Patience);
    job.letGo();
    job.engine->stop();
    QCOMPARE(completed.size(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    QCOMPARE(completed[0][0].toBool(), false);
    QCOMPARE(job.engine->report().status, WipeStatus::Failed);
}

void tst_WipeEngine::whatAnEarlierJobLeftBehindIsNotHeard()
{
    GatedJob job(8 * MiB);
    job.engine->start();
    QTRY_VERIFY_WITH_TIMEOUT(job.isWriting(), Patience);
    job.letGo();
    job.engine->stop(); // its finished(false) now waits in the event queue
    QSignalSpy completed(&*job.engine, &WipeEngine::completed);
    job.engine->start();
    QVERIFY(job.engine->isRunning());
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    QCOMPARE(completed[0][0].toBool(), true);
    QCOMPARE(job.engine->report().status, WipeStatus::Completed);
    QCOMPARE(job.machine.content(), QByteArray(8 * MiB, '\0'));
}

void tst_WipeEngine::aTaskSetAfterStopIsNotMarked()
{
    GatedJob job(8 * MiB);
    WipeTask next;
    job.engine->start();
    QTRY_VERIFY_WITH_TIMEOUT(job.isWriting(), Patience);
    job.letGo();
    job.engine->stop();
    job.engine->setTask(&next);
    QCoreApplication::processEvents();
    QCOMPARE(next.report().status, WipeStatus::Pending);
    QCOMPARE(job.task.report().status, WipeStatus::Cancelled);
}

void tst_WipeEngine::destructionDuringAJob()
{
    GatedJob job(8 * MiB);
    job.engine->start();
    QTRY_VERIFY_WITH_TIMEOUT(job.isWriting(), Patience);
    job.letGo();
    job.engine.reset();
    QCOMPARE(job.task.report().status, WipeStatus::Cancelled);
    QVERIFY(!job.isDriveOpen());
}

void tst_WipeEngine::reportWithoutTaskIsFresh()
{
    const WipeReport report = WipeEngine().report();
    QVERIFY(report.certificateId.startsWith(QStringLiteral("QVX-")));
    QCOMPARE(report.status, WipeStatus::Pending);
}

void tst_WipeEngine::aTaskThatRunsAgainStartsClean()
{
    ImageMachine machine(MiB);
    WipeTask task;
    makeDiskTask(task, machine);
    task.updateReport([](WipeReport &report) {
        report.errorMessage = QStringLiteral("old");
        report.verificationPassed = true;
    });
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QVERIFY(!engine.report().verificationPassed);
    QVERIFY(engine.report().errorMessage.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(engine.report().status, WipeStatus::Completed, Patience);
}

void tst_WipeEngine::outcomeOfACompleteJob()
{
    ImageMachine machine(MiB);
    WipeTask task;
    makeDiskTask(task, machine);
    task.noteShortfall({ShortfallKind::RoomLeft}); // from an earlier run
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.setTask(&task);
    engine.start();
    QCOMPARE(engine.outcome().outcome(), JobOutcome::Failed); // until the job has ended
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    OutcomeRecord expected(JobOutcome::Complete);
    expected.addWritten(MiB);
    QCOMPARE(engine.outcome(), expected);
    QCOMPARE(task.outcome(), expected);
}

void tst_WipeEngine::outcomeOfAJobThatFellShort()
{
    ImageMachine machine(MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.setTask(&task);
    engine.start();
    task.noteShortfall({ShortfallKind::VolumeInUse, QStringLiteral("E:")});
    machine.devices.letGo();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    // The signal and the stored status say that the job ran to its end.
    QCOMPARE(completed[0][0].toBool(), true);
    QCOMPARE(engine.report().status, WipeStatus::Completed);
    QCOMPARE(engine.outcome().outcome(), JobOutcome::Partial);
}

void tst_WipeEngine::outcomeOfAFailedJob()
{
    ImageMachine machine(MiB);
    WipeTask task;
    makeDiskTask(task, machine);
    DiskInfo other = machine.disk;
    other.serialNumber = QStringLiteral("ANOTHER");
    task.setDisk(other);
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.setTask(&task);
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    OutcomeRecord expected(JobOutcome::Failed);
    expected.addWritten(0);
    QCOMPARE(engine.outcome(), expected);
}

void tst_WipeEngine::outcomeOfAStoppedJob()
{
    ImageMachine machine(8 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    QSignalSpy stopped(&engine, &WipeEngine::stopped);
    QSignalSpy completed(&engine, &WipeEngine::completed);
    QList<JobOutcome> whenStopped;
    QObject::connect(&engine, &WipeEngine::stopped, &engine,
                     [&] { whenStopped.append(engine.outcome().outcome()); });
    engine.setTask(&task);
    engine.start();
    QTRY_VERIFY_WITH_TIMEOUT(machine.devices.waiting > 0, Patience);
    machine.devices.letGo();
    engine.stop();
    QCOMPARE(whenStopped, QList{JobOutcome::Cancelled});
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, Patience);
    // The stored status can no longer show this.
    QCOMPARE(engine.report().status, WipeStatus::Failed);
    QCOMPARE(engine.outcome().outcome(), JobOutcome::Cancelled);
}

void tst_WipeEngine::outcomeOfAJobThatWasStoppedTooLate()
{
    ImageMachine machine(8 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QTRY_VERIFY_WITH_TIMEOUT(machine.devices.waiting > 0, Patience);
    machine.devices.letGo();
    engine.stop();
    // A worker that had finished before the stop has erased everything.
    QMetaObject::invokeMethod(&engine, "onWorkerFinished", Q_ARG(bool, true));
    QCOMPARE(engine.outcome().outcome(), JobOutcome::Complete);
}

void tst_WipeEngine::outcomeWithoutTask()
{
    QCOMPARE(WipeEngine().outcome(), OutcomeRecord());
}

QUORVEX_SUITE(tst_WipeEngine, QCoreApplication)
#include "tst_wipeengine.moc"
