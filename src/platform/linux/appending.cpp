#include "platform/appending.h"

#include <QFile>

namespace platform {

bool openForAppending(QFile &file)
{
    return file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text,
                     QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace platform
