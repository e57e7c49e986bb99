#include "support/memoryvolume.h"

#include "platform/anchoredfolder.h"
#include "platform/entrypath.h"
#include "platform/platform.h"

#include <algorithm>
#include <utility>

class MemoryVolume::Handle : public platform::FileHandle
{
public:
    Handle(MemoryVolume &volume, const QString &path)
        : m_volume(volume)
        , m_path(path)
    {
        ++m_volume.openHandles;
    }
    ~Handle() override
    {
        --m_volume.openHandles;
        m_volume.closed.append({m_path, m_volume.entries.value(m_path).size});
    }
    platform::Status seek(qint64) override { return failure(platform::NotSupported); }
    platform::Result<qint64> read(void *, qint64) override { return failure(platform::NotSupported); }
    platform::Status setEnd() override { return failure(platform::NotSupported); }

    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        if (const auto fault = m_volume.begin(FaultPlan::Write, m_path); !fault)
            return fault;
        return m_volume.append(m_path, static_cast<const quint8 *>(data), size);
    }
    platform::Status flush() override
    {
        if (const auto fault = m_volume.begin(FaultPlan::Flush, m_path); !fault)
            return fault;
        if (const auto entry = m_volume.entries.find(m_path); entry != m_volume.entries.end())
            entry->unflushed = 0;
        return {};
    }
    platform::Result<platform::FileId> id() override { return failure(platform::NotSupported); }
    platform::Result<platform::ContentPlace> contentPlace() override { return m_volume.contentPlace(m_path); }

private:
    MemoryVolume &m_volume;
    const QString m_path;
};

class MemoryVolume::Folder : public platform::AnchoredFolder
{
public:
    Folder(MemoryVolume &volume, const QString &path, bool isClaimed)
        : m_volume(volume)
        , m_path(path)
        , m_isClaimed(isClaimed)
    {}
    QString path() const override { return m_path; }
    bool isClaimed() const override { return m_isClaimed; }
    platform::Result<QString> volumeIdentity() override
    {
        return m_volume.identities.value(m_volume.rootOf(m_path));
    }
    platform::Result<platform::SpaceInfo> space() override { return m_volume.space(m_path); }
    platform::Status forEachEntry(const Visitor &visit) override
    {
        return m_volume.forEachEntry(m_path, visit);
    }
    platform::Result<platform::FileInfo> info(const QString &name) override
    {
        return m_volume.info(entry(name));
    }
    platform::Result<std::unique_ptr<platform::FileHandle>> createFile(const QString &name) override
    {
        if (m_volume.entries.contains(entry(name)))
            return failure(platform::AlreadyExists);
        return m_volume.open(entry(name), platform::OpenMode::CreateFill);
    }
    platform::Status removeFile(const QString &name) override { return m_volume.remove(entry(name)); }
    platform::Result<std::unique_ptr<AnchoredFolder>> createFolder(const QString &name) override
    {
        if (m_volume.entries.contains(entry(name)))
            return failure(platform::AlreadyExists);
        if (const auto created = m_volume.create(entry(name)); !created)
            return created;
        return openFolder(name);
    }
    platform::Result<std::unique_ptr<AnchoredFolder>> openFolder(const QString &name) override
    {
        if (m_volume.heldByOthers.contains(entry(name)))
            return failure(platform::SharingViolation);
        if (!m_volume.isFolder(entry(name)))
            return failure(platform::PathNotFound);
        return std::unique_ptr<AnchoredFolder>(
            std::make_unique<Folder>(m_volume, entry(name), m_volume.knowsClaims));
    }
    platform::Status hide() override { return m_volume.hide(m_path); }
    platform::Status removeFolder(const QString &name) override { return m_volume.removeEmpty(entry(name)); }
    platform::Status removeTree(const QString &name) override { return m_volume.removeTree(entry(name)); }
    platform::Result<std::unique_ptr<platform::VolumeJournal>> journal() override
    {
        return failure(platform::NotSupported);
    }

private:
    QString entry(const QString &name) const { return platform::pathInFolder(m_path, name); }

    MemoryVolume &m_volume;
    const QString m_path;
    const bool m_isClaimed;
};

void MemoryVolume::vanishAtCall(int call, platform::ErrorCode error)
{
    m_vanishCall = call;
    m_vanishError = error;
}

void MemoryVolume::unmount(const QString &root, qint64 freeOfParent)
{
    entries.removeIf([&](auto entry) { return entry.key().startsWith(root); });
    freeBytes[root] = freeOfParent;
}

void MemoryVolume::addFile(const QString &path, qint64 size)
{
    entries.insert(path, {.size = size});
}

void MemoryVolume::addFolder(const QString &path)
{
    entries.insert(path, {.kind = platform::FileKind::Folder});
}

void MemoryVolume::addLink(const QString &path)
{
    entries.insert(path, {.kind = platform::FileKind::Link});
}

QStringList MemoryVolume::pathsBelow(const QString &start) const
{
    QStringList paths;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        if (entry.key().startsWith(start))
            paths.append(entry.key());
    }
    return paths;
}

platform::Result<platform::FileInfo> MemoryVolume::info(const platform::EntryPath &place)
{
    const QString path = place.path();
    if (const auto fault = begin(FaultPlan::Info, path); !fault)
        return fault;
    const auto entry = entries.constFind(path);
    if (entry == entries.constEnd())
        return failure(platform::FileNotFound);
    return platform::FileInfo{entry->kind, entry->size, entry->linkCount};
}

platform::Result<std::shared_ptr<platform::DurabilityGroup>>
MemoryVolume::beginGroup(const platform::EntryPath &)
{
    return failure(platform::NotSupported);
}

platform::Status MemoryVolume::closeGroup(platform::DurabilityGroup &)
{
    return failure(platform::NotSupported);
}

platform::Result<std::unique_ptr<platform::FileHandle>>
MemoryVolume::openIn(const std::shared_ptr<platform::DurabilityGroup> &, const platform::EntryPath &entry,
                     platform::OpenMode mode)
{
    const QString path = entry.path();
    if (const auto fault = begin(FaultPlan::Open, path); !fault)
        return fault;
    if (mode != platform::OpenMode::CreateFill)
        return failure(platform::NotSupported);
    if (!isFolder(parentOf(path)))
        return failure(platform::PathNotFound);
    const Entry standing = entries.value(path);
    if (standing.kind != platform::FileKind::Regular)
        return failure(platform::CannotAccessFile);
    freeBytes[rootOf(path)] += standing.size;
    entries.insert(path, {});
    return std::unique_ptr<platform::FileHandle>(std::make_unique<Handle>(*this, path));
}

platform::Result<platform::ContentPlace> MemoryVolume::contentPlace(const platform::EntryPath &)
{
    return platform::ContentPlace{.elsewhere = elsewhere, .bytes = -1};
}

platform::Result<QByteArray> MemoryVolume::readBeginning(const QString &, qint64)
{
    return failure(platform::NotSupported); // no content is kept
}

platform::Result<std::unique_ptr<QFileDevice>> MemoryVolume::openForAppending(const QString &path)
{
    // Only the log is appended to, and it lies beside this volume.
    static const std::unique_ptr<platform::Platform> machine = platform::createPlatform({});
    return machine->files().openForAppending(path);
}

platform::Status MemoryVolume::clearReadOnly(const platform::EntryPath &entry)
{
    const QString path = entry.path();
    return begin(FaultPlan::ClearReadOnly, path);
}

platform::Status MemoryVolume::rename(const platform::EntryPath &, const platform::EntryPath &)
{
    return failure(platform::NotSupported);
}

platform::Status MemoryVolume::remove(const platform::EntryPath &place)
{
    const QString path = place.path();
    if (const auto fault = begin(FaultPlan::Remove, path); !fault) {
        refusedRemovals.append(path);
        return fault;
    }
    const auto entry = entries.find(path);
    if (entry == entries.end())
        return failure(platform::FileNotFound);
    if (entry->kind == platform::FileKind::Folder)
        return failure(platform::AccessDenied);
    if (unremovable.contains(path)) {
        refusedRemovals.append(path);
        return failure(platform::SharingViolation);
    }
    forget(path);
    return {};
}

platform::Result<std::unique_ptr<platform::AnchoredFolder>>
MemoryVolume::anchor(const platform::EntryPath &place)
{
    const QString folder = place.path();
    if (!isFolder(folder))
        return failure(platform::PathNotFound);
    return std::unique_ptr<platform::AnchoredFolder>(std::make_unique<Folder>(*this, folder, false));
}

platform::Status MemoryVolume::forEachEntry(const platform::EntryPath &place, const Visitor &visit)
{
    const QString folder = place.path();
    if (const auto fault = begin(FaultPlan::List, folder); !fault)
        return fault;
    if (!isFolder(folder))
        return failure(platform::PathNotFound);
    const QString start = folder.endsWith(u'/') ? folder : folder + u'/';
    const auto copy = entries;
    for (auto entry = copy.cbegin(); entry != copy.cend(); ++entry) {
        const QString name = entry.key().mid(start.size());
        if (entry.key().startsWith(start) && !name.contains(u'/') && !visit(name, entry->kind))
            break;
    }
    return {};
}

platform::Result<std::shared_ptr<platform::FolderHandle>> MemoryVolume::hold(const QString &)
{
    return failure(platform::NotSupported);
}

platform::Result<std::shared_ptr<platform::FolderHandle>>
MemoryVolume::holdIn(const std::shared_ptr<platform::FolderHandle> &, const QString &, Mounts)
{
    return failure(platform::NotSupported);
}

platform::Status MemoryVolume::create(const QString &folder)
{
    if (const auto fault = begin(FaultPlan::CreateFolder, folder); !fault)
        return fault;
    createdFolders.append(folder);
    QString path = folder;
    while (!isFolder(path)) {
        if (entries.contains(path))
            return failure(platform::AlreadyExists);
        addFolder(path);
        path = parentOf(path);
    }
    return {};
}

platform::Status MemoryVolume::removeEmpty(const platform::EntryPath &entry)
{
    const QString folder = entry.path();
    if (const auto fault = begin(FaultPlan::RemoveFolder, folder); !fault)
        return fault;
    if (!entries.contains(folder))
        return failure(platform::FileNotFound);
    if (!pathsBelow(folder + u'/').isEmpty())
        return failure(platform::DirectoryNotEmpty);
    entries.remove(folder);
    return {};
}

platform::Status MemoryVolume::removeTree(const QString &folder)
{
    if (const auto fault = begin(FaultPlan::RemoveTree, folder); !fault)
        return fault;
    if (!entries.contains(folder))
        return failure(platform::FileNotFound);
    for (const QString &path : pathsBelow(folder + u'/'))
        forget(path);
    entries.remove(folder);
    return {};
}

platform::Result<platform::FolderOwner> MemoryVolume::owner(const QString &folder)
{
    if (!isFolder(folder))
        return failure(platform::PathNotFound);
    return platform::FolderOwner{.isOwn = true, .isSticky = false};
}

platform::Status MemoryVolume::hide(const QString &path)
{
    if (const auto fault = begin(FaultPlan::Hide, path); !fault)
        return fault;
    hidden.append(path);
    return entries.contains(path) ? platform::Status{} : failure(platform::FileNotFound);
}

platform::Result<platform::SpaceInfo> MemoryVolume::space(const QString &path)
{
    if (const auto fault = begin(FaultPlan::Space, path); !fault)
        return fault;
    if (answerOfSpace)
        return failure(*answerOfSpace);
    if (!isFolder(path))
        return failure(platform::PathNotFound);
    if (m_unreleased > 0 && --m_untilRelease <= 0)
        freeBytes[rootOf(path)] += std::exchange(m_unreleased, 0);
    return platform::SpaceInfo{
        .totalBytes = qint64{1} << 50, .freeBytes = freeOn(path), .availableBytes = freeOn(path)};
}

QString MemoryVolume::parentOf(const QString &path)
{
    return path.left(path.lastIndexOf(u'/'));
}

platform::Status MemoryVolume::begin(FaultPlan::Kind kind, const QString &path)
{
    if (onCall)
        onCall(kind, path);
    ++calls;
    if (m_vanishCall > 0 && calls >= m_vanishCall)
        return failure(m_vanishError);
    if (m_plan && m_plan->fires(kind)) {
        faulted.append(path);
        return m_plan->status();
    }
    return {};
}

QString MemoryVolume::rootOf(const QString &path) const
{
    QString longest;
    for (auto root = freeBytes.keyBegin(); root != freeBytes.keyEnd(); ++root) {
        if ((path + u'/').startsWith(*root) && root->size() > longest.size())
            longest = *root;
    }
    return longest;
}

bool MemoryVolume::isFolder(const QString &path) const
{
    if (freeBytes.contains(path) || freeBytes.contains(path + u'/'))
        return true;
    const auto entry = entries.constFind(path);
    return entry != entries.constEnd() && entry->kind == platform::FileKind::Folder;
}

platform::Result<qint64> MemoryVolume::append(const QString &path, const quint8 *data, qint64 size)
{
    const auto entry = entries.find(path);
    if (entry == entries.end()) { // unmounted below the open file, which still accepts data
        writes.append({path, size, data[0], data[size - 1]});
        return size;
    }
    qint64 room = storedPercent > 0 ? freeOn(path) * 100 / storedPercent : size;
    if (room < 1)
        return failure(platform::DiskFull);
    if (largestFile > 0) {
        if (entry->size >= largestFile)
            return failure(platform::FileTooLarge);
        room = std::min(room, largestFile - entry->size);
    }
    const qint64 taken = std::min(size, room);
    writes.append({path, taken, data[0], data[taken - 1]});
    entry->size += taken;
    entry->unflushed += taken;
    freeBytes[rootOf(path)] -= stored(taken);
    return taken;
}

void MemoryVolume::forget(const QString &path)
{
    const Entry entry = entries.take(path);
    if (entry.kind == platform::FileKind::Folder)
        return;
    removed.append(path);
    if (entry.unflushed > 0)
        removedUnflushed.append(path);
    if (entry.linkCount > 1)
        return;
    m_untilRelease = releaseDelay;
    (releaseDelay > 0 ? m_unreleased : freeBytes[rootOf(path)]) += stored(entry.size);
}
