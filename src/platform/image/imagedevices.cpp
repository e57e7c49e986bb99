#include "platform/image/imagedevices.h"

#include "platform/storagereplies.h"
#include "platform/transfercheck.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <algorithm>

namespace platform {

namespace {

constexpr qint32 SectorSize = 512;
constexpr int DriveNumbers = 32; // the number of drives that enumeration examines

Status noSuchDrive()
{
    return {FileNotFound, 0, "image drive"};
}

// A stable replacement for a serial number, so that one image is never confused with another of the same
// size.
QString serialNumberOf(const QString &path)
{
    const QByteArray hash =
        QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex().left(12);
    return QStringLiteral("IMG-") + QString::fromLatin1(hash).toUpper();
}

QByteArray descriptorOf(const QString &path)
{
    DeviceDescriptor descriptor;
    descriptor.productId = QStringLiteral("Image ") + QFileInfo(path).fileName();
    descriptor.serialNumber = serialNumberOf(path);
    descriptor.busType = BusFileBackedVirtual;
    return encodeDeviceDescriptor(descriptor);
}

class ImageQuery : public DeviceQuery
{
public:
    ImageQuery(QString path, qint64 size, QString name)
        : m_path(std::move(path))
        , m_size(size)
        , m_name(std::move(name))
    {}

    Result<Geometry> geometry() override { return Geometry{m_size, SectorSize}; }
    Result<QByteArray> descriptor() override { return descriptorOf(m_path); }
    Result<QString> worldWideName() override
    {
        if (m_name.isEmpty())
            return Status{NotSupported, 0, "world-wide name"};
        return m_name;
    }
    Result<bool> seekPenalty() override { return Status{NotSupported, 0, "seek penalty"}; }
    Result<bool> trimEnabled() override { return Status{NotSupported, 0, "trim"}; }
    Result<DeviceUse> use() override { return DeviceUse{}; }
    Result<QList<Extent>> extents(int) override { return Status{NotSupported, 0, "extents"}; }

private:
    QString m_path;
    qint64 m_size;
    QString m_name;
};

class ImageRawDevice : public RawDevice
{
public:
    ImageRawDevice(std::unique_ptr<FileHandle> file, qint64 size)
        : m_file(std::move(file))
        , m_size(size)
    {}

    Result<Geometry> geometry() override { return Geometry{m_size, SectorSize}; }
    Result<qint32> bytesPerSector() override { return SectorSize; }
    Result<qint64> length() override { return m_size; }

    Status seek(qint64 position) override
    {
        if (position < 0 || position % SectorSize != 0)
            return {InvalidParameter, 0, "seek"};
        m_position = position;
        return {};
    }

    Result<qint64> read(void *data, qint64 size) override
    {
        if (const Status refusal = checkTransfer(data, size, SectorSize, "read"); !refusal)
            return refusal;
        const Status sought = m_file->seek(m_position);
        if (!sought)
            return sought;
        return advanced(m_file->read(data, std::min(size, remaining())));
    }

    Result<qint64> write(const void *data, qint64 size) override
    {
        if (const Status refusal = checkTransfer(data, size, SectorSize, "write"); !refusal)
            return refusal;
        if (size > 0 && remaining() == 0)
            return Status{SectorNotFound, 0, "write"};
        const Status sought = m_file->seek(m_position);
        if (!sought)
            return sought;
        return advanced(m_file->write(data, std::min(size, remaining())));
    }

    Status flush() override { return m_file->flush(); }

private:
    qint64 remaining() const { return std::max<qint64>(m_size - m_position, 0); }

    Result<qint64> advanced(const Result<qint64> &count)
    {
        if (count)
            m_position += count.value();
        return count;
    }

    std::unique_ptr<FileHandle> m_file;
    qint64 m_size;
    qint64 m_position = 0;
};

// An image has no mounted volumes.
class NoVolumes : public ReleasedVolumes
{
public:
    QStringList names() const override { return {}; }
    bool holds(const QString &) const override { return false; }
    QStringList restore() override { return {}; }
    Status keep() override { return {}; }
};

// The identity of the file, so that another file under the same path later is a different drive. Empty where
// the file system does not report one.
QString nameOf(FileHandle &file)
{
    const Result<FileId> id = file.id();
    if (!id)
        return {};
    return QStringLiteral("file.%1.%2.%3")
        .arg(id.value().device, 0, 16)
        .arg(id.value().number, 0, 16)
        .arg(id.value().born, 0, 16);
}

Result<qint64> imageSize(Files &files, const QString &path)
{
    const Result<FileInfo> info = files.info(path);
    if (!info)
        return info.status();
    if (info.value().kind != FileKind::Regular)
        return Status{CannotAccessFile, 0, "image drive"};
    return info.value().size;
}

} // namespace

ImageDevices::ImageDevices(Devices &base, Files &files, const ImageDriveOptions &options)
    : m_base(base)
    , m_files(files)
    , m_onlyImages(options.onlyImages)
{
    int next = 0;
    for (int number = 0; number < DriveNumbers && !m_onlyImages; ++number) {
        if (m_base.queryDrive(number))
            next = number + 1;
    }
    for (const QString &path : options.imageFiles) {
        const QFileInfo file(path);
        const QString canonical = file.canonicalFilePath();
        m_images.insert(next++, canonical.isEmpty() ? file.absoluteFilePath() : canonical);
    }
}

QString ImageDevices::drivePath(int number)
{
    if (m_images.contains(number))
        return m_images.value(number);
    return m_onlyImages ? QString() : m_base.drivePath(number);
}

Result<std::unique_ptr<DeviceQuery>> ImageDevices::queryDrive(int number)
{
    if (!m_images.contains(number)) {
        if (m_onlyImages)
            return noSuchDrive();
        return m_base.queryDrive(number);
    }
    const QString path = m_images.value(number);
    const Result<qint64> size = imageSize(m_files, path);
    if (!size)
        return size.status();
    const Result<std::unique_ptr<FileHandle>> file = m_files.open(path, OpenMode::Verify);
    const QString name = file ? nameOf(*file.value()) : QString();
    return std::unique_ptr<DeviceQuery>(std::make_unique<ImageQuery>(path, size.value(), name));
}

Result<std::unique_ptr<DeviceQuery>> ImageDevices::queryVolume(const QString &name)
{
    if (m_onlyImages)
        return noSuchDrive();
    return m_base.queryVolume(name);
}

Result<std::unique_ptr<RawDevice>> ImageDevices::openDrive(const DriveIdentity &drive, DriveAccess access)
{
    if (!m_images.contains(drive.number)) {
        if (m_onlyImages)
            return noSuchDrive();
        return m_base.openDrive(drive, access);
    }
    const QString path = m_images.value(drive.number);
    const OpenMode mode = access == DriveAccess::ReadOnly ? OpenMode::Verify : OpenMode::Overwrite;
    Result<std::unique_ptr<FileHandle>> file = m_files.open(path, mode);
    if (!file)
        return file.status();
    const Result<qint64> size = imageSize(m_files, path);
    if (!size)
        return size.status();
    ImageQuery present(path, size.value(), nameOf(*file.value()));
    if (identityOf(drive.number, present) != drive)
        return Status{NotReady, 0, "identity check"};
    return std::unique_ptr<RawDevice>(std::make_unique<ImageRawDevice>(file.take(), size.value()));
}

Result<std::unique_ptr<VolumeDevice>> ImageDevices::openVolume(const QString &name,
                                                               const DriveIdentity &drive)
{
    if (m_onlyImages || m_images.contains(drive.number))
        return noSuchDrive();
    return m_base.openVolume(name, drive);
}

VolumeRelease ImageDevices::releaseVolumes(const DriveIdentity &drive)
{
    if (m_images.contains(drive.number))
        return {.volumes = std::make_unique<NoVolumes>()};
    return m_onlyImages ? VolumeRelease{.failure = noSuchDrive()} : m_base.releaseVolumes(drive);
}

QStringList ImageDevices::volumeNames()
{
    return m_onlyImages ? QStringList() : m_base.volumeNames();
}

Result<QStringList> ImageDevices::machineVolumes()
{
    if (m_onlyImages)
        return QStringList();
    return m_base.machineVolumes();
}

QList<MountedVolume> ImageDevices::mountedVolumes()
{
    return m_onlyImages ? QList<MountedVolume>() : m_base.mountedVolumes();
}

} // namespace platform
