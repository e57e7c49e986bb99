#include "platform/windows/windowsvolume.h"

#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowsvolumecalls.h"

#include <winioctl.h>

namespace platform {

// After the dismount the file systems answer a flush differently. FAT and exFAT pass it on to the drive and
// then report a changed volume; others report at once that the volume is missing.
Status WindowsVolumeDevice::flush()
{
    const Status flushed = WindowsTransfers<VolumeDevice>::flush();
    if (flushed || !m_isDismounted)
        return flushed;
    if (flushed.code == FileInvalid)
        return {};
    return flushed.code == NotReady ? flushDrive() : flushed;
}

Status WindowsVolumeDevice::flushDrive() const
{
    const Result<WinHandle> drive = m_openDrive();
    if (!drive)
        return drive.status();
    return statusOf(fileCalls().flushFileBuffers(drive.value().get()), "FlushFileBuffers of the drive");
}

Status WindowsVolumeDevice::lock()
{
    return control(FSCTL_LOCK_VOLUME, "FSCTL_LOCK_VOLUME");
}

Status WindowsVolumeDevice::dismount()
{
    const Status dismounted = control(FSCTL_DISMOUNT_VOLUME, "FSCTL_DISMOUNT_VOLUME");
    m_isDismounted |= dismounted.ok();
    return dismounted;
}

Status WindowsVolumeDevice::allowExtendedIo()
{
    return control(FSCTL_ALLOW_EXTENDED_DASD_IO, "FSCTL_ALLOW_EXTENDED_DASD_IO");
}

Status WindowsVolumeDevice::unlock()
{
    return control(FSCTL_UNLOCK_VOLUME, "FSCTL_UNLOCK_VOLUME");
}

Status WindowsVolumeDevice::control(DWORD code, const char *operation)
{
    DWORD returned = 0;
    return statusOf(volumeCalls().deviceIoControl(handle(), code, nullptr, 0, nullptr, 0, &returned, nullptr),
                    operation);
}

} // namespace platform
