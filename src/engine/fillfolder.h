#pragma once

#include "engine/runningjob.h"
#include "platform/files.h"
#include "platform/status.h"

#include <QList>
#include <QString>

#include <memory>

// The temporary folder of a job on one volume and the fill files in it. One thread.
class FillFolder
{
public:
    // The job outlives this.
    explicit FillFolder(RunningJob &job)
        : m_job(job)
    {}

    // A new one, hidden, in the root, which ends in a slash.
    platform::Status create(const QString &root);
    QString path() const { return m_path; }

    platform::Result<qint64> freeBytes() const;

    // The next fill file.
    platform::Result<std::unique_ptr<platform::FileHandle>> createFile();
    // So many bytes have gone to the medium by the file made last.
    void setBytesOfLast(qint64 bytes) { m_files.last().bytes = bytes; }
    bool hasFiles() const { return !m_files.isEmpty(); }

    // The bytes that went with the files; what cannot be removed is told. The next file is the first again.
    qint64 removeFiles();
    // The empty folder.
    platform::Status remove();

private:
    struct FillFile
    {
        QString path;
        qint64 bytes = 0;
    };

    RunningJob &m_job;
    QString m_path;
    QList<FillFile> m_files;
};
