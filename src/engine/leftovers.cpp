#include "engine/leftovers.h"

#include "engine/fillnames.h"
#include "platform/entrypath.h"
#include "platform/files.h"

#include <QDebug>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Entries of one kind whose names pass the test. A listing that fails half-way yields the entries before the
// failure.
template <typename Test>
QStringList entries(platform::AnchoredFolder &folder, platform::FileKind wanted, Test isWanted)
{
    QStringList names;
    const platform::Status listed = folder.forEachEntry([&](const QString &name, platform::FileKind kind) {
        if (kind == wanted && isWanted(name))
            names.append(name);
        return true;
    });
    if (!listed)
        qDebug().noquote() << "[FreeSpaceWipe] left-overs in" << folder.path() << listed.diagnostic();
    return names;
}

void diagnose(const platform::AnchoredFolder &folder, const QString &name, const platform::Status &failure)
{
    qDebug().noquote() << "[FreeSpaceWipe] left-over" << folder.path() << name << failure.diagnostic();
}

// The bytes of the removed files, nothing when there was no file to remove.
std::optional<qint64> removeFillFilesIn(platform::AnchoredFolder &folder)
{
    std::optional<qint64> bytes;
    for (const QString &name : entries(folder, platform::FileKind::Regular, fillnames::isFile)) {
        const auto info = folder.info(name);
        if (const platform::Status removed = folder.removeFile(name); !removed) {
            diagnose(folder, name, removed);
            continue;
        }
        // A further hard link keeps the space allocated.
        const bool freesSpace = info && info.value().linkCount == 1;
        bytes = bytes.value_or(0) + (freesSpace ? info.value().size : 0);
    }
    return bytes;
}

bool removeRecordFile(platform::AnchoredFolder &folder, const QString &name)
{
    const auto info = folder.info(name);
    if (!info || info.value().size > fillnames::RecordFileBytes)
        return false;
    const platform::Status removed = folder.removeFile(name);
    if (!removed)
        diagnose(folder, name, removed);
    return removed.ok();
}

bool removeRecordFolder(platform::AnchoredFolder &folder, const QString &name)
{
    const platform::Status removed = folder.removeFolder(name);
    if (!removed)
        diagnose(folder, name, removed);
    return removed.ok();
}

// Removes the records that a residue step has left. Returns whether there were any.
template <typename Test, typename Remove>
bool removeRecordsIn(platform::AnchoredFolder &folder, const QString &name, platform::FileKind kind,
                     Test isRecord, Remove remove)
{
    auto records = folder.openFolder(name);
    if (!records)
        return false;
    for (const QString &record : entries(*records.value(), kind, isRecord))
        remove(*records.value(), record);
    records.value().reset();
    return removeRecordFolder(folder, name);
}

bool isEmpty(platform::AnchoredFolder &folder)
{
    bool hasEntry = false;
    const platform::Status listed = folder.forEachEntry([&](const QString &, platform::FileKind) {
        hasEntry = true;
        return false;
    });
    return listed && !hasEntry;
}

} // namespace

LeftOvers::LeftOvers(platform::AnchoredFolder &root, const QString &except)
    : m_root(root)
{
    for (const QString &name : entries(root, platform::FileKind::Folder, fillnames::isFolder)) {
        if (name == except)
            continue;
        auto folder = root.openFolder(name);
        if (!folder)
            diagnose(root, name, folder.status());
        const bool isHeld = folder ? !folder.value()->isClaimed() && !isEmpty(*folder.value())
                                   : folder.code() == platform::SharingViolation;
        if (isHeld)
            m_inUse = platform::pathInFolder(root.path(), name);
        if (folder)
            m_folders.push_back({name, folder.take()});
    }
}

LeftOvers::Removed LeftOvers::remove()
{
    Removed removed;
    for (Folder &folder : m_folders) {
        platform::AnchoredFolder &open = *folder.open;
        const QString path = open.path();
        const auto bytes = removeFillFilesIn(open);
        const bool hadFiles = removeRecordsIn(open, fillnames::recordFiles, platform::FileKind::Regular,
                                              fillnames::isRecordFile, removeRecordFile);
        const bool hadFolders = removeRecordsIn(open, fillnames::recordFolders, platform::FileKind::Folder,
                                                fillnames::isRecordFolder, removeRecordFolder);
        if (bytes || hadFiles || hadFolders)
            removed.folders.append(path);
        removed.bytes += bytes.value_or(0);
        folder.open.reset();
        if (const platform::Status status = m_root.removeFolder(folder.name); !status)
            diagnose(m_root, folder.name, status);
    }
    m_folders.clear();
    return removed;
}
