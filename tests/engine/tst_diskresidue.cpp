#include "engine/wipeengine.h"
#include "model/units.h"
#include "model/wipetask.h"
#include "realjob.h"
#include "support/loopmount.h"
#include "support/partitionedloop.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace {

const QByteArray &marker()
{
    static const QByteArray text = "MARKER-OF-THIS-TEST-";
    return text;
}

bool fillImage(LoopMount &drive, qint64 size)
{
    QByteArray block;
    while (block.size() < MiB)
        block += marker();
    for (qint64 offset = 0; offset < size; offset += block.size()) {
        if (!drive.writeImage(offset, block.left(std::min<qint64>(block.size(), size - offset))))
            return false;
    }
    return true;
}

// The offset of the first unexpected byte; -1 without one.
qint64 firstOther(LoopMount &drive, qint64 size, char expected)
{
    for (qint64 offset = 0; offset < size; offset += MiB) {
        const QByteArray part = drive.readImage(offset, std::min(MiB, size - offset));
        for (qsizetype i = 0; i < part.size(); ++i) {
            if (part[i] != expected)
                return offset + i;
        }
    }
    return -1;
}

void fillRoomOutside(PartitionedLoop &loop)
{
    using Loop = PartitionedLoop;
    for (const qint64 offset : {Loop::First / 2, Loop::First + Loop::PartitionSize,
                                Loop::Second + Loop::PartitionSize, Loop::Size - marker().size()})
        QVERIFY(loop.drive().writeImage(offset, marker()));
    QCOMPARE(loop.drive().countInImage(marker()), 4);
}

// The number of 4 KiB blocks that equal the one before.
int repeatedBlocks(LoopMount &drive, qint64 size)
{
    int repeated = 0;
    QByteArray before;
    for (qint64 offset = 0; offset + 4096 <= size; offset += 4096) {
        const QByteArray block = drive.readImage(offset, 4096);
        repeated += block == before;
        before = block;
    }
    return repeated;
}

} // namespace

// Loop drives of the test, wiped by the real backend and checked through their images.
class tst_DiskResidue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyByteIsOfTheLastPass_data();
    void everyByteIsOfTheLastPass();
    void mountedVolumeIsUnmountedAndWiped();
    void wholeDriveIsErasedOutsideItsVolumesToo();
    void volumesAloneLeaveWhatIsOutside();
    void busyVolumeIsLeftAlone();
    void driveHeldBySomebodyElseIsLeftAlone();
    void fullBackingIsAFailure();
    void driveThatShrinksDuringTheJobIsAFailure();
    void otherDriveUnderTheNumberIsLeftAlone();
};

void tst_DiskResidue::initTestCase()
{
    const QString reason = LoopMount::unavailableReason(LoopMount::Ext4);
    if (!reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_DiskResidue::everyByteIsOfTheLastPass_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<int>("sector");
    QTest::addColumn<int>("buffer");
    QTest::addColumn<int>("last"); // byte of the last pass, -1 for random

    QTest::newRow("NIST, 96 MiB") << 0 << 96 * MiB << 512 << 64 << 0x00;
    QTest::newRow("HMG, 96 MiB") << 1 << 96 * MiB << 512 << 64 << -1;
    QTest::newRow("DoD, 16 MiB, 4096") << 2 << 16 * MiB << 4096 << 7 << -1;
    QTest::newRow("VSITR, odd size") << 3 << 24 * MiB + 5 * 512 << 512 << 5 << 0xAA;
    QTest::newRow("VSITR, odd size, 4096") << 3 << 24 * MiB + 3 * 4096 << 4096 << 64 << 0xAA;
    QTest::newRow("Gutmann, 8 MiB") << 4 << 8 * MiB + 512 << 512 << 3 << -1;
    QTest::newRow("NIST, one sector") << 0 << qint64(512) << 512 << 64 << 0x00;
    QTest::newRow("HMG, one sector of 4096") << 1 << qint64(4096) << 4096 << 1 << -1;
}

void tst_DiskResidue::everyByteIsOfTheLastPass()
{
    QFETCH(int, method);
    QFETCH(qint64, size);
    QFETCH(int, sector);
    QFETCH(int, buffer);
    QFETCH(int, last);
    const QTemporaryDir folder;
    LoopMount::Options options;
    options.fileSystem = LoopMount::NoFileSystem;
    options.sizeBytes = size;
    options.sectorSize = sector;
    LoopMount drive(folder.path(), options);
    QVERIFY2(drive.isReady(), qPrintable(drive.error()));
    QVERIFY(fillImage(drive, size));
    QVERIFY(drive.countInImage(marker().left(10)) > 0);

    WipeTask task;
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(drive.device()));
    QCOMPARE(task.disk().sizeBytes, size);
    QCOMPARE(task.disk().bytesPerSector, sector);
    task.setMethod(WipeMethod::fromType(method));
    task.setBufferSizeMB(buffer);
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
    QCOMPARE(job.report.wipedSectors, job.report.totalSectors);
    QCOMPARE(job.report.bytesWritten, quint64(size * task.method().passCount()));

    QCOMPARE(drive.countInImage(marker().left(10)), 0);
    if (last >= 0)
        QCOMPARE(firstOther(drive, size, static_cast<char>(last)), -1);
    else
        QCOMPARE(repeatedBlocks(drive, size), 0);
}

void tst_DiskResidue::mountedVolumeIsUnmountedAndWiped()
{
    const QTemporaryDir folder;
    LoopMount drive(folder.path(), {});
    QVERIFY2(drive.isReady(), qPrintable(drive.error()));
    writeFile(drive.mountPoint() + QStringLiteral("/secret"), marker());
    QVERIFY(drive.countInImage(marker()) > 0);

    WipeTask task;
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(drive.device()));
    QCOMPARE(task.disk().partitions.size(), 1);
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
    QVERIFY(job.hasLine(QStringLiteral("通过卷句柄进行擦除...")));
    QVERIFY(!drive.isMounted());
    QCOMPARE(firstOther(drive, task.disk().sizeBytes, '\0'), -1);
}

void tst_DiskResidue::wholeDriveIsErasedOutsideItsVolumesToo()
{
    const QTemporaryDir folder;
    PartitionedLoop loop(folder.path());
    QVERIFY2(loop.isReady(), qPrintable(loop.drive().error()));
    fillRoomOutside(loop);
    QVERIFY(loop.mount(1, loop.folder(QStringLiteral("one")), QStringLiteral("noexec")));
    QVERIFY(loop.mount(2, loop.folder(QStringLiteral("two"))));
    writeFile(loop.folder(QStringLiteral("one")) + QStringLiteral("/secret"), marker());
    WipeTask task;
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(loop.device()));
    QCOMPARE(task.disk().partitions.size(), 2);
    task.setWholeDrive(true);
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable((job.log + job.errors).join(u'\n')));
    QCOMPARE(task.outcome().outcome(), JobOutcome::Complete);
    QCOMPARE(job.report.wipedSectors, job.report.totalSectors);
    QCOMPARE(loop.mounts(), QStringList());
    QCOMPARE(firstOther(loop.drive(), PartitionedLoop::Size, '\0'), -1);
}

// The reason for whole-drive jobs.
void tst_DiskResidue::volumesAloneLeaveWhatIsOutside()
{
    const QTemporaryDir folder;
    PartitionedLoop loop(folder.path());
    QVERIFY2(loop.isReady(), qPrintable(loop.drive().error()));
    fillRoomOutside(loop);
    QVERIFY(loop.mount(1, loop.folder(QStringLiteral("one"))));
    WipeTask task;
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(loop.device()));
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
    QCOMPARE(task.outcome().outcome(), JobOutcome::Partial);
    QVERIFY(loop.drive().countInImage(marker()) > 0);
}

void tst_DiskResidue::busyVolumeIsLeftAlone()
{
    const QTemporaryDir folder;
    LoopMount drive(folder.path(), {});
    QVERIFY2(drive.isReady(), qPrintable(drive.error()));
    QFile file(drive.mountPoint() + QStringLiteral("/open"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(marker());
    file.flush();

    WipeTask task;
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(drive.device()));
    const RealJob job = runRealJob(task); // thirty attempts, half a second apart
    QVERIFY(!job.success);
    const QString name = drive.mountPoint();
    QVERIFY(job.hasLine(QStringLiteral("警告: 卷 %1 锁定失败，错误码: 32").arg(name)));
    QVERIFY(job.hasLine(QStringLiteral("警告: 卷 %1 卸载失败，错误码: 32").arg(name)));
    QVERIFY(job.hasLine(QStringLiteral("写入错误，位置: 0，错误码: 32")));
    QVERIFY(job.hasLine(QStringLiteral("错误: 磁盘被占用")));
    QCOMPARE(job.report.wipedSectors, quint64(0));
    QVERIFY(drive.isMounted());
    file.close();
    QVERIFY(drive.countInImage(marker()) > 0);
}

void tst_DiskResidue::driveHeldBySomebodyElseIsLeftAlone()
{
    const QTemporaryDir folder;
    LoopMount::Options options;
    options.fileSystem = LoopMount::NoFileSystem;
    options.sizeBytes = MiB;
    LoopMount drive(folder.path(), options);
    QVERIFY2(drive.isReady(), qPrintable(drive.error()));
    QVERIFY(fillImage(drive, MiB));
    // LVM, md and other programs hold a drive like this, exclusively and without a mount.
    const int holder = ::open(QFile::encodeName(drive.device()).constData(), O_RDWR | O_EXCL | O_CLOEXEC);
    QVERIFY(holder >= 0);
    WipeTask task;
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(drive.device()));
    const RealJob job = runRealJob(task);
    ::close(holder);
    QVERIFY(!job.success);
    QVERIFY(job.hasLine(QStringLiteral("无法打开磁盘，错误码: 32")));
    QCOMPARE(job.report.errorMessage, QStringLiteral("无法获取磁盘信息"));
    QVERIFY(drive.countInImage(marker()) > 0);
}

void tst_DiskResidue::fullBackingIsAFailure()
{
    // A thin-provisioned drive, which promises more space than it has.
    const QTemporaryDir folder;
    LoopMount::Options outerOptions;
    outerOptions.sizeBytes = 32 * MiB;
    LoopMount outer(folder.path(), outerOptions, QStringLiteral("outer"));
    QVERIFY2(outer.isReady(), qPrintable(outer.error()));
    LoopMount::Options options;
    options.fileSystem = LoopMount::NoFileSystem;
    options.sizeBytes = 64 * MiB;
    LoopMount drive(outer.mountPoint(), options, QStringLiteral("thin"));
    QVERIFY2(drive.isReady(), qPrintable(drive.error()));

    WipeTask task;
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(drive.device()));
    task.setBufferSizeMB(4);
    task.setMethod(WipeMethod::fromType(WipeMethod::GermanVsitr)); // zeros alone could remain holes
    const RealJob job = runRealJob(task);
    QVERIFY(!job.success);
    QVERIFY2(job.hasLine(QStringLiteral("写入错误，位置: ")) || job.hasLine(QStringLiteral("刷新写入失败")),
             qPrintable(job.log.join(u'\n')));
    QVERIFY(job.report.wipedSectors < job.report.totalSectors);
    QCOMPARE(job.report.status, WipeStatus::Failed);
}

void tst_DiskResidue::driveThatShrinksDuringTheJobIsAFailure()
{
    const QTemporaryDir folder;
    LoopMount::Options options;
    options.fileSystem = LoopMount::NoFileSystem;
    options.sizeBytes = 64 * MiB;
    LoopMount drive(folder.path(), options);
    QVERIFY2(drive.isReady(), qPrintable(drive.error()));
    WipeTask task;
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(drive.device()));
    task.setBufferSizeMB(1);
    task.setMethod(WipeMethod::fromType(WipeMethod::Gutmann));
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    QSignalSpy log(&engine, &WipeEngine::logMessage);
    engine.setTask(&task);
    engine.start();
    QSignalSpy passes(&engine, &WipeEngine::passChanged);
    QTRY_VERIFY_WITH_TIMEOUT(passes.size() >= 2, 60000);
    // A drive that was pulled out is a device without a size.
    QVERIFY(QFile::resize(drive.image(), 0));
    QCOMPARE(QProcess::execute(QStringLiteral("losetup"), {QStringLiteral("-c"), drive.device()}), 0);
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, 60000);
    QCOMPARE(completed[0][0].toBool(), false);
    QCOMPARE(engine.report().status, WipeStatus::Failed);
    QCOMPARE(engine.report().wipedSectors, quint64(0));
    QStringList lines;
    for (const QList<QVariant> &line : log)
        lines.append(line[0].toString());
    QVERIFY2(!lines.filter(QStringLiteral("写入错误，位置: ")).isEmpty(), qPrintable(lines.join(u'\n')));
}

void tst_DiskResidue::otherDriveUnderTheNumberIsLeftAlone()
{
    const QTemporaryDir folder;
    LoopMount::Options options;
    options.fileSystem = LoopMount::NoFileSystem;
    options.sizeBytes = MiB;
    DiskInfo chosen;
    std::unique_ptr<LoopMount> second;
    // Repeats, with images of other names, when another process took the device in between.
    int attempt = 0;
    do {
        second.reset();
        ++attempt;
        {
            LoopMount first(folder.path(), options, QStringLiteral("first%1").arg(attempt));
            QVERIFY2(first.isReady(), qPrintable(first.error()));
            chosen = diskAt(first.device());
            QVERIFY(chosen.diskNumber >= 0);
        }
        second = std::make_unique<LoopMount>(folder.path(), options, QStringLiteral("second%1").arg(attempt));
        QVERIFY2(second->isReady(), qPrintable(second->error()));
    } while (second->device() != chosen.devicePath);
    QVERIFY(fillImage(*second, MiB));
    WipeTask task;
    task.setOperationType(DiskWipe);
    task.setDisk(chosen);
    const RealJob job = runRealJob(task);
    QVERIFY(!job.success);
    QVERIFY(job.hasLine(QStringLiteral("无法打开磁盘，错误码: 21")));
    QVERIFY(second->countInImage(marker()) > 0);
}

QUORVEX_SUITE(tst_DiskResidue, QCoreApplication)
#include "tst_diskresidue.moc"
