#include "support/powercutdevices.h"

#include <utility>
#include <vector>

template <typename Forwarding>
class PowerCutDevices::Transfers : public Forwarding
{
public:
    using Forwarding::Forwarding;
    ~Transfers() override
    {
        for (auto change = m_changes.rbegin(); change != m_changes.rend(); ++change) {
            if (!Forwarding::seek(change->position) ||
                Forwarding::write(change->before.data(), change->size).valueOr(-1) != change->size)
                qFatal("the write that is to be dropped cannot be taken back");
        }
    }
    platform::Status seek(qint64 position) override
    {
        const platform::Status status = Forwarding::seek(position);
        if (status)
            m_position = position;
        return status;
    }
    platform::Result<qint64> read(void *data, qint64 size) override
    {
        const auto count = Forwarding::read(data, size);
        m_position += count.valueOr(0);
        return count;
    }
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        Change change{m_position, 0, platform::AlignedBuffer(size)};
        if (change.before.isNull() || !Forwarding::read(change.before.data(), size) ||
            !Forwarding::seek(m_position))
            qFatal("the content before a write cannot be kept");
        const auto count = Forwarding::write(data, size);
        if (count.valueOr(0) > 0) {
            change.size = count.value();
            m_position += change.size;
            m_changes.push_back(std::move(change));
        }
        return count;
    }
    platform::Status flush() override
    {
        const platform::Status status = Forwarding::flush();
        if (status)
            m_changes.clear();
        return status;
    }

private:
    struct Change
    {
        qint64 position;
        qint64 size;
        platform::AlignedBuffer before;
    };
    std::vector<Change> m_changes;
    qint64 m_position = 0;
};

platform::Result<std::unique_ptr<platform::RawDevice>>
PowerCutDevices::openDrive(const platform::DriveIdentity &drive, platform::DriveAccess access)
{
    auto target = m_target.openDrive(drive, access);
    if (!target)
        return target.status();
    return std::unique_ptr<platform::RawDevice>(
        std::make_unique<Transfers<platform::ForwardingRawDevice>>(target.take()));
}

platform::Result<std::unique_ptr<platform::VolumeDevice>>
PowerCutDevices::openVolume(const QString &name, const platform::DriveIdentity &drive)
{
    auto target = m_target.openVolume(name, drive);
    if (!target)
        return target.status();
    return std::unique_ptr<platform::VolumeDevice>(
        std::make_unique<Transfers<platform::ForwardingVolumeDevice>>(target.take()));
}
