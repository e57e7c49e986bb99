#pragma once

#include <QString>

#include <string>

namespace platform {

/// The path in the form that every call of this backend takes. It has native separators and the prefix that
/// lifts the limit of 260 characters and switches off reinterpretation ("\\?\", for network paths
/// "\\?\UNC\"). A path that already has the prefix stays as it is. Lone surrogates pass unchanged.
std::wstring toLongPath(const QString &path);

} // namespace platform
