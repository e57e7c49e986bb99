#pragma once

#include "platform/status.h"

#include <QString>
#include <QtGlobal>

namespace platform {

/// The journal of the file system of an open folder: a ring on the medium in which the file system logs the
/// blocks of its folders, and with some mount options the content of files. The names of removed entries stay
/// in it until the ring has come round.
///
/// One thread at a time; keeps its folder open until destruction.
class VolumeJournal
{
public:
    VolumeJournal() = default;
    virtual ~VolumeJournal() = default;
    VolumeJournal(const VolumeJournal &) = delete;
    VolumeJournal &operator=(const VolumeJournal &) = delete;

    /// Bytes; 0 where the file system logs nothing. Where the system does not tell the size, the largest that
    /// it may have.
    virtual qint64 size() const = 0;
    /// Bytes of the blocks that the file system logs.
    virtual qint64 blockSize() const = 0;

    /// The bytes that the device below the file system has taken from all programs.
    virtual Result<qint64> written() = 0;

    /// Changes a block of metadata that belongs to one file of the folder alone, so that the next commit logs
    /// it. Two calls in the life of the journal must not have the same mark. Linux: fsetxattr.
    virtual Status changeBlock(const QString &name, quint64 mark) = 0;
    /// After success every change so far is in the journal on the medium. Linux: fsync.
    virtual Status commit() = 0;
    /// After success every change so far is also at its own place on the medium. Linux: syncfs.
    virtual Status settle() = 0;
};

} // namespace platform
