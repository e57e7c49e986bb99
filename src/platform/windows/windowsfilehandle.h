#pragma once

#include "platform/files.h"
#include "platform/windows/windowshandle.h"

namespace platform {

/// An open regular file. Transfers use the system's own file pointer, which is set again after a failure that
/// leaves it in doubt.
class WindowsFileHandle final : public FileHandle
{
public:
    explicit WindowsFileHandle(WinHandle file)
        : m_file(std::move(file))
    {}

    Status seek(qint64 position) override;
    Result<qint64> read(void *data, qint64 size) override;
    Result<qint64> write(const void *data, qint64 size) override;
    Status setEnd() override;
    Status flush() override;
    Result<FileId> id() override;
    Result<ContentPlace> contentPlace() override;

private:
    Status provideFilePointer();
    Result<qint64> readPieces(std::byte *data, qint64 size);
    Result<qint64> writePieces(const std::byte *data, qint64 size);

    WinHandle m_file;
    qint64 m_position = 0;
    bool m_pointerIsThere = true; ///< the system's file pointer stands at m_position
    Status m_flushFailure;
};

} // namespace platform
