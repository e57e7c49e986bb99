#pragma once

#include "platform/files.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

// What the system says of an entry itself.
struct EntryAttributes
{
    DWORD bits = 0;
    DWORD reparseTag = 0; // of one with FILE_ATTRIBUTE_REPARSE_POINT
};

// Whether a cloud service keeps the entry as well, be it here or not. Each service has a digit of its own in
// the tag.
inline bool isInCloud(const EntryAttributes &entry)
{
    constexpr DWORD CloudTag = 0x9000001A;
    constexpr DWORD AllButTheService = 0xFFFF0FFF;
    return (entry.bits & FILE_ATTRIBUTE_REPARSE_POINT) && (entry.reparseTag & AllButTheService) == CloudTag;
}

// Whether a part of what is in a file or folder is only with a service, which would bring it here for whoever
// reads it. One of the attributes is also that of files with extended attributes, and one anybody may set:
// these two say something of what is in a cloud only.
inline bool isPartlyElsewhere(const EntryAttributes &entry)
{
    constexpr DWORD RecallOnOpen = 0x00040000;
    constexpr DWORD RecallOnDataAccess = 0x00400000;
    const DWORD telling =
        isInCloud(entry) ? RecallOnDataAccess | RecallOnOpen | FILE_ATTRIBUTE_OFFLINE : RecallOnDataAccess;
    return entry.bits & telling;
}

// A reparse point that is more than a mark on what is here.
inline bool leadsElsewhere(const EntryAttributes &entry)
{
    return (entry.bits & FILE_ATTRIBUTE_REPARSE_POINT) && !isInCloud(entry);
}

// A link, or a file or folder whose contents are kept elsewhere (deduplicated, offline). Those are no links,
// so that nobody takes removing them for erasing them; they are refused when they are opened. A link's own
// attributes also tell whether it leads to a folder, so that bit comes second.
inline FileKind fileKindFromAttributes(const EntryAttributes &entry)
{
    if ((entry.bits & FILE_ATTRIBUTE_REPARSE_POINT) && IsReparseTagNameSurrogate(entry.reparseTag))
        return FileKind::Link;
    if (entry.bits & FILE_ATTRIBUTE_DIRECTORY)
        return FileKind::Folder;
    return entry.bits & FILE_ATTRIBUTE_DEVICE ? FileKind::Special : FileKind::Regular;
}

// A folder with its own entries in it.
inline bool isPlainFolder(const EntryAttributes &entry)
{
    return (entry.bits & FILE_ATTRIBUTE_DIRECTORY) && !leadsElsewhere(entry);
}

// A junction, or a symbolic link that was made for a folder: removed as folders are.
inline bool isFolderLink(const EntryAttributes &entry)
{
    return (entry.bits & FILE_ATTRIBUTE_DIRECTORY) && leadsElsewhere(entry);
}

// Of what is to be opened as a regular file. Behind a reparse point that leads elsewhere the bytes are
// somebody else's, or cannot be reached from here.
inline Status refusalOf(const EntryAttributes &entry, const char *operation)
{
    if (isPlainFolder(entry))
        return {AccessDenied, ERROR_ACCESS_DENIED, operation};
    if (isPartlyElsewhere(entry))
        return {FileOffline, ERROR_FILE_OFFLINE, operation};
    if (leadsElsewhere(entry) || (entry.bits & FILE_ATTRIBUTE_DEVICE))
        return {CannotAccessFile, ERROR_CANT_ACCESS_FILE, operation};
    return {};
}

} // namespace platform
