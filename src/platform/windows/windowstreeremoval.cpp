#include "platform/windows/windowstreeremoval.h"

#include "platform/windows/windowsfileattributes.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"

namespace platform {

namespace {

Status removeFolderItself(const std::wstring &path, DWORD attributes)
{
    if (const Status writable = clearReadOnlyAttribute(path, attributes); !writable)
        return writable;
    return statusOf(fileCalls().removeDirectory(path.c_str()), "RemoveDirectory");
}

} // namespace

Status TreeRemoval::run(const std::wstring &path)
{
    Result<HeldFolder> top = holdFolder(path);
    if (!top)
        return top.status();
    enter(path, top.take());
    while (!m_levels.empty()) {
        Level &level = m_levels.back();
        if (level.folders.empty()) {
            leave();
            continue;
        }
        const std::wstring next = entryPath(level.path, level.folders.back());
        level.folders.pop_back();
        removeFolder(next);
    }
    return m_firstFailure;
}

void TreeRemoval::removeFolder(const std::wstring &path)
{
    // Most folders are empty at this point. A folder replaced by a link is removed here as well.
    const Status status = statusOf(fileCalls().removeDirectory(path.c_str()), "RemoveDirectory");
    if (status || status.isAbsent())
        return;
    // Not empty, or read-only.
    if (status.native != ERROR_DIR_NOT_EMPTY && status.native != ERROR_ACCESS_DENIED) {
        note(status);
        return;
    }
    Result<HeldFolder> held = holdFolder(path);
    if (held)
        enter(path, held.take());
    else if (!held.status().isAbsent() ||
             held.status().native == ERROR_DIRECTORY) // replaced by another entry
        note(held.status());
}

// Removes every entry except the folders. The listing is completed first, because file systems differ in how
// a deletion affects a running listing.
void TreeRemoval::enter(const std::wstring &path, HeldFolder held)
{
    struct Other
    {
        std::wstring name;
        EntryAttributes attributes;
    };
    std::vector<Other> others;
    Level level{path, std::move(held), {}};
    note(FolderListing(path).forEach([&](const WIN32_FIND_DATAW &entry) {
        const EntryAttributes attributes = attributesOf(entry);
        if (fileKindFromAttributes(attributes) == FileKind::Folder)
            level.folders.emplace_back(entry.cFileName);
        else
            others.push_back({entry.cFileName, attributes});
        return true;
    }));
    for (const Other &other : others)
        removeOther(entryPath(path, other.name), other.attributes);
    m_levels.push_back(std::move(level));
}

void TreeRemoval::removeOther(const std::wstring &path, const EntryAttributes &attributes)
{
    Status status;
    if (isFolderLink(attributes))
        status = removeFolderItself(path, attributes.bits);
    else if (status = clearReadOnlyAttribute(path, attributes.bits); status)
        status = statusOf(fileCalls().deleteFile(path.c_str()), "DeleteFile");
    if (!status.isAbsent())
        note(status);
}

void TreeRemoval::leave()
{
    const std::wstring path = std::move(m_levels.back().path);
    const DWORD attributes = m_levels.back().held.attributes;
    // Closes the folder, because a held folder cannot be removed.
    m_levels.pop_back();
    const Status status = removeFolderItself(path, attributes);
    if (!status.isAbsent())
        note(status);
}

void TreeRemoval::note(const Status &status)
{
    if (m_firstFailure)
        m_firstFailure = status;
}

} // namespace platform
