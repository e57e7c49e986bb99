#include "platform/windows/windowsanchoredfolder.h"

#include "platform/entrypath.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfilehandle.h"
#include "platform/windows/windowsfiles.h"
#include "platform/windows/windowsfolders.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"
#include "platform/windows/windowsvolumecalls.h"
#include "platform/windows/windowsvolumeidentity.h"

#include <winioctl.h>

namespace platform {

namespace {

Result<HeldFolder> hold(const QString &path)
{
    const Result<std::wstring> name = encodePath(path);
    if (!name)
        return name.status();
    return holdFolder(name.value());
}

// The handle of a held folder does not share deletion, so opening the folder with that access is refused.
Status askWhetherHeld(const std::wstring &path)
{
    const WinHandle folder(fileCalls().createFile(
        path.c_str(), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    return folder.isValid() ? Status{} : statusFromLastError("CreateFile");
}

// A new file inherits compression from its folder. The final state is what counts, so it is checked
// afterwards.
Status storeUncompressed(HANDLE file)
{
    USHORT format = COMPRESSION_FORMAT_NONE;
    DWORD returned = 0;
    if (!volumeCalls().deviceIoControl(file, FSCTL_SET_COMPRESSION, &format, sizeof format, nullptr, 0,
                                       &returned, nullptr)) {
        const Status failure = statusFromLastError("FSCTL_SET_COMPRESSION");
        if (failure.native != ERROR_INVALID_FUNCTION && failure.native != ERROR_NOT_SUPPORTED)
            return failure;
    }
    BY_HANDLE_FILE_INFORMATION now = {};
    if (!fileCalls().getFileInformation(file, &now))
        return statusFromLastError("GetFileInformationByHandle");
    if (now.dwFileAttributes & FILE_ATTRIBUTE_COMPRESSED)
        return {NotSupported, ERROR_NOT_SUPPORTED, "FSCTL_SET_COMPRESSION"};
    return {};
}

} // namespace

Result<std::unique_ptr<AnchoredFolder>> WindowsAnchoredFolder::open(const QString &path)
{
    Result<HeldFolder> held = hold(path);
    if (!held)
        return held.status();
    return std::unique_ptr<AnchoredFolder>(std::make_unique<WindowsAnchoredFolder>(held.take(), path, false));
}

Result<QString> WindowsAnchoredFolder::volumeIdentity()
{
    return volumeIdentityOf(m_held.handle.get());
}

Result<SpaceInfo> WindowsAnchoredFolder::space()
{
    return WindowsFolders().space(m_path);
}

Status WindowsAnchoredFolder::forEachEntry(const Folders::Visitor &visit)
{
    return WindowsFolders().forEachEntry(m_path, visit);
}

Result<FileInfo> WindowsAnchoredFolder::info(const QString &name)
{
    const Result<QString> path = entry(name);
    return path ? WindowsFiles().info(path.value()) : path.status();
}

Result<std::unique_ptr<FileHandle>> WindowsAnchoredFolder::createFile(const QString &name)
{
    const Result<QString> path = entry(name);
    const Result<std::wstring> encoded = path ? encodePath(path.value()) : path.status();
    if (!encoded)
        return encoded.status();
    // Only a handle with both accesses allows a change of the compression.
    WinHandle file(fileCalls().createFile(encoded.value().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                          CREATE_NEW, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT,
                                          nullptr));
    if (file.isValid()) {
        if (const Status plain = storeUncompressed(file.get()); !plain)
            return plain;
        return std::unique_ptr<FileHandle>(std::make_unique<WindowsFileHandle>(std::move(file)));
    }
    Status failure = statusFromLastError("CreateFile");
    // The system has two error codes for an existing entry.
    if (failure.native == ERROR_FILE_EXISTS)
        failure.code = AlreadyExists;
    return failure;
}

Status WindowsAnchoredFolder::removeFile(const QString &name)
{
    const Result<QString> path = entry(name);
    return path ? WindowsFiles().remove(path.value()) : path.status();
}

Result<std::unique_ptr<AnchoredFolder>> WindowsAnchoredFolder::createFolder(const QString &name)
{
    const Result<QString> path = entry(name);
    const Result<std::wstring> encoded = path ? encodePath(path.value()) : path.status();
    if (!encoded)
        return encoded.status();
    if (!fileCalls().createDirectory(encoded.value().c_str(), nullptr))
        return statusFromLastError("CreateDirectory");
    Result<std::unique_ptr<AnchoredFolder>> opened = openFolder(name);
    // The caller knows nothing of a folder that it did not get, and would leave it behind.
    if (!opened)
        static_cast<void>(removeFolder(name));
    return opened;
}

Result<std::unique_ptr<AnchoredFolder>> WindowsAnchoredFolder::openFolder(const QString &name)
{
    const Result<QString> path = entry(name);
    const Result<std::wstring> encoded = path ? encodePath(path.value()) : path.status();
    if (!encoded)
        return encoded.status();
    if (const Status held = askWhetherHeld(encoded.value()); !held)
        return held;
    Result<HeldFolder> held = holdFolder(encoded.value());
    if (!held)
        return held.status();
    return std::unique_ptr<AnchoredFolder>(
        std::make_unique<WindowsAnchoredFolder>(held.take(), path.value(), true));
}

Status WindowsAnchoredFolder::hide()
{
    return WindowsFolders().hide(m_path);
}

Status WindowsAnchoredFolder::removeFolder(const QString &name)
{
    const Result<QString> path = entry(name);
    return path ? WindowsFolders().removeEmpty(path.value()) : path.status();
}

Status WindowsAnchoredFolder::removeTree(const QString &name)
{
    const Result<QString> path = entry(name);
    return path ? WindowsFolders().removeTree(path.value()) : path.status();
}

Result<QString> WindowsAnchoredFolder::entry(const QString &name) const
{
    const bool isComponent = !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
                             !name.contains(u'\\') && !name.contains(u':') && !name.contains(QChar(u'\0'));
    if (!isComponent)
        return Status{InvalidParameter, ERROR_INVALID_PARAMETER, "name"};
    return pathInFolder(m_path, name);
}

} // namespace platform
