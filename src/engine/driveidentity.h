#pragma once

#include "model/diskinfo.h"
#include "platform/devices.h"

// What tells the disk of a record from another that takes its number later.
inline platform::DriveIdentity identityOf(const DiskInfo &disk)
{
    return {disk.diskNumber, disk.serialNumber, disk.sizeBytes, disk.model, disk.worldWideName};
}
