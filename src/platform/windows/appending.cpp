#include "platform/appending.h"

#include "platform/windows/longpath.h"
#include "platform/windows/win32calls.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <io.h>

namespace platform {

namespace {

constexpr QIODevice::OpenMode Mode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text;

// Without the right to write elsewhere the system finds the end of the file at each write; Qt looks for it
// once. -1 when the file does not open.
int appendingDescriptor(const QString &path)
{
    const std::wstring name = toLongPath(QFileInfo(path).absoluteFilePath());
    auto *const file = win32().createFile(name.c_str(), FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return -1;
    const int descriptor = ::_open_osfhandle(reinterpret_cast<intptr_t>(file), _O_APPEND | _O_BINARY);
    if (descriptor < 0)
        win32().closeHandle(file);
    return descriptor;
}

} // namespace

bool openForAppending(QFile &file)
{
    if (!file.open(Mode, QFile::ReadOwner | QFile::WriteOwner))
        return false;
    file.close();
    const int descriptor = appendingDescriptor(file.fileName());
    if (descriptor < 0)
        return false;
    if (file.open(descriptor, Mode, QFileDevice::AutoCloseHandle))
        return true;
    ::_close(descriptor);
    return false;
}

} // namespace platform
