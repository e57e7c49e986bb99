#include "engine/wipecoverage.h"
#include "model/units.h"
#include "support/suite.h"

#include <QTest>

#include <initializer_list>

namespace {
constexpr qint64 DriveSize = 100 * KiB;

QList<platform::Extent> onDrive(std::initializer_list<ByteRanges::Range> ranges)
{
    QList<platform::Extent> extents;
    for (const ByteRanges::Range &range : ranges)
        extents.append({1, range.begin, range.length()});
    return extents;
}

ByteRanges ranges(std::initializer_list<ByteRanges::Range> list)
{
    ByteRanges ranges;
    for (const ByteRanges::Range &range : list)
        ranges.add(range);
    return ranges;
}
} // namespace

class tst_WipeCoverage : public QObject
{
    Q_OBJECT

private slots:
    void rangesJoin_data();
    void rangesJoin();
    void rangesInCommon();
    void nothingBeforeTheLastPassHasEnded();
    void onlyWhatEveryPassReachedCounts();
    void twoNamesForOneVolumeCountOnce();
    void overlappingVolumesCountOnce();
    void volumeOfSeveralExtents();
    void extentsOfOtherDrivesDoNotCount();
    void volumeInsideItsExtentsCountsByItsAmount();
    void volumeThatAPassDidNotReach();
    void placesBeyondTheDrive();
    void amountsBeyondTheDrive();
    void lessThanASectorIsRounding();
};

void tst_WipeCoverage::rangesJoin_data()
{
    using List = QList<ByteRanges::Range>;
    QTest::addColumn<List>("added");
    QTest::addColumn<List>("joined");
    QTest::newRow("apart, unsorted") << List{{30, 40}, {10, 20}} << List{{10, 20}, {30, 40}};
    QTest::newRow("touching") << List{{10, 20}, {20, 30}} << List{{10, 30}};
    QTest::newRow("touching from below") << List{{20, 30}, {10, 20}} << List{{10, 30}};
    QTest::newRow("over several") << List{{10, 20}, {30, 40}, {50, 60}, {15, 55}} << List{{10, 60}};
    QTest::newRow("inside") << List{{10, 60}, {20, 30}} << List{{10, 60}};
    QTest::newRow("empty or backwards") << List{{10, 10}, {30, 20}} << List{};
}

void tst_WipeCoverage::rangesJoin()
{
    QFETCH(QList<ByteRanges::Range>, added);
    QFETCH(QList<ByteRanges::Range>, joined);
    ByteRanges all;
    for (const ByteRanges::Range &range : std::as_const(added))
        all.add(range);
    QVERIFY(all.ranges() == joined);
}

void tst_WipeCoverage::rangesInCommon()
{
    const ByteRanges both = ranges({{0, 20}, {30, 50}, {60, 70}}).intersected(ranges({{10, 40}, {70, 90}}));
    QVERIFY(both.ranges() == QList<ByteRanges::Range>({{10, 20}, {30, 40}}));
    QCOMPARE(both.length(), 20);
}

void tst_WipeCoverage::nothingBeforeTheLastPassHasEnded()
{
    WipeCoverage coverage;
    QCOMPARE(coverage.bytes(1, DriveSize), 0);
    coverage.beginPass();
    coverage.addStretch(0, DriveSize);
    coverage.endPass();
    QCOMPARE(coverage.bytes(2, DriveSize), 0);
    QCOMPARE(coverage.bytes(1, DriveSize), DriveSize);
}

void tst_WipeCoverage::onlyWhatEveryPassReachedCounts()
{
    WipeCoverage coverage;
    for (const qint64 reached : {50 * KiB, 20 * KiB, 80 * KiB}) {
        coverage.beginPass();
        coverage.addStretch(0, reached);
        coverage.endPass();
    }
    QCOMPARE(coverage.bytes(3, DriveSize), 20 * KiB);
}

void tst_WipeCoverage::twoNamesForOneVolumeCountOnce()
{
    WipeCoverage coverage;
    coverage.beginPass();
    coverage.addVolume(0, onDrive({{10 * KiB, 30 * KiB}}), {20 * KiB, 20 * KiB});
    coverage.addVolume(1, onDrive({{10 * KiB, 30 * KiB}}), {20 * KiB, 20 * KiB});
    coverage.endPass();
    QCOMPARE(coverage.bytes(1, DriveSize), 20 * KiB);
    QCOMPARE(coverage.bytesBeyond(DriveSize), 0);
}

void tst_WipeCoverage::overlappingVolumesCountOnce()
{
    WipeCoverage coverage;
    coverage.beginPass();
    coverage.addVolume(0, onDrive({{10 * KiB, 30 * KiB}}), {20 * KiB, 20 * KiB});
    coverage.addVolume(1, onDrive({{20 * KiB, 50 * KiB}}), {30 * KiB, 30 * KiB});
    coverage.endPass();
    QCOMPARE(coverage.bytes(1, DriveSize), 40 * KiB);
}

void tst_WipeCoverage::volumeOfSeveralExtents()
{
    // The second extent of the volume lies before the first one on the drive.
    const auto extents = onDrive({{50 * KiB, 60 * KiB}, {0, 10 * KiB}});
    WipeCoverage coverage;
    coverage.beginPass();
    coverage.addVolume(0, extents, {20 * KiB, 15 * KiB});
    coverage.addStretch(0, 5 * KiB); // the part of the second extent that the volume has covered
    coverage.endPass();
    QCOMPARE(coverage.bytes(1, DriveSize), 15 * KiB);
}

void tst_WipeCoverage::extentsOfOtherDrivesDoNotCount()
{
    WipeCoverage coverage;
    coverage.beginPass();
    coverage.addVolume(0, {{1, 0, 10 * KiB}, {2, 20 * KiB, 10 * KiB}}, {20 * KiB, 20 * KiB});
    coverage.endPass();
    QCOMPARE(coverage.bytes(1, DriveSize), 10 * KiB);
}

void tst_WipeCoverage::volumeInsideItsExtentsCountsByItsAmount()
{
    // Two logical volumes on one partition.
    const auto partition = onDrive({{0, 60 * KiB}});
    WipeCoverage coverage;
    coverage.beginPass();
    coverage.addVolume(0, partition, {20 * KiB, 20 * KiB});
    coverage.addVolume(1, partition, {30 * KiB, 25 * KiB});
    coverage.endPass();
    coverage.beginPass();
    coverage.addVolume(0, partition, {20 * KiB, 20 * KiB});
    coverage.addVolume(1, partition, {30 * KiB, 5 * KiB});
    coverage.endPass();
    QCOMPARE(coverage.bytes(2, DriveSize), 25 * KiB);
}

void tst_WipeCoverage::volumeThatAPassDidNotReach()
{
    const auto partition = onDrive({{0, 60 * KiB}});
    const auto plain = onDrive({{60 * KiB, 70 * KiB}});
    WipeCoverage coverage;
    coverage.beginPass();
    coverage.addVolume(0, partition, {20 * KiB, 20 * KiB});
    coverage.addVolume(1, plain, {10 * KiB, 10 * KiB});
    coverage.addVolume(2, partition, {30 * KiB, 30 * KiB});
    coverage.endPass();
    coverage.beginPass();
    coverage.addVolume(0, partition, {20 * KiB, 20 * KiB});
    coverage.endPass();
    QCOMPARE(coverage.bytes(2, DriveSize), 20 * KiB);
}

void tst_WipeCoverage::placesBeyondTheDrive()
{
    WipeCoverage coverage;
    coverage.beginPass();
    coverage.addVolume(0, onDrive({{90 * KiB, 120 * KiB}}), {30 * KiB, 30 * KiB});
    coverage.endPass();
    QCOMPARE(coverage.bytes(1, DriveSize), 10 * KiB);
    QCOMPARE(coverage.bytesBeyond(DriveSize), 20 * KiB);
}

void tst_WipeCoverage::amountsBeyondTheDrive()
{
    WipeCoverage coverage;
    coverage.beginPass();
    coverage.addVolume(0, onDrive({{0, 90 * KiB}}), {60 * KiB, 60 * KiB});
    coverage.addVolume(1, onDrive({{0, 90 * KiB}}), {60 * KiB, 60 * KiB});
    coverage.endPass();
    QCOMPARE(coverage.bytes(1, DriveSize), DriveSize);
    QCOMPARE(coverage.bytesBeyond(DriveSize), 20 * KiB);
}

void tst_WipeCoverage::lessThanASectorIsRounding()
{
    // A partition with an odd number of 512-byte units on a drive of 4096-byte sectors.
    const auto extents = onDrive({{10 * KiB, 30 * KiB + 512}});
    WipeCoverage coverage;
    coverage.beginPass();
    coverage.addVolume(0, extents, {20 * KiB, 20 * KiB});
    coverage.addStretch(10 * KiB, 20 * KiB);
    coverage.endPass();
    QCOMPARE(coverage.bytes(1, DriveSize), 20 * KiB);
}

QUORVEX_SUITE(tst_WipeCoverage, QCoreApplication)
#include "tst_wipecoverage.moc"
