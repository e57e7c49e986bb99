#pragma once

#include "platform/files.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

/// The attributes of an entry itself.
struct EntryAttributes
{
    DWORD bits = 0;
    DWORD reparseTag = 0; ///< with FILE_ATTRIBUTE_REPARSE_POINT only
};

/// Whether a cloud service also keeps the entry, whether or not its content is local. Each service has its
/// own digit in the tag.
inline bool isInCloud(const EntryAttributes &entry)
{
    constexpr DWORD CloudTag = 0x9000001A;
    constexpr DWORD AllButTheService = 0xFFFF0FFF;
    return (entry.bits & FILE_ATTRIBUTE_REPARSE_POINT) && (entry.reparseTag & AllButTheService) == CloudTag;
}

/// Whether a part of the content of a file or folder is only in a cloud, and would be fetched by reading it.
/// Two of the attributes count for cloud entries only, because the value of one also marks extended
/// attributes and any program may set the other.
inline bool isPartlyElsewhere(const EntryAttributes &entry)
{
    constexpr DWORD RecallOnOpen = 0x00040000;
    constexpr DWORD RecallOnDataAccess = 0x00400000;
    const DWORD telling =
        isInCloud(entry) ? RecallOnDataAccess | RecallOnOpen | FILE_ATTRIBUTE_OFFLINE : RecallOnDataAccess;
    return entry.bits & telling;
}

/// Whether the entry is a reparse point that does more than mark local content.
inline bool leadsElsewhere(const EntryAttributes &entry)
{
    return (entry.bits & FILE_ATTRIBUTE_REPARSE_POINT) && !isInCloud(entry);
}

/// A link, or a file or folder whose content is stored elsewhere (deduplicated, offline). The latter do not
/// count as links, because removing them would then be taken for erasing them; opening them is refused. The
/// folder bit is tested second, since a link's own attributes also tell whether it leads to a folder.
inline FileKind fileKindFromAttributes(const EntryAttributes &entry)
{
    if ((entry.bits & FILE_ATTRIBUTE_REPARSE_POINT) && IsReparseTagNameSurrogate(entry.reparseTag))
        return FileKind::Link;
    if (entry.bits & FILE_ATTRIBUTE_DIRECTORY)
        return FileKind::Folder;
    return entry.bits & FILE_ATTRIBUTE_DEVICE ? FileKind::Special : FileKind::Regular;
}

/// Whether the entry is a folder that itself holds its entries.
inline bool isPlainFolder(const EntryAttributes &entry)
{
    return (entry.bits & FILE_ATTRIBUTE_DIRECTORY) && !leadsElsewhere(entry);
}

/// Whether the entry is a junction or a symbolic link made for a folder. Such links are removed as folders
/// are.
inline bool isFolderLink(const EntryAttributes &entry)
{
    return (entry.bits & FILE_ATTRIBUTE_DIRECTORY) && leadsElsewhere(entry);
}

/// The refusal to open the entry as a regular file, if any. The bytes behind a reparse point that leads
/// elsewhere belong to another file, or cannot be reached from here.
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
