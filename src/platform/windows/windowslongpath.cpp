#include "platform/windows/windowslongpath.h"

#include <QDir>

namespace platform {

std::wstring toLongPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    const QLatin1String prefix(R"(\\?\)");
    if (native.startsWith(prefix))
        return native.toStdWString();
    if (native.startsWith(QLatin1String(R"(\\)")))
        return (QLatin1String(R"(\\?\UNC\)") + native.mid(2)).toStdWString();
    return (prefix + native).toStdWString();
}

} // namespace platform
