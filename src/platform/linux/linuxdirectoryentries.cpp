#include "platform/linux/linuxdirectoryentries.h"

#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfilekind.h"

#include <dirent.h>
#include <fcntl.h>

#include <memory>
#include <string_view>

namespace platform {

namespace {

struct CloseStream
{
    void operator()(DIR *stream) const { ::closedir(stream); }
};

// Some file systems do not report the kind in the listing.
Result<FileKind> kindOf(DIR *stream, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return fileKindFromMode(DTTOIF(entry.d_type));
    const int folder = ::dirfd(stream);
    struct stat file = {};
    if (folder < 0 || fileCalls().fstatat(folder, entry.d_name, &file, AT_SYMLINK_NOFOLLOW) != 0)
        return statusFromErrno(errno, "fstatat");
    return fileKindFromMode(file.st_mode);
}

} // namespace

Status readEntries(FileDescriptor folder, const EntryVisitor &visit)
{
    const std::unique_ptr<DIR, CloseStream> stream(fileCalls().fdopendir(folder.get()));
    if (!stream)
        return statusFromErrno(errno, "fdopendir");
    folder.release();
    while (true) {
        errno = 0;
        // NOLINTNEXTLINE(concurrency-mt-unsafe): the stream is this call's own
        const dirent *const entry = fileCalls().readdir(stream.get());
        if (!entry)
            return errno == 0 ? Status{} : statusFromErrno(errno, "readdir");
        const std::string_view name(entry->d_name);
        if (name == "." || name == "..")
            continue;
        const Result<FileKind> kind = kindOf(stream.get(), *entry);
        if (kind.status().isAbsent())
            continue;
        if (!kind)
            return kind.status();
        if (!visit(entry->d_name, kind.value()))
            return {};
    }
}

} // namespace platform
