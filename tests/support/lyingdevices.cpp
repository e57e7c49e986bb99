#include "support/lyingdevices.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>

template <typename Forwarding>
class DroppingDevices::Transfers : public Forwarding
{
public:
    template <typename Target>
    Transfers(std::unique_ptr<Target> target, std::shared_ptr<int> countdown)
        : Forwarding(std::move(target))
        , m_countdown(std::move(countdown))
    {}
    platform::Status seek(qint64 position) override
    {
        m_position = position;
        return Forwarding::seek(position);
    }
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        if (--*m_countdown == 0) {
            m_position += size;
            const platform::Status sought = Forwarding::seek(m_position);
            if (!sought)
                return sought;
            return size;
        }
        const auto count = Forwarding::write(data, size);
        m_position += count.valueOr(0);
        return count;
    }

private:
    std::shared_ptr<int> m_countdown;
    qint64 m_position = 0;
};

platform::Result<std::unique_ptr<platform::RawDevice>>
DroppingDevices::openDrive(const platform::DriveIdentity &drive, platform::DriveAccess access)
{
    auto target = m_target.openDrive(drive, access);
    if (!target)
        return target.status();
    return std::unique_ptr<platform::RawDevice>(
        std::make_unique<Transfers<platform::ForwardingRawDevice>>(target.take(), m_countdown));
}

platform::Result<std::unique_ptr<platform::VolumeDevice>>
DroppingDevices::openVolume(const QString &name, const platform::DriveIdentity &drive)
{
    auto target = m_target.openVolume(name, drive);
    if (!target)
        return target.status();
    return std::unique_ptr<platform::VolumeDevice>(
        std::make_unique<Transfers<platform::ForwardingVolumeDevice>>(target.take(), m_countdown));
}

class OverstatedDevices::Drive : public platform::ForwardingRawDevice
{
public:
    Drive(std::unique_ptr<platform::RawDevice> target, const OverstatedDevices &devices)
        : ForwardingTransfers(std::move(target))
        , m_devices(devices)
    {}
    platform::Result<platform::Geometry> geometry() override
    {
        auto geometry = m_target->geometry();
        if (geometry)
            geometry.value().sizeBytes = m_devices.m_statedSize;
        return geometry;
    }
    platform::Result<qint64> length() override { return m_devices.m_statedSize; }
    platform::Status seek(qint64 position) override
    {
        m_position = position;
        return {};
    }
    platform::Result<qint64> read(void *data, qint64 size) override
    {
        auto *to = static_cast<char *>(data);
        return transfer(
            size, [this, to](qint64 done, qint64 count) { return m_target->read(to + done, count); },
            [to](qint64 done, qint64 count) {
                std::memset(to + done, 0xE5, static_cast<std::size_t>(count));
            });
    }
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        const auto *from = static_cast<const char *>(data);
        return transfer(
            size, [this, from](qint64 done, qint64 count) { return m_target->write(from + done, count); },
            [](qint64, qint64) {});
    }

private:
    using Real = std::function<platform::Result<qint64>(qint64 done, qint64 count)>;
    using Pretended = std::function<void(qint64 done, qint64 count)>;

    platform::Result<qint64> transfer(qint64 size, const Real &real, const Pretended &pretended)
    {
        qint64 done = 0;
        const qint64 total = std::min(size, m_devices.m_statedSize - m_position);
        while (done < total) {
            qint64 count = total - done;
            if (m_position >= m_devices.m_realSize && m_devices.m_behaviour == Hollow) {
                pretended(done, count);
            } else {
                const qint64 place = m_position % m_devices.m_realSize;
                count = std::min(count, m_devices.m_realSize - place);
                const platform::Status sought = m_target->seek(place);
                if (!sought)
                    return sought;
                const auto moved = real(done, count);
                if (!moved)
                    return moved;
            }
            done += count;
            m_position += count;
        }
        return done;
    }

    const OverstatedDevices &m_devices;
    qint64 m_position = 0;
};

platform::Result<std::unique_ptr<platform::RawDevice>>
OverstatedDevices::openDrive(const platform::DriveIdentity &drive, platform::DriveAccess access)
{
    if (drive.sizeBytes != m_statedSize)
        return platform::Status{platform::NotReady, 0, "identity check"};
    platform::DriveIdentity real = drive;
    real.sizeBytes = m_realSize;
    auto target = m_target.openDrive(real, access);
    if (!target)
        return target.status();
    return std::unique_ptr<platform::RawDevice>(std::make_unique<Drive>(target.take(), *this));
}
