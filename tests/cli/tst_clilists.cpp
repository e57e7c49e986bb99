#include "cli/testio.h"
#include "support/suite.h"

#include "cli/memorymachine.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_CliLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }

    void methodsAreTheFiveStandards();
    void methodsForMachinesHaveAllFields();
    void disksAreListedWithTheirVolumes();
    void aVolumeOnSeveralDrivesIsToldAtEach();
    void disksForMachinesHaveAllFields();
    void aMachineWithoutDrivesIsNoError();
    void namesOfDevicesCannotSteerTheTerminal();
    void listingOpensNoDriveForWriting();

private:
    QTemporaryDir m_home;
};

namespace {

constexpr qint64 DriveSize = 9'007'199'254'740'993; // the first whole number that a double cannot hold

void addDrives(MemoryMachine &machine)
{
    MemoryDrive large(1, 4096);
    large.sizeBytes = DriveSize;
    large.model = u"Large one"_s;
    machine.memory.addDrive(MemoryDrive(0, 1 << 20));
    machine.memory.addDrive(large);
    MemoryDriveVolume volume;
    volume.name = u"/system"_s;
    volume.extents = {{0, 4096, 65536}};
    volume.label = u"Root"_s;
    volume.freeBytes = 1024;
    machine.memory.addVolume(volume);
    machine.session.systemVolumeNames = QStringList{u"/system"_s};
    machine.session.systemRoots = QStringList{u"/system"_s, u"/system/"_s};
}

} // namespace

void tst_CliLists::methodsAreTheFiveStandards()
{
    CliRun run;
    run({u"methods"_s});
    QCOMPARE(run.code, 0);
    for (const char *name : {"NIST 800-88: 1 pass", "British HMG IS5: 2 passes", "DoD 5220.22-M: 7 passes",
                             "German VSITR: 7 passes", "Gutmann: 35 passes"})
        QVERIFY2(run.io.out.contains(name), name);
    QVERIFY(run.io.out.contains("0x00, random (verified)\n"));
    QVERIFY(run.io.out.contains("0x00, 0xFF, random, 0x00, 0xFF, random, random (verified)\n"));
    QVERIFY(run.io.out.contains("4 x random, 0x55, 0xAA, 0x92, 0x49, 0x24, 0x00, 0x11"));
}

void tst_CliLists::methodsForMachinesHaveAllFields()
{
    CliRun run;
    run({u"methods"_s, u"--json"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.documents().size(), 1);
    const QJsonArray methods = run.io.documents().constFirst().array();
    QCOMPARE(methods.size(), 5);
    const QList<int> passCounts{1, 2, 7, 7, 35};
    const QList<int> levels{1, 2, 4, 4, 5};
    for (int i = 0; i < 5; ++i) {
        const QJsonObject method = methods.at(i).toObject();
        QCOMPARE(method.keys(), (QStringList{u"description"_s, u"level"_s, u"levelName"_s, u"name"_s,
                                             u"passes"_s, u"type"_s}));
        QCOMPARE(method.value(u"type").toInt(-1), i);
        QCOMPARE(method.value(u"level").toInt(-1), levels.at(i));
        QCOMPARE(method.value(u"passes").toArray().size(), passCounts.at(i));
    }
    const QJsonArray vsitr = methods.at(3).toObject().value(u"passes").toArray();
    QCOMPARE(vsitr.last().toObject(),
             (QJsonObject{{u"type"_s, u"Custom"_s}, {u"value"_s, 0xAA}, {u"verify"_s, true}}));
    QCOMPARE(vsitr.at(1).toObject(),
             (QJsonObject{{u"type"_s, u"Ones"_s}, {u"value"_s, 0xFF}, {u"verify"_s, false}}));
}

void tst_CliLists::disksAreListedWithTheirVolumes()
{
    MemoryMachine machine;
    addDrives(machine);
    CliRun run;
    run({u"disks"_s});
    QCOMPARE(run.code, 0);
    const QList<QByteArray> lines = run.io.out.split('\n');
    QCOMPARE(lines.size(), 5); // heading, drive 0, its volume, drive 1, end
    QVERIFY(lines.at(1).startsWith("0 "));
    QVERIFY(lines.at(1).contains("SERIAL-0"));
    QVERIFY(lines.at(1).contains("1.00 MB"));
    QVERIFY(lines.at(1).endsWith("system"));
    QVERIFY(lines.at(2).contains("volume /system, ext4, 64.00 KB, 1.00 KB free, label Root, system"));
    QVERIFY(lines.at(3).startsWith("1 "));
    QVERIFY(lines.at(3).contains("Large one"));
    QVERIFY(!lines.at(3).contains("system"));
}

// The volume is not among the volumes of either drive.
void tst_CliLists::aVolumeOnSeveralDrivesIsToldAtEach()
{
    MemoryMachine machine;
    addDrives(machine);
    MemoryDriveVolume mirror;
    mirror.name = u"/media/mirror"_s;
    mirror.extents = {{1, 4096, 65536}, {0, 131072, 65536}};
    machine.memory.addVolume(mirror);
    CliRun run;
    run({u"disks"_s});
    QCOMPARE(run.code, 0);
    const QList<QByteArray> lines = run.io.out.split('\n');
    QCOMPARE(lines.size(), 7);
    QCOMPARE(lines.at(3).trimmed(), "volume /media/mirror lies on drive 0 and also on drive 1");
    QCOMPARE(lines.at(5).trimmed(), "volume /media/mirror lies on drive 1 and also on drive 0");
}

void tst_CliLists::disksForMachinesHaveAllFields()
{
    MemoryMachine machine;
    addDrives(machine);
    CliRun run;
    run({u"disks"_s, u"--json"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.documents().size(), 1);
    const QJsonArray disks = run.io.documents().constFirst().array();
    QCOMPARE(disks.size(), 2);
    const QJsonObject system = disks.at(0).toObject();
    QCOMPARE(system.keys(), (QStringList{u"busType"_s, u"bytesPerSector"_s, u"devicePath"_s, u"diskNumber"_s,
                                         u"diskType"_s, u"isRemovable"_s, u"isSystemDisk"_s, u"model"_s,
                                         u"partitions"_s, u"serialNumber"_s, u"sizeBytes"_s}));
    QCOMPARE(system.value(u"isSystemDisk"), QJsonValue(true));
    QCOMPARE(system.value(u"devicePath"), QJsonValue(u"memory drive 0"_s));
    QCOMPARE(system.value(u"diskType"), QJsonValue(u"SSD"_s));
    QCOMPARE(system.value(u"bytesPerSector"), QJsonValue(512));
    const QJsonObject volume = system.value(u"partitions").toArray().at(0).toObject();
    QCOMPARE(volume, (QJsonObject{{u"driveLetter"_s, u"/system"_s},
                                  {u"label"_s, u"Root"_s},
                                  {u"fileSystem"_s, u"ext4"_s},
                                  {u"totalBytes"_s, u"65536"_s},
                                  {u"freeBytes"_s, u"1024"_s},
                                  {u"isSystem"_s, true},
                                  {u"partitionIndex"_s, 0}}));
    QCOMPARE(disks.at(1).toObject().value(u"sizeBytes"), QJsonValue(QString::number(DriveSize)));
    QCOMPARE(disks.at(1).toObject().value(u"partitions"), QJsonValue(QJsonArray()));
}

void tst_CliLists::aMachineWithoutDrivesIsNoError()
{
    CliRun text;
    text({u"disks"_s, u"--only-images"_s});
    QCOMPARE(text.code, 0);
    QCOMPARE(text.io.out, QByteArray("No drives found.\n"));
    CliRun json;
    json({u"disks"_s, u"--only-images"_s, u"--json"_s});
    QCOMPARE(json.code, 0);
    QCOMPARE(json.io.out, QByteArray("[]\n"));
}

void tst_CliLists::namesOfDevicesCannotSteerTheTerminal()
{
    MemoryMachine machine;
    MemoryDrive drive(0, 4096);
    drive.model = u"Evil\x1b[2J\r\nmodel"_s;
    drive.serialNumber = u"S\x07N"_s;
    machine.memory.addDrive(drive);
    MemoryDriveVolume volume;
    volume.name = u"/mnt/\u202Egnp"_s;
    volume.extents = {{0, 0, 4096}};
    volume.label = u"la\x1b]0;title\x07"
                   "bel"_s;
    machine.memory.addVolume(volume);
    CliRun run;
    run({u"disks"_s});
    QCOMPARE(run.code, 0);
    for (const QChar character : QString::fromUtf8(run.io.out))
        QVERIFY(character == u'\n' || character.isPrint());
    QVERIFY(run.io.out.contains("Evil[2Jmodel"));
    QCOMPARE(run.io.out.count('\n'), 3);

    CliRun json;
    json({u"disks"_s, u"--json"_s});
    QCOMPARE(json.io.documents().size(), 1); // still one line
}

void tst_CliLists::listingOpensNoDriveForWriting()
{
    MemoryMachine machine;
    addDrives(machine);
    CliRun run;
    run({u"disks"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(machine.openings(), QStringList());
    QCOMPARE(machine.memory.openHandles(), 0);
}

QUORVEX_SUITE(tst_CliLists, QCoreApplication)
#include "tst_clilists.moc"
