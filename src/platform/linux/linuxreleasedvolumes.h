#pragma once

#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxmountstack.h"
#include "platform/releasedvolumes.h"

namespace platform {

/// The unmounted file systems of a drive, and the drive itself, opened with O_EXCL so that nothing on it can
/// be mounted meanwhile.
class LinuxReleasedVolumes : public ReleasedVolumes
{
public:
    /// The drive's descriptor is set after unmounting.
    explicit LinuxReleasedVolumes(MountStack mounts)
        : m_mounts(std::move(mounts))
    {}
    ~LinuxReleasedVolumes() override;

    MountStack &mounts() { return m_mounts; }
    void setDrive(FileDescriptor drive) { m_drive = std::move(drive); }

    QStringList names() const override;
    bool holds(const QString &) const override { return false; } // the list shows mounted volumes only
    QStringList restore() override;
    Status keep() override;

private:
    MountStack m_mounts;
    FileDescriptor m_drive;
    bool m_isSettled = false;
};

} // namespace platform
