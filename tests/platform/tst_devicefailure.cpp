#include "platform/devicefailure.h"
#include "support/suite.h"

#include <QList>
#include <QTest>

using namespace platform;

// The meaning of device error numbers.
class tst_DeviceFailure : public QObject
{
    Q_OBJECT

private slots:
    void everyNumberHasItsMeaning();
    void theNumbersAreThoseOfTheSystem();
};

void tst_DeviceFailure::everyNumberHasItsMeaning()
{
    const QList<quint32> gone{20, 21, 34, 55, 59, 64, 433, 1006, 1110, 1112, 1167, 1235, 1617};
    const QList<quint32> faults{31, 483, 1005, 1117, 1392};
    for (quint32 code = 0; code < 20'000; ++code) {
        QVERIFY2(isDeviceGone(code) == gone.contains(code), QByteArray::number(code).constData());
        QVERIFY2(isMediumFault(code) == faults.contains(code), QByteArray::number(code).constData());
        QVERIFY(!isLockedByEncryption(code));
    }
    // The only error number of encrypted volumes that means a locked volume.
    for (quint32 code = 0x80310000; code < 0x80310200; ++code) {
        QCOMPARE(isLockedByEncryption(code), code == 0x80310000);
        QVERIFY(!isDeviceGone(code) && !isMediumFault(code));
    }
}

void tst_DeviceFailure::theNumbersAreThoseOfTheSystem()
{
    QCOMPARE(quint32(BadUnit), 20u);
    QCOMPARE(quint32(WrongDisk), 34u);
    QCOMPARE(quint32(DeviceNotExist), 55u);
    QCOMPARE(quint32(UnexpectedNetworkError), 59u);
    QCOMPARE(quint32(NetworkNameDeleted), 64u);
    QCOMPARE(quint32(NoSuchDevice), 433u);
    QCOMPARE(quint32(DeviceHardwareError), 483u);
    QCOMPARE(quint32(UnrecognizedVolume), 1005u);
    QCOMPARE(quint32(FileInvalid), 1006u);
    QCOMPARE(quint32(MediaChanged), 1110u);
    QCOMPARE(quint32(NoMediaInDrive), 1112u);
    QCOMPARE(quint32(DeviceNotConnected), 1167u);
    QCOMPARE(quint32(RequestAborted), 1235u);
    QCOMPARE(quint32(FileCorrupt), 1392u);
    QCOMPARE(quint32(DeviceRemoved), 1617u);
}

QUORVEX_SUITE(tst_DeviceFailure, suites::NoApplication)
#include "tst_devicefailure.moc"
