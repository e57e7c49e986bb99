#pragma once

#include "platform/forwarding.h"
#include "support/faultplan.h"

#include <QLatin1String>
#include <QString>

#include <functional>
#include <memory>

// A call passed to the target of an InterposedDevices.
struct DeviceCall
{
    FaultPlan::Kind kind;
    QLatin1String method; // name in the interface
    QString target;       // name of the volume, number of the drive
    qint64 argument = 0;  // position of a seek, size of a read or write
};

// Runs a function before every call that may fail, on drives, volumes and their handles. A failure that it
// returns becomes the answer, and the call does not reach the target. The function may also count, wait or
// stop a worker; it runs on the caller's thread.
class InterposedDevices : public platform::ForwardingDevices
{
public:
    using Before = std::function<platform::Status(const DeviceCall &)>;

    InterposedDevices(platform::Devices &target, Before before);
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryDrive(int number) override;
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override;
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override;
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &name, const platform::DriveIdentity &drive) override;
    platform::VolumeRelease releaseVolumes(const platform::DriveIdentity &drive) override;

private:
    class Query;
    template <typename Forwarding>
    class Transfers;
    class Volume;

    Before m_before;
};
