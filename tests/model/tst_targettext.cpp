#include "model/targettext.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_TargetText : public QObject
{
    Q_OBJECT

private slots:
    void aDriveIsTold();
    void whatADriveDoesNotTellIsUnknown();
    void itsVolumesStandBelow();
    void freeSpaceIsThatOfTheVolume();
    void withoutAVolumeAllOfTheDriveAreMeant();
    void aVolumeOnNoSingleDriveStandsAlone();
    void amounts_data();
    void amounts();
    void ofALongListTheBeginningIsShown();

private:
    static DiskInfo disk();
};

DiskInfo tst_TargetText::disk()
{
    DiskInfo disk;
    disk.diskNumber = 2;
    disk.model = u"Contoso\u202ESSD"_s;
    disk.serialNumber = u"S\n1"_s;
    disk.devicePath = u"/dev/sdb"_s;
    disk.sizeBytes = 4 << 20;
    PartitionInfo letters;
    letters.driveLetter = u"/media/le\u2066tters"_s;
    letters.label = u"old\tletters"_s;
    letters.fileSystem = u"ext4"_s;
    letters.totalBytes = 2 << 20;
    letters.freeBytes = 1 << 20;
    disk.addPartition(letters);
    PartitionInfo plain;
    plain.driveLetter = u"E:"_s;
    plain.totalBytes = 1024;
    disk.addPartition(plain);
    return disk;
}

void tst_TargetText::aDriveIsTold()
{
    QCOMPARE(TargetText::drive(disk()),
             u"drive 2: model Contoso[U+202E]SSD, serial number S[U+000A]1, 4.00 MB, /dev/sdb"_s);
}

void tst_TargetText::whatADriveDoesNotTellIsUnknown()
{
    DiskInfo bare = disk();
    bare.model.clear();
    bare.serialNumber.clear();
    QCOMPARE(TargetText::drive(bare), u"drive 2: model unknown, serial number unknown, 4.00 MB, /dev/sdb"_s);
}

void tst_TargetText::itsVolumesStandBelow()
{
    const QStringList lines = TargetText::driveWithVolumes(disk());
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), TargetText::drive(disk()));
    QCOMPARE(lines.at(1), u"  volume /media/le[U+2066]tters, ext4, 2.00 MB, 1.00 MB free, "
                          "label old[U+0009]letters"_s);
    QCOMPARE(lines.at(2), u"  volume E:, unknown, 1.00 KB, 0 B free"_s);
    DiskInfo bare = disk();
    bare.partitions.clear();
    QCOMPARE(TargetText::driveWithVolumes(bare),
             QStringList({TargetText::drive(bare), u"  no mounted volumes"_s}));
}

void tst_TargetText::freeSpaceIsThatOfTheVolume()
{
    const PartitionInfo second = disk().partitions.at(1);
    QCOMPARE(TargetText::freeSpace(disk(), second),
             QStringList({TargetText::drive(disk()), u"  volume E:, unknown, 1.00 KB, 0 B free"_s}));
}

void tst_TargetText::withoutAVolumeAllOfTheDriveAreMeant()
{
    QCOMPARE(TargetText::freeSpace(disk(), {}), TargetText::driveWithVolumes(disk()));
}

void tst_TargetText::aVolumeOnNoSingleDriveStandsAlone()
{
    DiskInfo none = disk();
    none.diskNumber = -1;
    QCOMPARE(TargetText::freeSpace(none, none.partitions.at(1)),
             QStringList{u"volume E:, unknown, 1.00 KB, 0 B free"_s});
}

void tst_TargetText::amounts_data()
{
    QTest::addColumn<quint64>("files");
    QTest::addColumn<bool>("isComplete");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << quint64(0) << true << u"0 files, 1.00 KB"_s;
    QTest::newRow("one") << quint64(1) << true << u"1 file, 1.00 KB"_s;
    QTest::newRow("many") << quint64(12) << true << u"12 files, 1.00 KB"_s;
    QTest::newRow("not all seen, one so far") << quint64(1) << false << u"at least 1 file, 1.00 KB"_s;
    QTest::newRow("not all seen") << quint64(12) << false << u"at least 12 files, 1.00 KB"_s;
}

void tst_TargetText::amounts()
{
    QFETCH(const quint64, files);
    QFETCH(const bool, isComplete);
    QTEST(TargetText::amount(files, 1024, isComplete), "expected");
}

void tst_TargetText::ofALongListTheBeginningIsShown()
{
    qsizetype asked = 0;
    const auto lineOf = [&asked](qsizetype i) {
        ++asked;
        return QString::number(i);
    };
    QCOMPARE(TargetText::beginningOf(20, lineOf).constLast(), u"19"_s);
    asked = 0;
    const QStringList lines = TargetText::beginningOf(1000, lineOf);
    QCOMPARE(asked, 20);
    QCOMPARE(lines.size(), 21);
    QCOMPARE(lines.constFirst(), u"0"_s);
    QCOMPARE(lines.constLast(), u"and 980 more"_s);
    QVERIFY(TargetText::beginningOf(0, lineOf).isEmpty());
}

QUORVEX_SUITE(tst_TargetText, QCoreApplication)
#include "tst_targettext.moc"
