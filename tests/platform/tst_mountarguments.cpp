#include "platform/linux/linuxmountarguments.h"
#include "support/suite.h"

#include <QTest>

#include <sys/mount.h>

using namespace platform;

namespace {

MountArguments argumentsOf(const QByteArray &line)
{
    const QList<MountEntry> entries = parseMountInfo(line);
    return entries.size() == 1 ? MountArguments::of(entries.first()) : MountArguments();
}

} // namespace

// The arguments of mounts, derived from the mount table.
class tst_MountArguments : public QObject
{
    Q_OBJECT

private slots:
    void flagsOfTheMountAndOfTheFileSystemAreKeptApart();
    void whatIsNoFlagGoesToTheDriver();
    void everyFlagOfAMount();
    void accessTimes_data();
    void accessTimes();
    void propagation_data();
    void propagation();
    void wholeFileSystemOrFolder_data();
    void wholeFileSystemOrFolder();
};

void tst_MountArguments::flagsOfTheMountAndOfTheFileSystemAreKeptApart()
{
    const MountArguments place = argumentsOf("1 0 8:1 / /a ro,relatime - ext4 /dev/sda1 rw,sync\n");
    QCOMPARE(place.mountFlags, static_cast<unsigned long>(MS_RDONLY | MS_RELATIME));
    QCOMPARE(place.fileSystemFlags, static_cast<unsigned long>(MS_SYNCHRONOUS));
    const MountArguments all = argumentsOf("1 0 8:1 / /a rw,relatime - ext4 /dev/sda1 ro,dirsync,lazytime\n");
    QCOMPARE(all.mountFlags, static_cast<unsigned long>(MS_RELATIME));
    QCOMPARE(all.fileSystemFlags, static_cast<unsigned long>(MS_RDONLY | MS_DIRSYNC) | 1UL << 25);
}

void tst_MountArguments::whatIsNoFlagGoesToTheDriver()
{
    QCOMPARE(argumentsOf("1 0 8:1 / /a rw - ext4 /dev/sda1 rw,errors=remount-ro,sync,commit=30\n").data,
             QByteArray("errors=remount-ro,commit=30"));
    QCOMPARE(argumentsOf("1 0 8:1 / /a rw - ext4 /dev/sda1 rw\n").data, QByteArray());
    QCOMPARE(argumentsOf("1 0 8:1 / /a rw - vfat /dev/sda1 rw,iocharset=a\\040b\n").data,
             QByteArray("iocharset=a b"));
}

void tst_MountArguments::everyFlagOfAMount()
{
    QCOMPARE(
        argumentsOf("1 0 8:1 / /a ro,nosuid,nodev,noexec,noatime,nodiratime,nosymfollow - ext4 /dev/sda1 rw")
            .mountFlags,
        static_cast<unsigned long>(MS_RDONLY | MS_NOSUID | MS_NODEV | MS_NOEXEC | MS_NOATIME | MS_NODIRATIME |
                                   MS_NOSYMFOLLOW));
}

void tst_MountArguments::accessTimes_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<qulonglong>("flags");
    QTest::newRow("relative") << QByteArray("rw,relatime") << qulonglong(MS_RELATIME);
    QTest::newRow("none") << QByteArray("rw,noatime") << qulonglong(MS_NOATIME);
    QTest::newRow("every one") << QByteArray("rw") << qulonglong(MS_STRICTATIME);
}

void tst_MountArguments::accessTimes()
{
    QFETCH(const QByteArray, options);
    QFETCH(const qulonglong, flags);
    QCOMPARE(qulonglong(argumentsOf("1 0 8:1 / /a " + options + " - ext4 /dev/sda1 rw").mountFlags), flags);
}

void tst_MountArguments::propagation_data()
{
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<qulonglong>("flag");
    QTest::newRow("private") << QByteArray() << qulonglong(MS_PRIVATE);
    QTest::newRow("shared") << QByteArray("shared:12 ") << qulonglong(MS_SHARED);
    QTest::newRow("shared, from a master") << QByteArray("shared:3 master:12 ") << qulonglong(MS_SHARED);
    QTest::newRow("from a master") << QByteArray("master:12 ") << qulonglong(MS_PRIVATE);
    QTest::newRow("unbindable") << QByteArray("unbindable ") << qulonglong(MS_UNBINDABLE);
}

void tst_MountArguments::propagation()
{
    QFETCH(const QByteArray, fields);
    QFETCH(const qulonglong, flag);
    QCOMPARE(qulonglong(argumentsOf("1 0 8:1 / /a rw " + fields + "- ext4 /dev/sda1 rw").propagation), flag);
}

void tst_MountArguments::wholeFileSystemOrFolder_data()
{
    QTest::addColumn<QByteArray>("root");
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("root") << QByteArray("/") << QByteArray("rw") << true;
    QTest::newRow("folder") << QByteArray("/home") << QByteArray("rw") << false;
    QTest::newRow("subvolume") << QByteArray("/@home") << QByteArray("rw,subvolid=257,subvol=/@home") << true;
    QTest::newRow("folder of a subvolume")
        << QByteArray("/@home/me") << QByteArray("rw,subvolid=257,subvol=/@home") << false;
}

void tst_MountArguments::wholeFileSystemOrFolder()
{
    QFETCH(const QByteArray, root);
    QFETCH(const QByteArray, options);
    QFETCH(const bool, isWhole);
    QCOMPARE(argumentsOf("1 0 0:42 " + root + " /a rw - btrfs /dev/sda1 " + options).isWhole, isWhole);
}

QUORVEX_SUITE(tst_MountArguments, suites::NoApplication)
#include "tst_mountarguments.moc"
