#include "services/trash/recyclebinlayout.h"

#include "model/units.h"
#include "platform/entrypath.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "services/trash/binaccess.h"
#include "services/trash/foldertree.h"
#include "services/trash/recyclebininfofile.h"

#include <QDebug>
#include <QMap>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;
using platform::pathInFolder;

namespace {
// A larger file cannot be an information file, because Windows has no paths of that length. A deleted folder
// may hold any file with such a name.
constexpr qint64 LargestInfoFile = 1 * MiB;

bool isInfoName(const QString &name)
{
    return name.startsWith("$I"_L1, Qt::CaseInsensitive);
}

// A data file is missing only when the system says that it does not exist. A file that cannot be queried is
// erased all the same.
void addDataFile(const QString &folder, const QString &name, RecycleBinItem &item)
{
    const QString path = pathInFolder(folder, name);
    const auto found = platform::Platform::current().files().info(path);
    if (found.status().isAbsent())
        return;
    item.recyclePath = path;
    if (item.fileName.isEmpty())
        item.fileName = name;
    if (!found)
        return;
    item.isDirectory = found.value().kind == platform::FileKind::Folder;
    if (item.size == 0 && !item.isDirectory)
        item.size = static_cast<quint64>(found.value().size);
}

// The data files directly in a bin for which no information file has been found yet.
class DataFiles
{
public:
    DataFiles(const QString &folder, QList<UnscannedBin> &unscanned)
        : m_folder(folder)
    {
        listBin(folder, unscanned, [this](const QString &name, platform::FileKind kind) {
            if (name.startsWith("$R"_L1, Qt::CaseInsensitive))
                m_left.insert(name, kind);
            return true;
        });
    }

    void take(const QString &name)
    {
        if (m_left.remove(name) > 0)
            return;
        // The file system ignores case: the entry has the same name in other letters.
        m_left.removeIf([&name](const std::pair<const QString &, platform::FileKind &> &entry) {
            return entry.first.compare(name, Qt::CaseInsensitive) == 0;
        });
    }

    QList<RecycleBinItem> left() const
    {
        QList<RecycleBinItem> items;
        for (auto entry = m_left.cbegin(); entry != m_left.cend(); ++entry) {
            RecycleBinItem item;
            item.fileName = entry.key();
            item.recyclePath = pathInFolder(m_folder, entry.key());
            item.isDirectory = entry.value() == platform::FileKind::Folder;
            if (item.isDirectory)
                item.size = sizeOfTree(item.recyclePath);
            else if (entry.value() == platform::FileKind::Regular)
                item.size = sizeOfFile(item.recyclePath);
            items.append(item);
        }
        return items;
    }

private:
    const QString m_folder;
    QMap<QString, platform::FileKind> m_left;
};

using NameTest = std::function<bool(const QString &name)>;

// The folders in the parent whose names are accepted, in the order listed. Links are left out.
QStringList foldersIn(const QString &parent, const NameTest &accept, QList<UnscannedBin> &unscanned)
{
    QStringList paths;
    listBin(parent, unscanned, [&](const QString &name, platform::FileKind kind) {
        const bool mayBeBin = kind == platform::FileKind::Folder || kind == platform::FileKind::Link;
        if (mayBeBin && accept(name))
            paths.append(pathInFolder(parent, name));
        return true;
    });
    paths.removeIf(
        [&unscanned](const QString &path) { return !mayEnterBin(path, BinOwner::Anybody, unscanned); });
    return paths;
}
} // namespace

std::optional<BinStop> RecycleBinLayout::homeBin(QList<UnscannedBin> & /*unscanned*/) const
{
    return std::nullopt;
}

void RecycleBinLayout::scanVolume(const QString &root, const QString &userId, RecycleBinInfo &found) const
{
    const QString shared = pathInFolder(root, u"$Recycle.Bin"_s);
    const QString bin = pathInFolder(shared, userId);
    if (mayEnterBin(shared, BinOwner::Anybody, found.unscanned) &&
        mayEnterBin(bin, BinOwner::User, found.unscanned))
        scanBin(bin, found);
}

platform::Status RecycleBinLayout::updateRecords(const RecycleBinInfo & /*erased*/) const
{
    return {};
}

// Some systems write the name of the bin in capitals, and some file systems with bins are case-sensitive.
QStringList RecycleBinLayout::binsIn(const QString &root, const QString &sid, QList<UnscannedBin> &unscanned)
{
    QStringList bins;
    const QStringList shared = foldersIn(
        root, [](const QString &name) { return name.compare("$Recycle.Bin"_L1, Qt::CaseInsensitive) == 0; },
        unscanned);
    const NameTest isWanted = [&sid](const QString &name) {
        return sid.isEmpty() ? name.startsWith("S-1-"_L1, Qt::CaseInsensitive)
                             : name.compare(sid, Qt::CaseInsensitive) == 0;
    };
    for (const QString &bin : shared)
        bins += foldersIn(bin, isWanted, unscanned);
    return bins;
}

void RecycleBinLayout::scanBin(const QString &folder, RecycleBinInfo &found)
{
    DataFiles data(folder, found.unscanned);
    forEachFileBelow(folder, [&](const QString &parent, const QString &name, platform::FileKind kind) {
        if (!isInfoName(name))
            return;
        const QString path = pathInFolder(parent, name);
        RecycleBinItem item;
        if (kind == platform::FileKind::Regular)
            item = readInfoFile(path);
        item.infoPath = path;
        const QString dataName = u"$R"_s + name.mid(2);
        addDataFile(parent, dataName, item);
        if (parent == folder && !item.recyclePath.isEmpty())
            data.take(dataName);
        found.add(item);
    });
    found.unrecorded += data.left();
}

RecycleBinItem RecycleBinLayout::readInfoFile(const QString &path)
{
    const auto contents = platform::Platform::current().files().readBeginning(path, LargestInfoFile);
    if (!contents) {
        qDebug() << "  Cannot open $I file:" << path;
        return {};
    }
    if (contents.value().size() < recyclebin::SmallestInfoFile) {
        qDebug() << "  $I file too small:" << contents.value().size();
        return {};
    }
    RecycleBinItem item = recyclebin::parseInfo(contents.value());
    qDebug() << "  Parsed $I:" << item.fileName << "size:" << item.size << "path:" << item.originalPath;
    return item;
}
