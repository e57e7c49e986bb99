#pragma once

#include "engine/runningjob.h"
#include "platform/anchoredfolder.h"
#include "platform/files.h"
#include "platform/status.h"

#include <QList>
#include <QString>

#include <memory>

/// The temporary folder of a job on one volume, with its fill files. It is accessed through an open handle
/// from its creation to its removal. One thread.
class FillFolder
{
public:
    /// The job outlives the object.
    explicit FillFolder(RunningJob &job)
        : m_job(job)
    {}

    /// Creates a new hidden folder in the root of a volume; the root outlives the object.
    platform::Status create(platform::AnchoredFolder &root);
    /// Creates the folder again under the same name after its removal.
    platform::Status createAgain();
    QString path() const;
    QString name() const { return m_name; }

    /// Requires an existing folder.
    platform::AnchoredFolder &folder() { return *m_folder; }
    bool exists() const { return m_folder != nullptr; }
    platform::Result<qint64> freeBytes() const;

    platform::Result<std::unique_ptr<platform::FileHandle>> createFile();
    /// Records the bytes that the last fill file brought to the medium.
    void setBytesOfLast(qint64 bytes) { m_files.last().bytes = bytes; }
    bool hasFiles() const { return !m_files.isEmpty(); }
    QString nameOfLast() const { return m_files.last().name; }

    /// Removes the files and returns their bytes. A file that cannot be removed, in several attempts, is
    /// tried again at the next call.
    qint64 removeFiles();
    /// Bytes of the fill files that still exist.
    qint64 bytesLeft() const;
    /// Removes the empty folder. Remaining files are logged with their paths.
    platform::Status remove();
    /// Closes the folder without removing it.
    void letGo() { m_folder.reset(); }

private:
    struct FillFile
    {
        QString name;
        qint64 bytes = 0;
    };

    RunningJob &m_job;
    platform::AnchoredFolder *m_root = nullptr;
    std::unique_ptr<platform::AnchoredFolder> m_folder;
    QString m_name;
    QList<FillFile> m_files;
    int m_nextIndex = 0;
};
