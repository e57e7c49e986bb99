#pragma once

#include "platform/forwarding.h"
#include "support/faultplan.h"

#include <QString>

#include <functional>
#include <memory>
#include <utility>

// Which paths a plan is about; empty for all. Calls for other paths are passed on and not counted.
using FaultPaths = std::function<bool(const QString &path)>;

// Files, and the handles they open, failing as planned. The plan outlives both.
class FaultyFiles : public platform::ForwardingFiles
{
public:
    FaultyFiles(platform::Files &target, FaultPlan &plan, FaultPaths paths = {})
        : ForwardingFiles(target)
        , m_plan(plan)
        , m_paths(std::move(paths))
    {}
    platform::Result<platform::FileInfo> info(const platform::EntryPath &entry) override;
    // Nothing is created or cut by an opening that fails.
    platform::Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
           platform::OpenMode mode) override;
    platform::Result<std::shared_ptr<platform::DurabilityGroup>>
    beginGroup(const platform::EntryPath &folder) override;
    // Of whatever files.
    platform::Status closeGroup(platform::DurabilityGroup &group) override;
    platform::Result<platform::ContentPlace> contentPlace(const platform::EntryPath &entry) override;
    platform::Result<QByteArray> readBeginning(const QString &path, qint64 limit) override;
    platform::Status clearReadOnly(const platform::EntryPath &entry) override;
    // It is the old name that counts.
    platform::Status rename(const platform::EntryPath &from, const platform::EntryPath &to) override;
    platform::Status remove(const platform::EntryPath &entry) override;

private:
    bool concerns(const QString &path) const;
    bool fires(FaultPlan::Kind kind, const QString &path);

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
    platform::Status forEachEntry(const platform::EntryPath &folder, const Visitor &visit) override;
    platform::Status create(const QString &folder) override;
    platform::Status removeEmpty(const platform::EntryPath &folder) override;
    // Removes nothing when it fails.
    platform::Status removeTree(const QString &folder) override;
    platform::Result<platform::FolderOwner> owner(const QString &folder) override;
    platform::Status hide(const QString &path) override;
    platform::Result<platform::SpaceInfo> space(const QString &path) override;

private:
    bool fires(FaultPlan::Kind kind, const QString &path);

    FaultPlan &m_plan;
    FaultPaths m_paths;
};
