#pragma once

#include "model/diskinfo.h"
#include "platform/devices.h"

/// The identity of the disk in a record, which tells it from a disk that gets its number later.
inline platform::DriveIdentity identityOf(const DiskInfo &disk)
{
    return {disk.diskNumber, disk.serialNumber, disk.sizeBytes, disk.model, disk.worldWideName};
}
