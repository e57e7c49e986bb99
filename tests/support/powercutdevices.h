#pragma once

#include "platform/alignedbuffer.h"
#include "platform/forwarding.h"

#include <memory>

// Devices whose power fails right after the last flush. Bytes written after that flush disappear from the
// medium when the handle closes. Until then they can be read back, as from a drive's own cache.
class PowerCutDevices : public platform::ForwardingDevices
{
public:
    using ForwardingDevices::ForwardingDevices;

    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override;
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &name, const platform::DriveIdentity &drive) override;

private:
    template <typename Forwarding>
    class Transfers;
};
