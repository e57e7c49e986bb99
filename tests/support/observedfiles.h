#pragma once

#include "platform/forwarding.h"
#include "support/faultplan.h"

#include <QList>
#include <QMutex>
#include <QString>

#include <functional>
#include <memory>

// One call of the file operations or of a file handle.
struct FileCall
{
    FaultPlan::Kind kind = FaultPlan::Open;
    QString path;                                            // of the file, also for handles
    platform::OpenMode mode = platform::OpenMode::Overwrite; // of Open and of handles
    QString to = {};                                         // Rename
    qint64 position = 0;                                     // Seek
    qint64 size = 0;                                         // Read, Write: requested size
};

// Records every call and lets a test act before it: wait, look at the file, or answer in its place.
// Thread-safe; hook and wrap are set before the calls begin.
class ObservedFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    // Called before each call, outside the lock. A failure becomes the answer, and the call is not passed
    // on.
    std::function<platform::Status(const FileCall &call)> hook;
    // Replaces the opened handle by one of the test.
    std::function<std::unique_ptr<platform::FileHandle>(std::unique_ptr<platform::FileHandle> handle,
                                                        const FileCall &)>
        wrap;

    QList<FileCall> calls() const;
    QList<FileCall> calls(quint32 kinds) const;
    QList<FileCall> opened(platform::OpenMode mode) const;

    platform::Result<platform::FileInfo> info(const platform::EntryPath &entry) override;
    platform::Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
           platform::OpenMode mode) override;
    platform::Result<std::shared_ptr<platform::DurabilityGroup>>
    beginGroup(const platform::EntryPath &folder) override;
    platform::Status closeGroup(platform::DurabilityGroup &group) override;
    platform::Result<platform::ContentPlace> contentPlace(const platform::EntryPath &entry) override;
    platform::Result<QByteArray> readBeginning(const QString &path, qint64 limit) override;
    platform::Status clearReadOnly(const platform::EntryPath &entry) override;
    platform::Status rename(const platform::EntryPath &from, const platform::EntryPath &to) override;
    platform::Status remove(const platform::EntryPath &entry) override;

private:
    class Handle;

    platform::Status observe(const FileCall &call);

    mutable QMutex m_mutex;
    QList<FileCall> m_calls;
};
