#include "engine/durabilitygroups.h"

#include "engine/filetrace.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QMutexLocker>
#include <QString>

#include <algorithm>
#include <utility>

namespace {

platform::Files &files()
{
    return platform::Platform::current().files();
}

} // namespace

DurabilityGroups::~DurabilityGroups()
{
    for (const Open &open : m_open)
        traceFile(QString(), files().closeGroup(*open.group));
}

DurabilityGroups::Group DurabilityGroups::of(const platform::EntryPath &entry)
{
    if (!entry.folder())
        return {};
    const QMutexLocker locker(&m_mutex);
    if (const Open *const open = find(entry))
        return open->group;
    auto begun = files().beginGroup(entry.sibling({}));
    if (!begun)
        return {};
    m_open.push_back({begun.take(), {}});
    return m_open.back().group;
}

bool DurabilityGroups::add(const platform::EntryPath &entry, const Member &member)
{
    const QMutexLocker locker(&m_mutex);
    Open *const open = find(entry);
    if (open)
        open->members.push_back(member);
    return open != nullptr;
}

std::vector<DurabilityGroups::Closed> DurabilityGroups::close()
{
    const QMutexLocker locker(&m_mutex);
    std::vector<Closed> closed;
    closed.reserve(m_open.size());
    while (!m_open.empty()) {
        Open open = std::move(m_open.back());
        m_open.pop_back();
        closed.push_back({std::move(open.members), files().closeGroup(*open.group)});
    }
    return closed;
}

DurabilityGroups::Open *DurabilityGroups::find(const platform::EntryPath &entry)
{
    const auto covering = std::ranges::find_if(
        m_open, [&entry](const Open &open) { return entry.folder() && open.group->covers(*entry.folder()); });
    return covering == m_open.end() ? nullptr : &*covering;
}
