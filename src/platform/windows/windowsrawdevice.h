#pragma once

#include "platform/devices.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowsquery.h"

#include <QString>

namespace platform {

/// Opens a drive or volume for raw, unbuffered, write-through transfers.
Result<WinHandle> openForTransfers(const QString &devicePath, DriveAccess access);

/// Transfers to an open drive or volume. The constructor asks for its end and sector size. A device that does
/// not tell its sector size is taken to have sectors of 512 bytes; an unknown end shows during transfers.
class DeviceTransfers
{
public:
    /// The largest size passed to one system call; a multiple of every sector size.
    static constexpr qint64 CallLimit = qint64(1) << 30;

    explicit DeviceTransfers(WinHandle device);

    HANDLE handle() const { return m_device.get(); }
    Result<qint32> bytesPerSector() const;
    Result<qint64> length() const;
    Status seek(qint64 position);
    Result<qint64> read(void *data, qint64 size);
    Result<qint64> write(const void *data, qint64 size);
    Status flush();

private:
    qint64 withinDevice(qint64 size) const;
    bool isAtUntoldEnd();

    WinHandle m_device;
    qint64 m_sector = 512;
    qint64 m_end = -1; ///< bytes in whole sectors; negative when unknown
    qint64 m_position = 0;
};

/// Base is RawDevice or VolumeDevice.
template <typename Base>
class WindowsTransfers : public Base
{
public:
    explicit WindowsTransfers(WinHandle device)
        : m_transfers(std::move(device))
    {}
    Result<Geometry> geometry() override { return askGeometry(handle()); }
    Result<qint32> bytesPerSector() override { return m_transfers.bytesPerSector(); }
    Result<qint64> length() override { return m_transfers.length(); }
    Status seek(qint64 position) override { return m_transfers.seek(position); }
    Result<qint64> read(void *data, qint64 size) override { return m_transfers.read(data, size); }
    Result<qint64> write(const void *data, qint64 size) override { return m_transfers.write(data, size); }
    Status flush() override { return m_transfers.flush(); }

protected:
    HANDLE handle() const { return m_transfers.handle(); }

private:
    DeviceTransfers m_transfers;
};

using WindowsRawDevice = WindowsTransfers<RawDevice>;

} // namespace platform
