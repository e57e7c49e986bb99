#include "platform/linux/linuxfiles.h"

#include "platform/filenames.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace platform {

namespace {

bool isStreamMode(mode_t mode)
{
    return S_ISCHR(mode) || S_ISFIFO(mode);
}

} // namespace

bool LinuxFiles::isStream(const QString &path)
{
    struct stat status = {};
    return fileCalls().fstatat(AT_FDCWD, encodeName(path).constData(), &status, 0) == 0 &&
           isStreamMode(status.st_mode);
}

bool LinuxFiles::openStream(QFile &stream, QIODevice::OpenMode mode)
{
    const QByteArray name = encodeName(stream.fileName());
    FileDescriptor opened(uninterrupted([&name] {
        return fileCalls().openat(AT_FDCWD, name.constData(), O_WRONLY | O_NOCTTY | O_CLOEXEC, 0);
    }));
    struct stat status = {};
    if (!opened.isValid() || fileCalls().fstat(opened.get(), &status) != 0 || !isStreamMode(status.st_mode) ||
        !stream.open(opened.get(), mode, QFileDevice::AutoCloseHandle))
        return false;
    opened.release();
    return true;
}

bool LinuxFiles::isWrittenOut(const QFileDevice &file)
{
    // A stream without a medium has nothing to write out.
    return fileCalls().fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS;
}

} // namespace platform
