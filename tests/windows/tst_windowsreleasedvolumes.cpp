#include "platform/windows/windowsdevices.h"
#include "support/suite.h"
#include "windows/scriptedmachine.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTest>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

constexpr DWORD Lock = 0x00090018;
constexpr DWORD Dismount = 0x00090020;
constexpr DWORD GetAttributes = 0x000700F0;
constexpr DWORD SetAttributes = 0x0007C0F4;
constexpr DWORD LookAnew = 0x00070140;

// Drive 3 with the volumes E: and F: on it.
class Machine : public ScriptedMachine
{
public:
    static constexpr qint64 FirstAt = 1048576;
    static constexpr qint64 SecondAt = FirstAt + VolumeSize;
    const QString second = QStringLiteral(R"(\\.\F:)");
    const QString nameless = QStringLiteral(R"(\\?\Volume{nameless})");

    Machine()
    {
        addVolume(second, SecondAt);
        setOffline(false);
        script(drive, SetAttributes, {});
        script(drive, LookAnew, {});
    }
    void placeSecond(qint32 disk) { place(second, SecondAt, disk); }
    void setOffline(bool offline)
    {
        script(drive, GetAttributes,
               replies::number<quint32>(16) + replies::number<quint32>(0) +
                   replies::number<quint64>(offline ? 3 : 2));
    }
};

VolumeRelease release(const Machine &machine)
{
    return WindowsDevices().releaseVolumes(machine.identity);
}

} // namespace

// Drives of Windows taken offline and back online.
class tst_WindowsReleasedVolumes : public QObject
{
    Q_OBJECT

private slots:
    void volumesAreLockedBeforeTheDriveGoesOffline();
    void theRequestIsThatOfTheSystem();
    void theDriveComesOnlineAgain_data();
    void theDriveComesOnlineAgain();
    void aDriveThatIsOfflineStaysSo();
    void aVolumeInUseIsInTheWay();
    void volumesWithoutALetterAreLockedToo();
    void aVolumeWithoutALetterIsInTheWay();
    void aVolumeElsewhereIsNotTouched();
    void aVolumeElsewhereTooIsInTheWay();
    void anotherDriveIsNotReleased();
    void aRefusedDriveIsLeftAsItWas();
    void mediaThatCannotGoOfflineStayLocked_data();
    void mediaThatCannotGoOfflineStayLocked();
    void aVolumeThatStaysMountedIsInTheWay();
    void aVolumeThatNobodyHasUnlockedIsNotInTheWay_data();
    void aVolumeThatNobodyHasUnlockedIsNotInTheWay();
    void noOtherAnswerOfEncryptionExcusesALock();
    void aDriveThatStaysOfflineIsTold();
};

void tst_WindowsReleasedVolumes::volumesAreLockedBeforeTheDriveGoesOffline()
{
    Machine machine;
    const VolumeRelease released = release(machine);
    QVERIFY2(released.volumes, qPrintable(released.failure.diagnostic()));
    QCOMPARE(machine.deeds(), (QStringList{u"lock E:"_s, u"lock F:"_s, u"offline PhysicalDrive3"_s}));
    QCOMPARE(released.volumes->names(), (QStringList{u"E:"_s, u"F:"_s}));
    // The volumes disappeared with the drive.
    QVERIFY(!released.volumes->holds(u"E:"_s));
    QCOMPARE(machine.faults.openPaths(), QStringList{machine.drive});
    QVERIFY(machine.isUntouched());
}

void tst_WindowsReleasedVolumes::theRequestIsThatOfTheSystem()
{
    Machine machine;
    release(machine).volumes.reset();
    QList<QByteArray> inputs;
    for (const Win32Faults::Control &control : machine.faults.controls()) {
        if (control.code == SetAttributes)
            inputs.append(control.input);
    }
    const QByteArray beginning = replies::number<quint32>(40) + QByteArray(4, '\0'); // not persistent
    const QByteArray end = replies::number<quint64>(1) + QByteArray(16, '\0');
    QCOMPARE(inputs, (QList<QByteArray>{beginning + replies::number<quint64>(1) + end,
                                        beginning + replies::number<quint64>(0) + end}));
    for (const Win32Faults::Opening &opening : machine.faults.openings()) {
        if (opening.path == machine.drive && opening.access != 0)
            QCOMPARE(opening.access, DWORD(0xC0000000));
    }
}

void tst_WindowsReleasedVolumes::theDriveComesOnlineAgain_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("restored") << u"restore"_s;
    QTest::newRow("kept") << u"keep"_s;
    QTest::newRow("destroyed") << u"destroy"_s;
}

void tst_WindowsReleasedVolumes::theDriveComesOnlineAgain()
{
    QFETCH(const QString, end);
    Machine machine;
    VolumeRelease released = release(machine);
    QVERIFY(released.volumes);
    machine.faults.forget();
    if (end == u"restore"_s)
        QCOMPARE(released.volumes->restore(), QStringList());
    else if (end == u"keep"_s)
        QVERIFY(released.volumes->keep().ok());
    released.volumes.reset();
    QCOMPARE(machine.deeds(), (QStringList{u"online PhysicalDrive3"_s, u"look anew PhysicalDrive3"_s}));
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsReleasedVolumes::aDriveThatIsOfflineStaysSo()
{
    Machine machine;
    machine.setOffline(true);
    machine.faults.removeDevice(machine.volume);
    machine.faults.removeDevice(machine.second);
    VolumeRelease released = release(machine);
    QVERIFY(released.volumes);
    QVERIFY(released.volumes->keep().ok());
    QCOMPARE(machine.deeds(), QStringList{u"look anew PhysicalDrive3"_s});
}

void tst_WindowsReleasedVolumes::aVolumeInUseIsInTheWay()
{
    Machine machine;
    machine.refuse(machine.second, Lock, ERROR_ACCESS_DENIED);
    const VolumeRelease released = release(machine);
    QVERIFY(!released.volumes);
    QCOMPARE(released.failure.code, quint32(SharingViolation));
    QCOMPARE(released.failure.native, int(ERROR_ACCESS_DENIED));
    QCOMPARE(released.volume, u"F:"_s);
    const QStringList deeds = machine.deeds();
    QVERIFY(!deeds.contains(u"offline PhysicalDrive3"_s));
    QCOMPARE(deeds.count(u"lock E:"_s), 1);
    QCOMPARE(deeds.count(u"lock F:"_s), 10);
    QVERIFY(deeds.contains(u"unlock E:"_s));
    QCOMPARE(machine.faults.openHandles(), 0);
}

// The same volume is found with and without its letter.
void tst_WindowsReleasedVolumes::volumesWithoutALetterAreLockedToo()
{
    Machine machine;
    machine.addVolume(machine.nameless, 0);
    machine.addVolume(QStringLiteral(R"(\\?\Volume{e})"), Machine::FirstAt);
    machine.addVolume(QStringLiteral(R"(\\?\Volume{f})"), Machine::SecondAt);
    machine.addVolume(QStringLiteral(R"(\\?\Volume{elsewhere})"), 0, 1);
    VolumeRelease released = release(machine);
    QVERIFY2(released.volumes, qPrintable(released.failure.diagnostic()));
    QCOMPARE(machine.deeds(), (QStringList{u"lock E:"_s, u"lock F:"_s, u"lock Volume{nameless}"_s,
                                           u"offline PhysicalDrive3"_s}));
    QCOMPARE(released.volumes->names(), (QStringList{u"E:"_s, u"F:"_s, machine.nameless}));
    QVERIFY(released.volumes->keep().ok());
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsReleasedVolumes::aVolumeWithoutALetterIsInTheWay()
{
    Machine machine;
    machine.addVolume(machine.nameless, 0);
    machine.refuse(machine.nameless, Lock, ERROR_ACCESS_DENIED);
    const VolumeRelease released = release(machine);
    QVERIFY(!released.volumes);
    QCOMPARE(released.failure.code, quint32(SharingViolation));
    QCOMPARE(released.volume, machine.nameless);
    QVERIFY(!machine.deeds().contains(u"offline PhysicalDrive3"_s));
    QVERIFY(machine.deeds().contains(u"unlock E:"_s));
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsReleasedVolumes::aVolumeElsewhereIsNotTouched()
{
    Machine machine;
    machine.placeSecond(1);
    const VolumeRelease released = release(machine);
    QVERIFY(released.volumes);
    QCOMPARE(released.volumes->names(), QStringList{u"E:"_s});
    QVERIFY(!machine.deeds().contains(u"lock F:"_s));
}

void tst_WindowsReleasedVolumes::aVolumeElsewhereTooIsInTheWay()
{
    Machine machine;
    // The volume begins on the other drive.
    machine.script(machine.second, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
                   replies::extentsHeader(2) + replies::extent(1, 0, 4096) + replies::extent(3, 0, 4096));
    const VolumeRelease released = release(machine);
    QVERIFY(!released.volumes);
    QCOMPARE(released.failure.code, quint32(NotReady));
    QCOMPARE(released.volume, u"F:"_s);
    QVERIFY(!machine.deeds().contains(u"offline PhysicalDrive3"_s));
}

void tst_WindowsReleasedVolumes::anotherDriveIsNotReleased()
{
    Machine machine;
    machine.describe("ANOTHER");
    const VolumeRelease released = release(machine);
    QVERIFY(!released.volumes);
    QCOMPARE(released.failure.code, quint32(NotReady));
    QCOMPARE(machine.deeds(), QStringList());
}

void tst_WindowsReleasedVolumes::aRefusedDriveIsLeftAsItWas()
{
    Machine machine;
    machine.refuse(machine.drive, SetAttributes, ERROR_ACCESS_DENIED);
    const VolumeRelease released = release(machine);
    QVERIFY(!released.volumes);
    QCOMPARE(released.failure.code, quint32(AccessDenied));
    QCOMPARE(released.volume, QString());
    QCOMPARE(machine.deeds(), (QStringList{u"lock E:"_s, u"lock F:"_s, u"offline PhysicalDrive3"_s,
                                           u"unlock E:"_s, u"unlock F:"_s, u"look anew PhysicalDrive3"_s}));
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsReleasedVolumes::mediaThatCannotGoOfflineStayLocked_data()
{
    QTest::addColumn<quint32>("error");
    QTest::newRow("not supported") << quint32(ERROR_NOT_SUPPORTED);
    QTest::newRow("no such function") << quint32(ERROR_INVALID_FUNCTION);
}

void tst_WindowsReleasedVolumes::mediaThatCannotGoOfflineStayLocked()
{
    QFETCH(const quint32, error);
    Machine machine;
    machine.refuse(machine.drive, GetAttributes, error);
    machine.refuse(machine.drive, SetAttributes, error);
    VolumeRelease released = release(machine);
    QVERIFY(released.volumes);
    QCOMPARE(machine.deeds(), (QStringList{u"lock E:"_s, u"lock F:"_s, u"offline PhysicalDrive3"_s,
                                           u"dismount E:"_s, u"dismount F:"_s}));
    QVERIFY(released.volumes->holds(u"E:"_s) && released.volumes->holds(u"F:"_s));
    QVERIFY(!released.volumes->holds(u"G:"_s));
    machine.faults.forget();
    QVERIFY(released.volumes->keep().ok());
    QCOMPARE(machine.deeds(), (QStringList{u"unlock E:"_s, u"unlock F:"_s, u"look anew PhysicalDrive3"_s}));
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsReleasedVolumes::aVolumeThatStaysMountedIsInTheWay()
{
    Machine machine;
    machine.refuse(machine.drive, SetAttributes, ERROR_NOT_SUPPORTED);
    machine.refuse(machine.second, Dismount, ERROR_ACCESS_DENIED);
    const VolumeRelease released = release(machine);
    QVERIFY(!released.volumes);
    QCOMPARE(released.failure.code, quint32(AccessDenied));
    QCOMPARE(released.volume, u"F:"_s);
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsReleasedVolumes::aVolumeThatNobodyHasUnlockedIsNotInTheWay_data()
{
    QTest::addColumn<bool>("goesOffline");
    QTest::newRow("disk") << true;
    QTest::newRow("stick") << false;
}

void tst_WindowsReleasedVolumes::aVolumeThatNobodyHasUnlockedIsNotInTheWay()
{
    QFETCH(const bool, goesOffline);
    Machine machine;
    machine.refuse(machine.second, Lock, EncryptedVolumeLocked);
    machine.refuse(machine.second, Dismount, EncryptedVolumeLocked);
    if (!goesOffline)
        machine.refuse(machine.drive, SetAttributes, ERROR_NOT_SUPPORTED);
    const VolumeRelease released = release(machine);
    QVERIFY2(released.volumes, qPrintable(released.failure.diagnostic()));
    QCOMPARE(machine.deeds().count(u"lock F:"_s), 1);
    QCOMPARE(machine.deeds().contains(u"dismount E:"_s), !goesOffline);
    QCOMPARE(released.volumes->holds(u"F:"_s), !goesOffline);
}

void tst_WindowsReleasedVolumes::noOtherAnswerOfEncryptionExcusesALock()
{
    for (const DWORD error : {0x80310001, 0x80310009, 0x80310017, 0x80320000}) {
        Machine machine;
        machine.refuse(machine.second, Lock, error);
        const VolumeRelease released = release(machine);
        QVERIFY(!released.volumes);
        QCOMPARE(released.failure.code, quint32(error));
        QCOMPARE(released.volume, u"F:"_s);
    }
}

void tst_WindowsReleasedVolumes::aDriveThatStaysOfflineIsTold()
{
    for (const bool isKept : {true, false}) {
        Machine machine;
        VolumeRelease released = release(machine);
        QVERIFY(released.volumes);
        machine.refuse(machine.drive, SetAttributes, ERROR_GEN_FAILURE);
        if (isKept)
            QCOMPARE(released.volumes->keep().code, quint32(GeneralFailure));
        else
            QCOMPARE(released.volumes->restore(), (QStringList{u"E:"_s, u"F:"_s}));
        QCOMPARE(machine.faults.openHandles(), 0);
    }
}

QUORVEX_SUITE(tst_WindowsReleasedVolumes, QCoreApplication)
#include "tst_windowsreleasedvolumes.moc"

#include <winioctl.h>
