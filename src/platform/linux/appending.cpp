#include "platform/linux/linuxfiles.h"

#include <QFile>

namespace platform {

Result<std::unique_ptr<QFileDevice>> LinuxFiles::openForAppending(const QString &path)
{
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text,
                    QFile::ReadOwner | QFile::WriteOwner))
        return Status{CannotAccessFile, 0, "open for appending"};
    return std::unique_ptr<QFileDevice>(std::move(file));
}

} // namespace platform
