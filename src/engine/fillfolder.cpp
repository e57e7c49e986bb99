#include "engine/fillfolder.h"

#include "engine/fillnames.h"
#include "engine/volumespace.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDebug>

#include <utility>

using namespace Qt::StringLiterals;

platform::Status FillFolder::create(const QString &root)
{
    m_path = root + fillnames::newFolder();
    platform::Folders &folders = platform::Platform::current().folders();
    if (const platform::Status created = folders.create(m_path); !created)
        return created;
    if (const platform::Status hidden = folders.hide(m_path); !hidden)
        m_job.diagnose(hidden);
    return {};
}

platform::Result<qint64> FillFolder::freeBytes() const
{
    return freeBytesOf(m_path);
}

platform::Result<std::unique_ptr<platform::FileHandle>> FillFolder::createFile()
{
    const QString path = u"%1/%2"_s.arg(m_path, fillnames::file(static_cast<int>(m_files.size())));
    // Listed first, so that nothing that happens between creating it and listing it leaves it behind.
    m_files.append({path, 0});
    return platform::Platform::current().files().open(path, platform::OpenMode::CreateFill);
}

qint64 FillFolder::removeFiles()
{
    qint64 bytes = 0;
    for (const FillFile &file : std::as_const(m_files)) {
        if (const platform::Status removed = platform::Platform::current().files().remove(file.path); removed)
            bytes += file.bytes;
        else if (!isAbsent(removed)) {
            qDebug().noquote() << "[FreeSpaceWipe] fill file" << file.path << removed.diagnostic();
            m_job.noteShortfall({ShortfallKind::FillFilesLeft, file.path, file.bytes});
        }
    }
    m_files.clear();
    return bytes;
}

platform::Status FillFolder::remove()
{
    const platform::Status removed = platform::Platform::current().folders().removeEmpty(m_path);
    if (!removed)
        m_job.diagnose(removed);
    return removed;
}
