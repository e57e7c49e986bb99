#include "engine/residuecleaning.h"

#include "engine/fillfolder.h"
#include "engine/fillnames.h"
#include "platform/anchoredfolder.h"
#include "platform/entrypath.h"
#include "platform/files.h"

#include <QScopeGuard>

#include <array>
#include <cstddef>

namespace {

// Directory entries are taken over by many folders, as file records are by many small files.
constexpr int RecordFolders = 100;

void remember(platform::Status &first, const platform::Status &status)
{
    if (first.ok() && !status.ok())
        first = status;
}

} // namespace

platform::Status ResidueCleaning::cleanFileRecords()
{
    return cleanIn(fillnames::recordFiles,
                   [this](platform::AnchoredFolder &folder) { return makeFiles(folder); });
}

platform::Status ResidueCleaning::cleanDirectoryEntries()
{
    return cleanIn(fillnames::recordFolders,
                   [this](platform::AnchoredFolder &folder) { return makeFolders(folder); });
}

platform::Status ResidueCleaning::cleanIn(const QString &name, const Make &make)
{
    if (m_job.isStopping())
        return {};
    platform::Status first;
    if (!m_folder.exists())
        first = m_folder.createAgain();
    if (!first)
        return first;
    {
        const auto cleanUp = qScopeGuard([&] { remember(first, remove(name)); });
        // The handle closes before the removal.
        const auto made = m_folder.folder().createFolder(name);
        remember(first, made.status());
        if (made)
            remember(first, make(*made.value()));
    }
    return first;
}

platform::Status ResidueCleaning::makeFiles(platform::AnchoredFolder &folder)
{
    platform::Status first;
    std::array<std::byte, fillnames::RecordFileBytes> content{};
    for (int i = 0; i < fillnames::RecordFiles && !m_job.isStopping(); ++i) {
        const auto file = folder.createFile(fillnames::recordFile(i));
        remember(first, file.status());
        if (!file)
            continue;
        m_job.fill(content.data(), fillnames::RecordFileBytes, {PatternType::Random});
        const auto written = file.value()->write(content.data(), fillnames::RecordFileBytes);
        remember(first, written.status());
        m_job.noteWritten(written.valueOr(0));
        // A record that is given back before it reaches the medium overwrites nothing. The last flush commits
        // the records of all files, at a thousandth of the cost of one flush per file.
        if (i == fillnames::RecordFiles - 1)
            remember(first, file.value()->flush());
    }
    return first;
}

platform::Status ResidueCleaning::makeFolders(platform::AnchoredFolder &folder)
{
    platform::Status first;
    for (int i = 0; i < RecordFolders && !m_job.isStopping(); ++i)
        remember(first, folder.createFolder(fillnames::newRecordFolder()).status());
    return first;
}

platform::Status ResidueCleaning::remove(const QString &name)
{
    const platform::Status removed = m_folder.folder().removeTree(name);
    if (!removed && !removed.isAbsent())
        m_job.noteShortfall({ShortfallKind::FillFilesLeft, platform::pathInFolder(m_folder.path(), name)});
    return removed;
}
