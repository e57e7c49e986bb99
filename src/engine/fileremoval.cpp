// How files that received their passes are removed, and the folders that held them.
#include "engine/filewipeworker.h"

#include "engine/filedeletion.h"
#include "engine/filetrace.h"
#include "engine/folderremoval.h"
#include "model/displaytext.h"
#include "model/wipetask.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QSet>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

using platform::EntryPath;
using platform::FileKind;
using platform::Status;

namespace {

platform::Files &files()
{
    return platform::Platform::current().files();
}

} // namespace

bool FileWipeWorker::deleteFrom(std::size_t first)
{
    FileDeletion deletion([this](std::chrono::milliseconds time) { return waitUnlessStopped(time); },
                          &m_removals);
    int failures = 0;
    for (std::size_t i = first; i < m_list.files.size(); ++i) {
        if (isStopRequested())
            break;
        if (!deleteFile(deletion, i)) {
            ++failures;
            log(tr("删除失败: %1").arg(displayText(pathOf(i))), Warning);
            task().noteShortfall({ShortfallKind::EntryNotRemoved, pathOf(i)});
        }
        if (i < m_firstCount)
            ++m_processedCount;
    }
    m_failedCount += failures;
    return failures == 0;
}

// False when it stands under its name.
bool FileWipeWorker::deleteFile(FileDeletion &deletion, std::size_t index)
{
    const auto place = entry(index);
    if (!place) {
        if (isAbsent(place.status()))
            watched(index).vanish();
        return isAbsent(place.status());
    }
    if (const auto info = files().info(place.value()); info) {
        if (watched(index).isReplacedBy(info.value())) {
            noteReplaced(pathOf(index));
            return true;
        }
        if (!overwriteGrown(index, place.value(), info.value()))
            return isStopRequested();
    }
    if (deletion.secureDeleteFile(place.value(), &watched(index))) {
        if (deletion.found() == FileDeletion::Found::Nothing)
            watched(index).vanish();
        else
            watched(index).remove();
        m_removals.add(place.value(), {index});
        return true;
    }
    if (deletion.found() == FileDeletion::Found::Another) {
        noteReplaced(pathOf(index));
        return true;
    }
    if (deletion.leftAt())
        m_left.push_back({m_list.files[index].folder, deletion.leftAt()->name()});
    // Unknown counts as standing; what a rename took away from under its path counts as gone.
    const auto info = files().info(place.value());
    return info ? info.value().kind == FileKind::Folder : isAbsent(info.status());
}

// What a file has gained since its passes is to be gone as the rest of it. False when it could not be
// written.
bool FileWipeWorker::overwriteGrown(std::size_t index, const EntryPath &entry,
                                    const platform::FileInfo &found)
{
    qint64 grown = watched(index).grownBy(found);
    for (int round = 0; grown > 0 && round < MostRounds; ++round) {
        watched(index).beginAnew();
        if (!overwriteAgain(index))
            return false;
        const auto info = files().info(entry);
        grown = info ? watched(index).grownBy(info.value()) : 0;
    }
    if (grown > 0)
        task().noteShortfall({ShortfallKind::EntryGrew, entry.path(), grown});
    return true;
}

// What appeared while files were deleted.
bool FileWipeWorker::eraseLate()
{
    bool success = true;
    for (int round = 0; round < MostRounds && success; ++round) {
        const std::size_t first = addLate();
        if (first == m_list.files.size())
            break;
        success = overwriteFrom(first);
        if (!success)
            break;
        m_overwrittenCount = m_list.files.size();
        success = deleteFrom(first);
    }
    return success;
}

// A stop may have left files of the folders that are removed next. They received every pass; what did not is
// not removed with them, since that would take it out of sight and leave it on the medium.
void FileWipeWorker::removeRest()
{
    const std::vector<HeldTree::Folder> tops = FolderRemoval::topsAmong(m_tree, m_list.folders);
    const auto isMeant = [&tops](const FileEntry &file) {
        return tops[static_cast<std::size_t>(file.folder)] != HeldTree::None;
    };
    for (std::size_t i = 0; i < m_overwrittenCount; ++i) {
        const WatchedFile &file = watched(i);
        if (file.isRemoved() || !isMeant(m_list.files[i]))
            continue;
        const auto place = entry(i);
        const auto info = place ? files().info(place.value()) : place.status();
        if (!info || info.value().kind == FileKind::Folder || file.isReplacedBy(info.value()) ||
            file.grownBy(info.value()) > 0)
            continue;
        traceFile(pathOf(i), files().remove(place.value()));
    }
    for (const FileEntry &left : m_left) {
        const auto place = m_tree.entry(left.folder, left.name);
        if (place && isMeant(left))
            traceFile(place.value().path(), files().remove(place.value()));
    }
}

// Only folders whose content was in the list: what could not be listed was not overwritten, and removing it
// would take it out of sight and leave it on the medium.
void FileWipeWorker::removeFolders()
{
    const auto standing = [this](const QString &folder, const Status &status) {
        log(tr("无法删除文件夹: %1，错误码: %2").arg(displayText(folder), QString::number(status.code)),
            Warning);
        task().noteShortfall({ShortfallKind::EntryNotRemoved, folder});
        traceFile(folder, status);
    };
    const auto replaced = [this](const QString &folder) {
        task().noteShortfall({ShortfallKind::EntryReplaced, folder});
    };
    FolderRemoval(m_tree, {.replaced = replaced, .standing = standing}).remove(m_list.folders);
}

// A removal that is not on the medium is none. What was removed last may still be in the cache.
bool FileWipeWorker::settleRemovals()
{
    const int failures = m_failedCount;
    for (const DurabilityGroups::Closed &closed : m_removals.close()) {
        if (closed.status)
            continue;
        tellLost(closed.members, closed.status);
        for (const DurabilityGroups::Member &member : closed.members)
            task().noteShortfall({ShortfallKind::EntryNotRemoved, pathOf(member.file)});
    }
    return m_failedCount == failures;
}

// What was removed under another name, or under another spelling of its path, has not vanished.
void FileWipeWorker::noteVanished()
{
    if (std::ranges::none_of(m_watched, &WatchedFile::isVanished))
        return;
    QSet<platform::FileId> removed;
    for (const WatchedFile &file : m_watched) {
        if (file.isRemoved() && file.found() && file.found()->id.number != 0)
            removed.insert(file.found()->id);
    }
    for (std::size_t i = 0; i < m_watched.size(); ++i) {
        const auto &found = m_watched[i].found();
        if (m_watched[i].isVanished() && !(found && removed.contains(found->id)))
            task().noteShortfall({ShortfallKind::EntryVanished, pathOf(i)});
    }
}
