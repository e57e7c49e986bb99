#pragma once

#include "platform/files.h"
#include "platform/windows/win32calls.h"

namespace platform {

// What the attributes of an entry say, and its reparse tag, if it has one: a link, or a file or folder whose
// contents are kept elsewhere (deduplicated, offline). Those are no links, so that nobody takes removing them
// for erasing them; they are refused when they are opened. A link's own attributes also tell whether it leads
// to a folder, so that bit comes second.
inline FileKind fileKindFromAttributes(DWORD attributes, DWORD reparseTag)
{
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) && IsReparseTagNameSurrogate(reparseTag))
        return FileKind::Link;
    if (attributes & FILE_ATTRIBUTE_DIRECTORY)
        return FileKind::Folder;
    return attributes & FILE_ATTRIBUTE_DEVICE ? FileKind::Special : FileKind::Regular;
}

// A folder with its own entries in it.
inline bool isPlainFolder(DWORD attributes)
{
    constexpr DWORD Both = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
    return (attributes & Both) == FILE_ATTRIBUTE_DIRECTORY;
}

// A junction, or a symbolic link that was made for a folder: removed as folders are.
inline bool isFolderLink(DWORD attributes)
{
    constexpr DWORD Both = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
    return (attributes & Both) == Both;
}

// Of what is to be opened as a regular file. Behind any reparse point the bytes are somebody else's, or
// cannot be reached from here.
inline Status refusalOf(DWORD attributes, const char *operation)
{
    if (isPlainFolder(attributes))
        return {AccessDenied, ERROR_ACCESS_DENIED, operation};
    if (attributes & (FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE))
        return {CannotAccessFile, ERROR_CANT_ACCESS_FILE, operation};
    return {};
}

inline bool isNothingThere(int error)
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

} // namespace platform
