#include "platform/windows/windowsdevices.h"
#include "support/suite.h"
#include "windows/scriptedmachine.h"

#include <QCoreApplication>
#include <QTest>

#include <memory>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

enum Dismount { NotTried, Refused, Done };

std::unique_ptr<VolumeDevice> opened(ScriptedMachine &machine, Dismount dismount)
{
    auto volume = WindowsDevices().openVolume(u"E:"_s, machine.identity);
    if (!volume)
        return {};
    if (dismount == Refused)
        machine.refuse(machine.volume, FSCTL_DISMOUNT_VOLUME, ERROR_ACCESS_DENIED);
    if (dismount != NotTried && volume.value()->dismount().ok() != (dismount == Done))
        return {};
    return volume.take();
}

} // namespace

// A volume of Windows whose file system was dismounted.
class tst_WindowsVolume : public QObject
{
    Q_OBJECT

private slots:
    void itsOwnDismountIsNoFailureOfAFlush();
    void aFlushThatDidNotReachTheDriveIsGivenToTheDrive();
    void aDriveThatCannotBeFlushedIsAFailure_data();
    void aDriveThatCannotBeFlushedIsAFailure();
    void everyOtherFailureOfAFlushIsOne_data();
    void everyOtherFailureOfAFlushIsOne();
    void aVolumeOfManyStretchesIsWhole();
};

void tst_WindowsVolume::itsOwnDismountIsNoFailureOfAFlush()
{
    ScriptedMachine machine;
    const auto volume = opened(machine, Done);
    QVERIFY(volume);
    machine.faults.fail(Win32Faults::FlushFileBuffers_, 1, ERROR_FILE_INVALID, Win32Faults::FromThenOn);
    QVERIFY(volume->flush().ok());
    QVERIFY(volume->flush().ok());
    QCOMPARE(machine.faults.fired(), 2);
}

void tst_WindowsVolume::aFlushThatDidNotReachTheDriveIsGivenToTheDrive()
{
    ScriptedMachine machine;
    const auto volume = opened(machine, Done);
    QVERIFY(volume);
    machine.faults.onlyFor([&](const QString &path) { return path == machine.volume; });
    machine.faults.fail(Win32Faults::FlushFileBuffers_, 1, ERROR_NOT_READY);
    machine.faults.forget();
    QVERIFY(volume->flush().ok());
    QCOMPARE(machine.faults.seen(Win32Faults::FlushFileBuffers_), 2);
    const QList<Win32Faults::Opening> openings = machine.faults.openings();
    QCOMPARE(openings.size(), 1);
    QCOMPARE(openings.first().path, machine.drive);
    // Flushing a drive requires write access.
    QCOMPARE(openings.first().access, DWORD(GENERIC_READ | GENERIC_WRITE));
    QCOMPARE(machine.faults.openPaths(), QStringList{machine.volume});
}

void tst_WindowsVolume::aDriveThatCannotBeFlushedIsAFailure_data()
{
    QTest::addColumn<QString>("drive");
    QTest::newRow("refuses") << u"refuses"_s;
    QTest::newRow("gone") << u"gone"_s;
    QTest::newRow("another") << u"another"_s;
}

void tst_WindowsVolume::aDriveThatCannotBeFlushedIsAFailure()
{
    QFETCH(const QString, drive);
    ScriptedMachine machine;
    const auto volume = opened(machine, Done);
    QVERIFY(volume);
    const bool refuses = drive == u"refuses"_s;
    machine.faults.onlyFor([&](const QString &path) { return refuses || path == machine.volume; });
    machine.faults.fail(Win32Faults::FlushFileBuffers_, 1, ERROR_NOT_READY, Win32Faults::FromThenOn);
    if (drive == u"gone"_s)
        machine.faults.removeDevice(machine.drive);
    if (drive == u"another"_s)
        machine.describe("ANOTHER");
    const Status flushed = volume->flush();
    QCOMPARE(flushed.code, quint32(drive == u"gone"_s ? FileNotFound : NotReady));
    QCOMPARE(machine.faults.fired(), refuses ? 2 : 1);
    QCOMPARE(machine.faults.openPaths(), QStringList{machine.volume});
}

void tst_WindowsVolume::everyOtherFailureOfAFlushIsOne_data()
{
    QTest::addColumn<int>("dismount");
    QTest::addColumn<quint32>("error");
    for (const quint32 error : {5u, 19u, 31u, 55u, 1005u, 1110u, 1112u, 1117u, 1167u})
        QTest::addRow("dismounted, %u", error) << int(Done) << error;
    for (const quint32 error : {21u, 1006u, 1117u}) {
        QTest::addRow("mounted, %u", error) << int(NotTried) << error;
        QTest::addRow("stayed mounted, %u", error) << int(Refused) << error;
    }
}

void tst_WindowsVolume::everyOtherFailureOfAFlushIsOne()
{
    QFETCH(const int, dismount);
    QFETCH(const quint32, error);
    ScriptedMachine machine;
    const auto volume = opened(machine, Dismount(dismount));
    QVERIFY(volume);
    machine.faults.fail(Win32Faults::FlushFileBuffers_, 1, error);
    QCOMPARE(volume->flush().code, error);
    QCOMPARE(machine.faults.seen(Win32Faults::FlushFileBuffers_), 1);
}

void tst_WindowsVolume::aVolumeOfManyStretchesIsWhole()
{
    ScriptedMachine machine;
    constexpr int Count = 200;
    const auto place = [&machine](int lastDrive) {
        QByteArray reply = replies::extentsHeader(Count);
        for (int i = 0; i < Count; ++i)
            reply += replies::extent(i < Count - 1 ? ScriptedMachine::Number : lastDrive, i * 4096LL, 4096);
        machine.script(machine.volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS, reply);
    };
    place(ScriptedMachine::Number);
    QVERIFY(WindowsDevices().openVolume(u"E:"_s, machine.identity).ok());
    place(ScriptedMachine::Number + 1);
    QCOMPARE(WindowsDevices().openVolume(u"E:"_s, machine.identity).code(), quint32(NotReady));
}

QUORVEX_SUITE(tst_WindowsVolume, QCoreApplication)
#include "tst_windowsvolume.moc"

#include <winioctl.h>
