#include "engine/namejournals.h"

#include "model/displaytext.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <algorithm>
#include <optional>

using platform::Result;
using platform::Status;

namespace {

Result<std::unique_ptr<platform::AnchoredFolder>> open(HeldTree &tree, HeldTree::Folder folder)
{
    const auto place = tree.itself(folder);
    if (!place)
        return place.status();
    return platform::Platform::current().folders().anchor(place.value());
}

} // namespace

void NameJournals::find(const std::vector<HeldTree::Folder> &folders)
{
    std::optional<quint64> without; // the last device that has no journal
    for (const HeldTree::Folder folder : folders) {
        const auto id = m_tree.idOf(folder);
        if (!id || id->device == without)
            continue;
        const auto known = std::ranges::find(m_volumes, id->device, &Volume::device);
        if (known != m_volumes.end() && known->journal)
            continue;
        const auto opened = open(m_tree, folder);
        auto journal = opened ? opened.value()->journal() : opened.status();
        if (journal.code() == platform::NotSupported) {
            without = id->device;
            continue;
        }
        // A folder that cannot be opened leaves the next one to be asked.
        Volume &volume = known == m_volumes.end()
                             ? m_volumes.emplace_back(Volume{id->device, m_tree.path(topOf(folder))})
                             : *known;
        volume.failure = journal.status();
        if (journal)
            volume.journal = journal.take();
    }
}

// The uppermost folder of the job on the same file system.
HeldTree::Folder NameJournals::topOf(HeldTree::Folder folder) const
{
    const auto device = m_tree.idOf(folder)->device;
    for (HeldTree::Folder above = m_tree.parentOf(folder); above != HeldTree::None;
         above = m_tree.parentOf(above)) {
        const auto id = m_tree.idOf(above);
        if (!id || id->device != device)
            break;
        folder = above;
    }
    return folder;
}

void NameJournals::settle()
{
    for (Volume &volume : m_volumes)
        settle(volume);
}

void NameJournals::settle(Volume &volume)
{
    if (!volume.journal)
        return;
    const Status settled = volume.journal->settle();
    if (volume.failure)
        volume.failure = settled;
}

void NameJournals::writeRound()
{
    const auto keepsNames = [](const Volume &volume) {
        return !volume.journal || volume.journal->size() > 0;
    };
    if (!m_job.isStopping() && std::ranges::any_of(m_volumes, keepsNames))
        m_job.note(tr("正在清除文件系统日志中的文件名..."));
    for (Volume &volume : m_volumes) {
        const Status written = keepsNames(volume) ? writeRound(volume) : Status();
        settle(volume);
        const Status &status = written ? volume.failure : written;
        if (status)
            continue;
        m_job.diagnose(status);
        m_job.note(tr("文件系统日志中可能仍保留文件名: %1").arg(displayText(volume.path)),
                   RunningJob::Warning);
    }
    letGo();
}

// In the first folder of the volume that is still there and takes entries.
Status NameJournals::writeRound(const Volume &volume)
{
    Status status{platform::PathNotFound, 0, "journal"};
    const auto isToTry = [&status] { return status.isAbsent() || status.code == platform::AccessDenied; };
    for (HeldTree::Folder folder = 0; folder < m_tree.size() && isToTry(); ++folder) {
        if (m_job.isStopping())
            return {platform::RequestAborted, 0, "journal"};
        const auto id = m_tree.idOf(folder);
        if (!id || id->device != volume.device)
            continue;
        auto opened = open(m_tree, folder);
        status = opened.status();
        if (!opened)
            continue;
        m_folder = opened.take();
        status = m_round.run(*m_folder);
    }
    return status;
}

void NameJournals::letGo()
{
    m_round.clean();
    m_folder.reset();
    m_volumes.clear();
}
