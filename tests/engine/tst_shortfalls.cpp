#include "diskwipejob.h"
#include "engine/foreseeable.h"
#include "filejob.h"
#include "freespacefixture.h"
#include "model/units.h"
#include "support/faultplan.h"
#include "support/links.h"
#include "support/suite.h"

#include <QTest>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

// The shortfalls that workers note for successful jobs.
class tst_Shortfalls : public QObject
{
    Q_OBJECT

private slots:
    // Drives.
    void aWholeDriveFallsShortOfNothing();
    void aDriveThroughItsVolumesIsOnlyTheVolumes();
    void aPartitionIsNoDrive();
    void aJobThatWroteNothingSaysNothing();

    // Reading back.
    void readBack_data();
    void readBack();
    void fillFilesAreNeverReadBack();

    // Files.
    void filesFallShortOfNothing();
    void aFileThatVanished();
    void aFileThatVanishedBeforeItWasMeasured();
    void aFileThatCannotBeRemoved();
    void aFolderThatCannotBeRemoved();
    void furtherNamesAreNoted();
    void linksThatWereNamed();
    void emptyFilesAreNotReadBack();

    // Free space.
    void aSmallReserveIsANote();
    void aLargeReserveIsAShortfall();
    void howMuchOfTheFreeSpaceIsLarge();
    void roomThatIsNotGiven();
    void roomThatIsNotGivenAfterTheFirstChunk();
    void roomLessThanAChunkThatIsNotGiven();
    void aFillFileThatCannotBeMade();
    void aLaterFillFileThatCannotBeMade();
    void fillFilesThatStay();
    void residueFoldersThatStay();
    void noFreeByte();
    void aDriveWithoutVolumes();

    // Forecast.
    void nothingIsForeseenForAnEmptyDrive();
    void mountedVolumesAreForeseen();
    void aLargeReserveIsForeseen();
    void omissionsAreForeseen();
    void linksAreForeseen();
};

namespace {

const QString Root = u"/media/data/"_s;

QList<Shortfall> shortfalls(const WipeTask &task)
{
    return task.outcome().shortfalls();
}

DiskWipeJob &makeSilent(DiskWipeJob &job)
{
    job.setPasses({{.type = PatternType::Zeros, .value = 0, .verify = true}});
    return job;
}

MemoryDevices &addVolumes(MemoryDevices &devices)
{
    devices.addDrive(markedDrive(3, 4 * MiB));
    devices.addVolume(u"E:"_s, 3, 64 * 1024, MiB);
    devices.addVolume(u"/mnt/x"_s, 3, 2 * MiB, MiB);
    return devices;
}

void prepare(freespace::Machine &machine, freespace::Job &job, qint64 freeBytes)
{
    machine.volume.freeBytes[Root] = freeBytes;
    job.setVolume(u"/media/data"_s);
    job.setPasses({{PatternType::Zeros}});
}

} // namespace

void tst_Shortfalls::aWholeDriveFallsShortOfNothing()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(3, 2 * MiB + 512));
    DiskWipeJob job;
    makeSilent(job).chooseDrive(devices.drive(3));
    QVERIFY(job.run(devices));
    QVERIFY(shortfalls(job.task).isEmpty());
    QVERIFY(job.task.outcome().notes().isEmpty());
}

void tst_Shortfalls::aDriveThroughItsVolumesIsOnlyTheVolumes()
{
    MemoryDevices devices;
    DiskWipeJob job;
    job.chooseDrive(addVolumes(devices).drive(3));
    QVERIFY(job.run(devices));
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::OnlyVolumes, {}, 2 * MiB}}));
}

void tst_Shortfalls::aPartitionIsNoDrive()
{
    MemoryDevices devices;
    DiskWipeJob job;
    job.chooseDrive(addVolumes(devices).drive(3));
    job.task.setOperationType(PartitionWipe);
    QVERIFY(job.run(devices));
    QVERIFY(shortfalls(job.task).isEmpty());
}

void tst_Shortfalls::aJobThatWroteNothingSaysNothing()
{
    MemoryDevices devices;
    addVolumes(devices);
    DiskWipeJob job;
    DiskInfo disk;
    disk.diskNumber = 3;
    disk.sizeBytes = 4 * MiB;
    disk.isSystemDisk = true;
    job.task.setDisk(disk);
    job.task.setVerifyAfterWipe(false);
    QVERIFY(!job.run(devices));
    QCOMPARE(job.task.outcome(), OutcomeRecord());
}

void tst_Shortfalls::readBack_data()
{
    QTest::addColumn<bool>("asked");
    QTest::addColumn<QList<PassPattern>>("passes");
    QTest::addColumn<QList<Shortfall>>("notes");
    const PassPattern zeros{.type = PatternType::Zeros, .value = 0, .verify = true};
    const PassPattern random{.type = PatternType::Random, .value = 0, .verify = true};
    const PassPattern unread{.type = PatternType::Ones, .value = 0, .verify = false};
    const QList<Shortfall> notRead{{ShortfallKind::NotReadBack}};
    QTest::newRow("read") << true << QList{unread, zeros} << QList<Shortfall>();
    QTest::newRow("one of two") << true << QList{zeros, random} << QList<Shortfall>();
    QTest::newRow("not asked for") << false << QList{zeros} << notRead;
    QTest::newRow("not by the method") << true << QList{unread} << notRead;
    QTest::newRow("nothing to compare with")
        << true << QList{random} << QList<Shortfall>{{ShortfallKind::ReadBackImpossible}};
}

void tst_Shortfalls::readBack()
{
    QFETCH(bool, asked);
    QFETCH(QList<PassPattern>, passes);
    QFETCH(QList<Shortfall>, notes);
    MemoryDevices devices;
    devices.addDrive(markedDrive(3, MiB));
    DiskWipeJob disk;
    disk.chooseDrive(devices.drive(3));
    disk.setPasses(passes);
    disk.task.setVerifyAfterWipe(asked);
    QVERIFY(disk.run(devices));
    QCOMPARE(disk.task.outcome().notes(), notes);

    FileJob files;
    files.setPasses(passes);
    files.task.setVerifyAfterWipe(asked);
    QVERIFY(files.run({files.makeFile(u"a"_s, 10)}));
    QCOMPARE(files.task.outcome().notes(), notes);
}

void tst_Shortfalls::fillFilesAreNeverReadBack()
{
    for (const bool asked : {true, false}) {
        freespace::Machine machine;
        freespace::Job job;
        prepare(machine, job, 2000 * MiB);
        job.setPasses({{.type = PatternType::Zeros, .value = 0, .verify = true}});
        job.task.setVerifyAfterWipe(asked);
        job.run();
        QVERIFY(job.succeeded());
        const auto kind = asked ? ShortfallKind::ReadBackImpossible : ShortfallKind::NotReadBack;
        QVERIFY(job.task.outcome().has(kind));
        QVERIFY(shortfalls(job.task).isEmpty());
    }
}

void tst_Shortfalls::filesFallShortOfNothing()
{
    FileJob job;
    job.makeFile(u"folder/a"_s, 10);
    QVERIFY(job.run({job.path(u"folder"_s), job.makeFile(u"b"_s, 10)}));
    QVERIFY(shortfalls(job.task).isEmpty());
}

void tst_Shortfalls::aFileThatVanished()
{
    FileJob job;
    job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
    const QString kept = job.makeFile(u"a"_s, 10);
    const QString gone = job.makeFile(u"b"_s, 10);
    job.said.onLine = [&](const QString &line) {
        if (line == said::pass(2, 2))
            QFile::remove(gone);
    };
    QVERIFY(job.run({kept, gone}));
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::EntryVanished, gone}}));
}

void tst_Shortfalls::aFileThatVanishedBeforeItWasMeasured()
{
    FileJob job;
    const QString gone = job.makeFile(u"a"_s, 10);
    const QString empty = job.makeFile(u"b"_s, QByteArray());
    // Found by the scan; its size is queried again later.
    int asked = 0;
    job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Info && call.path == gone && ++asked == 2)
            QFile::remove(gone);
        return platform::Status();
    };
    QVERIFY(job.run({gone, empty}));
    QVERIFY(job.lines().contains(said::allEmpty));
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::EntryVanished, gone}}));
}

void tst_Shortfalls::aFileThatCannotBeRemoved()
{
    FileJob job;
    const QString file = job.makeFile(u"a"_s, 10);
    job.files.hook = [](const FileCall &call) {
        const bool denied = call.kind == FaultPlan::Remove || call.kind == FaultPlan::Rename;
        return denied ? platform::Status{platform::WriteProtect, 0, "planned"} : platform::Status();
    };
    QVERIFY(!job.run({file}));
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::EntryNotRemoved, file}}));
}

void tst_Shortfalls::aFolderThatCannotBeRemoved()
{
    class StandingFolders : public platform::ForwardingFolders
    {
    public:
        using ForwardingFolders::ForwardingFolders;
        platform::Status removeEmpty(const platform::EntryPath &) override
        {
            return {platform::SharingViolation, 0, "planned"};
        }
    } folders(platform::Platform::current().folders());
    FileJob job(platform::Platform::current().files(), folders);
    const QString file = job.makeFile(u"folder/a"_s, 10);
    QVERIFY(job.run({job.path(u"folder"_s)}));
    QVERIFY(!QFile::exists(file));
    QCOMPARE(shortfalls(job.task),
             (QList<Shortfall>{{ShortfallKind::EntryNotRemoved, job.path(u"folder"_s)}}));
}

void tst_Shortfalls::furtherNamesAreNoted()
{
    FileJob job;
    job.setPasses({{.type = PatternType::Zeros, .value = 0, .verify = true}});
    const QString file = job.makeFile(u"a"_s, 10);
    for (const QString &name : {u"b"_s, u"c"_s}) {
        std::error_code failure;
        std::filesystem::create_hard_link(file.toStdU16String(), job.path(name).toStdU16String(), failure);
        QVERIFY2(!failure, failure.message().c_str());
    }
    QVERIFY(job.run({file}));
    QCOMPARE(job.task.outcome().notes(), (QList<Shortfall>{{ShortfallKind::OtherNames, file, -1, 2}}));
    QVERIFY(shortfalls(job.task).isEmpty());
}

void tst_Shortfalls::linksThatWereNamed()
{
    for (const bool named : {true, false}) {
        FileJob job;
        const QString target = job.makeFile(u"target"_s, 10);
        const QString link = job.path(u"link"_s);
        if (!makeLink(target, link))
            QSKIP("SKIPPED: no symbolic links here");
        job.makeFolder(u"folder"_s);
        QVERIFY(makeLink(target, job.path(u"folder/found"_s)));
        job.task.setTargetsAreNamed(named);
        QVERIFY(job.run({link, job.path(u"folder"_s), job.makeFile(u"a"_s, 10)}));
        QCOMPARE(shortfalls(job.task),
                 named ? (QList<Shortfall>{{ShortfallKind::LinkTarget, link}}) : QList<Shortfall>());
    }
}

void tst_Shortfalls::emptyFilesAreNotReadBack()
{
    FileJob job;
    job.task.setVerifyAfterWipe(false);
    QVERIFY(job.run({job.makeFile(u"a"_s, QByteArray())}));
    QVERIFY(job.task.outcome().notes().isEmpty());
}

void tst_Shortfalls::aSmallReserveIsANote()
{
    freespace::Machine machine;
    freespace::Job job;
    prepare(machine, job, 1000 * MiB);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(shortfalls(job.task).isEmpty());
    const QList<Shortfall> notes = job.task.outcome().notes();
    QVERIFY(notes.contains(Shortfall{ShortfallKind::ReserveKept, Root, 100 * MiB}));
}

void tst_Shortfalls::aLargeReserveIsAShortfall()
{
    freespace::Machine machine;
    freespace::Job job;
    prepare(machine, job, 105 * MiB);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::LargeReserve, Root, 100 * MiB}}));
}

void tst_Shortfalls::howMuchOfTheFreeSpaceIsLarge()
{
    QCOMPARE(keptReserve(Root, 1000, 100), (Shortfall{ShortfallKind::ReserveKept, Root, 100}));
    QCOMPARE(keptReserve(Root, 1009, 101), (Shortfall{ShortfallKind::LargeReserve, Root, 101}));
    QCOMPARE(keptReserve(Root, 999, 100), (Shortfall{ShortfallKind::LargeReserve, Root, 100}));
    QCOMPARE(keptReserve(Root, 60, 100), (Shortfall{ShortfallKind::LargeReserve, Root, 60}));
}

void tst_Shortfalls::roomThatIsNotGiven()
{
    freespace::Machine machine;
    freespace::Job job;
    prepare(machine, job, 2000 * MiB);
    FaultPlan plan(FaultPlan::Write, 1, platform::DiskFull);
    machine.volume.setPlan(&plan);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(plan.fired(), 1);
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::NothingWritten, Root, 1900 * MiB},
                                                     {ShortfallKind::RoomLeft, Root, 1900 * MiB}}));
}

void tst_Shortfalls::roomThatIsNotGivenAfterTheFirstChunk()
{
    freespace::Machine machine;
    freespace::Job job;
    prepare(machine, job, 2000 * MiB);
    // The second file accepts no more bytes.
    FaultPlan plan(FaultPlan::Write, 2, platform::DiskFull, FaultPlan::FromThenOn);
    machine.volume.setPlan(&plan);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::RoomLeft, Root, 1899 * MiB}}));
}

void tst_Shortfalls::roomLessThanAChunkThatIsNotGiven()
{
    freespace::Machine machine;
    freespace::Job job;
    prepare(machine, job, 2000 * MiB);
    job.task.setBufferSizeMB(64);
    machine.volume.largestFile = 1850 * MiB;
    // The volume accepts all but the last 50 MiB.
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind == FaultPlan::Open && path.endsWith(u"/fill_000001.tmp"_s))
            machine.volume.largestFile = 1;
    };
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::RoomLeft, Root, 50 * MiB - 1}}));
}

void tst_Shortfalls::aFillFileThatCannotBeMade()
{
    freespace::Machine machine;
    freespace::Job job;
    prepare(machine, job, 2000 * MiB);
    FaultPlan plan(FaultPlan::Open, 1, platform::AccessDenied);
    machine.volume.setPlan(&plan);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::NothingWritten, Root, 1900 * MiB}}));
}

void tst_Shortfalls::aLaterFillFileThatCannotBeMade()
{
    freespace::Machine machine;
    freespace::Job job;
    prepare(machine, job, 2000 * MiB);
    machine.volume.largestFile = 2 * MiB;
    FaultPlan plan(FaultPlan::Open, 2, platform::AccessDenied);
    machine.volume.setPlan(&plan);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(shortfalls(job.task), (QList<Shortfall>{{ShortfallKind::RoomLeft, Root, 1898 * MiB}}));
}

void tst_Shortfalls::fillFilesThatStay()
{
    freespace::Machine machine;
    freespace::Job job;
    prepare(machine, job, 2000 * MiB);
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind == FaultPlan::Open && path.endsWith(u"/fill_000000.tmp"_s))
            machine.volume.unremovable = QStringList{path};
    };
    job.run();
    QVERIFY(job.succeeded());
    const QStringList left = freespace::fillFiles(machine.volume);
    QCOMPARE(left.size(), 1);
    QCOMPARE(shortfalls(job.task),
             (QList<Shortfall>{{ShortfallKind::FillFilesLeft, left.first(), 1900 * MiB}}));
}

void tst_Shortfalls::residueFoldersThatStay()
{
    for (const QString &name : {u"/mft_clean"_s, u"/dir_clean"_s}) {
        freespace::Machine machine;
        freespace::Job job;
        prepare(machine, job, 2000 * MiB);
        FaultPlan plan(FaultPlan::RemoveTree, name == u"/mft_clean"_s ? 1 : 2, platform::AccessDenied);
        machine.volume.setPlan(&plan);
        job.run();
        QVERIFY(job.succeeded());
        QCOMPARE(shortfalls(job.task).size(), 1);
        QCOMPARE(shortfalls(job.task).first().kind, ShortfallKind::FillFilesLeft);
        QVERIFY(shortfalls(job.task).first().place.endsWith(name));
    }
}

void tst_Shortfalls::noFreeByte()
{
    freespace::Machine machine;
    freespace::Job job;
    prepare(machine, job, 0);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(shortfalls(job.task).isEmpty());
    QCOMPARE(job.task.outcome().notes(), (QList<Shortfall>{{ShortfallKind::NoFreeByte, u"/media/data"_s}}));
}

void tst_Shortfalls::aDriveWithoutVolumes()
{
    const freespace::Machine machine;
    freespace::Job job;
    job.setDisk(7, {});
    job.run();
    QVERIFY(job.succeeded());
    const QList<Shortfall> expected{{ShortfallKind::NoVolume, job.task.disk().displayName()}};
    QCOMPARE(shortfalls(job.task), expected);
    QCOMPARE(foreseeableShortfalls(job.task).shortfalls(), expected);
    job.task.setOutcome(JobOutcome::Complete);
    QCOMPARE(job.task.outcome().outcome(), JobOutcome::Partial);
}

void tst_Shortfalls::nothingIsForeseenForAnEmptyDrive()
{
    WipeTask task;
    task.setOperationType(DiskWipe);
    DiskInfo disk;
    disk.sizeBytes = 4 * MiB;
    PartitionInfo unmounted;
    unmounted.totalBytes = MiB;
    disk.addPartition(unmounted);
    task.setDisk(disk);
    QVERIFY(!foreseeableShortfalls(task).hasShortfalls());
}

void tst_Shortfalls::mountedVolumesAreForeseen()
{
    WipeTask task;
    task.setOperationType(DiskWipe);
    DiskInfo disk;
    disk.sizeBytes = 4 * MiB;
    PartitionInfo partition;
    partition.driveLetter = u"E:"_s;
    partition.totalBytes = 3 * MiB;
    disk.addPartition(partition);
    task.setDisk(disk);
    QCOMPARE(foreseeableShortfalls(task).shortfalls(),
             (QList<Shortfall>{{ShortfallKind::OnlyVolumes, {}, MiB}}));
    task.setOperationType(PartitionWipe);
    QVERIFY(!foreseeableShortfalls(task).hasShortfalls());
}

void tst_Shortfalls::aLargeReserveIsForeseen()
{
    freespace::Machine machine;
    machine.session.systemRoots = {u"S:"_s};
    WipeTask task;
    task.setOperationType(FreeSpaceWipe);
    DiskInfo disk;
    disk.diskNumber = 1;
    for (const auto &[name, freeBytes] : {std::pair(u"E:"_s, 1000 * MiB), std::pair(u"F:"_s, 999 * MiB),
                                          std::pair(u"S:"_s, 9999 * MiB), std::pair(QString(), MiB)}) {
        PartitionInfo partition;
        partition.driveLetter = name;
        partition.freeBytes = freeBytes;
        disk.addPartition(partition);
    }
    task.setDisk(disk);
    QCOMPARE(foreseeableShortfalls(task).shortfalls(),
             (QList<Shortfall>{{ShortfallKind::LargeReserve, u"F:"_s, 100 * MiB},
                               {ShortfallKind::LargeReserve, u"S:"_s, 1024 * MiB}}));
    const QList<Shortfall> small{{ShortfallKind::ReserveKept, u"E:"_s, 100 * MiB}};
    QCOMPARE(foreseeableShortfalls(task).notes(), small);
    task.setPartition(disk.partitions.first());
    QVERIFY(!foreseeableShortfalls(task).hasShortfalls());
    QCOMPARE(foreseeableShortfalls(task).notes(), small);
}

void tst_Shortfalls::omissionsAreForeseen()
{
    WipeTask task;
    task.setOmissions({{ShortfallKind::BinNotEntered, u"/bin"_s}});
    QCOMPARE(foreseeableShortfalls(task).shortfalls(), task.omissions());
}

void tst_Shortfalls::linksAreForeseen()
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(u"link"_s);
    if (!makeLink(folder.path(), link))
        QSKIP("SKIPPED: no symbolic links here");
    WipeTask task;
    task.setFiles({link});
    QVERIFY(foreseeableShortfalls(task).shortfalls().contains(Shortfall{ShortfallKind::LinkTarget, link}));
    task.setTargetsAreNamed(false);
    QVERIFY(!foreseeableShortfalls(task).has(ShortfallKind::LinkTarget));
}

QUORVEX_SUITE(tst_Shortfalls, QCoreApplication)
#include "tst_shortfalls.moc"
