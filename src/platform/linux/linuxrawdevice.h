#pragma once

#include "platform/devices.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QByteArray>
#include <QString>

namespace platform {

// Transfers to an open block device; the position is kept here, so that the descriptor can be exchanged.
class BlockTransfers
{
public:
    // Takes over a descriptor of a block device and asks it for its size.
    static Result<BlockTransfers> on(FileDescriptor fd);

    // What can be addressed, in whole sectors.
    Geometry geometry() const { return m_geometry; }
    // Of the device, also of bytes behind the last whole sector.
    qint64 length() const { return m_length; }
    Status seek(qint64 position);
    Result<qint64> read(void *data, qint64 size);
    Result<qint64> write(const void *data, qint64 size);
    Status flush();
    void exchangeDescriptor(FileDescriptor fd) { m_fd = std::move(fd); }

private:
    BlockTransfers(FileDescriptor fd, Geometry geometry, qint64 length)
        : m_fd(std::move(fd))
        , m_geometry(geometry)
        , m_length(length)
    {}

    FileDescriptor m_fd;
    Geometry m_geometry;
    qint64 m_length;
    qint64 m_position = 0;
};

// Opens the node of a block device for raw transfers and makes sure that it is the device meant (by its
// number, "8:0"): a node can be replaced between looking and opening.
Result<FileDescriptor> openBlockDevice(const QString &node, const QByteArray &device, DriveAccess access);

// Base is RawDevice or VolumeDevice.
template <typename Base>
class LinuxTransfers : public Base
{
public:
    explicit LinuxTransfers(BlockTransfers transfers)
        : m_transfers(std::move(transfers))
    {}
    Result<Geometry> geometry() override { return m_transfers.geometry(); }
    Result<qint32> bytesPerSector() override { return m_transfers.geometry().bytesPerSector; }
    Result<qint64> length() override { return m_transfers.length(); }
    Status seek(qint64 position) override { return m_transfers.seek(position); }
    Result<qint64> read(void *data, qint64 size) override { return m_transfers.read(data, size); }
    Result<qint64> write(const void *data, qint64 size) override { return m_transfers.write(data, size); }
    Status flush() override { return m_transfers.flush(); }

protected:
    BlockTransfers m_transfers;
};

using LinuxRawDevice = LinuxTransfers<RawDevice>;

} // namespace platform
