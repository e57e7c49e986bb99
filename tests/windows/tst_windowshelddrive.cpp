#include "platform/alignedbuffer.h"
#include "platform/windows/windowsdevices.h"
#include "support/suite.h"
#include "windows/scriptedmachine.h"

#include <QCoreApplication>
#include <QSet>
#include <QTest>

#include <cstring>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

// Drive 3 with two volumes that have no letter, and a third volume on another drive.
class Machine : public ScriptedMachine
{
public:
    const QString boot = QStringLiteral(R"(\\?\Volume{boot})");
    const QString rescue = QStringLiteral(R"(\\?\Volume{rescue})");
    const QString elsewhere = QStringLiteral(R"(\\?\Volume{elsewhere})");

    Machine()
    {
        faults.removeDevice(volume);
        addVolume(boot, 0);
        addVolume(rescue, VolumeSize);
        addVolume(elsewhere, 0, 1);
        script(drive, IOCTL_DISK_UPDATE_PROPERTIES, {});
    }
    Result<std::unique_ptr<RawDevice>> open(DriveAccess access = DriveAccess::Alone) const
    {
        return WindowsDevices().openDrive(identity, access);
    }
};

} // namespace

// A drive of Windows opened for writing from its first to its last sector.
class tst_WindowsHeldDrive : public QObject
{
    Q_OBJECT

private slots:
    void volumesWithoutALetterAreHeldWithIt();
    void onlyADriveForItselfHoldsThem_data();
    void onlyADriveForItselfHoldsThem();
    void aVolumeInUseIsInTheWay();
    void aVolumeElsewhereTooIsInTheWay();
    void aVolumeThatStaysMountedIsInTheWay();
    void aVolumeThatDoesNotOpenIsInTheWay();
    void volumesThatCannotBeListedAreInTheWay_data();
    void volumesThatCannotBeListedAreInTheWay();
    void aVolumeThatDoesNotTellItsPlaceIsLeftAlone();
    void oneVolumeByTwoNamesIsLockedOnce();
    void machineVolumesAreAskedAndNotOpened();
    void aMachineWithoutVolumesHasNoneInTheWay();
    void noFailureLeavesAnythingHeld_data();
    void noFailureLeavesAnythingHeld();
};

void tst_WindowsHeldDrive::volumesWithoutALetterAreHeldWithIt()
{
    Machine machine;
    auto drive = machine.open();
    QVERIFY2(drive.ok(), qPrintable(drive.status().diagnostic()));
    QCOMPARE(machine.deeds(), (QStringList{u"lock Volume{boot}"_s, u"lock Volume{rescue}"_s,
                                           u"dismount Volume{boot}"_s, u"dismount Volume{rescue}"_s}));
    QStringList held = machine.faults.openPaths();
    held.sort();
    QCOMPARE(held, (QStringList{machine.drive, machine.boot, machine.rescue}));

    AlignedBuffer data(ScriptedMachine::Sector);
    std::memset(data.data(), 'W', size_t(data.size()));
    QCOMPARE(drive.value()->write(data.data(), data.size()).value(), data.size());
    QCOMPARE(ScriptedMachine::bytes(machine.driveImage, 0, data.size()), QByteArray(data.size(), 'W'));

    machine.faults.forget();
    drive.value().reset();
    QCOMPARE(machine.deeds(), (QStringList{u"unlock Volume{boot}"_s, u"unlock Volume{rescue}"_s,
                                           u"look anew PhysicalDrive3"_s}));
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsHeldDrive::onlyADriveForItselfHoldsThem_data()
{
    QTest::addColumn<int>("access");
    QTest::newRow("beside own volumes") << int(DriveAccess::BesideOwnVolumes);
    QTest::newRow("to look at") << int(DriveAccess::ReadOnly);
}

void tst_WindowsHeldDrive::onlyADriveForItselfHoldsThem()
{
    QFETCH(const int, access);
    Machine machine;
    auto drive = machine.open(DriveAccess(access));
    QVERIFY(drive.ok());
    QCOMPARE(machine.faults.openPaths(), QStringList{machine.drive});
    drive.value().reset();
    QCOMPARE(machine.deeds(), QStringList());
}

void tst_WindowsHeldDrive::aVolumeInUseIsInTheWay()
{
    Machine machine;
    machine.refuse(machine.rescue, FSCTL_LOCK_VOLUME, ERROR_ACCESS_DENIED);
    const auto drive = machine.open();
    QCOMPARE(drive.code(), quint32(SharingViolation));
    QCOMPARE(drive.status().native, int(ERROR_ACCESS_DENIED));
    const QStringList deeds = machine.deeds();
    QCOMPARE(deeds.filter(u"dismount"_s), QStringList());
    QCOMPARE(deeds.count(u"lock Volume{rescue}"_s), 10);
    QCOMPARE(deeds.last(), u"unlock Volume{boot}"_s);
    QCOMPARE(machine.faults.openHandles(), 0);
    QVERIFY(machine.isUntouched());
}

void tst_WindowsHeldDrive::aVolumeElsewhereTooIsInTheWay()
{
    Machine machine;
    machine.script(machine.rescue, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
                   replies::extentsHeader(2) + replies::extent(1, 0, 4096) + replies::extent(3, 0, 4096));
    QCOMPARE(machine.open().code(), quint32(NotReady));
    QCOMPARE(machine.deeds(), (QStringList{u"lock Volume{boot}"_s, u"unlock Volume{boot}"_s}));
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsHeldDrive::aVolumeThatStaysMountedIsInTheWay()
{
    Machine machine;
    machine.refuse(machine.rescue, FSCTL_DISMOUNT_VOLUME, ERROR_ACCESS_DENIED);
    QCOMPARE(machine.open().code(), quint32(AccessDenied));
    QCOMPARE(machine.deeds().last(), u"unlock Volume{rescue}"_s);
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsHeldDrive::aVolumeThatDoesNotOpenIsInTheWay()
{
    Machine machine;
    machine.faults.onlyFor([&](const QString &path) { return path == machine.boot; });
    machine.faults.fail(Win32Faults::CreateFile_, 2, ERROR_WRITE_PROTECT);
    QCOMPARE(machine.open().code(), quint32(WriteProtect));
    QCOMPARE(machine.faults.fired(), 1);
    QCOMPARE(machine.faults.openHandles(), 0);
}

void tst_WindowsHeldDrive::volumesThatCannotBeListedAreInTheWay_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("nth");
    QTest::newRow("none") << int(Win32Faults::FindFirstVolume_) << 1;
    QTest::newRow("all but the first") << int(Win32Faults::FindNextVolume_) << 1;
    QTest::newRow("all but the last") << int(Win32Faults::FindNextVolume_) << 2;
}

void tst_WindowsHeldDrive::volumesThatCannotBeListedAreInTheWay()
{
    QFETCH(const int, call);
    QFETCH(const int, nth);
    Machine machine;
    machine.faults.fail(call, nth, ERROR_GEN_FAILURE);
    QCOMPARE(machine.open().code(), quint32(GeneralFailure));
    QCOMPARE(machine.deeds(), QStringList());
    QCOMPARE(machine.faults.openHandles(), 0);
}

// Such volumes belong to readers without a medium, or to removed drives.
void tst_WindowsHeldDrive::aVolumeThatDoesNotTellItsPlaceIsLeftAlone()
{
    Machine machine;
    machine.refuse(machine.boot, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS, ERROR_INVALID_FUNCTION);
    machine.faults.onlyFor([&](const QString &path) { return path == machine.elsewhere; });
    machine.faults.fail(Win32Faults::CreateFile_, 1, ERROR_NOT_READY, Win32Faults::FromThenOn);
    QVERIFY(machine.open().ok());
    QCOMPARE(machine.deeds().filter(u"boot"_s), QStringList());
    QVERIFY(machine.deeds().contains(u"dismount Volume{rescue}"_s));
}

void tst_WindowsHeldDrive::oneVolumeByTwoNamesIsLockedOnce()
{
    Machine machine;
    machine.addVolume(machine.volume, 0);
    const auto drive = machine.open();
    QVERIFY2(drive.ok(), qPrintable(drive.status().diagnostic()));
    QCOMPARE(machine.deeds(), (QStringList{u"lock E:"_s, u"lock Volume{rescue}"_s, u"dismount E:"_s,
                                           u"dismount Volume{rescue}"_s}));
}

void tst_WindowsHeldDrive::aMachineWithoutVolumesHasNoneInTheWay()
{
    Machine machine;
    for (const QString &volume : {machine.boot, machine.rescue, machine.elsewhere})
        machine.faults.removeDevice(volume);
    QVERIFY(machine.open().ok());
    QCOMPARE(machine.deeds(), QStringList{u"look anew PhysicalDrive3"_s});
}

void tst_WindowsHeldDrive::noFailureLeavesAnythingHeld_data()
{
    QTest::addColumn<quint32>("error");
    for (const quint32 error : {5u, 21u, 31u, 1117u})
        QTest::addRow("%u", error) << error;
}

// Each call fails in its turn.
void tst_WindowsHeldDrive::noFailureLeavesAnythingHeld()
{
    QFETCH(const quint32, error);
    Machine machine;
    int refused = 0;
    for (int call = 0; call < Win32Faults::CallCount; ++call) {
        for (int nth = 1;; ++nth) {
            machine.faults.forget();
            machine.faults.fail(call, nth, error);
            auto drive = machine.open();
            const bool fired = machine.faults.fired() > 0;
            const QStringList before = machine.deeds();
            if (!drive) {
                ++refused;
                QVERIFY(before.filter(u"dismount"_s).size() <= before.filter(u"unlock"_s).size());
                QCOMPARE(machine.faults.openHandles(), 0);
            } else {
                drive.value().reset();
            }
            machine.faults.failNothing();
            QCOMPARE(machine.faults.openHandles(), 0);
            QVERIFY(machine.isUntouched(machine.driveImage));
            if (!fired)
                break;
        }
    }
    // The opening and 3 queries for the identity; 3 calls of the listing; for each volume the opening, its
    // place and 2 dismounts. Failed locks of a volume in use are retried.
    const int locks = error == AccessDenied ? 0 : 2;
    QCOMPARE(refused, 4 + 4 + 2 * (1 + 1 + 1 + 4) + locks);
}

void tst_WindowsHeldDrive::machineVolumesAreAskedAndNotOpened()
{
    Machine machine;
    WindowsDevices devices;
    const auto names = devices.machineVolumes();
    QVERIFY(names.ok());
    QCOMPARE(QSet<QString>(names.value().cbegin(), names.value().cend()),
             (QSet<QString>{machine.boot, machine.rescue, machine.elsewhere}));
    const auto volume = devices.queryVolume(machine.elsewhere);
    QVERIFY(volume.ok());
    QCOMPARE(volume.value()->extents(AllExtents).value().constFirst().diskNumber, 1);
    QCOMPARE(volume.value()->use().value().releaseCommands, QStringList());

    machine.faults.forget();
    for (const QString &other : {machine.boot + u'\\', machine.boot.chopped(1), machine.boot + u'\n',
                                 QStringLiteral(R"(\\?\GLOBALROOT\Device\Null)"),
                                 QStringLiteral(R"(\\?\GLOBALROOT\Device\HarddiskVolumeShadowCopy1)"),
                                 QStringLiteral(R"(\\?\PhysicalDrive3)"), machine.boot.mid(4)})
        QCOMPARE(devices.queryVolume(other).code(), quint32(FileNotFound));
    QCOMPARE(devices.openVolume(machine.boot, machine.identity).code(), quint32(FileNotFound));
    QVERIFY(machine.faults.openings().isEmpty());
}

QUORVEX_SUITE(tst_WindowsHeldDrive, QCoreApplication)
#include "tst_windowshelddrive.moc"

#include <winioctl.h>
