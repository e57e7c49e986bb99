#include "platform/linux/linuxerrnotable.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace platform {

namespace {

struct Row
{
    int error;
    ErrorCode code;
};

constexpr std::array Table{
    Row{EPERM, AccessDenied},
    Row{EACCES, AccessDenied},
    Row{EISDIR, AccessDenied}, // the Windows error for a folder that is opened as a file
    Row{EROFS, WriteProtect},
    // The device was unplugged or switched off, or the server no longer knows the file.
    Row{ENOMEDIUM, NotReady},
    Row{ENODEV, NotReady},
    Row{ENXIO, NotReady},
    Row{ENOTCONN, NotReady},
    Row{ESTALE, NotReady},
    Row{EBUSY, SharingViolation},
    Row{ETXTBSY, SharingViolation},
    Row{EAGAIN, LockViolation},
    Row{ENOSPC, DiskFull},
    Row{EDQUOT, DiskQuotaExceeded},
    // A block cannot be read or written. Drivers report ENODATA for a medium error and EILSEQ for an error in
    // protection information; file systems report EUCLEAN and EBADMSG when their own checks fail.
    Row{EIO, IoDevice},
    Row{EREMOTEIO, IoDevice},
    Row{ENODATA, IoDevice},
    Row{EILSEQ, IoDevice},
    Row{ENOLINK, IoDevice},
    Row{EBADMSG, IoDevice},
    Row{EUCLEAN, IoDevice},
    Row{ETIMEDOUT, SemaphoreTimeout},
    Row{ENOENT, FileNotFound},
    Row{ENOTDIR, PathNotFound},
    Row{EEXIST, AlreadyExists},
    Row{ENOTEMPTY, DirectoryNotEmpty},
    Row{ENAMETOOLONG, FileNameTooLong},
    Row{ELOOP, CannotAccessFile},
    Row{EXDEV, NotSameDevice},
    Row{EFBIG, FileTooLarge},
    Row{EINVAL, InvalidParameter},
    Row{ENOMEM, NotEnoughMemory},
    Row{EMFILE, TooManyOpenFiles},
    Row{ENFILE, TooManyOpenFiles},
    Row{EOPNOTSUPP, NotSupported},
    Row{ENOSYS, NotSupported},
    Row{ENOTTY, NotSupported},
};

constexpr bool isUnambiguous()
{
    for (std::size_t i = 0; i < Table.size(); ++i) {
        for (std::size_t j = i + 1; j < Table.size(); ++j) {
            if (Table[i].error == Table[j].error)
                return false;
        }
    }
    return true;
}

static_assert(isUnambiguous());
static_assert(EWOULDBLOCK == EAGAIN && ENOTSUP == EOPNOTSUPP);

} // namespace

Status statusFromErrno(int error, const char *operation)
{
    const auto row = std::find_if(Table.begin(), Table.end(), [=](const Row &r) { return r.error == error; });
    return {row == Table.end() ? GeneralFailure : row->code, error, operation};
}

bool isAbsentErrno(int error)
{
    return error == ENOENT;
}

} // namespace platform
