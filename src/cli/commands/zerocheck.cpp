#include "cli/commands/zerocheck.h"

#include "cli/io/paths.h"
#include "cli/io/permission.h"
#include "cli/io/stoprequest.h"
#include "cli/job/drivetarget.h"
#include "cli/texts.h"
#include "engine/driveidentity.h"
#include "model/displaytext.h"
#include "model/units.h"
#include "platform/alignedbuffer.h"
#include "platform/devices.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "services/diskmanager.h"

#include <QFileInfo>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>

namespace cli {

namespace {

constexpr qint64 ChunkSize = 8 * MiB;

// The read function of a file or a drive.
using Reader = std::function<platform::Result<qint64>(void *data, qint64 size)>;

// Compares each byte with the next one, many at a time; a search for another byte takes longer than reading.
bool isZero(const std::byte *data, qint64 size)
{
    return data[0] == std::byte(0) && std::memcmp(data, data + 1, static_cast<std::size_t>(size - 1)) == 0;
}

Outcome<ZeroCheck> readThrough(const Reader &read, qint64 length, const QString &shown,
                               const StopRequest &stop)
{
    if (length == 0)
        return Refusal{JobFailed, Cli::tr("%1 is empty, there is nothing to check").arg(shown)};
    ZeroCheck check;
    platform::AlignedBuffer buffer(ChunkSize);
    while (check.bytesRead < length) {
        if (stop.isRequested())
            return Refusal{Cancelled, Cli::tr("cancelled")};
        const platform::Result<qint64> count = read(buffer.data(), ChunkSize);
        if (!count || count.value() <= 0) {
            return Refusal{JobFailed, Cli::tr("%1 cannot be read at byte %2, error %3")
                                          .arg(shown)
                                          .arg(check.bytesRead)
                                          .arg(count.code())};
        }
        // The file may have grown meanwhile.
        const qint64 valid = std::min(count.value(), length - check.bytesRead);
        if (isZero(buffer.data(), valid)) {
            check.bytesRead += valid;
            continue;
        }
        const std::byte *const begin = buffer.data();
        const std::byte *const other =
            std::find_if(begin, begin + valid, [](std::byte value) { return value != std::byte(0); });
        check.firstOther = check.bytesRead + (other - begin);
        check.otherByte = std::to_integer<int>(*other);
        check.bytesRead = check.firstOther + 1;
        return check;
    }
    return check;
}

Refusal cannotOpen(const QString &shown, int code)
{
    if (code == platform::AccessDenied)
        return {Refused, notPermitted(Cli::tr("not permitted to read %1").arg(shown))};
    return {Refused, Cli::tr("%1 cannot be opened, error %2").arg(shown).arg(code)};
}

Outcome<ZeroCheck> checkFile(const QString &path, qint64 size, const StopRequest &stop)
{
    const QString shown = displayText(path);
    auto opened = platform::Platform::current().files().open(path, platform::OpenMode::Verify);
    if (!opened)
        return cannotOpen(shown, opened.code());
    const std::unique_ptr<platform::FileHandle> file = opened.take();
    return readThrough([&file](void *data, qint64 count) { return file->read(data, count); }, size, shown,
                       stop);
}

Outcome<ZeroCheck> checkDrive(const DiskInfo &disk, const StopRequest &stop)
{
    const QString shown = displayText(disk.devicePath);
    auto opened =
        platform::Platform::current().devices().openDrive(identityOf(disk), platform::DriveAccess::ReadOnly);
    if (!opened)
        return cannotOpen(shown, opened.code());
    const std::unique_ptr<platform::RawDevice> drive = opened.take();
    const platform::Result<qint64> length = drive->length();
    if (!length)
        return cannotOpen(shown, length.code());
    return readThrough([&drive](void *data, qint64 count) { return drive->read(data, count); },
                       length.value(), shown, stop);
}

} // namespace

Outcome<ZeroCheck> checkZeros(const QString &path, const StopRequest &stop)
{
    // The platform does not follow links, so that a link to an image is resolved here.
    const QString canonical = QFileInfo(absolutePath(path)).canonicalFilePath();
    const auto info = platform::Platform::current().files().info(canonical);
    if (!canonical.isEmpty() && info && info.value().kind == platform::FileKind::Regular)
        return checkFile(canonical, info.value().size, stop);
    if (!canonical.isEmpty() && info && info.value().kind == platform::FileKind::Folder)
        return Refusal{Refused, Cli::tr("%1 is a folder").arg(displayText(path))};
    const auto disk = findDrive(path, DiskManager::enumerateDisks());
    if (!disk)
        return disk.refusal();
    return checkDrive(*disk, stop);
}

} // namespace cli
