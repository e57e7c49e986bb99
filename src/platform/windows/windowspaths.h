#pragma once

#include "platform/status.h"

#include <QString>

#include <string>
#include <string_view>

namespace platform {

// The path for the system: long form, separators in a row as one, none at the end. Without reinterpretation
// the system would refuse both. A volume's root keeps its separator at the end, since without it the name is
// that of the volume as a device. Fails with InvalidParameter for a path that holds a zero, FileNotFound for
// an empty one.
Result<std::wstring> encodePath(const QString &path);

// Characters of an encoded path up to and with the separator behind the volume: "\\?\C:\",
// "\\?\UNC\server\share\".
std::size_t rootLength(std::wstring_view path);

// The folder that contains the path; the root is its own.
std::wstring parentOf(const std::wstring &path);

// The path of the entry that the stream belongs to; that of an entry as it is.
std::wstring withoutStream(const std::wstring &path);

// The entry of that name in the folder.
std::wstring entryPath(const std::wstring &folder, std::wstring_view name);

// A name as the system gave it, lone surrogates and a byte order mark included.
QString decodeName(std::wstring_view name);

} // namespace platform
