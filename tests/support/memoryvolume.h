#pragma once

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/status.h"
#include "support/faultplan.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <limits>
#include <memory>
#include <optional>

// Volumes of any size that keep names and lengths but no content, so that gigabytes are filled in
// milliseconds. A write that does not fit is cut short, and the next one fails with DiskFull. The volumes
// record the writes, the lengths of files when they were closed, and files deleted before a flush.
//
// One thread at a time; hooks run on the thread of the caller.
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
        quint8 first = 0; // first byte of the content
        quint8 last = 0;
    };
    struct Closed
    {
        QString path;
        qint64 size = 0;

        bool operator==(const Closed &) const = default;
    };

    // Set by tests. Free bytes by root; a root ends in "/".
    QMap<QString, qint64> freeBytes;
    QMap<QString, Entry> entries;                                     // by full path
    std::function<void(FaultPlan::Kind, const QString &path)> onCall; // before every call
    std::optional<platform::ErrorCode> answerOfSpace;                 // failure of space() for every path
    int storedPercent = 100;              // stored share of the written bytes, as with compression
    int releaseDelay = 0;                 // calls of space() until the room of deleted files is free again
    qint64 largestFile = 0;               // 0: any size
    platform::ElsewhereReasons elsewhere; // answer of contentPlace() for every path
    platform::Result<int> snapshotAnswer = failure(platform::NotSupported);
    bool distrustsPrograms = false;    // as Windows with controlled folder access
    QStringList unremovable;           // remove() fails with SharingViolation
    QMap<QString, QString> identities; // of the volumes, by root
    QStringList heldByOthers;          // folders claimed by another process
    bool knowsClaims = true;           // whether folders can be claimed at all

    // Read by tests.
    QList<Write> writes;
    QList<Closed> closed;         // in the order of closing
    QStringList removed;          // files
    QStringList removedUnflushed; // removed files with unflushed bytes
    QStringList hidden;
    QStringList refusedRemovals;
    QStringList createdFolders; // as requested, without parents
    QStringList faulted;        // paths of the calls made to fail
    int calls = 0;
    int openHandles = 0;

    void setPlan(FaultPlan *plan) { m_plan = plan; }

    // From this call on, counted over all kinds, every call on the volume fails as if it were gone.
    void vanishAtCall(int call, platform::ErrorCode error);
    // Unmounts the volume. Its files are hidden from now on, and its root is a folder of another volume with
    // that much free space.
    void unmount(const QString &root, qint64 freeOfParent);
    void addFile(const QString &path, qint64 size);
    void addFolder(const QString &path);
    void addLink(const QString &path);
    QStringList pathsBelow(const QString &start) const;

    // Files.
    platform::Result<platform::FileInfo> info(const platform::EntryPath &place) override;
    platform::Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
           platform::OpenMode mode) override;
    platform::Result<std::shared_ptr<platform::DurabilityGroup>>
    beginGroup(const platform::EntryPath &folder) override;
    platform::Status closeGroup(platform::DurabilityGroup &group) override;
    platform::Result<platform::ContentPlace> contentPlace(const platform::EntryPath &entry) override;
    platform::Result<QList<platform::NamedStream>> namedStreams(const platform::EntryPath &) override
    {
        return QList<platform::NamedStream>();
    }
    platform::Result<QByteArray> readBeginning(const QString &path, qint64 limit) override;
    platform::Result<std::unique_ptr<QFileDevice>> openForAppending(const QString &path) override;
    bool isStream(const QString &) override { return false; }
    bool openStream(QFile &, QIODevice::OpenMode) override { return false; }
    bool isWrittenOut(const QFileDevice &) override { return true; }
    int spareOpenFiles() override { return std::numeric_limits<int>::max(); }
    platform::Status clearReadOnly(const platform::EntryPath &entry) override;
    platform::Status rename(const platform::EntryPath &, const platform::EntryPath &) override;
    platform::Status remove(const platform::EntryPath &place) override;

    // Folders. Anchored entries are reached by path.
    platform::Result<std::unique_ptr<platform::AnchoredFolder>>
    anchor(const platform::EntryPath &folder) override;
    platform::Status forEachEntry(const platform::EntryPath &folder, const Visitor &visit) override;
    // Folders are never held here.
    platform::Result<std::shared_ptr<platform::FolderHandle>> hold(const QString &folder) override;
    platform::Result<std::shared_ptr<platform::FolderHandle>>
    holdIn(const std::shared_ptr<platform::FolderHandle> &parent, const QString &name,
           Mounts mounts) override;
    platform::Status create(const QString &folder) override;
    platform::Status removeEmpty(const platform::EntryPath &folder) override;
    platform::Status removeTree(const QString &folder) override;
    platform::Result<platform::FolderOwner> owner(const QString &folder) override;
    platform::Status hide(const QString &path) override;
    platform::Result<platform::SpaceInfo> space(const QString &path) override;
    bool mayDistrustProgram(quint32) override { return distrustsPrograms; }
    platform::Result<int> snapshots(const QString &) override { return snapshotAnswer; }

private:
    class Handle;
    class Folder;

    static platform::Status failure(quint32 code) { return {code, 0, "memory volume"}; }
    static QString parentOf(const QString &path);
    platform::Status begin(FaultPlan::Kind kind, const QString &path);

    // The root of the volume that holds the path, which may be the root itself, with or without its slash.
    QString rootOf(const QString &path) const;
    bool isFolder(const QString &path) const;

    // freeBytes already excludes the files that the test set before the job.
    qint64 freeOn(const QString &path) const { return freeBytes.value(rootOf(path)); }

    platform::Result<qint64> append(const QString &path, const quint8 *data, qint64 size);
    qint64 stored(qint64 size) const { return (size * storedPercent + 99) / 100; }

    void forget(const QString &path);

    FaultPlan *m_plan = nullptr;
    qint64 m_unreleased = 0;
    int m_untilRelease = 0;
    int m_vanishCall = 0;
    platform::ErrorCode m_vanishError = platform::NoError;
};
