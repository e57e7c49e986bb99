#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QString>

#include <optional>

namespace platform {

/// A whole drive that is present now.
struct Drive
{
    int number = -1;
    QString kernelName;   ///< "sda"
    QByteArray device;    ///< "8:0"
    QString serialNumber; ///< may be empty
    qint64 sizeBytes = 0;
    /// Distinguishes the attachments of a drive without a serial number; empty for all other drives.
    QByteArray attachment;

    /// Whether both are the same device, whatever their numbers.
    bool isSameDevice(const Drive &other) const
    {
        return device == other.device && serialNumber == other.serialNumber && sizeBytes == other.sizeBytes &&
               attachment == other.attachment;
    }
};

/// Numbers the drives when they are first seen, in natural name order; a number stays for the life of the
/// process. A drive is a whole, writable block device with a size; memory disks, device-mapper and md
/// devices, and optical drives are excluded.
///
/// A number is reused only when fewer than 32 numbers would otherwise stay in reach, and never for a drive
/// that the identity check could confuse with an earlier holder of the number (same serial number and size,
/// and without a serial number the same attachment). Thread-safe.
class DriveRegistry
{
public:
    explicit DriveRegistry(SystemTree tree);

    /// The present drives, ascending by number.
    QList<Drive> drives();
    std::optional<Drive> byNumber(int number);
    std::optional<Drive> byDevice(const QByteArray &device);

private:
    QList<Drive> scan() const;
    int numberFor(const Drive &drive, const QList<Drive> &present);

    SystemTree m_tree;
    QMutex m_mutex;
    QList<QList<Drive>> m_holders; ///< by number: every drive that has had it, the latest last
};

} // namespace platform
