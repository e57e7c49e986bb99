#include "filejob.h"
#include "model/joboutcome.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;
using platform::Status;

namespace {

const QString clearing = u"0 正在清除文件系统日志中的文件名..."_s;

// One pass over a folder with two folders in it, on a file system with a journal.
struct Scenario
{
    FileJob job;
    JournaledFolders &journal = job.folders;

    Scenario()
    {
        journal.hasJournal = true;
        job.setPasses({{PatternType::Zeros}});
        job.makeFile(u"above/t/a"_s, "1");
        job.makeFile(u"above/t/sub/b"_s, "2");
        job.makeFile(u"above/t/sub/deep/c"_s, "3");
    }
    bool run() { return job.run({job.path(u"above/t"_s)}); }
    QString above() const { return job.path(u"above"_s); }
    QStringList entriesLeft() const
    {
        return QDir(above()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QString mayStay() const { return u"1 文件系统日志中可能仍保留文件名: "_s + above(); }
    qsizetype changes() const { return journal.calls().filter(u"change "_s).size(); }
};

} // namespace

// What a job does about the names that the journals of file systems keep. The journal is played.
class tst_NameJournals : public QObject
{
    Q_OBJECT

private slots:
    void theJournalComesRoundAfterTheRemoval();
    void namesAreOnTheMediumBeforeTheirFolderGoes();
    void withoutAJournalNothingHappens();
    void withoutALogNamesAreStillInFolders();
    void whereNothingWasRemovedNothingIsWritten();
    void emptyFoldersHaveNamesToo();
    void aFailureIsTold_data();
    void aFailureIsTold();
    void aJournalThatOpensLateIsTold();
    void littleRoomIsEnough();
    void tooLittleRoomIsTold();
    void aStopEndsTheRound();
    void aStopBeforeTheRoundIsTold();
    void whatAKilledRoundLeftIsRemoved();
    void aFolderThatTakesNoEntriesIsPassedOver();
};

void tst_NameJournals::theJournalComesRoundAfterTheRemoval()
{
    Scenario scenario;
    qint64 loggedBefore = -1;
    QStringList leftAtTheEnd;
    scenario.journal.hook = [&](const QString &call) {
        if (call == u"settle")
            leftAtTheEnd = scenario.entriesLeft();
        return Status();
    };
    scenario.job.said.onLine = [&](const QString &line) {
        if (line != clearing)
            return;
        QVERIFY(!QDir(scenario.above() + u"/t"_s).exists());
        loggedBefore = scenario.journal.logged();
    };
    QVERIFY(scenario.run());
    QCOMPARE(loggedBefore, 0);
    const qint64 round = scenario.journal.logged();
    QVERIFY2(round > scenario.journal.size * 17 / 16, qPrintable(QString::number(round)));
    QVERIFY2(round < scenario.journal.size * 2, qPrintable(QString::number(round)));
    QCOMPARE(scenario.entriesLeft(), QStringList());
    QCOMPARE(scenario.journal.calls().last(), u"settle"_s);
    QCOMPARE(leftAtTheEnd, QStringList());
    const QStringList lines = scenario.job.lines();
    QCOMPARE(lines.last(3), (QStringList{clearing, said::allDone(3), said::succeeded}));
    QVERIFY(!scenario.job.task.outcome().hasShortfalls());
}

void tst_NameJournals::namesAreOnTheMediumBeforeTheirFolderGoes()
{
    Scenario scenario;
    QStringList standing;
    scenario.journal.hook = [&](const QString &call) {
        const QDir top(scenario.above() + u"/t"_s);
        if (call == u"settle")
            standing.append(top.exists(u"sub/deep"_s) ? u"deep"_s
                            : top.exists(u"sub"_s)    ? u"sub"_s
                            : top.exists()            ? u"t"_s
                                                      : u"none"_s);
        return Status();
    };
    QVERIFY(scenario.run());
    QCOMPARE(standing, (QStringList{u"deep"_s, u"sub"_s, u"t"_s, u"none"_s}));
}

void tst_NameJournals::withoutAJournalNothingHappens()
{
    Scenario scenario;
    scenario.journal.hasJournal = false;
    QVERIFY(scenario.run());
    QCOMPARE(scenario.journal.calls(), QStringList());
    QVERIFY(!scenario.job.lines().contains(clearing));
}

void tst_NameJournals::withoutALogNamesAreStillInFolders()
{
    Scenario scenario;
    scenario.journal.size = 0;
    QVERIFY(scenario.run());
    QCOMPARE(scenario.journal.calls().count(u"settle"_s), 4);
    QCOMPARE(scenario.changes(), 0);
    QCOMPARE(scenario.job.lines().last(3), (QStringList{said::deleting, said::allDone(3), said::succeeded}));
}

void tst_NameJournals::whereNothingWasRemovedNothingIsWritten()
{
    Scenario scenario;
    scenario.job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Write ? Status{platform::WriteFault, 0, "test"} : Status();
    };
    QVERIFY(!scenario.run());
    QCOMPARE(scenario.journal.calls(), QStringList());
    QVERIFY(!scenario.job.lines().contains(clearing));
}

void tst_NameJournals::emptyFoldersHaveNamesToo()
{
    Scenario scenario;
    scenario.job.makeFolder(u"above/empty"_s);
    QVERIFY(!scenario.job.run({scenario.job.path(u"above/empty"_s)}));
    QCOMPARE(scenario.entriesLeft(), QStringList{u"t"_s});
    QVERIFY(scenario.journal.logged() > scenario.journal.size);
}

void tst_NameJournals::aFailureIsTold_data()
{
    QTest::addColumn<QString>("failing"); // the beginning of the call
    QTest::addColumn<int>("nth");
    QTest::addColumn<bool>("isElsewhere");
    QTest::newRow("the journal cannot be opened") << u"journal"_s << 1 << false;
    QTest::newRow("names do not reach the medium") << u"settle"_s << 1 << false;
    QTest::newRow("nor at the end") << u"settle"_s << 4 << false;
    QTest::newRow("no block can be changed") << u"change"_s << 1 << false;
    QTest::newRow("a block cannot be changed") << u"change"_s << 200 << false;
    QTest::newRow("the journal takes nothing") << u"commit"_s << 1 << false;
    QTest::newRow("the journal takes no more") << u"commit"_s << 3 << false;
    QTest::newRow("the journal lies on another device") << u"none"_s << 1 << true;
}

void tst_NameJournals::aFailureIsTold()
{
    QFETCH(QString, failing);
    QFETCH(int, nth);
    QFETCH(bool, isElsewhere);
    Scenario scenario;
    scenario.journal.isElsewhere = isElsewhere;
    int seen = 0;
    const bool isForEver = failing == u"journal";
    scenario.journal.hook = [&](const QString &call) {
        const bool fires = call.startsWith(failing) && (++seen == nth || isForEver);
        return fires ? Status{platform::IoDevice, 5, "test"} : Status();
    };
    QVERIFY(scenario.run());
    QVERIFY(isElsewhere || seen >= nth);
    const QStringList lines = scenario.job.lines();
    QCOMPARE(lines.last(4), (QStringList{clearing, scenario.mayStay(), said::allDone(3), said::succeeded}));
    QCOMPARE(scenario.entriesLeft(), QStringList());
}

// The round is written in a journal that was opened later, and nothing was settled before.
void tst_NameJournals::aJournalThatOpensLateIsTold()
{
    Scenario scenario;
    bool isFirst = true;
    scenario.journal.hook = [&](const QString &) {
        return std::exchange(isFirst, false) ? Status{platform::IoDevice, 5, "test"} : Status();
    };
    QVERIFY(scenario.job.run({scenario.job.path(u"above/t/a"_s)}));
    QVERIFY(scenario.journal.logged() > scenario.journal.size);
    QVERIFY(scenario.job.lines().contains(scenario.mayStay() + u"/t"_s));
}

void tst_NameJournals::littleRoomIsEnough()
{
    Scenario scenario;
    scenario.journal.size = 4 * 1024 * 1024; // 128 files
    const QStringList blocks{u"fill_000099.tmp"_s, u"fill_000100.tmp"_s, u"fill_000127.tmp"_s};
    scenario.journal.hook = [&](const QString &call) {
        return call.startsWith(u"change"_s) && call.mid(7) >= blocks[1]
                   ? Status{platform::DiskFull, 28, "test"}
                   : Status();
    };
    QVERIFY(scenario.run());
    QVERIFY(scenario.journal.calls().contains(u"change "_s + blocks[0]));
    QCOMPARE(scenario.journal.calls().count(u"change "_s + blocks[1]), 1);
    QCOMPARE(scenario.journal.calls().count(u"change "_s + blocks[2]), 0);
    QVERIFY(scenario.journal.logged() > scenario.journal.size);
    QVERIFY(!scenario.job.lines().contains(scenario.mayStay()));
    QCOMPARE(scenario.entriesLeft(), QStringList());
}

void tst_NameJournals::tooLittleRoomIsTold()
{
    Scenario scenario;
    scenario.journal.hook = [&](const QString &call) {
        return call.startsWith(u"change"_s) && call.mid(7) >= u"fill_000063.tmp"
                   ? Status{platform::DiskFull, 28, "test"}
                   : Status();
    };
    QVERIFY(scenario.run());
    QVERIFY(scenario.job.lines().contains(scenario.mayStay()));
    QCOMPARE(scenario.changes(), 64);
    QCOMPARE(scenario.entriesLeft(), QStringList());
}

void tst_NameJournals::aStopEndsTheRound()
{
    Scenario scenario;
    scenario.journal.hook = [&](const QString &) {
        if (scenario.changes() == 100)
            scenario.job.stop();
        return Status();
    };
    QVERIFY(!scenario.run());
    QCOMPARE(scenario.changes(), 100);
    QCOMPARE(scenario.job.lines().last(4),
             (QStringList{clearing, scenario.mayStay(), said::cancelled, said::failed}));
    QCOMPARE(scenario.entriesLeft(), QStringList());
}

void tst_NameJournals::aStopBeforeTheRoundIsTold()
{
    Scenario scenario;
    scenario.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Remove)
            scenario.job.stop();
        return Status();
    };
    QVERIFY(!scenario.run());
    QCOMPARE(scenario.changes(), 0);
    const QStringList lines = scenario.job.lines();
    QCOMPARE(lines.last(3), (QStringList{scenario.mayStay(), said::cancelled, said::failed}));
    QVERIFY(!lines.contains(clearing));
}

void tst_NameJournals::whatAKilledRoundLeftIsRemoved()
{
    Scenario scenario;
    const QString left = scenario.above() + u"/.quorvex_temp_0123abcd"_s;
    writeFile(left + u"/fill_000000.tmp"_s, {});
    writeFile(left + u"/fill_000001.tmp"_s, {});
    writeFile(scenario.above() + u"/.quorvex_temp_somebody/fill_000000.tmp"_s, {});
    QVERIFY(scenario.run());
    QCOMPARE(scenario.entriesLeft(), QStringList{u".quorvex_temp_somebody"_s});
}

// The first folder of the job is gone by then.
void tst_NameJournals::aFolderThatTakesNoEntriesIsPassedOver()
{
#ifdef Q_OS_WIN
    // The played journal keeps its folder open, and the file systems of Windows have no such journal.
    QSKIP("SKIPPED: Windows removes no folder that is held");
#endif
    Scenario scenario;
    scenario.job.makeFile(u"above/further"_s, "4");
    const QStringList targets{scenario.job.path(u"above/t/sub"_s), scenario.job.path(u"above/t"_s),
                              scenario.job.path(u"above/further"_s)};
    QVERIFY(scenario.job.run(targets));
    QCOMPARE(scenario.entriesLeft(), QStringList());
    QVERIFY(scenario.journal.logged() > scenario.journal.size);
    QVERIFY(!scenario.job.lines().join(u'\n').contains(u"可能仍保留文件名"_s));
}

QUORVEX_SUITE(tst_NameJournals, QCoreApplication)
#include "tst_namejournals.moc"
