#pragma once

#include "platform/forwarding.h"
#include "platform/platform.h"
#include "support/fakedevices.h"
#include "support/interposeddevices.h"
#include "support/memorydevices.h"

#include <QMutex>
#include <QStringList>

#include <functional>
#include <memory>

// Drives in memory beside the real files, in force for the lifetime of the object. Records the drives and
// volumes opened for writing, and can replace their answers.
class MemoryMachine
{
public:
    MemoryDevices memory;
    FakeSession session;
    std::function<platform::Status(const DeviceCall &)> answer; // any thread; may be empty

    // "openDrive 1", "openVolume /media/a", in order.
    QStringList openings() const;

private:
    platform::Status before(const DeviceCall &call);

    mutable QMutex m_mutex;
    QStringList m_openings;
    InterposedDevices m_devices{memory, [this](const DeviceCall &call) { return before(call); }};
    std::unique_ptr<platform::Platform> m_files = platform::createPlatform({{}, true});
    platform::ForwardingPlatform m_platform{m_files->files(), m_files->folders(), m_devices, session};
    platform::ScopedPlatform m_scope{m_platform};
};
