#include "platform/windows/windowsfiles.h"

#include "platform/windows/windowsfileattributes.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"

#include <algorithm>

namespace platform {

namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr qint64 LargestRead = 1 << 20;

Result<QByteArray> readUpTo(HANDLE file, qint64 size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    qsizetype done = 0;
    while (done < bytes.size()) {
        const DWORD wanted = static_cast<DWORD>(std::min<qint64>(bytes.size() - done, LargestRead));
        DWORD count = 0;
        if (!fileCalls().readFile(file, bytes.data() + done, wanted, &count, nullptr))
            return statusFromLastError("ReadFile");
        if (count == 0)
            break;
        done += count;
    }
    bytes.truncate(done);
    return bytes;
}

} // namespace

Result<QByteArray> WindowsFiles::readBeginning(const QString &path, qint64 limit)
{
    const Result<std::wstring> name = encodePath(path);
    if (!name)
        return name.status();
    const WinHandle file(
        fileCalls().createFile(name.value().c_str(), GENERIC_READ, ShareAll, nullptr, OPEN_EXISTING,
                               FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_OPEN_NO_RECALL, nullptr));
    if (!file.isValid())
        return statusFromLastError("CreateFile");
    BY_HANDLE_FILE_INFORMATION opened = {};
    if (!fileCalls().getFileInformation(file.get(), &opened))
        return statusFromLastError("GetFileInformationByHandle");
    const Result<EntryAttributes> attributes = withTag(file.get(), opened.dwFileAttributes);
    if (!attributes)
        return attributes.status();
    if (const Status refusal = refusalOf(attributes.value(), "GetFileInformationByHandle"); !refusal)
        return refusal;
    const quint64 size = quint64(opened.nFileSizeHigh) << 32 | opened.nFileSizeLow;
    return readUpTo(file.get(), static_cast<qint64>(std::min<quint64>(size, static_cast<quint64>(limit))));
}

} // namespace platform
