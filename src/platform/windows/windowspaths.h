#pragma once

#include "platform/status.h"

#include <QString>

#include <string>
#include <string_view>

namespace platform {

/// The path for the system in its long form. Repeated separators become one and trailing ones are removed,
/// because the system rejects both without reinterpretation. A volume's root keeps its trailing separator,
/// because without it the name denotes the volume as a device. Fails with InvalidParameter for a path that
/// contains a zero and with FileNotFound for an empty one.
Result<std::wstring> encodePath(const QString &path);

/// The length of the root in an encoded path, including the separator behind the volume: "\\?\C:\",
/// "\\?\UNC\server\share\".
std::size_t rootLength(std::wstring_view path);

/// The folder that contains the path; the root is its own.
std::wstring parentOf(const std::wstring &path);

/// The path of the entry to which the stream belongs. The path of an entry stays as it is.
std::wstring withoutStream(const std::wstring &path);

/// The entry of that name in the folder.
std::wstring entryPath(const std::wstring &folder, std::wstring_view name);

/// A name from the system, including lone surrogates and a byte order mark.
QString decodeName(std::wstring_view name);

} // namespace platform
