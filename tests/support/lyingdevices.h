#pragma once

#include "platform/forwarding.h"

#include <memory>

// Drives that report success without doing the work. Volumes pass through unchanged unless stated otherwise.

// The Nth write (from 1) to a drive or volume is answered with success and dropped.
class DroppingDevices : public platform::ForwardingDevices
{
public:
    DroppingDevices(platform::Devices &target, int write)
        : ForwardingDevices(target)
        , m_countdown(std::make_shared<int>(write))
    {}
    bool hasDropped() const { return *m_countdown <= 0; }

    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override;
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &name, const platform::DriveIdentity &drive) override;

private:
    template <typename Forwarding>
    class Transfers;

    std::shared_ptr<int> m_countdown;
};

// A drive that reports a larger size than its medium has. Behind the end of the medium every transfer
// succeeds: Wrapping continues at the start, Hollow drops writes and delivers bytes of its own.
class OverstatedDevices : public platform::ForwardingDevices
{
public:
    enum Behaviour { Wrapping, Hollow };

    OverstatedDevices(platform::Devices &target, qint64 realSize, qint64 statedSize, Behaviour behaviour)
        : ForwardingDevices(target)
        , m_realSize(realSize)
        , m_statedSize(statedSize)
        , m_behaviour(behaviour)
    {}

    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override;

private:
    class Drive;

    qint64 m_realSize;
    qint64 m_statedSize;
    Behaviour m_behaviour;
};
