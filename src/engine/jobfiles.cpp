#include "engine/jobfiles.h"

#include "engine/filetrace.h"
#include "model/displaytext.h"
#include "platform/fileid.h"
#include "platform/platform.h"

#include <algorithm>
#include <utility>

using platform::EntryPath;
using platform::Result;
using platform::Status;

void JobFiles::keepFrom(std::size_t first, const std::function<bool(std::size_t file)> &isKept,
                        const std::function<bool()> &goOn)
{
    std::size_t kept = first;
    std::size_t i = first;
    for (; i < m_list.files.size() && goOn(); ++i) {
        if (!isKept(i))
            continue;
        if (kept != i) {
            m_list.files[kept] = std::move(m_list.files[i]);
            m_watched[kept] = m_watched[i];
        }
        ++kept;
    }
    const auto given = static_cast<std::ptrdiff_t>(i);
    const auto left = static_cast<std::ptrdiff_t>(kept);
    m_list.files.erase(m_list.files.begin() + left, m_list.files.begin() + given);
    m_watched.erase(m_watched.begin() + left, m_watched.begin() + given);
}

Result<EntryPath> JobFiles::entry(std::size_t file)
{
    const FileEntry &found = m_list.files[file];
    return m_tree.entry(found.folder, found.name);
}

Result<platform::FileInfo> JobFiles::look(std::size_t file)
{
    const Result<EntryPath> place = entry(file);
    if (!place)
        return place.status();
    return platform::Platform::current().files().info(place.value());
}

QString JobFiles::pathOf(std::size_t file) const
{
    const FileEntry &found = m_list.files[file];
    return m_tree.path(found.folder, found.name);
}

// Neither the folder's content nor the user's choice: whatever is mounted there stays as it is.
void JobFiles::noteMounted(const QString &path)
{
    if (m_mounted.contains(path))
        return;
    m_mounted.insert(path);
    m_job.note(tr("文件夹中挂载了其他文件系统，保持原样: %1").arg(displayText(path)), RunningJob::Warning);
    m_job.noteShortfall({ShortfallKind::EntryNotRemoved, path});
}

void JobFiles::noteReplaced(const QString &path)
{
    m_job.note(tr("文件已被替换，保持原样: %1").arg(displayText(path)), RunningJob::Warning);
    m_job.noteShortfall({ShortfallKind::EntryReplaced, path});
}

// What was removed under another name, or under another spelling of its path, has not vanished.
void JobFiles::noteVanished()
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
            m_job.noteShortfall({ShortfallKind::EntryVanished, pathOf(i)});
    }
}

bool JobFiles::fail(const QString &message, const QString &path, const Status &status)
{
    m_job.note(message.arg(displayText(path)), RunningJob::Error);
    traceFile(path, status);
    return false;
}
