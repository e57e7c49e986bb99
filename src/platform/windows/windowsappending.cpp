#include "platform/windows/windowsfiles.h"

#include "platform/windows/windowsfileattributes.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowslongpath.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <io.h>

namespace platform {

namespace {

constexpr QIODevice::OpenMode Mode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text;

// Without the right to write elsewhere the system finds the end of the file at each write; Qt looks it up
// only once.
Result<int> appendingDescriptor(const QString &path)
{
    const std::wstring name = toLongPath(QFileInfo(path).absoluteFilePath());
    auto *const file = fileCalls().createFile(
        name.c_str(), FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return statusFromLastError("CreateFile");
    const Result<EntryAttributes> opened = attributesOf(file);
    const Status refusal = opened ? refusalOf(opened.value(), "GetFileInformationByHandle") : opened.status();
    if (!refusal) {
        fileCalls().closeHandle(file);
        return refusal;
    }
    const int descriptor = ::_open_osfhandle(reinterpret_cast<intptr_t>(file), _O_APPEND | _O_BINARY);
    if (descriptor < 0) {
        fileCalls().closeHandle(file);
        return Status{TooManyOpenFiles, 0, "_open_osfhandle"};
    }
    return descriptor;
}

} // namespace

Result<std::unique_ptr<QFileDevice>> WindowsFiles::openForAppending(const QString &path)
{
    // Qt would follow a link.
    if (const QFileInfo standing(path); standing.isSymLink() || standing.isJunction())
        return Status{CannotAccessFile, 0, "open for appending"};
    auto file = std::make_unique<QFile>(path);
    // Qt creates the file together with its access list; the system call would need a structure for that.
    if (!file->open(Mode, QFile::ReadOwner | QFile::WriteOwner))
        return Status{CannotAccessFile, 0, "open for appending"};
    file->close();
    const Result<int> descriptor = appendingDescriptor(path);
    if (!descriptor)
        return descriptor.status();
    if (!file->open(descriptor.value(), Mode, QFileDevice::AutoCloseHandle)) {
        ::_close(descriptor.value());
        return Status{CannotAccessFile, 0, "open for appending"};
    }
    return std::unique_ptr<QFileDevice>(std::move(file));
}

} // namespace platform
