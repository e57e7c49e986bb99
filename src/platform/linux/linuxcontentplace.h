#pragma once

#include "platform/contentplace.h"
#include "platform/status.h"

#include <QList>

namespace platform {

/// The properties of a file from which the location of its content follows.
struct FileTraits
{
    quint32 fileSystem = 0;    ///< f_type of statfs
    quint32 flags = 0;         ///< from FS_IOC_GETFLAGS; 0 where there are none
    bool hasExtentMap = false; ///< the file system supports FS_IOC_FIEMAP
    bool journalsData = false; ///< the mount writes all content through the journal
};

/// One extent of FS_IOC_FIEMAP; bytes.
struct FileExtent
{
    qint64 start = 0;
    qint64 length = 0;
    quint32 flags = 0;
};

/// The reasons that apply to the whole file, or to new files in a folder with these traits. Pure.
ElsewhereReasons reasonsOf(const FileTraits &traits);

/// The reasons that the extents of a file of that size add, with the number of affected bytes; 0 bytes
/// without a reason. Pure.
ContentPlace placeOf(const QList<FileExtent> &extents, qint64 size);

/// For an open regular file or folder.
Result<ContentPlace> contentPlaceOf(int file);

} // namespace platform
