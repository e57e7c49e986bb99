#include "engine/residuecleaning.h"

#include "engine/fillfolder.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QScopeGuard>
#include <QUuid>

#include <array>
#include <cstddef>

using namespace Qt::StringLiterals;

namespace {

// Enough small files to take over the records of deleted ones, enough folders to do the same to directory
// entries.
constexpr int RecordFiles = 1000;
constexpr qint64 RecordFileBytes = 256;
constexpr int RecordFolders = 100;

void remember(platform::Status &first, const platform::Status &status)
{
    if (first.ok() && !status.ok())
        first = status;
}

} // namespace

platform::Status ResidueCleaning::cleanFileRecords()
{
    platform::Folders &folders = platform::Platform::current().folders();
    const QString folder = m_folder.path() + "/mft_clean"_L1;
    platform::Status first = folders.create(folder);
    remember(first, folders.hide(m_folder.path()));
    {
        const auto cleanUp = qScopeGuard([&] { remember(first, removeFolder(folder)); });
        remember(first, makeRecordFiles(folder));
    }
    return first;
}

platform::Status ResidueCleaning::makeRecordFiles(const QString &folder)
{
    platform::Files &files = platform::Platform::current().files();
    platform::Status first;
    std::array<std::byte, RecordFileBytes> content{};
    for (int i = 0; i < RecordFiles && !m_job.isStopping(); ++i) {
        const auto file =
            files.open(u"%1/%2.tmp"_s.arg(folder, QString::number(i)), platform::OpenMode::CreateFill);
        remember(first, file.status());
        if (!file)
            continue;
        m_job.fill(content.data(), RecordFileBytes, {PatternType::Random});
        remember(first, file.value()->write(content.data(), RecordFileBytes).status());
        // A record that is given back before it reaches the medium has taken none over. The last flush
        // commits those of all files, at a thousandth of the cost of flushing each.
        if (i == RecordFiles - 1)
            remember(first, file.value()->flush());
    }
    return first;
}

platform::Status ResidueCleaning::cleanDirectoryEntries()
{
    platform::Folders &folders = platform::Platform::current().folders();
    const QString folder = m_folder.path() + "/dir_clean"_L1;
    platform::Status first;
    {
        const auto cleanUp = qScopeGuard([&] { remember(first, removeFolder(folder)); });
        for (int i = 0; i < RecordFolders && !m_job.isStopping(); ++i) {
            const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
            remember(first, folders.create(u"%1/%2"_s.arg(folder, name)));
        }
    }
    return first;
}

platform::Status ResidueCleaning::removeFolder(const QString &folder)
{
    const platform::Status removed = platform::Platform::current().folders().removeTree(folder);
    if (!removed && !isAbsent(removed))
        m_job.noteShortfall({ShortfallKind::FillFilesLeft, folder});
    return removed;
}
