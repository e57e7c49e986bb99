#include "platform/alignedbuffer.h"
#include "platform/storagereplies.h"
#include "platform/windows/windowsdevices.h"
#include "platform/windows/windowsrawdevice.h"
#include "support/suite.h"
#include "windows/scriptedmachine.h"

#include <QCoreApplication>
#include <QHash>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <vector>

using namespace platform;

namespace {

constexpr qint64 Sector = ScriptedMachine::Sector;
constexpr DWORD ReadWrite = 0xC0000000;
constexpr DWORD Unbuffered = 0xA0000000;

AlignedBuffer filled(qint64 size, char value)
{
    AlignedBuffer buffer(size);
    std::memset(buffer.data(), value, size_t(size));
    return buffer;
}

struct Step
{
    const char *name;
    Status status;
};

// Runs every operation once, as a job does; a failed opening skips the operations on its handle.
class Scenario
{
public:
    explicit Scenario(DriveIdentity identity)
        : m_identity(std::move(identity))
        , m_data(filled(4 * Sector, 'V'))
    {}

    std::vector<Step> run()
    {
        m_steps.clear();
        queries();
        driveTransfers();
        volumeTransfers();
        return m_steps;
    }

private:
    template <typename T>
    void note(const char *name, const Result<T> &result)
    {
        m_steps.push_back({name, result.status()});
    }
    void note(const char *name, const Status &status) { m_steps.push_back({name, status}); }

    void queries()
    {
        auto drive = m_devices.queryDrive(ScriptedMachine::Number);
        note("queryDrive", drive);
        if (drive) {
            note("query geometry", drive.value()->geometry());
            note("descriptor", drive.value()->descriptor());
            note("seekPenalty", drive.value()->seekPenalty());
            note("trimEnabled", drive.value()->trimEnabled());
            note("worldWideName", drive.value()->worldWideName());
        }
        auto volume = m_devices.queryVolume(QStringLiteral("E:"));
        note("queryVolume", volume);
        if (volume)
            note("extents", volume.value()->extents(ManyExtents));
    }

    void driveTransfers()
    {
        auto drive = m_devices.openDrive(m_identity, DriveAccess::BesideOwnVolumes);
        note("openDrive", drive);
        if (!drive)
            return;
        note("geometry", drive.value()->geometry());
        note("bytesPerSector", drive.value()->bytesPerSector());
        note("length", drive.value()->length());
        note("seek", drive.value()->seek(8 * Sector));
        note("read", drive.value()->read(m_data.data(), m_data.size()));
        note("write", drive.value()->write(m_data.data(), m_data.size()));
        note("flush", drive.value()->flush());
    }

    void volumeTransfers()
    {
        auto volume = m_devices.openVolume(QStringLiteral("E:"), m_identity);
        note("openVolume", volume);
        if (!volume)
            return;
        note("lock", volume.value()->lock());
        note("dismount", volume.value()->dismount());
        note("allowExtendedIo", volume.value()->allowExtendedIo());
        note("volume write", volume.value()->write(m_data.data(), m_data.size()));
        note("volume flush", volume.value()->flush());
        note("unlock", volume.value()->unlock());
    }

    WindowsDevices m_devices;
    const DriveIdentity m_identity;
    AlignedBuffer m_data;
    std::vector<Step> m_steps;
};

enum class Outcome {
    PassedOn,        // one operation failed, with the error
    IdentityUnknown, // opening is refused and nothing is written
    Fallback,        // opening can do without the answer
    Closing,         // the failure is not reported
    Wrong,
};

Outcome judge(int call, const std::vector<Step> &steps, quint32 error, const ScriptedMachine &machine)
{
    std::vector<Step> failed;
    std::ranges::copy_if(steps, std::back_inserter(failed),
                         [](const Step &step) { return !step.status.ok(); });
    if (failed.empty() && call == Win32Faults::CloseHandle_)
        return Outcome::Closing;
    // A dismounted volume that does not pass a flush on.
    const bool isFlushOfDrive = call == Win32Faults::FlushFileBuffers_ && error == NotReady;
    if (failed.empty())
        return call == Win32Faults::DeviceIoControl_ || isFlushOfDrive ? Outcome::Fallback : Outcome::Wrong;
    const Status &status = failed.front().status;
    const QByteArray name(failed.front().name);
    if (failed.size() > 1 || quint32(status.native) != error)
        return Outcome::Wrong;
    if ((name == "openDrive" && !machine.isUntouched(machine.driveImage)) ||
        (name == "openVolume" && !machine.isUntouched(machine.volumeImage)))
        return Outcome::Wrong;
    const QByteArray operation(status.operation);
    if (operation == "identity check" || operation == "volume extents")
        return status.code == NotReady ? Outcome::IdentityUnknown : Outcome::Wrong;
    return status.code == error ? Outcome::PassedOn : Outcome::Wrong;
}

// The requests to a replaced ReadFile or WriteFile and its answers. They are global, because functions of
// the system's type carry no state.
struct Pieces
{
    std::vector<DWORD> sizes;
    DWORD most = 0xFFFFFFFF; // bytes per call
    int failingCall = 0;     // from 1
    DWORD error = ERROR_SUCCESS;
};
Pieces s_pieces;

BOOL takePiece(DWORD size, LPDWORD done)
{
    s_pieces.sizes.push_back(size);
    *done = 0;
    if (int(s_pieces.sizes.size()) == s_pieces.failingCall) {
        ::SetLastError(s_pieces.error);
        return FALSE;
    }
    *done = std::min(size, s_pieces.most);
    return TRUE;
}
BOOL WINAPI writePiece(HANDLE, LPCVOID, DWORD size, LPDWORD done, LPOVERLAPPED)
{
    return takePiece(size, done);
}
BOOL WINAPI readPiece(HANDLE, LPVOID, DWORD size, LPDWORD done, LPOVERLAPPED)
{
    return takePiece(size, done);
}

// Addresses whose memory is never accessed.
class ReservedPages
{
public:
    explicit ReservedPages(qint64 size)
        : m_start(::VirtualAlloc(nullptr, SIZE_T(size), MEM_RESERVE, PAGE_NOACCESS))
    {}
    ~ReservedPages() { ::VirtualFree(m_start, 0, MEM_RELEASE); }
    ReservedPages(const ReservedPages &) = delete;
    ReservedPages &operator=(const ReservedPages &) = delete;
    void *start() const { return m_start; }

private:
    void *m_start;
};

} // namespace

class tst_WindowsDevices : public QObject
{
    Q_OBJECT

private slots:
    void onlyFixedAndRemovableDrivesAreLocal();
    void drivesHaveTheSystemsPaths();
    void volumesAreTriedByLetter();
    void onlyLettersNameVolumes_data();
    void onlyLettersNameVolumes();
    void mountedVolumesAreThoseOfTheSystem();
    void missingDevicesAreNotFound();

    void queriesNeedNoRights();
    void transfersAreUnbufferedAndWrittenThrough();
    void requestsHaveTheirCodesAndSizes();

    void goodReplies();
    void shortReplies_data();
    void shortReplies();
    void claimsBeyondTheBufferAreCut();
    void extentCountsThatLie();
    void aDriveWithoutMediumIsNotReady();
    void onlyWriteProtectionMakesADriveReadOnly();
    void membersOfSomethingAreNamed();
    void aLayoutThatIsNotWholeMayHoldAnything_data();
    void aLayoutThatIsNotWholeMayHoldAnything();
    void aDriveThatTellsNoLayoutIsHeldByNobody();

    void everyFailureIsPassedOn_data();
    void everyFailureIsPassedOn();

    void anotherDriveIsRefused_data();
    void anotherDriveIsRefused();
    void aDriveWithAnotherProductOrNameIsRefused();
    void aDriveThatNeverDescribedItselfIsAccepted_data();
    void aDriveThatNeverDescribedItselfIsAccepted();
    void aVolumeElsewhereIsRefused();

    void transfersReachTheirPlace();
    void transfersAtTheEndAreShort();
    void anEndThatIsNotToldIsTheSystemsAffair_data();
    void anEndThatIsNotToldIsTheSystemsAffair();
    void misalignedTransfersAreRefused();
    void largeTransfersAreSplit();
    void shortCountsAreContinued();
    void aFailureAfterAPieceIsOne();
    void anEndAfterAPieceKeepsTheCount_data();
    void anEndAfterAPieceKeepsTheCount();
    void nothingTakenEndsTheTransfer();
    void aFullDeviceIsNotItsEnd();
};

void tst_WindowsDevices::drivesHaveTheSystemsPaths()
{
    WindowsDevices devices;
    QCOMPARE(devices.drivePath(0), QStringLiteral(R"(\\.\PhysicalDrive0)"));
    QCOMPARE(devices.drivePath(31), QStringLiteral(R"(\\.\PhysicalDrive31)"));
    QCOMPARE(devices.drivePath(-1), QString());
}

void tst_WindowsDevices::volumesAreTriedByLetter()
{
    const QStringList names = WindowsDevices().volumeNames();
    QCOMPARE(names.size(), 26);
    QCOMPARE(names.first(), QStringLiteral("A:"));
    QCOMPARE(names.at(4), QStringLiteral("E:"));
    QCOMPARE(names.last(), QStringLiteral("Z:"));
}

void tst_WindowsDevices::onlyLettersNameVolumes_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("letter") << QStringLiteral("E");
    QTest::newRow("root") << QStringLiteral("E:/");
    QTest::newRow("digit") << QStringLiteral("3:");
    QTest::newRow("other letter") << QString(QChar(0xE9)) + QLatin1Char(':');
    QTest::newRow("drive") << QStringLiteral("PhysicalDrive3");
}

void tst_WindowsDevices::onlyLettersNameVolumes()
{
    QFETCH(QString, name);
    ScriptedMachine machine;
    WindowsDevices devices;
    QCOMPARE(devices.queryVolume(name).code(), quint32(FileNotFound));
    QCOMPARE(devices.openVolume(name, machine.identity).code(), quint32(FileNotFound));
    QCOMPARE(machine.faults.seen(Win32Faults::CreateFile_), 0);
}

void tst_WindowsDevices::mountedVolumesAreThoseOfTheSystem()
{
    const QTemporaryDir folder;
    const QStorageInfo here(folder.path());
    const QList<MountedVolume> volumes = WindowsDevices().mountedVolumes();
    const auto found = std::ranges::find(volumes, here.rootPath(), &MountedVolume::rootPath);
    QVERIFY(found != volumes.end());
    QVERIFY(found->isReady);
    QCOMPARE(found->name.size(), 2);
    QCOMPARE(found->name + QLatin1Char('/'), found->rootPath);
    QCOMPARE(found->label, here.name());
    QCOMPARE(found->fileSystem, here.fileSystemType());
    QCOMPARE(found->totalBytes, here.bytesTotal());
    QVERIFY(found->freeBytes > 0);
}

void tst_WindowsDevices::missingDevicesAreNotFound()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    QCOMPARE(devices.queryDrive(4).code(), quint32(FileNotFound));
    QCOMPARE(devices.queryDrive(-1).code(), quint32(FileNotFound));
    QCOMPARE(devices.queryVolume(QStringLiteral("F:")).code(), quint32(FileNotFound));
    QCOMPARE(devices.openDrive({4, {}, 0}, DriveAccess::Alone).code(), quint32(FileNotFound));
    QCOMPARE(devices.openDrive({-1, {}, 0}, DriveAccess::Alone).code(), quint32(NotReady));
    QCOMPARE(devices.openVolume(QStringLiteral("F:"), machine.identity).code(), quint32(FileNotFound));
}

void tst_WindowsDevices::queriesNeedNoRights()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    {
        const auto drive = devices.queryDrive(ScriptedMachine::Number);
        const auto volume = devices.queryVolume(QStringLiteral("E:"));
        QVERIFY(drive.ok() && volume.ok());
        QCOMPARE(machine.faults.openHandles(), 2);
    }
    QCOMPARE(machine.faults.openHandles(), 0);
    const QList<Win32Faults::Opening> openings = machine.faults.openings();
    QCOMPARE(openings.size(), 2);
    QCOMPARE(openings.at(0).path, machine.drive);
    QCOMPARE(openings.at(1).path, machine.volume);
    for (const Win32Faults::Opening &opening : openings) {
        QCOMPARE(opening.access, DWORD(0));
        QCOMPARE(opening.sharing, DWORD(3));
        QCOMPARE(opening.disposition, DWORD(OPEN_EXISTING));
        QCOMPARE(opening.flags, DWORD(0));
    }
}

void tst_WindowsDevices::transfersAreUnbufferedAndWrittenThrough()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    {
        const auto drive = devices.openDrive(machine.identity, DriveAccess::Alone);
        const auto beside = devices.openDrive(machine.identity, DriveAccess::BesideOwnVolumes);
        const auto volume = devices.openVolume(QStringLiteral("E:"), machine.identity);
        QVERIFY(drive.ok() && beside.ok() && volume.ok());
        // The volume has closed its handle for querying the drive.
        QCOMPARE(machine.faults.openPaths().count(machine.drive), 2);
        // Opened a second time by the separate drive object.
        QCOMPARE(machine.faults.openPaths().count(machine.volume), 2);
    }
    QCOMPARE(machine.faults.openHandles(), 0);
    int forWriting = 0;
    for (const Win32Faults::Opening &opening : machine.faults.openings()) {
        QCOMPARE(opening.sharing, DWORD(3));
        QCOMPARE(opening.disposition, DWORD(OPEN_EXISTING));
        if (opening.access == 0)
            continue;
        ++forWriting;
        QCOMPARE(opening.access, ReadWrite);
        QCOMPARE(opening.flags, Unbuffered);
    }
    QCOMPARE(forWriting, 4);
}

void tst_WindowsDevices::requestsHaveTheirCodesAndSizes()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    auto drive = devices.queryDrive(ScriptedMachine::Number);
    auto volume = devices.queryVolume(QStringLiteral("E:"));
    auto raw = devices.openVolume(QStringLiteral("E:"), machine.identity);
    QVERIFY(drive.ok() && volume.ok() && raw.ok());
    const auto asked = [&machine](DWORD code, DWORD inputSize, DWORD outputSize) {
        const QList<Win32Faults::Control> controls = machine.faults.controls();
        machine.faults.forget();
        return controls.size() == 1 && controls.first().code == code &&
               controls.first().inputSize == inputSize && controls.first().outputSize == outputSize;
    };
    machine.faults.forget();
    QVERIFY(drive.value()->geometry().ok() && asked(0x000700A0, 0, 40));
    QVERIFY(drive.value()->descriptor().ok() && asked(0x002D1400, 12, 10000));
    QVERIFY(drive.value()->seekPenalty().ok() && asked(0x002D1400, 12, 12));
    QVERIFY(drive.value()->trimEnabled().ok() && asked(0x002D1400, 12, 12));
    QVERIFY(volume.value()->use().ok() && asked(0x00070024, 0, 0));
    QVERIFY(drive.value()->use().ok());
    const QList<Win32Faults::Control> ofUse = machine.faults.controls();
    machine.faults.forget();
    QCOMPARE(ofUse.size(), 2);
    QCOMPARE(ofUse.at(0).code, DWORD(0x00070050));
    QCOMPARE(ofUse.at(0).outputSize, DWORD(48 + 1024 * 144));
    QCOMPARE(ofUse.at(1).code, DWORD(0x00070024));
    QVERIFY(volume.value()->extents(ManyExtents).ok() && asked(0x00560000, 0, 800));
    QVERIFY(volume.value()->extents(OneExtent).ok() && asked(0x00560000, 0, 32));
    QVERIFY(raw.value()->bytesPerSector().ok() && asked(0x00070000, 0, 24));
    QVERIFY(raw.value()->length().ok() && asked(0x0007405C, 0, 8));
    QVERIFY(raw.value()->lock().ok() && asked(0x00090018, 0, 0));
    QVERIFY(raw.value()->dismount().ok() && asked(0x00090020, 0, 0));
    QVERIFY(raw.value()->allowExtendedIo().ok() && asked(0x00090083, 0, 0));
    QVERIFY(raw.value()->unlock().ok() && asked(0x0009001C, 0, 0));
    auto rawDrive = devices.openDrive(machine.identity, DriveAccess::Alone);
    machine.faults.forget();
    QVERIFY(rawDrive.value()->geometry().ok() && asked(0x000700A0, 0, 40));
}

void tst_WindowsDevices::goodReplies()
{
    ScriptedMachine machine;
    machine.script(machine.volume, IOCTL_DISK_GET_DRIVE_GEOMETRY, replies::geometry(4096));
    machine.script(machine.volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
                   replies::extentsHeader(2) + replies::extent(3, 1048576, 4096) +
                       replies::extent(1, qint64(1) << 40, 8192));
    WindowsDevices devices;
    auto drive = devices.queryDrive(ScriptedMachine::Number);
    QVERIFY(drive.ok());
    QCOMPARE(drive.value()->geometry().value().sizeBytes, ScriptedMachine::DriveSize);
    QCOMPARE(drive.value()->geometry().value().bytesPerSector, 512);
    const DeviceDescriptor descriptor = decodeDeviceDescriptor(drive.value()->descriptor().value());
    QCOMPARE(descriptor.productId, QStringLiteral("MODEL 9"));
    QCOMPARE(descriptor.serialNumber, QStringLiteral("W621ABCD"));
    QCOMPARE(descriptor.busType, quint32(BusSata));
    for (const bool value : {true, false}) {
        machine.faults.setPropertyReply(machine.drive, StorageDeviceSeekPenaltyProperty,
                                        {0, replies::flag(value), {}});
        machine.faults.setPropertyReply(machine.drive, StorageDeviceTrimProperty,
                                        {0, replies::flag(!value), {}});
        QCOMPARE(drive.value()->seekPenalty().value(), value);
        QCOMPARE(drive.value()->trimEnabled().value(), !value);
    }
    auto volume = devices.queryVolume(QStringLiteral("e:"));
    QCOMPARE(volume.code(), quint32(FileNotFound)); // the script has the capital letter only
    volume = devices.queryVolume(QStringLiteral("E:"));
    const QList<Extent> expected{{3, 1048576, 4096}, {1, qint64(1) << 40, 8192}};
    QCOMPARE(volume.value()->extents(ManyExtents).value(), expected);
    // Two extents do not fit into a reply for one, and the system reports that.
    QCOMPARE(volume.value()->extents(OneExtent).code(), quint32(MoreData));
    machine.placeVolume(ScriptedMachine::Number);
    auto raw = devices.openVolume(QStringLiteral("E:"), machine.identity);
    QCOMPARE(raw.value()->bytesPerSector().value(), 4096);
    QCOMPARE(raw.value()->length().value(), ScriptedMachine::VolumeSize);
}

void tst_WindowsDevices::shortReplies_data()
{
    QTest::addColumn<QString>("question");
    QTest::addColumn<int>("needed");
    QTest::newRow("geometry") << QStringLiteral("geometry") << 32;
    QTest::newRow("descriptor") << QStringLiteral("descriptor") << 8;
    QTest::newRow("seek penalty") << QStringLiteral("seek penalty") << 9;
    QTest::newRow("trim") << QStringLiteral("trim") << 9;
    QTest::newRow("extents") << QStringLiteral("extents") << 4;
    QTest::newRow("sector") << QStringLiteral("sector") << 24;
    QTest::newRow("length") << QStringLiteral("length") << 8;
}

void tst_WindowsDevices::shortReplies()
{
    QFETCH(QString, question);
    QFETCH(int, needed);
    ScriptedMachine machine;
    WindowsDevices devices;
    auto drive = devices.queryDrive(ScriptedMachine::Number);
    auto volume = devices.queryVolume(QStringLiteral("E:"));
    auto raw = devices.openDrive(machine.identity, DriveAccess::Alone);
    QVERIFY(drive.ok() && volume.ok() && raw.ok());
    const auto answerWith = [&](int size) {
        const auto cut = [size](const QByteArray &reply) {
            return Win32Faults::Reply{ERROR_SUCCESS, reply.left(size), {}};
        };
        Win32Faults &faults = machine.faults;
        faults.setReply(machine.drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX, cut(replies::geometryEx(4096, 512)));
        faults.setReply(machine.drive, IOCTL_DISK_GET_DRIVE_GEOMETRY, cut(replies::geometry(512)));
        faults.setReply(machine.drive, IOCTL_DISK_GET_LENGTH_INFO, cut(replies::length(4096)));
        faults.setPropertyReply(machine.drive, StorageDeviceProperty, cut(replies::descriptor("S")));
        faults.setPropertyReply(machine.drive, StorageDeviceSeekPenaltyProperty, cut(replies::flag(true)));
        faults.setPropertyReply(machine.drive, StorageDeviceTrimProperty, cut(replies::flag(true)));
        faults.setReply(machine.volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
                        cut(replies::extentsHeader(1) + replies::extent(3, 0, 4096)));
        if (question == QLatin1String("geometry"))
            return drive.value()->geometry().status();
        if (question == QLatin1String("descriptor"))
            return drive.value()->descriptor().status();
        if (question == QLatin1String("seek penalty"))
            return drive.value()->seekPenalty().status();
        if (question == QLatin1String("trim"))
            return drive.value()->trimEnabled().status();
        if (question == QLatin1String("extents"))
            return volume.value()->extents(ManyExtents).status();
        if (question == QLatin1String("sector"))
            return raw.value()->bytesPerSector().status();
        return raw.value()->length().status();
    };
    for (int size = 0; size < needed; ++size)
        QCOMPARE(answerWith(size).code, quint32(GeneralFailure));
    QCOMPARE(answerWith(needed).code, quint32(NoError));
}

void tst_WindowsDevices::claimsBeyondTheBufferAreCut()
{
    ScriptedMachine machine;
    constexpr DWORD Claimed = 0x40000000;
    Win32Faults &faults = machine.faults;
    faults.setReply(machine.drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX,
                    {ERROR_SUCCESS, replies::geometryEx(4096, 512), Claimed});
    faults.setPropertyReply(machine.drive, StorageDeviceProperty,
                            {ERROR_SUCCESS, replies::descriptor("S"), Claimed});
    faults.setReply(machine.volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
                    {ERROR_SUCCESS, replies::extentsHeader(1) + replies::extent(3, 0, 4096), Claimed});
    WindowsDevices devices;
    auto drive = devices.queryDrive(ScriptedMachine::Number);
    auto volume = devices.queryVolume(QStringLiteral("E:"));
    QCOMPARE(drive.value()->geometry().value().sizeBytes, 4096);
    QCOMPARE(drive.value()->descriptor().value().size(), 10000);
    QCOMPARE(volume.value()->extents(OneExtent).value().size(), 1);
}

void tst_WindowsDevices::extentCountsThatLie()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    auto volume = devices.queryVolume(QStringLiteral("E:"));
    const auto countedAs = [&](quint32 count, int maxExtents) {
        machine.script(machine.volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
                       replies::extentsHeader(count) + replies::extent(3, 0, 4096));
        return volume.value()->extents(maxExtents);
    };
    QCOMPARE(countedAs(0, ManyExtents).value().size(), 0);
    QCOMPARE(countedAs(1, ManyExtents).value().size(), 1);
    QCOMPARE(countedAs(5, ManyExtents).value().size(), 1);
    QCOMPARE(countedAs(33, ManyExtents).value().size(), 1);
    QCOMPARE(countedAs(34, ManyExtents).code(), quint32(MoreData));
    QCOMPARE(countedAs(0xFFFFFFFF, ManyExtents).code(), quint32(MoreData));
    QCOMPARE(countedAs(2, OneExtent).code(), quint32(MoreData));
}

void tst_WindowsDevices::aDriveWithoutMediumIsNotReady()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    auto drive = devices.queryDrive(ScriptedMachine::Number);
    auto raw = devices.openDrive(machine.identity, DriveAccess::Alone);
    machine.script(machine.drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX, QByteArray(40, '\0'));
    QCOMPARE(drive.value()->geometry().code(), quint32(NotReady));
    machine.script(machine.drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX, replies::geometryEx(-1, 512));
    QCOMPARE(drive.value()->geometry().code(), quint32(NotReady));
    machine.script(machine.drive, IOCTL_DISK_GET_DRIVE_GEOMETRY, QByteArray(24, '\0'));
    QCOMPARE(raw.value()->bytesPerSector().code(), quint32(NotReady));
    machine.script(machine.drive, IOCTL_DISK_GET_LENGTH_INFO, replies::length(-1));
    QCOMPARE(raw.value()->length().code(), quint32(NotReady));
}

// Other failures do not tell about the medium, because some drivers do not support the query.
void tst_WindowsDevices::onlyWriteProtectionMakesADriveReadOnly()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    auto drive = devices.queryDrive(ScriptedMachine::Number);
    const auto isReadOnlyAt = [&](DWORD error) {
        machine.faults.setReply(machine.drive, IOCTL_DISK_IS_WRITABLE, {error, {}, {}});
        return drive.value()->use().value().isReadOnly;
    };
    QVERIFY(isReadOnlyAt(ERROR_WRITE_PROTECT));
    for (const DWORD error : {ERROR_SUCCESS, ERROR_INVALID_FUNCTION, ERROR_NOT_READY, ERROR_NOT_SUPPORTED})
        QVERIFY2(!isReadOnlyAt(DWORD(error)), QByteArray::number(quint32(error)).constData());
}

void tst_WindowsDevices::membersOfSomethingAreNamed()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    auto drive = devices.queryDrive(ScriptedMachine::Number);
    const auto holders = [&](const QByteArray &layout) {
        machine.script(machine.drive, IOCTL_DISK_GET_DRIVE_LAYOUT_EX, layout);
        return drive.value()->use().value().holders;
    };
    const QByteArray basic = replies::gptPartition("A2A0D0EBE5B9334487C068B6B72699C7");
    QCOMPARE(holders(replies::layout(1, 1) + basic), QStringList());
    QCOMPARE(
        holders(replies::layout(1, 2) + basic + replies::gptPartition("8FAF5CE780F6EE4CAFA3B001E56EFC2D")),
        QStringList{QStringLiteral("Storage Spaces")});
    QCOMPARE(holders(replies::layout(0, 4) + replies::mbrPartition(0x42) + QByteArray(3 * 144, '\0')),
             QStringList{QStringLiteral("LDM")});
    // The query is one for drives. A volume only has the commands that release it.
    auto volume = devices.queryVolume(QStringLiteral("E:"));
    QCOMPARE(volume.value()->use().value().holders, QStringList());
    QCOMPARE(volume.value()->use().value().releaseCommands, QStringList{QStringLiteral("mountvol E: /P")});
}

void tst_WindowsDevices::aLayoutThatIsNotWholeMayHoldAnything_data()
{
    QTest::addColumn<quint32>("error");
    QTest::addColumn<QByteArray>("layout");
    QTest::newRow("counted, not told") << 0u << replies::layout(1, 3) + QByteArray(144, '\0');
    QTest::newRow("too long for its reply") << quint32(ERROR_INSUFFICIENT_BUFFER) << QByteArray();
    QTest::newRow("more data") << quint32(ERROR_MORE_DATA) << QByteArray();
}

void tst_WindowsDevices::aLayoutThatIsNotWholeMayHoldAnything()
{
    QFETCH(const quint32, error);
    QFETCH(const QByteArray, layout);
    ScriptedMachine machine;
    machine.faults.setReply(machine.drive, IOCTL_DISK_GET_DRIVE_LAYOUT_EX, {error, layout, {}});
    auto drive = WindowsDevices().queryDrive(ScriptedMachine::Number);
    QCOMPARE(drive.value()->use().value().holders,
             QStringList{QStringLiteral("partitions that the system does not tell")});
}

// Such a drive has a damaged first sector, or a driver without support for the query.
void tst_WindowsDevices::aDriveThatTellsNoLayoutIsHeldByNobody()
{
    ScriptedMachine machine;
    auto drive = WindowsDevices().queryDrive(ScriptedMachine::Number);
    for (const DWORD error :
         {ERROR_INVALID_FUNCTION, ERROR_NOT_READY, ERROR_NOT_SUPPORTED, ERROR_IO_DEVICE}) {
        machine.refuse(machine.drive, IOCTL_DISK_GET_DRIVE_LAYOUT_EX, error);
        QCOMPARE(drive.value()->use().value().holders, QStringList());
    }
}

void tst_WindowsDevices::everyFailureIsPassedOn_data()
{
    QTest::addColumn<quint32>("error");
    for (const quint32 error : {5u, 19u, 21u, 27u, 29u, 32u, 33u, 50u, 87u, 112u, 234u, 1117u})
        QTest::addRow("%u", error) << error;
}

// Each call of each entry fails in turn. A failed query for the identity of a drive makes opening fail as
// not ready; queries for the end and the sector size have a fallback.
void tst_WindowsDevices::everyFailureIsPassedOn()
{
    QFETCH(quint32, error);
    ScriptedMachine machine;
    Scenario scenario(machine.identity);
    for (const Step &step : scenario.run())
        QVERIFY2(step.status.ok(), qPrintable(QLatin1String(step.name) + step.status.diagnostic()));
    QHash<Outcome, int> outcomes;
    for (int call = 0; call < Win32Faults::CallCount; ++call) {
        for (int nth = 1;; ++nth) {
            machine.restoreImages();
            machine.faults.fail(call, nth, error);
            const std::vector<Step> steps = scenario.run();
            const bool fired = machine.faults.fired() > 0;
            machine.faults.failNothing();
            QCOMPARE(machine.faults.openHandles(), 0);
            if (!fired)
                break;
            const Outcome outcome = judge(call, steps, error, machine);
            QVERIFY2(outcome != Outcome::Wrong,
                     qPrintable(QStringLiteral("entry %1, call %2").arg(call).arg(nth)));
            ++outcomes[outcome];
        }
    }
    // 4 openings, 1 seek, 1 read, 2 writes, 2 flushes, 13 questions.
    const int flushesOfDrive = error == NotReady ? 1 : 0;
    QCOMPARE(outcomes[Outcome::PassedOn], 23 - flushesOfDrive);
    // The geometry, descriptor and name of the drive; the extents of the volume and its drive.
    QCOMPARE(outcomes[Outcome::IdentityUnknown], 3 + 1 + 4);
    QCOMPARE(outcomes[Outcome::Fallback], 2 * 2 + flushesOfDrive);
    QCOMPARE(outcomes[Outcome::Closing], 5);
}

void tst_WindowsDevices::anotherDriveIsRefused_data()
{
    QTest::addColumn<QString>("chosenSerial");
    QTest::addColumn<qint64>("chosenSize");
    QTest::addColumn<bool>("describes");
    const QString serial = QStringLiteral("W621ABCD");
    constexpr qint64 Size = ScriptedMachine::DriveSize;
    QTest::newRow("other serial number") << QStringLiteral("W621ABCE") << Size << true;
    QTest::newRow("other size") << serial << Size + 512 << true;
    QTest::newRow("other in both") << QStringLiteral("X") << Size - 512 << true;
    QTest::newRow("serial number not known then") << QString() << Size << true;
    QTest::newRow("size not known then") << serial << qint64(0) << true;
    QTest::newRow("nothing known then") << QString() << qint64(0) << true;
    QTest::newRow("serial number not told now") << serial << qint64(0) << false;
    QTest::newRow("size not told now") << QString() << Size << false;
    QTest::newRow("nothing told now") << serial << Size << false;
}

void tst_WindowsDevices::anotherDriveIsRefused()
{
    QFETCH(QString, chosenSerial);
    QFETCH(qint64, chosenSize);
    QFETCH(bool, describes);
    ScriptedMachine machine;
    if (!describes)
        machine.describeNothing();
    const DriveIdentity chosen{.number = ScriptedMachine::Number,
                               .serialNumber = chosenSerial,
                               .sizeBytes = chosenSize,
                               .product = describes ? machine.identity.product : QString(),
                               .worldWideName = describes ? machine.identity.worldWideName : QString()};
    WindowsDevices devices;
    QCOMPARE(devices.openDrive(chosen, DriveAccess::Alone).code(), quint32(NotReady));
    QCOMPARE(devices.openDrive(chosen, DriveAccess::BesideOwnVolumes).code(), quint32(NotReady));
    QCOMPARE(devices.openVolume(QStringLiteral("E:"), chosen).code(), quint32(NotReady));
    QCOMPARE(machine.faults.openHandles(), 0);
    QCOMPARE(machine.faults.seen(Win32Faults::WriteFile_), 0);
    QVERIFY(machine.isUntouched());
}

void tst_WindowsDevices::aDriveWithAnotherProductOrNameIsRefused()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    QCOMPARE(devices.queryDrive(ScriptedMachine::Number).value()->worldWideName().value(),
             machine.identity.worldWideName);
    QVERIFY(devices.openDrive(machine.identity, DriveAccess::Alone).ok());
    DriveIdentity chosen = machine.identity;
    chosen.product = QStringLiteral("MODEL 8");
    QCOMPARE(devices.openDrive(chosen, DriveAccess::Alone).code(), quint32(NotReady));
    QCOMPARE(devices.openVolume(QStringLiteral("E:"), chosen).code(), quint32(NotReady));
    chosen = machine.identity;
    chosen.worldWideName.clear();
    QCOMPARE(devices.openDrive(chosen, DriveAccess::Alone).code(), quint32(NotReady));

    machine.faults.setPropertyReply(machine.drive, StorageDeviceIdProperty,
                                    {0, replies::naaIdentifier("5000C500A1B2C3D5"), {}});
    QCOMPARE(devices.openDrive(machine.identity, DriveAccess::Alone).code(), quint32(NotReady));
    QCOMPARE(devices.openVolume(QStringLiteral("E:"), machine.identity).code(), quint32(NotReady));
    QVERIFY(machine.isUntouched());
}

void tst_WindowsDevices::aDriveThatNeverDescribedItselfIsAccepted_data()
{
    QTest::addColumn<quint32>("error");
    QTest::newRow("not supported") << 50u;
    QTest::newRow("no such function") << 1u;
}

void tst_WindowsDevices::aDriveThatNeverDescribedItselfIsAccepted()
{
    QFETCH(quint32, error);
    ScriptedMachine machine;
    machine.describeNothing(error);
    WindowsDevices devices;
    QVERIFY(devices.openDrive(machine.undescribed, DriveAccess::Alone).ok());
    QVERIFY(devices.openVolume(QStringLiteral("E:"), machine.undescribed).ok());
    // A drive that cannot be opened is accepted as well, because the volume still names it.
    machine.faults.removeDevice(machine.drive);
    QVERIFY(devices.openVolume(QStringLiteral("E:"), machine.undescribed).ok());
    QCOMPARE(devices.openVolume(QStringLiteral("E:"), machine.identity).code(), quint32(NotReady));
}

void tst_WindowsDevices::aVolumeElsewhereIsRefused()
{
    ScriptedMachine machine;
    machine.describeNothing();
    WindowsDevices devices;
    const auto code = [&] { return devices.openVolume(QStringLiteral("E:"), machine.undescribed).code(); };
    QCOMPARE(code(), quint32(NoError));
    machine.placeVolume(ScriptedMachine::Number + 1);
    QCOMPARE(code(), quint32(NotReady));
    // The volume begins on the drive and continues on a drive that was not chosen.
    machine.script(machine.volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
                   replies::extentsHeader(2) + replies::extent(ScriptedMachine::Number, 0, 4096) +
                       replies::extent(1, 0, 4096));
    QCOMPARE(code(), quint32(NotReady));
    machine.script(machine.volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
                   replies::extentsHeader(2) + replies::extent(1, 0, 4096) +
                       replies::extent(ScriptedMachine::Number, 0, 4096));
    QCOMPARE(code(), quint32(NotReady));
    machine.script(machine.volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS, QByteArray(32, '\0'));
    QCOMPARE(code(), quint32(NotReady));
    for (const DWORD error : {DWORD(50), DWORD(87), DWORD(234), DWORD(1117)}) {
        machine.refuse(machine.volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS, error);
        QCOMPARE(code(), quint32(NotReady));
    }
    QCOMPARE(machine.faults.openHandles(), 0);
    QVERIFY(machine.isUntouched());
}

void tst_WindowsDevices::transfersReachTheirPlace()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    auto drive = devices.openDrive(machine.identity, DriveAccess::Alone);
    const AlignedBuffer data = filled(3 * Sector, 'W');
    QVERIFY(drive.value()->seek(5 * Sector).ok());
    QCOMPARE(drive.value()->write(data.data(), data.size()).value(), data.size());
    QCOMPARE(drive.value()->write(data.data(), 0).value(), 0);
    QCOMPARE(drive.value()->write(filled(Sector, 'X').data(), Sector).value(), Sector);
    QVERIFY(drive.value()->flush().ok());
    QCOMPARE(ScriptedMachine::bytes(machine.driveImage, 4 * Sector, 6 * Sector),
             QByteArray(Sector, '.') + QByteArray(3 * Sector, 'W') + QByteArray(Sector, 'X') +
                 QByteArray(Sector, '.'));
    AlignedBuffer read(2 * Sector);
    QVERIFY(drive.value()->seek(7 * Sector).ok());
    QCOMPARE(drive.value()->read(read.data(), read.size()).value(), read.size());
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(read.data()), read.size()),
             QByteArray(Sector, 'W') + QByteArray(Sector, 'X'));
}

void tst_WindowsDevices::transfersAtTheEndAreShort()
{
    ScriptedMachine machine;
    WindowsDevices devices;
    auto volume = devices.openVolume(QStringLiteral("E:"), machine.identity);
    AlignedBuffer data = filled(4 * Sector, 'E');
    const qint64 last = ScriptedMachine::VolumeSize - Sector;
    QVERIFY(volume.value()->seek(last).ok());
    QCOMPARE(volume.value()->write(data.data(), data.size()).value(), Sector);
    QCOMPARE(volume.value()->write(data.data(), data.size()).code(), quint32(SectorNotFound));
    QCOMPARE(ScriptedMachine::bytes(machine.volumeImage, last - Sector, 4 * Sector),
             QByteArray(Sector, '.') + QByteArray(Sector, 'E'));
    QVERIFY(volume.value()->seek(last).ok());
    QCOMPARE(volume.value()->read(data.data(), data.size()).value(), Sector);
    QCOMPARE(volume.value()->read(data.data(), data.size()).value(), 0);
}

void tst_WindowsDevices::anEndThatIsNotToldIsTheSystemsAffair_data()
{
    QTest::addColumn<quint32>("error");
    for (const quint32 error : {27u, 29u, 87u})
        QTest::addRow("%u", error) << error;
}

void tst_WindowsDevices::anEndThatIsNotToldIsTheSystemsAffair()
{
    QFETCH(quint32, error);
    ScriptedMachine machine;
    machine.faults.addDevice(machine.volume, machine.volumeImage, ScriptedMachine::VolumeSize, error);
    machine.placeVolume(ScriptedMachine::Number);
    WindowsDevices devices;
    auto volume = devices.openVolume(QStringLiteral("E:"), machine.identity);
    QVERIFY(volume.ok());
    QCOMPARE(volume.value()->length().code(), quint32(NotSupported));
    AlignedBuffer data = filled(2 * Sector, 'E');
    QVERIFY(volume.value()->seek(ScriptedMachine::VolumeSize - 2 * Sector).ok());
    QCOMPARE(volume.value()->write(data.data(), data.size()).value(), data.size());
    QCOMPARE(volume.value()->write(data.data(), data.size()).code(), error);
    QVERIFY(volume.value()->seek(ScriptedMachine::VolumeSize - Sector).ok());
    QCOMPARE(volume.value()->read(data.data(), data.size()).value(), Sector);
    // The system may also answer a read at the end with an end-of-file failure.
    machine.faults.fail(Win32Faults::ReadFile_, 1, ERROR_HANDLE_EOF);
    QCOMPARE(volume.value()->read(data.data(), data.size()).value(), 0);
}

void tst_WindowsDevices::misalignedTransfersAreRefused()
{
    ScriptedMachine machine;
    machine.script(machine.volume, IOCTL_DISK_GET_DRIVE_GEOMETRY, replies::geometry(4096));
    WindowsDevices devices;
    auto drive = devices.openDrive(machine.identity, DriveAccess::Alone);
    auto volume = devices.openVolume(QStringLiteral("E:"), machine.identity);
    AlignedBuffer data(8192);
    QCOMPARE(drive.value()->seek(1).code, quint32(InvalidParameter));
    QCOMPARE(drive.value()->seek(-Sector).code, quint32(InvalidParameter));
    QCOMPARE(drive.value()->write(data.data(), Sector - 1).code(), quint32(InvalidParameter));
    QCOMPARE(drive.value()->write(data.data(), -Sector).code(), quint32(InvalidParameter));
    QCOMPARE(drive.value()->write(data.data() + 1, Sector).code(), quint32(MisalignedBuffer));
    QCOMPARE(drive.value()->read(data.data(), Sector + 1).code(), quint32(InvalidParameter));
    QCOMPARE(drive.value()->read(data.data() + 8, Sector).code(), quint32(MisalignedBuffer));
    QCOMPARE(volume.value()->seek(Sector).code, quint32(InvalidParameter));
    QCOMPARE(volume.value()->write(data.data(), Sector).code(), quint32(InvalidParameter));
    QCOMPARE(volume.value()->read(data.data() + Sector, 4096).code(), quint32(MisalignedBuffer));
    QCOMPARE(machine.faults.seen(Win32Faults::SetFilePointer_), 0);
    QCOMPARE(machine.faults.seen(Win32Faults::WriteFile_), 0);
    QCOMPARE(machine.faults.seen(Win32Faults::ReadFile_), 0);
    QVERIFY(volume.value()->write(data.data() + 4096, 4096).ok());
}

// A drive with an unknown end and recorded transfers.
#define RECORDED_DRIVE(drive, pieces)                                                                        \
    ScriptedMachine machine;                                                                                 \
    machine.refuse(machine.drive, IOCTL_DISK_GET_LENGTH_INFO, ERROR_NOT_SUPPORTED);                          \
    machine.faults.addDevice(machine.drive, machine.driveImage);                                             \
    machine.describe();                                                                                      \
    s_pieces = pieces;                                                                                       \
    WindowsDevices devices;                                                                                  \
    auto drive = devices.openDrive(machine.identity, DriveAccess::Alone);                                    \
    QVERIFY(drive.ok());                                                                                     \
    machine.faults.target().writeFile = &writePiece;                                                         \
    machine.faults.target().readFile = &readPiece

void tst_WindowsDevices::largeTransfersAreSplit()
{
    RECORDED_DRIVE(drive, Pieces{});
    constexpr qint64 Limit = DeviceTransfers::CallLimit;
    constexpr qint64 Size = 4 * Limit + 3 * Sector; // beyond 32 bits
    const ReservedPages pages(Size);
    QVERIFY(pages.start());
    const std::vector<DWORD> expected{Limit, Limit, Limit, Limit, 3 * Sector};
    QCOMPARE(drive.value()->write(pages.start(), Size).value(), Size);
    QCOMPARE(s_pieces.sizes, expected);
    s_pieces = {};
    QCOMPARE(drive.value()->read(pages.start(), Size).value(), Size);
    QCOMPARE(s_pieces.sizes, expected);
}

void tst_WindowsDevices::shortCountsAreContinued()
{
    Pieces pieces;
    pieces.most = 2 * Sector;
    RECORDED_DRIVE(drive, pieces);
    AlignedBuffer data(5 * Sector);
    const std::vector<DWORD> expected{5 * Sector, 3 * Sector, Sector};
    QCOMPARE(drive.value()->write(data.data(), data.size()).value(), data.size());
    QCOMPARE(s_pieces.sizes, expected);
    s_pieces.sizes.clear();
    QCOMPARE(drive.value()->read(data.data(), data.size()).value(), data.size());
    QCOMPARE(s_pieces.sizes, expected);
}

void tst_WindowsDevices::aFailureAfterAPieceIsOne()
{
    Pieces pieces;
    pieces.most = Sector;
    pieces.failingCall = 2;
    pieces.error = IoDevice;
    RECORDED_DRIVE(drive, pieces);
    AlignedBuffer data(2 * Sector);
    QCOMPARE(drive.value()->write(data.data(), data.size()).code(), quint32(IoDevice));
    s_pieces.sizes.clear();
    QCOMPARE(drive.value()->read(data.data(), data.size()).code(), quint32(IoDevice));
}

void tst_WindowsDevices::anEndAfterAPieceKeepsTheCount_data()
{
    anEndThatIsNotToldIsTheSystemsAffair_data();
}

void tst_WindowsDevices::anEndAfterAPieceKeepsTheCount()
{
    QFETCH(quint32, error);
    Pieces pieces;
    pieces.most = Sector;
    pieces.failingCall = 2;
    pieces.error = error;
    RECORDED_DRIVE(drive, pieces);
    AlignedBuffer data(2 * Sector);
    QCOMPARE(drive.value()->write(data.data(), data.size()).value(), Sector);
    s_pieces.sizes.clear();
    s_pieces.failingCall = 1;
    QCOMPARE(drive.value()->write(data.data(), data.size()).code(), error);
}

void tst_WindowsDevices::nothingTakenEndsTheTransfer()
{
    Pieces pieces;
    pieces.most = 0;
    RECORDED_DRIVE(drive, pieces);
    AlignedBuffer data(2 * Sector);
    QCOMPARE(drive.value()->write(data.data(), data.size()).value(), 0);
    QCOMPARE(drive.value()->read(data.data(), data.size()).value(), 0);
    QCOMPARE(s_pieces.sizes.size(), size_t(2));
}

void tst_WindowsDevices::aFullDeviceIsNotItsEnd()
{
    Pieces pieces;
    pieces.most = Sector;
    pieces.failingCall = 3;
    pieces.error = DiskFull;
    RECORDED_DRIVE(drive, pieces);
    machine.faults.target().readFile = &::ReadFile;
    AlignedBuffer data(4 * Sector);
    QVERIFY(drive.value()->seek(ScriptedMachine::DriveSize - 3 * Sector).ok());
    QCOMPARE(drive.value()->write(data.data(), data.size()).code(), quint32(DiskFull));
    // One sector further the same failure meets the end of the file below.
    QVERIFY(drive.value()->seek(ScriptedMachine::DriveSize - 2 * Sector).ok());
    s_pieces.sizes.clear();
    QCOMPARE(drive.value()->write(data.data(), data.size()).value(), 2 * Sector);
    s_pieces.sizes.clear();
    s_pieces.failingCall = 1;
    QCOMPARE(drive.value()->write(data.data(), data.size()).value(), 0);
    // With a known end, or with an ambiguous failure, the device counts as full.
    machine.faults.fail(Win32Faults::ReadFile_, 1, IoDevice);
    s_pieces.sizes.clear();
    QCOMPARE(drive.value()->write(data.data(), data.size()).code(), quint32(DiskFull));
    machine.script(machine.drive, IOCTL_DISK_GET_LENGTH_INFO,
                   replies::length(2 * ScriptedMachine::DriveSize));
    auto measured = devices.openDrive(machine.identity, DriveAccess::Alone);
    QVERIFY(measured.value()->seek(ScriptedMachine::DriveSize).ok());
    s_pieces.sizes.clear();
    QCOMPARE(measured.value()->write(data.data(), data.size()).code(), quint32(DiskFull));
}

void tst_WindowsDevices::onlyFixedAndRemovableDrivesAreLocal()
{
    static UINT driveType;
    QVERIFY(!WindowsDevices().mountedVolumes().isEmpty());
    Win32Calls calls = Win32Calls::inForce();
    calls.getDriveType = [](LPCWSTR root) -> UINT {
        return QString::fromWCharArray(root).endsWith(u'\\') ? driveType : DRIVE_UNKNOWN;
    };
    const ScopedWin32Calls scope(calls);
    for (driveType = DRIVE_UNKNOWN; driveType <= DRIVE_RAMDISK; ++driveType) {
        const bool isLocal = driveType == DRIVE_REMOVABLE || driveType == DRIVE_FIXED;
        for (const MountedVolume &volume : WindowsDevices().mountedVolumes())
            QCOMPARE(volume.isLocal, isLocal);
    }
}

QUORVEX_SUITE(tst_WindowsDevices, QCoreApplication)
#include "tst_windowsdevices.moc"

#include <winioctl.h>
