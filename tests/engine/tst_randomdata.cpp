#include "diskwipejob.h"
#include "engine/patterngenerator.h"
#include "filejob.h"
#include "model/units.h"
#include "support/fipsblocks.h"
#include "support/memorydevices.h"
#include "support/suite.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QCoreApplication>
#include <QFile>
#include <QList>
#include <QTest>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <random>
#include <vector>

namespace {

const PassPattern randomPass{.type = PatternType::Random};

// On a drive of this size chance lets at least one block fail.
constexpr qint64 DriveSize = 80 * MiB;

// The number of 16-byte pieces, beginning at every eighth byte, that stand more than once in the data.
// Without one, blocks of every size differ. Each is two words of the generator, so that by chance none does.
qint64 repeatedPieces(const QList<QByteArray> &data)
{
    constexpr qsizetype Step = 8;
    std::vector<std::array<quint64, 2>> pieces;
    for (const QByteArray &bytes : data) {
        for (qsizetype offset = 0; offset + 2 * Step <= bytes.size(); offset += Step) {
            std::array<quint64, 2> piece;
            std::memcpy(piece.data(), bytes.constData() + offset, sizeof(piece));
            pieces.push_back(piece);
        }
    }
    std::ranges::sort(pieces);
    qint64 repeated = 0;
    for (std::size_t i = 1; i < pieces.size(); ++i)
        repeated += pieces[i] == pieces[i - 1];
    return repeated;
}

bool isWithinChance(const fips::Count &count)
{
    const fips::Bounds bounds = fips::boundsFor(count.blocks);
    return bounds.least <= count.failed && count.failed <= bounds.most;
}

QByteArray generated(quint32 seed, qint64 size)
{
    QByteArray bytes(size, '\0');
    PatternGenerator(seed).fill(reinterpret_cast<std::byte *>(bytes.data()), size);
    return bytes;
}

// What the medium holds after each pass of a wipe with random passes only; empty after a failure.
QList<QByteArray> passesOf(MemoryDevices &devices, int passes)
{
    DiskWipeJob job;
    job.chooseDrive(devices.drive(1));
    job.setPasses(QList<PassPattern>(passes, randomPass));
    QList<QByteArray> media;
    QObject::connect(
        &job.worker, &BaseWipeWorker::passChanged, &job,
        [&](int pass) {
            if (pass > 1)
                media += QByteArray(devices.medium(1).constData(), devices.medium(1).size());
        },
        Qt::DirectConnection);
    if (!job.run(devices))
        return {};
    media += devices.medium(1);
    return media;
}

} // namespace

// The data of random passes: what it is made of, and that none of it is written twice. The seeds are of 32
// bits, so that two jobs have the same one by chance once in four thousand million.
class tst_RandomData : public QObject
{
    Q_OBJECT

private slots:
    void referenceGivesThePublishedOutput();
    void generatorIsTheMersenneTwister();
    void nothingOnADriveStandsTwice_data();
    void nothingOnADriveStandsTwice();
    void nothingInTwoFilesStandsTwice();
    void repetitionsAreSeen();
    void limitsOfTheBlocks();
    void driveFailsAsManyBlocksAsChance();
    void badGeneratorsFailMoreOrFewerBlocks_data();
    void badGeneratorsFailMoreOrFewerBlocks();
    void boundsGrowWithTheBlocks();
};

void tst_RandomData::referenceGivesThePublishedOutput()
{
    std::mt19937 reference;
    reference.discard(9999);
    QCOMPARE(reference(), 4123659995U);
}

void tst_RandomData::generatorIsTheMersenneTwister()
{
    for (const quint32 seed : {0U, 1U, 5489U, 0x80000000U, 0xFFFFFFFFU}) {
        std::seed_seq sequence({seed});
        std::mt19937 reference(sequence);
        PatternGenerator ours(seed);
        for (int i = 0; i < 10000; ++i)
            QCOMPARE(ours.generate(), reference());
    }
}

void tst_RandomData::nothingOnADriveStandsTwice_data()
{
    QTest::addColumn<bool>("throughVolumes");
    QTest::newRow("the drive itself") << false;
    QTest::newRow("through its volumes") << true; // the first ends in the middle of a chunk
}

void tst_RandomData::nothingOnADriveStandsTwice()
{
    QFETCH(bool, throughVolumes);
    constexpr qint64 Size = 8 * MiB;
    constexpr qint64 First = 3 * MiB + 512;
    QList<QByteArray> media;
    for (int job = 0; job < 2; ++job) {
        MemoryDevices devices;
        devices.addDrive(MemoryDrive(1, Size));
        if (throughVolumes) {
            devices.addVolume(QStringLiteral("first"), 1, 0, First);
            devices.addVolume(QStringLiteral("second"), 1, First, Size - First);
        }
        const QList<QByteArray> passes = passesOf(devices, 2);
        QCOMPARE(passes.size(), 2);
        media += passes;
    }
    QCOMPARE(repeatedPieces(media), 0);
}

// Each file of a job has a generator of its own, and so has each of its threads.
void tst_RandomData::nothingInTwoFilesStandsTwice()
{
    FileJob job;
    job.task.setThreadCount(2);
    job.setPasses({randomPass});
    const QString first = job.makeFile(QStringLiteral("first"), 2 * MiB);
    const QString second = job.makeFile(QStringLiteral("second"), 2 * MiB + 7);
    QList<QByteArray> contents;
    job.said.onLine = [&](const QString &line) {
        if (line != said::deleting)
            return;
        for (const QString &path : {first, second}) {
            QFile file(path);
            if (file.open(QIODevice::ReadOnly))
                contents += file.readAll();
        }
    };
    QVERIFY(job.run({first, second}));
    QCOMPARE(contents.size(), 2);
    QCOMPARE(contents.first().size(), 2 * MiB);
    QCOMPARE(repeatedPieces(contents), 0);
}

void tst_RandomData::repetitionsAreSeen()
{
    const QByteArray data = generated(1, MiB);
    QCOMPARE(repeatedPieces({data}), 0);
    // The same job again, a chunk in place of the next, one sector, and 16 bytes at an odd place.
    QVERIFY(repeatedPieces({data, generated(1, MiB)}) > 100000);
    QVERIFY(repeatedPieces({data.first(MiB / 2) + data.first(MiB / 2)}) > 60000);
    QVERIFY(repeatedPieces({data + data.sliced(512 * 77, 512)}) > 60);
    QCOMPARE(repeatedPieces({data + data.sliced(8 * 3333, 16)}), 1);
    QVERIFY(repeatedPieces({QByteArray(MiB, '\x5A')}) > 100000);
}

void tst_RandomData::limitsOfTheBlocks()
{
    // The first bits of a byte are its lowest.
    const auto withOnes = [](qsizetype from, qsizetype count, char before) {
        QByteArray block(fips::BlockBytes, before);
        for (qsizetype bit = from; bit < from + count; ++bit)
            block[bit / 8] = static_cast<char>(static_cast<unsigned char>(block[bit / 8]) | 1U << (bit % 8));
        return block;
    };
    QVERIFY(fips::failuresOf(withOnes(0, 9725, '\0')).monobit);
    QVERIFY(!fips::failuresOf(withOnes(0, 9726, '\0')).monobit);
    QVERIFY(!fips::failuresOf(withOnes(0, 10274, '\0')).monobit);
    QVERIFY(fips::failuresOf(withOnes(0, 10275, '\0')).monobit);
    // A byte 0x55 before and behind ends with a zero and begins with a one; 0x33 begins with two.
    QVERIFY(!fips::failuresOf(withOnes(80, 24, '\x55')).longRun); // 25 ones
    QVERIFY(fips::failuresOf(withOnes(80, 24, '\x33')).longRun);  // 26 ones
    // Every half byte about as often as the others is too even for chance; a twentieth more or less is not.
    const auto withCounts = [](int spread) {
        QByteArray block;
        for (int value = 0; value < 16; ++value)
            block.append(156 + (value % 2 == 0 ? spread : -spread), static_cast<char>(value * 0x11));
        return block.leftJustified(fips::BlockBytes, '\xFF');
    };
    QVERIFY(fips::failuresOf(withCounts(0)).poker);
    QVERIFY(!fips::failuresOf(withCounts(8)).poker);
    QVERIFY(fips::failuresOf(withCounts(16)).poker);
    const fips::Failures good = fips::failuresOf(generated(1, fips::BlockBytes));
    QVERIFY(!good.any());
    const fips::Failures even = fips::failuresOf(QByteArray(fips::BlockBytes, '\x55'));
    QVERIFY(!even.monobit && even.poker && even.runs && !even.longRun);
}

void tst_RandomData::driveFailsAsManyBlocksAsChance()
{
    MemoryDevices devices;
    devices.addDrive(MemoryDrive(1, DriveSize));
    const QList<QByteArray> passes = passesOf(devices, 1);
    QCOMPARE(passes.size(), 1);
    fips::Count count;
    count.add(passes.first());
    QCOMPARE(count.blocks, DriveSize / fips::BlockBytes);
    const fips::Bounds bounds = fips::boundsFor(count.blocks);
    QVERIFY(bounds.least > 0);
    qInfo("%s; by chance %lld to %lld", count.text().constData(), bounds.least, bounds.most);
    QVERIFY2(isWithinChance(count), count.text().constData());
}

void tst_RandomData::badGeneratorsFailMoreOrFewerBlocks_data()
{
    QTest::addColumn<QByteArray>("data");
    constexpr qint64 Size = 8 * MiB;
    const auto changed = [](auto change) {
        QByteArray bytes = generated(7, Size);
        for (qsizetype i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<char>(change(static_cast<unsigned char>(bytes[i]), i));
        return bytes;
    };

    QTest::newRow("one byte") << QByteArray(Size, '\x5A');
    QTest::newRow("zeros") << QByteArray(Size, '\0');
    // Seen only where chance lets some blocks fail.
    QTest::newRow("one block for ever")
        << generated(7, fips::BlockBytes).repeated(DriveSize / fips::BlockBytes);
    QTest::newRow("words of a counter") << changed(
        [](unsigned, qsizetype i) { return i % 8 < 4 ? static_cast<unsigned>(i / 8) >> (8 * (i % 4)) : 0U; });
    QTest::newRow("the highest bit never set")
        << changed([](unsigned byte, qsizetype) { return byte & 0x7FU; });
    QTest::newRow("hexadecimal digits") << changed(
        [](unsigned byte, qsizetype) { return static_cast<unsigned>("0123456789abcdef"[byte & 0x0FU]); });
    // Every 40th byte is 0xFF.
    QTest::newRow("51 percent ones") << changed(
        [](unsigned byte, qsizetype i) { return i % 40 == 0 ? 0xFFU : byte; });
    QTest::newRow("one sector of five hundred not written")
        << changed([](unsigned byte, qsizetype i) { return i / 512 % 500 == 0 ? 0U : byte; });
}

void tst_RandomData::badGeneratorsFailMoreOrFewerBlocks()
{
    QFETCH(QByteArray, data);
    fips::Count count;
    count.add(data);
    QVERIFY2(!isWithinChance(count), count.text().constData());
}

void tst_RandomData::boundsGrowWithTheBlocks()
{
    const fips::Bounds few = fips::boundsFor(1000);
    const fips::Bounds many = fips::boundsFor(100000);
    QCOMPARE(few.least, 0);
    QVERIFY(few.most > 0 && few.most < 20);
    QVERIFY(many.least > 20 && many.least < 80);
    QVERIFY(many.most > 80 && many.most < 200);
}

QUORVEX_SUITE(tst_RandomData, QCoreApplication)
#include "tst_randomdata.moc"
