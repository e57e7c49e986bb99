#include "engine/faultjob.h"

namespace faultjob {

void setUpDisk(WipeTask &task, const FaultyDrive &drive, WipeMethod::Type method)
{
    task.setOperationType(DiskWipe);
    task.setDisk(diskAt(drive.device()));
    task.setMethod(WipeMethod::fromType(method));
    task.setBufferSizeMB(1);
}

QString writeErrorAt(qint64 position, int error)
{
    return QStringLiteral("写入错误，位置: %1，错误码: %2").arg(position).arg(error);
}

QByteArray stretchOf(char character, qint64 size)
{
    return QByteArray(size, character);
}

} // namespace faultjob
