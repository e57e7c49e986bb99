#pragma once

#include "platform/devices.h"
#include "platform/windows/windowshandle.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace platform {

/// Opens a drive or volume ("\\.\PhysicalDrive0", "\\.\E:") for queries only.
Result<WinHandle> openForQuery(const QString &devicePath);

/// The answer of a device to a control code without input, as long as the device filled it in. Fails with
/// GeneralFailure when the device reports success with fewer bytes than needed. The operation is a string
/// literal.
struct ReplySize
{
    DWORD needed = 0;
    DWORD room = 0;
};
Result<QByteArray> deviceReply(HANDLE device, DWORD code, ReplySize size, const char *operation);

/// Queries that work on any handle of a drive or volume, whatever its access.
Result<Geometry> askGeometry(HANDLE drive);
Result<QByteArray> askDescriptor(HANDLE drive);
Result<QString> askWorldWideName(HANDLE drive);
Result<QList<Extent>> askExtents(HANDLE volume, int maxExtents);
/// The names of the storage objects that the system has built on a drive.
Result<QStringList> askHolders(HANDLE drive);

/// Queries to a drive or volume through one handle.
class WindowsQuery : public DeviceQuery
{
public:
    explicit WindowsQuery(WinHandle device)
        : m_device(std::move(device))
    {}

    Result<Geometry> geometry() override { return askGeometry(m_device.get()); }
    Result<QByteArray> descriptor() override { return askDescriptor(m_device.get()); }
    Result<QString> worldWideName() override { return askWorldWideName(m_device.get()); }
    Result<bool> seekPenalty() override;
    Result<bool> trimEnabled() override;
    Result<QList<Extent>> extents(int maxExtents) override { return askExtents(m_device.get(), maxExtents); }

protected:
    HANDLE handle() const { return m_device.get(); }
    bool isReadOnly() const;

private:
    WinHandle m_device;
};

class WindowsDriveQuery : public WindowsQuery
{
public:
    using WindowsQuery::WindowsQuery;

    Result<DeviceUse> use() override;
};

class WindowsVolumeQuery : public WindowsQuery
{
public:
    WindowsVolumeQuery(WinHandle volume, QString name)
        : WindowsQuery(std::move(volume))
        , m_name(std::move(name))
    {}

    Result<DeviceUse> use() override;

private:
    QString m_name;
};

} // namespace platform
