#include "model/units.h"
#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxdevices.h"
#include "platform/linux/linuxsession.h"
#include "support/fakesystemtree.h"
#include "support/suite.h"

#include <QTest>

using namespace platform;

// The relations between block devices, on machines given as trees of files.
class tst_BlockTree : public QObject
{
    Q_OBJECT

private slots:
    void aDriveIsItsOwnExtent();
    void aPartitionLiesOnItsDrive();
    void lvmOverTwoDrives();
    void encryptedVolumeInLvm();
    void partitionOfAnMdMirror();
    void btrfsMembers();
    void aDeviceThatIsGone();
    void systemVolumesAreTracedThroughLvm();
    void systemOnAMultiDeviceBtrfs();
    void holdersOfADrive();
    void aHolderReachedOnTwoWaysComesAboveBoth();
    void whatReleasesADrive();
    void aDriveThatNobodyHolds();
    void aStretchOnNoDriveIsTold();
    void aReadOnlyDeviceSaysSo();
    void swapInMemoryIsNoSystemVolume();
    void swapPartitionAndSwapFile();
    void aSystemRunningFromMemoryHasNoSystemVolume();
    void aLiveSystemGuardsItsMedium();
    void anOverlayOverOtherDrives();
    void aRootWithoutAMediumGuardsEveryMountedDrive();
    void aRootWithoutAMediumGuardsWhatIsBuiltOn();
    void aRootWithAMediumGuardsNothingElse();
    void worldWideNames_data();
    void worldWideNames();
    void anOverlayOverItselfEnds();
    void otherPlacesOfTheSystem();
    void oneVolumePerDevice();
    void laterMountHidesTheEarlier();
};

void tst_BlockTree::aDriveIsItsOwnExtent()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    const BlockTree blocks(fake.tree());
    QCOMPARE(blocks.extentsOf("8:0"), QList<DriveExtent>({{"8:0", 0, 100 * MiB}}));
    QCOMPARE(blocks.kernelName("8:0"), QStringLiteral("sda"));
    QCOMPARE(blocks.node("8:0"), fake.path(QStringLiteral("dev/sda")));
}

void tst_BlockTree::aPartitionLiesOnItsDrive()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addPartition(QStringLiteral("sda"), QStringLiteral("sda1"), "8:1", MiB, 50 * MiB);
    QCOMPARE(BlockTree(fake.tree()).extentsOf("8:1"), QList<DriveExtent>({{"8:0", MiB, 50 * MiB}}));
}

void tst_BlockTree::lvmOverTwoDrives()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addPartition(QStringLiteral("sda"), QStringLiteral("sda3"), "8:3", 2 * MiB, 50 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 200 * MiB);
    fake.addStacked(QStringLiteral("dm-0"), "253:0", 240 * MiB,
                    {QStringLiteral("sda3"), QStringLiteral("sdb")});
    QCOMPARE(BlockTree(fake.tree()).extentsOf("253:0"),
             QList<DriveExtent>({{"8:0", 2 * MiB, 50 * MiB}, {"8:16", 0, 200 * MiB}}));
}

void tst_BlockTree::encryptedVolumeInLvm()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("nvme0n1"), "259:0", 100 * MiB);
    fake.addPartition(QStringLiteral("nvme0n1"), QStringLiteral("nvme0n1p2"), "259:2", MiB, 90 * MiB);
    fake.addStacked(QStringLiteral("dm-0"), "253:0", 80 * MiB, {QStringLiteral("nvme0n1p2")});
    fake.addStacked(QStringLiteral("dm-1"), "253:1", 70 * MiB, {QStringLiteral("dm-0")});
    QCOMPARE(BlockTree(fake.tree()).extentsOf("253:1"), QList<DriveExtent>({{"259:0", MiB, 90 * MiB}}));
}

void tst_BlockTree::partitionOfAnMdMirror()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.addStacked(QStringLiteral("md0"), "9:0", 99 * MiB, {QStringLiteral("sda"), QStringLiteral("sdb")});
    fake.addPartition(QStringLiteral("md0"), QStringLiteral("md0p1"), "259:0", MiB, 50 * MiB);
    QCOMPARE(BlockTree(fake.tree()).extentsOf("259:0"),
             QList<DriveExtent>({{"8:0", 0, 100 * MiB}, {"8:16", 0, 100 * MiB}}));
}

void tst_BlockTree::btrfsMembers()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.addDrive(QStringLiteral("sdc"), "8:32", 100 * MiB);
    fake.addBtrfs(QStringLiteral("uuid"), {QStringLiteral("sda"), QStringLiteral("sdb")});
    const BlockTree blocks(fake.tree());
    QCOMPARE(blocks.fileSystemMembers("8:16"), QList<QByteArray>({"8:0", "8:16"}));
    QCOMPARE(blocks.fileSystemMembers("8:32"), QList<QByteArray>({"8:32"}));
}

void tst_BlockTree::aDeviceThatIsGone()
{
    FakeSystemTree fake;
    const BlockTree blocks(fake.tree());
    QVERIFY(!blocks.exists("8:0"));
    QCOMPARE(blocks.node("8:0"), QString());
    QCOMPARE(blocks.extentsOf("8:0"), QList<DriveExtent>());
}

void tst_BlockTree::systemVolumesAreTracedThroughLvm()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addPartition(QStringLiteral("sda"), QStringLiteral("sda1"), "8:1", MiB, 50 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 200 * MiB);
    fake.addStacked(QStringLiteral("dm-0"), "253:0", 240 * MiB,
                    {QStringLiteral("sda1"), QStringLiteral("sdb")});
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 253:0 / / rw - ext4 /dev/mapper/vg-root rw\n");

    LinuxSession session(fake.tree());
    QCOMPARE(session.systemVolumes(), QStringList({QStringLiteral("/")}));
    LinuxDevices devices(fake.tree());
    auto query = devices.queryVolume(QStringLiteral("/"));
    QVERIFY(query.ok());
    QCOMPARE(query.value()->extents(OneExtent).code(), quint32(MoreData));
    const Result<QList<Extent>> extents = query.value()->extents(ManyExtents);
    QVERIFY(extents.ok());
    QCOMPARE(extents.value(), QList<Extent>({{0, MiB, 50 * MiB}, {1, 0, 200 * MiB}}));
}

void tst_BlockTree::systemOnAMultiDeviceBtrfs()
{
    // The mounted node is not a block device here, so the device number must be the file system's own. A
    // tree with a single device provides it; the members come from /sys/fs.
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.addBtrfs(QStringLiteral("uuid"), {QStringLiteral("sda"), QStringLiteral("sdb")});
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 8:16 /@ / rw - btrfs /dev/sdb rw,subvol=/@\n");
    LinuxDevices devices(fake.tree());
    auto query = devices.queryVolume(QStringLiteral("/"));
    QVERIFY(query.ok());
    const Result<QList<Extent>> extents = query.value()->extents(ManyExtents);
    QVERIFY(extents.ok());
    QCOMPARE(extents.value().size(), 2);
    // The device opened for the volume comes first, whatever the names.
    QCOMPARE(extents.value()[0].diskNumber, 1);
    QCOMPARE(extents.value()[1].diskNumber, 0);
}

// A mirror of two partitions, with encryption on it, a group of volumes in that, and one of them mounted.
static void layOutStack(FakeSystemTree &fake)
{
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addPartition(QStringLiteral("sda"), QStringLiteral("sda1"), "8:1", MiB, 50 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.addPartition(QStringLiteral("sdb"), QStringLiteral("sdb1"), "8:17", MiB, 50 * MiB);
    fake.addDrive(QStringLiteral("sdc"), "8:32", 100 * MiB);
    fake.addStacked(QStringLiteral("md0"), "9:0", 50 * MiB, {QStringLiteral("sda1"), QStringLiteral("sdb1")});
    fake.addStacked(QStringLiteral("dm-1"), "253:1", 48 * MiB, {QStringLiteral("md0")});
    fake.write(QStringLiteral("sys/block/dm-1/dm/name"), "secret\n");
    fake.write(QStringLiteral("sys/block/dm-1/dm/uuid"), "CRYPT-LUKS2-0123-secret\n");
    fake.addStacked(QStringLiteral("dm-0"), "253:0", 20 * MiB, {QStringLiteral("dm-1")});
    fake.write(QStringLiteral("sys/block/dm-0/dm/name"), "vg-my data\n");
    fake.write(QStringLiteral("sys/block/dm-0/dm/uuid"), "LVM-abc\n");
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 253:0 / /data rw - ext4 /dev/dm-0 rw\n"
                                                      "2 0 253:0 / /data/again rw - ext4 /dev/dm-0 rw\n");
}

void tst_BlockTree::holdersOfADrive()
{
    FakeSystemTree fake;
    layOutStack(fake);
    LinuxDevices devices(fake.tree());
    const QStringList holders{QStringLiteral("RAID md0"), QStringLiteral("LUKS secret"),
                              QStringLiteral("LVM vg-my data")};
    for (const int number : {0, 1}) {
        auto query = devices.queryDrive(number);
        QVERIFY(query.ok());
        QCOMPARE(query.value()->use().value().holders, holders);
        QVERIFY(!query.value()->use().value().isReadOnly);
    }
    // The mounted volume lies on both drives.
    auto volume = devices.queryVolume(QStringLiteral("/data"));
    QVERIFY(volume.ok());
    QCOMPARE(volume.value()->extents(ManyExtents).value().size(), 2);
}

void tst_BlockTree::aHolderReachedOnTwoWaysComesAboveBoth()
{
    // Volumes on a partition and on an array that stands on another one.
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addPartition(QStringLiteral("sda"), QStringLiteral("sda1"), "8:1", MiB, 40 * MiB);
    fake.addPartition(QStringLiteral("sda"), QStringLiteral("sda2"), "8:2", 50 * MiB, 40 * MiB);
    fake.addStacked(QStringLiteral("md0"), "9:0", 40 * MiB, {QStringLiteral("sda2")});
    fake.addStacked(QStringLiteral("dm-0"), "253:0", 80 * MiB,
                    {QStringLiteral("sda1"), QStringLiteral("md0")});
    QCOMPARE(BlockTree(fake.tree()).holdersOf("8:0"), QList<QByteArray>({"9:0", "253:0"}));
}

void tst_BlockTree::whatReleasesADrive()
{
    FakeSystemTree fake;
    layOutStack(fake);
    LinuxDevices devices(fake.tree());
    auto query = devices.queryDrive(1);
    QVERIFY(query.ok());
    QCOMPARE(query.value()->use().value().releaseCommands,
             QStringList({QStringLiteral("umount /data/again"), QStringLiteral("umount /data"),
                          QStringLiteral("lvchange -an '/dev/mapper/vg-my data'"),
                          QStringLiteral("cryptsetup close secret"),
                          QStringLiteral("mdadm --stop ") + fake.path(QStringLiteral("dev/md0"))}));
    auto volume = devices.queryVolume(QStringLiteral("/data"));
    QCOMPARE(volume.value()->use().value().releaseCommands,
             QStringList({QStringLiteral("umount /data/again"), QStringLiteral("umount /data")}));
}

void tst_BlockTree::aDriveThatNobodyHolds()
{
    FakeSystemTree fake;
    layOutStack(fake);
    LinuxDevices devices(fake.tree());
    auto query = devices.queryDrive(2);
    QVERIFY(query.ok());
    QVERIFY(query.value()->use().value().holders.isEmpty());
    QVERIFY(query.value()->use().value().releaseCommands.isEmpty());
}

void tst_BlockTree::aStretchOnNoDriveIsTold()
{
    // The second member of the mirror is a read-only drive, which has no number.
    FakeSystemTree fake;
    layOutStack(fake);
    fake.write(QStringLiteral("sys/block/sdb/ro"), "1\n");
    LinuxDevices devices(fake.tree());
    auto volume = devices.queryVolume(QStringLiteral("/data"));
    QVERIFY(volume.ok());
    const Result<QList<Extent>> extents = volume.value()->extents(ManyExtents);
    QVERIFY(extents.ok());
    QCOMPARE(extents.value(), QList<Extent>({{0, MiB, 50 * MiB}, {-1, MiB, 50 * MiB}}));
}

void tst_BlockTree::aReadOnlyDeviceSaysSo()
{
    FakeSystemTree fake;
    layOutStack(fake);
    fake.write(QStringLiteral("sys/block/dm-0/ro"), "1\n");
    LinuxDevices devices(fake.tree());
    QVERIFY(devices.queryVolume(QStringLiteral("/data")).value()->use().value().isReadOnly);
}

void tst_BlockTree::swapInMemoryIsNoSystemVolume()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 8:16 / / rw - ext4 /dev/sdb rw\n"
                                                      "2 1 8:0 / /dev rw - ext4 /dev/sda rw\n");
    fake.write(QStringLiteral("proc/swaps"),
               "Filename Type Size Used Priority\n/dev/zram0 partition 1 0 100\n");
    QCOMPARE(LinuxSession(fake.tree()).systemVolumes(), QStringList{QStringLiteral("/")});
}

void tst_BlockTree::swapPartitionAndSwapFile()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.addDrive(QStringLiteral("sdc"), "8:32", 100 * MiB);
    fake.write(QStringLiteral("proc/self/mountinfo"), "3 0 8:32 / / rw - ext4 /dev/sdc rw\n"
                                                      "1 0 8:0 / /data rw - ext4 /dev/sda rw\n"
                                                      "2 0 8:16 / /data/deep rw - ext4 /dev/sdb rw\n");
    fake.write(QStringLiteral("proc/swaps"),
               "Filename Type Size Used Priority\n/data/deep/swapfile file 1 0 -2\n");
    QCOMPARE(LinuxSession(fake.tree()).systemVolumes(),
             QStringList({QStringLiteral("/"), QStringLiteral("/data/deep")}));
}

void tst_BlockTree::aSystemRunningFromMemoryHasNoSystemVolume()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 0:20 / / rw - overlay overlay rw,lowerdir=/a\n");
    QCOMPARE(LinuxSession(fake.tree()).systemVolumes(), QStringList());
}

void tst_BlockTree::aLiveSystemGuardsItsMedium()
{
    // The live system is an image on a stick. The internal drive is only mounted for viewing and stays
    // erasable.
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.addDrive(QStringLiteral("loop0"), "7:0", 50 * MiB);
    fake.write(QStringLiteral("sys/block/loop0/ro"), "1\n");
    fake.write(QStringLiteral("sys/block/loop0/loop/backing_file"), "/run/live/medium/live/root.squashfs\n");
    fake.write(QStringLiteral("proc/self/mountinfo"),
               "1 0 0:20 / / rw - overlay overlay rw,lowerdir=/run/live/rootfs,upperdir=/run/live/cow/rw\n"
               "2 1 8:16 / /run/live/medium ro - vfat /dev/sdb ro\n"
               "3 1 7:0 / /run/live/rootfs ro - squashfs /dev/loop0 ro\n"
               "4 1 0:21 / /run/live/cow rw - tmpfs tmpfs rw\n"
               "5 1 8:0 / /mnt rw - ext4 /dev/sda rw\n");
    QCOMPARE(LinuxSession(fake.tree()).systemVolumes(),
             QStringList({QStringLiteral("/run/live/rootfs"), QStringLiteral("/run/live/medium")}));
}

void tst_BlockTree::anOverlayOverOtherDrives()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.addDrive(QStringLiteral("sdc"), "8:32", 100 * MiB);
    fake.write(QStringLiteral("proc/self/mountinfo"),
               "1 0 0:20 / / rw - overlay overlay rw,lowerdir=/ro/one:/ro/two,upperdir=/rw/up\n"
               "2 1 8:0 / /ro ro - ext4 /dev/sda ro\n"
               "3 1 8:16 / /ro/two ro - ext4 /dev/sdb ro\n"
               "4 1 8:32 / /rw rw - ext4 /dev/sdc rw\n");
    QCOMPARE(LinuxSession(fake.tree()).systemVolumes(),
             QStringList({QStringLiteral("/ro"), QStringLiteral("/ro/two"), QStringLiteral("/rw")}));
}

void tst_BlockTree::aRootWithoutAMediumGuardsEveryMountedDrive()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.addDrive(QStringLiteral("loop0"), "7:0", 50 * MiB);
    fake.write(QStringLiteral("sys/block/loop0/loop/backing_file"), "/data/image\n");
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 0:20 / / rw - tmpfs tmpfs rw\n"
                                                      "2 1 8:0 / /data rw - ext4 /dev/sda rw\n"
                                                      "3 1 7:0 / /image rw - ext4 /dev/loop0 rw\n");
    QCOMPARE(LinuxSession(fake.tree()).systemVolumes(),
             QStringList({QStringLiteral("/data"), QStringLiteral("/image")}));
}

namespace {

// An array on sda1, a member of a group on sdb, a locked container on sdc2, and sdd, which holds nothing.
void layOutMembers(FakeSystemTree &fake)
{
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addPartition(QStringLiteral("sda"), QStringLiteral("sda1"), "8:1", MiB, 50 * MiB);
    fake.addStacked(QStringLiteral("md0"), "9:0", 50 * MiB, {QStringLiteral("sda1")});
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.write(QStringLiteral("udev/b8:16"), "E:ID_FS_TYPE=LVM2_member\nE:ID_FS_USAGE=raid\n");
    fake.addDrive(QStringLiteral("sdc"), "8:32", 100 * MiB);
    fake.addPartition(QStringLiteral("sdc"), QStringLiteral("sdc2"), "8:34", MiB, 50 * MiB);
    fake.write(QStringLiteral("udev/b8:34"), "E:ID_FS_TYPE=crypto_LUKS\nE:ID_FS_USAGE=crypto\n");
    fake.addDrive(QStringLiteral("sdd"), "8:48", 100 * MiB);
    fake.write(QStringLiteral("udev/b8:48"), "E:ID_FS_TYPE=ext4\nE:ID_FS_USAGE=filesystem\n");
}

} // namespace

void tst_BlockTree::aRootWithoutAMediumGuardsWhatIsBuiltOn()
{
    FakeSystemTree fake;
    layOutMembers(fake);
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 0:20 / / rw - tmpfs tmpfs rw\n");
    const QStringList volumes = LinuxSession(fake.tree()).systemVolumes();
    QSet<int> drives;
    LinuxDevices devices(fake.tree());
    for (const QString &volume : volumes) {
        // The nodes here are no block devices, so their kernel names identify them.
        const QString name = volume.section(u'/', -1);
        for (const QString &drive :
             {QStringLiteral("sda"), QStringLiteral("sdb"), QStringLiteral("sdc"), QStringLiteral("sdd")}) {
            if (name.startsWith(drive))
                drives.insert(drive.back().unicode() - u'a');
        }
    }
    QCOMPARE(drives, QSet<int>({0, 1, 2}));
    QVERIFY(volumes.contains(fake.path(QStringLiteral("dev/sdc2"))));
}

void tst_BlockTree::aRootWithAMediumGuardsNothingElse()
{
    FakeSystemTree fake;
    layOutMembers(fake);
    fake.addDrive(QStringLiteral("sde"), "8:64", 100 * MiB);
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 8:64 / / rw - ext4 /dev/sde rw\n");
    QCOMPARE(LinuxSession(fake.tree()).systemVolumes(), QStringList{QStringLiteral("/")});
}

void tst_BlockTree::worldWideNames_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("name");
    const QString own = QStringLiteral("sys/block/sda/wwid");
    const QString devices = QStringLiteral("sys/block/sda/device/wwid");
    QTest::newRow("none") << QStringLiteral("sys/block/sda/other") << QByteArray("naa.5000") << QString();
    QTest::newRow("ATA, SCSI") << devices << QByteArray("naa.5000c500a1b2c3d4\n")
                               << QStringLiteral("naa.5000c500a1b2c3d4");
    QTest::newRow("NVMe") << own << QByteArray("eui.0025385b71b0a1c2\n")
                          << QStringLiteral("eui.0025385b71b0a1c2");
    QTest::newRow("NVMe, UUID") << own << QByteArray("uuid.4f1a\n") << QStringLiteral("uuid.4f1a");
    QTest::newRow("maker's text") << devices << QByteArray("t10.ATA     DISK  1 \n") << QString();
    QTest::newRow("NVMe, put together") << own << QByteArray("nvme.1b36-31-51-0001\n") << QString();
}

void tst_BlockTree::worldWideNames()
{
    QFETCH(QString, attribute);
    QFETCH(QByteArray, text);
    QFETCH(QString, name);
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.write(attribute, text);
    LinuxDevices devices(fake.tree());
    const Result<QString> told = devices.queryDrive(0).value()->worldWideName();
    QCOMPARE(told.valueOr({}), name);
    QCOMPARE(told.code(), quint32(name.isEmpty() ? NotSupported : NoError));
}

void tst_BlockTree::anOverlayOverItselfEnds()
{
    FakeSystemTree fake;
    fake.write(QStringLiteral("proc/self/mountinfo"),
               "1 0 0:20 / / rw - overlay overlay rw,lowerdir=/a:/b,upperdir=/c\n");
    QCOMPARE(LinuxSession(fake.tree()).systemVolumes(), QStringList());
}

void tst_BlockTree::otherPlacesOfTheSystem()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.addDrive(QStringLiteral("sdc"), "8:32", 100 * MiB);
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 8:0 / / rw - ext4 /dev/sda rw\n"
                                                      "2 1 8:16 / /efi rw - vfat /dev/sdb rw\n"
                                                      "3 1 8:32 / /nix rw - ext4 /dev/sdc rw\n");
    QCOMPARE(LinuxSession(fake.tree()).systemVolumes(),
             QStringList({QStringLiteral("/"), QStringLiteral("/efi"), QStringLiteral("/nix")}));
}

void tst_BlockTree::oneVolumePerDevice()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 8:0 / /first rw - ext4 /dev/sda rw\n"
                                                      "2 0 0:5 / /proc rw - proc proc rw\n"
                                                      "3 0 8:0 /sub /second rw - ext4 /dev/sda rw\n");
    LinuxDevices devices(fake.tree());
    QCOMPARE(devices.volumeNames(), QStringList({QStringLiteral("/first")}));
    QCOMPARE(VolumeTable(fake.tree()).mountPointsOf("8:0"),
             QStringList({QStringLiteral("/second"), QStringLiteral("/first")}));
}

void tst_BlockTree::laterMountHidesTheEarlier()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", 100 * MiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", 100 * MiB);
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 8:0 / /mnt rw - ext4 /dev/sda rw\n"
                                                      "2 0 8:16 / /mnt rw - ext4 /dev/sdb rw\n");
    QCOMPARE(VolumeTable(fake.tree()).byName(QStringLiteral("/mnt")).device, QByteArray("8:16"));
}

QUORVEX_SUITE(tst_BlockTree, suites::NoApplication)
#include "tst_blocktree.moc"
