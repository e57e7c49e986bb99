#pragma once

#include "platform/alignedbuffer.h"
#include "platform/files.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <memory>

struct statx;

namespace platform {

/// The alignment that a file requires for transfers past the page cache.
struct DirectTransfers
{
    bool possible = false;
    qint64 memoryUnit = 4096; ///< the buffer begins on a multiple of it
    qint64 fileUnit = 4096;   ///< position and length are multiples of it
};

/// The statx fields that directTransfersOf() needs.
extern const unsigned int DirectTransfersMask;

/// For a file that is opened with O_DIRECT.
DirectTransfers directTransfersOf(const struct statx &file);

class LinuxDurabilityGroup;

struct OpenedFile
{
    FileDescriptor descriptor;
    DirectTransfers direct;
    bool directOn = false;     ///< O_DIRECT is set, even if the file then refuses direct transfers
    bool writeThrough = false; ///< O_DSYNC is set, and the file system is known to honour it
    std::shared_ptr<LinuxDurabilityGroup> group{}; ///< the file's group, or null
};

/// An open regular file. Direct transfers move whole units between the caller's buffer and the device. The
/// remainder is read through a small aligned buffer, and written through the page cache, which preserves the
/// neighbouring bytes and the length.
class LinuxFileHandle final : public FileHandle
{
public:
    explicit LinuxFileHandle(OpenedFile file);

    Status seek(qint64 position) override;
    Result<qint64> read(void *data, qint64 size) override;
    Result<qint64> write(const void *data, qint64 size) override;
    Status setEnd() override;
    Status flush() override;
    Result<FileId> id() override;
    Result<ContentPlace> contentPlace() override;

private:
    Result<qint64> readSome(qint64 position, std::byte *data, qint64 size);
    Result<qint64> readDirect(qint64 position, std::byte *data, qint64 size);
    Result<qint64> readCached(qint64 position, std::byte *data, qint64 size);
    Result<qint64> writePieces(const std::byte *data, qint64 size);
    Result<qint64> writeSome(qint64 position, const std::byte *data, qint64 size);
    Result<qint64> writeDirect(qint64 position, const std::byte *data, qint64 size);
    Result<qint64> transferOut(qint64 position, const std::byte *data, qint64 size);

    bool fitsMemory(const std::byte *data) const;
    bool provideBounce(qint64 size);
    Status switchDirect(bool on);
    void dropCached();

    FileDescriptor m_file;
    const std::shared_ptr<LinuxDurabilityGroup> m_group;
    DirectTransfers m_direct;
    AlignedBuffer m_bounce;
    qint64 m_position = 0;
    Status m_flushFailure;
    const bool m_writeThrough;
    bool m_directOn;
    bool m_endMoved = false;
    bool m_written = false;
    bool m_writeFailed = false;
    bool m_writtenOut = false; ///< the page cache has no unwritten pages of the file
};

} // namespace platform
