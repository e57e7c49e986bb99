#include "model/units.h"
#include "model/wipetask.h"
#include "realjob.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int Passes = 2;
// Allowance for the file system's own writes.
constexpr qint64 Journal = 8 * MiB;

// The bytes that the kernel has written to the device, from the 7th field. It counts units of 512 bytes,
// whatever the sector size.
qint64 bytesOn(const LoopMount &drive)
{
    ::sync();
    QFile statistics(u"/sys/block/%1/stat"_s.arg(QFileInfo(drive.device()).fileName()));
    if (!statistics.open(QIODevice::ReadOnly))
        return -1;
    return statistics.readAll().simplified().split(' ').value(6).toLongLong() * 512;
}

void prepare(WipeTask &task, OperationType type)
{
    task.setOperationType(type);
    task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
    task.setBufferSizeMB(1);
    QCOMPARE(task.method().passCount(), Passes);
}

} // namespace

// Compares the bytes that a job reports as written with the kernel's count for the device.
class tst_WrittenBytes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void ofADrive();
    void ofFiles();
    void ofFreeSpace();
};

void tst_WrittenBytes::initTestCase()
{
    const QString reason = LoopMount::unavailableReason(LoopMount::Ext4);
    if (!reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_WrittenBytes::ofADrive()
{
    const QTemporaryDir folder;
    const LoopMount drive(folder.path(), {.fileSystem = LoopMount::NoFileSystem, .sizeBytes = 5 * MiB});
    QVERIFY2(drive.isReady(), qPrintable(drive.error()));
    WipeTask task;
    prepare(task, DiskWipe);
    task.setDisk(diskAt(drive.device()));
    for (int run = 0; run < 2; ++run) { // each run starts at 0
        const qint64 before = bytesOn(drive);
        QVERIFY(runRealJob(task).success);
        QCOMPARE(bytesOn(drive) - before, Passes * 5 * MiB);
        QCOMPARE(task.written(), Passes * 5 * MiB);
    }
}

void tst_WrittenBytes::ofFiles()
{
    const QTemporaryDir folder;
    // A journal would come round, whose size is that of the file system.
    const LoopMount volume(
        folder.path(),
        {.fileSystem = LoopMount::Ext4, .makeArguments = {u"-b"_s, u"1024"_s, u"-O"_s, u"^has_journal"_s}});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString target = volume.mountPoint() + u"/doomed"_s;
    QVERIFY(QDir().mkpath(target));
    qint64 total = 0;
    qint64 blocks = 0;
    for (int i = 0; i < 40; ++i) {
        const qint64 size = i == 0 ? 3 * MiB + 17 : i * 100;
        writeFile(u"%1/%2"_s.arg(target).arg(i), QByteArray(size, 'x'));
        total += size;
        blocks += (size + KiB - 1) / KiB;
    }
    WipeTask task;
    prepare(task, FileWipe);
    task.setFiles({target});
    const qint64 before = bytesOn(volume);
    QVERIFY(runRealJob(task).success);
    QCOMPARE(task.written(), Passes * total);
    const qint64 onMedium = bytesOn(volume) - before;
    QVERIFY2(onMedium >= Passes * blocks * KiB, QByteArray::number(onMedium).constData());
    QVERIFY2(onMedium <= Passes * blocks * KiB + Journal, QByteArray::number(onMedium).constData());
}

void tst_WrittenBytes::ofFreeSpace()
{
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4, .sizeBytes = 160 * MiB});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    PartitionInfo partition;
    partition.driveLetter = volume.mountPoint();
    WipeTask task;
    prepare(task, FreeSpaceWipe);
    task.setPartition(partition);
    const qint64 before = bytesOn(volume);
    QVERIFY(runRealJob(task).success);
    const qint64 onMedium = bytesOn(volume) - before;
    QVERIFY2(task.written() > 20 * MiB, QByteArray::number(task.written()).constData());
    QVERIFY2(onMedium >= task.written(), QByteArray::number(onMedium).constData());
    QVERIFY2(onMedium <= task.written() + Journal, QByteArray::number(onMedium - task.written()).constData());
}

QUORVEX_SUITE(tst_WrittenBytes, QCoreApplication)
#include "tst_writtenbytes.moc"
