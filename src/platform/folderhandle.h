#pragma once

#include "platform/fileid.h"
#include "platform/status.h"

#include <QString>

#include <utility>

namespace platform {

/// A folder that is held open, so that it stays the one that was opened whatever becomes of its path. Linux:
/// a descriptor. Windows: handles to it and to those above it up to the one that the first was opened in,
/// without FILE_SHARE_DELETE, so that none of them can be moved or removed meanwhile.
///
/// Used by any number of threads; closes on destruction.
class FolderHandle
{
public:
    explicit FolderHandle(QString path)
        : m_path(std::move(path))
    {}
    virtual ~FolderHandle() = default;
    FolderHandle(const FolderHandle &) = delete;
    FolderHandle &operator=(const FolderHandle &) = delete;

    /// What it was opened under.
    const QString &path() const { return m_path; }

    /// NotSupported where the file system gives its folders other numbers whenever it likes.
    virtual Result<FileId> id() = 0;

private:
    const QString m_path;
};

} // namespace platform
