#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiles.h"

#include "platform/filenames.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxfilekind.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

namespace platform {

Result<std::unique_ptr<QFileDevice>> LinuxFiles::openForAppending(const QString &path)
{
    constexpr const char *Operation = "open for appending";
    const QByteArray name = encodeName(path);
    // O_NONBLOCK, so that opening a pipe does not wait for its reader.
    constexpr int Flags = O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    FileDescriptor opened(uninterrupted(
        [&name] { return fileCalls().openat(AT_FDCWD, name.constData(), Flags, S_IRUSR | S_IWUSR); }));
    if (!opened.isValid())
        return statusFromErrno(errno, Operation);
    struct stat status = {};
    if (fileCalls().fstat(opened.get(), &status) != 0)
        return statusFromErrno(errno, Operation);
    if (fileKindFromMode(status.st_mode) != FileKind::Regular)
        return Status{CannotAccessFile, 0, Operation};
    auto file = std::make_unique<QFile>(path);
    if (!file->open(opened.get(), QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text,
                    QFileDevice::AutoCloseHandle))
        return Status{CannotAccessFile, 0, Operation};
    opened.release();
    return std::unique_ptr<QFileDevice>(std::move(file));
}

} // namespace platform
