#include "platform/windows/windowsquery.h"

#include "platform/storagereplies.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowsmachinevolumes.h"
#include "platform/windows/windowsvolumecalls.h"

#include <winioctl.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace platform {

namespace {

constexpr DWORD DescriptorRoom = 10000;
constexpr DWORD IdentifiersRoom = 1024;
constexpr DWORD ExtentsHeader = 8;
constexpr DWORD ExtentSize = 24;
constexpr DWORD LayoutRoom = 48 + 144 * 1024; // eight times the partitions of a usual table

// Shown as a holder where the system does not report all partitions of a drive.
constexpr QLatin1String UntoldPartitions("partitions that the system does not tell");

// The size of a reply buffer is part of the request to the driver.
static_assert(sizeof(DISK_GEOMETRY_EX) == 40);
static_assert(sizeof(STORAGE_PROPERTY_QUERY) == 12);
static_assert(sizeof(DEVICE_SEEK_PENALTY_DESCRIPTOR) == 12);
static_assert(sizeof(DEVICE_TRIM_DESCRIPTOR) == 12);
static_assert(offsetof(DRIVE_LAYOUT_INFORMATION_EX, PartitionEntry) == 48 &&
              sizeof(PARTITION_INFORMATION_EX) == 144);
static_assert(offsetof(PARTITION_INFORMATION_EX, Gpt.PartitionType) == 32);
static_assert(offsetof(VOLUME_DISK_EXTENTS, Extents) == ExtentsHeader && sizeof(DISK_EXTENT) == ExtentSize);

struct Question
{
    DWORD code = 0;
    const void *input = nullptr;
    DWORD inputSize = 0;
};

Result<QByteArray> ask(HANDLE device, const Question &question, ReplySize size, const char *operation)
{
    QByteArray reply(qsizetype(size.room), '\0');
    DWORD returned = 0;
    const BOOL answered =
        volumeCalls().deviceIoControl(device, question.code, const_cast<void *>(question.input),
                                      question.inputSize, reply.data(), size.room, &returned, nullptr);
    if (!answered)
        return statusFromLastError(operation);
    if (returned < size.needed)
        return Status{GeneralFailure, 0, operation};
    reply.truncate(qsizetype(std::min(returned, size.room)));
    return reply;
}

Result<QByteArray> askProperty(HANDLE device, STORAGE_PROPERTY_ID property, ReplySize size,
                               const char *operation)
{
    STORAGE_PROPERTY_QUERY query = {};
    query.PropertyId = property;
    query.QueryType = PropertyStandardQuery;
    return ask(device, {IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof(query)}, size, operation);
}

Result<bool> askFlag(HANDLE device, STORAGE_PROPERTY_ID property, qsizetype flagAt, const char *operation)
{
    const ReplySize size{DWORD(flagAt) + 1, sizeof(DEVICE_TRIM_DESCRIPTOR)};
    const Result<QByteArray> reply = askProperty(device, property, size, operation);
    if (!reply)
        return reply.status();
    return reply.value().at(flagAt) != '\0';
}

} // namespace

Result<WinHandle> openForQuery(const QString &devicePath)
{
    const std::wstring path = devicePath.toStdWString();
    WinHandle device(fileCalls().createFile(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                            OPEN_EXISTING, 0, nullptr));
    if (!device.isValid())
        return statusFromLastError("CreateFile to query");
    return device;
}

Result<QByteArray> deviceReply(HANDLE device, DWORD code, ReplySize size, const char *operation)
{
    return ask(device, {code, nullptr, 0}, size, operation);
}

Result<Geometry> askGeometry(HANDLE drive)
{
    constexpr const char *Operation = "IOCTL_DISK_GET_DRIVE_GEOMETRY_EX";
    const Result<QByteArray> reply =
        deviceReply(drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX,
                    {offsetof(DISK_GEOMETRY_EX, Data), sizeof(DISK_GEOMETRY_EX)}, Operation);
    if (!reply)
        return reply.status();
    DISK_GEOMETRY_EX answer = {};
    std::memcpy(&answer, reply.value().constData(), size_t(reply.value().size()));
    const auto sector = qint32(answer.Geometry.BytesPerSector);
    // Card readers without a card answer with zeros.
    if (sector <= 0 || answer.DiskSize.QuadPart < 0)
        return Status{NotReady, 0, Operation};
    return Geometry{answer.DiskSize.QuadPart, sector};
}

Result<QByteArray> askDescriptor(HANDLE drive)
{
    return askProperty(drive, StorageDeviceProperty, {sizeof(STORAGE_DESCRIPTOR_HEADER), DescriptorRoom},
                       "StorageDeviceProperty");
}

Result<QString> askWorldWideName(HANDLE drive)
{
    constexpr const char *Operation = "StorageDeviceIdProperty";
    const Result<QByteArray> reply = askProperty(
        drive, StorageDeviceIdProperty, {sizeof(STORAGE_DESCRIPTOR_HEADER), IdentifiersRoom}, Operation);
    if (!reply)
        return reply.status();
    const QString name = decodeWorldWideName(reply.value());
    if (name.isEmpty())
        return Status{NotSupported, 0, Operation};
    return name;
}

Result<QList<Extent>> askExtents(HANDLE volume, int maxExtents)
{
    constexpr const char *Operation = "IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS";
    const DWORD room = ExtentsHeader + ExtentSize * DWORD(std::max(maxExtents, 0));
    // A reply with only the count 0 is valid.
    const Result<QByteArray> reply =
        deviceReply(volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS, {sizeof(DWORD), room}, Operation);
    if (!reply)
        return reply.status();
    DWORD count = 0;
    std::memcpy(&count, reply.value().constData(), sizeof(count));
    if (qint64(count) > maxExtents)
        return Status{MoreData, 0, Operation};
    return decodeExtents(reply.value());
}

Result<QStringList> askHolders(HANDLE drive)
{
    const Result<QByteArray> reply =
        deviceReply(drive, IOCTL_DISK_GET_DRIVE_LAYOUT_EX, {0, LayoutRoom}, "IOCTL_DISK_GET_DRIVE_LAYOUT_EX");
    return reply ? decodeHolders(reply.value()) : reply.status();
}

Result<bool> WindowsQuery::seekPenalty()
{
    return askFlag(m_device.get(), StorageDeviceSeekPenaltyProperty,
                   offsetof(DEVICE_SEEK_PENALTY_DESCRIPTOR, IncursSeekPenalty),
                   "StorageDeviceSeekPenaltyProperty");
}

Result<bool> WindowsQuery::trimEnabled()
{
    return askFlag(m_device.get(), StorageDeviceTrimProperty, offsetof(DEVICE_TRIM_DESCRIPTOR, TrimEnabled),
                   "StorageDeviceTrimProperty");
}

bool WindowsQuery::isReadOnly() const
{
    DWORD returned = 0;
    const Status writable = statusOf(volumeCalls().deviceIoControl(handle(), IOCTL_DISK_IS_WRITABLE, nullptr,
                                                                   0, nullptr, 0, &returned, nullptr),
                                     "IOCTL_DISK_IS_WRITABLE");
    return writable.code == WriteProtect;
}

// A drive that does not answer, for example because of a damaged first sector, can still be erased. A drive
// with a truncated answer may have unreported partitions.
Result<DeviceUse> WindowsDriveQuery::use()
{
    const Result<QStringList> holders = askHolders(handle());
    const bool isCut = holders.code() == MoreData || holders.code() == ERROR_INSUFFICIENT_BUFFER;
    return DeviceUse{isReadOnly(), isCut ? QStringList{UntoldPartitions} : holders.valueOr({}), {}};
}

Result<DeviceUse> WindowsVolumeQuery::use()
{
    DeviceUse use;
    use.isReadOnly = isReadOnly();
    // Takes the volume's letter and the volume offline.
    if (!isMachineVolume(m_name))
        use.releaseCommands = QStringList{QStringLiteral("mountvol %1 /P").arg(m_name)};
    return use;
}

} // namespace platform
