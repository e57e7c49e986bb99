#include "platform/windows/windowsvolumeidentity.h"

#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfileid.h"
#include "platform/windows/windowsfolderlisting.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"

namespace platform {

Result<QString> volumeIdentityOf(HANDLE root)
{
    BY_HANDLE_FILE_INFORMATION found = {};
    if (!fileCalls().getFileInformation(root, &found))
        return statusFromLastError("GetFileInformationByHandle");
    const FileId id = fileIdFrom(found);
    // The time of creation is included, because root folders have the same number on all volumes.
    const quint64 born =
        quint64(found.ftCreationTime.dwHighDateTime) << 32 | found.ftCreationTime.dwLowDateTime;
    return QStringLiteral("%1 %2 %3").arg(id.device, 0, 16).arg(id.number).arg(born);
}

QString volumeIdentityAt(const QString &root)
{
    const Result<std::wstring> name = encodePath(root);
    if (!name)
        return {};
    const Result<HeldFolder> held = holdFolder(name.value());
    return held ? volumeIdentityOf(held.value().handle.get()).valueOr({}) : QString();
}

} // namespace platform
