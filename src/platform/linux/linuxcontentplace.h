#pragma once

#include "platform/contentplace.h"
#include "platform/status.h"

#include <QList>

namespace platform {

// What Linux tells about where a file's content lies.
struct FileTraits
{
    quint32 fileSystem = 0;    // f_type of statfs
    quint32 flags = 0;         // of FS_IOC_GETFLAGS; 0 where there are none
    bool hasExtentMap = false; // the file system answers FS_IOC_FIEMAP
    bool journalsData = false; // the mount has all content go through the journal
};

// One extent of FS_IOC_FIEMAP; bytes.
struct FileExtent
{
    qint64 start = 0;
    qint64 length = 0;
    quint32 flags = 0;
};

// What holds for the whole file, or for what is made in a folder with these traits. Pure.
ElsewhereReasons reasonsOf(const FileTraits &traits);

// What the extents of a file of that size add, with the bytes they are about; 0 bytes without a reason. Pure.
ContentPlace placeOf(const QList<FileExtent> &extents, qint64 size);

// Of an open regular file or folder.
Result<ContentPlace> contentPlaceOf(int file);

} // namespace platform
