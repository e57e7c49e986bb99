#include "fuzz/checks.h"
#include "platform/linux/linuxdrivedescription.h"
#include "platform/linux/linuxdriveregistry.h"
#include "platform/linux/linuxudevdatabase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cstddef>
#include <cstdint>

// The kernel's and udev's words about a drive; most come from the drive itself. In the input the contents of
// the attributes follow each other, each ended by byte 0xFF, which none of them needs.

namespace {

constexpr std::array attributes{
    "sys/block/sda/size",
    "sys/block/sda/ro",
    "sys/block/sda/removable",
    "sys/block/sda/diskseq",
    "sys/block/sda/wwid",
    "sys/block/sda/device/wwid",
    "sys/block/sda/device/model",
    "sys/block/sda/serial",
    "sys/block/sda/device/serial",
    "sys/block/sda/device/vpd_pg80",
    "sys/block/sda/device/vpd_pg83",
    "udev/b8:0",
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/quorvex-fuzz-XXXXXX"));
    static const QDir top(folder.path());
    static const platform::SystemTree tree{
        top.filePath(QStringLiteral("sys")), top.filePath(QStringLiteral("proc")),
        top.filePath(QStringLiteral("dev")), top.filePath(QStringLiteral("udev"))};
    static const bool isMade =
        top.mkpath(QStringLiteral("sys/block/sda/device")) && top.mkpath(QStringLiteral("udev"));
    require(isMade, "the folders are there");
    const auto write = [](const char *name, const QByteArray &content) {
        QFile file(top.filePath(QLatin1String(name)));
        require(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                    file.write(content) == content.size(),
                "the attribute is written");
    };
    write("sys/block/sda/dev", "8:0\n");
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QList<QByteArray> contents = text.split('\xff');
    for (std::size_t i = 0; i < attributes.size(); ++i)
        write(attributes[i], contents.value(static_cast<qsizetype>(i)));

    const platform::DeviceDescriptor drive = platform::describeDrive(tree, QStringLiteral("sda"));
    require(drive.serialNumber.size() <= text.size(), "a serial number is a part of the attributes");
    const QString name = platform::worldWideName(tree, QStringLiteral("sda"));
    require(name.isEmpty() || name.startsWith(u"naa.") || name.startsWith(u"eui.") ||
                name.startsWith(u"uuid.") || name.startsWith(u"attachment."),
            "a world-wide name has its kind before it");
    require(platform::udevProperties(tree, "8:0").size() <= text.count('\n') + 1, "a line is one property");
    platform::DriveRegistry registry(tree);
    const QList<platform::Drive> drives = registry.drives();
    require(drives.size() <= 1, "there is one drive");
    for (const platform::Drive &found : drives)
        require(found.sizeBytes > 0, "a drive has a size");
    return 0;
}
