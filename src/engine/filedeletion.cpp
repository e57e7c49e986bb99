#include "engine/filedeletion.h"

#include "engine/filetrace.h"
#include "engine/removalretries.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QDir>
#include <QLatin1String>
#include <QRandomGenerator>

#include <utility>

using namespace Qt::StringLiterals;
using platform::FileKind;
using platform::Status;

namespace {

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

FileDeletion::FileDeletion(RetryPause pause)
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
    remove(target);

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

void FileDeletion::remove(const QString &path)
{
    const auto attempt = [&path] {
        const Status removed = files().remove(path);
        if (!removed)
            traceFile(path, removed);
        return removed;
    };
    // Whether it is gone is asked afterwards.
    [[maybe_unused]] const Status last = removeWithRetries(attempt, m_pause);
}
