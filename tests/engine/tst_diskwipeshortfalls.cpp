#include "diskwipejob.h"

#include "model/units.h"
#include "support/faultplan.h"
#include "support/faultydevices.h"
#include "support/interposeddevices.h"
#include "support/suite.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Fails every call of a method on one target.
InterposedDevices::Before failing(QLatin1String method, platform::ErrorCode error, const QString &target)
{
    return [=](const DeviceCall &call) {
        const bool chosen = call.method == method && call.target == target;
        return chosen ? platform::Status{error, 0, "planned fault"} : platform::Status{};
    };
}

QList<Shortfall> ofKind(const DiskWipeJob &job, ShortfallKind kind)
{
    QList<Shortfall> found;
    for (const Shortfall &shortfall : job.task.outcome().shortfalls()) {
        if (shortfall.kind == kind)
            found.append(shortfall);
    }
    return found;
}
} // namespace

// The shortfalls that a disk job notes.
class tst_DiskWipeShortfalls : public QObject
{
    Q_OBJECT

private slots:
    void aWholeDriveFallsShortOfNothing();
    void volumesOverTheWholeDriveFallShortOfNothing();
    void anEmptyDrive();
    void aDriveWhoseEndNoSectorReaches();
    void aVolumeWhoseEndNoSectorReaches();
    void aVolumeThatEndsEarly();
    void aVolumeWrittenFromAnUnknownPlace();
    void aVolumeOfUnknownLength();
    void aVolumeInUse();
    void aVolumeInUseThatIsNotWritten();
    void aVolumeThatDoesNotOpen();
    void aVolumeOnTwoDrivesIsNotOpened();
    void whatWasDismountedIsKept();
    void aVolumeBeyondTheDrive();
    void twoNamesForOneVolume();
    void everyVolumeIsLockedBeforeTheFirstWrite();
};

void tst_DiskWipeShortfalls::aWholeDriveFallsShortOfNothing()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(1, 4 * MiB));
    DiskWipeJob job;
    job.chooseDrive(devices.drive(1));
    QVERIFY(job.run(devices));
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
    QCOMPARE(job.report().wipedSectors, quint64(4 * MiB / 512));
}

void tst_DiskWipeShortfalls::volumesOverTheWholeDriveFallShortOfNothing()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(1, 4 * MiB));
    devices.addVolume(u"E:"_s, 1, 0, MiB);
    devices.addVolume(u"F:"_s, 1, MiB, 3 * MiB);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(1));
    QVERIFY(job.run(devices));
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
    QCOMPARE(job.report().wipedSectors, quint64(4 * MiB / 512));
}

void tst_DiskWipeShortfalls::anEmptyDrive()
{
    MemoryDevices devices;
    devices.addDrive(MemoryDrive(0, 0));
    DiskWipeJob job;
    job.chooseDrive(devices.drive(0));
    QVERIFY(job.run(devices));
    QCOMPARE(job.task.outcome().shortfalls(), QList<Shortfall>({{.kind = ShortfallKind::DriveEmpty}}));
}

void tst_DiskWipeShortfalls::aDriveWhoseEndNoSectorReaches()
{
    MemoryDevices devices;
    MemoryDrive drive = markedDrive(1, 4 * MiB, 4096);
    drive.unreachableBytes = 512;
    devices.addDrive(drive);
    DiskWipeJob job;
    job.chooseDrive(drive);
    QVERIFY(job.run(devices));
    QCOMPARE(job.task.outcome().shortfalls(),
             QList<Shortfall>({{.kind = ShortfallKind::DriveEndUnreached, .bytes = 512}}));
}

void tst_DiskWipeShortfalls::aVolumeWhoseEndNoSectorReaches()
{
    MemoryDevices devices;
    MemoryDrive drive = markedDrive(1, 4 * MiB, 4096);
    drive.medium.truncate(2 * MiB);
    devices.addDrive(drive);
    devices.addVolume(u"E:"_s, 1, 0, 2 * MiB + 512);
    DiskWipeJob job;
    job.chooseDrive(drive);
    QVERIFY(job.run(devices));
    QCOMPARE(ofKind(job, ShortfallKind::DriveEndUnreached),
             QList<Shortfall>({{.kind = ShortfallKind::DriveEndUnreached, .place = u"E:"_s, .bytes = 512}}));
    QVERIFY(ofKind(job, ShortfallKind::VolumeEndedEarly).isEmpty());
}

void tst_DiskWipeShortfalls::aVolumeThatEndsEarly()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, 4 * MiB);
    FaultPlan plan(FaultPlan::Write, 3, platform::SectorNotFound);
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.task.setVerifyAfterWipe(false);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(
        ofKind(job, ShortfallKind::VolumeEndedEarly),
        QList<Shortfall>({{.kind = ShortfallKind::VolumeEndedEarly, .place = u"E:"_s, .bytes = 2 * MiB}}));
}

void tst_DiskWipeShortfalls::aVolumeWrittenFromAnUnknownPlace()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, 4 * MiB);
    InterposedDevices devices(memory, failing(QLatin1String("seek"), platform::IoDevice, u"E:"_s));
    DiskWipeJob job;
    job.task.setVerifyAfterWipe(false);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(
        ofKind(job, ShortfallKind::VolumeEndedEarly),
        QList<Shortfall>({{.kind = ShortfallKind::VolumeEndedEarly, .place = u"E:"_s, .bytes = 4 * MiB}}));
}

void tst_DiskWipeShortfalls::aVolumeOfUnknownLength()
{
    // The estimate is half of the drive, because it has two volumes; the first one is larger.
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, 3 * MiB);
    memory.addVolume(u"F:"_s, 1, 3 * MiB, MiB);
    InterposedDevices devices(memory, failing(QLatin1String("length"), platform::NotSupported, u"E:"_s));
    DiskWipeJob job;
    job.task.setVerifyAfterWipe(false);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(ofKind(job, ShortfallKind::VolumeEndedEarly),
             QList<Shortfall>({{.kind = ShortfallKind::VolumeEndedEarly, .place = u"E:"_s}}));
}

void tst_DiskWipeShortfalls::aVolumeInUse()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(1, 4 * MiB));
    devices.addVolume(u"E:"_s, 1, 0, 2 * MiB);
    devices.addVolume(u"F:"_s, 1, 2 * MiB, 2 * MiB);
    devices.volume(u"F:"_s).failingLocks = -1;
    DiskWipeJob job;
    job.chooseDrive(devices.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(job.task.outcome().shortfalls(),
             QList<Shortfall>({{.kind = ShortfallKind::VolumeInUse, .place = u"F:"_s}}));
}

void tst_DiskWipeShortfalls::aVolumeInUseThatIsNotWritten()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(1, 4 * MiB));
    devices.addVolume(u"E:"_s, 1, 0, 4 * MiB);
    devices.volume(u"E:"_s).failingLocks = -1;
    devices.volume(u"E:"_s).dismountError = platform::AccessDenied;
    DiskWipeJob job;
    job.chooseDrive(devices.drive(1));
    QVERIFY(!job.run(devices));
    QVERIFY(ofKind(job, ShortfallKind::VolumeInUse).isEmpty());
}

void tst_DiskWipeShortfalls::aVolumeThatDoesNotOpen()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, 2 * MiB);
    memory.addVolume(u"F:"_s, 1, 2 * MiB, 2 * MiB);
    InterposedDevices devices(memory, failing(QLatin1String("openVolume"), platform::AccessDenied, u"E:"_s));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(ofKind(job, ShortfallKind::VolumeNotOpened),
             QList<Shortfall>({{.kind = ShortfallKind::VolumeNotOpened, .place = u"E:"_s}}));
    QCOMPARE(job.report().wipedSectors, quint64(2 * MiB / 512));
}

void tst_DiskWipeShortfalls::aVolumeOnTwoDrivesIsNotOpened()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(1, 4 * MiB));
    devices.addDrive(markedDrive(2, 4 * MiB));
    MemoryDriveVolume mirror;
    mirror.name = u"M:"_s;
    mirror.extents = {{1, 0, 2 * MiB}, {2, 0, 2 * MiB}};
    devices.addVolume(mirror);
    devices.addVolume(u"E:"_s, 1, 2 * MiB, 2 * MiB);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(1));
    QVERIFY(job.run(devices));
    QVERIFY(job.log().contains(u"2 无法打开卷 M:，错误码: 21"_s));
    QCOMPARE(ofKind(job, ShortfallKind::VolumeNotOpened),
             QList<Shortfall>({{.kind = ShortfallKind::VolumeNotOpened, .place = u"M:"_s}}));
    QVERIFY(devices.medium(1).startsWith(markedMedium(2 * MiB)));
    QVERIFY(devices.medium(2) == markedMedium(4 * MiB));
    QCOMPARE(job.report().wipedSectors, quint64(2 * MiB / 512));
}

void tst_DiskWipeShortfalls::whatWasDismountedIsKept()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, MiB);
    memory.addVolume(u"F:"_s, 1, MiB, MiB);
    memory.addVolume(u"G:"_s, 1, 2 * MiB, MiB);
    memory.volume(u"G:"_s).dismountError = platform::AccessDenied;
    FaultPlan plan(FaultPlan::Write, 1, platform::IoDevice);
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.task.dismountedVolumes(), (QStringList{u"E:"_s, u"F:"_s}));
}

void tst_DiskWipeShortfalls::aVolumeBeyondTheDrive()
{
    MemoryDevices devices;
    MemoryDrive drive = markedDrive(1, 4 * MiB);
    drive.medium.append(QByteArray(2 * MiB, 'x'));
    devices.addDrive(drive);
    devices.addVolume(u"E:"_s, 1, 3 * MiB, 3 * MiB);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(ofKind(job, ShortfallKind::BeyondDrive),
             QList<Shortfall>({{.kind = ShortfallKind::BeyondDrive, .bytes = 2 * MiB}}));
    QCOMPARE(job.report().wipedSectors, quint64(MiB / 512));
}

void tst_DiskWipeShortfalls::twoNamesForOneVolume()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(1, 4 * MiB));
    devices.addVolume(u"E:"_s, 1, 0, 2 * MiB);
    devices.addVolume(u"F:"_s, 1, 0, 2 * MiB);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(job.report().wipedSectors, quint64(2 * MiB / 512)); // of a drive twice as large
    QVERIFY(ofKind(job, ShortfallKind::BeyondDrive).isEmpty());
}

void tst_DiskWipeShortfalls::everyVolumeIsLockedBeforeTheFirstWrite()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, 2 * MiB);
    memory.addVolume(u"F:"_s, 1, 2 * MiB, 2 * MiB);
    memory.volume(u"E:"_s).failingLocks = 3;
    QStringList calls;
    InterposedDevices devices(memory, [&calls](const DeviceCall &call) {
        if (call.method == QLatin1String("lock") || call.kind == FaultPlan::Write)
            calls += call.method + QLatin1Char(' ') + call.target;
        return platform::Status{};
    });
    DiskWipeJob job;
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    const QStringList locks{u"lock E:"_s, u"lock E:"_s, u"lock E:"_s, u"lock E:"_s, u"lock F:"_s};
    QCOMPARE(calls.first(locks.size()), locks);
    QVERIFY(calls.sliced(locks.size()).filter(u"lock "_s).isEmpty());
    QVERIFY(calls.size() > locks.size());
}

QUORVEX_SUITE(tst_DiskWipeShortfalls, QCoreApplication)
#include "tst_diskwipeshortfalls.moc"
