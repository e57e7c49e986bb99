#include "engine/filedeletion.h"

#include "engine/filetrace.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QDir>
#include <QLatin1String>
#include <QRandomGenerator>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using platform::FileKind;
using platform::Status;

namespace {

constexpr int RemoveAttempts = 10;
constexpr auto RemovePause = 50ms;
constexpr int RenameAttempts = 5;
constexpr int RandomNameLength = 12;

platform::Files &files()
{
    return platform::Platform::current().files();
}

Status cutToNothing(const QString &path)
{
    auto file = files().open(path, platform::OpenMode::Truncate);
    if (!file)
        return file.status();
    Status status = file.value()->seek(0);
    if (status)
        status = file.value()->setEnd();
    if (status)
        status = file.value()->flush();
    return status;
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

FileDeletion::FileDeletion(Pause pause)
    : m_pause(std::move(pause))
{}

bool FileDeletion::secureDeleteFile(const QString &path)
{
    const auto info = files().info(path);
    if (!info)
        return isAbsent(info.status());
    if (info.value().kind == FileKind::Folder)
        return true;

    traceFile(path, files().clearReadOnly(path));
    if (info.value().kind == FileKind::Regular)
        traceFile(path, cutToNothing(path));
    const QString renamed = randomRenameFile(path);
    const QString target = renamed.isEmpty() ? path : renamed;
    removeWithRetries(target);

    const auto left = files().info(target);
    return !left && isAbsent(left.status());
}

QString FileDeletion::randomRenameFile(const QString &path)
{
    // Text up to the last separator: resolving ".." here could lead into another folder than it does for the
    // system.
    const qsizetype separator = path.lastIndexOf(u'/');
    const QString folder = separator < 0 ? QDir::currentPath() : path.left(separator);
    for (int attempt = 0; attempt < RenameAttempts; ++attempt) {
        QString candidate = folder + u'/' + randomName() + u".tmp"_s;
        const Status renamed = files().rename(path, candidate);
        if (renamed)
            return candidate;
        traceFile(path, renamed);
    }
    return {};
}

// Virus scanners and indexers hold a file for moments: only what they cause is tried again.
void FileDeletion::removeWithRetries(const QString &path)
{
    for (int attempt = 1; attempt <= RemoveAttempts; ++attempt) {
        const Status removed = files().remove(path);
        if (removed)
            return;
        traceFile(path, removed);
        if (removed.code != platform::SharingViolation && removed.code != platform::AccessDenied)
            return;
        if (attempt < RemoveAttempts && !m_pause(RemovePause))
            return;
    }
}
