#include "engine/fillfolder.h"

#include "engine/fillnames.h"
#include "engine/volumespace.h"

#include <QDebug>

#include <utility>

namespace {

// A folder in which every name is taken takes no file.
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
    return platform::entryPathOf(m_root->path(), m_name);
}

platform::Result<qint64> FillFolder::freeBytes() const
{
    return freeBytesOf(*m_folder);
}

platform::Result<std::unique_ptr<platform::FileHandle>> FillFolder::createFile()
{
    for (int attempt = 1;; ++attempt) {
        // Listed first, so that nothing that happens between creating it and listing it leaves it behind.
        m_files.append({fillnames::file(m_nextIndex++), 0});
        auto file = m_folder->createFile(m_files.last().name);
        if (file.code() != platform::AlreadyExists)
            return file;
        // Of an earlier pass, which could not be removed, or somebody else's.
        m_files.removeLast();
        if (attempt == MostTakenNames)
            return file;
    }
}

qint64 FillFolder::removeFiles()
{
    qint64 bytes = 0;
    for (const FillFile &file : std::as_const(m_files)) {
        if (const platform::Status removed = m_folder->removeFile(file.name); removed)
            bytes += file.bytes;
        else if (!isAbsent(removed)) {
            const QString path = platform::entryPathOf(m_folder->path(), file.name);
            qDebug().noquote() << "[FreeSpaceWipe] fill file" << path << removed.diagnostic();
            m_job.noteShortfall({ShortfallKind::FillFilesLeft, path, file.bytes});
        }
    }
    m_files.clear();
    m_nextIndex = 0;
    return bytes;
}

platform::Status FillFolder::remove()
{
    letGo();
    const platform::Status removed = m_root->removeFolder(m_name);
    if (!removed)
        m_job.diagnose(removed);
    return removed;
}
