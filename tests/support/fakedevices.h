#pragma once

#include "platform/devices.h"
#include "platform/platform.h"
#include "platform/session.h"
#include "platform/status.h"
#include "platform/storagereplies.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>

// Drives and volumes that give the answers set by a test and count the queries. Opening one for writing
// fails. One thread.

platform::Status fakeFailure(quint32 code);

// A drive with the answers it gives.
struct FakeDrive
{
    platform::Status opening;
    platform::Result<platform::Geometry> geometry = platform::Geometry{500'107'862'016, 512};
    platform::Result<QByteArray> descriptor = QByteArray();
    platform::Result<QString> worldWideName = QString();
    platform::Result<bool> seekPenalty = true;
    platform::Result<bool> trim = false;
    platform::Result<platform::DeviceUse> use = platform::DeviceUse();

    static FakeDrive onBus(quint32 bus);
    static FakeDrive rotating() { return onBus(platform::BusSata); }
    static FakeDrive solidState();
    static FakeDrive usbStick();
    static FakeDrive nvme();
    static FakeDrive withoutGeometry();
    static FakeDrive withoutDescriptor();
    static FakeDrive answeringNothing();
    static FakeDrive refusingToOpen();
};

// A volume, mounted or known by its name only.
struct FakeVolume
{
    platform::MountedVolume mounted;
    platform::Status opening;
    platform::Status extentsAnswer; // MoreData is added by the double
    QList<platform::Extent> extents;
    platform::DeviceUse use;

    static FakeVolume onDrives(const QString &name, const QList<int> &drives);
};

class FakeDevices : public platform::Devices
{
public:
    struct Questions
    {
        int opened = 0;
        int geometry = 0;
        int descriptor = 0;
        int seekPenalty = 0;
        int trim = 0;
    };

    QMap<int, FakeDrive> drives;
    QMap<QString, FakeVolume> volumes; // known to queryVolume
    QStringList mountOrder;            // names of the mounted ones
    platform::Result<QStringList> machineNames = fakeFailure(platform::NotSupported);

    QMap<int, Questions> asked; // by drive
    QStringList volumesOpened;  // every attempt, in order
    int openHandles = 0;
    int mostOpenHandles = 0; // at the same time

    void mount(const FakeVolume &volume);
    QString drivePath(int number) override { return QStringLiteral("fake:drive%1").arg(number); }

    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryDrive(int number) override;
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override;
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &,
                                                                     platform::DriveAccess) override;
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &, const platform::DriveIdentity &) override;
    platform::VolumeRelease releaseVolumes(const platform::DriveIdentity &) override
    {
        return {.failure = fakeFailure(platform::NotSupported)};
    }
    QStringList volumeNames() override { return mountOrder; }
    platform::Result<QStringList> machineVolumes() override { return machineNames; }

    QList<platform::MountedVolume> mountedVolumes() override;

private:
    // Counts itself as an open handle and answers nothing.
    class Query;
    class DriveQuery;
    class VolumeQuery;
};

class FakeSession : public platform::Session
{
public:
    QStringList systemVolumeNames;
    QStringList systemRoots; // exact root paths
    QString user;
    platform::Result<bool> administrator = true;

    QString otherAccount; // foreignAccount()
    int binChanges = 0;   // number of notifications

    // For keepAwake(): the failure to return, if any, and a record of its use.
    quint32 awakeError = platform::NoError;
    bool canDelayShutdown = false;
    QList<platform::AwakeRequest> awakeRequests;
    int awakeHolds = 0; // currently held

    QStringList systemVolumes() override { return systemVolumeNames; }
    bool isSystemRoot(const QString &rootPath) override { return systemRoots.contains(rootPath); }
    bool holdsSystemFiles(const QString &rootPath) override { return isSystemRoot(rootPath); }
    QString userId() override { return user; }
    platform::Result<bool> isAdministrator() override { return administrator; }
    QString foreignAccount() override { return otherAccount; }
    void tellBinChanged() override { ++binChanges; }
    platform::Result<std::unique_ptr<platform::AwakeHold>>
    keepAwake(const platform::AwakeRequest &request) override;
};

// A machine with drives and a user only. A request for its files is a mistake of the test.
class FakeMachine : public platform::Platform
{
public:
    FakeDevices fakeDevices;
    FakeSession fakeSession;

    platform::Files &files() override { qFatal("a fake machine has no files"); }
    platform::Folders &folders() override { qFatal("a fake machine has no folders"); }
    platform::Devices &devices() override { return fakeDevices; }
    platform::Session &session() override { return fakeSession; }
};
