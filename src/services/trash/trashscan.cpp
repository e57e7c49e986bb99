#include "services/trash/trashscan.h"

#include "model/units.h"
#include "platform/entrypath.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"
#include "services/trash/binaccess.h"
#include "services/trash/foldertree.h"
#include "services/trash/trashinfofile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QHash>

using namespace Qt::StringLiterals;
using platform::pathInFolder;

namespace {
// Three characters for each byte of the longest path, and room for the other fields.
constexpr qint64 LargestTrashInfo = 64 * KiB;

constexpr auto InfoSuffix = ".trashinfo"_L1;

struct Entry
{
    QString name;
    platform::FileKind kind = platform::FileKind::Regular;
};

QList<Entry> entriesOf(const QString &folder, QList<UnscannedBin> &unscanned)
{
    QList<Entry> entries;
    if (!mayEnterBin(folder, BinOwner::Anybody, unscanned))
        return entries;
    listBin(folder, unscanned, [&entries](const QString &name, platform::FileKind kind) {
        entries.append({name, kind});
        return true;
    });
    return entries;
}

QString lastComponent(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

class Scan
{
public:
    Scan(const TrashFolder &trash, RecycleBinInfo &found)
        : m_top(trash.top)
        , m_files(pathInFolder(trash.folder, u"files"_s))
        , m_info(pathInFolder(trash.folder, u"info"_s))
        , m_found(found)
    {}

    void run()
    {
        const QList<Entry> entries = entriesOf(m_files, m_found.unscanned);
        for (const Entry &entry : entries)
            m_unrecorded.insert(entry.name, entry.kind);
        const QList<Entry> records = entriesOf(m_info, m_found.unscanned);
        for (const Entry &record : records) {
            if (record.kind != platform::FileKind::Folder && record.name.endsWith(InfoSuffix))
                addRecorded(record);
        }
        for (const Entry &entry : entries) {
            if (m_unrecorded.contains(entry.name))
                addUnrecorded(entry);
        }
    }

private:
    void addRecorded(const Entry &record)
    {
        RecycleBinItem item;
        item.infoPath = pathInFolder(m_info, record.name);
        item.originalPath = recordedPath(item.infoPath);
        item.fileName = lastComponent(item.originalPath);
        const QString name = record.name.chopped(InfoSuffix.size());
        const auto entry = m_unrecorded.constFind(name);
        if (entry != m_unrecorded.cend()) {
            describe({name, *entry}, item);
            m_unrecorded.erase(entry);
        } else if (item.fileName.isEmpty()) {
            item.fileName = name;
        }
        m_found.add(item);
    }

    void addUnrecorded(const Entry &entry)
    {
        RecycleBinItem item;
        describe(entry, item);
        m_found.add(item);
    }

    void describe(const Entry &entry, RecycleBinItem &item) const
    {
        item.recyclePath = pathInFolder(m_files, entry.name);
        item.isDirectory = entry.kind == platform::FileKind::Folder;
        if (item.fileName.isEmpty())
            item.fileName = entry.name;
        if (item.isDirectory)
            item.size = sizeOfTree(item.recyclePath);
        else if (entry.kind == platform::FileKind::Regular)
            item.size = sizeOfFile(item.recyclePath);
    }

    QString recordedPath(const QString &infoPath) const
    {
        const auto contents = platform::Platform::current().files().readBeginning(infoPath, LargestTrashInfo);
        if (!contents) {
            qDebug() << "  Cannot open .trashinfo file:" << infoPath << contents.status().diagnostic();
            return {};
        }
        const QString path = parseTrashInfo(contents.value());
        if (path.isEmpty())
            qDebug() << "  No path in .trashinfo file:" << infoPath;
        return path.isEmpty() || path.startsWith(u'/') || m_top.isEmpty() ? path : pathInFolder(m_top, path);
    }

    const QString m_top;
    const QString m_files;
    const QString m_info;
    RecycleBinInfo &m_found;
    QHash<QString, platform::FileKind> m_unrecorded; // entries without a record so far
};

bool isSticky(const QString &folder, QList<UnscannedBin> &unscanned)
{
    const auto owner = platform::Platform::current().folders().owner(folder);
    if (!owner && owner.code() != platform::NotSupported)
        unscanned.append({folder, UnscannedBin::Reason::Unreadable, owner.code()});
    return owner && owner.value().isSticky;
}
} // namespace

std::optional<TrashFolder> homeTrashFolder(QList<UnscannedBin> &unscanned)
{
    QString data = QFile::decodeName(qgetenv("XDG_DATA_HOME"));
    // A relative path would mean another folder for every program.
    if (!data.startsWith(u'/'))
        data = QDir::homePath() + u"/.local/share"_s;
    TrashFolder trash{pathInFolder(data, u"Trash"_s), QDir::homePath(), {}};
    return mayEnterBin(trash.folder, BinOwner::Anybody, unscanned) ? std::optional(trash) : std::nullopt;
}

QList<TrashFolder> trashFoldersOfVolume(const QString &root, const QString &userId,
                                        QList<UnscannedBin> &unscanned)
{
    QList<TrashFolder> folders;
    const QString shared = pathInFolder(root, u".Trash"_s);
    const QString inShared = pathInFolder(shared, userId);
    if (mayEnterBin(shared, BinOwner::Anybody, unscanned) && isSticky(shared, unscanned) &&
        mayEnterBin(inShared, BinOwner::User, unscanned))
        folders.append({inShared, root, root});
    const QString ofUser = pathInFolder(root, u".Trash-"_s + userId);
    if (mayEnterBin(ofUser, BinOwner::User, unscanned))
        folders.append({ofUser, root, root});
    return folders;
}

void scanTrash(const TrashFolder &trash, RecycleBinInfo &found)
{
    Scan(trash, found).run();
}
