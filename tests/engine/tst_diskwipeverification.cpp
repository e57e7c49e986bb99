#include "diskwipejob.h"
#include "model/units.h"
#include "support/faultplan.h"
#include "support/faultydevices.h"
#include "support/interposeddevices.h"
#include "support/lyingdevices.h"
#include "support/memorydevices.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

void addDriveWithVolumes(MemoryDevices &devices, qint64 firstLength, qint64 secondLength)
{
    devices.addDrive(markedDrive(1, 4 * MiB));
    devices.addVolume(u"E:"_s, 1, 0, firstLength);
    devices.addVolume(u"F:"_s, 1, 2 * MiB, secondLength);
}

// Answers reads by a function of the test.
class ReadingDevices : public platform::ForwardingDevices
{
public:
    using Read =
        std::function<platform::Result<qint64>(platform::RawDevice &target, void *data, qint64 size)>;

    ReadingDevices(platform::Devices &target, Read read)
        : ForwardingDevices(target)
        , m_read(std::move(read))
    {}
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override
    {
        auto target = m_target.openDrive(drive, access);
        if (!target)
            return target.status();
        return std::unique_ptr<platform::RawDevice>(std::make_unique<Drive>(target.take(), m_read));
    }

private:
    class Drive : public platform::ForwardingRawDevice
    {
    public:
        Drive(std::unique_ptr<RawDevice> target, Read read)
            : ForwardingTransfers(std::move(target))
            , m_read(std::move(read))
        {}
        platform::Result<qint64> read(void *data, qint64 size) override
        {
            return m_read(*m_target, data, size);
        }

    private:
        Read m_read;
    };
    Read m_read;
};

platform::Result<qint64> failedRead(platform::RawDevice &, void *, qint64)
{
    return platform::Status{platform::IoDevice, 0, "planned fault"};
}

platform::Result<qint64> shortRead(platform::RawDevice &target, void *data, qint64 size)
{
    const auto count = target.read(data, size);
    return count ? platform::Result<qint64>(count.value() - 1) : count;
}

platform::Result<qint64> emptyRead(platform::RawDevice &, void *, qint64)
{
    return qint64(0);
}

// Reports success without delivering a byte.
platform::Result<qint64> idleRead(platform::RawDevice &, void *, qint64 size)
{
    return size;
}
} // namespace

class tst_DiskWipeVerification : public QObject
{
    Q_OBJECT

private slots:
    void sampleOffsetsAreReduced_data();
    void sampleOffsetsAreReduced();
    void samplesAreReadFromTheWholeDrive();
    void samplesAreReadThroughTheFirstVolume();
    void smallFirstVolumeIsVerified();
    void volumeThatEndsWithinASectorIsVerified();
    void volumeWithLargerSectorsThanItsDriveIsVerified();
    void samplesLieWithinTheFirstVolumesShare();
    void volumeOfUnknownLengthIsVerifiedWhereItWasWritten();
    void nothingIsReadWhenSwitchedOff();
    void nothingIsReadAfterAStop_data();
    void nothingIsReadAfterAStop();
    void stopBetweenTwoSamples();
    void nothingIsReadWithoutSamples_data();
    void nothingIsReadWithoutSamples();
    void readThatDeliversNothingIsFound_data();
    void readThatDeliversNothingIsFound();
    void laterReadThatDeliversNothingIsFound();
    void complementReadFailureIsFound();
    void failedSeekIsFound();
    void droppedWriteIsFound_data();
    void droppedWriteIsFound();
    void droppedVolumeWriteIsFound();
    void driveThatEndsBeforeItsSizeIsFound();
    void wrappingDriveLooksLikeAWipedOne();
    void uncoveredVolumeEndIsFound();
    void unreducedOffsetIsNamed();
    void hashIsOverOffsetsAndSamples();
    void samplesOfSeveralPassesAreAddedUp();
    void failedVerificationReportsWhatWasRead();
    void nothingReadBackIsReportedAsNothing();
    void wipedSectorsOfTheLeastPass();
    void wipedSectorsBeforeTheLastPass();
    void wipedSectorsAfterAFailedSeek();
    void wipedSectorsOfTwoVolumesStoppedInBetween();
    void volumeAfterAStopIsNotBegun();
    void wipedSectorsNeverExceedTheDisk();
};

void tst_DiskWipeVerification::sampleOffsetsAreReduced_data()
{
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<qint64>("span");
    QTest::addColumn<qint64>("length");
    QTest::addColumn<qint64>("expected");
    const auto row = [](const char *name, qint64 offset, qint64 span, qint64 length, qint64 expected) {
        QTest::newRow(name) << offset << span << length << expected;
    };
    row("within", 1024, 8192, 8192, 1024);
    row("last sector", 7680, 8192, 8192, 7680);
    row("beyond the span", 8192 + 512, 8192, 8192, 512);
    row("beyond the length", 5120, 8192, 4096, 1024);
    row("beyond both", 8192 + 5120, 8192, 4096, 1024);
    row("length unknown", 5120, 8192, 0, 5120);
    row("span of one and a half sectors", 512, 768, 4096, 512);
    row("span below a sector", 1024, 300, 4096, 0);
    row("rounded down", 1024, 1000, 4096, 0);
    row("length ends within a sector", 512, 8192, 1000, 0);
    row("length below a sector", 512, 8192, 100, 512);
}

void tst_DiskWipeVerification::sampleOffsetsAreReduced()
{
    QFETCH(qint64, offset);
    QFETCH(qint64, span);
    QFETCH(qint64, length);
    QFETCH(qint64, expected);
    QCOMPARE(DiskVerification::reducedOffset(offset, span, length, 512), expected);
}

namespace {
// The sample positions of a job that writes one pass. Its reads follow the last flush.
struct SampleReads
{
    InterposedDevices::Before before()
    {
        return [this](const DeviceCall &call) {
            if (call.kind == FaultPlan::Seek)
                lastSeek = call.argument;
            if (call.kind == FaultPlan::Read) {
                positions += lastSeek;
                sizes += call.argument;
                targets += call.target;
            }
            return platform::Status{};
        };
    }
    qint64 lastSeek = -1;
    QList<qint64> positions;
    QList<qint64> sizes;
    QStringList targets;
};
} // namespace

void tst_DiskWipeVerification::samplesAreReadFromTheWholeDrive()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 16 * KiB));
    SampleReads reads;
    InterposedDevices devices(memory, reads.before());
    DiskWipeJob job;
    job.task.setVerifySampleSize(1000);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(reads.positions.size(), 1000);
    QCOMPARE(reads.sizes.count(512), 1000);
    // 32 sectors: the chance that one of them is missed by 1000 draws is below 10^-12.
    for (qint64 sector = 0; sector < 32; ++sector)
        QVERIFY(reads.positions.contains(sector * 512));
    QCOMPARE(*std::max_element(reads.positions.begin(), reads.positions.end()), 31 * 512);
}

void tst_DiskWipeVerification::samplesAreReadThroughTheFirstVolume()
{
    MemoryDevices memory;
    addDriveWithVolumes(memory, 2 * MiB, 2 * MiB);
    SampleReads reads;
    InterposedDevices devices(memory, reads.before());
    DiskWipeJob job;
    job.task.setVerifySampleSize(200);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(reads.targets.count(u"E:"_s), 200);
    QVERIFY(*std::max_element(reads.positions.begin(), reads.positions.end()) < 2 * MiB);
}

void tst_DiskWipeVerification::smallFirstVolumeIsVerified()
{
    MemoryDevices memory;
    addDriveWithVolumes(memory, 512 * 5, 2 * MiB);
    SampleReads reads;
    InterposedDevices devices(memory, reads.before());
    DiskWipeJob job;
    job.task.setVerifySampleSize(500);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(reads.positions.size(), 500);
    for (qint64 sector = 0; sector < 5; ++sector)
        QVERIFY(reads.positions.contains(sector * 512));
    QCOMPARE(*std::max_element(reads.positions.begin(), reads.positions.end()), 4 * 512);
}

void tst_DiskWipeVerification::volumeThatEndsWithinASectorIsVerified()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    memory.addVolume(u"E:"_s, 1, 0, 1000);
    SampleReads reads;
    InterposedDevices devices(memory, reads.before());
    DiskWipeJob job;
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    // The second sector is incomplete.
    QCOMPARE(reads.positions, QList<qint64>(20, 0));
    QCOMPARE(job.report().wipedSectors, 1ULL);
}

void tst_DiskWipeVerification::volumeWithLargerSectorsThanItsDriveIsVerified()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    memory.addVolume(u"E:"_s, 1, 0, MiB);
    memory.volume(u"E:"_s).sectorSize = 4096;
    SampleReads reads;
    InterposedDevices devices(memory, reads.before());
    DiskWipeJob job;
    job.task.setVerifySampleSize(200);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(reads.positions.size(), 200);
    for (const qint64 position : std::as_const(reads.positions))
        QCOMPARE(position % 4096, 0);
    QCOMPARE(job.report().verificationSampleSize, 200);
}

void tst_DiskWipeVerification::samplesLieWithinTheFirstVolumesShare()
{
    // With two volumes the first one stands for half of the drive, although it is larger.
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, 3 * MiB);
    memory.addVolume(u"F:"_s, 1, 3 * MiB, MiB);
    SampleReads reads;
    InterposedDevices devices(memory, reads.before());
    DiskWipeJob job;
    job.task.setVerifySampleSize(400);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(reads.targets.count(u"E:"_s), 400);
    const qint64 largest = *std::max_element(reads.positions.begin(), reads.positions.end());
    QVERIFY(largest < 2 * MiB);
    QVERIFY(largest >= MiB); // fails once in 2^400
}

void tst_DiskWipeVerification::volumeOfUnknownLengthIsVerifiedWhereItWasWritten()
{
    // The volume stands for half of the drive, but ends after an eighth.
    MemoryDevices memory;
    addDriveWithVolumes(memory, 512 * KiB, 2 * MiB);
    SampleReads reads;
    InterposedDevices devices(memory, [&reads](const DeviceCall &call) {
        if (call.method == "length"_L1 && call.target == u"E:"_s)
            return platform::Status{platform::NotSupported, 0, "planned fault"};
        return reads.before()(call);
    });
    DiskWipeJob job;
    job.task.setVerifySampleSize(200);
    job.chooseDrive(memory.drive(1));
    QVERIFY2(job.run(devices), qPrintable(job.log().join(u'\n')));
    QVERIFY(job.log().contains(u"0 使用估算卷大小: 2.00 MB"_s));
    QCOMPARE(reads.positions.size(), 200);
    const qint64 largest = *std::max_element(reads.positions.begin(), reads.positions.end());
    QVERIFY(largest < 512 * KiB);
    QVERIFY(largest >= 256 * KiB); // fails once in 2^200
}

void tst_DiskWipeVerification::nothingIsReadWhenSwitchedOff()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    SampleReads reads;
    InterposedDevices devices(memory, reads.before());
    DiskWipeJob job;
    job.task.setVerifyAfterWipe(false);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QVERIFY(job.log().filter(u"验证"_s).isEmpty());
    QVERIFY(reads.positions.isEmpty());
}

void tst_DiskWipeVerification::nothingIsReadAfterAStop_data()
{
    QTest::addColumn<bool>("hasVolume");
    QTest::newRow("drive") << false;
    QTest::newRow("volume") << true;
}

void tst_DiskWipeVerification::nothingIsReadAfterAStop()
{
    QFETCH(bool, hasVolume);
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    if (hasVolume)
        memory.addVolume(u"E:"_s, 1, 0, MiB);
    DiskWipeJob job;
    SampleReads reads;
    InterposedDevices devices(memory, [&](const DeviceCall &call) {
        if (call.kind == FaultPlan::Flush)
            job.worker.stop(); // the pass is written by now
        return reads.before()(call);
    });
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QVERIFY(memory.medium(1) == QByteArray(MiB, '\0'));
    QVERIFY(!job.log().contains(u"0 正在验证..."_s));
    QVERIFY(reads.positions.isEmpty());
    QCOMPARE(job.log().last(), u"1 擦除已取消"_s);
}

void tst_DiskWipeVerification::stopBetweenTwoSamples()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    DiskWipeJob job;
    SampleReads reads;
    InterposedDevices devices(memory, [&](const DeviceCall &call) {
        const platform::Status status = reads.before()(call);
        if (reads.positions.size() == 3)
            job.worker.stop();
        return status;
    });
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(reads.positions.size(), 3);
    QCOMPARE(job.log().last(2), QStringList({u"0 正在验证..."_s, u"1 擦除已取消"_s}));
    QCOMPARE(job.report().verificationSampleSize, 3);
}

void tst_DiskWipeVerification::nothingIsReadWithoutSamples_data()
{
    QTest::addColumn<int>("samples");
    QTest::newRow("0") << 0;
    QTest::newRow("negative") << -5;
}

void tst_DiskWipeVerification::nothingIsReadWithoutSamples()
{
    QFETCH(int, samples);
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    SampleReads reads;
    InterposedDevices devices(memory, reads.before());
    DiskWipeJob job;
    job.task.setVerifySampleSize(samples);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QVERIFY(reads.positions.isEmpty());
    QCOMPARE(job.report().verificationSampleSize, 0);
    QCOMPARE(job.report().verificationMethod, QString());
    QCOMPARE(job.report().dataHash, QString());
}

void tst_DiskWipeVerification::readThatDeliversNothingIsFound_data()
{
    QTest::addColumn<int>("pattern");
    QTest::addColumn<int>("reading");
    const QList<QByteArray> patterns{"Zeros", "Ones", "Random", "Custom"};
    const QList<QByteArray> readings{"failed", "short", "empty", "idle"};
    for (int pattern = 0; pattern < patterns.size(); ++pattern) {
        for (int reading = 0; reading < readings.size(); ++reading)
            QTest::newRow(patterns[pattern] + ", " + readings[reading]) << pattern << reading;
    }
}

void tst_DiskWipeVerification::readThatDeliversNothingIsFound()
{
    QFETCH(int, pattern);
    QFETCH(int, reading);
    const std::array<ReadingDevices::Read, 4> readings{failedRead, shortRead, emptyRead, idleRead};
    for (const int value : {0x00, 0xFF, 0x5A}) {
        MemoryDevices memory;
        memory.addDrive(markedDrive(1, MiB));
        ReadingDevices devices(memory, readings[static_cast<std::size_t>(reading)]);
        DiskWipeJob job;
        job.setPasses({{static_cast<PatternType>(pattern), static_cast<quint8>(value), true}});
        job.chooseDrive(memory.drive(1));
        QVERIFY(!job.run(devices));
        QVERIFY(job.endedProperly());
        QCOMPARE(job.log().filter(u"2 验证失败，位置: "_s).size(), 1);
        QVERIFY(!job.log().contains(u"0 验证通过"_s));
        QCOMPARE(job.errors(), QStringList(u"覆写失败"_s));
        // The written sectors count, whatever the verification finds.
        QCOMPARE(job.report().wipedSectors, quint64(MiB / 512));
    }
}

void tst_DiskWipeVerification::laterReadThatDeliversNothingIsFound()
{
    // The previous sample must not pass for the missing one.
    for (const PatternType type : {PatternType::Zeros, PatternType::Random}) {
        MemoryDevices memory;
        memory.addDrive(markedDrive(1, MiB));
        int reads = 0;
        ReadingDevices devices(memory, [&reads](platform::RawDevice &target, void *data, qint64 size) {
            return ++reads < 4 ? target.read(data, size) : idleRead(target, data, size);
        });
        DiskWipeJob job;
        job.setPasses({{type, 0, true}});
        job.chooseDrive(memory.drive(1));
        QVERIFY(!job.run(devices));
        QCOMPARE(reads, 4);
        QCOMPARE(job.log().filter(u"2 验证失败，位置: "_s).size(), 1);
    }
}

void tst_DiskWipeVerification::complementReadFailureIsFound()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    ReadingDevices devices(memory, failedRead);
    DiskWipeJob job;
    job.setPasses({{PatternType::Complement, 0, true}});
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.log().filter(u"2 验证失败，位置: "_s).size(), 1);
}

void tst_DiskWipeVerification::failedSeekIsFound()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    FaultPlan plan(FaultPlan::Seek, 4, platform::IoDevice); // 1 chunk, then the third sample
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.log().filter(u"2 验证失败，位置: "_s).size(), 1);
    QCOMPARE(job.report().verificationSampleSize, 2);
}

void tst_DiskWipeVerification::droppedWriteIsFound_data()
{
    QTest::addColumn<int>("write");
    for (int write = 1; write <= 4; ++write)
        QTest::addRow("%d", write) << write;
}

void tst_DiskWipeVerification::droppedWriteIsFound()
{
    QFETCH(int, write);
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    DroppingDevices devices(memory, write);
    DiskWipeJob job;
    job.task.setVerifySampleSize(1000); // misses a quarter of the drive once in 10^125
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QVERIFY(devices.hasDropped());
    QCOMPARE(job.log().filter(u"2 验证失败，位置: "_s).size(), 1);
}

void tst_DiskWipeVerification::droppedVolumeWriteIsFound()
{
    MemoryDevices memory;
    addDriveWithVolumes(memory, 2 * MiB, 2 * MiB);
    DroppingDevices devices(memory, 2);
    DiskWipeJob job;
    job.task.setVerifySampleSize(1000);
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.log().filter(u"2 验证失败，位置: "_s).size(), 1);
}

void tst_DiskWipeVerification::driveThatEndsBeforeItsSizeIsFound()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 2 * MiB));
    OverstatedDevices devices(memory, 2 * MiB, 4 * MiB, OverstatedDevices::Hollow);
    DiskWipeJob job;
    job.task.setVerifySampleSize(1000);
    MemoryDrive stated = memory.drive(1);
    stated.sizeBytes = 4 * MiB;
    job.chooseDrive(stated);
    QVERIFY(!job.run(devices));
    QCOMPARE(job.log().filter(u"2 验证失败，位置: "_s).size(), 1);
}

// Every place of such a drive reads back the data last written to it, and its medium is overwritten in full.
// The samples cannot tell it from a drive of the size it reports.
void tst_DiskWipeVerification::wrappingDriveLooksLikeAWipedOne()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 2 * MiB));
    OverstatedDevices devices(memory, 2 * MiB, 4 * MiB + 512, OverstatedDevices::Wrapping);
    DiskWipeJob job;
    MemoryDrive stated = memory.drive(1);
    stated.sizeBytes = 4 * MiB + 512;
    job.chooseDrive(stated);
    QVERIFY(job.run(devices));
    QVERIFY(memory.medium(1) == QByteArray(2 * MiB, '\0'));
}

void tst_DiskWipeVerification::uncoveredVolumeEndIsFound()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, 4 * MiB);
    FaultPlan plan(FaultPlan::Write, 3, platform::SectorNotFound); // ends the volume after half of it
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.task.setVerifySampleSize(1000);
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QVERIFY(job.log().contains(u"1 卷 1 有 2.00 MB 未被覆写"_s));
    QCOMPARE(job.log().filter(u"2 验证失败，位置: "_s).size(), 1);
    QCOMPARE(job.report().wipedSectors, quint64(2 * MiB / 512));
}

void tst_DiskWipeVerification::unreducedOffsetIsNamed()
{
    // One sector can be read through the volume, while the drawn offsets cover the whole disk.
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 4 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, 512);
    qint64 largest = 0;
    for (int i = 0; i < 40 && largest < 512; ++i) {
        SampleReads reads;
        InterposedDevices devices(memory, [&reads](const DeviceCall &call) {
            static_cast<void>(reads.before()(call));
            return call.kind == FaultPlan::Read ? platform::Status{platform::IoDevice, 0, "planned fault"}
                                                : platform::Status{};
        });
        DiskWipeJob job;
        job.chooseDrive(memory.drive(1));
        QVERIFY(!job.run(devices));
        QCOMPARE(reads.positions, QList<qint64>({0}));
        largest = job.log().filter(u"验证失败"_s).first().section(u": "_s, 1).toLongLong();
    }
    QVERIFY(largest >= 512);
    QCOMPARE(largest % 512, 0);
}

void tst_DiskWipeVerification::hashIsOverOffsetsAndSamples()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 2 * MiB));
    SampleReads reads;
    InterposedDevices devices(memory, reads.before());
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    job.task.setVerifySampleSize(50);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const qint64 position : reads.positions) {
        QByteArray prefix(8, '\0');
        qToLittleEndian(quint64(position), prefix.data());
        hash.addData(prefix);
        hash.addData(memory.medium(1).sliced(position, 512));
    }
    QCOMPARE(job.report().dataHash, QString::fromLatin1(hash.result().toHex()));
    QCOMPARE(job.report().dataHash.size(), 64);
    QCOMPARE(job.report().verificationSampleSize, 50);
    QCOMPARE(job.report().verificationMethod, u"random sampling, 50 sectors"_s);
}

void tst_DiskWipeVerification::samplesOfSeveralPassesAreAddedUp()
{
    MemoryDevices devices;
    devices.addDrive(markedDrive(1, 4096));
    DiskWipeJob job;
    job.setPasses({{PatternType::Ones, 0xFF, true}, {PatternType::Random}, {PatternType::Zeros, 0, true}});
    job.chooseDrive(devices.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(job.log().count(u"0 验证通过"_s), 2);
    QCOMPARE(job.report().verificationSampleSize, 40);
    QCOMPARE(job.report().verificationMethod, u"random sampling, 20 sectors"_s);
}

void tst_DiskWipeVerification::failedVerificationReportsWhatWasRead()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    FaultPlan plan(FaultPlan::Read, 8, platform::IoDevice);
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.report().verificationSampleSize, 7);
    QCOMPARE(job.report().verificationMethod, u"random sampling, 7 sectors"_s);
    QCOMPARE(job.report().dataHash.size(), 64);
}

void tst_DiskWipeVerification::nothingReadBackIsReportedAsNothing()
{
    // A new report has 1000 samples.
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, MiB));
    FaultPlan plan(FaultPlan::Read, 1, platform::IoDevice);
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    QCOMPARE(job.report().verificationSampleSize, 1000);
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.report().verificationSampleSize, 0);
    QCOMPARE(job.report().verificationMethod, QString());
    QCOMPARE(job.report().dataHash, QString());

    DiskWipeJob refused;
    DiskInfo disk;
    disk.isSystemDisk = true;
    refused.task.setDisk(disk);
    QVERIFY(!refused.run(memory));
    QCOMPARE(refused.report().verificationSampleSize, 0);
    QCOMPARE(refused.report().wipedSectors, 0ULL);
}

void tst_DiskWipeVerification::wipedSectorsOfTheLeastPass()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 3 * MiB));
    FaultPlan plan(FaultPlan::Write, 5, platform::IoDevice); // second chunk of the second and last pass
    FaultyDevices devices(memory, plan);
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.report().wipedSectors, quint64(MiB / 512));
}

void tst_DiskWipeVerification::wipedSectorsBeforeTheLastPass()
{
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 3 * MiB));
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    InterposedDevices devices(memory, [&job](const DeviceCall &call) {
        if (call.kind == FaultPlan::Flush)
            job.worker.stop(); // the first pass is complete
        return platform::Status{};
    });
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QVERIFY(memory.medium(1) == QByteArray(3 * MiB, '\0'));
    QCOMPARE(job.events.filter(u"pass "_s), QStringList(u"pass 1/2"_s));
    QCOMPARE(job.report().wipedSectors, 0ULL);
}

void tst_DiskWipeVerification::wipedSectorsAfterAFailedSeek()
{
    // After a failed seek the start position of the volume is unknown; here it is the volume's start.
    MemoryDevices memory;
    memory.addDrive(markedDrive(1, 2 * MiB));
    memory.addVolume(u"E:"_s, 1, 0, 2 * MiB);
    FaultPlan plan(FaultPlan::Seek, 1, platform::IoDevice);
    FaultyDevices devices(memory, plan);
    DiskWipeJob job;
    job.task.setVerifyAfterWipe(false);
    job.chooseDrive(memory.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(plan.fired(), 1);
    QVERIFY(memory.medium(1) == QByteArray(2 * MiB, '\0'));
    QCOMPARE(job.report().wipedSectors, 0ULL);
    QVERIFY(job.log().contains(u"1 卷 1 有 2.00 MB 未被覆写"_s));
}

void tst_DiskWipeVerification::wipedSectorsOfTwoVolumesStoppedInBetween()
{
    MemoryDevices memory;
    addDriveWithVolumes(memory, 2 * MiB, 2 * MiB);
    DiskWipeJob job;
    job.task.setOperationType(PartitionWipe);
    int writes = 0;
    InterposedDevices devices(memory, [&](const DeviceCall &call) {
        if (call.kind == FaultPlan::Write && ++writes == 3)
            job.worker.stop(); // during the first chunk of the second volume
        return platform::Status{};
    });
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.log().last(), u"1 擦除已取消"_s);
    QVERIFY(job.log().contains(u"0 卷 2 擦除完成，已写入: 1.00 MB"_s));
    QVERIFY(job.errors().isEmpty());
    QCOMPARE(job.report().wipedSectors, quint64(3 * MiB / 512));
    QCOMPARE(memory.heldLocks(), 0);
}

void tst_DiskWipeVerification::volumeAfterAStopIsNotBegun()
{
    MemoryDevices memory;
    addDriveWithVolumes(memory, 2 * MiB, 2 * MiB);
    DiskWipeJob job;
    InterposedDevices devices(memory, [&job](const DeviceCall &call) {
        if (call.kind == FaultPlan::Flush)
            job.worker.stop(); // the first volume is complete
        return platform::Status{};
    });
    job.chooseDrive(memory.drive(1));
    QVERIFY(!job.run(devices));
    QCOMPARE(job.log().last(2), QStringList({u"0 卷 1 擦除完成，已写入: 2.00 MB"_s, u"1 擦除已取消"_s}));
    QCOMPARE(job.report().wipedSectors, quint64(2 * MiB / 512));
}

void tst_DiskWipeVerification::wipedSectorsNeverExceedTheDisk()
{
    // Two names for one volume, as after a second mount on Windows.
    MemoryDevices devices;
    devices.addDrive(markedDrive(1, MiB));
    devices.addVolume(u"E:"_s, 1, 0, MiB);
    devices.addVolume(u"F:"_s, 1, 0, MiB);
    DiskWipeJob job;
    job.chooseDrive(devices.drive(1));
    QVERIFY(job.run(devices));
    QCOMPARE(job.report().wipedSectors, quint64(MiB / 512));
}

QUORVEX_SUITE(tst_DiskWipeVerification, QCoreApplication)
#include "tst_diskwipeverification.moc"
