#pragma once

#include "support/interposeddevices.h"

#include <chrono>
#include <thread>

// Devices that delay every transfer and flush.
class SlowDevices : public InterposedDevices
{
public:
    SlowDevices(platform::Devices &target, std::chrono::microseconds time)
        : InterposedDevices(target, [time](const DeviceCall &call) {
            if (call.kind == FaultPlan::Read || call.kind == FaultPlan::Write ||
                call.kind == FaultPlan::Flush)
                std::this_thread::sleep_for(time);
            return platform::Status{};
        })
    {}
};
