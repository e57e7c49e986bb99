#pragma once

#include "platform/devices.h"
#include "platform/windows/windowshandle.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace platform {

// Opens a drive or volume ("\\.\PhysicalDrive0", "\\.\E:") to be asked about itself only.
Result<WinHandle> openForQuery(const QString &devicePath);

// What a device answers to a control code that takes no input, in as many bytes as it filled in.
// GeneralFailure when it claims success with fewer bytes than needed. The operation is a string literal.
struct ReplySize
{
    DWORD needed = 0;
    DWORD room = 0;
};
Result<QByteArray> deviceReply(HANDLE device, DWORD code, ReplySize size, const char *operation);

// Questions that any handle of a drive or volume answers, whatever it was opened for.
Result<Geometry> askGeometry(HANDLE drive);
Result<QByteArray> askDescriptor(HANDLE drive);
Result<QString> askWorldWideName(HANDLE drive);
Result<QList<Extent>> askExtents(HANDLE volume, int maxExtents);
// What the system has built on a drive, by name.
Result<QStringList> askHolders(HANDLE drive);

// A drive or volume, by a handle to ask it.
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
