#include "platform/linux/linuxvolumeidentity.h"

#include "platform/filenames.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxfileid.h"
#include "platform/linux/linuxudevdatabase.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <array>
#include <cstring>

namespace platform {

namespace {

// Two numbers that the file system derives from its UUID or its device.
quint64 fileSystemId(const struct statfs &volume)
{
    static_assert(sizeof volume.f_fsid == sizeof(quint64));
    quint64 id = 0;
    std::memcpy(&id, &volume.f_fsid, sizeof id);
    return id;
}

} // namespace

Result<QString> volumeIdentityOf(int root, const SystemTree &tree)
{
    struct statfs volume = {};
    if (uninterrupted([&] { return fileCalls().fstatfs(root, &volume); }) != 0)
        return statusFromErrno(errno, "fstatfs");
    struct statx found = {};
    if (fileCalls().statx(root, "", AT_EMPTY_PATH, FileIdMask, &found) != 0)
        return statusFromErrno(errno, "statx");
    const FileId id = fileIdFrom(found);
    const QByteArray device =
        QByteArray::number(found.stx_dev_major) + ':' + QByteArray::number(found.stx_dev_minor);
    const QByteArray uuid = udevProperties(tree, device).value("ID_FS_UUID");
    const std::array parts{device, QByteArray::number(id.number), QByteArray::number(id.born),
                           QByteArray::number(fileSystemId(volume), 16), uuid};
    QByteArray identity;
    for (const QByteArray &part : parts)
        identity += (identity.isEmpty() ? QByteArray() : QByteArray(" ")) + part;
    return QString::fromLatin1(identity);
}

QString volumeIdentityAt(const QString &mountPoint, const SystemTree &tree)
{
    const FileDescriptor root(uninterrupted([&] {
        return fileCalls().openat(AT_FDCWD, encodeName(mountPoint).constData(),
                                  O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC, 0);
    }));
    return root.isValid() ? volumeIdentityOf(root.get(), tree).valueOr({}) : QString();
}

} // namespace platform
