#pragma once

#include <QString>

#include <string>

namespace platform {

// The path as every call of this backend takes it: native separators and the prefix that switches off the
// limit of 260 characters and any reinterpretation ("\\?\", for network paths "\\?\UNC\"). A path that has
// the prefix already stays as it is. Lone surrogates pass unchanged.
std::wstring toLongPath(const QString &path);

} // namespace platform
