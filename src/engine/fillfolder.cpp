#include "engine/fillfolder.h"

#include "engine/fillnames.h"
#include "engine/retries.h"
#include "engine/volumespace.h"
#include "platform/entrypath.h"

#include <QDebug>

#include <chrono>
#include <numeric>
#include <utility>

namespace {

// A folder that reports every name as taken takes no files.
constexpr int MostTakenNames = 1000;

} // namespace

platform::Status FillFolder::create(platform::AnchoredFolder &root)
{
    m_root = &root;
    m_name = fillnames::newFolder();
    return createAgain();
}

platform::Status FillFolder::createAgain()
{
    auto created = m_root->createFolder(m_name);
    if (!created)
        return created.status();
    m_folder = created.take();
    if (const platform::Status hidden = m_folder->hide(); !hidden)
        m_job.diagnose(hidden);
    return {};
}

QString FillFolder::path() const
{
    return platform::pathInFolder(m_root->path(), m_name);
}

platform::Result<qint64> FillFolder::freeBytes() const
{
    return freeBytesOf(*m_folder);
}

platform::Result<std::unique_ptr<platform::FileHandle>> FillFolder::createFile()
{
    for (int attempt = 1;; ++attempt) {
        // Listed before the creation, so that no failure in between leaves the file behind.
        m_files.append({fillnames::file(m_nextIndex++), 0});
        auto file = m_folder->createFile(m_files.last().name);
        if (file.code() != platform::AlreadyExists)
            return file;
        // The name belongs to a file of an earlier pass that could not be removed, or to another program.
        m_files.removeLast();
        if (attempt == MostTakenNames)
            return file;
    }
}

qint64 FillFolder::removeFiles()
{
    qint64 bytes = 0;
    QList<FillFile> left;
    for (const FillFile &file : std::as_const(m_files)) {
        const platform::Status removed =
            removeWithRetries([&] { return m_folder->removeFile(file.name); },
                              [this](std::chrono::milliseconds pause) { return m_job.wait(pause); });
        if (removed) {
            bytes += file.bytes;
        } else if (!removed.isAbsent()) {
            qDebug().noquote() << "[FreeSpaceWipe] fill file" << file.name << removed.diagnostic();
            left.append(file);
        }
    }
    m_files = left;
    m_nextIndex = 0;
    return bytes;
}

qint64 FillFolder::bytesLeft() const
{
    return std::accumulate(m_files.cbegin(), m_files.cend(), qint64{0},
                           [](qint64 sum, const FillFile &file) { return sum + file.bytes; });
}

platform::Status FillFolder::remove()
{
    for (const FillFile &file : std::as_const(m_files))
        m_job.noteShortfall(
            {ShortfallKind::FillFilesLeft, platform::pathInFolder(path(), file.name), file.bytes});
    m_files.clear();
    letGo();
    const platform::Status removed = m_root->removeFolder(m_name);
    if (!removed)
        m_job.diagnose(removed);
    return removed;
}
