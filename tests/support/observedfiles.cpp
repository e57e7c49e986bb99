#include "support/observedfiles.h"

#include <QMutexLocker>

#include <utility>

class ObservedFiles::Handle : public platform::ForwardingFileHandle
{
public:
    Handle(std::unique_ptr<platform::FileHandle> target, ObservedFiles &files, FileCall opened)
        : ForwardingFileHandle(std::move(target))
        , m_files(files)
        , m_call(std::move(opened))
    {}
    platform::Status seek(qint64 position) override
    {
        const platform::Status answer = observe(FaultPlan::Seek, position, 0);
        return answer ? ForwardingFileHandle::seek(position) : answer;
    }
    platform::Result<qint64> read(void *data, qint64 size) override
    {
        const platform::Status answer = observe(FaultPlan::Read, 0, size);
        if (!answer)
            return answer;
        return ForwardingFileHandle::read(data, size);
    }
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        const platform::Status answer = observe(FaultPlan::Write, 0, size);
        if (!answer)
            return answer;
        return ForwardingFileHandle::write(data, size);
    }
    platform::Status setEnd() override
    {
        const platform::Status answer = observe(FaultPlan::SetEnd, 0, 0);
        return answer ? ForwardingFileHandle::setEnd() : answer;
    }
    platform::Status flush() override
    {
        const platform::Status answer = observe(FaultPlan::Flush, 0, 0);
        return answer ? ForwardingFileHandle::flush() : answer;
    }
    platform::Result<platform::FileId> id() override
    {
        const platform::Status answer = observe(FaultPlan::Identify, 0, 0);
        if (!answer)
            return answer;
        return ForwardingFileHandle::id();
    }
    platform::Result<platform::ContentPlace> contentPlace() override
    {
        const platform::Status answer = observe(FaultPlan::Locate, 0, 0);
        if (!answer)
            return answer;
        return ForwardingFileHandle::contentPlace();
    }

private:
    platform::Status observe(FaultPlan::Kind kind, qint64 position, qint64 size)
    {
        FileCall call = m_call;
        call.kind = kind;
        call.position = position;
        call.size = size;
        return m_files.observe(call);
    }

    ObservedFiles &m_files;
    const FileCall m_call;
};

QList<FileCall> ObservedFiles::calls() const
{
    const QMutexLocker locker(&m_mutex);
    return m_calls;
}

QList<FileCall> ObservedFiles::calls(quint32 kinds) const
{
    QList<FileCall> found;
    for (const FileCall &call : calls()) {
        if (call.kind & kinds)
            found.append(call);
    }
    return found;
}

QList<FileCall> ObservedFiles::opened(platform::OpenMode mode) const
{
    QList<FileCall> found;
    for (const FileCall &call : calls(FaultPlan::Open)) {
        if (call.mode == mode)
            found.append(call);
    }
    return found;
}

platform::Result<platform::FileInfo> ObservedFiles::info(const platform::EntryPath &entry)
{
    const platform::Status answer = observe({.kind = FaultPlan::Info, .path = entry.path()});
    if (!answer)
        return answer;
    return ForwardingFiles::info(entry);
}

platform::Result<std::shared_ptr<platform::DurabilityGroup>>
ObservedFiles::beginGroup(const platform::EntryPath &folder)
{
    const platform::Status answer = observe({.kind = FaultPlan::BeginGroup, .path = folder.path()});
    if (!answer)
        return answer;
    return ForwardingFiles::beginGroup(folder);
}

platform::Status ObservedFiles::closeGroup(platform::DurabilityGroup &group)
{
    const platform::Status answer = observe({.kind = FaultPlan::CloseGroup, .path = {}});
    return answer ? ForwardingFiles::closeGroup(group) : answer;
}

platform::Result<std::unique_ptr<platform::FileHandle>>
ObservedFiles::openIn(const std::shared_ptr<platform::DurabilityGroup> &group,
                      const platform::EntryPath &entry, platform::OpenMode mode)
{
    const FileCall call{.kind = FaultPlan::Open, .path = entry.path(), .mode = mode};
    const platform::Status answer = observe(call);
    if (!answer)
        return answer;
    auto opened = ForwardingFiles::openIn(group, entry, mode);
    if (!opened)
        return opened.status();
    std::unique_ptr<platform::FileHandle> handle = opened.take();
    if (wrap)
        handle = wrap(std::move(handle), call);
    return std::unique_ptr<platform::FileHandle>(std::make_unique<Handle>(std::move(handle), *this, call));
}

platform::Result<platform::ContentPlace> ObservedFiles::contentPlace(const platform::EntryPath &entry)
{
    const platform::Status answer = observe({.kind = FaultPlan::Locate, .path = entry.path()});
    if (!answer)
        return answer;
    return ForwardingFiles::contentPlace(entry);
}

platform::Result<QByteArray> ObservedFiles::readBeginning(const QString &path, qint64 limit)
{
    const platform::Status answer = observe({.kind = FaultPlan::Read, .path = path});
    if (!answer)
        return answer;
    return ForwardingFiles::readBeginning(path, limit);
}

platform::Status ObservedFiles::clearReadOnly(const platform::EntryPath &entry)
{
    const platform::Status answer = observe({.kind = FaultPlan::ClearReadOnly, .path = entry.path()});
    return answer ? ForwardingFiles::clearReadOnly(entry) : answer;
}

platform::Status ObservedFiles::rename(const platform::EntryPath &from, const platform::EntryPath &to)
{
    const platform::Status answer =
        observe({.kind = FaultPlan::Rename, .path = from.path(), .to = to.path()});
    return answer ? ForwardingFiles::rename(from, to) : answer;
}

platform::Status ObservedFiles::remove(const platform::EntryPath &entry)
{
    const platform::Status answer = observe({.kind = FaultPlan::Remove, .path = entry.path()});
    return answer ? ForwardingFiles::remove(entry) : answer;
}

platform::Status ObservedFiles::observe(const FileCall &call)
{
    {
        const QMutexLocker locker(&m_mutex);
        m_calls.append(call);
    }
    return hook ? hook(call) : platform::Status();
}
