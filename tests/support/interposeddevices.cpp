#include "support/interposeddevices.h"

#include <utility>

class InterposedDevices::Query : public platform::ForwardingDeviceQuery
{
public:
    Query(std::unique_ptr<DeviceQuery> target, Before before, QString name)
        : ForwardingDeviceQuery(std::move(target))
        , m_before(std::move(before))
        , m_name(std::move(name))
    {}
    platform::Result<platform::Geometry> geometry() override
    {
        return asked("geometry", [this] { return m_target->geometry(); });
    }
    platform::Result<QByteArray> descriptor() override
    {
        return asked("descriptor", [this] { return m_target->descriptor(); });
    }
    platform::Result<QString> worldWideName() override
    {
        return asked("worldWideName", [this] { return m_target->worldWideName(); });
    }
    platform::Result<bool> seekPenalty() override
    {
        return asked("seekPenalty", [this] { return m_target->seekPenalty(); });
    }
    platform::Result<bool> trimEnabled() override
    {
        return asked("trimEnabled", [this] { return m_target->trimEnabled(); });
    }
    platform::Result<platform::DeviceUse> use() override
    {
        return asked("use", [this] { return m_target->use(); });
    }
    platform::Result<QList<platform::Extent>> extents(int maxExtents) override
    {
        return asked("extents", [this, maxExtents] { return m_target->extents(maxExtents); });
    }

private:
    template <typename Forward>
    auto asked(const char *method, Forward forward) -> decltype(forward())
    {
        const platform::Status status = m_before({FaultPlan::Query, QLatin1String(method), m_name});
        if (!status)
            return status;
        return forward();
    }

    Before m_before;
    QString m_name;
};

template <typename Forwarding>
class InterposedDevices::Transfers : public Forwarding
{
public:
    template <typename Target>
    Transfers(std::unique_ptr<Target> target, Before before, QString name)
        : Forwarding(std::move(target))
        , m_before(std::move(before))
        , m_name(std::move(name))
    {}
    platform::Result<platform::Geometry> geometry() override
    {
        return asked(FaultPlan::Query, "geometry", [this] { return Forwarding::geometry(); });
    }
    platform::Result<qint32> bytesPerSector() override
    {
        return asked(FaultPlan::Query, "bytesPerSector", [this] { return Forwarding::bytesPerSector(); });
    }
    platform::Result<qint64> length() override
    {
        return asked(FaultPlan::Query, "length", [this] { return Forwarding::length(); });
    }
    platform::Status seek(qint64 position) override
    {
        return asked(
            FaultPlan::Seek, "seek", [this, position] { return Forwarding::seek(position); }, position);
    }
    platform::Result<qint64> read(void *data, qint64 size) override
    {
        return asked(
            FaultPlan::Read, "read", [this, data, size] { return Forwarding::read(data, size); }, size);
    }
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        return asked(
            FaultPlan::Write, "write", [this, data, size] { return Forwarding::write(data, size); }, size);
    }
    platform::Status flush() override
    {
        return asked(FaultPlan::Flush, "flush", [this] { return Forwarding::flush(); });
    }

protected:
    template <typename Forward>
    auto asked(FaultPlan::Kind kind, const char *method, Forward forward, qint64 argument = 0)
        -> decltype(forward())
    {
        const platform::Status status = m_before({kind, QLatin1String(method), m_name, argument});
        if (!status)
            return status;
        return forward();
    }

private:
    Before m_before;
    QString m_name;
};

class InterposedDevices::Volume : public Transfers<platform::ForwardingVolumeDevice>
{
public:
    using Transfers::Transfers;
    platform::Status lock() override
    {
        return asked(FaultPlan::Lock, "lock", [this] { return ForwardingVolumeDevice::lock(); });
    }
    platform::Status dismount() override
    {
        return asked(FaultPlan::Dismount, "dismount", [this] { return ForwardingVolumeDevice::dismount(); });
    }
    platform::Status allowExtendedIo() override
    {
        return asked(FaultPlan::Dismount, "allowExtendedIo",
                     [this] { return ForwardingVolumeDevice::allowExtendedIo(); });
    }
    platform::Status unlock() override
    {
        return asked(FaultPlan::Unlock, "unlock", [this] { return ForwardingVolumeDevice::unlock(); });
    }
};

InterposedDevices::InterposedDevices(platform::Devices &target, Before before)
    : ForwardingDevices(target)
    , m_before(std::move(before))
{}

platform::Result<std::unique_ptr<platform::DeviceQuery>> InterposedDevices::queryDrive(int number)
{
    const QString name = QString::number(number);
    if (const auto status = m_before({FaultPlan::Open, QLatin1String("queryDrive"), name}); !status)
        return status;
    auto target = m_target.queryDrive(number);
    if (!target)
        return target.status();
    return std::unique_ptr<platform::DeviceQuery>(std::make_unique<Query>(target.take(), m_before, name));
}

platform::Result<std::unique_ptr<platform::DeviceQuery>> InterposedDevices::queryVolume(const QString &name)
{
    if (const auto status = m_before({FaultPlan::Open, QLatin1String("queryVolume"), name}); !status)
        return status;
    auto target = m_target.queryVolume(name);
    if (!target)
        return target.status();
    return std::unique_ptr<platform::DeviceQuery>(std::make_unique<Query>(target.take(), m_before, name));
}

platform::Result<std::unique_ptr<platform::RawDevice>>
InterposedDevices::openDrive(const platform::DriveIdentity &drive, platform::DriveAccess access)
{
    const QString name = QString::number(drive.number);
    if (const auto status = m_before({FaultPlan::Open, QLatin1String("openDrive"), name}); !status)
        return status;
    auto target = m_target.openDrive(drive, access);
    if (!target)
        return target.status();
    return std::unique_ptr<platform::RawDevice>(
        std::make_unique<Transfers<platform::ForwardingRawDevice>>(target.take(), m_before, name));
}

platform::Result<std::unique_ptr<platform::VolumeDevice>>
InterposedDevices::openVolume(const QString &name, const platform::DriveIdentity &drive)
{
    if (const auto status = m_before({FaultPlan::Open, QLatin1String("openVolume"), name}); !status)
        return status;
    auto target = m_target.openVolume(name, drive);
    if (!target)
        return target.status();
    return std::unique_ptr<platform::VolumeDevice>(std::make_unique<Volume>(target.take(), m_before, name));
}

platform::VolumeRelease InterposedDevices::releaseVolumes(const platform::DriveIdentity &drive)
{
    const QString name = QString::number(drive.number);
    const auto status = m_before({FaultPlan::Dismount, QLatin1String("releaseVolumes"), name});
    if (!status)
        return {.failure = status};
    return m_target.releaseVolumes(drive);
}
