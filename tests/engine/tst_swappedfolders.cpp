#include "filejob.h"
#include "model/joboutcome.h"
#include "platform/filenames.h"
#include "platform/forwarding.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "support/faultplan.h"
#include "support/fewdescriptors.h"
#include "support/links.h"
#include "support/plainmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <functional>
#include <thread>

using namespace Qt::StringLiterals;
using platform::Status;

namespace {

const QByteArray Secret = QByteArrayLiteral("to be erased ");
const QByteArray Stranger = QByteArrayLiteral("somebody else's");

// Calls the test when a folder is listed or removed.
class WatchedFolders : public platform::ForwardingFolders
{
public:
    using ForwardingFolders::ForwardingFolders;

    std::function<void()> onListing;
    std::function<void()> onRemoval;

    Status forEachEntry(const platform::EntryPath &folder, const Visitor &visit) override
    {
        if (onListing)
            onListing();
        return ForwardingFolders::forEachEntry(folder, visit);
    }
    Status removeEmpty(const platform::EntryPath &folder) override
    {
        if (onRemoval)
            onRemoval();
        return ForwardingFolders::removeEmpty(folder);
    }
};

// Two passes with verification over nested folders, with the same names elsewhere.
struct Scenario
{
    WatchedFolders folders{platform::Platform::current().folders()};
    FileJob job{platform::Platform::current().files(), folders};
    QString target = job.path(u"p/t"_s);

    Scenario()
    {
        job.setPasses({{PatternType::Zeros, 0, true}, {PatternType::Ones, 0xFF, true}});
        for (const QString &name : names())
            job.makeFile(u"p/t/"_s + name, Secret + name.toUtf8());
        makeStrangers(u"p/t"_s); // reached when "p" is a link
        makeStrangers(u"t"_s);   // reached when "t" is a link
        makeStrangers({});       // reached when "sub" is a link
    }
    static QStringList names() { return {u"a"_s, u"sub/b"_s, u"sub/deep/c"_s}; }

    void makeStrangers(const QString &below)
    {
        for (const QString &name : names()) {
            const QString inSub = below.isEmpty() ? name.mid(name.indexOf(u'/') + 1) : name;
            m_strangers +=
                job.makeFile(u"victims/"_s + (below.isEmpty() ? u"bare/"_s : below + u'/') + inSub, Stranger);
        }
    }
    // Replaces one folder of the path by a link to a folder with the same names.
    void swap(const QString &folder)
    {
        const QString path = job.path(folder);
        const QString victims = folder == u"p"_s     ? u"victims/p"_s
                                : folder == u"p/t"_s ? u"victims/t"_s
                                                     : u"victims/bare"_s;
        isSwapped = QFile::rename(path, path + u".away"_s) && makeLink(job.path(victims), path);
    }
    int strangersLeft() const
    {
        return static_cast<int>(std::ranges::count_if(
            m_strangers, [](const QString &path) { return contentIfAny(path) == Stranger; }));
    }
    int strangers() const { return static_cast<int>(m_strangers.size()); }
    int secretsLeft() const
    {
        int secrets = 0;
        QDirIterator found(job.path(u"p"_s), QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                           QDirIterator::Subdirectories);
        QDirIterator away(job.path(u"p.away"_s), QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                          QDirIterator::Subdirectories);
        for (QDirIterator *files : {&found, &away}) {
            while (files->hasNext())
                secrets += contentOf(files->next()).startsWith(Secret) ? 1 : 0;
        }
        return secrets;
    }
    QList<Shortfall> shortfalls() const { return job.task.outcome().shortfalls(); }

    bool isSwapped = false;

private:
    QStringList m_strangers;
};

} // namespace

// Folders that another program moves, replaces or mounts over while a job works in them.
class tst_SwappedFolders : public QObject
{
    Q_OBJECT

private slots:
    void nobodySwaps();
    void aLinkTakesAFoldersPlace_data();
    void aLinkTakesAFoldersPlace();
    void anotherFolderTakesAFoldersPlace();
    void swappedAllTheTime_data();
    void swappedAllTheTime();
    void moreFoldersThanAreHeld();
    void aThousandLevels();
    void aFolderMountedInside_data();
    void aFolderMountedInside();
    void aFileMountedInside();
    void aFolderThatIsMountedItselfIsErased();
    void whatAppearsIsNotRemovedUnwritten();
};

void tst_SwappedFolders::nobodySwaps()
{
    Scenario s;
    QCOMPARE(s.secretsLeft(), 3);
    QVERIFY(s.job.run({s.target}));
    QCOMPARE(s.secretsLeft(), 0);
    QVERIFY(QDir(s.job.path(u"p"_s)).isEmpty());
    QCOMPARE(s.strangersLeft(), s.strangers());
    QVERIFY(s.shortfalls().isEmpty());
}

void tst_SwappedFolders::aLinkTakesAFoldersPlace_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("moment");
    for (const QString &folder : {u"p"_s, u"p/t"_s, u"p/t/sub"_s}) {
        for (const QString &moment : {u"listing"_s, u"second listing"_s, u"sizes"_s, u"first pass"_s,
                                      u"second pass"_s, u"verification"_s, u"deletion"_s, u"cutting"_s,
                                      u"renaming"_s, u"removal"_s, u"folder removal"_s})
            QTest::addRow("%s, %s", qPrintable(folder), qPrintable(moment)) << folder << moment;
    }
}

void tst_SwappedFolders::aLinkTakesAFoldersPlace()
{
    QFETCH(QString, folder);
    QFETCH(QString, moment);
    Scenario s;
    const auto at = [&](const QString &wanted) {
        if (!s.isSwapped && wanted == moment)
            s.swap(folder);
    };
    int listings = 0;
    s.folders.onListing = [&] { at(++listings == 1 ? u"listing"_s : u"second listing"_s); };
    s.folders.onRemoval = [&] { at(u"folder removal"_s); };
    s.job.said.onLine = [&](const QString &line) {
        if (line.startsWith(u"0 准备擦除"_s))
            at(u"first pass"_s);
        if (line == said::pass(2, 2))
            at(u"second pass"_s);
        if (line == said::deleting)
            at(u"deletion"_s);
    };
    s.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Info && call.path != s.target)
            at(u"sizes"_s);
        if (call.kind == FaultPlan::Read)
            at(u"verification"_s);
        if (call.kind == FaultPlan::SetEnd)
            at(u"cutting"_s);
        if (call.kind == FaultPlan::Rename)
            at(u"renaming"_s);
        if (call.kind == FaultPlan::Remove)
            at(u"removal"_s);
        return Status();
    };
    const bool success = s.job.run({s.target});
    QVERIFY(s.isSwapped);
    QCOMPARE(s.strangersLeft(), s.strangers());
    // Files that were not erased are reported.
    QVERIFY2(s.secretsLeft() == 0 || !success || !s.shortfalls().isEmpty(),
             qPrintable(s.job.lines().join(u'\n')));
    QCOMPARE(s.job.said.finishedCount(), 1);
}

// The new folder's files were not chosen, and the chosen folder cannot be found any more.
void tst_SwappedFolders::anotherFolderTakesAFoldersPlace()
{
    Scenario s;
    for (int i = 0; i < 120; ++i) // more than the tree holds
        s.job.makeFile(u"p/t/x%1/file"_s.arg(i), Secret);
    s.job.said.onLine = [&](const QString &line) {
        if (line == said::pass(1, 2))
            s.isSwapped = QFile::rename(s.target, s.target + u".away"_s) &&
                          QFile::rename(s.job.path(u"victims/t"_s), s.target);
    };
    s.job.run({s.target});
    QVERIFY(s.isSwapped);
    for (const QString &name : Scenario::names())
        QCOMPARE(contentIfAny(s.target + u'/' + name), Stranger);
}

void tst_SwappedFolders::swappedAllTheTime_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("above the target") << u"p"_s;
    QTest::newRow("the target") << u"p/t"_s;
    QTest::newRow("inside the target") << u"p/t/sub"_s;
}

void tst_SwappedFolders::swappedAllTheTime()
{
    QFETCH(QString, folder);
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    std::atomic<int> swaps{0};
    for (int run = 0; run < 15; ++run) {
        Scenario s;
        for (int i = 0; i < 20; ++i)
            s.job.makeFile(u"p/t/sub/more%1"_s.arg(i), Secret);
        // The link waits under another name until the job has begun, because the destination of a target is
        // resolved at that time.
        const QByteArray one = platform::encodeName(s.job.path(folder));
        const QByteArray other = one + ".away";
        s.swap(folder);
        QVERIFY(s.isSwapped);
        QCOMPARE(::renameat2(AT_FDCWD, one.constData(), AT_FDCWD, other.constData(), RENAME_EXCHANGE), 0);
        std::atomic<bool> hasBegun{false};
        std::atomic<bool> isOver{false};
        s.job.files.hook = [&hasBegun](const FileCall &) {
            hasBegun = true;
            return Status();
        };
        const unsigned int pause = random.bounded(200);
        std::thread swapper([&] {
            while (!isOver) {
                if (!hasBegun)
                    continue;
                if (::renameat2(AT_FDCWD, one.constData(), AT_FDCWD, other.constData(), RENAME_EXCHANGE) == 0)
                    ++swaps;
                ::usleep(pause);
            }
        });
        s.job.run({s.target});
        isOver = true;
        swapper.join();
        QVERIFY2(s.strangersLeft() == s.strangers(), qPrintable(s.job.lines().join(u'\n')));
    }
    QVERIFY(swaps > 0);
}

void tst_SwappedFolders::moreFoldersThanAreHeld()
{
    FileJob job;
    job.task.setThreadCount(4);
    for (int i = 0; i < 300; ++i)
        job.makeFile(u"t/%1/%2/file"_s.arg(i % 7).arg(i), Secret);
    QVERIFY(job.run({job.path(u"t"_s)}));
    QVERIFY(QDir(job.path({})).isEmpty());
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
    QCOMPARE(job.files.calls(FaultPlan::Rename).size(), 300);
}

// Deeper than the longest path of the system, with fewer descriptors than levels.
void tst_SwappedFolders::aThousandLevels()
{
    constexpr int Levels = 1000;
    FileJob job;
    const FewDescriptors few(300);
    QVERIFY(few.isSet());
    const QString folder = job.makeFolder(u"t"_s);
    platform::FileDescriptor at(::open(platform::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY));
    for (int level = 0; level < Levels; ++level) {
        const platform::FileDescriptor file(::openat(at.get(), "secret", O_WRONLY | O_CREAT, 0600));
        QCOMPARE(::write(file.get(), Secret.constData(), static_cast<size_t>(Secret.size())), Secret.size());
        QCOMPARE(::mkdirat(at.get(), "a folder", 0700), 0);
        at = platform::FileDescriptor(::openat(at.get(), "a folder", O_RDONLY | O_DIRECTORY));
        QVERIFY(at.isValid());
    }
    QVERIFY2(job.run({folder}), qPrintable(job.lines().mid(0, 20).join(u'\n').left(2000)));
    QCOMPARE(job.files.calls(FaultPlan::Write).size(), Levels);
    QVERIFY(!QFileInfo::exists(folder));
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
}

void tst_SwappedFolders::aFolderMountedInside_data()
{
    QTest::addColumn<bool>("isBind");
    QTest::newRow("a volume") << false;
    QTest::newRow("a folder of the same volume") << true;
}

void tst_SwappedFolders::aFolderMountedInside()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root mounts");
    QFETCH(bool, isBind);
    Scenario s;
    s.job.makeFolder(u"p/t/sub/here"_s);
    s.job.makeFolder(u"p/t/plain"_s);
    const QString here = s.job.path(u"p/t/sub/here"_s);
    const PlainMount mount(isBind ? "" : "tmpfs", isBind ? s.job.path(u"victims/t"_s) : u"inside"_s, here,
                           isBind ? MS_BIND : 0);
    QVERIFY(mount.isMounted());
    writeFile(here + u"/mine"_s, Stranger);
    QVERIFY(s.job.run({s.target}));
    QCOMPARE(s.secretsLeft(), 0);
    QCOMPARE(s.strangersLeft(), s.strangers());
    QCOMPARE(contentIfAny(here + u"/mine"_s), Stranger);
    QVERIFY(!QFileInfo::exists(s.job.path(u"p/t/plain"_s)));
    QVERIFY(!QFileInfo::exists(s.job.path(u"p/t/sub/deep"_s)));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryNotRemoved, here},
                                               {ShortfallKind::EntryNotRemoved, s.job.path(u"p/t/sub"_s)},
                                               {ShortfallKind::EntryNotRemoved, s.target}}));
    QVERIFY(s.job.lines().contains(u"1 文件夹中挂载了其他文件系统，保持原样: "_s + here));
}

void tst_SwappedFolders::aFileMountedInside()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root mounts");
    Scenario s;
    const QString here = s.job.makeFile(u"p/t/here"_s, Secret);
    const PlainMount mount("", s.job.path(u"victims/t/a"_s), here, MS_BIND);
    QVERIFY(mount.isMounted());
    QVERIFY(s.job.run({s.target}));
    QCOMPARE(s.strangersLeft(), s.strangers());
    QCOMPARE(s.secretsLeft(), 0);
    QVERIFY(s.job.lines().contains(said::preparing(3, u"55 B"_s)));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryNotRemoved, here},
                                               {ShortfallKind::EntryNotRemoved, s.target}}));
}

// The user named the folder, so its content is a target.
void tst_SwappedFolders::aFolderThatIsMountedItselfIsErased()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root mounts");
    FileJob job;
    const QString here = job.makeFolder(u"here"_s);
    const PlainMount mount("tmpfs", u"inside"_s, here);
    QVERIFY(mount.isMounted());
    writeFile(here + u"/sub/a"_s, Secret);
    QVERIFY(job.run({here}));
    QVERIFY(QDir(here).isEmpty());
    QCOMPARE(job.task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryNotRemoved, here}}));
}

void tst_SwappedFolders::whatAppearsIsNotRemovedUnwritten()
{
    Scenario s;
    const QString late = s.job.path(u"p/t/sub/late"_s);
    s.folders.onRemoval = [&] {
        if (!s.isSwapped)
            writeFile(late, Stranger);
        s.isSwapped = true;
    };
    QVERIFY(s.job.run({s.target}));
    QCOMPARE(contentIfAny(late), Stranger);
    QVERIFY(s.shortfalls().contains({ShortfallKind::EntryNotRemoved, s.target}));
}

QUORVEX_SUITE(tst_SwappedFolders, QCoreApplication)
#include "tst_swappedfolders.moc"
