#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QString>

#include <optional>

namespace platform {

// A whole drive that is there now.
struct Drive
{
    int number = -1;
    QString kernelName;   // "sda"
    QByteArray device;    // "8:0"
    QString serialNumber; // may be empty
    qint64 sizeBytes = 0;
    // Tells one attachment of a drive without serial number from the next; empty for all others.
    QByteArray attachment;

    // The same device, whatever number it has.
    bool isSameDevice(const Drive &other) const
    {
        return device == other.device && serialNumber == other.serialNumber && sizeBytes == other.sizeBytes &&
               attachment == other.attachment;
    }
};

// Gives drives their numbers: at first sight, in natural name order, and for the life of the process. A drive
// is a whole, writable block device with a size; memory disks, device-mapper and md devices, and optical
// drives are none.
//
// A number is given again only when fewer than 32 would otherwise stay in reach, and never to a drive that
// the identity check could take for one that had it before (same serial number and size, and without a
// serial number the same attachment). Thread-safe.
class DriveRegistry
{
public:
    explicit DriveRegistry(SystemTree tree);

    // What is there now, ascending by number.
    QList<Drive> drives();
    std::optional<Drive> byNumber(int number);
    std::optional<Drive> byDevice(const QByteArray &device);

private:
    QList<Drive> scan() const;
    int numberFor(const Drive &drive, const QList<Drive> &present);

    SystemTree m_tree;
    QMutex m_mutex;
    QList<QList<Drive>> m_holders; // by number: every drive that has had it, the latest last
};

} // namespace platform
