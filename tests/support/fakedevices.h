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

#include <algorithm>
#include <memory>
#include <utility>

// Drives and volumes that answer what a test wrote down, and count what they were asked. Queries only:
// opening one for writing fails. One thread.

inline platform::Status fakeFailure(quint32 code)
{
    return {code, 0, "fake device"};
}

// A drive named after how it behaves.
struct FakeDrive
{
    platform::Status opening;
    platform::Result<platform::Geometry> geometry = platform::Geometry{500'107'862'016, 512};
    platform::Result<QByteArray> descriptor = QByteArray();
    platform::Result<bool> seekPenalty = true;
    platform::Result<bool> trim = false;
    platform::Result<platform::DeviceUse> use = platform::DeviceUse();

    static FakeDrive onBus(quint32 bus)
    {
        FakeDrive drive;
        drive.descriptor = platform::encodeDeviceDescriptor({.productId = QStringLiteral("Drive"),
                                                             .serialNumber = QStringLiteral("S/N 1"),
                                                             .removableMedia = false,
                                                             .busType = bus});
        return drive;
    }
    static FakeDrive rotating() { return onBus(platform::BusSata); }
    static FakeDrive solidState()
    {
        FakeDrive drive = onBus(platform::BusSata);
        drive.seekPenalty = false;
        drive.trim = true;
        return drive;
    }
    static FakeDrive usbStick()
    {
        FakeDrive drive = solidState();
        drive.descriptor = platform::encodeDeviceDescriptor({.productId = QStringLiteral("Stick"),
                                                             .serialNumber = QStringLiteral("U1"),
                                                             .removableMedia = true,
                                                             .busType = platform::BusUsb});
        return drive;
    }
    static FakeDrive nvme()
    {
        FakeDrive drive;
        drive.descriptor = platform::encodeDeviceDescriptor({.productId = QStringLiteral("Drive"),
                                                             .serialNumber = QStringLiteral("N1"),
                                                             .removableMedia = false,
                                                             .busType = platform::BusNvme});
        drive.seekPenalty = false;
        drive.trim = true;
        return drive;
    }
    static FakeDrive withoutGeometry()
    {
        FakeDrive drive = rotating();
        drive.geometry = fakeFailure(platform::NotReady);
        return drive;
    }
    static FakeDrive withoutDescriptor()
    {
        FakeDrive drive = rotating();
        drive.descriptor = fakeFailure(platform::NotSupported);
        return drive;
    }
    static FakeDrive answeringNothing()
    {
        FakeDrive drive = withoutDescriptor();
        drive.geometry = fakeFailure(platform::NotSupported);
        drive.seekPenalty = fakeFailure(platform::NotSupported);
        drive.trim = fakeFailure(platform::NotSupported);
        return drive;
    }
    static FakeDrive refusingToOpen()
    {
        FakeDrive drive = rotating();
        drive.opening = fakeFailure(platform::AccessDenied);
        return drive;
    }
};

// A volume, mounted or known by its name only.
struct FakeVolume
{
    platform::MountedVolume mounted;
    platform::Status opening;
    platform::Status extentsAnswer; // MoreData comes by itself
    QList<platform::Extent> extents;
    platform::DeviceUse use;

    static FakeVolume onDrives(const QString &name, const QList<int> &drives)
    {
        FakeVolume volume;
        volume.mounted.name = name;
        volume.mounted.rootPath = name + u'/';
        volume.mounted.isReady = true;
        volume.mounted.isLocal = true;
        for (const int drive : drives)
            volume.extents.append({.diskNumber = drive, .startingOffset = 1 << 20, .length = 1 << 30});
        return volume;
    }
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
    QMap<QString, FakeVolume> volumes; // what queryVolume knows
    QStringList mountOrder;            // of those names, what is mounted

    QMap<int, Questions> asked; // by drive
    QStringList volumesOpened;  // every attempt, in order
    int openHandles = 0;
    int mostOpenHandles = 0; // at the same time

    void mount(const FakeVolume &volume)
    {
        volumes.insert(volume.mounted.name, volume);
        mountOrder.append(volume.mounted.name);
    }

    QString drivePath(int number) override { return QStringLiteral("fake:drive%1").arg(number); }

    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryDrive(int number) override
    {
        ++asked[number].opened;
        const auto drive = drives.constFind(number);
        if (drive == drives.constEnd())
            return fakeFailure(platform::FileNotFound);
        if (!drive->opening)
            return drive->opening;
        return std::unique_ptr<platform::DeviceQuery>(
            std::make_unique<DriveQuery>(*this, *drive, asked[number]));
    }

    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override
    {
        volumesOpened.append(name);
        const auto volume = volumes.constFind(name);
        if (volume == volumes.constEnd())
            return fakeFailure(platform::FileNotFound);
        if (!volume->opening)
            return volume->opening;
        return std::unique_ptr<platform::DeviceQuery>(std::make_unique<VolumeQuery>(*this, *volume));
    }

    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &,
                                                                     platform::DriveAccess) override
    {
        return fakeFailure(platform::NotSupported);
    }
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &, const platform::DriveIdentity &) override
    {
        return fakeFailure(platform::NotSupported);
    }

    QStringList volumeNames() override { return mountOrder; }

    QList<platform::MountedVolume> mountedVolumes() override
    {
        QList<platform::MountedVolume> mounted;
        for (const QString &name : std::as_const(mountOrder))
            mounted.append(volumes.value(name).mounted);
        return mounted;
    }

private:
    // Counts itself as an open handle; answers nothing.
    class Query : public platform::DeviceQuery
    {
    public:
        explicit Query(FakeDevices &devices)
            : m_devices(devices)
        {
            m_devices.mostOpenHandles = std::max(m_devices.mostOpenHandles, ++m_devices.openHandles);
        }
        ~Query() override { --m_devices.openHandles; }
        platform::Result<platform::Geometry> geometry() override
        {
            return fakeFailure(platform::NotSupported);
        }
        platform::Result<QByteArray> descriptor() override { return fakeFailure(platform::NotSupported); }
        platform::Result<bool> seekPenalty() override { return fakeFailure(platform::NotSupported); }
        platform::Result<bool> trimEnabled() override { return fakeFailure(platform::NotSupported); }
        platform::Result<platform::DeviceUse> use() override { return fakeFailure(platform::NotSupported); }
        platform::Result<QList<platform::Extent>> extents(int) override
        {
            return fakeFailure(platform::NotSupported);
        }

    protected:
        FakeDevices &m_devices;
    };

    class DriveQuery : public Query
    {
    public:
        DriveQuery(FakeDevices &devices, const FakeDrive &drive, Questions &asked)
            : Query(devices)
            , m_drive(drive)
            , m_asked(asked)
        {}
        platform::Result<platform::Geometry> geometry() override
        {
            ++m_asked.geometry;
            return m_drive.geometry;
        }
        platform::Result<QByteArray> descriptor() override
        {
            ++m_asked.descriptor;
            return m_drive.descriptor;
        }
        platform::Result<bool> seekPenalty() override
        {
            ++m_asked.seekPenalty;
            return m_drive.seekPenalty;
        }
        platform::Result<bool> trimEnabled() override
        {
            ++m_asked.trim;
            return m_drive.trim;
        }
        platform::Result<platform::DeviceUse> use() override { return m_drive.use; }

    private:
        const FakeDrive m_drive;
        Questions &m_asked;
    };

    class VolumeQuery : public Query
    {
    public:
        VolumeQuery(FakeDevices &devices, const FakeVolume &volume)
            : Query(devices)
            , m_volume(volume)
        {}
        platform::Result<QList<platform::Extent>> extents(int maxExtents) override
        {
            if (!m_volume.extentsAnswer)
                return m_volume.extentsAnswer;
            if (m_volume.extents.size() > maxExtents)
                return fakeFailure(platform::MoreData);
            return m_volume.extents;
        }
        platform::Result<platform::DeviceUse> use() override { return m_volume.use; }

    private:
        const FakeVolume m_volume;
    };
};

class FakeSession : public platform::Session
{
public:
    QStringList systemVolumeNames;
    QStringList systemRoots; // exact root paths
    QString user;

    QStringList systemVolumes() override { return systemVolumeNames; }
    bool isSystemRoot(const QString &rootPath) override { return systemRoots.contains(rootPath); }
    bool holdsSystemFiles(const QString &rootPath) override { return isSystemRoot(rootPath); }
    QString userId() override { return user; }
};

// A machine that has drives and a user, and nothing else: asking for its files is a mistake of the test.
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
