#pragma once

#include "platform/forwarding.h"
#include "support/faultplan.h"

#include <functional>
#include <utility>

// Which paths a plan is about; empty for all. Calls for other paths are passed on and not counted.
using FaultPaths = std::function<bool(const QString &path)>;

// A handle whose calls fail as planned; whatever does not fail reaches the real one.
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
    // Nothing of a write that fails is written.
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

private:
    FaultPlan &m_plan;
};

// Files, and the handles they open, failing as planned. The plan outlives both.
class FaultyFiles : public platform::ForwardingFiles
{
public:
    FaultyFiles(platform::Files &target, FaultPlan &plan, FaultPaths paths = {})
        : ForwardingFiles(target)
        , m_plan(plan)
        , m_paths(std::move(paths))
    {}
    platform::Result<platform::FileInfo> info(const QString &path) override
    {
        if (fires(FaultPlan::Info, path))
            return m_plan.status();
        return ForwardingFiles::info(path);
    }
    // Nothing is created or cut by an opening that fails.
    platform::Result<std::unique_ptr<platform::FileHandle>> open(const QString &path,
                                                                 platform::OpenMode mode) override
    {
        if (fires(FaultPlan::Open, path))
            return m_plan.status();
        auto handle = ForwardingFiles::open(path, mode);
        if (!handle || !concerns(path))
            return handle;
        return std::unique_ptr<platform::FileHandle>(
            std::make_unique<FaultyFileHandle>(handle.take(), m_plan));
    }
    platform::Status clearReadOnly(const QString &path) override
    {
        return fires(FaultPlan::ClearReadOnly, path) ? m_plan.status() : ForwardingFiles::clearReadOnly(path);
    }
    // It is the old name that counts.
    platform::Status rename(const QString &from, const QString &to) override
    {
        return fires(FaultPlan::Rename, from) ? m_plan.status() : ForwardingFiles::rename(from, to);
    }
    platform::Status remove(const QString &path) override
    {
        return fires(FaultPlan::Remove, path) ? m_plan.status() : ForwardingFiles::remove(path);
    }

private:
    bool concerns(const QString &path) const { return !m_paths || m_paths(path); }
    bool fires(FaultPlan::Kind kind, const QString &path) { return concerns(path) && m_plan.fires(kind); }

    FaultPlan &m_plan;
    FaultPaths m_paths;
};

// Folders failing as planned.
class FaultyFolders : public platform::ForwardingFolders
{
public:
    FaultyFolders(platform::Folders &target, FaultPlan &plan, FaultPaths paths = {})
        : ForwardingFolders(target)
        , m_plan(plan)
        , m_paths(std::move(paths))
    {}
    // Fails before the first entry.
    platform::Status forEachEntry(const QString &folder, const Visitor &visit) override
    {
        return fires(FaultPlan::List, folder) ? m_plan.status()
                                              : ForwardingFolders::forEachEntry(folder, visit);
    }
    platform::Status create(const QString &folder) override
    {
        return fires(FaultPlan::CreateFolder, folder) ? m_plan.status() : ForwardingFolders::create(folder);
    }
    platform::Status removeEmpty(const QString &folder) override
    {
        return fires(FaultPlan::RemoveFolder, folder) ? m_plan.status()
                                                      : ForwardingFolders::removeEmpty(folder);
    }
    // Removes nothing when it fails.
    platform::Status removeTree(const QString &folder) override
    {
        return fires(FaultPlan::RemoveTree, folder) ? m_plan.status() : ForwardingFolders::removeTree(folder);
    }
    platform::Status hide(const QString &path) override
    {
        return fires(FaultPlan::Hide, path) ? m_plan.status() : ForwardingFolders::hide(path);
    }
    platform::Result<platform::SpaceInfo> space(const QString &path) override
    {
        if (fires(FaultPlan::Space, path))
            return m_plan.status();
        return ForwardingFolders::space(path);
    }

private:
    bool fires(FaultPlan::Kind kind, const QString &path)
    {
        return (!m_paths || m_paths(path)) && m_plan.fires(kind);
    }

    FaultPlan &m_plan;
    FaultPaths m_paths;
};
