#include "support/faultyfiles.h"

namespace {

// A handle whose calls fail according to the plan; the other calls reach the real handle.
class FaultyFileHandle : public platform::ForwardingFileHandle
{
public:
    FaultyFileHandle(std::unique_ptr<platform::FileHandle> target, FaultPlan &plan)
        : ForwardingFileHandle(std::move(target))
        , m_plan(plan)
    {}
    platform::Status seek(qint64 position) override
    {
        return m_plan.fires(FaultPlan::Seek) ? m_plan.status() : ForwardingFileHandle::seek(position);
    }
    platform::Result<qint64> read(void *data, qint64 size) override
    {
        if (m_plan.fires(FaultPlan::Read))
            return m_plan.status();
        return ForwardingFileHandle::read(data, size);
    }
    // A failing write writes nothing.
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        if (m_plan.fires(FaultPlan::Write))
            return m_plan.status();
        return ForwardingFileHandle::write(data, size);
    }
    platform::Status setEnd() override
    {
        return m_plan.fires(FaultPlan::SetEnd) ? m_plan.status() : ForwardingFileHandle::setEnd();
    }
    platform::Status flush() override
    {
        return m_plan.fires(FaultPlan::Flush) ? m_plan.status() : ForwardingFileHandle::flush();
    }
    platform::Result<platform::FileId> id() override
    {
        if (m_plan.fires(FaultPlan::Identify))
            return m_plan.status();
        return ForwardingFileHandle::id();
    }
    platform::Result<platform::ContentPlace> contentPlace() override
    {
        if (m_plan.fires(FaultPlan::Locate))
            return m_plan.status();
        return ForwardingFileHandle::contentPlace();
    }

private:
    FaultPlan &m_plan;
};

} // namespace

platform::Result<platform::FileInfo> FaultyFiles::info(const platform::EntryPath &entry)
{
    if (fires(FaultPlan::Info, entry.path()))
        return m_plan.status();
    return ForwardingFiles::info(entry);
}

platform::Result<std::shared_ptr<platform::DurabilityGroup>>
FaultyFiles::beginGroup(const platform::EntryPath &folder)
{
    if (fires(FaultPlan::BeginGroup, folder.path()))
        return m_plan.status();
    return ForwardingFiles::beginGroup(folder);
}

platform::Status FaultyFiles::closeGroup(platform::DurabilityGroup &group)
{
    return m_plan.fires(FaultPlan::CloseGroup) ? m_plan.status() : ForwardingFiles::closeGroup(group);
}

platform::Result<std::unique_ptr<platform::FileHandle>>
FaultyFiles::openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
                    platform::OpenMode mode)
{
    if (fires(FaultPlan::Open, entry.path()))
        return m_plan.status();
    auto handle = ForwardingFiles::openIn(group, entry, mode);
    if (!handle || !concerns(entry.path()))
        return handle;
    return std::unique_ptr<platform::FileHandle>(std::make_unique<FaultyFileHandle>(handle.take(), m_plan));
}

platform::Result<platform::ContentPlace> FaultyFiles::contentPlace(const platform::EntryPath &entry)
{
    if (fires(FaultPlan::Locate, entry.path()))
        return m_plan.status();
    return ForwardingFiles::contentPlace(entry);
}

platform::Result<QByteArray> FaultyFiles::readBeginning(const QString &path, qint64 limit)
{
    if (fires(FaultPlan::Read, path))
        return m_plan.status();
    return ForwardingFiles::readBeginning(path, limit);
}

platform::Status FaultyFiles::clearReadOnly(const platform::EntryPath &entry)
{
    return fires(FaultPlan::ClearReadOnly, entry.path()) ? m_plan.status()
                                                         : ForwardingFiles::clearReadOnly(entry);
}

platform::Status FaultyFiles::rename(const platform::EntryPath &from, const platform::EntryPath &to)
{
    return fires(FaultPlan::Rename, from.path()) ? m_plan.status() : ForwardingFiles::rename(from, to);
}

platform::Status FaultyFiles::remove(const platform::EntryPath &entry)
{
    return fires(FaultPlan::Remove, entry.path()) ? m_plan.status() : ForwardingFiles::remove(entry);
}

bool FaultyFiles::concerns(const QString &path) const
{
    return !m_paths || m_paths(path);
}

bool FaultyFiles::fires(FaultPlan::Kind kind, const QString &path)
{
    return concerns(path) && m_plan.fires(kind);
}

platform::Status FaultyFolders::forEachEntry(const platform::EntryPath &folder, const Visitor &visit)
{
    return fires(FaultPlan::List, folder.path()) ? m_plan.status()
                                                 : ForwardingFolders::forEachEntry(folder, visit);
}

platform::Status FaultyFolders::create(const QString &folder)
{
    return fires(FaultPlan::CreateFolder, folder) ? m_plan.status() : ForwardingFolders::create(folder);
}

platform::Status FaultyFolders::removeEmpty(const platform::EntryPath &folder)
{
    return fires(FaultPlan::RemoveFolder, folder.path()) ? m_plan.status()
                                                         : ForwardingFolders::removeEmpty(folder);
}

platform::Status FaultyFolders::removeTree(const QString &folder)
{
    return fires(FaultPlan::RemoveTree, folder) ? m_plan.status() : ForwardingFolders::removeTree(folder);
}

platform::Result<platform::FolderOwner> FaultyFolders::owner(const QString &folder)
{
    if (fires(FaultPlan::Info, folder))
        return m_plan.status();
    return ForwardingFolders::owner(folder);
}

platform::Status FaultyFolders::hide(const QString &path)
{
    return fires(FaultPlan::Hide, path) ? m_plan.status() : ForwardingFolders::hide(path);
}

platform::Result<platform::SpaceInfo> FaultyFolders::space(const QString &path)
{
    if (fires(FaultPlan::Space, path))
        return m_plan.status();
    return ForwardingFolders::space(path);
}

bool FaultyFolders::fires(FaultPlan::Kind kind, const QString &path)
{
    return (!m_paths || m_paths(path)) && m_plan.fires(kind);
}
