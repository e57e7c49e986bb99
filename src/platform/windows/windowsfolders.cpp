#include "platform/windows/windowsfolders.h"

#include "platform/windows/windowsanchoredfolder.h"
#include "platform/windows/windowsfileattributes.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowsfolderhandle.h"
#include "platform/windows/windowsfolderlisting.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"
#include "platform/windows/windowsshadowcopies.h"
#include "platform/windows/windowstreeremoval.h"
#include "platform/windows/windowsvolumecalls.h"

#include <limits>
#include <optional>
#include <vector>

namespace platform {

namespace {

Status makeFolder(const std::wstring &path)
{
    const Status status = statusOf(fileCalls().createDirectory(path.c_str(), nullptr), "CreateDirectory");
    if (status || status.isAbsent())
        return status;
    // For an existing root the system reports denied access instead of existence.
    const Result<EntryAttributes> attributes = attributesOf(path);
    if (!attributes)
        return status.native == ERROR_ALREADY_EXISTS ? attributes.status() : status;
    return isPlainFolder(attributes.value()) ? Status{} : status;
}

qint64 bytesOf(const ULARGE_INTEGER &bytes)
{
    return static_cast<qint64>(qMin<quint64>(bytes.QuadPart, std::numeric_limits<qint64>::max()));
}

} // namespace

Result<std::unique_ptr<AnchoredFolder>> WindowsFolders::anchor(const EntryPath &folder)
{
    return WindowsAnchoredFolder::open(folder.path());
}

Status WindowsFolders::forEachEntry(const EntryPath &folder, const Visitor &visit)
{
    const Result<std::wstring> name = encodePath(folder);
    if (!name)
        return name.status();
    // The folder is held until the listing is bound to it, because the visitor may change the folder.
    std::optional<FolderListing> listing;
    {
        const Result<HeldFolder> held = holdFolder(name.value());
        if (!held)
            return held.status();
        listing.emplace(name.value());
    }
    return listing->forEach([&](const WIN32_FIND_DATAW &entry) {
        return visit(decodeName(entry.cFileName), fileKindFromAttributes(attributesOf(entry)));
    });
}

Result<std::shared_ptr<FolderHandle>> WindowsFolders::hold(const QString &folder)
{
    return openHeld(folder);
}

Result<std::shared_ptr<FolderHandle>> WindowsFolders::holdIn(const std::shared_ptr<FolderHandle> &parent,
                                                             const QString &name, Mounts)
{
    return openHeldIn(parent, name);
}

Status WindowsFolders::create(const QString &folder)
{
    const Result<std::wstring> name = encodePath(folder);
    if (!name)
        return name.status();
    // Searches from the end of the path for the first folder that exists or can be made, then makes the
    // missing ones below it.
    const std::size_t root = rootLength(name.value());
    std::vector<std::wstring> missing;
    std::wstring path = name.value();
    Status status = makeFolder(path);
    while (status.native == ERROR_PATH_NOT_FOUND && parentOf(path).size() > root) {
        missing.push_back(path);
        path = parentOf(path);
        const Status above = makeFolder(path);
        // The existing entry is not a folder, and the requested folder lies below it.
        if (above.native == ERROR_ALREADY_EXISTS)
            return status;
        status = above;
    }
    for (; status && !missing.empty(); missing.pop_back())
        status = makeFolder(missing.back());
    return status;
}

Status WindowsFolders::removeEmpty(const EntryPath &folder)
{
    const Result<std::wstring> name = encodePath(folder);
    if (!name)
        return name.status();
    const Result<EntryAttributes> attributes = attributesOf(name.value());
    if (!attributes)
        return attributes.status();
    if (!isPlainFolder(attributes.value()))
        return {PathNotFound, ERROR_DIRECTORY, "GetFileAttributes"};
    return statusOf(fileCalls().removeDirectory(name.value().c_str()), "RemoveDirectory");
}

Status WindowsFolders::removeTree(const QString &folder)
{
    const Result<std::wstring> name = encodePath(folder);
    if (!name)
        return name.status();
    const std::wstring &path = name.value();
    const std::wstring last = path.substr(path.rfind(L'\\') + 1);
    // Refuses a volume's root and names that the system resolves to another folder.
    if (path.size() <= rootLength(path) || last == L"." || last == L"..")
        return {InvalidParameter, ERROR_INVALID_PARAMETER, "RemoveDirectory"};
    return TreeRemoval().run(path);
}

Status WindowsFolders::hide(const QString &path)
{
    const Result<std::wstring> name = encodePath(path);
    if (!name)
        return name.status();
    constexpr DWORD Hidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    return statusOf(fileCalls().setFileAttributes(name.value().c_str(), Hidden), "SetFileAttributes");
}

Result<SpaceInfo> WindowsFolders::space(const QString &path)
{
    const Result<std::wstring> name = encodePath(path);
    if (!name)
        return name.status();
    // The call takes folders only, and for a link would report the volume of its target.
    const Result<EntryAttributes> attributes = attributesOf(name.value());
    if (!attributes)
        return attributes.status();
    const std::wstring folder =
        entryPath(isPlainFolder(attributes.value()) ? name.value() : parentOf(name.value()), {});
    ULARGE_INTEGER available = {};
    ULARGE_INTEGER total = {};
    ULARGE_INTEGER free = {};
    if (!volumeCalls().getDiskFreeSpace(folder.c_str(), &available, &total, &free))
        return statusFromLastError("GetDiskFreeSpaceEx");
    return SpaceInfo{bytesOf(total), bytesOf(free), bytesOf(available)};
}

Result<int> WindowsFolders::snapshots(const QString &path)
{
    const Result<std::wstring> name = encodePath(path);
    return name ? shadowCopiesOf(name.value()) : name.status();
}

} // namespace platform
