#include "platform/windows/windowsfolderhandle.h"

#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfileid.h"
#include "platform/windows/windowsfolderlisting.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"

#include <utility>

namespace platform {

namespace {

// While the handle is open, neither the folder nor a folder above it can be moved, removed or turned into a
// link, so its path keeps leading to it.
class WindowsFolderHandle final : public FolderHandle
{
public:
    WindowsFolderHandle(const QString &path, std::wstring place, WinHandle folder,
                        std::shared_ptr<FolderHandle> parent)
        : FolderHandle(path)
        , m_parent(std::move(parent))
        , m_place(std::move(place))
        , m_folder(std::move(folder))
    {}

    Result<FileId> id() override
    {
        BY_HANDLE_FILE_INFORMATION opened = {};
        if (!fileCalls().getFileInformation(m_folder.get(), &opened))
            return statusFromLastError("GetFileInformationByHandle");
        const FileId id = fileIdFrom(opened);
        if (id.number == 0)
            return Status{NotSupported, ERROR_NOT_SUPPORTED, "GetFileInformationByHandle"};
        return id;
    }

    // The encoded path, free of links.
    const std::wstring &place() const { return m_place; }

private:
    const std::shared_ptr<FolderHandle> m_parent; // closed last
    const std::wstring m_place;
    const WinHandle m_folder;
};

// Any access beyond attributes keeps other programs from moving the folder. Some folders can be traversed
// but not listed.
WinHandle openToHold(const std::wstring &path)
{
    constexpr DWORD Share = FILE_SHARE_READ | FILE_SHARE_WRITE;
    WinHandle folder(fileCalls().createFile(path.c_str(), FILE_LIST_DIRECTORY, Share, nullptr, OPEN_EXISTING,
                                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (folder.isValid() || ::GetLastError() != ERROR_ACCESS_DENIED)
        return folder;
    return WinHandle(fileCalls().createFile(path.c_str(), FILE_TRAVERSE, Share, nullptr, OPEN_EXISTING,
                                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

// Whether the path leads through a link. An unknown answer counts as a link.
bool mayHaveLink(const std::wstring &path)
{
    for (std::wstring part = path; part.size() > rootLength(part); part = parentOf(part)) {
        const DWORD attributes = fileCalls().getFileAttributes(part.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT))
            return true;
    }
    return false;
}

// path: the path under which the folder was opened.
Result<std::wstring> placeOf(HANDLE folder, const std::wstring &path)
{
    Status failure;
    // A volume without a letter has only its volume name.
    for (const DWORD form : {DWORD(VOLUME_NAME_DOS), DWORD(VOLUME_NAME_GUID)}) {
        const DWORD length = fileCalls().getFinalPathName(folder, nullptr, 0, FILE_NAME_NORMALIZED | form);
        std::wstring place(length, L'\0');
        const DWORD written = length == 0 ? 0
                                          : fileCalls().getFinalPathName(folder, place.data(), length,
                                                                         FILE_NAME_NORMALIZED | form);
        if (written > 0 && written < length) {
            place.resize(written);
            return place;
        }
        if (failure)
            failure = statusFromLastError("GetFinalPathNameByHandle");
    }
    // Some systems cannot report long paths. Without a link in it, the given path is held along its whole
    // length by now.
    if (failure.code == MoreData && !mayHaveLink(path))
        return path;
    return failure;
}

} // namespace

Result<std::shared_ptr<FolderHandle>> openHeld(const QString &path)
{
    const Result<std::wstring> name = encodePath(path);
    if (!name)
        return name.status();
    WinHandle folder = openToHold(name.value());
    if (!folder.isValid())
        return statusFromLastError("CreateFile");
    Result<std::wstring> place = placeOf(folder.get(), name.value());
    if (!place)
        return place.status();
    return std::shared_ptr<FolderHandle>(
        std::make_shared<WindowsFolderHandle>(path, place.take(), std::move(folder), nullptr));
}

Result<std::shared_ptr<FolderHandle>> openHeldIn(const std::shared_ptr<FolderHandle> &parent,
                                                 const QString &name)
{
    Result<std::wstring> place = encodePath(EntryPath(parent, name));
    if (!place || name.isEmpty())
        return place ? Status{InvalidParameter, 0, "path"} : place.status();
    Result<HeldFolder> folder = holdFolder(place.value());
    if (!folder)
        return folder.status();
    return std::shared_ptr<FolderHandle>(std::make_shared<WindowsFolderHandle>(
        pathInFolder(parent->path(), name), place.take(), std::move(folder.value().handle), parent));
}

Result<std::wstring> encodePath(const EntryPath &entry)
{
    if (!entry.folder())
        return encodePath(entry.name());
    const auto *const held = dynamic_cast<const WindowsFolderHandle *>(entry.folder());
    const std::wstring name = entry.name().toStdWString();
    if (!held || name == L"." || name == L".." ||
        name.find_first_of(std::wstring(L"\\/\0", 3)) != std::wstring::npos)
        return Status{InvalidParameter, 0, "path"};
    return name.empty() ? held->place() : entryPath(held->place(), name);
}

} // namespace platform
