#include "platform/filenames.h"
#include "platform/wholefile.h"

#include <QFileDevice>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace platform {

namespace {

bool isStream(const struct stat &status)
{
    return S_ISCHR(status.st_mode) || S_ISFIFO(status.st_mode);
}

} // namespace

bool isStream(const QString &path)
{
    struct stat status = {};
    return ::stat(encodeName(path).constData(), &status) == 0 && isStream(status);
}

bool isStream(const QFileDevice &file)
{
    struct stat status = {};
    return ::fstat(file.handle(), &status) == 0 && isStream(status);
}

bool isWrittenOut(const QFileDevice &file)
{
    // What has no medium has nothing to write out.
    return ::fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS;
}

} // namespace platform
