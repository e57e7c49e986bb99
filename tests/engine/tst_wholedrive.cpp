#include "diskwipejob.h"
#include "engine/driveidentity.h"
#include "engine/foreseeable.h"
#include "engine/wipeengine.h"
#include "model/units.h"
#include "refusedthreads.h"
#include "support/describeddisk.h"
#include "support/deviceplatform.h"
#include "support/interposeddevices.h"
#include "support/reason.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int Patience = 60'000; // ms, reached only by failures

// Drive 3 with two volumes and space around them.
class Machine
{
public:
    MemoryDevices memory;
    InterposedDevices devices{memory, [this](const DeviceCall &call) { return before(call); }};
    std::function<platform::Status(const DeviceCall &)> answer;

    Machine()
    {
        memory.addDrive(markedDrive(3, 4 * MiB));
        memory.addVolume(u"/a"_s, 3, 64 * 1024, MiB);
        memory.addVolume(u"/b"_s, 3, 2 * MiB, MiB);
    }
    bool isErased() const { return memory.medium(3) == QByteArray(4 * MiB, '\0'); }
    bool isUntouched() const { return memory.medium(3) == markedMedium(4 * MiB); }

private:
    platform::Status before(const DeviceCall &call) { return answer ? answer(call) : platform::Status{}; }
};

// An engine job on that drive, with all its log lines.
class EngineJob
{
public:
    explicit EngineJob(Machine &machine)
        : m_platform(machine.devices)
        , m_scope(m_platform)
    {
        task.setOperationType(DiskWipe);
        task.setMethod(WipeMethod::fromType(WipeMethod::Nist80088));
        task.setBufferSizeMB(1);
        task.setVerifySampleSize(20);
        task.setWholeDrive(true);
        task.setDisk(describedDisk(machine.memory.drive(3)));
        makeEngine();
    }

    // Returns true when the job succeeded.
    bool run()
    {
        QSignalSpy completed(engine.get(), &WipeEngine::completed);
        engine->start();
        if (!engine->isRunning() || (completed.isEmpty() && !completed.wait(Patience)))
            return false;
        return completed[0][0].toBool();
    }

    void makeEngine()
    {
        engine = std::make_unique<WipeEngine>();
        QObject::connect(engine.get(), &WipeEngine::logMessage, engine.get(),
                         [this](const QString &line, int) { log.append(line); });
        QObject::connect(engine.get(), &WipeEngine::errorOccurred, engine.get(),
                         [this](const QString &error) { errors.append(error); });
        engine->setTask(&task);
    }

private:
    DevicePlatform m_platform;
    platform::ScopedPlatform m_scope;

public:
    WipeTask task;
    QStringList log;
    QStringList errors;
    std::unique_ptr<WipeEngine> engine;
};

} // namespace

// Whole-drive jobs, whose volumes are released before the start.
class tst_WholeDrive : public QObject
{
    Q_OBJECT

private slots:
    void everySectorIsErased();
    void withoutItOnlyTheVolumesAre();
    void aPartitionJobTakesItsVolumes();
    void aVolumeThatCameBackIsAFailure();
    void aVolumeThatWasNotReleasedIsAFailure();
    void aVolumeThatIsHeldIsNone();

    void whatIsInTheWayIsSaid_data();
    void whatIsInTheWayIsSaid();
    void theSystemDiskIsNotReleased();
    void otherJobsReleaseNothing();
    void anotherTaskGivesTheVolumesBack();
    void theEndOfTheEngineGivesThemBack();
    void aJobReleasesOnce();

    void aThreadThatTheSystemRefusesGivesThemBack();
    void aDriveThatDoesNotOpenGivesThemBack();
    void aDriveThatDoesNotTellItsSizeGivesThemBack();
    void aStopBeforeTheFirstWriteGivesThemBack();
    void afterTheFirstWriteTheyStayUnmounted();
    void aStopAfterTheFirstWriteLeavesThemUnmounted();
    void whatCannotBeGivenBackIsNamed();
    void aDriveThatStaysOfflineIsTold();
    void anEmptyDriveGivesThemBack();
    void theDriveIsOpenedBesideWhatIsHeld();

    void nothingIsForeseen();
    void aVolumeOverAllOfTheDriveLeavesNothing();
    void whatStaysIsTheRoomOutsideTheVolumes();
};

void tst_WholeDrive::everySectorIsErased()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    QCOMPARE(machine.memory.releasedDrives(), 1);
    QVERIFY(machine.isUntouched());
    QVERIFY(job.run());
    QVERIFY(machine.isErased());
    QCOMPARE(job.engine->outcome().outcome(), JobOutcome::Complete);
    QCOMPARE(job.engine->report().wipedSectors, quint64(4 * MiB / 512));
    QVERIFY(job.log.contains(u"通过磁盘句柄进行擦除..."_s));
    QVERIFY(job.log.contains(u"警告: 未找到任何卷，可能是无分区磁盘"_s));
    QCOMPARE(machine.memory.keeps(), 1);
    QCOMPARE(machine.memory.restores(), 0);
    QCOMPARE(job.engine->dismountedVolumes(), (QStringList{u"/a"_s, u"/b"_s}));
}

void tst_WholeDrive::withoutItOnlyTheVolumesAre()
{
    Machine machine;
    EngineJob job(machine);
    job.task.setWholeDrive(false);
    QVERIFY(job.run());
    QVERIFY(!machine.isErased());
    QCOMPARE(job.engine->outcome().shortfallKinds(), QList{ShortfallKind::OnlyVolumes});
}

void tst_WholeDrive::aPartitionJobTakesItsVolumes()
{
    Machine machine;
    EngineJob job(machine);
    job.task.setOperationType(PartitionWipe);
    PartitionInfo partition;
    partition.driveLetter = u"/a"_s;
    job.task.setPartition(partition);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    QVERIFY(job.run());
    QVERIFY(job.log.contains(u"通过卷句柄进行擦除..."_s));
    QCOMPARE(machine.memory.releasedDrives(), 0);
}

void tst_WholeDrive::aVolumeThatCameBackIsAFailure()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    machine.memory.addVolume(u"/back"_s, 3, 64 * 1024, MiB);
    QVERIFY(!job.run());
    QVERIFY(machine.isUntouched());
    QCOMPARE(job.errors, QStringList{u"卷 /back 又被挂载，未写入任何数据"_s});
    QCOMPARE(job.engine->report().errorMessage, job.errors.constFirst());
    QCOMPARE(job.engine->outcome().outcome(), JobOutcome::Failed);
    QCOMPARE(machine.memory.restores(), 1);
}

// The volume was not released before the start.
void tst_WholeDrive::aVolumeThatWasNotReleasedIsAFailure()
{
    Machine machine;
    EngineJob job(machine);
    QVERIFY(!job.run());
    QVERIFY(machine.isUntouched());
    QCOMPARE(job.errors, QStringList{u"卷 /a, /b 又被挂载，未写入任何数据"_s});
    QCOMPARE(machine.memory.lockAttempts(), 0);
}

void tst_WholeDrive::aVolumeThatIsHeldIsNone()
{
    Machine machine;
    machine.memory.volume(u"/b"_s).staysInSight = true;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    QVERIFY(job.run());
    QVERIFY(machine.isErased());
}

void tst_WholeDrive::whatIsInTheWayIsSaid_data()
{
    QTest::addColumn<quint32>("error");
    QTest::addColumn<bool>("isLost");
    QTest::addColumn<QString>("problem");
    QTest::newRow("in use") << quint32(platform::SharingViolation) << false
                            << u"Volume /b is in use and cannot be unmounted. Nothing was written."_s;
    QTest::newRow("refused") << quint32(platform::AccessDenied) << false
                             << u"Volume /b cannot be unmounted, error 5. Nothing was written."_s;
    QTest::newRow("another one lost") << quint32(platform::SharingViolation) << true
                                      << u"Volume /b is in use and cannot be unmounted. Nothing was written. "
                                         "Not mounted again: /a"_s;
}

void tst_WholeDrive::whatIsInTheWayIsSaid()
{
    QFETCH(const quint32, error);
    QFETCH(const bool, isLost);
    QFETCH(const QString, problem);
    Machine machine;
    machine.memory.volume(u"/b"_s).releaseError = static_cast<platform::ErrorCode>(error);
    machine.memory.volume(u"/a"_s).isLost = isLost;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), problem);
    QCOMPARE(machine.memory.releasedDrives(), 0);

    for (const auto &[code, words] :
         {std::pair(platform::SharingViolation, u"The drive is in use by another program."_s),
          std::pair(platform::NotReady, u"The drive cannot be rid of its volumes, error 21."_s)}) {
        machine.answer = [code](const DeviceCall &call) {
            return call.method == "releaseVolumes"_L1 ? platform::Status{code, 0, "test"}
                                                      : platform::Status{};
        };
        QCOMPARE(reasonOf(job.engine->releaseVolumes()), words + u" Nothing was written."_s);
    }
}

void tst_WholeDrive::theSystemDiskIsNotReleased()
{
    Machine machine;
    EngineJob job(machine);
    DiskInfo disk = job.task.disk();
    disk.isSystemDisk = true;
    job.task.setDisk(disk);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()),
             u"Cannot wipe system disk. Please boot from external drive."_s);
    QCOMPARE(machine.memory.releasedDrives(), 0);
}

void tst_WholeDrive::otherJobsReleaseNothing()
{
    Machine machine;
    EngineJob job(machine);
    for (const OperationType type : {PartitionWipe, FreeSpaceWipe, FileWipe}) {
        job.task.setOperationType(type);
        QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    }
    job.task.setOperationType(DiskWipe);
    job.task.setWholeDrive(false);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    QCOMPARE(machine.memory.releasedDrives(), 0);
    WipeEngine idle;
    QCOMPARE(reasonOf(idle.releaseVolumes()), QString());
}

void tst_WholeDrive::anotherTaskGivesTheVolumesBack()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    job.engine->setTask(&job.task);
    QCOMPARE(machine.memory.releasedDrives(), 1);
    WipeTask other;
    job.engine->setTask(&other);
    QCOMPARE(machine.memory.releasedDrives(), 0);
    QCOMPARE(machine.memory.restores(), 1);
}

void tst_WholeDrive::theEndOfTheEngineGivesThemBack()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    job.engine.reset();
    QCOMPARE(machine.memory.restores(), 1);
    QCOMPARE(machine.memory.volumeNames(), (QStringList{u"/a"_s, u"/b"_s}));
}

void tst_WholeDrive::aJobReleasesOnce()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    QCOMPARE(machine.memory.releasedDrives(), 1);
    QCOMPARE(machine.memory.restores(), 0);
}

void tst_WholeDrive::aThreadThatTheSystemRefusesGivesThemBack()
{
    if (!RefusedThreads::isPossible())
        QSKIP(RefusedThreads::whyNot);
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    {
        const RefusedThreads refused;
        QVERIFY(!job.run());
    }
    QVERIFY(!job.engine->isRunning());
    QCOMPARE(machine.memory.restores(), 1);
}

void tst_WholeDrive::aDriveThatDoesNotOpenGivesThemBack()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    machine.answer = [](const DeviceCall &call) {
        return call.method == "openDrive"_L1 ? platform::Status{platform::AccessDenied, 0, "test"}
                                             : platform::Status{};
    };
    QVERIFY(!job.run());
    QVERIFY(machine.isUntouched());
    QCOMPARE(machine.memory.restores(), 1);
    QCOMPARE(machine.memory.volumeNames(), (QStringList{u"/a"_s, u"/b"_s}));
    QCOMPARE(job.engine->dismountedVolumes(), QStringList());
    QVERIFY(job.log.contains(u"已重新挂载: /a, /b"_s));
}

// The drive is open when the job fails.
void tst_WholeDrive::aDriveThatDoesNotTellItsSizeGivesThemBack()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    machine.answer = [](const DeviceCall &call) {
        return call.method == "geometry"_L1 ? platform::Status{platform::NotSupported, 0, "test"}
                                            : platform::Status{};
    };
    QVERIFY(!job.run());
    QVERIFY(machine.isUntouched());
    QCOMPARE(machine.memory.openHandles(), 0);
    QCOMPARE(machine.memory.restores(), 1);
}

void tst_WholeDrive::aStopBeforeTheFirstWriteGivesThemBack()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    // The worker uses the drive when the stop comes.
    machine.answer = [&job](const DeviceCall &call) {
        if (call.method == "geometry"_L1)
            QMetaObject::invokeMethod(job.engine.get(), &WipeEngine::stop, Qt::BlockingQueuedConnection);
        return platform::Status{};
    };
    job.engine->setStopPatience(std::chrono::milliseconds(0));
    QVERIFY(!job.run());
    QVERIFY(machine.isUntouched());
    QCOMPARE(job.engine->outcome().outcome(), JobOutcome::Cancelled);
    QCOMPARE(machine.memory.restores(), 1);
    QCOMPARE(machine.memory.keeps(), 0);
    QCOMPARE(job.engine->dismountedVolumes(), QStringList());
}

// The amount that has reached the medium is unknown.
void tst_WholeDrive::afterTheFirstWriteTheyStayUnmounted()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    machine.answer = [](const DeviceCall &call) {
        return call.method == "write"_L1 ? platform::Status{platform::IoDevice, 0, "test"}
                                         : platform::Status{};
    };
    QVERIFY(!job.run());
    QCOMPARE(machine.memory.restores(), 0);
    QCOMPARE(machine.memory.keeps(), 1);
    QCOMPARE(job.engine->dismountedVolumes(), (QStringList{u"/a"_s, u"/b"_s}));
    QCOMPARE(machine.memory.volumeNames(), QStringList());
}

void tst_WholeDrive::aStopAfterTheFirstWriteLeavesThemUnmounted()
{
    Machine machine;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    machine.answer = [&job](const DeviceCall &call) {
        if (call.method == "write"_L1)
            QMetaObject::invokeMethod(job.engine.get(), &WipeEngine::stop, Qt::BlockingQueuedConnection);
        return platform::Status{};
    };
    job.engine->setStopPatience(std::chrono::milliseconds(0));
    QVERIFY(!job.run());
    QCOMPARE(job.engine->outcome().outcome(), JobOutcome::Cancelled);
    QCOMPARE(machine.memory.keeps(), 1);
    QCOMPARE(job.engine->dismountedVolumes(), (QStringList{u"/a"_s, u"/b"_s}));
}

void tst_WholeDrive::whatCannotBeGivenBackIsNamed()
{
    Machine machine;
    machine.memory.volume(u"/b"_s).isLost = true;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    machine.answer = [](const DeviceCall &call) {
        return call.method == "openDrive"_L1 ? platform::Status{platform::AccessDenied, 0, "test"}
                                             : platform::Status{};
    };
    QVERIFY(!job.run());
    QCOMPARE(job.engine->dismountedVolumes(), QStringList{u"/b"_s});
    QVERIFY(job.log.filter(u"已重新挂载"_s).isEmpty());
}

void tst_WholeDrive::aDriveThatStaysOfflineIsTold()
{
    Machine machine;
    machine.memory.keepError = platform::AccessDenied;
    EngineJob job(machine);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    QVERIFY(job.run());
    QVERIFY(job.log.contains(u"磁盘未能恢复联机，错误码: 5"_s));
}

void tst_WholeDrive::anEmptyDriveGivesThemBack()
{
    Machine machine;
    machine.memory.drive(3).sizeBytes = 0;
    EngineJob job(machine);
    DiskInfo disk = job.task.disk();
    disk.sizeBytes = 0;
    job.task.setDisk(disk);
    QCOMPARE(reasonOf(job.engine->releaseVolumes()), QString());
    static_cast<void>(job.run());
    QCOMPARE(job.engine->outcome().outcome(), JobOutcome::Partial);
    QCOMPARE(machine.memory.restores(), 1);
}

// Opening the drive exclusively fails while any handle holds it, even one of this job.
void tst_WholeDrive::theDriveIsOpenedBesideWhatIsHeld()
{
    for (const bool isReleased : {true, false}) {
        MemoryDevices memory;
        memory.addDrive(markedDrive(3, MiB));
        std::optional<platform::DriveAccess> access;
        class Watched : public platform::ForwardingDevices
        {
        public:
            Watched(platform::Devices &target, std::optional<platform::DriveAccess> &access)
                : ForwardingDevices(target)
                , m_access(access)
            {}
            platform::Result<std::unique_ptr<platform::RawDevice>>
            openDrive(const platform::DriveIdentity &drive, platform::DriveAccess access) override
            {
                m_access = access;
                return ForwardingDevices::openDrive(drive, access);
            }

        private:
            std::optional<platform::DriveAccess> &m_access;
        } devices(memory, access);
        DiskWipeJob job;
        job.chooseDrive(memory.drive(3));
        job.task.setWholeDrive(true);
        if (isReleased)
            job.worker.setReleasedVolumes(devices.releaseVolumes(identityOf(job.task.disk())).volumes);
        QVERIFY(job.run(devices));
        QCOMPARE(access, isReleased ? platform::DriveAccess::BesideOwnVolumes : platform::DriveAccess::Alone);
    }
}

void tst_WholeDrive::nothingIsForeseen()
{
    Machine machine;
    EngineJob job(machine);
    DiskInfo disk = job.task.disk();
    PartitionInfo partition;
    partition.driveLetter = u"/a"_s;
    partition.totalBytes = MiB;
    disk.addPartition(partition);
    job.task.setDisk(disk);
    QVERIFY(!foreseeableShortfalls(job.task).hasShortfalls());
    job.task.setWholeDrive(false);
    QVERIFY(foreseeableShortfalls(job.task).hasShortfalls());
}

void tst_WholeDrive::aVolumeOverAllOfTheDriveLeavesNothing()
{
    Machine machine;
    machine.memory.addVolume(u"/all"_s, 3, 0, 4 * MiB);
    EngineJob job(machine);
    job.task.setWholeDrive(false);
    DiskInfo disk = job.task.disk();
    PartitionInfo partition;
    partition.driveLetter = u"/all"_s;
    partition.totalBytes = 3 * MiB; // as reported by its file system
    disk.addPartition(partition);
    job.task.setDisk(disk);
    QVERIFY(!foreseeableShortfalls(job.task).hasShortfalls());
}

void tst_WholeDrive::whatStaysIsTheRoomOutsideTheVolumes()
{
    Machine machine;
    EngineJob job(machine);
    job.task.setWholeDrive(false);
    DiskInfo disk = job.task.disk();
    for (const QString &name : {u"/a"_s, u"/b"_s}) {
        PartitionInfo partition;
        partition.driveLetter = name;
        partition.totalBytes = MiB / 2; // as reported by its file system
        disk.addPartition(partition);
    }
    job.task.setDisk(disk);
    const QList<Shortfall> foreseen = foreseeableShortfalls(job.task).shortfalls();
    QCOMPARE(foreseen, (QList<Shortfall>{{ShortfallKind::OnlyVolumes, {}, 2 * MiB}}));
    QVERIFY(job.run());
    QCOMPARE(job.engine->outcome().shortfalls(), foreseen);
}

QUORVEX_SUITE(tst_WholeDrive, QCoreApplication)
#include "tst_wholedrive.moc"
