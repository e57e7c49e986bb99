#include "platform/linux/linuxmounttable.h"
#include "support/suite.h"

#include <QTest>

using namespace platform;

class tst_MountTable : public QObject
{
    Q_OBJECT

private slots:
    void plainLine();
    void optionalFieldsAreKeptTogether();
    void octalEscapesAreDecoded();
    void orderIsKept();
    void damagedLinesArePassedOver();
    void swapAreas();
    void swapsOfAMachineWithoutAny();
};

void tst_MountTable::plainLine()
{
    const QList<MountEntry> entries =
        parseMountInfo("36 35 8:1 / /media/data rw,noatime - ext4 /dev/sda1 rw\n");
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0].deviceNumber, QByteArray("8:1"));
    QCOMPARE(entries[0].root, QStringLiteral("/"));
    QCOMPARE(entries[0].mountPoint, QStringLiteral("/media/data"));
    QCOMPARE(entries[0].fileSystem, QByteArray("ext4"));
    QCOMPARE(entries[0].source, QStringLiteral("/dev/sda1"));
    QCOMPARE(entries[0].options, QStringLiteral("rw"));
    QCOMPARE(entries[0].mountOptions, QStringLiteral("rw,noatime"));
    QCOMPARE(entries[0].propagation, QByteArray());
    QCOMPARE(entries[0].id, 36);
    QCOMPARE(entries[0].parent, 35);
}

void tst_MountTable::optionalFieldsAreKeptTogether()
{
    const QList<MountEntry> entries = parseMountInfo(
        "36 35 0:42 /home /home rw shared:7 master:1 propagate_from:2 - btrfs /dev/sdb rw,subvol=/home");
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0].root, QStringLiteral("/home"));
    QCOMPARE(entries[0].fileSystem, QByteArray("btrfs"));
    QCOMPARE(entries[0].source, QStringLiteral("/dev/sdb"));
    QCOMPARE(entries[0].options, QStringLiteral("rw,subvol=/home"));
    QCOMPARE(entries[0].mountOptions, QStringLiteral("rw"));
    QCOMPARE(entries[0].propagation, QByteArray("shared:7 master:1 propagate_from:2"));
}

void tst_MountTable::octalEscapesAreDecoded()
{
    const QList<MountEntry> entries =
        parseMountInfo("1 2 8:1 / /media/My\\040Disk\\134x\\012y\\04 rw - vfat /dev/sd\\141 rw");
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0].mountPoint, QStringLiteral("/media/My Disk\\x\ny\\04"));
    QCOMPARE(entries[0].source, QStringLiteral("/dev/sda"));
}

void tst_MountTable::orderIsKept()
{
    const QList<MountEntry> entries =
        parseMountInfo("1 0 8:2 / /z rw - ext4 /dev/sda2 rw\n2 0 8:1 / /a rw - ext4 /dev/sda1 rw\n");
    QCOMPARE(entries.size(), 2);
    QCOMPARE(entries[0].mountPoint, QStringLiteral("/z"));
    QCOMPARE(entries[1].mountPoint, QStringLiteral("/a"));
}

void tst_MountTable::damagedLinesArePassedOver()
{
    QCOMPARE(parseMountInfo({}).size(), 0);
    QCOMPARE(parseMountInfo("no separator in this line at all here\n").size(), 0);
    QCOMPARE(parseMountInfo("1 2 8:1 / /a rw -\n1 2 8:1 / /a rw - ext4\n").size(), 0);
}

void tst_MountTable::swapAreas()
{
    const QByteArray text = "Filename\t\t\t\tType\t\tSize\t\tUsed\t\tPriority\n"
                            "/dev/sda2                               partition\t8388604\t0\t-2\n"
                            "/swap\\040file                           file\t1024\t0\t-3\n";
    QCOMPARE(parseSwaps(text), QStringList({QStringLiteral("/dev/sda2"), QStringLiteral("/swap file")}));
}

void tst_MountTable::swapsOfAMachineWithoutAny()
{
    QCOMPARE(parseSwaps("Filename\t\t\t\tType\t\tSize\t\tUsed\t\tPriority\n"), QStringList());
}

QUORVEX_SUITE(tst_MountTable, suites::NoApplication)
#include "tst_mounttable.moc"
