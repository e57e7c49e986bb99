#pragma once

#include "realjob.h"
#include "support/faultydrive.h"

// The jobs of these suites: chunks of 1 MiB, so that positions tell something.
namespace faultjob {

inline constexpr qint64 MiB = 1024 * 1024;
inline constexpr char Old = 'o'; // what the drives hold before

inline void setUpDisk(WipeTask &task, const FaultyDrive &drive, WipeMethod::Type method)
{
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(drive.device()));
    task.setMethod(WipeMethod::fromType(method));
    task.setBufferSizeMB(1);
}

inline QString writeErrorAt(qint64 position, int error)
{
    return QStringLiteral("写入错误，位置: %1，错误码: %2").arg(position).arg(error);
}

inline QByteArray stretchOf(char character, qint64 size)
{
    return QByteArray(size, character);
}

} // namespace faultjob
