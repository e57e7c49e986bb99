#include "engine/heldtree.h"

#include "platform/files.h"
#include "platform/platform.h"

#include <QMutexLocker>

#include <algorithm>
#include <utility>

using platform::Folders;
using platform::Result;
using platform::Status;

namespace {

// Enough for the jobs of a batch, and few compared with the limit for open files.
constexpr std::size_t MostHeld = 96;
// Tops beyond this number are identified by their path only.
constexpr std::size_t MostPinned = 256;
// Parents that are kept after a folder was opened again, since the walk back up needs them next.
constexpr std::size_t MostOnTheWay = 32;

// At most a quarter of the files that the process may still open.
std::size_t affordable(std::size_t most)
{
    constexpr std::size_t Least = 2;
    return std::clamp(static_cast<std::size_t>(platform::Platform::current().files().spareOpenFiles()) / 4,
                      Least, most);
}

Folders &folders()
{
    return platform::Platform::current().folders();
}

} // namespace

HeldTree::HeldTree()
    : m_mostHeld(affordable(MostHeld))
    , m_mostPinned(affordable(MostPinned))
{}

Result<HeldTree::Folder> HeldTree::addTop(const QString &path)
{
    if (const auto known = m_byName.constFind({None, path}); known != m_byName.cend())
        return *known;
    const auto handle = folders().hold(path);
    if (!handle)
        return handle.status();
    Node node{.parent = None, .name = path};
    if (!handle.value()->id() && m_pinned < m_mostPinned) {
        node.pinned = handle.value();
        ++m_pinned;
    }
    return add(std::move(node), handle.value());
}

Result<HeldTree::Folder> HeldTree::addFolder(Folder parent, const QString &name, Folders::Mounts mounts)
{
    const Result<Handle> above = hold(parent);
    if (!above)
        return above.status();
    const auto handle = folders().holdIn(above.value(), name, mounts);
    if (!handle)
        return handle.status();
    const auto id = handle.value()->id();
    const auto known = m_byName.constFind({parent, name});
    if (known != m_byName.cend() && (!id || node(*known).id == id.value())) {
        const QMutexLocker locker(&m_mutex);
        keep(*known, handle.value());
        return *known;
    }
    return add({.parent = parent, .name = name, .mounts = mounts}, handle.value());
}

HeldTree::Folder HeldTree::add(Node node, const Handle &handle)
{
    const Folder folder = size();
    if (const auto id = handle->id(); id) {
        node.id = id.value();
        if (!m_firstById.contains(id.value()))
            m_firstById.insert(id.value(), folder);
    }
    m_byName.insert({node.parent, node.name}, folder);
    m_nodes.push_back(std::move(node));
    const QMutexLocker locker(&m_mutex);
    keep(folder, handle);
    return folder;
}

HeldTree::Folder HeldTree::firstAs(Folder folder) const
{
    const auto &id = node(folder).id;
    return id ? m_firstById.value(*id, folder) : folder;
}

QString HeldTree::path(Folder folder) const
{
    std::vector<Folder> below;
    while (node(folder).parent != None) {
        below.push_back(folder);
        folder = node(folder).parent;
    }
    QString path = node(folder).name;
    for (auto next = below.crbegin(); next != below.crend(); ++next) {
        if (!path.endsWith(u'/'))
            path += u'/';
        path += node(*next).name;
    }
    return path;
}

QString HeldTree::path(Folder folder, const QString &name) const
{
    return name.isEmpty() ? path(folder) : platform::pathInFolder(path(folder), name);
}

Result<platform::EntryPath> HeldTree::entry(Folder folder, const QString &name)
{
    Result<Handle> handle = hold(folder);
    if (!handle)
        return handle.status();
    return platform::EntryPath(handle.take(), name);
}

Result<platform::EntryPath> HeldTree::asEntry(Folder folder)
{
    const Node &child = node(folder);
    if (child.parent == None)
        return Status{platform::InvalidParameter, 0, "top folder"};
    return entry(child.parent, child.name);
}

bool HeldTree::isSame(Folder folder, const platform::FileInfo &found) const
{
    const auto &id = node(folder).id;
    return found.kind == platform::FileKind::Folder && (!id || found.id.number == 0 || *id == found.id);
}

void HeldTree::release(Folder folder)
{
    const QMutexLocker locker(&m_mutex);
    std::erase_if(m_held, [folder](const Held &held) { return held.folder == folder; });
}

void HeldTree::releaseAll()
{
    const QMutexLocker locker(&m_mutex);
    m_held.clear();
}

Result<HeldTree::Handle> HeldTree::hold(Folder folder)
{
    const QMutexLocker locker(&m_mutex);
    std::vector<Folder> way;
    Handle handle = held(folder);
    while (!handle) {
        way.push_back(folder);
        folder = node(folder).parent;
        if (folder == None)
            break;
        handle = held(folder);
    }
    while (!way.empty()) {
        const Folder next = way.back();
        way.pop_back();
        Result<Handle> opened = reopen(next, handle);
        if (!opened)
            return opened.status();
        handle = opened.take();
        if (way.size() < std::min(MostOnTheWay, m_mostHeld))
            keep(next, handle);
    }
    return handle;
}

HeldTree::Handle HeldTree::held(Folder folder)
{
    if (node(folder).pinned)
        return node(folder).pinned;
    const auto found = std::ranges::find(m_held, folder, &Held::folder);
    if (found == m_held.end())
        return {};
    found->used = ++m_clock;
    return found->handle;
}

Result<HeldTree::Handle> HeldTree::reopen(Folder folder, const Handle &parent) const
{
    const Node &wanted = node(folder);
    Result<Handle> opened =
        parent ? folders().holdIn(parent, wanted.name, wanted.mounts) : folders().hold(wanted.name);
    // Another file system has been mounted over it.
    if (opened.code() == platform::NotSameDevice)
        return Status{platform::PathNotFound, opened.status().native, opened.status().operation};
    if (!opened)
        return opened;
    const auto id = opened.value()->id();
    if (wanted.id && (!id || id.value() != *wanted.id))
        return Status{platform::PathNotFound, 0, "another folder"};
    return opened;
}

// The lock is held by the caller.
void HeldTree::keep(Folder folder, const Handle &handle)
{
    const auto known = std::ranges::find(m_held, folder, &Held::folder);
    if (known != m_held.end()) {
        *known = {folder, handle, ++m_clock};
        return;
    }
    if (m_held.size() >= m_mostHeld)
        m_held.erase(std::ranges::min_element(m_held, {}, &Held::used));
    m_held.push_back({folder, handle, ++m_clock});
}
