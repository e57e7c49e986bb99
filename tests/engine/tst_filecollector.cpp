#include "engine/filecollector.h"
#include "support/suite.h"

#include "filejob.h"
#include "support/faultplan.h"
#include "support/faultyfiles.h"
#include "support/observedfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

#include <algorithm>

using platform::Status;

namespace {

struct Scan
{
    struct Unreadable
    {
        FileCollector::Unreadable what = FileCollector::Unreadable::Target;
        QString path;
        quint32 code = 0;

        bool operator==(const Unreadable &) const = default;
    };

    QStringList files;
    QStringList folders;
    int unreadableCount = 0;
    QList<Unreadable> unreadable;
    int asked = 0;

    explicit Scan(const QStringList &targets, int entriesAllowed = 1'000'000)
    {
        HeldTree tree;
        FileCollector collector(
            tree, {.goOn = [this, entriesAllowed] { return ++asked <= entriesAllowed; },
                   .unreadable =
                       [this](FileCollector::Unreadable what, const QString &path, const Status &status) {
                           unreadable.append({what, path, status.code});
                       }});
        const FileList list = collector.collect(targets);
        for (const FileEntry &file : list.files)
            files.append(tree.path(file.folder, file.name));
        for (const HeldTree::Folder folder : list.folders)
            folders.append(tree.path(folder));
        unreadableCount = list.unreadable;
    }

    QStringList sortedFiles() const
    {
        QStringList sorted = files;
        sorted.sort();
        return sorted;
    }
};

} // namespace

class tst_FileCollector : public QObject
{
    Q_OBJECT

private slots:
    void noTargetsGiveNothing();
    void filesStandInTheOrderOfTheTargets();
    void aFolderStandsForEveryFileBelowIt();
    void hiddenFilesAreFound();
    void emptyFoldersHoldNothing();
    void whatDoesNotExistIsLeftOut();
    void theSameFileTwiceIsListedOnce();
    void aFileInsideAGivenFolderIsListedOnceWhereItCameFirst();
    void namesThatDifferInCaseAreTwoFiles();
    void separatorsAtTheEndDoNotMatter_data();
    void separatorsAtTheEndDoNotMatter();
    void deepTreesAreWalkedToTheEnd();
    void aFolderThatCannotBeListedIsTold();
    void whatWasListedBeforeTheFailureStays();
    void aTargetThatCannotBeLookedAtIsTold();
    void theScanEndsAtAnyEntry();
    void theFolderOfAnUnfinishedScanIsNotListed();
};

void tst_FileCollector::noTargetsGiveNothing()
{
    const Scan scan({});
    QVERIFY(scan.files.isEmpty());
    QVERIFY(scan.folders.isEmpty());
    QCOMPARE(scan.unreadableCount, 0);
}

void tst_FileCollector::filesStandInTheOrderOfTheTargets()
{
    FileJob job;
    const QStringList targets{job.makeFile(QStringLiteral("z"), 1), job.makeFile(QStringLiteral("a"), 1),
                              job.makeFile(QStringLiteral("m"), 1)};
    const Scan scan(targets);
    QCOMPARE(scan.files, targets);
    QVERIFY(scan.folders.isEmpty());
}

void tst_FileCollector::aFolderStandsForEveryFileBelowIt()
{
    FileJob job;
    QStringList files{job.makeFile(QStringLiteral("t/one"), 1), job.makeFile(QStringLiteral("t/sub/two"), 1),
                      job.makeFile(QStringLiteral("t/sub/deeper/three"), 1),
                      job.makeFile(QStringLiteral("t/x/four"), 0)};
    files.sort();
    job.makeFolder(QStringLiteral("t/empty"));
    job.makeFile(QStringLiteral("beside"), 1);
    const Scan scan({job.path(QStringLiteral("t"))});
    QCOMPARE(scan.sortedFiles(), files);
    QCOMPARE(scan.folders, QStringList{job.path(QStringLiteral("t"))});
    QCOMPARE(scan.unreadableCount, 0);
}

void tst_FileCollector::hiddenFilesAreFound()
{
    FileJob job;
    QStringList files{job.makeFile(QStringLiteral("t/.hidden"), 1),
                      job.makeFile(QStringLiteral("t/.dir/...x"), 1),
                      job.makeFile(QStringLiteral("t/..data"), 1)};
    files.sort();
    QCOMPARE(Scan({job.path(QStringLiteral("t"))}).sortedFiles(), files);
}

void tst_FileCollector::emptyFoldersHoldNothing()
{
    FileJob job;
    job.makeFolder(QStringLiteral("t/a/b"));
    const Scan scan({job.path(QStringLiteral("t"))});
    QVERIFY(scan.files.isEmpty());
    QCOMPARE(scan.folders.size(), 1);
}

void tst_FileCollector::whatDoesNotExistIsLeftOut()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 1);
    const Scan scan({job.path(QStringLiteral("nothing")), file, job.path(QStringLiteral("no/way"))});
    QCOMPARE(scan.files, QStringList{file});
    QCOMPARE(scan.unreadableCount, 0);
    QVERIFY(scan.unreadable.isEmpty());
}

void tst_FileCollector::theSameFileTwiceIsListedOnce()
{
    FileJob job;
    const QString a = job.makeFile(QStringLiteral("a"), 1);
    const QString b = job.makeFile(QStringLiteral("b"), 1);
    QCOMPARE(Scan({b, a, b, a, a}).files, (QStringList{b, a}));
}

void tst_FileCollector::aFileInsideAGivenFolderIsListedOnceWhereItCameFirst()
{
    FileJob job;
    const QString inside = job.makeFile(QStringLiteral("t/sub/inside"), 1);
    const QString other = job.makeFile(QStringLiteral("t/other"), 1);
    const QString folder = job.path(QStringLiteral("t"));
    const Scan fileFirst({inside, folder});
    QCOMPARE(fileFirst.files, (QStringList{inside, other}));
    const Scan folderFirst({folder, inside, folder + QStringLiteral("/sub")});
    QCOMPARE(folderFirst.sortedFiles(), (QStringList{other, inside}));
    // A trailing separator does not change the paths inside.
    QCOMPARE(Scan({inside, folder + QLatin1Char('/')}).files, (QStringList{inside, other}));
}

void tst_FileCollector::namesThatDifferInCaseAreTwoFiles()
{
    FileJob job;
    const QString lower = job.makeFile(QStringLiteral("name"), 1);
    const QString upper = job.makeFile(QStringLiteral("NAME"), 1);
    if (QDir(job.path({})).count() != 4)
        QSKIP("SKIPPED: this file system does not tell upper from lower case");
    QCOMPARE(Scan({lower, upper}).files, (QStringList{lower, upper}));
}

void tst_FileCollector::separatorsAtTheEndDoNotMatter_data()
{
    QTest::addColumn<QString>("end");
    for (const char *end : {"/", "//", "/.", "/./", "/./."})
        QTest::newRow(end) << QString::fromLatin1(end);
}

void tst_FileCollector::separatorsAtTheEndDoNotMatter()
{
    QFETCH(QString, end);
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("t/a"), 1);
    const Scan scan({job.path(QStringLiteral("t")) + end});
    QCOMPARE(scan.files, QStringList{file});
    QCOMPARE(scan.folders, QStringList{job.path(QStringLiteral("t"))});
}

void tst_FileCollector::deepTreesAreWalkedToTheEnd()
{
    FileJob job;
    QString name = QStringLiteral("t");
    for (int depth = 0; depth < 700; ++depth)
        name += QStringLiteral("/d");
    const QString file = job.makeFile(name + QStringLiteral("/deepest"), 1);
    QVERIFY(file.size() > 1'400);
    QCOMPARE(Scan({job.path(QStringLiteral("t"))}).files, QStringList{file});
}

void tst_FileCollector::aFolderThatCannotBeListedIsTold()
{
    FaultPlan plan(FaultPlan::List, 1, platform::AccessDenied, FaultPlan::FromThenOn);
    FaultyFolders folders(platform::Platform::current().folders(), plan,
                          [](const QString &path) { return path.endsWith(QStringLiteral("/locked")); });
    FileJob job(platform::Platform::current().files(), folders);
    job.makeFile(QStringLiteral("t/locked/unseen"), 1);
    QStringList files{job.makeFile(QStringLiteral("t/a"), 1), job.makeFile(QStringLiteral("t/z/b"), 1),
                      job.makeFile(QStringLiteral("u/c"), 1)};
    files.sort();
    const Scan scan({job.path(QStringLiteral("t")), job.path(QStringLiteral("u"))});
    QCOMPARE(scan.sortedFiles(), files);
    QCOMPARE(scan.unreadableCount, 1);
    QCOMPARE(scan.unreadable, (QList<Scan::Unreadable>{{FileCollector::Unreadable::Folder,
                                                        job.path(QStringLiteral("t/locked")), 5}}));
    QCOMPARE(scan.folders, QStringList{job.path(QStringLiteral("u"))});
}

void tst_FileCollector::whatWasListedBeforeTheFailureStays()
{
    // Fails after the last entry, like a folder with a damaged block.
    class LateFailure : public platform::ForwardingFolders
    {
    public:
        using ForwardingFolders::ForwardingFolders;
        Status forEachEntry(const platform::EntryPath &folder, const Visitor &visit) override
        {
            const Status status = ForwardingFolders::forEachEntry(folder, visit);
            return status ? Status{platform::IoDevice, 0, "planned"} : status;
        }
    } folders(platform::Platform::current().folders());
    FileJob job(platform::Platform::current().files(), folders);
    const QString file = job.makeFile(QStringLiteral("t/a"), 1);
    const Scan scan({job.path(QStringLiteral("t"))});
    QCOMPARE(scan.files, QStringList{file});
    QVERIFY(scan.folders.isEmpty());
    QCOMPARE(scan.unreadableCount, 1);
}

void tst_FileCollector::aTargetThatCannotBeLookedAtIsTold()
{
    FileJob job;
    const QString bad = job.makeFile(QStringLiteral("bad"), 1);
    const QString good = job.makeFile(QStringLiteral("good"), 1);
    job.files.hook = [&bad](const FileCall &call) {
        return call.path == bad ? Status{platform::IoDevice, 0, "planned"} : Status();
    };
    const Scan scan({bad, good});
    QCOMPARE(scan.files, QStringList{good});
    QCOMPARE(scan.unreadableCount, 1);
    QCOMPARE(scan.unreadable, (QList<Scan::Unreadable>{{FileCollector::Unreadable::Target, bad, 1117}}));
}

void tst_FileCollector::theScanEndsAtAnyEntry()
{
    FileJob job;
    for (int i = 0; i < 5; ++i)
        job.makeFile(QStringLiteral("t/sub/%1").arg(i), 1);
    const QString folder = job.path(QStringLiteral("t"));
    const int questions = Scan({folder}).asked;
    QVERIFY(questions >= 5);
    for (int allowed = 0; allowed < questions; ++allowed) {
        const Scan scan({folder}, allowed);
        QCOMPARE(scan.asked, allowed + 1);
        QVERIFY(scan.files.size() <= allowed);
        QVERIFY(scan.unreadable.isEmpty());
    }
}

void tst_FileCollector::theFolderOfAnUnfinishedScanIsNotListed()
{
    FileJob job;
    job.makeFile(QStringLiteral("t/a"), 1);
    const QString folder = job.path(QStringLiteral("t"));
    const int questions = Scan({folder}).asked;
    for (int allowed = 0; allowed < questions; ++allowed)
        QVERIFY(Scan({folder}, allowed).folders.isEmpty());
}

QUORVEX_SUITE(tst_FileCollector, QCoreApplication)
#include "tst_filecollector.moc"
