#pragma once

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/status.h"
#include "support/faultplan.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

// Volumes of any size that keep names and lengths but no content, so that gigabytes are filled in
// milliseconds. A write that does not fit is cut short, the next one fails with DiskFull. Everything else
// that a test may want to see is recorded: the writes, the lengths at which files were closed, and what was
// deleted before it was flushed.
//
// Used by one thread at a time; hooks run on the thread that makes the call.
class MemoryVolume : public platform::Files, public platform::Folders
{
public:
    struct Entry
    {
        platform::FileKind kind = platform::FileKind::Regular;
        qint64 size = 0;
        qint64 unflushed = 0; // bytes that a power cut would lose
        int linkCount = 1;
    };
    struct Write
    {
        QString path;
        qint64 size = 0;
        quint8 first = 0; // bytes of the content
        quint8 last = 0;
    };
    struct Closed
    {
        QString path;
        qint64 size = 0;

        bool operator==(const Closed &) const = default;
    };

    // What tests set. Free bytes by root, which ends in "/".
    QMap<QString, qint64> freeBytes;
    QMap<QString, Entry> entries;                                     // by full path
    std::function<void(FaultPlan::Kind, const QString &path)> onCall; // before every call
    std::optional<platform::ErrorCode> answerOfSpace;                 // space() of every path fails
    int storedPercent = 100; // of what is written, by a file system that compresses
    int releaseDelay = 0;    // calls of space() until the room of deleted files is free again
    qint64 largestFile = 0;  // 0: any size
    QStringList unremovable; // remove() fails with SharingViolation

    // What tests look at.
    QList<Write> writes;
    QList<Closed> closed;         // in the order of closing
    QStringList removed;          // files
    QStringList removedUnflushed; // of these, what had not reached the medium
    QStringList hidden;
    QStringList refusedRemovals;
    QStringList createdFolders; // as asked for, without parents
    QStringList faulted;        // the paths of the calls that the plan made fail
    int calls = 0;
    int openHandles = 0;

    void setPlan(FaultPlan *plan) { m_plan = plan; }

    // From this call on, counted over all kinds, the volume is gone: every call on it fails.
    void vanishAtCall(int call, platform::ErrorCode error)
    {
        m_vanishCall = call;
        m_vanishError = error;
    }
    // From now on the volume is unmounted: what was on it is out of sight, and its root is a folder of
    // another volume with that much room.
    void unmount(const QString &root, qint64 freeOfParent)
    {
        entries.removeIf([&](auto entry) { return entry.key().startsWith(root); });
        freeBytes[root] = freeOfParent;
    }

    void addFile(const QString &path, qint64 size) { entries.insert(path, {.size = size}); }
    void addFolder(const QString &path) { entries.insert(path, {.kind = platform::FileKind::Folder}); }
    void addLink(const QString &path) { entries.insert(path, {.kind = platform::FileKind::Link}); }

    QStringList pathsBelow(const QString &start) const
    {
        QStringList paths;
        for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
            if (entry.key().startsWith(start))
                paths.append(entry.key());
        }
        return paths;
    }

    // Files.
    platform::Result<platform::FileInfo> info(const QString &path) override
    {
        if (const auto fault = begin(FaultPlan::Info, path); !fault)
            return fault;
        const auto entry = entries.constFind(path);
        if (entry == entries.constEnd())
            return failure(platform::FileNotFound);
        return platform::FileInfo{entry->kind, entry->size, entry->linkCount};
    }

    platform::Result<std::unique_ptr<platform::FileHandle>> open(const QString &path,
                                                                 platform::OpenMode mode) override
    {
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

    platform::Status clearReadOnly(const QString &path) override
    {
        return begin(FaultPlan::ClearReadOnly, path);
    }

    platform::Status rename(const QString &, const QString &) override
    {
        return failure(platform::NotSupported);
    }

    platform::Status remove(const QString &path) override
    {
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

    // Folders.
    platform::Status forEachEntry(const QString &folder, const Visitor &visit) override
    {
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

    platform::Status create(const QString &folder) override
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

    platform::Status removeEmpty(const QString &folder) override
    {
        if (const auto fault = begin(FaultPlan::RemoveFolder, folder); !fault)
            return fault;
        if (!entries.contains(folder))
            return failure(platform::FileNotFound);
        if (!pathsBelow(folder + u'/').isEmpty())
            return failure(platform::DirectoryNotEmpty);
        entries.remove(folder);
        return {};
    }

    platform::Status removeTree(const QString &folder) override
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

    platform::Status hide(const QString &path) override
    {
        if (const auto fault = begin(FaultPlan::Hide, path); !fault)
            return fault;
        hidden.append(path);
        return entries.contains(path) ? platform::Status{} : failure(platform::FileNotFound);
    }

    platform::Result<platform::SpaceInfo> space(const QString &path) override
    {
        if (const auto fault = begin(FaultPlan::Space, path); !fault)
            return fault;
        if (answerOfSpace)
            return failure(*answerOfSpace);
        if (!isFolder(path))
            return failure(platform::PathNotFound);
        if (m_unreleased > 0 && --m_untilRelease <= 0)
            freeBytes[rootOf(path)] += std::exchange(m_unreleased, 0);
        return platform::SpaceInfo{.totalBytes = qint64{1} << 50, .freeBytes = freeOn(path)};
    }

private:
    class Handle : public platform::FileHandle
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

    private:
        MemoryVolume &m_volume;
        const QString m_path;
    };

    static platform::Status failure(quint32 code) { return {code, 0, "memory volume"}; }
    static QString parentOf(const QString &path) { return path.left(path.lastIndexOf(u'/')); }

    platform::Status begin(FaultPlan::Kind kind, const QString &path)
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

    // The root of the volume that holds the path, which may be the root itself, with or without its slash.
    QString rootOf(const QString &path) const
    {
        QString longest;
        for (auto root = freeBytes.keyBegin(); root != freeBytes.keyEnd(); ++root) {
            if ((path + u'/').startsWith(*root) && root->size() > longest.size())
                longest = *root;
        }
        return longest;
    }

    bool isFolder(const QString &path) const
    {
        if (freeBytes.contains(path) || freeBytes.contains(path + u'/'))
            return true;
        const auto entry = entries.constFind(path);
        return entry != entries.constEnd() && entry->kind == platform::FileKind::Folder;
    }

    // Files set by the test before the job count as used already.
    qint64 freeOn(const QString &path) const { return freeBytes.value(rootOf(path)); }

    platform::Result<qint64> append(const QString &path, const quint8 *data, qint64 size)
    {
        const auto entry = entries.find(path);
        if (entry == entries.end()) { // unmounted below the open file, which goes on taking data
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

    qint64 stored(qint64 size) const { return (size * storedPercent + 99) / 100; }

    void forget(const QString &path)
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

    FaultPlan *m_plan = nullptr;
    qint64 m_unreleased = 0;
    int m_untilRelease = 0;
    int m_vanishCall = 0;
    platform::ErrorCode m_vanishError = platform::NoError;
};
