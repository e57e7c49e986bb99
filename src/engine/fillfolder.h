#pragma once

#include "engine/runningjob.h"
#include "platform/anchoredfolder.h"
#include "platform/files.h"
#include "platform/status.h"

#include <QList>
#include <QString>

#include <memory>

// The temporary folder of a job on one volume and the fill files in it, reached through the open folder from
// its creation to its removal. One thread.
class FillFolder
{
public:
    // The job outlives this.
    explicit FillFolder(RunningJob &job)
        : m_job(job)
    {}

    // A new one, hidden, in the root of a volume, which outlives it.
    platform::Status create(platform::AnchoredFolder &root);
    // Once it was removed: one of the same name.
    platform::Status createAgain();
    QString path() const;
    QString name() const { return m_name; }

    // Of an existing folder.
    platform::AnchoredFolder &folder() { return *m_folder; }
    bool exists() const { return m_folder != nullptr; }
    platform::Result<qint64> freeBytes() const;

    // The next fill file.
    platform::Result<std::unique_ptr<platform::FileHandle>> createFile();
    // So many bytes have gone to the medium by the file made last.
    void setBytesOfLast(qint64 bytes) { m_files.last().bytes = bytes; }
    bool hasFiles() const { return !m_files.isEmpty(); }

    // The bytes that went with the files. What cannot be removed, in several attempts, is tried again the
    // next time.
    qint64 removeFiles();
    qint64 bytesLeft() const;
    // The empty folder. Files that are still there are told with their paths.
    platform::Status remove();
    // It stays where it is.
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
