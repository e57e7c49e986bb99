#include "support/fakedevices.h"

#include <algorithm>
#include <utility>

platform::Status fakeFailure(quint32 code)
{
    return {code, 0, "fake device"};
}

namespace {

class FakeHold : public platform::AwakeHold
{
public:
    explicit FakeHold(FakeSession &session)
        : m_session(session)
    {
        ++m_session.awakeHolds;
    }
    ~FakeHold() override { --m_session.awakeHolds; }
    bool delaysShutdown() const override { return m_session.canDelayShutdown; }

private:
    FakeSession &m_session;
};

} // namespace

platform::Result<std::unique_ptr<platform::AwakeHold>>
FakeSession::keepAwake(const platform::AwakeRequest &request)
{
    awakeRequests.append(request);
    if (awakeError != platform::NoError)
        return fakeFailure(awakeError);
    return std::unique_ptr<platform::AwakeHold>(std::make_unique<FakeHold>(*this));
}

FakeDrive FakeDrive::onBus(quint32 bus)
{
    FakeDrive drive;
    drive.descriptor = platform::encodeDeviceDescriptor({.productId = QStringLiteral("Drive"),
                                                         .serialNumber = QStringLiteral("S/N 1"),
                                                         .removableMedia = false,
                                                         .busType = bus});
    return drive;
}

FakeDrive FakeDrive::solidState()
{
    FakeDrive drive = onBus(platform::BusSata);
    drive.seekPenalty = false;
    drive.trim = true;
    return drive;
}

FakeDrive FakeDrive::usbStick()
{
    FakeDrive drive = solidState();
    drive.descriptor = platform::encodeDeviceDescriptor({.productId = QStringLiteral("Stick"),
                                                         .serialNumber = QStringLiteral("U1"),
                                                         .removableMedia = true,
                                                         .busType = platform::BusUsb});
    return drive;
}

FakeDrive FakeDrive::nvme()
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

FakeDrive FakeDrive::withoutGeometry()
{
    FakeDrive drive = rotating();
    drive.geometry = fakeFailure(platform::NotReady);
    return drive;
}

FakeDrive FakeDrive::withoutDescriptor()
{
    FakeDrive drive = rotating();
    drive.descriptor = fakeFailure(platform::NotSupported);
    return drive;
}

FakeDrive FakeDrive::answeringNothing()
{
    FakeDrive drive = withoutDescriptor();
    drive.geometry = fakeFailure(platform::NotSupported);
    drive.seekPenalty = fakeFailure(platform::NotSupported);
    drive.trim = fakeFailure(platform::NotSupported);
    return drive;
}

FakeDrive FakeDrive::refusingToOpen()
{
    FakeDrive drive = rotating();
    drive.opening = fakeFailure(platform::AccessDenied);
    return drive;
}

FakeVolume FakeVolume::onDrives(const QString &name, const QList<int> &drives)
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

class FakeDevices::Query : public platform::DeviceQuery
{
public:
    explicit Query(FakeDevices &devices)
        : m_devices(devices)
    {
        m_devices.mostOpenHandles = std::max(m_devices.mostOpenHandles, ++m_devices.openHandles);
    }
    ~Query() override { --m_devices.openHandles; }
    platform::Result<platform::Geometry> geometry() override { return fakeFailure(platform::NotSupported); }
    platform::Result<QByteArray> descriptor() override { return fakeFailure(platform::NotSupported); }
    platform::Result<QString> worldWideName() override { return fakeFailure(platform::NotSupported); }
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

class FakeDevices::DriveQuery : public Query
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
    platform::Result<QString> worldWideName() override { return m_drive.worldWideName; }
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

class FakeDevices::VolumeQuery : public Query
{
public:
    VolumeQuery(FakeDevices &devices, const FakeVolume &volume)
        : Query(devices)
        , m_volume(volume)
    {}
    platform::Result<platform::DeviceUse> use() override { return m_volume.use; }
    platform::Result<QList<platform::Extent>> extents(int maxExtents) override
    {
        if (!m_volume.extentsAnswer)
            return m_volume.extentsAnswer;
        if (m_volume.extents.size() > maxExtents)
            return fakeFailure(platform::MoreData);
        return m_volume.extents;
    }

private:
    const FakeVolume m_volume;
};

void FakeDevices::mount(const FakeVolume &volume)
{
    volumes.insert(volume.mounted.name, volume);
    mountOrder.append(volume.mounted.name);
}

platform::Result<std::unique_ptr<platform::DeviceQuery>> FakeDevices::queryDrive(int number)
{
    ++asked[number].opened;
    const auto drive = drives.constFind(number);
    if (drive == drives.constEnd())
        return fakeFailure(platform::FileNotFound);
    if (!drive->opening)
        return drive->opening;
    return std::unique_ptr<platform::DeviceQuery>(std::make_unique<DriveQuery>(*this, *drive, asked[number]));
}

platform::Result<std::unique_ptr<platform::DeviceQuery>> FakeDevices::queryVolume(const QString &name)
{
    volumesOpened.append(name);
    const auto volume = volumes.constFind(name);
    if (volume == volumes.constEnd())
        return fakeFailure(platform::FileNotFound);
    if (!volume->opening)
        return volume->opening;
    return std::unique_ptr<platform::DeviceQuery>(std::make_unique<VolumeQuery>(*this, *volume));
}

platform::Result<std::unique_ptr<platform::RawDevice>> FakeDevices::openDrive(const platform::DriveIdentity &,
                                                                              platform::DriveAccess)
{
    return fakeFailure(platform::NotSupported);
}

platform::Result<std::unique_ptr<platform::VolumeDevice>>
FakeDevices::openVolume(const QString &, const platform::DriveIdentity &)
{
    return fakeFailure(platform::NotSupported);
}

QList<platform::MountedVolume> FakeDevices::mountedVolumes()
{
    QList<platform::MountedVolume> mounted;
    for (const QString &name : std::as_const(mountOrder))
        mounted.append(volumes.value(name).mounted);
    return mounted;
}
