#include "services/trash/binrecords.h"
#include "services/trash/recyclebinscanner.h"
#include "services/trash/trashinfofile.h"
#include "services/trash/trashscan.h"
#include "services/trash/trashsizes.h"
#include "support/suite.h"

#include "platform/forwarding.h"
#include "support/fakedevices.h"
#include "support/linuxfaults.h"
#include "support/messagecapture.h"
#include "support/scopedvariable.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
const QString User = QString::number(::geteuid());

void setMode(const QString &path, mode_t mode)
{
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

QByteArray record(const QByteArray &path)
{
    return "[Trash Info]\nPath=" + path + "\nDeletionDate=2026-01-02T03:04:05\n";
}

// A Trash folder with the files that a file manager creates.
struct Trash
{
    QString folder;

    QString info(const QString &name) const { return folder + u"/info/"_s + name + u".trashinfo"_s; }
    QString file(const QString &name) const { return folder + u"/files/"_s + name; }
    void add(const QString &name, const QByteArray &path, const QByteArray &contents) const
    {
        writeFile(info(name), record(path));
        writeFile(file(name), contents);
    }
};

// Temporary folders act as drives and as the user's home; the files are real.
class Machine
{
public:
    Machine()
        : m_native(platform::createPlatform({}))
        , m_platform(m_native->files(), m_native->folders(), devices, m_session)
        , m_scope(m_platform)
    {
        m_session.user = User;
    }

    FakeDevices devices;

    QString path(const QString &name) const { return m_folder.path() + u'/' + name; }
    Trash home() const { return {path(u"data/Trash"_s)}; }
    QString mount(const QString &name)
    {
        QString root = path(name);
        [&root] { QVERIFY(QDir().mkpath(root)); }();
        devices.mount(FakeVolume::onDrives(root, {0}));
        return root;
    }
    static Trash own(const QString &root) { return {root + u"/.Trash-"_s + User}; }
    // Has the sticky bit, like one created by an administrator.
    static Trash shared(const QString &root)
    {
        Trash trash{root + u"/.Trash/"_s + User};
        [&] {
            QVERIFY(QDir().mkpath(trash.folder));
            setMode(root + u"/.Trash"_s, 01777);
        }();
        return trash;
    }

private:
    QTemporaryDir m_folder;
    ScopedVariable m_dataHome{"XDG_DATA_HOME", QFile::encodeName(path(u"data"_s))};
    std::unique_ptr<platform::Platform> m_native;
    FakeSession m_session;
    platform::ForwardingPlatform m_platform;
    platform::ScopedPlatform m_scope;
};

RecycleBinInfo scan()
{
    return RecycleBinScanner().scan();
}

// A result without items that reports these bins.
RecycleBinInfo onlyTold(const QList<UnscannedBin> &unscanned)
{
    RecycleBinInfo info;
    info.unscanned = unscanned;
    return info;
}

RecycleBinItem onlyItem()
{
    const RecycleBinInfo info = scan();
    return info.items.size() == 1 ? info.items.first() : RecycleBinItem();
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QStringList names(const RecycleBinInfo &info)
{
    QStringList names;
    for (const RecycleBinItem &item : info.items)
        names.append(item.fileName);
    return sorted(names);
}
} // namespace

class tst_TrashScan : public QObject
{
    Q_OBJECT

private slots:
    void recordedPaths_data();
    void recordedPaths();
    void anyRecordCanBeParsed();

    void anEmptyTrashGivesNothing();
    void anItemCarriesBothPaths();
    void aFolderHasTheSizeOfItsTree();
    void anEntryWithoutRecordIsListed();
    void aRecordWithoutEntryIsListed();
    void aDamagedRecordLeavesTheEntrysName_data();
    void aDamagedRecordLeavesTheEntrysName();
    void aPathThatLeadsOutIsOnlyText();
    void linksInTheTrashAreNotFollowed();
    void pipesAreListedAndNotOpened();
    void namesThatAreNotTextAreKept();
    void otherFilesBesideRecordsAreNoItems();

    void theHomeTrashIsFoundByItsVariable();
    void aHomeTrashThatIsALinkIsNotScanned();
    void linkedPartsAreNotScanned_data();
    void linkedPartsAreNotScanned();
    void bothFoldersOfAVolumeAreScanned();
    void pathsOnAVolumeAreRelativeToItsRoot();
    void aSharedFolderWithoutStickyBitIsNotScanned();
    void aSharedFolderThatIsALinkIsNotScanned();
    void aUsersFolderThatIsALinkIsNotScanned();
    void foldersOfOthersAreNotScanned();
    void aWindowsBinUnderAUsersNumberHasToBeHisOwn();
    void homeComesBeforeTheDrives();
    void volumesThatAreNotLocalAreSkipped();
    void noFailedCallHidesAnEntry_data();
    void noFailedCallHidesAnEntry();

    void whatIsGoneIsTakenOutOfTheSizes();
    void sizesWithoutGoneNamesStayUntouched();
    void theOldSizesAreOverwritten();
    void sizesThatCannotBeReplacedStay();
    void sizesThatAreALinkAreLeftAlone();
    void noSizesAreNoFailure();
    void anEmptiedTrashKeepsNoNames();
    void theFoldersOfAScanAreNamedOnce();
    void aFailureIsAnsweredAndTheOtherFoldersAreTidied();
};

void tst_TrashScan::recordedPaths_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << record("/users/ann/a.txt") << u"/users/ann/a.txt"_s;
    QTest::newRow("percent signs") << record("/a%20b%2Fc%C3%A9%25") << u"/a b/c\u00e9%"_s;
    QTest::newRow("plus is no blank") << record("/a+b") << u"/a+b"_s;
    QTest::newRow("not encoded") << record("/a b\xc3\xa9") << u"/a b\u00e9"_s;
    QTest::newRow("broken percent signs") << record("/a%") << u"/a%"_s;
    QTest::newRow("not UTF-8") << record("/a%E9") << u"/a"_s + QChar(0xDCE9);
    QTest::newRow("zero") << record("/a%00b") << u"/a"_s + QChar(u'\0') + u'b';
    QTest::newRow("upwards") << record("../../x") << u"../../x"_s;
    QTest::newRow("line ends of Windows") << QByteArray("[Trash Info]\r\nPath=/a\r\n") << u"/a"_s;
    QTest::newRow("the date first") << QByteArray("[Trash Info]\nDeletionDate=x\nPath=/a") << u"/a"_s;
    QTest::newRow("the first counts") << QByteArray("[Trash Info]\nPath=/a\nPath=/b\n") << u"/a"_s;
    QTest::newRow("blanks around the sign") << QByteArray("[Trash Info]\nPath = /a\n") << u"/a"_s;
    QTest::newRow("other group before") << QByteArray("[X]\nPath=/x\n[Trash Info]\nPath=/a\n") << u"/a"_s;
    QTest::newRow("only other group") << QByteArray("[X]\nPath=/x\n") << QString();
    QTest::newRow("behind the group") << QByteArray("[Trash Info]\n[X]\nPath=/x\n") << QString();
    QTest::newRow("no group") << QByteArray("Path=/x\n") << QString();
    QTest::newRow("other key") << QByteArray("[Trash Info]\nPaths=/x\nXPath=/x\npath=/x\n") << QString();
    QTest::newRow("no sign") << QByteArray("[Trash Info]\nPath\n") << QString();
    QTest::newRow("empty path") << record("") << QString();
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("zeros") << QByteArray(100, '\0') << QString();
}

void tst_TrashScan::recordedPaths()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, path);
    QCOMPARE(parseTrashInfo(contents), path);
}

void tst_TrashScan::anyRecordCanBeParsed()
{
    const quint32 seed = QRandomGenerator::system()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QByteArray valid = record("/users/ann/with%20blank");
    for (int round = 0; round < 20000; ++round) {
        QByteArray bytes = valid;
        for (int change = random.bounded(6); change > 0; --change) {
            const auto at = static_cast<qsizetype>(random.bounded(int(bytes.size())));
            if (random.bounded(2) == 0)
                bytes[at] = static_cast<char>(random.bounded(256));
            else
                bytes.remove(at, random.bounded(4));
        }
        const QString path = parseTrashInfo(bytes);
        // Decoding never lengthens a path, and there is no path without its key.
        QVERIFY(path.size() <= bytes.size());
        QVERIFY(path.isEmpty() || bytes.contains("Path"));
    }
}

void tst_TrashScan::anEmptyTrashGivesNothing()
{
    const Machine pc;
    QCOMPARE(scan(), RecycleBinInfo());
    QVERIFY(QDir().mkpath(pc.home().folder + u"/files"_s));
    QCOMPARE(scan(), RecycleBinInfo());
    QVERIFY(QDir().mkpath(pc.home().folder + u"/info"_s));
    QCOMPARE(scan(), RecycleBinInfo());
}

void tst_TrashScan::anItemCarriesBothPaths()
{
    const Machine pc;
    const Trash trash = pc.home();
    trash.add(u"letter.2.txt"_s, "/users/ann/my%20letter.txt", "12345");
    RecycleBinItem item;
    item.fileName = u"my letter.txt"_s;
    item.originalPath = u"/users/ann/my letter.txt"_s;
    item.infoPath = trash.info(u"letter.2.txt"_s);
    item.recyclePath = trash.file(u"letter.2.txt"_s);
    item.size = 5;
    RecycleBinInfo expected;
    expected.items = {item};
    expected.filePaths = {item.infoPath, item.recyclePath};
    expected.totalSize = 5;
    expected.fileCount = 1;
    expected.drives = {QDir::homePath()};
    QCOMPARE(scan(), expected);
}

void tst_TrashScan::aFolderHasTheSizeOfItsTree()
{
    const Machine pc;
    const Trash trash = pc.home();
    trash.add(u"photos/.a.jpg"_s, "unused", "12345");
    QVERIFY(QDir(trash.folder + u"/info"_s).removeRecursively());
    writeFile(trash.info(u"photos"_s), record("/users/ann/photos"));
    writeFile(trash.file(u"photos/b/c/d.jpg"_s), "1234567");
    writeFile(pc.path(u"outside.jpg"_s), QByteArray(1000, 'x'));
    QVERIFY(QFile::link(pc.path(u"outside.jpg"_s), trash.file(u"photos/b/link.jpg"_s)));
    const RecycleBinItem item = onlyItem();
    QCOMPARE(item.fileName, u"photos"_s);
    QVERIFY(item.isDirectory);
    QCOMPARE(item.size, quint64(12));
}

void tst_TrashScan::anEntryWithoutRecordIsListed()
{
    const Machine pc;
    writeFile(pc.home().file(u"alone.txt"_s), "123");
    RecycleBinItem item;
    item.fileName = u"alone.txt"_s;
    item.recyclePath = pc.home().file(u"alone.txt"_s);
    item.size = 3;
    QCOMPARE(onlyItem(), item);
    QCOMPARE(scan().filePaths, QStringList{item.recyclePath});
}

void tst_TrashScan::aRecordWithoutEntryIsListed()
{
    const Machine pc;
    writeFile(pc.home().info(u"gone.2"_s), record("/users/ann/gone"));
    RecycleBinItem item;
    item.fileName = u"gone"_s;
    item.originalPath = u"/users/ann/gone"_s;
    item.infoPath = pc.home().info(u"gone.2"_s);
    QCOMPARE(onlyItem(), item);
    QCOMPARE(scan().filePaths, QStringList{item.infoPath});
}

void tst_TrashScan::aDamagedRecordLeavesTheEntrysName_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << record("/users/ann/a").first(15);
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("large") << "[Trash Info]\n#" + QByteArray(1 << 20, 'x') + "\nPath=/users/ann/a\n";
}

void tst_TrashScan::aDamagedRecordLeavesTheEntrysName()
{
    QFETCH(QByteArray, contents);
    const Machine pc;
    const Trash trash = pc.home();
    writeFile(trash.info(u"a.3.txt"_s), contents);
    writeFile(trash.file(u"a.3.txt"_s), "123");
    const RecycleBinItem item = onlyItem();
    QCOMPARE(item.fileName, u"a.3.txt"_s);
    QCOMPARE(item.originalPath, QString());
    QCOMPARE(item.size, quint64(3));
    QCOMPARE(scan().filePaths, (QStringList{trash.info(u"a.3.txt"_s), trash.file(u"a.3.txt"_s)}));
}

void tst_TrashScan::aPathThatLeadsOutIsOnlyText()
{
    Machine pc;
    writeFile(pc.path(u"x"_s), "mine");
    const Trash trash = Machine::own(pc.mount(u"stick"_s));
    trash.add(u"x"_s, "../x", "12");
    const RecycleBinItem item = onlyItem();
    QCOMPARE(item.originalPath, pc.path(u"stick/../x"_s));
    QCOMPARE(item.fileName, u"x"_s);
    QCOMPARE(item.recyclePath, trash.file(u"x"_s));
    QCOMPARE(scan().filePaths, (QStringList{trash.info(u"x"_s), trash.file(u"x"_s)}));
}

void tst_TrashScan::linksInTheTrashAreNotFollowed()
{
    const Machine pc;
    const Trash trash = pc.home();
    writeFile(pc.path(u"outside/mine.txt"_s), "12345");
    writeFile(pc.path(u"outside/record"_s), record("/users/ann/secret"));
    trash.add(u"plain"_s, "/users/ann/plain", "1");
    QVERIFY(QFile::link(pc.path(u"outside"_s), trash.file(u"link"_s)));
    QVERIFY(QFile::link(pc.path(u"outside/record"_s), trash.info(u"link"_s)));
    const RecycleBinInfo info = scan();
    QCOMPARE(names(info), (QStringList{u"link"_s, u"plain"_s}));
    QCOMPARE(info.totalSize, quint64(1));
    for (const RecycleBinItem &item : info.items) {
        QVERIFY(!item.isDirectory);
        QVERIFY(!item.originalPath.contains(u"secret"_s));
    }
    for (const QString &path : info.filePaths)
        QVERIFY(path.startsWith(trash.folder));
}

void tst_TrashScan::pipesAreListedAndNotOpened()
{
    const Machine pc;
    const Trash trash = pc.home();
    QVERIFY(QDir().mkpath(trash.folder + u"/files"_s));
    QVERIFY(QDir().mkpath(trash.folder + u"/info"_s));
    for (const QString &path : {trash.file(u"pipe"_s), trash.info(u"pipe"_s)})
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    const RecycleBinItem item = onlyItem();
    QCOMPARE(item.fileName, u"pipe"_s);
    QCOMPARE(item.size, quint64(0));
    QCOMPARE(item.infoPath, trash.info(u"pipe"_s));
}

void tst_TrashScan::namesThatAreNotTextAreKept()
{
    const Machine pc;
    const Trash trash = pc.home();
    trash.add(u"a"_s, "/users/ann/caf%E9", "12345");
    const QByteArray folder = QFile::encodeName(trash.folder);
    QCOMPARE(::rename(folder + "/files/a", folder + "/files/caf\xe9"), 0);
    QCOMPARE(::rename(folder + "/info/a.trashinfo", folder + "/info/caf\xe9.trashinfo"), 0);
    const QString name = u"caf"_s + QChar(0xDCE9);
    const RecycleBinItem item = onlyItem();
    QCOMPARE(item.fileName, name);
    QCOMPARE(item.originalPath, u"/users/ann/"_s + name);
    QCOMPARE(item.recyclePath, trash.file(name));
    QCOMPARE(item.size, quint64(5));
    // The path still leads to the file.
    QVERIFY(platform::Platform::current().files().info(item.recyclePath).ok());
    QVERIFY(platform::Platform::current().folders().removeTree(trash.folder).ok()); // QDir cannot
}

void tst_TrashScan::otherFilesBesideRecordsAreNoItems()
{
    const Machine pc;
    const Trash trash = pc.home();
    trash.add(u"a"_s, "/users/ann/a", "1");
    writeFile(trash.folder + u"/info/note.txt"_s, "x");
    writeFile(trash.folder + u"/directorysizes"_s, "x");
    QVERIFY(QDir().mkpath(trash.info(u"folder"_s)));
    QCOMPARE(names(scan()), QStringList{u"a"_s});
}

void tst_TrashScan::theHomeTrashIsFoundByItsVariable()
{
    const Machine pc;
    QList<UnscannedBin> unscanned;
    QCOMPARE(homeTrashFolder(unscanned), std::nullopt);
    QVERIFY(QDir().mkpath(pc.home().folder));
    const TrashFolder inVariable{pc.home().folder, QDir::homePath(), {}};
    QCOMPARE(homeTrashFolder(unscanned), std::optional(inVariable));

    const ScopedVariable home("HOME", QFile::encodeName(pc.path(u"ann"_s)));
    const QString byDefault = pc.path(u"ann/.local/share/Trash"_s);
    QVERIFY(QDir().mkpath(byDefault));
    QList<std::optional<TrashFolder>> found;
    for (const char *value : {"", "relative"}) {
        const ScopedVariable dataHome("XDG_DATA_HOME", value);
        found.append(homeTrashFolder(unscanned));
    }
    const TrashFolder inHome{byDefault, pc.path(u"ann"_s), {}};
    QCOMPARE(found, (QList{std::optional(inHome), std::optional(inHome)}));
    QCOMPARE(unscanned, QList<UnscannedBin>());
}

void tst_TrashScan::aHomeTrashThatIsALinkIsNotScanned()
{
    const Machine pc;
    const Trash elsewhere{pc.path(u"elsewhere"_s)};
    elsewhere.add(u"a"_s, "/users/ann/a", "1");
    QVERIFY(QDir().mkpath(pc.path(u"data"_s)));
    QVERIFY(QFile::link(elsewhere.folder, pc.home().folder));
    QCOMPARE(scan(), onlyTold({{pc.home().folder, UnscannedBin::Reason::Link}}));
}

void tst_TrashScan::linkedPartsAreNotScanned_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("files") << u"files"_s << QStringList{u"/users/ann/a"_s};
    QTest::newRow("info") << u"info"_s << QStringList{QString()};
}

void tst_TrashScan::linkedPartsAreNotScanned()
{
    QFETCH(QString, part);
    QFETCH(QStringList, left);
    const Machine pc;
    const Trash trash = pc.home();
    trash.add(u"a"_s, "/users/ann/a", "1");
    const QString elsewhere = pc.path(u"elsewhere"_s);
    QVERIFY(QDir().rename(trash.folder + u'/' + part, elsewhere));
    QVERIFY(QFile::link(elsewhere, trash.folder + u'/' + part));
    const RecycleBinInfo info = scan();
    QStringList paths;
    for (const RecycleBinItem &item : info.items)
        paths.append(item.originalPath);
    QCOMPARE(paths, left);
    QCOMPARE(info.filePaths.size(), 1);
    QVERIFY(!info.filePaths.first().contains(u'/' + part + u'/'));
    QCOMPARE(info.unscanned, (QList<UnscannedBin>{{trash.folder + u'/' + part, UnscannedBin::Reason::Link}}));
}

void tst_TrashScan::bothFoldersOfAVolumeAreScanned()
{
    Machine pc;
    const QString root = pc.mount(u"stick"_s);
    Machine::shared(root).add(u"a"_s, "a", "1");
    Machine::own(root).add(u"b"_s, "b", "22");
    // Trash folders of other users.
    Trash{root + u"/.Trash/4711"_s}.add(u"c"_s, "c", "333");
    Trash{root + u"/.Trash-4711"_s}.add(u"d"_s, "d", "4444");
    const RecycleBinInfo info = scan();
    QCOMPARE(names(info), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(info.totalSize, quint64(3));
    QCOMPARE(info.drives, QStringList{root});
    QCOMPARE(info.items.first().fileName, u"a"_s);
}

void tst_TrashScan::pathsOnAVolumeAreRelativeToItsRoot()
{
    Machine pc;
    const QString root = pc.mount(u"stick"_s);
    const Trash trash = Machine::own(root);
    trash.add(u"a"_s, "docs/a.txt", "1");
    QCOMPARE(onlyItem().originalPath, root + u"/docs/a.txt"_s);
    writeFile(trash.info(u"a"_s), record("/elsewhere/a.txt"));
    QCOMPARE(onlyItem().originalPath, u"/elsewhere/a.txt"_s);
}

void tst_TrashScan::aSharedFolderWithoutStickyBitIsNotScanned()
{
    Machine pc;
    const QString root = pc.mount(u"stick"_s);
    Machine::shared(root).add(u"a"_s, "a", "1");
    QCOMPARE(scan().fileCount, 1);
    setMode(root + u"/.Trash"_s, 0777);
    QCOMPARE(scan(), RecycleBinInfo());
}

void tst_TrashScan::aSharedFolderThatIsALinkIsNotScanned()
{
    Machine pc;
    const QString root = pc.mount(u"stick"_s);
    const QString elsewhere = pc.path(u"elsewhere"_s);
    Machine::shared(elsewhere).add(u"a"_s, "a", "1");
    QVERIFY(QFile::link(elsewhere + u"/.Trash"_s, root + u"/.Trash"_s));
    QCOMPARE(scan(), onlyTold({{root + u"/.Trash"_s, UnscannedBin::Reason::Link}}));
}

void tst_TrashScan::aUsersFolderThatIsALinkIsNotScanned()
{
    Machine pc;
    const QString root = pc.mount(u"stick"_s);
    const Trash elsewhere{pc.path(u"elsewhere"_s)};
    elsewhere.add(u"a"_s, "a", "1");
    const Trash shared = Machine::shared(root);
    QVERIFY(QDir().rmdir(shared.folder));
    QVERIFY(QFile::link(elsewhere.folder, shared.folder));
    QVERIFY(QFile::link(elsewhere.folder, Machine::own(root).folder));
    QCOMPARE(scan(), onlyTold({{shared.folder, UnscannedBin::Reason::Link},
                               {Machine::own(root).folder, UnscannedBin::Reason::Link}}));
}

void tst_TrashScan::foldersOfOthersAreNotScanned()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root can give a folder away");
    Machine pc;
    const QString root = pc.mount(u"stick"_s);
    const Trash shared = Machine::shared(root);
    shared.add(u"a"_s, "a", "1");
    const Trash own = Machine::own(root);
    own.add(u"b"_s, "b", "1");
    QCOMPARE(scan().fileCount, 2);
    for (const Trash &trash : {shared, own})
        QCOMPARE(::chown(QFile::encodeName(trash.folder).constData(), 4711, 4711), 0);
    QCOMPARE(scan(), onlyTold({{shared.folder, UnscannedBin::Reason::NotOwn},
                               {own.folder, UnscannedBin::Reason::NotOwn}}));
}

void tst_TrashScan::aWindowsBinUnderAUsersNumberHasToBeHisOwn()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root can give a folder away");
    Machine pc;
    const QString bin = pc.mount(u"stick"_s) + u"/$Recycle.Bin/"_s + User;
    writeFile(bin + u"/$R1"_s, "1");
    QCOMPARE(scan().doomedPaths(), QStringList{bin + u"/$R1"_s});
    QCOMPARE(::chown(QFile::encodeName(bin).constData(), 4711, 4711), 0);
    QCOMPARE(scan(), onlyTold({{bin, UnscannedBin::Reason::NotOwn}}));
}

void tst_TrashScan::homeComesBeforeTheDrives()
{
    Machine pc;
    const QString root = pc.mount(u"stick"_s);
    Machine::own(root).add(u"a"_s, "a", "1");
    pc.home().add(u"b"_s, "/users/ann/b", "1");
    QStringList announced;
    const RecycleBinInfo info = RecycleBinScanner().scan([&](const QString &drive, int index, int count) {
        announced.append(u"%1 %2/%3"_s.arg(drive).arg(index).arg(count));
    });
    QCOMPARE(announced, (QStringList{QDir::homePath() + u" 0/2"_s, root + u" 1/2"_s}));
    QCOMPARE(info.drives, (QStringList{QDir::homePath(), root}));
    QCOMPARE(info.items.first().fileName, u"b"_s);
}

void tst_TrashScan::volumesThatAreNotLocalAreSkipped()
{
    Machine pc;
    const QString root = pc.mount(u"stick"_s);
    Machine::own(root).add(u"a"_s, "a", "1");
    pc.devices.volumes[root].mounted.isLocal = false;
    QCOMPARE(scan(), RecycleBinInfo());
}

void tst_TrashScan::noFailedCallHidesAnEntry_data()
{
    QTest::addColumn<int>("error");
    QTest::newRow("EIO") << EIO;
    QTest::newRow("EACCES") << EACCES;
    QTest::newRow("ENOMEM") << ENOMEM;
}

// A scan whose Nth system call fails finds everything all the same, or names the bin that it could not read.
void tst_TrashScan::noFailedCallHidesAnEntry()
{
    QFETCH(const int, error);
    Machine pc;
    const QString volume = pc.mount(u"stick"_s);
    for (const Trash &trash : {pc.home(), Machine::own(volume), Machine::shared(volume)}) {
        trash.add(u"a.txt"_s, "/users/ann/a.txt", "12345");
        writeFile(trash.file(u"alone/b.txt"_s), "123");
        writeFile(trash.info(u"gone"_s), record("/users/ann/gone"));
    }
    const QStringList all = scan().doomedPaths();
    QCOMPARE(all.size(), 12);
    LinuxFaults faults;
    int told = 0;
    for (int nth = 1;; ++nth) {
        faults.fail(LinuxFaults::AnyCall, nth, error);
        const RecycleBinInfo found = scan();
        const int fired = faults.fired();
        faults.failNothing();
        const QStringList doomed = found.doomedPaths();
        const auto isFound = [&doomed](const QString &path) { return doomed.contains(path); };
        const bool isWhole = std::all_of(all.cbegin(), all.cend(), isFound);
        const QByteArray which = "call " + QByteArray::number(nth);
        QVERIFY2(isWhole || !found.unscanned.isEmpty(), which.constData());
        for (const QString &path : doomed)
            QVERIFY2(all.contains(path), qPrintable(path));
        told += found.unscanned.isEmpty() ? 0 : 1;
        if (fired == 0) {
            qInfo("%d calls failed in their turn", nth - 1);
            QVERIFY(isWhole);
            QVERIFY(found.unscanned.isEmpty());
            break;
        }
    }
    QVERIFY2(told > 5, qPrintable(QString::number(told)));
}

void tst_TrashScan::whatIsGoneIsTakenOutOfTheSizes()
{
    const Machine pc;
    const QString folder = pc.home().folder;
    const QString sizes = folder + u"/directorysizes"_s;
    writeFile(sizes, "100 1700000000000 still%20here\n"
                     "200 1700000000000 gone\n"
                     "300 1700000000000 a%20file\n"
                     "nonsense\n"
                     "400 1700000000000 ..%2Ffiles\n"
                     "500 1700000000000 caf%C3%A9\n");
    QVERIFY(QDir().mkpath(pc.home().file(u"still here"_s)));
    QVERIFY(QDir().mkpath(pc.home().file(u"caf\u00e9"_s)));
    writeFile(pc.home().file(u"a file"_s), "1");
    QVERIFY(pruneDirectorySizes(folder).ok());
    QCOMPARE(contentOf(sizes), QByteArray("100 1700000000000 still%20here\n500 1700000000000 caf%C3%A9\n"));
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             (QStringList{u"directorysizes"_s, u"files"_s}));
}

void tst_TrashScan::sizesWithoutGoneNamesStayUntouched()
{
    const Machine pc;
    const QString sizes = pc.home().folder + u"/directorysizes"_s;
    writeFile(sizes, "100 1700000000000 here\n");
    QVERIFY(QDir().mkpath(pc.home().file(u"here"_s)));
    struct stat before = {};
    struct stat after = {};
    QCOMPARE(::stat(QFile::encodeName(sizes).constData(), &before), 0);
    QVERIFY(pruneDirectorySizes(pc.home().folder).ok());
    QCOMPARE(::stat(QFile::encodeName(sizes).constData(), &after), 0);
    QCOMPARE(after.st_ino, before.st_ino);
}

void tst_TrashScan::theOldSizesAreOverwritten()
{
    const Machine pc;
    const QString sizes = pc.home().folder + u"/directorysizes"_s;
    QByteArray contents;
    for (int i = 0; i < 30000; ++i)
        contents += "100 1700000000000 secret%20folder\n";
    writeFile(sizes, contents);
    const int old = ::open(QFile::encodeName(sizes).constData(), O_RDONLY | O_CLOEXEC);
    QVERIFY(old >= 0);
    const bool pruned = pruneDirectorySizes(pc.home().folder).ok();
    QByteArray left(contents.size() + 1, 'x');
    const ssize_t count = ::read(old, left.data(), static_cast<size_t>(left.size()));
    ::close(old);
    QVERIFY(pruned);
    QCOMPARE(qint64(count), contents.size());
    QCOMPARE(left.first(count), QByteArray(count, '\0'));
    QCOMPARE(contentOf(sizes), QByteArray());
}

void tst_TrashScan::sizesThatCannotBeReplacedStay()
{
    class NoRename : public platform::ForwardingFiles
    {
    public:
        using ForwardingFiles::ForwardingFiles;
        platform::Status rename(const platform::EntryPath &, const platform::EntryPath &) override
        {
            return {platform::AccessDenied, 0, "rename"};
        }
    };
    const Machine pc;
    const QString folder = pc.home().folder;
    writeFile(folder + u"/directorysizes"_s, "100 1700000000000 gone\n");
    platform::Platform &native = platform::Platform::current();
    NoRename files(native.files());
    platform::ForwardingPlatform refusing(files, native.folders(), native.devices(), native.session());
    const platform::ScopedPlatform scope(refusing);
    QCOMPARE(pruneDirectorySizes(folder).code, quint32(platform::AccessDenied));
    QCOMPARE(contentOf(folder + u"/directorysizes"_s), QByteArray("100 1700000000000 gone\n"));
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList{u"directorysizes"_s});
}

void tst_TrashScan::sizesThatAreALinkAreLeftAlone()
{
    const Machine pc;
    const QString folder = pc.home().folder;
    QVERIFY(QDir().mkpath(folder));
    writeFile(pc.path(u"mine"_s), "100 1700000000000 gone\n");
    QVERIFY(QFile::link(pc.path(u"mine"_s), folder + u"/directorysizes"_s));
    QVERIFY(!pruneDirectorySizes(folder).ok());
    QCOMPARE(contentOf(pc.path(u"mine"_s)), QByteArray("100 1700000000000 gone\n"));
}

void tst_TrashScan::noSizesAreNoFailure()
{
    const Machine pc;
    QVERIFY(QDir().mkpath(pc.home().folder));
    QVERIFY(pruneDirectorySizes(pc.home().folder).ok());
    QVERIFY(QDir(pc.home().folder).isEmpty());
}

void tst_TrashScan::anEmptiedTrashKeepsNoNames()
{
    const Machine pc;
    writeFile(pc.home().folder + u"/directorysizes"_s, "100 1700000000000 gone");
    QVERIFY(pruneDirectorySizes(pc.home().folder).ok());
    QCOMPARE(contentOf(pc.home().folder + u"/directorysizes"_s), QByteArray());
}

void tst_TrashScan::theFoldersOfAScanAreNamedOnce()
{
    Machine pc;
    const Trash stick = Machine::own(pc.mount(u"stick"_s));
    pc.home().add(u"a"_s, "/users/ann/a", "1");
    pc.home().add(u"b"_s, "/users/ann/b", "1");
    writeFile(stick.file(u"c"_s), "1");
    writeFile(pc.path(u"stick/$Recycle.Bin/"_s) + User + u"/$I1"_s, QByteArray(28, '\0'));
    const RecycleBinInfo info = scan();
    QCOMPARE(info.fileCount, 4);
    QCOMPARE(trashFoldersOf(info), (QStringList{pc.home().folder, stick.folder}));
}

void tst_TrashScan::aFailureIsAnsweredAndTheOtherFoldersAreTidied()
{
    Machine pc;
    const Trash stick = Machine::own(pc.mount(u"stick"_s));
    pc.home().add(u"a"_s, "/users/ann/a", "1");
    stick.add(u"b"_s, "b", "1");
    const QByteArray sizes("100 1700000000000 gone\n");
    writeFile(pc.path(u"mine"_s), sizes);
    QVERIFY(QFile::link(pc.path(u"mine"_s), pc.home().folder + u"/directorysizes"_s));
    writeFile(stick.folder + u"/directorysizes"_s, sizes);
    const RecycleBinInfo info = scan();
    QCOMPARE(trashFoldersOf(info), (QStringList{pc.home().folder, stick.folder}));
    const platform::Status expected = pruneDirectorySizes(pc.home().folder);
    QVERIFY(!expected.ok());
    QCOMPARE(updateBinRecords(info).code, expected.code);
    QCOMPARE(contentOf(stick.folder + u"/directorysizes"_s), QByteArray());
}

QUORVEX_SUITE(tst_TrashScan, QCoreApplication)
#include "tst_trashscan.moc"
