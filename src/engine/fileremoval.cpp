#include "engine/fileremoval.h"

#include "engine/filedeletion.h"
#include "engine/filetrace.h"
#include "engine/folderremoval.h"
#include "engine/jobfiles.h"
#include "model/displaytext.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>
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

FileRemoval::FileRemoval(RunningJob &job, JobFiles &files, OverwriteAgain overwriteAgain)
    : m_job(job)
    , m_files(files)
    , m_overwriteAgain(std::move(overwriteAgain))
{}

bool FileRemoval::deleteFrom(std::size_t first)
{
    FileDeletion deletion([this](std::chrono::milliseconds time) { return m_job.wait(time); }, &m_removals);
    int failures = 0;
    for (std::size_t i = first; i < m_files.count(); ++i) {
        if (m_job.isStopping())
            break;
        if (!deleteFile(deletion, i)) {
            ++failures;
            m_job.note(tr("删除失败: %1").arg(displayText(m_files.pathOf(i))), RunningJob::Warning);
            m_job.noteShortfall({ShortfallKind::EntryNotRemoved, m_files.pathOf(i)});
        }
        if (i < m_countedFiles)
            ++m_processedCount;
    }
    m_failedCount += failures;
    return failures == 0;
}

// False when the file still exists under its name.
bool FileRemoval::deleteFile(FileDeletion &deletion, std::size_t index)
{
    const auto place = m_files.entry(index);
    if (!place) {
        if (place.status().isAbsent())
            m_files.watched(index).vanish();
        return place.status().isAbsent();
    }
    if (const auto info = files().info(place.value()); info) {
        if (m_files.watched(index).isReplacedBy(info.value())) {
            m_files.noteReplaced(m_files.pathOf(index));
            return true;
        }
        if (!overwriteGrown(index, place.value(), info.value()))
            return m_job.isStopping();
    }
    if (deletion.secureDeleteFile(place.value(), &m_files.watched(index))) {
        if (deletion.found() == FileDeletion::Found::Nothing)
            m_files.watched(index).vanish();
        else
            m_files.watched(index).remove();
        m_removals.add(place.value(), {index});
        return true;
    }
    if (deletion.found() == FileDeletion::Found::Another) {
        m_files.noteReplaced(m_files.pathOf(index));
        return true;
    }
    if (deletion.leftAt())
        m_files.left().push_back({m_files.list().files[index].folder, deletion.leftAt()->name()});
    // Unknown counts as existing. A file that a rename moved away from its path counts as gone.
    const auto info = files().info(place.value());
    return info ? info.value().kind == FileKind::Folder : info.status().isAbsent();
}

// Overwrites a file again that has grown since its passes. Returns false when it could not be written.
bool FileRemoval::overwriteGrown(std::size_t index, const EntryPath &entry, const platform::FileInfo &found)
{
    qint64 grown = m_files.watched(index).grownBy(found);
    for (int round = 0; grown > 0 && round < MostRounds; ++round) {
        m_files.watched(index).beginAnew();
        if (!m_overwriteAgain(index))
            return false;
        const auto info = files().info(entry);
        grown = info ? m_files.watched(index).grownBy(info.value()) : 0;
    }
    if (grown > 0)
        m_job.noteShortfall({ShortfallKind::EntryGrew, entry.path(), grown});
    return true;
}

// A stop may have left files in the folders to be removed next. Only files that received every pass are
// removed; deleting the others would hide data that is still on the medium.
void FileRemoval::removeRest(std::size_t overwritten)
{
    const std::vector<HeldTree::Folder> tops =
        FolderRemoval::topsAmong(m_files.tree(), m_files.list().folders);
    const auto isMeant = [&tops](const FileEntry &file) {
        return tops[static_cast<std::size_t>(file.folder)] != HeldTree::None;
    };
    for (std::size_t i = 0; i < overwritten; ++i) {
        const WatchedFile &file = m_files.watched(i);
        if (file.isRemoved() || !isMeant(m_files.list().files[i]))
            continue;
        const auto place = m_files.entry(i);
        const auto info = place ? files().info(place.value()) : place.status();
        if (!info || info.value().kind == FileKind::Folder || file.isReplacedBy(info.value()) ||
            file.grownBy(info.value()) > 0)
            continue;
        traceFile(m_files.pathOf(i), files().remove(place.value()));
    }
    for (const FileEntry &left : m_files.left()) {
        const auto place = m_files.tree().entry(left.folder, left.name);
        if (place && isMeant(left))
            traceFile(place.value().path(), files().remove(place.value()));
    }
}

// Only folders whose content was listed completely. Files that were not listed were not overwritten, and
// deleting them would hide data that is still on the medium.
void FileRemoval::removeFolders(const std::function<void()> &emptied)
{
    const auto standing = [this](const QString &folder, const Status &status) {
        m_job.note(
            tr("无法删除文件夹: %1，错误码: %2").arg(displayText(folder), QString::number(status.code)),
            RunningJob::Warning);
        m_job.noteShortfall({ShortfallKind::EntryNotRemoved, folder});
        traceFile(folder, status);
    };
    const auto replaced = [this](const QString &folder) {
        m_job.noteShortfall({ShortfallKind::EntryReplaced, folder});
    };
    const auto streams = [this](const QString &folder, qint64 count, qint64 bytes) {
        m_job.noteShortfall({ShortfallKind::ContentElsewhere, folder, bytes, count});
    };
    FolderRemoval(m_files.tree(),
                  {.replaced = replaced, .standing = standing, .streams = streams, .emptied = emptied})
        .remove(m_files.list().folders);
}

std::vector<HeldTree::Folder> FileRemoval::foldersOfNames()
{
    std::vector<HeldTree::Folder> folders = m_files.list().folders;
    for (std::size_t i = 0; i < m_files.count(); ++i) {
        if (m_files.watched(i).isRemoved())
            folders.push_back(m_files.list().files[i].folder);
    }
    std::ranges::sort(folders);
    folders.erase(std::unique(folders.begin(), folders.end()), folders.end());
    return folders;
}
