#include "markingtranslator.h"
#include "model/diskinfo.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_DiskInfo : public QObject
{
    Q_OBJECT

private slots:
    void diskDefaults();
    void partitionDefaults();
    void numbersAreFixed();
    void diskTypeNames_data();
    void diskTypeNames();
    void busTypeNames_data();
    void busTypeNames();
    void namesAreTranslatedInTheObjectContext();
    void displayNameWithoutModel();
    void displayNameWithModel();
    void displayNameKeepsPlaceholdersInTheModel();
    void displayNameMarksWhatReordersText();
    void displayNameOfAModelWithoutVisibleText();
    void displayNameIsNotTranslated();
    void formattedSizes();
    void addingASystemPartitionMakesTheSystemDisk();
    void addingANonSystemPartitionLaterLeavesTheSystemDisk();
    void addingAPartitionChangesNothingElse();
    void comparesByValue();
    void travelsInAVariant();
};

void tst_DiskInfo::diskDefaults()
{
    const DiskInfo disk;
    QCOMPARE(disk.diskNumber, -1);
    QCOMPARE(disk.devicePath, QString());
    QCOMPARE(disk.model, QString());
    QCOMPARE(disk.serialNumber, QString());
    QCOMPARE(disk.description, QString());
    QCOMPARE(disk.sizeBytes, qint64(0));
    QCOMPARE(disk.totalSectors, qint64(0));
    QCOMPARE(disk.bytesPerSector, 512);
    QCOMPARE(qint32(disk.diskType), 0);
    QCOMPARE(qint32(disk.busType), 0);
    QVERIFY(disk.partitions.isEmpty());
    QVERIFY(!disk.isRemovable);
    QVERIFY(!disk.isSystemDisk);
    QVERIFY(disk.isAvailable);
    QCOMPARE(disk.diskTypeName(), u"未知"_s);
    QCOMPARE(disk.busTypeName(), u"未知"_s);
}

void tst_DiskInfo::partitionDefaults()
{
    const PartitionInfo partition;
    QCOMPARE(partition.driveLetter, QString());
    QCOMPARE(partition.label, QString());
    QCOMPARE(partition.fileSystem, QString());
    QCOMPARE(partition.totalBytes, qint64(0));
    QCOMPARE(partition.freeBytes, qint64(0));
    QCOMPARE(partition.usedBytes, qint64(0));
    QVERIFY(!partition.isSystem);
    QVERIFY(!partition.isBoot);
    QCOMPARE(partition.partitionIndex, 0);
}

void tst_DiskInfo::numbersAreFixed()
{
    QCOMPARE(qint32(DiskType::Unknown), 0);
    QCOMPARE(qint32(DiskType::HDD), 1);
    QCOMPARE(qint32(DiskType::SSD), 2);
    QCOMPARE(qint32(DiskType::USB), 3);
    QCOMPARE(qint32(DiskType::NVMe), 4);
    QCOMPARE(qint32(DiskType::External), 5);
    QCOMPARE(qint32(BusType::Unknown), 0);
    QCOMPARE(qint32(BusType::SATA), 1);
    QCOMPARE(qint32(BusType::NVMe), 2);
    QCOMPARE(qint32(BusType::USB), 3);
    QCOMPARE(qint32(BusType::SCSI), 4);
    QCOMPARE(qint32(BusType::IDE), 5);
}

void tst_DiskInfo::diskTypeNames_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << 0 << u"未知"_s;
    QTest::newRow("HDD") << 1 << u"机械硬盘"_s;
    QTest::newRow("SSD") << 2 << u"固态硬盘"_s;
    QTest::newRow("USB") << 3 << u"USB设备"_s;
    QTest::newRow("NVMe") << 4 << u"NVMe"_s;
    QTest::newRow("external") << 5 << u"外置硬盘"_s;
    QTest::newRow("past the end") << 6 << u"未知"_s;
    QTest::newRow("negative") << -1 << u"未知"_s;
}

void tst_DiskInfo::diskTypeNames()
{
    QFETCH(int, code);
    DiskInfo disk;
    disk.diskType = DiskType(code);
    QTEST(disk.diskTypeName(), "name");
}

void tst_DiskInfo::busTypeNames_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << 0 << u"未知"_s;
    QTest::newRow("SATA") << 1 << u"SATA"_s;
    QTest::newRow("NVMe") << 2 << u"NVMe"_s;
    QTest::newRow("USB") << 3 << u"USB"_s;
    QTest::newRow("SCSI") << 4 << u"SCSI"_s;
    QTest::newRow("IDE") << 5 << u"IDE"_s;
    QTest::newRow("past the end") << 6 << u"未知"_s;
    QTest::newRow("negative") << -1 << u"未知"_s;
}

void tst_DiskInfo::busTypeNames()
{
    QFETCH(int, code);
    DiskInfo disk;
    disk.busType = BusType(code);
    QTEST(disk.busTypeName(), "name");
}

void tst_DiskInfo::namesAreTranslatedInTheObjectContext()
{
    const MarkingTranslator translator;
    const QStringList diskNames{u"<QObject>未知"_s,    u"<QObject>机械硬盘"_s, u"<QObject>固态硬盘"_s,
                                u"<QObject>USB设备"_s, u"<QObject>NVMe"_s,     u"<QObject>外置硬盘"_s};
    const QStringList busNames{u"<QObject>未知"_s, u"SATA"_s, u"NVMe"_s, u"USB"_s, u"SCSI"_s, u"IDE"_s};
    for (int code = 0; code <= 5; ++code) {
        DiskInfo disk;
        disk.diskType = DiskType(code);
        disk.busType = BusType(code);
        QCOMPARE(disk.diskTypeName(), diskNames[code]);
        QCOMPARE(disk.busTypeName(), busNames[code]);
    }
}

void tst_DiskInfo::displayNameWithoutModel()
{
    DiskInfo disk;
    disk.diskNumber = 3;
    disk.sizeBytes = 1000204886016;
    QCOMPARE(disk.displayName(), u"Disk 3 (931.51 GB)"_s);
    QCOMPARE(DiskInfo().displayName(), u"Disk -1 (0 B)"_s);
}

void tst_DiskInfo::displayNameWithModel()
{
    DiskInfo disk;
    disk.diskNumber = 3;
    disk.model = u"M"_s;
    disk.sizeBytes = 1000204886016;
    QCOMPARE(disk.displayName(), u"M (931.51 GB)"_s);
}

void tst_DiskInfo::displayNameKeepsPlaceholdersInTheModel()
{
    DiskInfo disk;
    disk.model = u"A%1B%2C"_s;
    disk.sizeBytes = 512;
    QCOMPARE(disk.displayName(), u"A%1B%2C (512 B)"_s);
}

void tst_DiskInfo::displayNameMarksWhatReordersText()
{
    DiskInfo disk;
    disk.model = u"Contoso\u202E \nX1"_s;
    disk.sizeBytes = 512;
    QCOMPARE(disk.displayName(), u"Contoso[U+202E] [U+000A]X1 (512 B)"_s);
    QCOMPARE(disk.model, u"Contoso\u202E \nX1"_s);
}

void tst_DiskInfo::displayNameOfAModelWithoutVisibleText()
{
    DiskInfo disk;
    disk.diskNumber = 0;
    disk.model = u"\u202E\u200B"_s;
    QCOMPARE(disk.displayName(), u"[U+202E][U+200B] (0 B)"_s);
}

void tst_DiskInfo::displayNameIsNotTranslated()
{
    const MarkingTranslator translator;
    DiskInfo disk;
    disk.diskNumber = 1;
    QCOMPARE(disk.displayName(), u"Disk 1 (0 B)"_s);
}

void tst_DiskInfo::formattedSizes()
{
    DiskInfo disk;
    disk.sizeBytes = 1536;
    QCOMPARE(disk.formattedSize(), u"1.50 KB"_s);

    PartitionInfo partition;
    partition.totalBytes = qint64(1) << 40;
    partition.freeBytes = 1023;
    QCOMPARE(partition.formattedTotal(), u"1.00 TB"_s);
    QCOMPARE(partition.formattedFree(), u"1023 B"_s);
}

void tst_DiskInfo::addingASystemPartitionMakesTheSystemDisk()
{
    PartitionInfo data;
    data.driveLetter = u"D:"_s;
    PartitionInfo system;
    system.driveLetter = u"C:"_s;
    system.isSystem = true;

    DiskInfo disk;
    disk.addPartition(data);
    QVERIFY(!disk.isSystemDisk);
    disk.addPartition(system);
    QVERIFY(disk.isSystemDisk);
    QCOMPARE(disk.partitions, QList<PartitionInfo>({data, system}));
}

void tst_DiskInfo::addingANonSystemPartitionLaterLeavesTheSystemDisk()
{
    PartitionInfo system;
    system.isSystem = true;
    DiskInfo disk;
    disk.addPartition(system);
    disk.addPartition(PartitionInfo());
    QVERIFY(disk.isSystemDisk);
    QCOMPARE(disk.partitions.size(), 2);
}

void tst_DiskInfo::addingAPartitionChangesNothingElse()
{
    PartitionInfo boot;
    boot.isBoot = true; // only isSystem counts
    DiskInfo disk;
    disk.addPartition(boot);
    QVERIFY(!disk.isSystemDisk);
    DiskInfo expected;
    expected.partitions = {boot};
    QCOMPARE(disk, expected);
}

void tst_DiskInfo::comparesByValue()
{
    DiskInfo disk;
    disk.addPartition(PartitionInfo());
    DiskInfo copy = disk;
    QCOMPARE(copy, disk);
    copy.partitions[0].partitionIndex = 1;
    QVERIFY(copy != disk);
    copy = disk;
    copy.description = u"x"_s;
    QVERIFY(copy != disk);
}

void tst_DiskInfo::travelsInAVariant()
{
    DiskInfo disk;
    disk.model = u"M"_s;
    disk.addPartition(PartitionInfo());
    QCOMPARE(QVariant::fromValue(disk).value<DiskInfo>(), disk);
    QVERIFY(QMetaType::fromType<DiskInfo>().isEqualityComparable());
}

QUORVEX_SUITE(tst_DiskInfo, QCoreApplication)
#include "tst_diskinfo.moc"
