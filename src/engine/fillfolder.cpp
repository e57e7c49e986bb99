#include "engine/fillfolder.h"

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDebug>
#include <QUuid>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace fillfolder {

namespace {

constexpr QLatin1String FolderPrefix{".quorvex_temp_"};
constexpr int FolderDigits = 8;
constexpr QLatin1String FilePrefix{"fill_"};
constexpr QLatin1String FileSuffix{".tmp"};
constexpr int FileDigits = 6;

bool isDecimal(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isLowerHex(QChar c)
{
    return isDecimal(c) || (c >= u'a' && c <= u'f');
}

// Entries of one kind whose names pass the test. A listing that fails half-way gives what it showed before.
template <typename Test>
QStringList entries(const QString &folder, platform::FileKind wanted, Test isWanted)
{
    QStringList names;
    const platform::Status listed = platform::Platform::current().folders().forEachEntry(
        folder, [&](const QString &name, platform::FileKind kind) {
            if (kind == wanted && isWanted(name))
                names.append(name);
            return true;
        });
    if (!listed)
        qDebug().noquote() << "[FreeSpaceWipe] left-overs in" << folder << listed.diagnostic();
    return names;
}

// The bytes that went with the files, nothing when there was no file to remove.
std::optional<qint64> removeFillFilesIn(const QString &folder)
{
    platform::Files &files = platform::Platform::current().files();
    std::optional<qint64> bytes;
    for (const QString &name : entries(folder, platform::FileKind::Regular, isFileName)) {
        const QString path = folder + u'/' + name;
        const auto info = files.info(path);
        if (const platform::Status removed = files.remove(path); !removed) {
            qDebug().noquote() << "[FreeSpaceWipe] left-over" << path << removed.diagnostic();
            continue;
        }
        // A further name keeps the space.
        const bool freesSpace = info && info.value().linkCount == 1;
        bytes = bytes.value_or(0) + (freesSpace ? info.value().size : 0);
    }
    return bytes;
}

} // namespace

QString newName()
{
    return FolderPrefix + QUuid::createUuid().toString(QUuid::WithoutBraces).left(FolderDigits);
}

bool isName(QStringView name)
{
    if (!name.startsWith(FolderPrefix) || name.size() != FolderPrefix.size() + FolderDigits)
        return false;
    const QStringView digits = name.sliced(FolderPrefix.size());
    return std::all_of(digits.begin(), digits.end(), isLowerHex);
}

QString fileName(int index)
{
    return FilePrefix + u"%1"_s.arg(index, FileDigits, 10, QLatin1Char('0')) + FileSuffix;
}

bool isFileName(QStringView name)
{
    if (!name.startsWith(FilePrefix) || !name.endsWith(FileSuffix) ||
        name.size() != FilePrefix.size() + FileDigits + FileSuffix.size())
        return false;
    const QStringView digits = name.sliced(FilePrefix.size(), FileDigits);
    return std::all_of(digits.begin(), digits.end(), isDecimal);
}

LeftOvers removeLeftOvers(const QString &root)
{
    LeftOvers leftOvers;
    for (const QString &name : entries(root, platform::FileKind::Folder, isName)) {
        const QString folder = root + name;
        if (const auto bytes = removeFillFilesIn(folder)) {
            leftOvers.folders.append(folder);
            leftOvers.bytes += *bytes;
        }
        if (const platform::Status status = platform::Platform::current().folders().removeEmpty(folder);
            !status)
            qDebug().noquote() << "[FreeSpaceWipe] left-over" << folder << status.diagnostic();
    }
    return leftOvers;
}

} // namespace fillfolder
