#include "engine/filedeletion.h"

#include "engine/durabilitygroups.h"
#include "engine/filetrace.h"
#include "engine/retries.h"
#include "engine/watchedfile.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QLatin1String>
#include <QRandomGenerator>

#include <utility>

using namespace Qt::StringLiterals;
using platform::EntryPath;
using platform::FileKind;
using platform::Status;

namespace {

constexpr int RenameAttempts = 5;
constexpr int RandomNameLength = 12;

platform::Files &files()
{
    return platform::Platform::current().files();
}

QString randomName()
{
    constexpr QLatin1String characters("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
    QString name;
    name.reserve(RandomNameLength);
    for (int i = 0; i < RandomNameLength; ++i)
        name += characters[QRandomGenerator64::global()->bounded(static_cast<int>(characters.size()))];
    return name;
}

} // namespace

FileDeletion::FileDeletion(RetryPause pause, DurabilityGroups *groups)
    : m_pause(std::move(pause))
    , m_groups(groups)
{}

bool FileDeletion::secureDeleteFile(const EntryPath &file, WatchedFile *watched)
{
    m_found = Found::Nothing;
    m_leftAt.reset();
    const auto info = files().info(file);
    if (!info)
        return info.status().isAbsent();
    if (info.value().kind == FileKind::Folder)
        return true;
    m_found = watched && watched->isReplacedBy(info.value()) ? Found::Another : Found::File;
    if (m_found == Found::Another)
        return false;

    traceFile(file.path(), files().clearReadOnly(file));
    if (info.value().kind == FileKind::Regular)
        traceFile(file.path(), cutToNothing(file, watched));
    if (m_found == Found::Another)
        return false;
    const std::optional<EntryPath> renamed = randomRenameFile(file);
    const EntryPath target = renamed.value_or(file);
    // Under its random name the file can no longer be replaced unnoticed, so it is checked once more.
    const auto found = renamed && watched ? files().info(target) : info;
    if (found && watched && watched->isReplacedBy(found.value())) {
        m_found = Found::Another;
        giveBack(target, file);
        return false;
    }
    remove(target);

    const auto left = files().info(target);
    if (!left && left.status().isAbsent())
        return true;
    m_leftAt = renamed;
    return false;
}

Status FileDeletion::cutToNothing(const EntryPath &path, WatchedFile *watched)
{
    auto file = files().openIn(m_groups ? m_groups->of(path) : nullptr, path, platform::OpenMode::Truncate);
    if (!file)
        return file.status();
    if (watched && watched->isReplacedBy(*file.value())) {
        m_found = Found::Another;
        return {};
    }
    Status status = file.value()->seek(0);
    if (status)
        status = file.value()->setEnd();
    if (status)
        status = file.value()->flush();
    return status;
}

// Undoes the rename of a file that had replaced the expected one.
void FileDeletion::giveBack(const EntryPath &renamed, const EntryPath &file)
{
    const auto standing = files().info(file);
    if (!standing.status().isAbsent())
        return;
    traceFile(renamed.path(), files().rename(renamed, file));
}

std::optional<EntryPath> FileDeletion::randomRenameFile(const EntryPath &file)
{
    for (int attempt = 0; attempt < RenameAttempts; ++attempt) {
        EntryPath candidate = file.sibling(randomName() + u".tmp"_s);
        const Status renamed = files().rename(file, candidate);
        if (renamed)
            return candidate;
        traceFile(file.path(), renamed);
    }
    return {};
}

void FileDeletion::remove(const EntryPath &file)
{
    const auto attempt = [&file] {
        const Status removed = files().remove(file);
        if (!removed)
            traceFile(file.path(), removed);
        return removed;
    };
    // The caller checks whether the file is gone.
    [[maybe_unused]] const Status last = removeWithRetries(attempt, m_pause);
}
