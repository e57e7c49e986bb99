#pragma once

#include "platform/forwarding.h"
#include "support/faultplan.h"

#include <QString>

#include <functional>
#include <memory>
#include <utility>

// The paths to which a plan applies; empty for all. Other calls are passed on and not counted.
using FaultPaths = std::function<bool(const QString &path)>;

// Files and file handles that fail according to a plan. The plan outlives both.
class FaultyFiles : public platform::ForwardingFiles
{
public:
    FaultyFiles(platform::Files &target, FaultPlan &plan, FaultPaths paths = {})
        : ForwardingFiles(target)
        , m_plan(plan)
        , m_paths(std::move(paths))
    {}
    platform::Result<platform::FileInfo> info(const platform::EntryPath &entry) override;
    // A failing call creates and truncates nothing.
    platform::Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
           platform::OpenMode mode) override;
    platform::Result<std::shared_ptr<platform::DurabilityGroup>>
    beginGroup(const platform::EntryPath &folder) override;
    // Applies to every path.
    platform::Status closeGroup(platform::DurabilityGroup &group) override;
    platform::Result<platform::ContentPlace> contentPlace(const platform::EntryPath &entry) override;
    platform::Result<QByteArray> readBeginning(const QString &path, qint64 limit) override;
    platform::Status clearReadOnly(const platform::EntryPath &entry) override;
    // The plan applies to the old name.
    platform::Status rename(const platform::EntryPath &from, const platform::EntryPath &to) override;
    platform::Status remove(const platform::EntryPath &entry) override;

private:
    bool concerns(const QString &path) const;
    bool fires(FaultPlan::Kind kind, const QString &path);

    FaultPlan &m_plan;
    FaultPaths m_paths;
};

// Folders that fail according to a plan.
class FaultyFolders : public platform::ForwardingFolders
{
public:
    FaultyFolders(platform::Folders &target, FaultPlan &plan, FaultPaths paths = {})
        : ForwardingFolders(target)
        , m_plan(plan)
        , m_paths(std::move(paths))
    {}
    // A failing call fails before the first entry.
    platform::Status forEachEntry(const platform::EntryPath &folder, const Visitor &visit) override;
    platform::Status create(const QString &folder) override;
    platform::Status removeEmpty(const platform::EntryPath &folder) override;
    // A failing call removes nothing.
    platform::Status removeTree(const QString &folder) override;
    platform::Result<platform::FolderOwner> owner(const QString &folder) override;
    platform::Status hide(const QString &path) override;
    platform::Result<platform::SpaceInfo> space(const QString &path) override;

private:
    bool fires(FaultPlan::Kind kind, const QString &path);

    FaultPlan &m_plan;
    FaultPaths m_paths;
};
