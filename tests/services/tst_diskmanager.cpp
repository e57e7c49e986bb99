#include "services/diskmanager.h"
#include "services/limitedquestion.h"
#include "support/suite.h"

#include "platform/forwarding.h"
#include "support/deviceplatform.h"
#include "support/fakedevices.h"
#include "support/messagecapture.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <new>
#include <optional>

using namespace Qt::StringLiterals;

namespace {
// The disk of a machine whose only drive is number 1; the system is on another medium.
DiskInfo onlyDisk(const FakeDrive &drive)
{
    FakeMachine machine;
    machine.fakeDevices.drives = {{1, drive}};
    const platform::ScopedPlatform scope(machine);
    const QList<DiskInfo> disks = DiskManager::enumerateDisks();
    return disks.size() == 1 ? disks.first() : DiskInfo();
}

QList<int> numbers(const QList<DiskInfo> &disks)
{
    QList<int> numbers;
    for (const DiskInfo &disk : disks)
        numbers.append(disk.diskNumber);
    return numbers;
}

QStringList driveLetters(const QList<PartitionInfo> &partitions)
{
    QStringList letters;
    for (const PartitionInfo &partition : partitions)
        letters.append(partition.driveLetter);
    return letters;
}

// A fresh machine with four drives, installed for the duration of a test.
struct FourDrives
{
    FakeMachine machine;
    FakeDevices &devices = machine.fakeDevices;
    platform::ScopedPlatform scope{machine};

    FourDrives()
    {
        for (int number = 0; number < 4; ++number) {
            FakeDrive drive = FakeDrive::rotating();
            drive.geometry = platform::Geometry{(number + 1) * qint64(1'000'000'512), 512};
            devices.drives.insert(number, drive);
        }
    }
    void mount(const QString &name, const QList<int> &drives)
    {
        devices.mount(FakeVolume::onDrives(name, drives));
    }
    QList<int> systemDisks()
    {
        QList<int> system;
        const QList<DiskInfo> disks = DiskManager::enumerateDisks();
        for (const DiskInfo &disk : disks) {
            if (disk.isSystemDisk)
                system.append(disk.diskNumber);
        }
        return system;
    }
};
} // namespace

class tst_DiskManager : public QObject
{
    Q_OBJECT

private slots:
    void aVolumeOnTwoDisksIsListedForBoth();
    void aVolumeBesideADeviceWithoutANumberSpansToo();
    void aSystemVolumeOnADeviceWithoutANumberGuardsNoDisk();
    void theSameUnitOnAnotherWayIsASystemDiskToo();
    void moreExtentsThanAShortReplyHasRoomFor();
    void obstaclesOfADisk();
    void theSameUnitInUseOnAnotherWayIsAnObstacle();
    void aDiskThatAnswersNothingHasNoObstacle();
    void noDriveGivesAnEmptyList();
    void aGapDoesNotEndTheScan();
    void every32NumbersAreProbedInOrderAndNoMore();
    void aDriveThatRefusesToOpenIsSkipped();
    void aDriveThatDoesNotAnswerIsSkippedAndNotAskedAgain();
    void aVolumeThatDoesNotAnswerIsOnNoDisk();
    void whatAQuestionThrowsIsThrown();
    void aDiskCarriesWhatItsDriveAnswers();
    void withoutGeometryADiskIsListedWithDefaults();
    void aSectorSizeOf0CountsAsNoGeometry_data();
    void aSectorSizeOf0CountsAsNoGeometry();
    void withoutDescriptorADiskHasNoBusButAKind();
    void aDescriptorWithoutTextsLeavesThemEmpty();
    void aDriveThatAnswersNothingIsListedAsHdd();

    void everyBusHasItsMeaning_data();
    void everyBusHasItsMeaning();
    void theRawBusValueIsLogged();
    void aUsbStickUndergoesNoSolidStateTests();
    void anNvmeDriveUndergoesNoSolidStateTests();
    void aSataSsdLogsBothDetections();
    void theKindFollowsFromSeekPenaltyAndTrim_data();
    void theKindFollowsFromSeekPenaltyAndTrim();
    void anAbsentDriveHasNoKind();

    void theSystemVolumeMarksItsDisk();
    void aSystemVolumeThatDoesNotOpenMeansDisk0();
    void aSystemVolumeWhoseRequestFailsMeansDisk0();
    void aSystemVolumeWithoutExtentsMeansDisk0();
    void aSystemVolumeOnSeveralDisksMarksAllOfThem();
    void aSystemVolumeOnTooManyDisksMeansDisk0();
    void severalSystemVolumesMarkTheirDisksTogether();
    void oneSilentSystemVolumeAddsDisk0();
    void withoutSystemVolumesNoDiskIsTheSystemDisk();
    void disk0IsNotListedOnlyBecauseItIsTheLikelyOne();
    void aSystemPartitionMarksItsDiskForGood();

    void aPartitionCarriesWhatItsVolumeTells();
    void partitionsFollowTheSystemsOrder();
    void labelsAreSafeToShow();
    void driveLettersAreKeptAsGiven();
    void volumesThatAreNotReadyAreSkippedUnopened();
    void volumesWithoutRootAreSkippedUnopened();
    void aVolumeThatDoesNotOpenIsSkipped();
    void aVolumeWhoseRequestFailsIsSkipped();
    void aVolumeWithoutExtentsIsOnNoDisk();
    void aVolumeOnTwoDisksIsListedUnderNeither();
    void aVolumeMountedInAFolderIsOpenedByItsName();
    void theSystemPartitionIsAlsoTheBootPartition();

    void theVolumeListIsWalkedOncePerDisk();
    void nothingIsKeptBetweenCalls();
    void noHandleStaysOpen();
};

void tst_DiskManager::noDriveGivesAnEmptyList()
{
    FakeMachine machine;
    const platform::ScopedPlatform scope(machine);
    QVERIFY(DiskManager::enumerateDisks().isEmpty());
}

void tst_DiskManager::aGapDoesNotEndTheScan()
{
    FakeMachine machine;
    machine.fakeDevices.drives = {
        {0, FakeDrive::rotating()}, {2, FakeDrive::usbStick()}, {31, FakeDrive::nvme()}};
    const platform::ScopedPlatform scope(machine);
    QCOMPARE(numbers(DiskManager::enumerateDisks()), (QList<int>{0, 2, 31}));
}

void tst_DiskManager::every32NumbersAreProbedInOrderAndNoMore()
{
    FakeMachine machine;
    for (int number = 0; number < 40; ++number)
        machine.fakeDevices.drives.insert(number, FakeDrive::nvme());
    const platform::ScopedPlatform scope(machine);
    const QList<int> listed = numbers(DiskManager::enumerateDisks());
    QCOMPARE(listed.size(), 32);
    QCOMPARE(listed.first(), 0);
    QCOMPARE(listed.last(), 31);
    QVERIFY(std::ranges::is_sorted(listed));
    QCOMPARE(machine.fakeDevices.asked.keys(), listed);
}

void tst_DiskManager::aDriveThatRefusesToOpenIsSkipped()
{
    FakeMachine machine;
    machine.fakeDevices.drives = {{0, FakeDrive::refusingToOpen()}, {1, FakeDrive::rotating()}};
    const platform::ScopedPlatform scope(machine);
    QCOMPARE(numbers(DiskManager::enumerateDisks()), QList<int>{1});
    QCOMPARE(machine.fakeDevices.asked[0].opened, 1);
}

void tst_DiskManager::aDiskCarriesWhatItsDriveAnswers()
{
    FakeDrive drive = FakeDrive::usbStick();
    drive.geometry = platform::Geometry{1'000'000'001'000, 4096};
    drive.descriptor = platform::encodeDeviceDescriptor({.productId = u"Ultra \u00b5"_s,
                                                         .serialNumber = u"4C53 0001"_s,
                                                         .removableMedia = true,
                                                         .busType = platform::BusUsb});
    DiskInfo expected;
    expected.diskNumber = 1;
    expected.devicePath = u"fake:drive1"_s;
    expected.model = u"Ultra \u00b5"_s;
    expected.serialNumber = u"4C53 0001"_s;
    expected.sizeBytes = 1'000'000'001'000;
    expected.totalSectors = 244'140'625; // the last 1000 bytes are not a whole sector
    expected.bytesPerSector = 4096;
    expected.diskType = DiskType::USB;
    expected.busType = BusType::USB;
    expected.isRemovable = true;
    QVERIFY(expected.isAvailable);
    QCOMPARE(onlyDisk(drive), expected);
}

void tst_DiskManager::withoutGeometryADiskIsListedWithDefaults()
{
    const DiskInfo disk = onlyDisk(FakeDrive::withoutGeometry());
    QCOMPARE(disk.diskNumber, 1);
    QCOMPARE(disk.sizeBytes, 0);
    QCOMPARE(disk.bytesPerSector, 512);
    QCOMPARE(disk.totalSectors, 0);
    QCOMPARE(disk.model, u"Drive"_s);
    QCOMPARE(disk.busType, BusType::SATA);
}

void tst_DiskManager::aSectorSizeOf0CountsAsNoGeometry_data()
{
    QTest::addColumn<qint32>("bytesPerSector");
    QTest::newRow("0") << 0;
    QTest::newRow("negative") << -512;
}

void tst_DiskManager::aSectorSizeOf0CountsAsNoGeometry()
{
    QFETCH(qint32, bytesPerSector);
    FakeDrive drive = FakeDrive::rotating();
    drive.geometry = platform::Geometry{1 << 30, bytesPerSector};
    const DiskInfo disk = onlyDisk(drive);
    QCOMPARE(disk.diskNumber, 1);
    QCOMPARE(disk.sizeBytes, 0);
    QCOMPARE(disk.bytesPerSector, 512);
    QCOMPARE(disk.totalSectors, 0);
}

void tst_DiskManager::withoutDescriptorADiskHasNoBusButAKind()
{
    const MessageCapture capture;
    FakeDrive drive = FakeDrive::withoutDescriptor();
    DiskInfo disk = onlyDisk(drive);
    QCOMPARE(disk.busType, BusType::Unknown);
    QCOMPARE(disk.diskType, DiskType::HDD);
    QCOMPARE(disk.sizeBytes, 500'107'862'016);
    QVERIFY(disk.model.isEmpty());
    QCOMPARE(capture.texts(), QStringList());
    drive.seekPenalty = false;
    disk = onlyDisk(drive);
    QCOMPARE(disk.busType, BusType::Unknown);
    QCOMPARE(disk.diskType, DiskType::SSD);
}

void tst_DiskManager::aDescriptorWithoutTextsLeavesThemEmpty()
{
    FakeDrive drive = FakeDrive::rotating();
    drive.descriptor = platform::encodeDeviceDescriptor({.productId = {}, .serialNumber = {}, .busType = 11});
    const DiskInfo disk = onlyDisk(drive);
    QVERIFY(disk.model.isEmpty());
    QVERIFY(disk.serialNumber.isEmpty());
    QCOMPARE(disk.displayName(), u"Disk 1 (465.76 GB)"_s);
}

void tst_DiskManager::aDriveThatAnswersNothingIsListedAsHdd()
{
    const DiskInfo disk = onlyDisk(FakeDrive::answeringNothing());
    DiskInfo expected;
    expected.diskNumber = 1;
    expected.devicePath = u"fake:drive1"_s;
    expected.diskType = DiskType::HDD;
    QCOMPARE(disk, expected);
}

void tst_DiskManager::everyBusHasItsMeaning_data()
{
    QTest::addColumn<quint32>("reported");
    QTest::addColumn<BusType>("bus");
    QTest::addColumn<DiskType>("disk");
    const auto row = [](const char *name, quint32 reported, BusType bus, DiskType disk = DiskType::HDD) {
        QTest::newRow(name) << reported << bus << disk;
    };
    row("0 unknown", 0, BusType::Unknown);
    row("1 SCSI", 1, BusType::SCSI);
    row("2 ATAPI", 2, BusType::IDE);
    row("3 ATA", 3, BusType::IDE);
    row("4 FireWire", 4, BusType::Unknown);
    row("5 SSA", 5, BusType::Unknown);
    row("6 Fibre Channel", 6, BusType::Unknown);
    row("7 USB", 7, BusType::USB, DiskType::USB);
    row("8 RAID", 8, BusType::SATA);
    row("9 iSCSI", 9, BusType::Unknown);
    row("10 SAS", 10, BusType::SCSI);
    row("11 SATA", 11, BusType::SATA);
    row("12 SD", 12, BusType::Unknown);
    row("13 MMC", 13, BusType::Unknown);
    row("14 virtual", 14, BusType::Unknown);
    row("15 file-backed", 15, BusType::Unknown);
    row("16 Storage Spaces", 16, BusType::Unknown);
    row("17 NVMe", 17, BusType::NVMe, DiskType::NVMe);
    row("18 SCM", 18, BusType::Unknown);
    row("19 UFS", 19, BusType::Unknown);
    row("20", 20, BusType::Unknown);
    row("7 in the second byte", 0x700, BusType::Unknown);
    row("all ones", 0xFFFFFFFF, BusType::Unknown);
}

void tst_DiskManager::everyBusHasItsMeaning()
{
    QFETCH(quint32, reported);
    QFETCH(BusType, bus);
    QFETCH(DiskType, disk);
    const MessageCapture capture;
    const DiskInfo found = onlyDisk(FakeDrive::onBus(reported));
    QCOMPARE(found.busType, bus);
    QCOMPARE(found.diskType, disk);
    QStringList expected{u"Disk 1 BusType value: %1"_s.arg(reported)};
    if (bus == BusType::Unknown)
        expected.append(u"Unknown BusType: %1"_s.arg(reported));
    QCOMPARE(capture.texts(), expected);
}

void tst_DiskManager::theRawBusValueIsLogged()
{
    const MessageCapture capture;
    onlyDisk(FakeDrive::nvme());
    QCOMPARE(capture.messages(),
             (QList<MessageCapture::Message>{{QtDebugMsg, u"Disk 1 BusType value: 17"_s}}));
}

void tst_DiskManager::aUsbStickUndergoesNoSolidStateTests()
{
    FakeMachine machine;
    machine.fakeDevices.drives = {{1, FakeDrive::usbStick()}};
    const platform::ScopedPlatform scope(machine);
    const MessageCapture capture;
    const DiskInfo disk = DiskManager::enumerateDisks().first();
    QCOMPARE(disk.busType, BusType::USB);
    QCOMPARE(disk.diskType, DiskType::USB);
    QVERIFY(disk.isRemovable);
    QCOMPARE(capture.texts(), QStringList{u"Disk 1 BusType value: 7"_s});
    const FakeDevices::Questions asked = machine.fakeDevices.asked.value(1);
    QCOMPARE(asked.opened, 1);
    QCOMPARE(asked.geometry, 1);
    QCOMPARE(asked.descriptor, 1);
    QCOMPARE(asked.seekPenalty, 0);
    QCOMPARE(asked.trim, 0);
}

void tst_DiskManager::anNvmeDriveUndergoesNoSolidStateTests()
{
    FakeMachine machine;
    machine.fakeDevices.drives = {{1, FakeDrive::nvme()}};
    const platform::ScopedPlatform scope(machine);
    const DiskInfo disk = DiskManager::enumerateDisks().first();
    QCOMPARE(disk.busType, BusType::NVMe);
    QCOMPARE(disk.diskType, DiskType::NVMe);
    QCOMPARE(machine.fakeDevices.asked.value(1).opened, 1);
    QCOMPARE(machine.fakeDevices.asked.value(1).seekPenalty, 0);
    QCOMPARE(machine.fakeDevices.asked.value(1).trim, 0);
}

void tst_DiskManager::aSataSsdLogsBothDetections()
{
    const MessageCapture capture;
    QCOMPARE(onlyDisk(FakeDrive::solidState()).diskType, DiskType::SSD);
    QCOMPARE(capture.messages(),
             (QList<MessageCapture::Message>{{QtDebugMsg, u"Disk 1 BusType value: 11"_s},
                                             {QtDebugMsg, u"Disk 1 detected as SSD (no seek penalty)"_s},
                                             {QtDebugMsg, u"Disk 1 detected as SSD (TRIM enabled)"_s}}));
}

void tst_DiskManager::theKindFollowsFromSeekPenaltyAndTrim_data()
{
    // Without a value the request fails.
    QTest::addColumn<std::optional<bool>>("seekPenalty");
    QTest::addColumn<std::optional<bool>>("trim");
    QTest::addColumn<DiskType>("type");
    using Answer = std::optional<bool>;
    const auto row = [](const char *name, Answer seekPenalty, Answer trim, DiskType type) {
        QTest::newRow(name) << seekPenalty << trim << type;
    };
    const Answer fails;
    row("penalty, no trim", true, false, DiskType::HDD);
    row("penalty, trim", true, true, DiskType::SSD);
    row("penalty, trim unknown", true, fails, DiskType::HDD);
    row("no penalty, no trim", false, false, DiskType::SSD);
    row("no penalty, trim", false, true, DiskType::SSD);
    row("no penalty, trim unknown", false, fails, DiskType::SSD);
    row("penalty unknown, no trim", fails, false, DiskType::HDD);
    row("penalty unknown, trim", fails, true, DiskType::SSD);
    row("both unknown", fails, fails, DiskType::HDD);
}

void tst_DiskManager::theKindFollowsFromSeekPenaltyAndTrim()
{
    QFETCH(std::optional<bool>, seekPenalty);
    QFETCH(std::optional<bool>, trim);
    QFETCH(DiskType, type);
    const auto answer = [](std::optional<bool> value) -> platform::Result<bool> {
        if (value)
            return *value;
        return fakeFailure(platform::NotSupported);
    };
    FakeMachine machine;
    FakeDrive drive = FakeDrive::rotating();
    drive.seekPenalty = answer(seekPenalty);
    drive.trim = answer(trim);
    machine.fakeDevices.drives = {{5, drive}};
    const platform::ScopedPlatform scope(machine);
    const MessageCapture capture;
    QCOMPARE(DiskManager::detectDiskType(5), type);
    QCOMPARE(machine.fakeDevices.asked.value(5).seekPenalty, 1);
    QCOMPARE(machine.fakeDevices.asked.value(5).trim, 1);
    QStringList expected;
    if (seekPenalty == false)
        expected.append(u"Disk 5 detected as SSD (no seek penalty)"_s);
    if (trim == true)
        expected.append(u"Disk 5 detected as SSD (TRIM enabled)"_s);
    QCOMPARE(capture.texts(), expected);
}

void tst_DiskManager::anAbsentDriveHasNoKind()
{
    FakeMachine machine;
    machine.fakeDevices.drives = {{1, FakeDrive::refusingToOpen()}};
    const platform::ScopedPlatform scope(machine);
    for (const int number : {0, 1, 32, -1})
        QCOMPARE(DiskManager::detectDiskType(number), DiskType::Unknown);
}

void tst_DiskManager::theSystemVolumeMarksItsDisk()
{
    FourDrives pc;
    pc.mount(u"C:"_s, {2});
    pc.machine.fakeSession.systemVolumeNames = {u"C:"_s};
    QCOMPARE(pc.systemDisks(), QList<int>{2});
}

void tst_DiskManager::aSystemVolumeThatDoesNotOpenMeansDisk0()
{
    FourDrives pc;
    pc.machine.fakeSession.systemVolumeNames = {u"C:"_s};
    QCOMPARE(pc.systemDisks(), QList<int>{0});
}

void tst_DiskManager::aSystemVolumeWhoseRequestFailsMeansDisk0()
{
    FourDrives pc;
    pc.mount(u"C:"_s, {2});
    pc.devices.volumes[u"C:"_s].extentsAnswer = fakeFailure(platform::NotSupported);
    pc.machine.fakeSession.systemVolumeNames = {u"C:"_s};
    QCOMPARE(pc.systemDisks(), QList<int>{0});
}

void tst_DiskManager::aSystemVolumeWithoutExtentsMeansDisk0()
{
    FourDrives pc;
    pc.mount(u"C:"_s, {});
    pc.machine.fakeSession.systemVolumeNames = {u"C:"_s};
    QCOMPARE(pc.systemDisks(), QList<int>{0});
}

void tst_DiskManager::aSystemVolumeOnSeveralDisksMarksAllOfThem()
{
    FourDrives pc;
    pc.mount(u"C:"_s, {3, 1, 3});
    pc.machine.fakeSession.systemVolumeNames = {u"C:"_s};
    QCOMPARE(pc.systemDisks(), (QList<int>{1, 3}));
}

void tst_DiskManager::aSystemVolumeOnTooManyDisksMeansDisk0()
{
    FourDrives pc;
    pc.mount(u"C:"_s, QList<int>(platform::ManyExtents + 1, 2));
    pc.machine.fakeSession.systemVolumeNames = {u"C:"_s};
    QCOMPARE(pc.systemDisks(), QList<int>{0});
}

void tst_DiskManager::severalSystemVolumesMarkTheirDisksTogether()
{
    FourDrives pc;
    pc.mount(u"/"_s, {1});
    pc.mount(u"/boot"_s, {3});
    pc.mount(u"/home"_s, {1});
    pc.machine.fakeSession.systemVolumeNames = {u"/"_s, u"/boot"_s, u"/home"_s};
    QCOMPARE(pc.systemDisks(), (QList<int>{1, 3}));
}

void tst_DiskManager::oneSilentSystemVolumeAddsDisk0()
{
    FourDrives pc;
    pc.mount(u"/"_s, {2});
    pc.machine.fakeSession.systemVolumeNames = {u"/"_s, u"/dev/swap"_s};
    QCOMPARE(pc.systemDisks(), (QList<int>{0, 2}));
}

void tst_DiskManager::withoutSystemVolumesNoDiskIsTheSystemDisk()
{
    FourDrives pc;
    pc.mount(u"/data"_s, {0});
    QCOMPARE(pc.systemDisks(), QList<int>());
}

void tst_DiskManager::disk0IsNotListedOnlyBecauseItIsTheLikelyOne()
{
    FourDrives pc;
    pc.devices.drives.remove(0);
    pc.machine.fakeSession.systemVolumeNames = {u"C:"_s};
    QCOMPARE(numbers(DiskManager::enumerateDisks()), (QList<int>{1, 2, 3}));
    QCOMPARE(pc.systemDisks(), QList<int>());
}

void tst_DiskManager::aSystemPartitionMarksItsDiskForGood()
{
    // The volume listed as the system's lies on another disk than the running system.
    FourDrives pc;
    pc.mount(u"D:"_s, {3});
    pc.mount(u"C:"_s, {1});
    pc.mount(u"E:"_s, {1});
    pc.machine.fakeSession.systemVolumeNames = {u"D:"_s};
    pc.machine.fakeSession.systemRoots = {u"C:/"_s};
    QCOMPARE(pc.systemDisks(), (QList<int>{1, 3}));
}

void tst_DiskManager::aPartitionCarriesWhatItsVolumeTells()
{
    FourDrives pc;
    FakeVolume volume = FakeVolume::onDrives(u"E:"_s, {2});
    volume.mounted.label = u"Photos"_s;
    volume.mounted.fileSystem = "e\xc3\xa9t4";
    volume.mounted.totalBytes = 1000;
    volume.mounted.freeBytes = 300;
    pc.devices.mount(volume);
    PartitionInfo expected;
    expected.driveLetter = u"E:"_s;
    expected.label = u"Photos"_s;
    expected.fileSystem = u"e\u00e9t4"_s;
    expected.totalBytes = 1000;
    expected.freeBytes = 300;
    expected.usedBytes = 700;
    QCOMPARE(DiskManager::partitionsForDisk(2), QList<PartitionInfo>{expected});
    QCOMPARE(DiskManager::enumerateDisks().at(2).partitions, QList<PartitionInfo>{expected});
    QVERIFY(DiskManager::partitionsForDisk(1).isEmpty());
}

void tst_DiskManager::partitionsFollowTheSystemsOrder()
{
    FourDrives pc;
    pc.mount(u"G:"_s, {2});
    pc.mount(u"E:"_s, {1});
    pc.mount(u"F:"_s, {2});
    pc.mount(u"D:"_s, {2});
    const QList<PartitionInfo> partitions = DiskManager::enumerateDisks().at(2).partitions;
    QCOMPARE(driveLetters(partitions), (QStringList{u"G:"_s, u"F:"_s, u"D:"_s}));
    for (int i = 0; i < partitions.size(); ++i)
        QCOMPARE(partitions.at(i).partitionIndex, i);
    QCOMPARE(DiskManager::partitionsForDisk(1).first().partitionIndex, 0);
}

void tst_DiskManager::labelsAreSafeToShow()
{
    FourDrives pc;
    FakeVolume volume = FakeVolume::onDrives(u"E:"_s, {2});
    volume.mounted.label = u"\u202Egpj\u0007.exe\n\u0645"_s;
    pc.devices.mount(volume);
    QCOMPARE(DiskManager::partitionsForDisk(2).first().label, u"[U+202E]gpj[U+0007].exe[U+000A]\u0645"_s);
}

void tst_DiskManager::driveLettersAreKeptAsGiven()
{
    FourDrives pc;
    pc.mount(u"e:"_s, {2});
    // A character that the display would replace is needed to open the volume.
    pc.mount(u"/media/\u202Edata"_s, {2});
    QCOMPARE(driveLetters(DiskManager::partitionsForDisk(2)), (QStringList{u"e:"_s, u"/media/\u202Edata"_s}));
}

void tst_DiskManager::volumesThatAreNotReadyAreSkippedUnopened()
{
    FourDrives pc;
    pc.mount(u"E:"_s, {2});
    pc.devices.volumes[u"E:"_s].mounted.isReady = false;
    QVERIFY(DiskManager::partitionsForDisk(2).isEmpty());
    QCOMPARE(pc.devices.volumesOpened, QStringList());
}

void tst_DiskManager::volumesWithoutRootAreSkippedUnopened()
{
    FourDrives pc;
    pc.mount(u"E:"_s, {2});
    pc.devices.volumes[u"E:"_s].mounted.rootPath.clear();
    QVERIFY(DiskManager::partitionsForDisk(2).isEmpty());
    QCOMPARE(pc.devices.volumesOpened, QStringList());
}

void tst_DiskManager::aVolumeThatDoesNotOpenIsSkipped()
{
    FourDrives pc;
    pc.mount(u"E:"_s, {2});
    pc.mount(u"F:"_s, {2});
    pc.devices.volumes[u"E:"_s].opening = fakeFailure(platform::AccessDenied);
    const QList<PartitionInfo> partitions = DiskManager::partitionsForDisk(2);
    QCOMPARE(driveLetters(partitions), QStringList{u"F:"_s});
    QCOMPARE(partitions.first().partitionIndex, 0);
}

void tst_DiskManager::aVolumeWhoseRequestFailsIsSkipped()
{
    FourDrives pc;
    pc.mount(u"E:"_s, {2});
    pc.mount(u"F:"_s, {2});
    pc.devices.volumes[u"E:"_s].extentsAnswer = fakeFailure(platform::NotSupported);
    QCOMPARE(driveLetters(DiskManager::partitionsForDisk(2)), QStringList{u"F:"_s});
}

void tst_DiskManager::aVolumeWithoutExtentsIsOnNoDisk()
{
    FourDrives pc;
    pc.mount(u"E:"_s, {});
    for (int number = 0; number < 4; ++number)
        QVERIFY(DiskManager::partitionsForDisk(number).isEmpty());
}

void tst_DiskManager::aVolumeOnTwoDisksIsListedUnderNeither()
{
    FourDrives pc;
    pc.mount(u"E:"_s, {1, 2});
    pc.mount(u"F:"_s, {2});
    QVERIFY(DiskManager::partitionsForDisk(1).isEmpty());
    QCOMPARE(driveLetters(DiskManager::partitionsForDisk(2)), QStringList{u"F:"_s});
}

void tst_DiskManager::aVolumeMountedInAFolderIsOpenedByItsName()
{
    // The volume in C:/mnt/photos lies on drive 3, but its root begins with the name of drive 1.
    FourDrives pc;
    FakeVolume volume = FakeVolume::onDrives(u"C:"_s, {1});
    volume.mounted.rootPath = u"C:/mnt/photos/"_s;
    pc.devices.mount(volume);
    QCOMPARE(driveLetters(DiskManager::partitionsForDisk(1)), QStringList{u"C:"_s});
    QVERIFY(DiskManager::partitionsForDisk(3).isEmpty());
    QCOMPARE(pc.devices.volumesOpened, (QStringList{u"C:"_s, u"C:"_s}));
}

void tst_DiskManager::theSystemPartitionIsAlsoTheBootPartition()
{
    FourDrives pc;
    pc.mount(u"C:"_s, {1});
    pc.mount(u"D:"_s, {1});
    pc.machine.fakeSession.systemRoots = {u"C:/"_s};
    const QList<PartitionInfo> partitions = DiskManager::partitionsForDisk(1);
    QCOMPARE(partitions.size(), 2);
    QVERIFY(partitions[0].isSystem);
    QVERIFY(partitions[0].isBoot);
    QVERIFY(!partitions[1].isSystem);
    QVERIFY(!partitions[1].isBoot);
}

void tst_DiskManager::theVolumeListIsWalkedOncePerDisk()
{
    FourDrives pc;
    pc.mount(u"E:"_s, {1});
    pc.mount(u"F:"_s, {2});
    pc.mount(u"G:"_s, {2});
    DiskManager::enumerateDisks();
    QCOMPARE(pc.devices.volumesOpened.size(), 4 * 3);
}

void tst_DiskManager::nothingIsKeptBetweenCalls()
{
    FourDrives pc;
    QCOMPARE(DiskManager::enumerateDisks().size(), 4);
    pc.devices.drives.remove(1);
    pc.devices.drives.insert(9, FakeDrive::usbStick());
    pc.mount(u"U:"_s, {9});
    QList<DiskInfo> disks = DiskManager::enumerateDisks();
    QCOMPARE(numbers(disks), (QList<int>{0, 2, 3, 9}));
    QCOMPARE(driveLetters(disks.last().partitions), QStringList{u"U:"_s});
    pc.devices.mountOrder.clear();
    QVERIFY(DiskManager::enumerateDisks().last().partitions.isEmpty());
}

void tst_DiskManager::aVolumeOnTwoDisksIsListedForBoth()
{
    FourDrives pc;
    pc.mount(u"D:"_s, {1});
    pc.mount(u"M:"_s, {3, 1, 2});
    pc.mount(u"E:"_s, {1, 1});
    QCOMPARE(DiskManager::spanningVolumesForDisk(1), QList<SpanningVolume>({{u"M:"_s, {2, 3}}}));
    QCOMPARE(DiskManager::spanningVolumesForDisk(3), QList<SpanningVolume>({{u"M:"_s, {1, 2}}}));
    QVERIFY(DiskManager::spanningVolumesForDisk(0).isEmpty());
    QCOMPARE(driveLetters(DiskManager::partitionsForDisk(1)), QStringList{u"D:"_s});
}

void tst_DiskManager::aVolumeBesideADeviceWithoutANumberSpansToo()
{
    FourDrives pc;
    pc.mount(u"M:"_s, {1, -1});
    QCOMPARE(DiskManager::spanningVolumesForDisk(1), QList<SpanningVolume>({{u"M:"_s, {-1}}}));
    pc.machine.fakeSession.systemVolumeNames = {u"M:"_s};
    QCOMPARE(pc.systemDisks(), QList<int>{1});
}

void tst_DiskManager::aSystemVolumeOnADeviceWithoutANumberGuardsNoDisk()
{
    FourDrives pc;
    pc.mount(u"/rootfs"_s, {-1});
    pc.mount(u"/medium"_s, {2});
    pc.machine.fakeSession.systemVolumeNames = {u"/rootfs"_s, u"/medium"_s};
    pc.devices.drives[2] = FakeDrive::usbStick();
    QCOMPARE(pc.systemDisks(), QList<int>{2});
}

void tst_DiskManager::theSameUnitOnAnotherWayIsASystemDiskToo()
{
    const auto named = [](const QString &model, const QString &serial, qint64 size) {
        FakeDrive drive = FakeDrive::rotating();
        drive.descriptor = platform::encodeDeviceDescriptor({.productId = model,
                                                             .serialNumber = serial,
                                                             .removableMedia = false,
                                                             .busType = platform::BusSas});
        drive.geometry = platform::Geometry{size, 512};
        return drive;
    };
    FourDrives pc;
    pc.devices.drives = {{0, named(u"A"_s, u"1"_s, 1 << 20)},
                         {1, named(u"A"_s, u"1"_s, 1 << 20)},
                         {2, named(u"A"_s, u"2"_s, 1 << 20)},
                         {3, named(u"A"_s, u"1"_s, 2 << 20)},
                         {4, named(u"B"_s, u"1"_s, 1 << 20)}};
    pc.mount(u"C:"_s, {1});
    pc.machine.fakeSession.systemVolumeNames = {u"C:"_s};
    QCOMPARE(pc.systemDisks(), QList<int>({0, 1}));

    for (FakeDrive &drive : pc.devices.drives)
        drive = named(u"A"_s, {}, 1 << 20);
    QCOMPARE(pc.systemDisks(), QList<int>{1});

    // A bridge may report another model and its own serial number, but passes on the unit's worldwide name.
    pc.devices.drives[0] = named(u"Bridge"_s, u"9"_s, 1 << 20);
    pc.devices.drives[0].worldWideName = u"naa.5000c500a1b2c3d4"_s;
    pc.devices.drives[1].worldWideName = u"naa.5000c500a1b2c3d4"_s;
    pc.devices.drives[2].worldWideName = u"naa.5000c500a1b2c3d5"_s;
    QCOMPARE(pc.systemDisks(), QList<int>({0, 1}));
}

void tst_DiskManager::moreExtentsThanAShortReplyHasRoomFor()
{
    FourDrives pc;
    QList<int> drives(platform::ManyExtents, 1);
    drives.append(2);
    pc.mount(u"M:"_s, drives);
    QCOMPARE(DiskManager::spanningVolumesForDisk(1), QList<SpanningVolume>({{u"M:"_s, {2}}}));
}

void tst_DiskManager::obstaclesOfADisk()
{
    FourDrives pc;
    pc.devices.drives[1].use = platform::DeviceUse{false, {u"RAID md0"_s}, {u"umount /m"_s, u"stop md0"_s}};
    pc.devices.drives[2].use = platform::DeviceUse{true, {}, {}};
    pc.mount(u"M:"_s, {1, 3});
    pc.devices.volumes[u"M:"_s].use = platform::DeviceUse{false, {}, {u"umount /m"_s, u"umount /n"_s}};
    const DiskObstacles first = DiskManager::obstacles(1);
    QVERIFY(!first.isEmpty() && !first.isReadOnly);
    QCOMPARE(first.spanningVolumes, QList<SpanningVolume>({{u"M:"_s, {3}}}));
    QCOMPARE(first.holders, QStringList{u"RAID md0"_s});
    QCOMPARE(first.releaseCommands, (QStringList{u"umount /m"_s, u"umount /n"_s, u"stop md0"_s}));
    QVERIFY(DiskManager::obstacles(2).isReadOnly);
    QVERIFY(!DiskManager::obstacles(2).isEmpty());
    QVERIFY(!DiskManager::obstacles(3).isEmpty());
    QVERIFY(DiskManager::obstacles(0).isEmpty());
}

void tst_DiskManager::theSameUnitInUseOnAnotherWayIsAnObstacle()
{
    FourDrives pc;
    for (int number = 0; number <= 3; ++number) {
        pc.devices.drives[number] = FakeDrive::rotating();
        pc.devices.drives[number].worldWideName = number < 2 ? u"naa.1"_s : u"naa.2"_s;
    }
    QVERIFY(DiskManager::obstacles(0).isEmpty());

    pc.mount(u"M:"_s, {1});
    pc.devices.volumes[u"M:"_s].use = platform::DeviceUse{false, {}, {u"umount /m"_s}};
    const DiskObstacles mounted = DiskManager::obstacles(0);
    QCOMPARE(mounted.holders, QStringList{u"M: (fake:drive1)"_s});
    QCOMPARE(mounted.releaseCommands, QStringList{u"umount /m"_s});
    // Its own volumes are in nobody's way.
    QVERIFY(DiskManager::obstacles(1).isEmpty());
    QVERIFY(DiskManager::obstacles(2).isEmpty());

    // What stands on both ways is named once.
    pc.devices.drives[2].use = platform::DeviceUse{false, {u"LVM data"_s}, {}};
    pc.devices.drives[3].use = platform::DeviceUse{false, {u"LVM data"_s}, {}};
    QCOMPARE(DiskManager::obstacles(2).holders, QStringList{u"LVM data"_s});
    pc.devices.drives[2].use = platform::DeviceUse();
    QCOMPARE(DiskManager::obstacles(2).holders, QStringList{u"LVM data"_s});
}

void tst_DiskManager::aDiskThatAnswersNothingHasNoObstacle()
{
    FourDrives pc;
    pc.devices.drives[1].use = fakeFailure(platform::NotSupported);
    QVERIFY(DiskManager::obstacles(1).isEmpty());
    QVERIFY(DiskManager::obstacles(30).isEmpty());
}

void tst_DiskManager::noHandleStaysOpen()
{
    FourDrives pc;
    pc.devices.drives.insert(4, FakeDrive::answeringNothing());
    pc.devices.drives.insert(5, FakeDrive::solidState());
    pc.mount(u"C:"_s, {0, 1});
    pc.mount(u"D:"_s, {1});
    pc.machine.fakeSession.systemVolumeNames = {u"C:"_s};
    DiskManager::enumerateDisks();
    QCOMPARE(pc.devices.openHandles, 0);
    // No drive is held open while its volumes or a second handle on it are opened.
    QCOMPARE(pc.devices.mostOpenHandles, 1);
}

namespace {

// Devices of which one answers only on request.
class SilentDevices : public platform::ForwardingDevices
{
public:
    using ForwardingDevices::ForwardingDevices;

    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryDrive(int number) override
    {
        if (number == silentDrive)
            keepWaiting();
        return ForwardingDevices::queryDrive(number);
    }
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override
    {
        if (name == silentVolume)
            keepWaiting();
        return ForwardingDevices::queryVolume(name);
    }

    int silentDrive = -1;
    QString silentVolume;
    std::atomic<int> asked{0};
    QSemaphore answers;

private:
    void keepWaiting()
    {
        ++asked;
        answers.acquire();
    }
};

struct SilentMachine
{
    FourDrives pc;
    SilentDevices devices{pc.devices};
    struct Machine : DevicePlatform
    {
        Machine(platform::Devices &devices, platform::Session &session)
            : DevicePlatform(devices)
            , sessionInUse(session)
        {}
        platform::Session &session() override { return sessionInUse; }

        platform::Session &sessionInUse;
    };
    Machine machine{devices, pc.machine.session()};
    platform::ScopedPlatform scope{machine};

    // The answering devices get all the time that a busy machine may need.
    SilentMachine() { limitedquestion::setLimit(std::chrono::seconds(3)); }
    ~SilentMachine() { limitedquestion::setLimit(limitedquestion::DefaultLimit); }

    // Waits until the late answer has arrived; no other query runs meanwhile.
    void letAnswer(const QString &device)
    {
        devices.answers.release(100);
        limitedquestion::setLimit(limitedquestion::DefaultLimit);
        QTRY_VERIFY_WITH_TIMEOUT(limitedquestion::ask(device, [] {}), 60000);
    }
};

} // namespace

void tst_DiskManager::aDriveThatDoesNotAnswerIsSkippedAndNotAskedAgain()
{
    SilentMachine silent;
    silent.devices.silentDrive = 2;
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(numbers(DiskManager::enumerateDisks()), (QList<int>{0, 1, 3}));
        QCOMPARE(silent.devices.asked.load(), 1);
    }
    silent.letAnswer(u"drive 2"_s);
    QCOMPARE(numbers(DiskManager::enumerateDisks()), (QList<int>{0, 1, 2, 3}));
}

void tst_DiskManager::aVolumeThatDoesNotAnswerIsOnNoDisk()
{
    SilentMachine silent;
    silent.pc.mount(u"E:"_s, {1});
    silent.pc.mount(u"F:"_s, {1});
    silent.devices.silentVolume = u"E:"_s;
    QCOMPARE(driveLetters(DiskManager::partitionsForDisk(1)), QStringList{u"F:"_s});
    QVERIFY(DiskManager::spanningVolumesForDisk(1).isEmpty());
    QCOMPARE(silent.devices.asked.load(), 1);
    silent.letAnswer(u"E:"_s);
    QCOMPARE(driveLetters(DiskManager::partitionsForDisk(1)), (QStringList{u"E:"_s, u"F:"_s}));
}

void tst_DiskManager::whatAQuestionThrowsIsThrown()
{
    const auto fail = [] { throw std::bad_alloc(); };
    QVERIFY_EXCEPTION_THROWN(limitedquestion::ask(u"drive"_s, fail), std::bad_alloc);
    QCOMPARE(limitedquestion::answerOf<int>(u"drive"_s, [] { return 7; }), std::optional<int>(7));
}

QUORVEX_SUITE(tst_DiskManager, QCoreApplication)
#include "tst_diskmanager.moc"
