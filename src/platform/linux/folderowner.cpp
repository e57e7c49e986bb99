#include "platform/folderowner.h"

#include "platform/filenames.h"
#include "platform/linux/errnotable.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace platform {

Result<FolderOwner> ownerOfFolder(const QString &folder)
{
    const Result<QByteArray> name = encodePath(folder);
    if (!name)
        return name.status();
    struct stat found = {};
    if (::lstat(name.value().constData(), &found) != 0)
        return statusFromErrno(errno, "lstat");
    if (!S_ISDIR(found.st_mode))
        return statusFromErrno(ENOTDIR, "lstat");
    return FolderOwner{found.st_uid == ::geteuid(), (found.st_mode & S_ISVTX) != 0};
}

} // namespace platform
