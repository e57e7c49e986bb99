#pragma once

#include "platform/devices.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QByteArray>
#include <QString>

namespace platform {

/// Transfers to an open block device. The position is kept here, so that the descriptor can be replaced.
class BlockTransfers
{
public:
    /// Takes over a descriptor of a block device and queries its size.
    static Result<BlockTransfers> on(FileDescriptor fd);

    /// The addressable part, in whole sectors.
    Geometry geometry() const { return m_geometry; }
    /// The device's length, including bytes behind the last whole sector.
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

/// Opens the node of a block device for raw transfers. A node can be replaced between the lookup and the
/// opening, so the call checks the number of the opened device ("8:0").
Result<FileDescriptor> openBlockDevice(const QString &node, const QByteArray &device, DriveAccess access);

/// Base is RawDevice or VolumeDevice.
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
