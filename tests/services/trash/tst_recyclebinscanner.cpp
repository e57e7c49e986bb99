#include "services/trash/recyclebinscanner.h"
#include "support/suite.h"

#include "platform/forwarding.h"
#include "support/fakedevices.h"
#include "support/infofiles.h"
#include "support/links.h"
#include "support/messagecapture.h"
#include "support/scopedvariable.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

using namespace Qt::StringLiterals;

namespace {
const QString Ann = u"S-1-5-21-1-2-3-1001"_s;
const QString Ben = u"S-1-5-21-1-2-3-1002"_s;

// The real folders, with one that cannot be listed, one of another owner and one of unknown owner.
class Folders : public platform::ForwardingFolders
{
public:
    using ForwardingFolders::ForwardingFolders;

    platform::Status forEachEntry(const platform::EntryPath &folder, const Visitor &visit) override
    {
        if (!unreadable.isEmpty() && folder.path() == unreadable)
            return {platform::AccessDenied, 0, "list"};
        return ForwardingFolders::forEachEntry(folder, visit);
    }
    platform::Result<platform::FolderOwner> owner(const QString &folder) override
    {
        if (!ownerless.isEmpty() && folder == ownerless)
            return platform::Status{platform::AccessDenied, 0, "owner"};
        if (!notOwn.isEmpty() && folder == notOwn)
            return platform::FolderOwner{};
        return ForwardingFolders::owner(folder);
    }

    QString unreadable;
    QString notOwn;
    QString ownerless;
};

// Temporary folders act as drives; the files are real.
class Machine
{
public:
    Machine()
        : folders(m_native->folders())
        , m_platform(m_native->files(), folders, m_devices, m_session)
        , m_scope(m_platform)
    {
        m_session.user = Ann;
    }

    QString drive(const QString &name) const { return m_folder.path() + u'/' + name; }
    static QString binOf(const QString &drive, const QString &sid = Ann)
    {
        return drive + u"/$Recycle.Bin/"_s + sid;
    }
    QString mount(const QString &name)
    {
        QString root = drive(name);
        [&root] { QVERIFY(QDir().mkpath(root)); }();
        m_devices.mount(FakeVolume::onDrives(root, {0}));
        return root;
    }
    platform::MountedVolume &volume(const QString &name) { return m_devices.volumes[drive(name)].mounted; }
    void setUser(const QString &sid) { m_session.user = sid; }

private:
    const std::unique_ptr<platform::Platform> m_native = platform::createPlatform({});

public:
    Folders folders;

private:
    QTemporaryDir m_folder;
    // A folder without a Trash, because the user's own must not be listed.
    ScopedVariable m_dataHome{"XDG_DATA_HOME", QFile::encodeName(m_folder.path() + u"/data"_s)};
    FakeDevices m_devices;
    FakeSession m_session;
    platform::ForwardingPlatform m_platform;
    platform::ScopedPlatform m_scope;
};

QStringList names(const RecycleBinInfo &info)
{
    QStringList names;
    for (const RecycleBinItem &item : info.items)
        names.append(item.fileName);
    names.sort(); // the order within a folder depends on the file system
    return names;
}
} // namespace

class tst_RecycleBinScanner : public QObject
{
    Q_OBJECT

private slots:
    void anUnknownUserGivesAnEmptyResult();
    void theUserIsThatOfTheSession();
    void nothingFoundIsAnEmptyResult();
    void anItemCarriesBothPaths();
    void aFolderKeepsItsRecordedSize();
    void aMissingDataFileKeepsTheItem();
    void aSizeOf0IsThatOfTheDataFile();
    void aSizeOf0OfAFolderStays();
    void anUnreadableRecordIsListedUnderTheDataFilesName_data();
    void anUnreadableRecordIsListedUnderTheDataFilesName();
    void lowerCaseNamesArePairedWithUpperCaseOnes();
    void otherFilesAreNoItems();
    void dataFilesWithoutRecordsAreKeptBesideTheItems();
    void aDataFileOfAnItemIsNotWithoutRecord();
    void capitalsOfADataFileDoNotMakeItAnother();
    void recordsInSubfoldersAreFound();
    void deepFoldersAreWalked();
    void linksAreNotFollowed();
    void aBinThatIsALinkIsNotScanned();
    void aBinThatCannotBeListedIsTold();
    void aBinOfAnotherOwnerIsTold();
    void onlyTheUsersOwnFolderIsScanned();
    void drivesAreScannedInOrderAndAnnounced();
    void drivesThatAreNotLocalOrNotReadyAreSkipped();
    void aDriveListedTwiceIsScannedOnce();
    void theScanTellsWhatItDid();
    void parsingTellsWhatItDid();
    void aRootOfAnotherMachineIsScannedForASid();
    void withoutSidEverySidIsScanned();
    void aBinInCapitalsIsFoundInARoot();
    void aSidIsOnlyAName();
    void aBinOfASidIsThereOrNot();
    void missingRootsGiveNothing();
    void aScanRunsOnAnyThread();
};

void tst_RecycleBinScanner::anUnknownUserGivesAnEmptyResult()
{
    Machine pc;
    writeFile(Machine::binOf(pc.mount(u"c"_s)) + u"/$I1.txt"_s, infoVersion2(u"C:\\a"_s, 1));
    pc.setUser({});
    const MessageCapture capture;
    int calls = 0;
    QCOMPARE(RecycleBinScanner().scan([&calls](const QString &, int, int) { ++calls; }), RecycleBinInfo());
    QCOMPARE(calls, 0);
    const QList<MessageCapture::Message> expected{{QtWarningMsg, u"Failed to get current user SID"_s}};
    QCOMPARE(capture.messages(), expected);
}

void tst_RecycleBinScanner::theUserIsThatOfTheSession()
{
    {
        Machine pc;
        QCOMPARE(RecycleBinScanner::currentUserSid(), Ann);
    }
    const QString real = RecycleBinScanner::currentUserSid();
#ifdef Q_OS_WIN
    QVERIFY2(real.startsWith("S-1-"_L1), qPrintable(real));
#else
    bool isNumber = false;
    real.toUInt(&isNumber);
    QVERIFY2(isNumber, qPrintable(real));
#endif
}

void tst_RecycleBinScanner::nothingFoundIsAnEmptyResult()
{
    Machine pc;
    QCOMPARE(RecycleBinScanner().scan(), RecycleBinInfo());
    pc.mount(u"c"_s);
    QVERIFY(QDir().mkpath(Machine::binOf(pc.mount(u"d"_s))));
    QCOMPARE(RecycleBinScanner().scan(), RecycleBinInfo());
}

void tst_RecycleBinScanner::anItemCarriesBothPaths()
{
    Machine pc;
    const QString drive = pc.mount(u"c"_s);
    const QString bin = Machine::binOf(drive);
    writeFile(bin + u"/$IABC123.txt"_s, infoVersion2(u"C:\\Users\\Ann\\letter.txt"_s, 42));
    writeFile(bin + u"/$RABC123.txt"_s, "three");
    RecycleBinItem item;
    item.fileName = u"letter.txt"_s;
    item.originalPath = u"C:\\Users\\Ann\\letter.txt"_s;
    item.infoPath = bin + u"/$IABC123.txt"_s;
    item.recyclePath = bin + u"/$RABC123.txt"_s;
    item.size = 42;
    RecycleBinInfo expected;
    expected.items = {item};
    expected.filePaths = {item.infoPath, item.recyclePath};
    expected.totalSize = 42;
    expected.fileCount = 1;
    expected.drives = {drive};
    QCOMPARE(RecycleBinScanner().scan(), expected);
}

void tst_RecycleBinScanner::aFolderKeepsItsRecordedSize()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$I1"_s, infoVersion2(u"C:\\photos"_s, 1000));
    writeFile(bin + u"/$R1/inside.jpg"_s, "12345");
    const RecycleBinInfo info = RecycleBinScanner().scan();
    QCOMPARE(info.fileCount, 1);
    QVERIFY(info.items.first().isDirectory);
    QCOMPARE(info.items.first().size, quint64(1000));
    QCOMPARE(info.filePaths, (QStringList{bin + u"/$I1"_s, bin + u"/$R1"_s}));
}

void tst_RecycleBinScanner::aMissingDataFileKeepsTheItem()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$I1.doc"_s, infoVersion2(u"C:\\gone.doc"_s, 10));
    const RecycleBinInfo info = RecycleBinScanner().scan();
    QCOMPARE(info.fileCount, 1);
    QCOMPARE(info.totalSize, quint64(10));
    QCOMPARE(info.items.first().fileName, u"gone.doc"_s);
    QCOMPARE(info.items.first().recyclePath, QString());
    QCOMPARE(info.filePaths, QStringList{bin + u"/$I1.doc"_s});
}

void tst_RecycleBinScanner::aSizeOf0IsThatOfTheDataFile()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$I1.doc"_s, infoVersion2(u"C:\\a.doc"_s, 0));
    writeFile(bin + u"/$R1.doc"_s, "12345");
    QCOMPARE(RecycleBinScanner().scan().items.first().size, quint64(5));
    QCOMPARE(RecycleBinScanner().scan().totalSize, quint64(5));
}

void tst_RecycleBinScanner::aSizeOf0OfAFolderStays()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$I1"_s, infoVersion2(u"C:\\photos"_s, 0));
    writeFile(bin + u"/$R1/inside.jpg"_s, "12345");
    QCOMPARE(RecycleBinScanner().scan().items.first().size, quint64(0));
}

void tst_RecycleBinScanner::anUnreadableRecordIsListedUnderTheDataFilesName_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<quint64>("size");
    QTest::newRow("empty") << QByteArray() << quint64(5);
    QTest::newRow("27 bytes") << infoVersion2(u"C:\\a"_s, 9).first(27) << quint64(5);
    QTest::newRow("version 2 of 28 bytes") << infoHeader(2, 9) + littleEndian(quint32(0)) << quint64(9);
    QTest::newRow("unknown version") << infoHeader(3, 9) + QByteArray(600, 'x') << quint64(9);
    QTest::newRow("a film under such a name")
        << infoHeader(2, 9) + littleEndian(quint32(1 << 20)) + QByteArray(2 << 20, 'x') << quint64(9);
}

void tst_RecycleBinScanner::anUnreadableRecordIsListedUnderTheDataFilesName()
{
    QFETCH(QByteArray, contents);
    QFETCH(quint64, size);
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$I1.doc"_s, contents);
    writeFile(bin + u"/$R1.doc"_s, "12345");
    const RecycleBinInfo info = RecycleBinScanner().scan();
    QCOMPARE(info.fileCount, 1);
    QCOMPARE(info.items.first().fileName, u"$R1.doc"_s);
    QCOMPARE(info.items.first().originalPath, QString());
    QCOMPARE(info.items.first().size, size);
    QCOMPARE(info.filePaths, (QStringList{bin + u"/$I1.doc"_s, bin + u"/$R1.doc"_s}));
}

void tst_RecycleBinScanner::lowerCaseNamesArePairedWithUpperCaseOnes()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$i1.doc"_s, infoVersion2(u"C:\\a.doc"_s, 1));
    writeFile(bin + u"/$R1.doc"_s, "12345");
    writeFile(bin + u"/$i2.doc"_s, infoVersion2(u"C:\\b.doc"_s, 1));
    const RecycleBinInfo info = RecycleBinScanner().scan();
    QCOMPARE(names(info), (QStringList{u"a.doc"_s, u"b.doc"_s}));
    QVERIFY(info.filePaths.contains(bin + u"/$R1.doc"_s));
    QCOMPARE(info.filePaths.size(), 3);
}

void tst_RecycleBinScanner::otherFilesAreNoItems()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/desktop.ini"_s, "[x]");
    writeFile(bin + u"/I$.txt"_s, infoVersion2(u"C:\\a.doc"_s, 1));
    QVERIFY(QDir().mkpath(bin + u"/$I7"_s));
    QCOMPARE(RecycleBinScanner().scan(), RecycleBinInfo());
}

void tst_RecycleBinScanner::dataFilesWithoutRecordsAreKeptBesideTheItems()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$R5.txt"_s, "12345");
    writeFile(bin + u"/$r6/deep/a.txt"_s, "123");
    writeFile(bin + u"/$r6/b.txt"_s, "12");
    writeFile(bin + u"/R$7"_s, "1");
    writeFile(bin + u"/folder/$R8"_s, "1");
    const RecycleBinInfo info = RecycleBinScanner().scan();
    QList<RecycleBinItem> expected(2);
    expected[0].fileName = u"$R5.txt"_s;
    expected[0].recyclePath = bin + u"/$R5.txt"_s;
    expected[0].size = 5;
    expected[1].fileName = u"$r6"_s;
    expected[1].recyclePath = bin + u"/$r6"_s;
    expected[1].size = 5;
    expected[1].isDirectory = true;
    QCOMPARE(info.unrecorded, expected);
    QCOMPARE(info.doomedPaths(), (QStringList{bin + u"/$R5.txt"_s, bin + u"/$r6"_s}));
    // The items that the bin shows and counts are separate.
    RecycleBinInfo items = info;
    items.unrecorded.clear();
    QCOMPARE(items, RecycleBinInfo());
}

void tst_RecycleBinScanner::aDataFileOfAnItemIsNotWithoutRecord()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$I1.txt"_s, infoVersion2(u"C:\\a.txt"_s, 1));
    writeFile(bin + u"/$R1.txt"_s, "1");
    writeFile(bin + u"/$I2"_s, infoVersion2(u"C:\\b"_s, 1));
    QVERIFY(QDir().mkpath(bin + u"/$R2"_s));
    writeFile(bin + u"/sub/$I3"_s, infoVersion2(u"C:\\c"_s, 1));
    writeFile(bin + u"/sub/$R3"_s, "1");
    writeFile(bin + u"/$R3"_s, "another");
    const RecycleBinInfo info = RecycleBinScanner().scan();
    QCOMPARE(info.fileCount, 3);
    QCOMPARE(info.unrecorded.size(), 1);
    QCOMPARE(info.unrecorded.first().recyclePath, bin + u"/$R3"_s);
    QCOMPARE(info.doomedPaths(), info.filePaths + QStringList{bin + u"/$R3"_s});
}

void tst_RecycleBinScanner::capitalsOfADataFileDoNotMakeItAnother()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$I1.TXT"_s, infoVersion2(u"C:\\a.txt"_s, 1));
    writeFile(bin + u"/$r1.txt"_s, "1");
    // On a case-sensitive file system it is another file, which has no record.
    const bool isSame = platform::Platform::current().files().info(bin + u"/$R1.TXT"_s).ok();
    QCOMPARE(RecycleBinScanner().scan().unrecorded.size(), isSame ? 0 : 1);
    QCOMPARE(RecycleBinScanner().scan().doomedPaths().size(), 2);
}

void tst_RecycleBinScanner::recordsInSubfoldersAreFound()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    writeFile(bin + u"/$R1/.hidden/$I9.txt"_s, infoVersion2(u"C:\\a.txt"_s, 1));
    writeFile(bin + u"/$R1/.hidden/$R9.txt"_s, "x");
    const RecycleBinInfo info = RecycleBinScanner().scan();
    QCOMPARE(info.filePaths, (QStringList{bin + u"/$R1/.hidden/$I9.txt"_s, bin + u"/$R1/.hidden/$R9.txt"_s}));
}

void tst_RecycleBinScanner::deepFoldersAreWalked()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    QString deep = bin + u"/$R1"_s;
    for (int level = 0; level < 100; ++level)
        deep += u"/d"_s;
    writeFile(deep + u"/$I9.txt"_s, infoVersion2(u"C:\\a.txt"_s, 1));
    QCOMPARE(RecycleBinScanner().scan().fileCount, 1);
}

void tst_RecycleBinScanner::linksAreNotFollowed()
{
    Machine pc;
    const QString bin = Machine::binOf(pc.mount(u"c"_s));
    const QString outside = pc.drive(u"outside"_s);
    writeFile(outside + u"/$I5.txt"_s, infoVersion2(u"C:\\mine.txt"_s, 1));
    writeFile(bin + u"/$I1.txt"_s, infoVersion2(u"C:\\a.txt"_s, 0));
    if (!makeLink(outside, bin + u"/$R1.txt"_s))
        QSKIP("SKIPPED: the system makes no links");
    QVERIFY(makeLink(outside, bin + u"/folder"_s));
    QVERIFY(makeLink(outside + u"/$I5.txt"_s, bin + u"/$I2.txt"_s));
    const RecycleBinInfo info = RecycleBinScanner().scan();
    QCOMPARE(info.fileCount, 2);
    // A linked record is not read, and a link never counts as a folder.
    QCOMPARE(names(info), (QStringList{QString(), u"a.txt"_s}));
    QVERIFY(!info.items.first().isDirectory && !info.items.last().isDirectory);
    QCOMPARE(info.totalSize, quint64(0));
    QStringList paths = info.filePaths;
    paths.sort();
    QCOMPARE(paths, (QStringList{bin + u"/$I1.txt"_s, bin + u"/$I2.txt"_s, bin + u"/$R1.txt"_s}));
}

void tst_RecycleBinScanner::aBinThatIsALinkIsNotScanned()
{
    Machine pc;
    const QString real = pc.drive(u"elsewhere"_s);
    writeFile(Machine::binOf(real) + u"/$I1"_s, infoVersion2(u"C:\\a"_s, 1));
    const QString one = pc.mount(u"c"_s);
    if (!makeLink(real + u"/$Recycle.Bin"_s, one + u"/$Recycle.Bin"_s))
        QSKIP("SKIPPED: the system makes no links");
    const QString other = pc.mount(u"d"_s);
    QVERIFY(QDir().mkpath(other + u"/$Recycle.Bin"_s));
    QVERIFY(makeLink(Machine::binOf(real), Machine::binOf(other)));
    RecycleBinInfo told;
    told.unscanned = {{one + u"/$Recycle.Bin"_s, UnscannedBin::Reason::Link},
                      {Machine::binOf(other), UnscannedBin::Reason::Link}};
    QCOMPARE(RecycleBinScanner().scan(), told);
    QCOMPARE(RecycleBinScanner().scanRoots({one, other}), told);
    QCOMPARE(RecycleBinScanner().scanRoots({one, other}, Ann), told);
    QCOMPARE(RecycleBinScanner().scanRoots({one, other}, Ben).unscanned.size(), 1);
    QCOMPARE(RecycleBinScanner().scanRoots({real}).fileCount, 1);
}

void tst_RecycleBinScanner::aBinThatCannotBeListedIsTold()
{
    Machine pc;
    const QString root = pc.mount(u"c"_s);
    const QString bin = Machine::binOf(root);
    writeFile(bin + u"/$I1"_s, infoVersion2(u"C:\\a"_s, 1));
    RecycleBinInfo told;
    for (const QString &folder : {bin, root + u"/$Recycle.Bin"_s, root}) {
        pc.folders.unreadable = folder;
        told.unscanned = {{folder, UnscannedBin::Reason::Unreadable, platform::AccessDenied}};
        QCOMPARE(RecycleBinScanner().scanRoots({root}, Ann), told);
        QVERIFY(RecycleBinScanner::hasBin({root}, Ann));
    }
    pc.folders.unreadable = bin;
    told.unscanned = {{bin, UnscannedBin::Reason::Unreadable, platform::AccessDenied}};
    QCOMPARE(RecycleBinScanner().scan(), told);
}

void tst_RecycleBinScanner::aBinOfAnotherOwnerIsTold()
{
    Machine pc;
    const QString root = pc.mount(u"c"_s);
    const QString bin = Machine::binOf(root);
    writeFile(bin + u"/$I1"_s, infoVersion2(u"C:\\a"_s, 1));
    writeFile(bin + u"/$R2"_s, "1");
    RecycleBinInfo told;
    told.unscanned = {{bin, UnscannedBin::Reason::NotOwn}};
    pc.folders.notOwn = bin;
    QCOMPARE(RecycleBinScanner().scan(), told);
    pc.folders.ownerless = bin;
    told.unscanned = {{bin, UnscannedBin::Reason::Unreadable, platform::AccessDenied}};
    QCOMPARE(RecycleBinScanner().scan(), told);
    // A root named by the user includes the bins of all owners.
    QCOMPARE(RecycleBinScanner().scanRoots({root}).doomedPaths().size(), 2);
}

void tst_RecycleBinScanner::onlyTheUsersOwnFolderIsScanned()
{
    Machine pc;
    const QString drive = pc.mount(u"c"_s);
    writeFile(Machine::binOf(drive, Ann) + u"/$I1"_s, infoVersion2(u"C:\\ann"_s, 1));
    writeFile(Machine::binOf(drive, Ben) + u"/$I1"_s, infoVersion2(u"C:\\ben"_s, 1));
    QCOMPARE(names(RecycleBinScanner().scan()), QStringList{u"ann"_s});
    pc.setUser(Ben);
    QCOMPARE(names(RecycleBinScanner().scan()), QStringList{u"ben"_s});
}

void tst_RecycleBinScanner::drivesAreScannedInOrderAndAnnounced()
{
    Machine pc;
    const QString g = pc.mount(u"g"_s);
    const QString c = pc.mount(u"c"_s);
    const QString e = pc.mount(u"e"_s);
    writeFile(Machine::binOf(g) + u"/$I1"_s, infoVersion2(u"G:\\on g"_s, 1));
    writeFile(Machine::binOf(e) + u"/$I1"_s, infoVersion2(u"E:\\on e"_s, 2));
    QStringList announced;
    const RecycleBinInfo info = RecycleBinScanner().scan([&](const QString &drive, int index, int count) {
        announced.append(u"%1 %2/%3"_s.arg(drive).arg(index).arg(count));
        // Each announced drive is scanned after the announcement.
        if (drive == e)
            writeFile(Machine::binOf(e) + u"/$I2"_s, infoVersion2(u"E:\\late"_s, 3));
    });
    QCOMPARE(announced, (QStringList{g + u" 0/3"_s, c + u" 1/3"_s, e + u" 2/3"_s}));
    QCOMPARE(info.drives, (QStringList{g, e}));
    QCOMPARE(info.items.first().fileName, u"on g"_s);
    QCOMPARE(names(info), (QStringList{u"late"_s, u"on e"_s, u"on g"_s}));
    QCOMPARE(info.totalSize, quint64(6));
}

void tst_RecycleBinScanner::drivesThatAreNotLocalOrNotReadyAreSkipped()
{
    Machine pc;
    for (const QString &name : {u"network"_s, u"empty"_s, u"stick"_s})
        writeFile(Machine::binOf(pc.mount(name)) + u"/$I1"_s, infoVersion2(u"X:\\"_s + name, 1));
    pc.volume(u"network"_s).isLocal = false;
    pc.volume(u"empty"_s).isReady = false;
    QStringList announced;
    const RecycleBinInfo info =
        RecycleBinScanner().scan([&](const QString &drive, int, int) { announced.append(drive); });
    QCOMPARE(names(info), QStringList{u"stick"_s});
    QCOMPARE(announced, QStringList{pc.drive(u"stick"_s)});
}

void tst_RecycleBinScanner::aDriveListedTwiceIsScannedOnce()
{
    Machine pc;
    writeFile(Machine::binOf(pc.mount(u"c"_s)) + u"/$I1"_s, infoVersion2(u"C:\\a"_s, 1));
    pc.mount(u"c"_s);
    QCOMPARE(RecycleBinScanner().scan().fileCount, 1);
}

void tst_RecycleBinScanner::theScanTellsWhatItDid()
{
    Machine pc;
    const QString drive = pc.mount(u"c"_s);
    writeFile(Machine::binOf(drive) + u"/$I1"_s, infoVersion2(u"C:\\a\\b.txt"_s, 12));
    const MessageCapture capture;
    RecycleBinScanner().scan();
    const QStringList expected{
        u"Scanning recycle bin for SID: \"%1\""_s.arg(Ann),
        u"  Parsed $I: \"b.txt\" size: 12 path: \"C:\\\\a\\\\b.txt\""_s,
        u"Recycle bin scan result: 1 files, 12 bytes on drives: QList(\"%1\")"_s.arg(drive)};
    QCOMPARE(capture.texts(), expected);
}

void tst_RecycleBinScanner::parsingTellsWhatItDid()
{
    const QTemporaryDir folder;
    const QString missing = folder.filePath(u"$I1"_s);
    const QString small = folder.filePath(u"$I2"_s);
    writeFile(small, QByteArray(27, 'x'));
    const MessageCapture capture;
    QCOMPARE(RecycleBinScanner::parseInfoFile(missing), RecycleBinItem());
    QCOMPARE(RecycleBinScanner::parseInfoFile(small), RecycleBinItem());
    // A folder is not read as a file.
    QCOMPARE(RecycleBinScanner::parseInfoFile(folder.path()), RecycleBinItem());
    QCOMPARE(capture.texts(),
             (QStringList{u"  Cannot open $I file: \"%1\""_s.arg(missing), u"  $I file too small: 27"_s,
                          u"  Cannot open $I file: \"%1\""_s.arg(folder.path())}));
}

void tst_RecycleBinScanner::aRootOfAnotherMachineIsScannedForASid()
{
    Machine pc;
    const QString root = pc.drive(u"copy"_s);
    writeFile(Machine::binOf(root, Ann) + u"/$I1"_s, infoVersion2(u"C:\\ann"_s, 1));
    writeFile(Machine::binOf(root, Ben) + u"/$I1"_s, infoVersion2(u"C:\\ben"_s, 2));
    pc.mount(u"c"_s); // not scanned
    QStringList announced;
    const RecycleBinInfo info =
        RecycleBinScanner().scanRoots({root}, Ben, [&](const QString &drive, int index, int count) {
            announced.append(u"%1 %2/%3"_s.arg(drive).arg(index).arg(count));
        });
    QCOMPARE(names(info), QStringList{u"ben"_s});
    QCOMPARE(info.drives, QStringList{root});
    QCOMPARE(info.filePaths, QStringList{Machine::binOf(root, Ben) + u"/$I1"_s});
    QCOMPARE(announced, QStringList{root + u" 0/1"_s});
    QCOMPARE(names(RecycleBinScanner().scanRoots({root + u'/'}, Ann)), QStringList{u"ann"_s});
}

void tst_RecycleBinScanner::withoutSidEverySidIsScanned()
{
    Machine pc;
    const QString root = pc.drive(u"copy"_s);
    writeFile(Machine::binOf(root, Ann) + u"/$I1"_s, infoVersion2(u"C:\\ann"_s, 1));
    writeFile(Machine::binOf(root, Ben) + u"/$I1"_s, infoVersion2(u"C:\\ben"_s, 2));
    writeFile(Machine::binOf(root, u"other"_s) + u"/$I1"_s, infoVersion2(u"C:\\other"_s, 4));
    const RecycleBinInfo info = RecycleBinScanner().scanRoots({root});
    QCOMPARE(names(info), (QStringList{u"ann"_s, u"ben"_s}));
    QCOMPARE(info.totalSize, quint64(3));
    QCOMPARE(info.drives, QStringList{root});
}

void tst_RecycleBinScanner::aBinInCapitalsIsFoundInARoot()
{
    Machine pc;
    const QString root = pc.drive(u"copy"_s);
    writeFile(root + u"/$RECYCLE.BIN/"_s + Ann + u"/$I1"_s, infoVersion2(u"C:\\ann"_s, 1));
    QCOMPARE(names(RecycleBinScanner().scanRoots({root}, Ann.toLower())), QStringList{u"ann"_s});
}

void tst_RecycleBinScanner::aSidIsOnlyAName()
{
    Machine pc;
    const QString root = pc.drive(u"copy"_s);
    writeFile(root + u"/mine/$I1"_s, infoVersion2(u"C:\\mine"_s, 1));
    QVERIFY(QDir().mkpath(root + u"/$Recycle.Bin"_s));
    for (const QString &sid : {u"../mine"_s, u".."_s, u"."_s, u"*"_s})
        QCOMPARE(RecycleBinScanner().scanRoots({root}, sid), RecycleBinInfo());
}

void tst_RecycleBinScanner::aBinOfASidIsThereOrNot()
{
    Machine pc;
    const QString one = pc.drive(u"one"_s);
    const QString other = pc.drive(u"other"_s);
    QVERIFY(QDir().mkpath(Machine::binOf(one, Ann)));
    QVERIFY(QDir().mkpath(Machine::binOf(other, Ben)));
    writeFile(other + u"/$Recycle.Bin/file"_s, "1");
    QVERIFY(RecycleBinScanner::hasBin({one}, Ann));
    QVERIFY(RecycleBinScanner::hasBin({one}, Ann.toLower()));
    QVERIFY(RecycleBinScanner::hasBin({other, one}, Ann));
    QVERIFY(!RecycleBinScanner::hasBin({one}, Ben));
    QVERIFY(!RecycleBinScanner::hasBin({other}, u"file"_s));
    QVERIFY(!RecycleBinScanner::hasBin({other}, u".."_s));
    QVERIFY(!RecycleBinScanner::hasBin({pc.drive(u"none"_s)}, Ann));
    if (!makeLink(Machine::binOf(one, Ann), Machine::binOf(other, Ann)))
        QSKIP("SKIPPED: the system makes no links");
    // An entry exists; the scan reports why it does not count.
    QVERIFY(RecycleBinScanner::hasBin({other}, Ann));
}

void tst_RecycleBinScanner::missingRootsGiveNothing()
{
    Machine pc;
    QCOMPARE(RecycleBinScanner().scanRoots({pc.drive(u"none"_s), QString()}, Ann), RecycleBinInfo());
    QCOMPARE(RecycleBinScanner().scanRoots({}), RecycleBinInfo());
}

void tst_RecycleBinScanner::aScanRunsOnAnyThread()
{
    Machine pc;
    writeFile(Machine::binOf(pc.mount(u"c"_s)) + u"/$I1"_s, infoVersion2(u"C:\\a"_s, 1));
    RecycleBinInfo info;
    bool sameThread = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        info = RecycleBinScanner().scan(
            [&](const QString &, int, int) { sameThread = QThread::currentThread() == thread.get(); });
    }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(info.fileCount, 1);
    QVERIFY(sameThread);
}

QUORVEX_SUITE(tst_RecycleBinScanner, QCoreApplication)
#include "tst_recyclebinscanner.moc"
