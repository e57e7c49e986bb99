#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiles.h"

#include "platform/filenames.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace platform {

namespace {

Status refusalOf(const struct stat &file)
{
    if (S_ISREG(file.st_mode))
        return {};
    if (S_ISDIR(file.st_mode))
        return statusFromErrno(EISDIR, "fstat");
    return {CannotAccessFile, 0, "fstat"};
}

} // namespace

Result<QByteArray> LinuxFiles::readBeginning(const QString &path, qint64 limit)
{
    const Result<QByteArray> name = encodePath(path);
    if (!name)
        return name.status();
    constexpr int Flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const FileDescriptor file(
        uninterrupted([&] { return fileCalls().openat(AT_FDCWD, name.value().constData(), Flags, 0); }));
    if (!file.isValid())
        return statusFromErrno(errno, "open");
    struct stat found = {};
    if (fileCalls().fstat(file.get(), &found) != 0)
        return statusFromErrno(errno, "fstat");
    if (const Status refusal = refusalOf(found); !refusal)
        return refusal;

    QByteArray bytes(qMin<qint64>(limit, found.st_size), Qt::Uninitialized);
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = uninterrupted([&] {
            return fileCalls().read(file.get(), bytes.data() + done,
                                    static_cast<size_t>(bytes.size() - done));
        });
        if (count < 0)
            return statusFromErrno(errno, "read");
        if (count == 0)
            break;
        done += count;
    }
    bytes.truncate(done);
    return bytes;
}

} // namespace platform
