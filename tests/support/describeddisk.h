#pragma once

#include "model/diskinfo.h"
#include "platform/devices.h"
#include "support/memorydevices.h"

// The record of a drive as in the list of drives, without its volumes.
DiskInfo describedDisk(platform::Devices &devices, int number);
// The same record, built from the definition of the drive, also when its fields are no clean text.
DiskInfo describedDisk(const MemoryDrive &drive);
