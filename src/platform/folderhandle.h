#pragma once

#include "platform/fileid.h"
#include "platform/status.h"

#include <QString>

#include <utility>

namespace platform {

/// A folder that is held open, so that it stays the same folder even if its path changes. Linux: a
/// descriptor. Windows: handles to the folder and to the folders above it, up to the one in which the first
/// was opened, without FILE_SHARE_DELETE, so that none of them can be moved or removed meanwhile.
///
/// Any number of threads; closes on destruction.
class FolderHandle
{
public:
    explicit FolderHandle(QString path)
        : m_path(std::move(path))
    {}
    virtual ~FolderHandle() = default;
    FolderHandle(const FolderHandle &) = delete;
    FolderHandle &operator=(const FolderHandle &) = delete;

    /// The path under which the folder was opened.
    const QString &path() const { return m_path; }

    /// NotSupported where the file system may renumber its folders.
    virtual Result<FileId> id() = 0;

private:
    const QString m_path;
};

} // namespace platform
