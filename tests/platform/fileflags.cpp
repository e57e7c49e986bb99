#include "platform/fileflags.h"

#include "platform/filenames.h"
#include "platform/linux/filedescriptor.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>

bool setImmutable(const QString &path, bool immutable)
{
    using namespace platform;

    const FileDescriptor file(::open(encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
    int flags = 0;
    if (!file.isValid() || ::ioctl(file.get(), FS_IOC_GETFLAGS, &flags) != 0)
        return false;
    flags = immutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    return ::ioctl(file.get(), FS_IOC_SETFLAGS, &flags) == 0;
}
