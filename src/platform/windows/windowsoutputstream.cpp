#include "platform/windows/windowsfiles.h"

namespace platform {

bool WindowsFiles::isStream(const QString &)
{
    return false;
}

bool WindowsFiles::openStream(QFile &, QIODevice::OpenMode)
{
    return false;
}

bool WindowsFiles::isWrittenOut(const QFileDevice &)
{
    return true; // space is allocated by the writes
}

} // namespace platform
