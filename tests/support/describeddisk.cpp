#include "support/describeddisk.h"

#include "platform/storagereplies.h"

DiskInfo describedDisk(platform::Devices &devices, int number)
{
    const auto drive = devices.queryDrive(number);
    if (!drive)
        return {};
    const platform::DriveIdentity identity = platform::identityOf(number, *drive.value());
    DiskInfo disk;
    disk.diskNumber = number;
    disk.devicePath = devices.drivePath(number);
    disk.model = identity.product;
    disk.serialNumber = identity.serialNumber;
    disk.worldWideName = identity.worldWideName;
    disk.sizeBytes = identity.sizeBytes;
    disk.bytesPerSector = drive.value()->geometry().valueOr({}).bytesPerSector;
    disk.totalSectors = disk.sizeBytes / disk.bytesPerSector;
    return disk;
}

DiskInfo describedDisk(const MemoryDrive &drive)
{
    DiskInfo disk;
    disk.diskNumber = drive.number;
    disk.model = drive.model;
    disk.serialNumber = drive.serialNumber;
    disk.worldWideName = drive.worldWideName;
    disk.sizeBytes = drive.sizeBytes;
    disk.bytesPerSector = drive.sectorSize;
    return disk;
}
