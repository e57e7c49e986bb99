#pragma once

#include "model/diskinfo.h"
#include "platform/devices.h"
#include "support/memorydevices.h"

// The record of a drive as the list of drives would have it, without its volumes.
DiskInfo describedDisk(platform::Devices &devices, int number);
// The same from what the drive was made of, also where its fields are no clean text.
DiskInfo describedDisk(const MemoryDrive &drive);
