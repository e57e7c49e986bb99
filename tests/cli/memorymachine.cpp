#include "cli/memorymachine.h"

#include <QMutexLocker>

QStringList MemoryMachine::openings() const
{
    const QMutexLocker lock(&m_mutex);
    return m_openings;
}

platform::Status MemoryMachine::before(const DeviceCall &call)
{
    if (call.method == QLatin1String("openDrive") || call.method == QLatin1String("openVolume")) {
        const QMutexLocker lock(&m_mutex);
        m_openings.append(call.method + QLatin1Char(' ') + call.target);
    }
    return answer ? answer(call) : platform::Status{};
}
