#include "diskwipejob.h"
#include "model/units.h"
#include "support/faultplan.h"
#include "support/faultydevices.h"
#include "support/interposeddevices.h"
#include "support/memorydevices.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTest>
#include <QtEndian>

#include <chrono>
#include <limits>
#include <random>
#include <sstream>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Drive 3 with a volume "E:" from 64 KiB on and a smaller one "/mnt/x" after a gap.
constexpr qint64 TwoVolumeSize = 4 * MiB;
constexpr qint64 StartE = 64 * KiB;
constexpr qint64 LengthE = 2 * MiB + 512;
constexpr qint64 StartX = 3 * MiB;
constexpr qint64 LengthX = 512 * KiB;

void addTwoVolumeDrive(MemoryDevices &devices)
{
    devices.addDrive(markedDrive(3, TwoVolumeSize));
    devices.addVolume(u"E:"_s, 3, StartE, LengthE);
    devices.addVolume(u"/mnt/x"_s, 3, StartX, LengthX);
}

QByteArray constant(qint64 size, int value)
{
    return QByteArray(size, static_cast<char>(value));
}

// The content of the two-volume drive after a pass of one byte through its volumes.
QByteArray twoVolumesOverwritten(int value)
{
    QByteArray medium = markedMedium(TwoVolumeSize);
    medium.replace(StartE, LengthE, constant(LengthE, value));
    medium.replace(StartX, LengthX, constant(LengthX, value));
    return medium;
}

// Whether the bytes contain neither old content nor repetitions.
bool looksRandom(const QByteArray &bytes)
{
    if (bytes.contains("MARK......"))
        return false;
    for (qsizetype i = 4096; i + 4096 <= bytes.size(); i += 4096) {
        if (bytes.sliced(i, 4096) == bytes.sliced(i - 4096, 4096))
            return false;
    }
    return bytes.count('\0') < bytes.size() / 64 + 32;
}

QStringList callsOf(const QList<DeviceCall> &calls, QLatin1String method)
{
    QStringList found;
    for (const DeviceCall &call : calls) {
        if (call.method == method)
            found += u"%1 %2"_s.arg(call.target).arg(call.argument);
    }
    return found;
}

// Records all calls and lets them through.
InterposedDevices::Before recorder(QList<DeviceCall> &calls)
{
    return [&calls](const DeviceCall &call) {
        calls += call;
        return platform::Status{};
    };
}

// Fails every call of a method, on one target or all.
InterposedDevices::Before failing(QLatin1String method, platform::ErrorCode error, const QString &target = {})
{
    return [=](const DeviceCall &call) {
        const bool chosen = call.method == method && (target.isEmpty() || call.target == target);
        return chosen ? platform::Status{error, 0, "planned fault"} : platform::Status{};
    };
}

// The generator state behind the 32-bit word; inverts each step of the tempering.
quint32 untempered(quint32 word)
{
    word ^= word >> 18;
    word ^= (word << 15) & 0xEFC60000U;
    quint32 result = word;
    for (int i = 0; i < 5; ++i)
        result = word ^ ((result << 7) & 0x9D2C5680U);
    word = result;
    for (int i = 0; i < 3; ++i)
        result = word ^ (result >> 11);
    return result;
}
} // namespace

class tst_DiskWipeWorker : public QObject
{
    Q_OBJECT

private slots:
    void systemDiskIsRefusedBeforeAnyVolumeIsTouched();
    void logOfADriveWithoutVolumes();
    void logOfTwoVolumes();
    void everyMethodOnADrive_data();
    void everyMethodOnADrive();
    void everyMethodThroughVolumes_data();
    void everyMethodThroughVolumes();
    void partitionWipeLocksDismountsAndOverwritesEveryVolume();
    void patternLabels();
    void randomDataIsOneUnbrokenSequence();
    void complementPassIsTheComplementOfThePassBefore();
    void progressOfADrive();
    void progressOfTwoVolumesCountsTowardsTheWholeDisk();
    void chunksAreWholeSectors_data();
    void chunksAreWholeSectors();
    void sectorLargerThanTheBuffer();
    void emptyDrive();
    void driveReplacedByAnotherOne_data();
    void driveReplacedByAnotherOne();
    void driveOpenedAloneOnlyWithoutVolumes();
    void everyVolumeIsHeldAndReleased_data();
    void everyVolumeIsHeldAndReleased();
    void lockAttemptsAreHalfASecondApart();
    void lockIsTriedThirtyTimes();
    void lockThatSucceedsAtTheThirdAttempt();
    void dismountFailureIsOnlyLogged();
    void stillMountedVolumeIsNotWritten();
    void extendedIoFailureIsIgnored();
    void volumeThatDoesNotOpenIsOnlyLogged();
    void noVolumeOpens();
    void volumeThatNobodyHasUnlockedIsToldInWords();
    void volumesThatCannotBeAskedAreSkipped_data();
    void volumesThatCannotBeAskedAreSkipped();
    void volumeThatBeginsOnAnotherDriveIsLeftAlone();
    void volumeInManyPiecesIsHeldToo();
    void namesAreShownWithoutControlCharacters();
    void driveThatDoesNotOpenIsWipedThroughItsVolumes();
    void driveWithoutGeometryIsMeasuredThroughItsVolumes_data();
    void driveWithoutGeometryIsMeasuredThroughItsVolumes();
    void noDriveAndNoVolume();
    void noGeometryAndNoVolume();
    void volumesWithoutLength();
    void estimatedVolumeSize();
    void failedSeekOnAVolumeIsLogged();
    void failedSeekOnADriveFailsThePass();
    void driveWriteErrors_data();
    void driveWriteErrors();
    void driveWithoutProgressFails();
    void volumeWriteErrors_data();
    void volumeWriteErrors();
    void volumeBoundary_data();
    void volumeBoundary();
    void writeOfNothingEndsAVolume();
    void shortWritesAreContinued();
    void failedFlushFailsThePass();
    void memoryThatIsNotToBeHad();
    void failedPassEndsTheJob();
    void openingIsTracedToTheDebugOutput();
};

void tst_DiskWipeWorker::systemDiskIsRefusedBeforeAnyVolumeIsTouched()
{
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    QList<DeviceCall> calls;
    InterposedDevices devices(memory, recorder(calls));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    DiskInfo disk = job.task.disk();
    disk.isSystemDisk = true;
    job.task.setDisk(disk);

    QVERIFY(!job.run(devices));
    QVERIFY(job.endedProperly());
    QCOMPARE(job.events, QStringList({u"log 0 开始磁盘擦除..."_s, u"log 0 目标磁盘: Memory drive (4.00 MB)"_s,
                                      u"log 0 磁盘编号: 3"_s, u"log 0 序列号: SERIAL-3"_s,
                                      u"error 无法擦除系统盘"_s, u"finished 0"_s}));
    QVERIFY(calls.isEmpty());
    QVERIFY(memory.medium(3) == markedMedium(TwoVolumeSize));
}

void tst_DiskWipeWorker::logOfADriveWithoutVolumes()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(3, 3 * MiB + 512));
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    job.chooseDrive(devices.drive(3));

    QVERIFY(job.run(devices));
    QCOMPARE(job.events, QStringList({
                             u"log 0 开始磁盘擦除..."_s,
                             u"log 0 目标磁盘: Memory drive (3.00 MB)"_s,
                             u"log 0 磁盘编号: 3"_s,
                             u"log 0 序列号: SERIAL-3"_s,
                             u"log 0 正在锁定磁盘卷..."_s,
                             u"log 0 正在查找磁盘 3 上的卷..."_s,
                             u"log 0 共找到 0 个需要锁定的卷"_s,
                             u"log 1 警告: 未找到任何卷，可能是无分区磁盘"_s,
                             u"log 0 磁盘卷已锁定并卸载"_s,
                             u"log 0 正在打开磁盘..."_s,
                             u"log 0 磁盘打开成功"_s,
                             u"log 0 磁盘大小: 3.00 MB"_s,
                             u"log 0 扇区大小: 512 字节"_s,
                             u"log 0 总扇区数: 6145"_s,
                             u"pass 1/2"_s,
                             u"log 0 第 1/2 次覆写 (模式: 0x00)"_s,
                             u"log 0 通过磁盘句柄进行擦除..."_s,
                             u"pass 2/2"_s,
                             u"log 0 第 2/2 次覆写 (模式: 随机)"_s,
                             u"log 0 通过磁盘句柄进行擦除..."_s,
                             u"log 0 正在验证..."_s,
                             u"log 0 验证通过"_s,
                             u"log 0 磁盘擦除完成!"_s,
                             u"finished 1"_s,
                         }));
    QCOMPARE(devices.openHandles(), 0);
}

void tst_DiskWipeWorker::logOfTwoVolumes()
{
    MemoryDevices devices;
    addTwoVolumeDrive(devices);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(3));

    QVERIFY(job.run(devices));
    QCOMPARE(job.events, QStringList({
                             u"log 0 开始磁盘擦除..."_s,
                             u"log 0 目标磁盘: Memory drive (4.00 MB)"_s,
                             u"log 0 磁盘编号: 3"_s,
                             u"log 0 序列号: SERIAL-3"_s,
                             u"log 0 正在锁定磁盘卷..."_s,
                             u"log 0 正在查找磁盘 3 上的卷..."_s,
                             u"log 0 找到卷: E:"_s,
                             u"log 0 找到卷: /mnt/x:"_s,
                             u"log 0 共找到 2 个需要锁定的卷"_s,
                             u"log 0 正在处理卷: E:"_s,
                             u"log 0 正在锁定卷 E:..."_s,
                             u"log 0 卷 E: 锁定成功"_s,
                             u"log 0 正在卸载卷 E:..."_s,
                             u"log 0 卷 E: 卸载成功"_s,
                             u"log 0 正在处理卷: /mnt/x"_s,
                             u"log 0 正在锁定卷 /mnt/x..."_s,
                             u"log 0 卷 /mnt/x 锁定成功"_s,
                             u"log 0 正在卸载卷 /mnt/x..."_s,
                             u"log 0 卷 /mnt/x 卸载成功"_s,
                             u"log 0 磁盘卷已锁定并卸载"_s,
                             u"log 0 正在打开磁盘..."_s,
                             u"log 0 磁盘打开成功"_s,
                             u"log 0 磁盘大小: 4.00 MB"_s,
                             u"log 0 扇区大小: 512 字节"_s,
                             u"log 0 总扇区数: 8192"_s,
                             u"pass 1/1"_s,
                             u"log 0 第 1/1 次覆写 (模式: 0x00)"_s,
                             u"log 0 通过卷句柄进行擦除..."_s,
                             u"log 0 正在擦除卷 1/2，大小: 2.00 MB"_s,
                             u"log 0 卷 1 擦除完成，已写入: 2.00 MB"_s,
                             u"log 0 正在擦除卷 2/2，大小: 512.00 KB"_s,
                             u"log 0 卷 2 擦除完成，已写入: 512.00 KB"_s,
                             u"log 0 正在验证..."_s,
                             u"log 0 验证通过"_s,
                             u"log 0 磁盘擦除完成!"_s,
                             u"finished 1"_s,
                         }));
    QVERIFY(devices.medium(3) == twoVolumesOverwritten(0x00));
    QCOMPARE(devices.openHandles(), 0);
    QCOMPARE(devices.heldLocks(), 0);
}

namespace {

// The byte that the last pass leaves; -1 for a random one.
int lastByteOf(const WipeMethod &method)
{
    const PassPattern last = method.passes.constLast();
    switch (last.type) {
    case PatternType::Zeros:
        return 0x00;
    case PatternType::Ones:
        return 0xFF;
    case PatternType::Custom:
        return last.value;
    case PatternType::Random:
    case PatternType::Complement:
        break;
    }
    return -1;
}

} // namespace

void tst_DiskWipeWorker::everyMethodOnADrive_data()
{
    QTest::addColumn<qint32>("method");
    QTest::addColumn<int>("lastByte"); // -1: random
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint32>("sectorSize");
    for (const WipeMethod &method : WipeMethod::allMethods()) {
        for (const qint32 sector : {512, 4096}) {
            for (const qint64 size : {qint64(sector), MiB, 2 * MiB + sector, 5 * MiB - 3 * sector})
                QTest::addRow("%s, %d x %lld", qPrintable(method.name), sector, size / sector)
                    << method.type << lastByteOf(method) << size << sector;
        }
    }
}

void tst_DiskWipeWorker::everyMethodOnADrive()
{
    QFETCH(qint32, method);
    QFETCH(int, lastByte);
    QFETCH(qint64, size);
    QFETCH(qint32, sectorSize);
    MemoryDevices devices;
    devices.addDrive(markedDrive(0, size, sectorSize));
    DiskWipeJob job(method);
    job.chooseDrive(devices.drive(0));

    QVERIFY2(job.run(devices), qPrintable(job.log().join(u'\n')));
    if (lastByte < 0)
        QVERIFY(looksRandom(devices.medium(0)));
    else
        QVERIFY(devices.medium(0) == constant(size, lastByte));
    QCOMPARE(job.report().wipedSectors, quint64(size / 512));
    QCOMPARE(job.report().badSectors, 0);
    QCOMPARE(job.bytes.last(), size * job.task.method().passCount());
    QCOMPARE(job.percents.last(), 100);
}

void tst_DiskWipeWorker::everyMethodThroughVolumes_data()
{
    QTest::addColumn<qint32>("method");
    QTest::addColumn<int>("lastByte");
    for (const WipeMethod &method : WipeMethod::allMethods())
        QTest::newRow(qPrintable(method.name)) << method.type << lastByteOf(method);
}

void tst_DiskWipeWorker::everyMethodThroughVolumes()
{
    QFETCH(qint32, method);
    QFETCH(int, lastByte);
    MemoryDevices devices;
    addTwoVolumeDrive(devices);
    DiskWipeJob job(method);
    job.chooseDrive(devices.drive(3));

    QVERIFY2(job.run(devices), qPrintable(job.log().join(u'\n')));
    const QByteArray medium = devices.medium(3);
    if (lastByte < 0) {
        QVERIFY(looksRandom(medium.sliced(StartE, LengthE)));
        QVERIFY(looksRandom(medium.sliced(StartX, LengthX)));
    } else {
        QVERIFY(medium == twoVolumesOverwritten(lastByte));
    }
    const QByteArray before = markedMedium(TwoVolumeSize);
    QVERIFY(medium.first(StartE) == before.first(StartE));
    QVERIFY(medium.sliced(StartE + LengthE, StartX - StartE - LengthE) ==
            before.sliced(StartE + LengthE, StartX - StartE - LengthE));
    QVERIFY(medium.sliced(StartX + LengthX) == before.sliced(StartX + LengthX));
    QCOMPARE(job.report().wipedSectors, quint64((LengthE + LengthX) / 512));
}

void tst_DiskWipeWorker::partitionWipeLocksDismountsAndOverwritesEveryVolume()
{
    MemoryDevices devices;
    addTwoVolumeDrive(devices);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(3));
    job.task.setOperationType(PartitionWipe);
    PartitionInfo partition;
    partition.driveLetter = u"/mnt/x"_s;
    partition.partitionIndex = 1;
    job.task.setPartition(partition);

    QVERIFY(job.run(devices));
    QCOMPARE(devices.lockAttempts(), 2);
    QCOMPARE(devices.dismounts(), 2);
    QVERIFY(devices.medium(3) == twoVolumesOverwritten(0x00));
    QCOMPARE(job.report().wipedSectors, quint64((LengthE + LengthX) / 512));
    QVERIFY(job.report().wipedSectors < quint64(TwoVolumeSize / 512));
}

void tst_DiskWipeWorker::patternLabels()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(0, 4096));
    DiskWipeJob job;
    job.chooseDrive(devices.drive(0));
    job.setPasses({{PatternType::Zeros},
                   {PatternType::Ones, 0xFF},
                   {PatternType::Random},
                   {PatternType::Custom, 0xAB},
                   {PatternType::Custom, 0x05},
                   {PatternType::Complement},
                   {static_cast<PatternType>(77)}});

    QVERIFY(job.run(devices));
    QStringList labels;
    for (const QString &line : job.log().filter(u"模式"_s))
        labels += line.section(u"模式: "_s, 1).chopped(1);
    QCOMPARE(labels,
             QStringList({u"0x00"_s, u"0xFF"_s, u"随机"_s, u"0xab"_s, u"0x05"_s, u"未知"_s, u"未知"_s}));
}

void tst_DiskWipeWorker::randomDataIsOneUnbrokenSequence()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(0, 5 * MiB + 3 * 512));
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    job.chooseDrive(devices.drive(0));
    QVERIFY(job.run(devices));

    // The first block of words gives the generator's state, which predicts all following bytes.
    const QByteArray medium = devices.medium(0);
    const auto wordAt = [&medium](qsizetype index) {
        return qFromLittleEndian<quint32>(medium.constData() + index * 4);
    };
    std::stringstream state;
    for (qsizetype i = 0; i < 624; ++i)
        state << untempered(wordAt(i)) << ' ';
    state << 624;
    std::mt19937 generator;
    state >> generator;
    QVERIFY(state);
    for (qsizetype i = 624; i < medium.size() / 4; ++i) {
        if (wordAt(i) != quint32(generator()))
            QFAIL(qPrintable(u"word %1 is not what the generator gives"_s.arg(i)));
    }
}

void tst_DiskWipeWorker::complementPassIsTheComplementOfThePassBefore()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(0, 3 * MiB));
    DiskWipeJob job;
    job.chooseDrive(devices.drive(0));
    job.setPasses({{PatternType::Custom, 0x35}, {PatternType::Complement}});
    QVERIFY(job.run(devices));
    QVERIFY(devices.medium(0) == constant(3 * MiB, 0xCA));
}

void tst_DiskWipeWorker::progressOfADrive()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(0, 2 * MiB + 512 * KiB));
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    job.chooseDrive(devices.drive(0));
    QVERIFY(job.run(devices));
    QCOMPARE(job.percents, QList<int>({20, 40, 50, 70, 90, 100}));
    const qint64 size = 2 * MiB + 512 * KiB;
    QCOMPARE(job.bytes, QList<qint64>({MiB, 2 * MiB, size, size + MiB, size + 2 * MiB, 2 * size}));
}

void tst_DiskWipeWorker::progressOfTwoVolumesCountsTowardsTheWholeDisk()
{
    MemoryDevices devices;
    addTwoVolumeDrive(devices);
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    job.chooseDrive(devices.drive(3));
    QVERIFY(job.run(devices));
    const qint64 written = LengthE + LengthX;
    QCOMPARE(job.bytes,
             QList<qint64>({MiB, 2 * MiB, LengthE, written, TwoVolumeSize + MiB, TwoVolumeSize + 2 * MiB,
                            TwoVolumeSize + LengthE, TwoVolumeSize + written}));
    QCOMPARE(job.percents, QList<int>({12, 25, 25, 31, 62, 75, 75, 81}));
}

void tst_DiskWipeWorker::chunksAreWholeSectors_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint32>("sectorSize");
    QTest::addColumn<QStringList>("writes");
    QTest::newRow("1000 bytes left") << qint64(1000) << 512 << QStringList{u"0 512"_s, u"0 512"_s};
    QTest::newRow("100 bytes left") << qint64(100) << 512 << QStringList{u"0 512"_s};
    QTest::newRow("one sector") << qint64(512) << 512 << QStringList{u"0 512"_s};
    QTest::newRow("a buffer and 100 bytes") << MiB + 100 << 512 << QStringList{u"0 1048576"_s, u"0 512"_s};
    QTest::newRow("a buffer and 5000 bytes of 4096")
        << MiB + 5000 << 4096 << QStringList{u"0 1048576"_s, u"0 4096"_s, u"0 4096"_s};
    // 1048576 is no multiple of 520.
    QTest::newRow("sectors of 520 bytes")
        << qint64(520) * 3000 << 520 << QStringList{u"0 1048320"_s, u"0 511680"_s};
}

void tst_DiskWipeWorker::chunksAreWholeSectors()
{
    QFETCH(qint64, size);
    QFETCH(qint32, sectorSize);
    QFETCH(QStringList, writes);
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, size, sectorSize));
    QList<DeviceCall> calls;
    InterposedDevices devices(memory, recorder(calls));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(0));
    QVERIFY2(job.run(devices), qPrintable(job.log().join(u'\n')));
    QCOMPARE(callsOf(calls, "write"_L1), writes);
    QCOMPARE(memory.medium(0), constant(memory.medium(0).size(), 0x00));
    QCOMPARE(job.report().wipedSectors, quint64(size / 512));
}

void tst_DiskWipeWorker::sectorLargerThanTheBuffer()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(0, 4 * MiB, 2 * MiB));
    DiskWipeJob job;
    job.chooseDrive(devices.drive(0));
    QVERIFY(job.run(devices));
    QVERIFY(devices.medium(0) == constant(4 * MiB, 0x00));
}

void tst_DiskWipeWorker::emptyDrive()
{
    MemoryDevices devices;
    devices.addDrive(MemoryDrive(0, 0));
    DiskWipeJob job;
    job.chooseDrive(devices.drive(0));
    QVERIFY(job.run(devices));
    QVERIFY(job.log().contains(u"0 总扇区数: 0"_s));
    QCOMPARE(devices.writes(), 0);
    QCOMPARE(job.report().wipedSectors, 0ULL);
    QCOMPARE(job.report().verificationSampleSize, 0);
    QCOMPARE(job.report().verificationMethod, QString());
}

void tst_DiskWipeWorker::driveReplacedByAnotherOne_data()
{
    QTest::addColumn<bool>("hasVolume");
    QTest::addColumn<bool>("otherSize");
    QTest::newRow("serial number, drive") << false << false;
    QTest::newRow("size, drive") << false << true;
    QTest::newRow("serial number, volume") << true << false;
    QTest::newRow("size, volume") << true << true;
}

void tst_DiskWipeWorker::driveReplacedByAnotherOne()
{
    QFETCH(bool, hasVolume);
    QFETCH(bool, otherSize);
    MemoryDevices devices;
    devices.addDrive(markedDrive(0, MiB));
    if (hasVolume)
        devices.addVolume(u"E:"_s, 0, 0, MiB);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(0));
    if (otherSize)
        devices.drive(0).sizeBytes -= 512;
    else
        devices.drive(0).serialNumber = u"another"_s;

    QVERIFY(!job.run(devices));
    QVERIFY(job.endedProperly());
    if (hasVolume) {
        QVERIFY(job.log().contains(u"2 无法打开卷 E:，错误码: 21"_s));
        QCOMPARE(job.errors(), QStringList(u"无法锁定磁盘卷，请关闭所有使用该磁盘的程序"_s));
    } else {
        QVERIFY(job.log().contains(u"2 无法打开磁盘，错误码: 21"_s));
        QCOMPARE(job.errors(), QStringList(u"无法获取磁盘信息"_s));
    }
    QCOMPARE(devices.writes(), 0);
    QCOMPARE(devices.openings(), 0);
    QVERIFY(devices.medium(0) == markedMedium(MiB));
}

void tst_DiskWipeWorker::driveOpenedAloneOnlyWithoutVolumes()
{
    class Sharing : public platform::ForwardingDevices
    {
    public:
        using ForwardingDevices::ForwardingDevices;
        platform::Result<std::unique_ptr<platform::RawDevice>>
        openDrive(const platform::DriveIdentity &drive, platform::DriveAccess access) override
        {
            asked += access;
            return ForwardingDevices::openDrive(drive, access);
        }
        QList<platform::DriveAccess> asked;
    };
    for (const bool hasVolume : {false, true}) {
        MemoryDevices memory;
        memory.addDrive(markedDrive(0, MiB));
        if (hasVolume)
            memory.addVolume(u"E:"_s, 0, 0, MiB);
        Sharing devices(memory);
        DiskWipeJob job;
        job.chooseDrive(memory.drive(0));
        QVERIFY(job.run(devices));
        QCOMPARE(devices.asked,
                 QList({hasVolume ? platform::DriveAccess::BesideOwnVolumes : platform::DriveAccess::Alone}));
    }
}

void tst_DiskWipeWorker::everyVolumeIsHeldAndReleased_data()
{
    QTest::addColumn<int>("failingWrite");
    QTest::newRow("whole job") << 0;
    QTest::newRow("failed pass") << 1;
}

void tst_DiskWipeWorker::everyVolumeIsHeldAndReleased()
{
    QFETCH(int, failingWrite);
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    FaultPlan plan(FaultPlan::Write, failingWrite, platform::IoDevice);
    FaultyDevices faulty(memory, plan);
    QList<DeviceCall> calls;
    InterposedDevices devices(faulty, recorder(calls));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QCOMPARE(job.run(devices), failingWrite == 0);
    // All volumes are held before the first write, and released by the last calls.
    QStringList held;
    for (const DeviceCall &call : std::as_const(calls)) {
        if (call.kind == FaultPlan::Write)
            break;
        const bool holds = call.method == "openVolume"_L1 || call.method == "lock"_L1 ||
                           call.method == "dismount"_L1 || call.method == "allowExtendedIo"_L1;
        if (holds)
            held += call.method + u' ' + call.target;
    }
    QCOMPARE(held, QStringList({u"openVolume E:"_s, u"lock E:"_s, u"dismount E:"_s, u"allowExtendedIo E:"_s,
                                u"openVolume /mnt/x"_s, u"lock /mnt/x"_s, u"dismount /mnt/x"_s,
                                u"allowExtendedIo /mnt/x"_s}));
    QStringList released;
    for (const DeviceCall &call : calls.last(2))
        released += call.method + u' ' + call.target;
    QCOMPARE(released, QStringList({u"unlock E:"_s, u"unlock /mnt/x"_s}));
    QCOMPARE(callsOf(calls, "unlock"_L1).size(), 2);
}

void tst_DiskWipeWorker::lockAttemptsAreHalfASecondApart()
{
    WipeTask task;
    QCOMPARE(DiskWipeWorker(&task).lockRetryDelay(), std::chrono::milliseconds(500));
}

void tst_DiskWipeWorker::lockIsTriedThirtyTimes()
{
    MemoryDevices devices;
    addTwoVolumeDrive(devices);
    devices.volume(u"E:"_s).failingLocks = -1;
    DiskWipeJob job;
    job.chooseDrive(devices.drive(3));

    QVERIFY(job.run(devices));
    QCOMPARE(devices.lockAttempts(), 30 + 1);
    const QStringList log = job.log();
    const qsizetype at = log.indexOf(u"0 正在锁定卷 E:..."_s);
    QCOMPARE(log.sliced(at, 4), QStringList({u"0 正在锁定卷 E:..."_s, u"1 警告: 卷 E: 锁定失败，错误码: 5"_s,
                                             u"0 正在卸载卷 E:..."_s, u"0 卷 E: 卸载成功"_s}));
    QVERIFY(devices.medium(3) == twoVolumesOverwritten(0x00));
    QCOMPARE(devices.heldLocks(), 0);
}

void tst_DiskWipeWorker::lockThatSucceedsAtTheThirdAttempt()
{
    MemoryDevices devices;
    addTwoVolumeDrive(devices);
    devices.volume(u"E:"_s).failingLocks = 2;
    DiskWipeJob job;
    job.chooseDrive(devices.drive(3));
    QVERIFY(job.run(devices));
    QCOMPARE(devices.lockAttempts(), 3 + 1);
    QVERIFY(job.log().contains(u"0 卷 E: 锁定成功"_s));
    QVERIFY(job.log().filter(u"锁定失败"_s).isEmpty());
}

void tst_DiskWipeWorker::dismountFailureIsOnlyLogged()
{
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    // The volume still accepts writes, like one that another program has dismounted.
    memory.volume(u"E:"_s).mounted = false;
    InterposedDevices devices(memory, failing("dismount"_L1, platform::SharingViolation, u"E:"_s));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(job.run(devices));
    QVERIFY(job.log().contains(u"1 警告: 卷 E: 卸载失败，错误码: 32"_s));
    QVERIFY(memory.medium(3) == twoVolumesOverwritten(0x00));
}

void tst_DiskWipeWorker::stillMountedVolumeIsNotWritten()
{
    MemoryDevices devices;
    addTwoVolumeDrive(devices);
    devices.volume(u"E:"_s).dismountError = platform::SharingViolation;
    DiskWipeJob job;
    job.chooseDrive(devices.drive(3));
    QVERIFY(!job.run(devices));
    QVERIFY(job.endedProperly());
    QVERIFY(job.log().contains(u"2 错误: 磁盘被占用"_s));
    QCOMPARE(job.errors(), QStringList(u"覆写失败"_s));
    QVERIFY(devices.medium(3) == markedMedium(TwoVolumeSize));
}

void tst_DiskWipeWorker::extendedIoFailureIsIgnored()
{
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    InterposedDevices devices(memory, failing("allowExtendedIo"_L1, platform::NotSupported));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(job.run(devices));
    QVERIFY(job.log().filter(QRegularExpression(u"^[12]"_s)).isEmpty());
    QVERIFY(memory.medium(3) == twoVolumesOverwritten(0x00));
}

void tst_DiskWipeWorker::volumeThatDoesNotOpenIsOnlyLogged()
{
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    InterposedDevices devices(memory, failing("openVolume"_L1, platform::AccessDenied, u"E:"_s));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(job.run(devices));
    const QStringList log = job.log();
    QCOMPARE(log.at(log.indexOf(u"0 正在处理卷: E:"_s) + 1), u"2 无法打开卷 E:，错误码: 5"_s);
    QVERIFY(log.contains(u"0 正在擦除卷 1/1，大小: 512.00 KB"_s));
    QByteArray expected = markedMedium(TwoVolumeSize);
    expected.replace(StartX, LengthX, constant(LengthX, 0x00));
    QVERIFY(memory.medium(3) == expected);
    QCOMPARE(job.report().wipedSectors, quint64(LengthX / 512));
}

void tst_DiskWipeWorker::noVolumeOpens()
{
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    InterposedDevices devices(memory, failing("openVolume"_L1, platform::AccessDenied));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.events.sliced(job.events.size() - 6),
             QStringList({u"log 0 正在处理卷: E:"_s, u"log 2 无法打开卷 E:，错误码: 5"_s,
                          u"log 0 正在处理卷: /mnt/x"_s, u"log 2 无法打开卷 /mnt/x，错误码: 5"_s,
                          u"error 无法锁定磁盘卷，请关闭所有使用该磁盘的程序"_s, u"finished 0"_s}));
    QCOMPARE(memory.openings(), 0);
}

void tst_DiskWipeWorker::volumeThatNobodyHasUnlockedIsToldInWords()
{
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    InterposedDevices devices(memory, failing("openVolume"_L1, platform::EncryptedVolumeLocked, u"E:"_s));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(job.run(devices));
    const QStringList log = job.log();
    const qsizetype at = log.indexOf(u"2 无法打开卷 E:，错误码: 2150694912"_s);
    QVERIFY(at >= 0);
    QCOMPARE(log.at(at + 1),
             u"2 错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)"_s);
}

void tst_DiskWipeWorker::volumesThatCannotBeAskedAreSkipped_data()
{
    QTest::addColumn<QString>("method");
    QTest::newRow("does not open") << u"queryVolume"_s;
    QTest::newRow("does not know its extents") << u"extents"_s;
}

void tst_DiskWipeWorker::volumesThatCannotBeAskedAreSkipped()
{
    QFETCH(QString, method);
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    const QByteArray name = method.toLatin1();
    InterposedDevices devices(memory, failing(QLatin1String(name), platform::NotReady, u"E:"_s));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(job.run(devices));
    QVERIFY(job.log().contains(u"0 共找到 1 个需要锁定的卷"_s));
    QVERIFY(!job.log().contains(u"0 找到卷: E:"_s));
    QCOMPARE(job.report().wipedSectors, quint64(LengthX / 512));
}

void tst_DiskWipeWorker::volumeThatBeginsOnAnotherDriveIsLeftAlone()
{
    MemoryDevices devices;
    addTwoVolumeDrive(devices);
    devices.addDrive(markedDrive(5, MiB));
    MemoryDriveVolume elsewhere;
    elsewhere.name = u"F:"_s;
    elsewhere.extents = {{5, 0, MiB}};
    devices.addVolume(elsewhere);
    MemoryDriveVolume nowhere;
    nowhere.name = u"G:"_s;
    devices.addVolume(nowhere);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(3));
    QVERIFY(job.run(devices));
    QVERIFY(job.log().contains(u"0 共找到 2 个需要锁定的卷"_s));
    QVERIFY(devices.medium(5) == markedMedium(MiB));
}

// File systems on dynamic disks can have many extents.
void tst_DiskWipeWorker::volumeInManyPiecesIsHeldToo()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(3, TwoVolumeSize));
    MemoryDriveVolume scattered;
    scattered.name = u"E:"_s;
    constexpr qint64 Piece = 8192;
    for (int i = 0; i < 2 * platform::ManyExtents; ++i)
        scattered.extents.append({3, i * 2 * Piece, Piece});
    devices.addVolume(scattered);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(3));
    QVERIFY(job.run(devices));
    QVERIFY(job.log().contains(u"0 找到卷: E:"_s));
    QVERIFY(job.log().contains(u"0 通过卷句柄进行擦除..."_s));
    QCOMPARE(devices.heldLocks(), 0);
}

void tst_DiskWipeWorker::namesAreShownWithoutControlCharacters()
{
    MemoryDevices devices;
    MemoryDrive drive = markedDrive(0, MiB);
    drive.serialNumber = u"S\u202E\u0007N %1"_s;
    devices.addDrive(drive);
    const QString name = u"/mnt/a\n\u202Eb %2"_s;
    devices.addVolume(name, 0, 0, MiB);
    devices.volume(name).failingLocks = -1;
    DiskWipeJob job;
    job.chooseDrive(drive);
    QVERIFY(job.run(devices));
    QVERIFY(job.log().contains(u"0 序列号: S[U+202E][U+0007]N %1"_s));
    QVERIFY(job.log().contains(u"0 找到卷: /mnt/a[U+000A][U+202E]b %2:"_s));
    QVERIFY(job.log().contains(u"0 正在处理卷: /mnt/a[U+000A][U+202E]b %2"_s));
    QVERIFY(job.log().contains(u"1 警告: 卷 /mnt/a[U+000A][U+202E]b %2 锁定失败，错误码: 5"_s));
    QVERIFY(devices.medium(0) == constant(MiB, 0x00));
}

void tst_DiskWipeWorker::driveThatDoesNotOpenIsWipedThroughItsVolumes()
{
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    InterposedDevices devices(memory, failing("openDrive"_L1, platform::AccessDenied));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(job.run(devices));
    const QStringList log = job.log();
    const qsizetype at = log.indexOf(u"0 正在打开磁盘..."_s);
    QCOMPARE(log.sliced(at, 6),
             QStringList({u"0 正在打开磁盘..."_s, u"2 无法打开磁盘，错误码: 5"_s, u"0 将通过卷句柄进行擦除"_s,
                          u"0 磁盘大小: 2.50 MB"_s, u"0 扇区大小: 512 字节"_s,
                          u"0 总扇区数: %1"_s.arg((LengthE + LengthX) / 512)}));
    QVERIFY(memory.medium(3) == twoVolumesOverwritten(0x00));
}

void tst_DiskWipeWorker::driveWithoutGeometryIsMeasuredThroughItsVolumes_data()
{
    QTest::addColumn<bool>("knowsSectors");
    QTest::addColumn<int>("shownSectors");
    QTest::newRow("sectors known") << true << 4096;
    QTest::newRow("sectors unknown") << false << 512;
}

void tst_DiskWipeWorker::driveWithoutGeometryIsMeasuredThroughItsVolumes()
{
    QFETCH(bool, knowsSectors);
    QFETCH(int, shownSectors);
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, 4 * MiB, 4096));
    memory.addVolume(u"E:"_s, 0, MiB, 2 * MiB);
    InterposedDevices devices(memory, [knowsSectors](const DeviceCall &call) {
        const bool fails =
            call.method == "geometry"_L1 || (call.method == "bytesPerSector"_L1 && !knowsSectors);
        return fails ? platform::Status{platform::NotSupported, 0, "planned fault"} : platform::Status{};
    });
    DiskWipeJob job;
    job.task.setVerifyAfterWipe(false);
    job.chooseDrive(memory.drive(0));
    QVERIFY(job.run(devices));
    const QStringList log = job.log();
    const qsizetype at = log.indexOf(u"0 磁盘打开成功"_s);
    QCOMPARE(log.sliced(at, 4), QStringList({u"0 磁盘打开成功"_s, u"0 磁盘大小: 2.00 MB"_s,
                                             u"0 扇区大小: %1 字节"_s.arg(shownSectors),
                                             u"0 总扇区数: %1"_s.arg(2 * MiB / shownSectors)}));
    QVERIFY(memory.medium(0).sliced(MiB, 2 * MiB) == constant(2 * MiB, 0x00));
}

void tst_DiskWipeWorker::noDriveAndNoVolume()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, MiB));
    InterposedDevices devices(memory, failing("openDrive"_L1, platform::AccessDenied));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(0));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.events.sliced(job.events.size() - 5),
             QStringList({u"log 0 正在打开磁盘..."_s, u"log 2 无法打开磁盘，错误码: 5"_s,
                          u"log 0 将通过卷句柄进行擦除"_s, u"error 无法获取磁盘信息"_s, u"finished 0"_s}));
}

void tst_DiskWipeWorker::noGeometryAndNoVolume()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, MiB));
    InterposedDevices devices(memory, failing("geometry"_L1, platform::IoDevice));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(0));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.events.sliced(job.events.size() - 3),
             QStringList({u"log 0 磁盘打开成功"_s, u"error 无法获取磁盘信息"_s, u"finished 0"_s}));
    QCOMPARE(memory.openHandles(), 0);
}

void tst_DiskWipeWorker::volumesWithoutLength()
{
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    InterposedDevices devices(memory, [](const DeviceCall &call) {
        const bool fails = call.method == "openDrive"_L1 || call.method == "length"_L1;
        return fails ? platform::Status{platform::IoDevice, 0, "planned fault"} : platform::Status{};
    });
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.errors(), QStringList(u"无法获取磁盘信息"_s));
    QCOMPARE(memory.openHandles(), 0);
    QCOMPARE(memory.heldLocks(), 0);
    QCOMPARE(memory.writes(), 0);
}

void tst_DiskWipeWorker::estimatedVolumeSize()
{
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    InterposedDevices devices(memory, failing("length"_L1, platform::NotSupported, u"/mnt/x"_s));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(job.run(devices));
    const QStringList log = job.log();
    const qsizetype at = log.indexOf(u"0 使用估算卷大小: 2.00 MB"_s);
    QVERIFY(at > 0);
    // The volume ends long before the estimate, which is no shortfall of the volume.
    QCOMPARE(log.sliced(at, 4),
             QStringList({u"0 使用估算卷大小: 2.00 MB"_s, u"0 正在擦除卷 2/2，大小: 2.00 MB"_s,
                          u"0 到达卷边界，继续下一个卷..."_s, u"0 卷 2 擦除完成，已写入: 512.00 KB"_s}));
    QVERIFY(memory.medium(3) == twoVolumesOverwritten(0x00));
    QCOMPARE(job.report().wipedSectors, quint64((LengthE + LengthX) / 512));
}

void tst_DiskWipeWorker::failedSeekOnAVolumeIsLogged()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, 2 * MiB));
    memory.addVolume(u"E:"_s, 0, 0, 2 * MiB);
    FaultPlan plan(FaultPlan::Seek, 2, platform::IoDevice);
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.chooseDrive(memory.drive(0));
    job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
    // Without the seek the second pass begins where the first one ended, at the end of the volume.
    QVERIFY(job.run(devices));
    const QStringList log = job.log();
    const qsizetype at = log.indexOf(u"2 SetFilePointerEx 失败，错误码: 1117"_s);
    QCOMPARE(log.sliced(at), QStringList({u"2 SetFilePointerEx 失败，错误码: 1117"_s,
                                          u"0 到达卷边界，继续下一个卷..."_s, u"1 卷 1 有 2.00 MB 未被覆写"_s,
                                          u"0 卷 1 擦除完成，已写入: 0 B"_s, u"0 磁盘擦除完成!"_s}));
    QCOMPARE(job.report().wipedSectors, 0ULL);
}

void tst_DiskWipeWorker::failedSeekOnADriveFailsThePass()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, 3 * MiB));
    FaultPlan plan(FaultPlan::Seek, 3, platform::NotReady);
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.chooseDrive(memory.drive(0));
    QVERIFY(!job.run(devices));
    QCOMPARE(
        job.events.sliced(job.events.size() - 3),
        QStringList({u"log 2 SetFilePointerEx 失败，错误码: 21"_s, u"error 覆写失败"_s, u"finished 0"_s}));
    QCOMPARE(job.report().wipedSectors, quint64(2 * MiB / 512));
}

void tst_DiskWipeWorker::driveWriteErrors_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {5, 19, 21, 27, 29, 32, 33, 87, 112, 1117})
        QTest::addRow("%d", code) << code;
}

void tst_DiskWipeWorker::driveWriteErrors()
{
    QFETCH(int, code);
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, 3 * MiB));
    FaultPlan plan(FaultPlan::Write, 2, static_cast<platform::ErrorCode>(code));
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.chooseDrive(memory.drive(0));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.events.sliced(job.events.size() - 4),
             QStringList({u"log 0 通过磁盘句柄进行擦除..."_s,
                          u"log 2 写入错误，位置: 1048576，错误码: %1"_s.arg(code), u"error 覆写失败"_s,
                          u"finished 0"_s}));
    QCOMPARE(job.report().wipedSectors, quint64(MiB / 512));
    QVERIFY(memory.medium(0).sliced(MiB) == markedMedium(3 * MiB).sliced(MiB));
}

void tst_DiskWipeWorker::driveWithoutProgressFails()
{
    MemoryDevices devices;
    MemoryDrive drive = markedDrive(0, 3 * MiB);
    drive.medium.resize(2 * MiB);
    drive.endError = platform::NoError; // a write behind the medium succeeds with 0 bytes
    devices.addDrive(drive);
    DiskWipeJob job;
    job.chooseDrive(drive);
    QVERIFY(!job.run(devices));
    QVERIFY(job.log().contains(u"2 写入错误，位置: 2097152，错误码: 27"_s));
    QCOMPARE(job.errors(), QStringList(u"覆写失败"_s));
    QCOMPARE(job.report().wipedSectors, quint64(2 * MiB / 512));
}

void tst_DiskWipeWorker::volumeWriteErrors_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QString>("extra");
    QTest::newRow("5") << 5u << u"log 2 错误: 访问被拒绝"_s;
    QTest::newRow("19") << 19u << u"log 2 错误: 磁盘写保护"_s;
    QTest::newRow("21") << 21u << u"log 2 错误: 设备未就绪"_s;
    QTest::newRow("32") << 32u << u"log 2 错误: 磁盘被占用"_s;
    QTest::newRow("33") << 33u << u"log 2 错误: 锁定冲突"_s;
    QTest::newRow("1117") << 1117u << u"log 2 错误: I/O 设备错误"_s;
    for (const quint32 code : {20u, 34u, 55u, 59u, 64u, 433u, 1006u, 1110u, 1112u, 1167u, 1235u, 1617u})
        QTest::addRow("gone, %u", code) << code << u"log 2 错误: 设备已断开，或介质已更换"_s;
    for (const quint32 code : {31u, 483u, 1005u, 1392u})
        QTest::addRow("fails, %u", code) << code << u"log 2 错误: 设备或介质故障"_s;
    QTest::newRow("encrypted")
        << 0x80310000u
        << u"log 2 错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)"_s;
    QTest::newRow("other") << 112u << QString();
}

void tst_DiskWipeWorker::volumeWriteErrors()
{
    QFETCH(quint32, code);
    QFETCH(QString, extra);
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    FaultPlan plan(FaultPlan::Write, 2, static_cast<platform::ErrorCode>(code));
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.chooseDrive(memory.drive(3));
    QVERIFY(!job.run(devices));
    QStringList expected{u"log 0 正在擦除卷 1/2，大小: 2.00 MB"_s,
                         u"log 2 写入错误，位置: 1048576，错误码: %1"_s.arg(code)};
    if (!extra.isEmpty())
        expected += extra;
    expected += {u"log 0 卷 1 擦除完成，已写入: 1.00 MB"_s, u"error 覆写失败"_s, u"finished 0"_s};
    QCOMPARE(job.events.sliced(job.events.size() - expected.size()), expected);
    QCOMPARE(job.report().wipedSectors, quint64(MiB / 512));
    QCOMPARE(memory.heldLocks(), 0);
}

void tst_DiskWipeWorker::volumeBoundary_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {27, 29, 87})
        QTest::addRow("%d", code) << code;
}

void tst_DiskWipeWorker::volumeBoundary()
{
    QFETCH(int, code);
    MemoryDevices memory;
    addTwoVolumeDrive(memory);
    // The last chunk of the first volume, one sector, is beyond its end.
    FaultPlan plan(FaultPlan::Write, 3, static_cast<platform::ErrorCode>(code));
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.task.setVerifyAfterWipe(false);
    job.chooseDrive(memory.drive(3));
    QVERIFY(job.run(devices));
    const QStringList log = job.log();
    const qsizetype at = log.indexOf(u"0 到达卷边界，继续下一个卷..."_s);
    QCOMPARE(log.sliced(at),
             QStringList({u"0 到达卷边界，继续下一个卷..."_s, u"1 卷 1 有 512 B 未被覆写"_s,
                          u"0 卷 1 擦除完成，已写入: 2.00 MB"_s, u"0 正在擦除卷 2/2，大小: 512.00 KB"_s,
                          u"0 卷 2 擦除完成，已写入: 512.00 KB"_s, u"0 磁盘擦除完成!"_s}));
    QCOMPARE(job.report().wipedSectors, quint64((LengthE - 512 + LengthX) / 512));
}

void tst_DiskWipeWorker::writeOfNothingEndsAVolume()
{
    MemoryDevices memory;
    MemoryDrive drive = markedDrive(0, 3 * MiB);
    drive.medium.resize(2 * MiB + 512 * KiB);
    drive.endError = platform::NoError;
    memory.addDrive(drive);
    memory.addVolume(u"E:"_s, 0, 0, 3 * MiB);
    DiskWipeJob job;
    job.task.setVerifyAfterWipe(false);
    job.chooseDrive(drive);
    QVERIFY(job.run(memory));
    const QStringList log = job.log();
    const qsizetype at = log.indexOf(u"0 写入字节数为0，到达卷末尾"_s);
    QCOMPARE(log.sliced(at), QStringList({u"0 写入字节数为0，到达卷末尾"_s, u"1 卷 1 有 512.00 KB 未被覆写"_s,
                                          u"0 卷 1 擦除完成，已写入: 2.50 MB"_s, u"0 磁盘擦除完成!"_s}));
    QCOMPARE(job.report().wipedSectors, quint64((2 * MiB + 512 * KiB) / 512));
}

namespace {
// Writes a limited number of bytes at a time.
class ShortDevices : public platform::ForwardingDevices
{
public:
    ShortDevices(platform::Devices &target, qint64 limit)
        : ForwardingDevices(target)
        , m_limit(limit)
    {}
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override
    {
        auto target = m_target.openDrive(drive, access);
        if (!target)
            return target.status();
        return std::unique_ptr<platform::RawDevice>(std::make_unique<Drive>(target.take(), m_limit));
    }

private:
    class Drive : public platform::ForwardingRawDevice
    {
    public:
        Drive(std::unique_ptr<RawDevice> target, qint64 limit)
            : ForwardingTransfers(std::move(target))
            , m_limit(limit)
        {}
        platform::Result<qint64> write(const void *data, qint64 size) override
        {
            return m_target->write(data, std::min(size, m_limit));
        }

    private:
        qint64 m_limit;
    };
    qint64 m_limit;
};
} // namespace

void tst_DiskWipeWorker::shortWritesAreContinued()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, 2 * MiB + 512));
    ShortDevices devices(memory, 100 * KiB);
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    job.chooseDrive(memory.drive(0));
    QVERIFY(job.run(devices));
    QVERIFY(looksRandom(memory.medium(0)));
    QCOMPARE(job.bytes.first(), 100 * KiB);
    QCOMPARE(job.bytes.last(), 2 * (2 * MiB + 512));
    QCOMPARE(job.report().wipedSectors, quint64((2 * MiB + 512) / 512));
}

void tst_DiskWipeWorker::failedFlushFailsThePass()
{
    for (const bool hasVolume : {false, true}) {
        MemoryDevices memory;
        memory.addDrive(markedDrive(0, MiB));
        if (hasVolume)
            memory.addVolume(u"E:"_s, 0, 0, MiB);
        FaultPlan plan(FaultPlan::Flush, 1, platform::IoDevice);
        FaultyDevices devices(memory, plan);
        DiskWipeJob job;
        job.chooseDrive(memory.drive(0));
        QVERIFY(!job.run(devices));
        QVERIFY(job.endedProperly());
        const qsizetype at = job.log().indexOf(u"2 刷新写入失败，错误码: 1117"_s);
        QVERIFY(at >= 0);
        QCOMPARE(job.log().at(at + 1), u"2 错误: 设备或介质故障"_s);
        QVERIFY(!job.log().contains(u"0 正在验证..."_s));
        QCOMPARE(job.errors(), QStringList(u"覆写失败"_s));
        QCOMPARE(job.report().wipedSectors, 0ULL);
    }
}

void tst_DiskWipeWorker::memoryThatIsNotToBeHad()
{
    MemoryDevices devices;
    addTwoVolumeDrive(devices);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(3));
    job.task.setBufferSizeMB(std::numeric_limits<qint32>::max());
    QVERIFY(!job.run(devices));
    QCOMPARE(job.events.sliced(job.events.size() - 4),
             QStringList({u"log 0 第 1/1 次覆写 (模式: 0x00)"_s, u"error 内存分配失败"_s, u"error 覆写失败"_s,
                          u"finished 0"_s}));
    QCOMPARE(devices.writes(), 0);
    QCOMPARE(devices.heldLocks(), 0);
    QCOMPARE(devices.openHandles(), 0);
}

void tst_DiskWipeWorker::failedPassEndsTheJob()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, 2 * MiB));
    FaultPlan plan(FaultPlan::Write, 3, platform::IoDevice);
    FaultyDevices devices(memory, plan);
    DiskWipeJob job(WipeMethod::GermanVsitr);
    job.chooseDrive(memory.drive(0));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.events.filter(u"pass "_s), QStringList({u"pass 1/7"_s, u"pass 2/7"_s}));
    QCOMPARE(job.report().wipedSectors, 0ULL);
}

void tst_DiskWipeWorker::openingIsTracedToTheDebugOutput()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(0, MiB));
    {
        DiskWipeJob job;
        job.chooseDrive(memory.drive(0));
        QTest::ignoreMessage(QtDebugMsg, "[DiskWipe] Opening device: \"memory drive 0\"");
        QTest::ignoreMessage(QtDebugMsg, "[DiskWipe] Disk opened successfully");
        QVERIFY(job.run(memory));
    }
    InterposedDevices devices(memory, failing("openDrive"_L1, platform::AccessDenied));
    DiskWipeJob job;
    job.chooseDrive(memory.drive(0));
    QTest::ignoreMessage(QtDebugMsg, "[DiskWipe] CreateFile failed, error: 5");
    QTest::ignoreMessage(QtDebugMsg, "[DiskWipe] planned fault: 5 (system error 0)");
    QVERIFY(!job.run(devices));
}

QUORVEX_SUITE(tst_DiskWipeWorker, QCoreApplication)
#include "tst_diskwipeworker.moc"
