#pragma once

#include "platform/alignedbuffer.h"
#include "platform/files.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <memory>

struct statx;

namespace platform {

// What a file demands of transfers past the page cache.
struct DirectTransfers
{
    bool possible = false;
    qint64 memoryUnit = 4096; // the buffer begins on a multiple of it
    qint64 fileUnit = 4096;   // position and length are multiples of it
};

// What has to be asked of statx for them.
extern const unsigned int DirectTransfersMask;

// Of a file that is opened with O_DIRECT.
DirectTransfers directTransfersOf(const struct statx &file);

class LinuxDurabilityGroup;

struct OpenedFile
{
    FileDescriptor descriptor;
    DirectTransfers direct;
    bool directOn = false;     // O_DIRECT is set, whether or not the file then takes direct transfers
    bool writeThrough = false; // O_DSYNC is set, and the file system is known to keep it
    std::shared_ptr<LinuxDurabilityGroup> group{}; // that the file belongs to
};

// An open regular file. With direct transfers what fits the file's units goes straight between the caller's
// buffer and the device; what does not is read through a small aligned buffer, and written through the page
// cache, which knows how to leave the neighbouring bytes and the length alone.
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
    bool m_writtenOut = false; // no page is still to be written
};

} // namespace platform
