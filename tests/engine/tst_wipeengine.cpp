#include "engine/wipeengine.h"
#include "support/suite.h"
#include "support/testfiles.h"

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

namespace {

constexpr qint64 MiB = 1024 * 1024;

// A raw device that waits at every write until it is let go.
class GatedDevice : public platform::ForwardingRawDevice
{
public:
    GatedDevice(std::unique_ptr<platform::RawDevice> target, std::atomic<bool> &open,
                std::atomic<int> &waiting)
        : platform::ForwardingRawDevice(std::move(target))
        , m_open(open)
        , m_waiting(waiting)
    {}
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        ++m_waiting;
        m_open.wait(false);
        return platform::ForwardingRawDevice::write(data, size);
    }

private:
    std::atomic<bool> &m_open;
    std::atomic<int> &m_waiting;
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
            std::make_unique<GatedDevice>(device.take(), open, waiting));
    }
    void letGo()
    {
        open = true;
        open.notify_all();
    }

    std::atomic<bool> open{false};
    std::atomic<int> waiting{0};
};

// An image drive of its own, as the only drive there is, whose writes can be held up.
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
        const QByteArray descriptor = m_platform->devices().queryDrive(0).value()->descriptor().value();
        disk.diskNumber = 0;
        disk.serialNumber = platform::decodeDeviceDescriptor(descriptor).serialNumber;
        disk.sizeBytes = size;
        disk.bytesPerSector = 512;
        disk.totalSectors = size / 512;
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

QStringList messages(const QSignalSpy &spy)
{
    QStringList list;
    for (const QList<QVariant> &arguments : spy)
        list.append(arguments.at(0).toString());
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
    void totalSectorsCount512ByteUnits();
    void freeBytesOfTheVolumeBecomeTotalBytes();
    void freeBytesOfAllVolumesOfADisk();
    void bytesProcessedCarriesNoTotal();
    void noSpeedWithinASecond();
    void speedAfterASecond();
    void stopWhenIdle();
    void stopDuringAJob();
    void completedFollowsStopped();
    void whatAnEarlierJobLeftBehindIsNotHeard();
    void aTaskSetAfterStopIsNotMarked();
    void destructionDuringAJob();
    void reportWithoutTaskIsFresh();
    void aTaskThatRunsAgainStartsClean();
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
    // The next attempt is not in its way.
    engine.start();
    QTRY_COMPARE(ends.size(), 1);
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
    ImageMachine machine(2 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeTask other;
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QSignalSpy errors(&engine, &WipeEngine::errorOccurred);
    engine.setTask(&other);
    QCOMPARE(messages(errors), QStringList({QStringLiteral("无法在运行时更改任务")}));
    QCOMPARE(engine.report().certificateId, task.report().certificateId);
    machine.devices.letGo();
    QTRY_VERIFY(!engine.isRunning());
}

void tst_WipeEngine::secondStartWhileRunning()
{
    ImageMachine machine(2 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    const QDateTime start = engine.report().startTime;
    QSignalSpy errors(&engine, &WipeEngine::errorOccurred);
    engine.start();
    QCOMPARE(messages(errors), QStringList({QStringLiteral("任务已在运行")}));
    QCOMPARE(engine.report().startTime, start);
    machine.devices.letGo();
    QTRY_COMPARE(engine.report().status, WipeStatus::Completed);
}

void tst_WipeEngine::invalidTaskIsToldEvenWhileRunning()
{
    ImageMachine machine(2 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    task.setThreadCount(0);
    QSignalSpy errors(&engine, &WipeEngine::errorOccurred);
    engine.start();
    QCOMPARE(messages(errors), QStringList({QStringLiteral("线程数必须在1-32之间")}));
    machine.devices.letGo();
    QTRY_VERIFY(!engine.isRunning());
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
    QCOMPARE(messages(lines), QStringList({QStringLiteral("开始擦除任务..."),
                                           QStringLiteral("擦除方法: German VSITR (7次覆写)")}));
    QTRY_COMPARE(completed.size(), 1);
    QCOMPARE(completed[0][0].toBool(), true);
    QCOMPARE(passes.size(), 7);
    QVERIFY(messages(lines).contains(QStringLiteral("第 7/7 次覆写")));
    QCOMPARE(messages(lines).last(), QStringLiteral("擦除完成!"));

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
    QTRY_COMPARE(completed.size(), 1);
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
    QTRY_COMPARE(completed.size(), 1);
    QCOMPARE(completed[0][0].toBool(), false);
    QCOMPARE(engine.report().status, WipeStatus::Failed);
    QVERIFY(!engine.report().verificationPassed);
    QCOMPARE(engine.report().errorMessage, QStringLiteral("无法获取磁盘信息"));
    QVERIFY(messages(lines).contains(QStringLiteral("错误: 无法获取磁盘信息")));
    QCOMPARE(messages(lines).last(), QStringLiteral("擦除失败"));
    QCOMPARE(machine.content(), QByteArray(2 * MiB, 'M'));
}

void tst_WipeEngine::totalSectorsCount512ByteUnits()
{
    // No drive answers under this number, so the job only gets as far as its report.
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
    QTRY_VERIFY(!engine.isRunning());
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
    PartitionInfo partition; // without a letter it is counted but not wiped
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
    QTRY_VERIFY(!engine.isRunning());
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
    QTRY_COMPARE(completed.size(), 1);
    QVERIFY(!bytes.isEmpty());
    for (const QList<QVariant> &arguments : bytes)
        QCOMPARE(arguments[1].toLongLong(), 0);
    QCOMPARE(bytes.last()[0].toLongLong(), 4 * MiB);
}

void tst_WipeEngine::noSpeedWithinASecond()
{
    ImageMachine machine(2 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QSignalSpy speed(&engine, &WipeEngine::speedUpdated);
    QMetaObject::invokeMethod(&engine, "onWorkerProgress", Q_ARG(double, 10.9));
    QTest::qWait(400);
    QSignalSpy percent(&engine, &WipeEngine::progressChanged);
    QMetaObject::invokeMethod(&engine, "onWorkerProgress", Q_ARG(double, 11.9));
    QCOMPARE(speed.size(), 0);
    QCOMPARE(percent[0][0].toInt(), 11);
    machine.devices.letGo();
    QTRY_VERIFY(!engine.isRunning());
}

void tst_WipeEngine::speedAfterASecond()
{
    ImageMachine machine(2 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QSignalSpy speed(&engine, &WipeEngine::speedUpdated);
    QTest::qWait(1010);
    QMetaObject::invokeMethod(&engine, "onWorkerBytesWritten", Q_ARG(qint64, 1000000));
    QMetaObject::invokeMethod(&engine, "onWorkerProgress", Q_ARG(double, 50.0));
    QCOMPARE(speed.size(), 1);
    const double first = speed[0][0].toDouble();
    QVERIFY2(first > 0 && first <= 1000000 / 1.0, qPrintable(QString::number(first)));
    QMetaObject::invokeMethod(&engine, "onWorkerProgress", Q_ARG(double, 51.0));
    QCOMPARE(speed.size(), 1);
    machine.devices.letGo();
    QTRY_VERIFY(!engine.isRunning());
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

void tst_WipeEngine::stopDuringAJob()
{
    ImageMachine machine(8 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    QSignalSpy stopped(&engine, &WipeEngine::stopped);
    QSignalSpy lines(&engine, &WipeEngine::logMessage);
    engine.setTask(&task);
    engine.start();
    QTRY_VERIFY(machine.devices.waiting > 0);
    // The write under way ends only while stop() waits, as a slow device's does.
    QThread *gate = QThread::create([&machine] { machine.devices.letGo(); });
    gate->start();
    engine.stop();
    QCOMPARE(stopped.size(), 1);
    QVERIFY(!engine.isRunning());
    QCOMPARE(engine.report().status, WipeStatus::Cancelled);
    QVERIFY(engine.report().endTime.isValid());
    QCOMPARE(lines.last()[0].toString(), QStringLiteral("任务已停止"));
    QCOMPARE(lines.last()[1].toInt(), 1);
    gate->wait();
    delete gate;
}

void tst_WipeEngine::completedFollowsStopped()
{
    ImageMachine machine(8 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.setTask(&task);
    engine.start();
    QTRY_VERIFY(machine.devices.waiting > 0);
    machine.devices.letGo();
    engine.stop();
    QCOMPARE(completed.size(), 0);
    QTRY_COMPARE(completed.size(), 1);
    QCOMPARE(completed[0][0].toBool(), false);
    QCOMPARE(engine.report().status, WipeStatus::Failed);
}

void tst_WipeEngine::whatAnEarlierJobLeftBehindIsNotHeard()
{
    ImageMachine machine(8 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QTRY_VERIFY(machine.devices.waiting > 0);
    machine.devices.letGo();
    engine.stop(); // its finished(false) now waits in the event queue
    QSignalSpy completed(&engine, &WipeEngine::completed);
    engine.start();
    QVERIFY(engine.isRunning());
    QTRY_COMPARE(completed.size(), 1);
    QCOMPARE(completed[0][0].toBool(), true);
    QCOMPARE(engine.report().status, WipeStatus::Completed);
    QCOMPARE(machine.content(), QByteArray(8 * MiB, '\0'));
}

void tst_WipeEngine::aTaskSetAfterStopIsNotMarked()
{
    ImageMachine machine(8 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    WipeTask next;
    WipeEngine engine;
    engine.setTask(&task);
    engine.start();
    QTRY_VERIFY(machine.devices.waiting > 0);
    machine.devices.letGo();
    engine.stop();
    engine.setTask(&next);
    QCoreApplication::processEvents();
    QCOMPARE(next.report().status, WipeStatus::Pending);
    QCOMPARE(task.report().status, WipeStatus::Cancelled);
}

void tst_WipeEngine::destructionDuringAJob()
{
    ImageMachine machine(8 * MiB, true);
    WipeTask task;
    makeDiskTask(task, machine);
    {
        WipeEngine engine;
        engine.setTask(&task);
        engine.start();
        QTRY_VERIFY(machine.devices.waiting > 0);
        machine.devices.letGo();
    }
    QCOMPARE(task.report().status, WipeStatus::Cancelled);
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
    QTRY_COMPARE(engine.report().status, WipeStatus::Completed);
}

QUORVEX_SUITE(tst_WipeEngine, QCoreApplication)
#include "tst_wipeengine.moc"
