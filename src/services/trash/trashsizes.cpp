#include "services/trash/trashsizes.h"

#include "model/units.h"
#include "platform/entrypath.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"
#include "services/trash/foldertree.h"

#include <QByteArray>
#include <QRandomGenerator>
#include <QSet>

#include <memory>

using namespace Qt::StringLiterals;
using platform::pathInFolder;

namespace {
// A line for each deleted folder. Longer contents are cut; the desktop computes the missing sizes again.
constexpr qint64 LargestRecord = 64 * MiB;

platform::Files &files()
{
    return platform::Platform::current().files();
}

// A line is "<bytes> <time> <name>", the name percent-encoded.
QByteArray nameIn(const QByteArray &line)
{
    const qsizetype time = line.indexOf(' ') + 1;
    const qsizetype name = time > 0 ? line.indexOf(' ', time) + 1 : 0;
    return name > 0 ? QByteArray::fromPercentEncoding(line.sliced(name)) : QByteArray();
}

QByteArray remaining(const QByteArray &record, const QSet<QString> &present)
{
    QByteArray kept;
    const QList<QByteArray> lines = record.split('\n');
    for (const QByteArray &line : lines) {
        if (present.contains(platform::decodeName(nameIn(line))))
            kept += line + '\n';
    }
    return kept;
}

platform::Result<QSet<QString>> foldersIn(const QString &folder)
{
    QSet<QString> names;
    const platform::Status seen = platform::Platform::current().folders().forEachEntry(
        folder, [&names](const QString &name, platform::FileKind kind) {
            if (kind == platform::FileKind::Folder)
                names.insert(name);
            return true;
        });
    if (!seen && !seen.isAbsent())
        return seen;
    return names;
}

platform::Status writeAll(platform::FileHandle &file, const QByteArray &bytes)
{
    const auto written = file.write(bytes.constData(), bytes.size());
    if (!written)
        return written.status();
    if (written.value() != bytes.size())
        return {platform::DiskFull, 0, "write"};
    return file.flush();
}

platform::Status writeNew(const QString &path, const QByteArray &bytes)
{
    const auto file = files().open(path, platform::OpenMode::CreateFill);
    return file ? writeAll(*file.value(), bytes) : file.status();
}

platform::Status overwrite(platform::FileHandle &file, qint64 size)
{
    const QByteArray zeros(MiB, '\0');
    for (qint64 done = 0; done < size; done += zeros.size()) {
        const auto piece = static_cast<qsizetype>(qMin<qint64>(zeros.size(), size - done));
        const platform::Status written = writeAll(file, zeros.first(piece));
        if (!written)
            return written;
    }
    return {};
}

// The old file is opened before the new one replaces it, because no name leads to it afterwards. A file with
// a second hard link is not overwritten: that name may belong to another user.
platform::Status exchange(const QString &path, const QByteArray &contents, const platform::FileInfo &before)
{
    const auto old = files().open(path, platform::OpenMode::Overwrite);
    const QString next =
        path + u".quorvex_"_s + QString::number(QRandomGenerator::system()->generate64(), 16);
    platform::Status status = writeNew(next, contents);
    if (status)
        status = files().rename(next, path);
    if (!status) {
        // The first failure is returned, even if this one fails too.
        static_cast<void>(files().remove(next));
        return status;
    }
    if (!old)
        return old.status();
    return before.linkCount == 1 ? overwrite(*old.value(), before.size) : platform::Status{};
}
} // namespace

QStringList trashFoldersOf(const RecycleBinInfo &info)
{
    QStringList folders;
    QSet<QString> seen;
    for (const RecycleBinItem &item : info.items) {
        const QString &path = item.infoPath.isEmpty() ? item.recyclePath : item.infoPath;
        const QString inner = path.left(path.lastIndexOf(u'/'));
        if (!inner.endsWith("/files"_L1) && !inner.endsWith("/info"_L1))
            continue;
        const QString folder = inner.left(inner.lastIndexOf(u'/'));
        if (seen.contains(folder))
            continue;
        seen.insert(folder);
        folders.append(folder);
    }
    return folders;
}

platform::Status pruneDirectorySizes(const QString &trashFolder)
{
    const QString path = pathInFolder(trashFolder, u"directorysizes"_s);
    const auto found = files().info(path);
    if (!found)
        return found.status().isAbsent() ? platform::Status{} : found.status();
    const auto record = platform::Platform::current().files().readBeginning(path, LargestRecord);
    if (!record)
        return record.status();
    const auto present = foldersIn(pathInFolder(trashFolder, u"files"_s));
    if (!present)
        return present.status();
    const QByteArray kept = remaining(record.value(), present.value());
    if (kept == record.value())
        return {};
    return exchange(path, kept, found.value());
}
