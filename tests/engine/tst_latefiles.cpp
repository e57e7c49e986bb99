#include "filejob.h"
#include "model/joboutcome.h"
#include "platform/forwarding.h"
#include "support/faultplan.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QThread>

#include <functional>

using namespace Qt::StringLiterals;
using platform::OpenMode;
using platform::Status;

namespace {

const QByteArray Secret = QByteArrayLiteral("to be erased");

QString appeared(int files)
{
    return u"1 任务期间又出现 %1 个文件，同样进行擦除"_s.arg(files);
}

// Two passes over a folder; the content of each file is recorded before its cut.
struct Scenario
{
    FileJob job;
    QString folder = job.path(u"t"_s);
    QMap<QString, QByteArray> cut; // by the original name

    Scenario()
    {
        job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
        job.makeFile(u"t/a"_s, Secret);
        job.makeFile(u"t/sub/b"_s, Secret);
        job.files.hook = [this](const FileCall &call) {
            if (call.kind == FaultPlan::SetEnd)
                cut.insert(call.path.mid(folder.size() + 1), contentOf(call.path));
            return onCall ? onCall(call) : Status();
        };
    }
    void at(const QString &line, const std::function<void()> &change)
    {
        job.said.onLine = [line, change](const QString &said) {
            if (said == line)
                change();
        };
    }
    bool isErased(const QString &name) const
    {
        return cut.value(name) == QByteArray(Secret.size(), char(0xFF));
    }
    QList<Shortfall> shortfalls() const { return job.task.outcome().shortfalls(); }

    std::function<Status(const FileCall &call)> onCall;
};

} // namespace

// Files that appear in the folders of a running job.
class tst_LateFiles : public QObject
{
    Q_OBJECT

private slots:
    void aFileThatAppears_data();
    void aFileThatAppears();
    void aFileThatIsRenamed_data();
    void aFileThatIsRenamed();
    void aFolderThatAppears();
    void theCountsStayThoseOfTheScan();
    void lateFilesAreNoPartOfTheProgress();
    void nothingIsDeletedWhenALateFileFails();
    void aLateFileThatFailsAfterTheDeletionStays();
    void whoeverGoesOnIsNotWaitedFor();
    void aFileThatCannotBeDeletedIsNotFoundAnew();
    void aStopLeavesLateFilesStanding();
    void oneFolderGivenTwice();
    void aTargetThatIsMovedAway();
};

void tst_LateFiles::aFileThatAppears_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("in the first pass") << said::pass(1, 2);
    QTest::newRow("in the second pass") << said::pass(2, 2);
    QTest::newRow("in the delete stage") << said::deleting;
}

void tst_LateFiles::aFileThatAppears()
{
    QFETCH(QString, line);
    Scenario s;
    s.at(line, [&] { s.job.makeFile(u"t/sub/late"_s, Secret); });
    QVERIFY(s.job.run({s.folder}));
    QVERIFY(s.isErased(u"sub/late"_s));
    QVERIFY(!QFileInfo::exists(s.folder));
    QVERIFY(s.job.lines().contains(appeared(1)));
    QVERIFY(s.shortfalls().isEmpty());
}

void tst_LateFiles::aFileThatIsRenamed_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("before the first pass") << said::preparing(2, u"24 B"_s);
    QTest::newRow("between the passes") << said::pass(2, 2);
    QTest::newRow("in the delete stage") << said::deleting;
}

// The file is erased under its new name and does not count as vanished.
void tst_LateFiles::aFileThatIsRenamed()
{
    QFETCH(QString, line);
    Scenario s;
    s.at(line, [&] { QFile::rename(s.folder + u"/a"_s, s.folder + u"/sub/renamed"_s); });
    QVERIFY(s.job.run({s.folder}));
    QVERIFY(s.isErased(u"sub/renamed"_s));
    QVERIFY(!QFileInfo::exists(s.folder));
    QVERIFY(s.shortfalls().isEmpty());
}

void tst_LateFiles::aFolderThatAppears()
{
    Scenario s;
    s.at(said::pass(2, 2), [&] {
        s.job.makeFile(u"t/new/one"_s, Secret);
        s.job.makeFile(u"t/new/deep/two"_s, Secret);
        s.job.makeFolder(u"t/empty"_s);
    });
    QVERIFY(s.job.run({s.folder}));
    QVERIFY(s.isErased(u"new/one"_s));
    QVERIFY(s.isErased(u"new/deep/two"_s));
    QVERIFY(!QFileInfo::exists(s.folder));
    QVERIFY(s.job.lines().contains(appeared(2)));
}

void tst_LateFiles::theCountsStayThoseOfTheScan()
{
    Scenario s;
    s.at(said::pass(2, 2), [&] { s.job.makeFile(u"t/late"_s, Secret); });
    QVERIFY(s.job.run({s.folder}));
    QCOMPARE(s.job.lines(),
             (QStringList{said::scanning, said::preparing(2, u"24 B"_s), said::pass(1, 2), said::pass(2, 2),
                          appeared(1), said::deleting, said::allDone(2), said::succeeded}));
    QCOMPARE(s.job.task.report().fileCount, 2);
    QCOMPARE(s.job.task.report().totalBytes, quint64(24));
}

// A progress report is due at the first byte.
void tst_LateFiles::lateFilesAreNoPartOfTheProgress()
{
    Scenario s;
    qsizetype reports = -1;
    s.job.said.onLine = [&](const QString &line) {
        if (line == said::pass(2, 2))
            s.job.makeFile(u"t/late"_s, Secret);
        if (line == appeared(1))
            reports = s.job.said.percents().size();
    };
    s.onCall = [](const FileCall &call) {
        if (call.kind == FaultPlan::Write && call.path.endsWith(u"/late"_s))
            QThread::msleep(150);
        return Status();
    };
    QVERIFY(s.job.run({s.folder}));
    QCOMPARE(s.job.said.percents().size(), reports);
}

void tst_LateFiles::nothingIsDeletedWhenALateFileFails()
{
    Scenario s;
    s.at(said::pass(2, 2), [&] { s.job.makeFile(u"t/late"_s, Secret); });
    s.onCall = [](const FileCall &call) {
        const bool fails = call.kind == FaultPlan::Write && call.path.endsWith(u"/late"_s);
        return fails ? Status{platform::IoDevice, 0, "planned"} : Status();
    };
    QVERIFY(!s.job.run({s.folder}));
    QVERIFY(s.cut.isEmpty());
    QCOMPARE(contentIfAny(s.folder + u"/late"_s), Secret);
    QVERIFY(s.job.lines().contains(said::passFailed(1, 2, 1)));
    QVERIFY(s.job.lines().contains(said::someFailed(1)));
}

void tst_LateFiles::aLateFileThatFailsAfterTheDeletionStays()
{
    Scenario s;
    s.at(said::deleting, [&] { s.job.makeFile(u"t/late"_s, Secret); });
    s.onCall = [](const FileCall &call) {
        const bool fails = call.kind == FaultPlan::Write && call.path.endsWith(u"/late"_s);
        return fails ? Status{platform::IoDevice, 0, "planned"} : Status();
    };
    QVERIFY(!s.job.run({s.folder}));
    QCOMPARE(contentIfAny(s.folder + u"/late"_s), Secret);
    QVERIFY(!QFileInfo::exists(s.folder + u"/sub"_s));
    QVERIFY(s.job.lines().contains(said::someFailed(1)));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryNotRemoved, s.folder}}));
}

// One file is added for every file that is removed.
void tst_LateFiles::whoeverGoesOnIsNotWaitedFor()
{
    Scenario s;
    int made = 0;
    s.onCall = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Remove && made < 100)
            s.job.makeFile(u"t/late%1"_s.arg(++made), Secret);
        return Status();
    };
    QVERIFY(s.job.run({s.folder}));
    QVERIFY(s.job.lines().filter(u"任务期间又出现"_s).size() == 10);
    QVERIFY(QFileInfo::exists(s.folder));
    QVERIFY(s.shortfalls().contains({ShortfallKind::EntryNotRemoved, s.folder}));
    QVERIFY(made < 100);
}

// The random name comes from the job itself.
void tst_LateFiles::aFileThatCannotBeDeletedIsNotFoundAnew()
{
    Scenario s;
    s.onCall = [](const FileCall &call) {
        return call.kind == FaultPlan::Remove ? Status{platform::IoDevice, 0, "planned"} : Status();
    };
    QVERIFY(s.job.run({s.folder}));
    QVERIFY(s.job.lines().filter(u"任务期间又出现"_s).isEmpty());
    QCOMPARE(s.job.files.calls(FaultPlan::Rename).size(), 2);
    QVERIFY(s.shortfalls().contains({ShortfallKind::EntryNotRemoved, s.folder}));
}

void tst_LateFiles::aStopLeavesLateFilesStanding()
{
    Scenario s;
    s.onCall = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Remove && !QFile::exists(s.folder + u"/late"_s)) {
            s.job.makeFile(u"t/late"_s, Secret);
            s.job.stop();
        }
        return Status();
    };
    QVERIFY(!s.job.run({s.folder}));
    QCOMPARE(contentIfAny(s.folder + u"/late"_s), Secret);
    QVERIFY(!QFileInfo::exists(s.folder + u"/sub"_s));
    QCOMPARE(s.job.lines().last(), said::failed);
}

// The folder is a target itself and inside another target; its files are not found twice.
void tst_LateFiles::oneFolderGivenTwice()
{
    Scenario s;
    QVERIFY(s.job.run({s.folder, s.folder + u"/sub"_s, s.folder + u"/a"_s}));
    QVERIFY(!QFileInfo::exists(s.folder));
    QVERIFY(s.job.lines().filter(u"任务期间又出现"_s).isEmpty());
    QVERIFY(s.shortfalls().isEmpty());
}

// The target is no longer held when it is listed again.
void tst_LateFiles::aTargetThatIsMovedAway()
{
    Scenario s;
    for (int i = 0; i < 150; ++i)
        s.job.makeFile(u"many/%1/file"_s.arg(i), Secret);
    s.at(said::deleting, [&] { QFile::rename(s.folder, s.job.path(u"away"_s)); });
    QVERIFY(s.job.run({s.folder, s.job.path(u"many"_s)}));
    QVERIFY(!QFileInfo::exists(s.job.path(u"many"_s)));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryVanished, s.folder + u"/a"_s},
                                               {ShortfallKind::EntryVanished, s.folder + u"/sub/b"_s}}));
    QVERIFY(s.job.lines().filter(u"无法读取文件夹"_s).isEmpty());
}

QUORVEX_SUITE(tst_LateFiles, QCoreApplication)
#include "tst_latefiles.moc"
