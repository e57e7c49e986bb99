#include "engine/wipeengine.h"
#include "faultjob.h"
#include "model/wipetask.h"
#include "support/faultydrive.h"
#include "support/loopmount.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

using namespace faultjob;

namespace {
constexpr qint64 DriveBytes = 16 * MiB;
}

// Disk jobs on devices with real errors from the kernel.
class tst_DriveFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void withoutAFaultTheDriveIsErased();
    void writeErrorEndsTheJobAtItsPosition_data();
    void writeErrorEndsTheJobAtItsPosition();
    void writeErrorInALaterPassLeavesNothingWiped();
    void writeErrorOfAVolumeIsNamed();
    void failedFlushIsAFailure();
    void mediumWithoutRoomIsAFailure();
    void readErrorFailsTheVerification();
    void readErrorWithoutVerificationIsNoFailure();
    void vanishedDriveEndsTheJob_data();
    void vanishedDriveEndsTheJob();
    void vanishedDriveCannotBeVerified();
};

void tst_DriveFaults::initTestCase()
{
    if (const QString reason = FaultyDrive::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_DriveFaults::withoutAFaultTheDriveIsErased()
{
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    QVERIFY(drive.fill(stretchOf(Old, DriveBytes)));
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::BritishHmgIs5);
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
    QCOMPARE(job.report.wipedSectors, job.report.totalSectors);
    QCOMPARE(job.report.verificationSampleSize, 1000);
    QVERIFY(drive.content().count(Old) < DriveBytes / 128); // the share expected in random data, and a margin
}

void tst_DriveFaults::writeErrorEndsTheJobAtItsPosition_data()
{
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("end");
    QTest::addColumn<qint64>("chunk"); // start of the chunk that contains the range
    QTest::newRow("the first sector") << qint64(0) << qint64(512) << qint64(0);
    QTest::newRow("inside a chunk") << 5 * MiB + 4096 << 5 * MiB + 8192 << 5 * MiB;
    QTest::newRow("the last sector") << DriveBytes - 512 << DriveBytes << DriveBytes - MiB;
}

void tst_DriveFaults::writeErrorEndsTheJobAtItsPosition()
{
    QFETCH(qint64, first);
    QFETCH(qint64, end);
    QFETCH(qint64, chunk);
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    QVERIFY(drive.fill(stretchOf(Old, DriveBytes)));
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::Nist80088);
    drive.faults.failWrites(first, end);
    const RealJob job = runRealJob(task);
    QVERIFY(drive.faults.failedWrites() > 0);
    QVERIFY(!job.success);
    QVERIFY2(job.hasLine(writeErrorAt(chunk, 1117)), qPrintable(job.log.join(u'\n')));
    QCOMPARE(job.errors, QStringList{QStringLiteral("覆写失败")});
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QCOMPARE(job.report.errorMessage, QStringLiteral("覆写失败"));
    QCOMPARE(job.report.wipedSectors, quint64(chunk / 512));
    QVERIFY(!job.report.verificationPassed);
    QCOMPARE(job.report.verificationSampleSize, 0);

    const QByteArray content = drive.content();
    QCOMPARE(content.left(chunk), stretchOf('\0', chunk));
    QCOMPARE(content.mid(first, end - first), stretchOf(Old, end - first));
}

void tst_DriveFaults::writeErrorInALaterPassLeavesNothingWiped()
{
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::GermanVsitr);
    drive.faults.failWrites(6 * MiB, 6 * MiB + 512);
    drive.faults.beginAfter(2 * DriveBytes);
    const RealJob job = runRealJob(task);
    QVERIFY(drive.faults.failedWrites() > 0);
    QVERIFY(!job.success);
    QVERIFY2(job.hasLine(writeErrorAt(6 * MiB, 1117)), qPrintable(job.log.join(u'\n')));
    QVERIFY(job.hasLine(QStringLiteral("第 3/7 次覆写")));
    QVERIFY(!job.hasLine(QStringLiteral("第 4/7 次覆写")));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QCOMPARE(job.report.errorMessage, QStringLiteral("覆写失败"));
    QCOMPARE(job.report.wipedSectors, quint64(0)); // no sector has had all seven passes
}

void tst_DriveFaults::writeErrorOfAVolumeIsNamed()
{
    FaultyDrive drive(64 * MiB, LoopMount::Ext4);
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::Nist80088);
    QCOMPARE(task.disk().partitions.size(), 1);
    drive.faults.failWrites(33 * MiB, 33 * MiB + 512);
    const RealJob job = runRealJob(task);
    QVERIFY(drive.faults.failedWrites() > 0);
    QVERIFY(!job.success);
    QVERIFY(job.hasLine(QStringLiteral("通过卷句柄进行擦除...")));
    QVERIFY2(job.hasLine(writeErrorAt(33 * MiB, 1117)), qPrintable(job.log.join(u'\n')));
    QVERIFY(job.hasLine(QStringLiteral("错误: I/O 设备错误")));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QCOMPARE(job.report.errorMessage, QStringLiteral("覆写失败"));
    QCOMPARE(job.report.wipedSectors, quint64(33 * MiB / 512));
}

void tst_DriveFaults::failedFlushIsAFailure()
{
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::Nist80088);
    drive.faults.failFlushes();
    const RealJob job = runRealJob(task);
    QVERIFY(drive.faults.failedFlushes() > 0);
    QVERIFY(!job.success);
    QVERIFY2(job.hasLine(writeErrorAt(0, 1117)) || job.hasLine(QStringLiteral("刷新写入失败，错误码: 1117")),
             qPrintable(job.log.join(u'\n')));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QCOMPARE(job.report.errorMessage, QStringLiteral("覆写失败"));
    QCOMPARE(job.report.wipedSectors, quint64(0));
}

void tst_DriveFaults::mediumWithoutRoomIsAFailure()
{
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::Nist80088);
    drive.faults.limitRoomTo(9 * MiB + 512);
    const RealJob job = runRealJob(task);
    QVERIFY(drive.faults.failedWrites() > 0);
    QVERIFY(!job.success);
    // A loop device without direct I/O reports all errors as I/O errors.
    QVERIFY2(job.hasLine(writeErrorAt(9 * MiB, 112)) || job.hasLine(writeErrorAt(9 * MiB, 1117)),
             qPrintable(job.log.join(u'\n')));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QCOMPARE(job.report.errorMessage, QStringLiteral("覆写失败"));
    QCOMPARE(job.report.wipedSectors, quint64(9 * MiB / 512));
}

void tst_DriveFaults::readErrorFailsTheVerification()
{
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::Nist80088);
    drive.faults.failReads(0, DriveBytes);
    const RealJob job = runRealJob(task);
    QVERIFY(drive.faults.failedReads() > 0);
    QVERIFY(!job.success);
    QVERIFY2(job.hasLine(QStringLiteral("验证失败，位置: ")), qPrintable(job.log.join(u'\n')));
    QVERIFY(!job.hasLine(QStringLiteral("验证通过")));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QCOMPARE(job.report.errorMessage, QStringLiteral("覆写失败"));
    QVERIFY(!job.report.verificationPassed);
    QCOMPARE(job.report.verificationSampleSize, 0);
    QCOMPARE(job.report.verificationMethod, QString());
    QCOMPARE(job.report.dataHash, QString());
    QCOMPARE(drive.content(), stretchOf('\0', DriveBytes)); // everything was written nevertheless
}

void tst_DriveFaults::readErrorWithoutVerificationIsNoFailure()
{
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::Nist80088);
    task.setVerifyAfterWipe(false);
    drive.faults.failReads(0, DriveBytes);
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
    QCOMPARE(job.report.verificationMethod, QString());
    QCOMPARE(drive.content(), stretchOf('\0', DriveBytes));
}

void tst_DriveFaults::vanishedDriveEndsTheJob_data()
{
    QTest::addColumn<int>("fileSystem");
    QTest::addColumn<qint64>("size");
    QTest::newRow("drive") << int(LoopMount::NoFileSystem) << DriveBytes;
    QTest::newRow("volume") << int(LoopMount::Ext4) << 64 * MiB;
}

void tst_DriveFaults::vanishedDriveEndsTheJob()
{
    QFETCH(int, fileSystem);
    QFETCH(qint64, size);
    FaultyDrive drive(size, static_cast<LoopMount::FileSystem>(fileSystem));
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::BritishHmgIs5);
    drive.faults.vanishAfter(size + 4 * MiB); // in the second pass
    const RealJob job = runRealJob(task);
    QTRY_VERIFY_WITH_TIMEOUT(drive.faults.isGone(), 60000);
    QVERIFY(!job.success);
    QVERIFY2(job.hasLine(QStringLiteral("写入错误，位置: ")), qPrintable(job.log.join(u'\n')));
    QVERIFY(job.hasLine(QStringLiteral("第 2/2 次覆写")));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QCOMPARE(job.report.errorMessage, QStringLiteral("覆写失败"));
    QVERIFY(job.report.wipedSectors < job.report.totalSectors);
    QCOMPARE(job.report.verificationSampleSize, 0);
}

void tst_DriveFaults::vanishedDriveCannotBeVerified()
{
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpDisk(task, drive, WipeMethod::Nist80088);
    WipeEngine engine;
    QSignalSpy completed(&engine, &WipeEngine::completed);
    QStringList lines;
    // The drive vanishes from another thread than the worker's, which is between the flush and the last
    // sample by then.
    task.setVerifySampleSize(2'000'000);
    connect(&engine, &WipeEngine::logMessage, &engine, [&](const QString &message, int) {
        lines.append(message);
        if (message == QStringLiteral("正在验证..."))
            drive.faults.vanish();
    });
    engine.setTask(&task);
    engine.start();
    QTRY_COMPARE_WITH_TIMEOUT(completed.size(), 1, 60000);
    QCOMPARE(completed[0][0].toBool(), false);
    QVERIFY2(!lines.filter(QStringLiteral("验证失败，位置: ")).isEmpty(), qPrintable(lines.join(u'\n')));
    QVERIFY(!lines.contains(QStringLiteral("验证通过")));
    QCOMPARE(engine.report().status, WipeStatus::Failed);
    QVERIFY(!engine.report().verificationPassed);
    QVERIFY(engine.report().verificationSampleSize < 2'000'000);
}

QUORVEX_SUITE(tst_DriveFaults, QCoreApplication)
#include "tst_drivefaults.moc"
