#pragma once

#include "support/faultplan.h"
#include "support/interposeddevices.h"

// Devices whose calls fail according to a plan. The plan outlives them.
class FaultyDevices : public InterposedDevices
{
public:
    FaultyDevices(platform::Devices &target, FaultPlan &plan)
        : InterposedDevices(target, [&plan](const DeviceCall &call) {
            return plan.fires(call.kind) ? plan.status() : platform::Status{};
        })
    {}
};
