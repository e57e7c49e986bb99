#include "faultjob.h"
#include "model/wipetask.h"
#include "support/faultydrive.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

using namespace faultjob;

namespace {

void setUpFileJob(WipeTask &task, const QString &path)
{
    task.addFiles({path});
    task.setMethod(WipeMethod::fromType(WipeMethod::Nist80088));
    task.setBufferSizeMB(1);
}

void setUpFill(WipeTask &task, const FaultyDrive &drive)
{
    PartitionInfo partition;
    partition.driveLetter = drive.mountPoint();
    task.setOperationType(FreeSpaceWipe);
    task.setPartition(partition);
    task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
    task.setBufferSizeMB(1);
}

// A file on the ext4 volume and the place of its first byte on the drive.
struct PlacedFile
{
    explicit PlacedFile(FaultyDrive &drive)
        : path(drive.mountPoint() + QStringLiteral("/secret"))
        , content("begin of the secret" + stretchOf(Old, 3 * MiB - 19))
    {
        writeThrough(path, content);
        position = drive.content().indexOf(content.left(19)); // contiguous on a fresh volume
    }

    QString path;
    QByteArray content;
    qint64 position = -1;
};

} // namespace

// Jobs on the files and the free space of volumes with real device errors.
class tst_VolumeFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void writeErrorKeepsTheFile();
    void readErrorInAFileFailsItsVerification();
    void vanishedVolumeEndsTheFileJob();
    void vanishedVolumeEndsTheFill();
    void volumeUnmountedBeforeTheFillIsLeftAlone();
};

void tst_VolumeFaults::initTestCase()
{
    if (const QString reason = FaultyDrive::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_VolumeFaults::writeErrorKeepsTheFile()
{
    FaultyDrive drive(64 * MiB, LoopMount::Ext4);
    QVERIFY(drive.isReady());
    const PlacedFile file(drive);
    QVERIFY(file.position > 0);
    WipeTask task;
    setUpFileJob(task, file.path);
    drive.faults.failWrites(file.position + MiB, file.position + MiB + 4096);
    const RealJob job = runRealJob(task);
    QVERIFY(drive.faults.failedWrites() > 0);
    QVERIFY(!job.success);
    QVERIFY2(job.hasLine(QStringLiteral("WriteFile 失败: ") + file.path), qPrintable(job.log.join(u'\n')));
    QVERIFY(job.hasLine(QStringLiteral("擦除完成，但有 1 个文件失败。数据可能不安全！")));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QVERIFY(QFile::exists(file.path));
    QVERIFY(drive.content().mid(file.position + MiB, 4096) == stretchOf(Old, 4096));
}

void tst_VolumeFaults::readErrorInAFileFailsItsVerification()
{
    FaultyDrive drive(64 * MiB, LoopMount::Ext4);
    QVERIFY(drive.isReady());
    const PlacedFile file(drive);
    QVERIFY(file.position > 0);
    WipeTask task;
    setUpFileJob(task, file.path);
    drive.faults.failReads(file.position, file.position + file.content.size());
    const RealJob job = runRealJob(task);
    QVERIFY(drive.faults.failedReads() > 0);
    QVERIFY2(!job.success, qPrintable(job.log.join(u'\n')));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QVERIFY(!job.report.verificationPassed);
    QCOMPARE(job.report.verificationSampleSize, 0);
    QVERIFY(QFile::exists(file.path));
    QVERIFY(drive.content().mid(file.position, file.content.size()) == stretchOf('\0', file.content.size()));
}

void tst_VolumeFaults::vanishedVolumeEndsTheFileJob()
{
    FaultyDrive drive(64 * MiB, LoopMount::Ext4);
    QVERIFY(drive.isReady());
    const PlacedFile file(drive);
    QVERIFY(file.position > 0);
    WipeTask task;
    setUpFileJob(task, file.path);
    drive.faults.vanishAfter(2 * MiB);
    const RealJob job = runRealJob(task);
    QTRY_VERIFY_WITH_TIMEOUT(drive.faults.isGone(), 60000);
    QVERIFY2(!job.success, qPrintable(job.log.join(u'\n')));
    QVERIFY(job.hasLine(file.path));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QVERIFY(drive.content().count(Old) > MiB / 2);
}

void tst_VolumeFaults::vanishedVolumeEndsTheFill()
{
    FaultyDrive drive(192 * MiB, LoopMount::Ext4);
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpFill(task, drive);
    drive.faults.vanishAfter(20 * MiB);
    const RealJob job = runRealJob(task);
    QTRY_VERIFY_WITH_TIMEOUT(drive.faults.isGone(), 60000);
    QVERIFY2(!job.success, qPrintable(job.log.join(u'\n')));
    QVERIFY(job.hasLine(QStringLiteral("写入错误，位置: ")) || job.hasLine(QStringLiteral("卷不再可用")));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QCOMPARE(job.report.errorMessage, QStringLiteral("填充空闲空间失败"));
    QCOMPARE(job.report.wipedSectors, quint64(0));
}

void tst_VolumeFaults::volumeUnmountedBeforeTheFillIsLeftAlone()
{
    FaultyDrive drive(192 * MiB, LoopMount::Ext4);
    QVERIFY(drive.isReady());
    WipeTask task;
    setUpFill(task, drive);
    QCOMPARE(QProcess::execute(QStringLiteral("umount"), {drive.mountPoint()}), 0);
    const RealJob job = runRealJob(task);
    QVERIFY2(!job.success, qPrintable(job.log.join(u'\n')));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QCOMPARE(job.report.errorMessage, QStringLiteral("卷不再可用，错误码: 2"));
    // The mount point is a folder of another volume now.
    QCOMPARE(QDir(drive.mountPoint()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

QUORVEX_SUITE(tst_VolumeFaults, QCoreApplication)
#include "tst_volumefaults.moc"
