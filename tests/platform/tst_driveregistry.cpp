#include "model/units.h"
#include "platform/linux/linuxdevices.h"
#include "platform/linux/linuxdriveregistry.h"
#include "platform/storagereplies.h"
#include "support/fakesystemtree.h"
#include "support/suite.h"

#include <QTest>

using namespace platform;

namespace {

QStringList names(const QList<Drive> &drives)
{
    QStringList list;
    for (const Drive &drive : drives)
        list.append(drive.kernelName);
    return list;
}

} // namespace

class tst_DriveRegistry : public QObject
{
    Q_OBJECT

private slots:
    void naturalNameOrder();
    void whatIsNoDrive();
    void unpluggingRenumbersNobody();
    void aDriveThatComesBackHasItsNumber();
    void anotherDriveUnderTheSameNodeGetsANewNumber();
    void driveWithoutSerialIsToldByItsAttachment();
    void numbersStayInReachOfEnumeration();
    void aSpareNumberNeverGoesToADriveThatCouldBeConfused();
    void sticksWithoutSerialNumbersStayInReach();
};

void tst_DriveRegistry::naturalNameOrder()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sdaa"), "65:160", GiB);
    fake.addDrive(QStringLiteral("sdb"), "8:16", GiB);
    fake.addDrive(QStringLiteral("nvme10n1"), "259:1", GiB);
    fake.addDrive(QStringLiteral("nvme2n1"), "259:0", GiB);
    fake.addDrive(QStringLiteral("sda"), "8:0", GiB);
    DriveRegistry registry(fake.tree());
    QCOMPARE(names(registry.drives()),
             QStringList({QStringLiteral("nvme2n1"), QStringLiteral("nvme10n1"), QStringLiteral("sda"),
                          QStringLiteral("sdb"), QStringLiteral("sdaa")}));
    QCOMPARE(registry.byNumber(2)->device, QByteArray("8:0"));
    QCOMPARE(registry.byDevice("65:160")->number, 4);
}

void tst_DriveRegistry::whatIsNoDrive()
{
    FakeSystemTree fake;
    const QStringList others{QStringLiteral("zram0"), QStringLiteral("ram0"), QStringLiteral("dm-0"),
                             QStringLiteral("md127"), QStringLiteral("sr0"),  QStringLiteral("mmcblk0boot0")};
    for (const QString &name : others)
        fake.addDrive(name, "240:" + QByteArray::number(others.indexOf(name)), GiB);
    fake.addDrive(QStringLiteral("loop0"), "7:0", 0); // not attached
    fake.addDrive(QStringLiteral("sda"), "8:0", GiB);
    fake.write(QStringLiteral("sys/block/sda/ro"), "1\n");
    fake.addDrive(QStringLiteral("nvme0c0n1"), "259:9", GiB);
    fake.write(QStringLiteral("sys/block/nvme0c0n1/hidden"), "1\n");
    fake.addDrive(QStringLiteral("mmcblk0"), "179:0", GiB);
    DriveRegistry registry(fake.tree());
    QCOMPARE(names(registry.drives()), QStringList({QStringLiteral("mmcblk0")}));
}

void tst_DriveRegistry::unpluggingRenumbersNobody()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", GiB, "A");
    fake.addDrive(QStringLiteral("sdb"), "8:16", GiB, "B");
    DriveRegistry registry(fake.tree());
    QCOMPARE(registry.drives().size(), 2);
    fake.removeDrive(QStringLiteral("sda"), "8:0");
    QCOMPARE(registry.drives().size(), 1);
    QCOMPARE(registry.byDevice("8:16")->number, 1);
    QVERIFY(!registry.byNumber(0));
    fake.addDrive(QStringLiteral("aaa"), "8:64", GiB, "C");
    QCOMPARE(registry.byDevice("8:64")->number, 2);
    QCOMPARE(registry.byDevice("8:16")->number, 1);
}

void tst_DriveRegistry::aDriveThatComesBackHasItsNumber()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", GiB, "A");
    fake.addDrive(QStringLiteral("sdb"), "8:16", GiB, "B");
    DriveRegistry registry(fake.tree());
    QCOMPARE(registry.byDevice("8:0")->number, 0);
    fake.removeDrive(QStringLiteral("sda"), "8:0");
    QVERIFY(!registry.byNumber(0));
    fake.addDrive(QStringLiteral("sda"), "8:0", GiB, "A");
    QCOMPARE(registry.byDevice("8:0")->number, 0);
}

void tst_DriveRegistry::anotherDriveUnderTheSameNodeGetsANewNumber()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("sda"), "8:0", GiB, "A");
    DriveRegistry registry(fake.tree());
    QCOMPARE(registry.byDevice("8:0")->number, 0);
    fake.removeDrive(QStringLiteral("sda"), "8:0");
    fake.addDrive(QStringLiteral("sda"), "8:0", GiB, "OTHER");
    QCOMPARE(registry.byDevice("8:0")->number, 1);
    QVERIFY(!registry.byNumber(0));
}

void tst_DriveRegistry::driveWithoutSerialIsToldByItsAttachment()
{
    FakeSystemTree fake;
    fake.addDrive(QStringLiteral("loop0"), "7:0", GiB);
    fake.write(QStringLiteral("sys/block/loop0/diskseq"), "11\n");
    DriveRegistry registry(fake.tree());
    QCOMPARE(registry.byDevice("7:0")->number, 0);
    fake.write(QStringLiteral("sys/block/loop0/diskseq"), "12\n");
    QCOMPARE(registry.byDevice("7:0")->number, 1);
}

void tst_DriveRegistry::numbersStayInReachOfEnumeration()
{
    FakeSystemTree fake;
    DriveRegistry registry(fake.tree());
    for (int i = 0; i < 32; ++i) {
        fake.addDrive(QStringLiteral("sda"), "8:0", GiB, "S" + QByteArray::number(i));
        QCOMPARE(registry.byDevice("8:0")->number, i);
        fake.removeDrive(QStringLiteral("sda"), "8:0");
    }
    fake.addDrive(QStringLiteral("sda"), "8:0", GiB, "NEW");
    QCOMPARE(registry.byDevice("8:0")->number, 0);
    // The first drive with number 0 returns after another drive got that number.
    fake.addDrive(QStringLiteral("sdb"), "8:16", GiB, "S0");
    QCOMPARE(registry.byDevice("8:16")->number, 1);
    QCOMPARE(registry.byDevice("8:0")->number, 0);
}

void tst_DriveRegistry::aSpareNumberNeverGoesToADriveThatCouldBeConfused()
{
    // The same node may be the same drive or another one, because it has neither a serial number nor a count
    // of attachments.
    FakeSystemTree fake;
    DriveRegistry registry(fake.tree());
    for (int i = 0; i < 40; ++i) {
        fake.addDrive(QStringLiteral("sda"), QByteArray("8:") + QByteArray::number(i), GiB);
        QCOMPARE(registry.byDevice(QByteArray("8:") + QByteArray::number(i))->number, i);
        fake.removeDrive(QStringLiteral("sda"), QByteArray("8:") + QByteArray::number(i));
    }
}

void tst_DriveRegistry::sticksWithoutSerialNumbersStayInReach()
{
    FakeSystemTree fake;
    LinuxDevices devices(fake.tree());
    DriveIdentity first;
    for (int i = 0; i < 70; ++i) {
        fake.addDrive(QStringLiteral("sda"), "8:0", GiB);
        fake.write(QStringLiteral("sys/block/sda/diskseq"), QByteArray::number(i + 1));
        int number = 0;
        while (number < 32 && !devices.queryDrive(number))
            ++number;
        QVERIFY2(number < 32, qPrintable(QString::number(i)));
        const DriveIdentity identity = identityOf(number, *devices.queryDrive(number).value());
        QCOMPARE(identity.worldWideName, QStringLiteral("attachment.%1").arg(i + 1));
        if (i == 0)
            first = identity;
        QCOMPARE(identity == first, i == 0); // the drive chosen first is not the present one
        fake.removeDrive(QStringLiteral("sda"), "8:0");
    }
}

QUORVEX_SUITE(tst_DriveRegistry, suites::NoApplication)
#include "tst_driveregistry.moc"
