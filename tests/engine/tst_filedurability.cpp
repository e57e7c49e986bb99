#include "filejob.h"
#include "model/joboutcome.h"
#include "model/units.h"
#include "support/faultplan.h"
#include "support/faultyfiles.h"
#include "support/powercutfiles.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <atomic>

using namespace Qt::StringLiterals;
using platform::OpenMode;
using platform::Status;

namespace {

constexpr int Files = 7;

const Status failure{platform::IoDevice, 0, "planned"};

QString lost(const QString &path)
{
    return u"2 FlushFileBuffers 失败: "_s + path;
}

// Two passes, the second one read back, over a folder on a drive that can lose power.
struct Scenario
{
    PowerCutFiles drive{platform::Platform::current().files()};
    FaultPlan plan;
    FaultyFiles faulty;
    FileJob job;
    QStringList targets;

    explicit Scenario(quint32 kinds = 0, int call = 0, FaultPlan::Repeat repeat = FaultPlan::Once)
        : plan(kinds, call, platform::IoDevice, repeat)
        , faulty(drive, plan)
        , job(faulty)
    {
        job.setPasses({{PatternType::Zeros}, {PatternType::Ones, 0, true}});
        job.task.setBufferSizeMB(1);
        job.task.setThreadCount(2);
        for (int i = 0; i < Files; ++i)
            job.makeFile(nameOf(i), sizeOf(i));
        targets = {job.path(u"t"_s)};
    }

    static QString nameOf(int i) { return i % 2 ? u"t/sub/%1"_s.arg(i) : u"t/%1"_s.arg(i); }
    QString pathOf(int i) const { return job.path(nameOf(i)); }
    static qsizetype sizeOf(int i) { return i == 3 ? 2 * MiB + 17 : 1 + i * 700; }

    bool run() { return job.run(targets); }
    // Every byte of the file has the value.
    bool holds(int i, char byte) const { return contentIfAny(pathOf(i)) == QByteArray(sizeOf(i), byte); }
    int filesHolding(char byte) const
    {
        int count = 0;
        for (int i = 0; i < Files; ++i)
            count += holds(i, byte);
        return count;
    }
};

} // namespace

// The order in which a file job brings its changes to the medium.
class tst_FileDurability : public QObject
{
    Q_OBJECT

private slots:
    void thePowerCutTakesBackWhatIsNotOnTheMedium();
    void nothingIsDoneTooEarly_data();
    void nothingIsDoneTooEarly();
    void aPassBeginsWhenTheOneBeforeIsOnTheMedium();
    void whatIsReadBackIsOnTheMedium_data();
    void whatIsReadBackIsOnTheMedium();
    void aStopWhileReadingBackOpensNoFurtherFile();
    void oneGroupForEachPassAndOneForTheRemoval();
    void oneGroupForEachFileSystem();
    void lateAndGrownFiles();
    void aStopInMidPassLeavesTheWrittenOnTheMedium();
    void anErrorInMidPassLeavesTheWrittenOnTheMedium();
    void aGroupThatIsNotClosedWellFailsAllItsFiles_data();
    void aGroupThatIsNotClosedWellFailsAllItsFiles();
    void theOtherFileSystemIsNotBlamed();
    void aRemovalThatIsNotOnTheMediumIsNone();
    void withoutAGroupEachFileIsFlushed();
};

// Tests the double itself.
void tst_FileDurability::thePowerCutTakesBackWhatIsNotOnTheMedium()
{
    FileJob job;
    PowerCutFiles drive(platform::Platform::current().files());
    const QString path = job.makeFile(u"a"_s, "before");
    const auto write = [&](const std::shared_ptr<platform::DurabilityGroup> &group, const char *bytes,
                           bool isFlushed) {
        auto file = drive.openIn(group, path, OpenMode::Overwrite);
        QCOMPARE(file.value()->write(bytes, 3).valueOr(-1), 3);
        if (isFlushed)
            QVERIFY(file.value()->flush().ok());
    };
    write(nullptr, "lst", false);
    QCOMPARE(contentOf(path), QByteArray("lstore"));
    QCOMPARE(drive.unsettled(), QStringList{path});
    drive.cutPower();
    QCOMPARE(contentOf(path), QByteArray("before"));

    write(nullptr, "own", true);
    drive.cutPower();
    QCOMPARE(contentOf(path), QByteArray("ownore"));

    const auto group = drive.beginGroup(job.path({}));
    write(group.value(), "lst", true);
    QCOMPARE(drive.unsettled(), QStringList{path});
    drive.cutPower();
    QCOMPARE(contentOf(path), QByteArray("ownore"));
    write(group.value(), "ALL", true);
    QVERIFY(drive.closeGroup(*group.value()).ok());
    QCOMPARE(drive.unsettled(), QStringList());
    drive.cutPower();
    QCOMPARE(contentOf(path), QByteArray("ALLore"));

    const auto bad = drive.beginGroup(job.path({}));
    write(bad.value(), "lst", true);
    drive.onClose = [](const QString &) { return failure; };
    QVERIFY(!drive.closeGroup(*bad.value()).ok());
    QCOMPARE(drive.premature(), QStringList());
    QVERIFY(drive.rename(path, path + u'x').ok());
    QCOMPARE(drive.premature(), QStringList{u"renamed "_s + path});
}

void tst_FileDurability::nothingIsDoneTooEarly_data()
{
    QTest::addColumn<bool>("hasGroups");
    QTest::newRow("in groups") << true;
    QTest::newRow("each file by itself") << false;
}

void tst_FileDurability::nothingIsDoneTooEarly()
{
    QFETCH(bool, hasGroups);
    Scenario scenario;
    scenario.drive.hasGroups = hasGroups;
    scenario.job.task.setMethod(WipeMethod::fromType(WipeMethod::GermanVsitr));
    QVERIFY(scenario.run());
    QCOMPARE(scenario.drive.premature(), QStringList());
    QCOMPARE(scenario.drive.unsettled(), QStringList());
    QCOMPARE(scenario.drive.groupsBegun(), hasGroups ? 7 + 1 : 0);
    QVERIFY(!QDir(scenario.targets[0]).exists());
}

void tst_FileDurability::aPassBeginsWhenTheOneBeforeIsOnTheMedium()
{
    Scenario scenario;
    QStringList unsettled;
    int openGroups = 0;
    scenario.job.said.onLine = [&](const QString &line) {
        if (!line.startsWith(u"pass "_s) && line != said::deleting)
            return;
        unsettled += scenario.drive.unsettled();
        openGroups += scenario.drive.groupsOpen();
    };
    QVERIFY(scenario.run());
    QCOMPARE(unsettled, QStringList());
    QCOMPARE(openGroups, 0);
}

void tst_FileDurability::whatIsReadBackIsOnTheMedium_data()
{
    nothingIsDoneTooEarly_data();
}

void tst_FileDurability::whatIsReadBackIsOnTheMedium()
{
    QFETCH(bool, hasGroups);
    Scenario scenario;
    scenario.drive.hasGroups = hasGroups;
    std::atomic<int> early = 0;
    scenario.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Read && scenario.drive.unsettled().contains(call.path))
            ++early;
        return Status();
    };
    QVERIFY(scenario.run());
    QCOMPARE(early.load(), 0);
    QCOMPARE(scenario.job.task.report().verificationSampleSize, 3 * Files);
    QCOMPARE(scenario.job.files.opened(OpenMode::Verify).size(), Files);
}

void tst_FileDurability::aStopWhileReadingBackOpensNoFurtherFile()
{
    Scenario scenario;
    scenario.job.task.setThreadCount(1);
    scenario.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Read)
            scenario.job.stop();
        return Status();
    };
    QVERIFY(!scenario.run());
    QCOMPARE(scenario.job.files.opened(OpenMode::Verify).size(), 1);
    QCOMPARE(scenario.job.lines().last(3), (QStringList{said::pass(2, 2), said::cancelled, said::failed}));
}

void tst_FileDurability::oneGroupForEachPassAndOneForTheRemoval()
{
    Scenario scenario;
    QList<bool> standing;
    scenario.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::CloseGroup)
            standing.append(QDir(scenario.targets[0]).exists());
        return Status();
    };
    QVERIFY(scenario.run());
    // The folder names must be gone from the medium too.
    QCOMPARE(standing, (QList<bool>{true, true, false}));
    QList<int> order;
    for (const FileCall &call : scenario.job.files.calls()) {
        const bool isStep = (call.kind == FaultPlan::Open && call.mode != OpenMode::Verify) ||
                            (call.kind & (FaultPlan::BeginGroup | FaultPlan::CloseGroup));
        const int step = call.kind == FaultPlan::Open ? static_cast<int>(call.mode) : -int(call.kind);
        if (isStep && (order.isEmpty() || order.last() != step))
            order.append(step);
    }
    const int begin = -int(FaultPlan::BeginGroup);
    const int close = -int(FaultPlan::CloseGroup);
    const int overwrite = static_cast<int>(OpenMode::Overwrite);
    const int cut = static_cast<int>(OpenMode::Truncate);
    const QList<int> expected{begin, overwrite, close, begin, overwrite, close, begin, cut, close};
    QCOMPARE(order, expected);
    QCOMPARE(scenario.drive.groupsOpen(), 0);
}

void tst_FileDurability::oneGroupForEachFileSystem()
{
    Scenario scenario;
    scenario.drive.fileSystemOf = [](const QString &folder) {
        return folder.endsWith(u"/sub"_s) ? u"sub"_s : QString();
    };
    QVERIFY(scenario.run());
    QCOMPARE(scenario.drive.groupsBegun(), 2 * (2 + 1));
    QCOMPARE(scenario.drive.groupsOpen(), 0);
    QCOMPARE(scenario.drive.premature(), QStringList());
}

void tst_FileDurability::lateAndGrownFiles()
{
    Scenario scenario;
    scenario.job.said.onLine = [&](const QString &line) {
        if (line == said::pass(2, 2))
            scenario.job.makeFile(u"t/late"_s, 5'000);
        if (line == said::deleting)
            writeFile(scenario.pathOf(4), contentOf(scenario.pathOf(4)) + "grown");
    };
    QVERIFY(scenario.run());
    QCOMPARE(scenario.drive.premature(), QStringList());
    QCOMPARE(scenario.drive.unsettled(), QStringList());
    QVERIFY(!QDir(scenario.targets[0]).exists());
}

void tst_FileDurability::aStopInMidPassLeavesTheWrittenOnTheMedium()
{
    Scenario scenario;
    scenario.job.task.setThreadCount(1);
    int writes = 0;
    scenario.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Write && ++writes == 3)
            scenario.job.stop();
        return Status();
    };
    QVERIFY(!scenario.run());
    QCOMPARE(scenario.job.lines().last(2), (QStringList{said::cancelled, said::failed}));
    QCOMPARE(scenario.drive.groupsBegun(), 1);
    QCOMPARE(scenario.drive.groupsOpen(), 0);
    QCOMPARE(scenario.drive.unsettled(), QStringList());
    const int overwritten = scenario.filesHolding('\0');
    QVERIFY(overwritten > 0);
    scenario.drive.cutPower();
    QCOMPARE(scenario.filesHolding('\0'), overwritten);
    QVERIFY(scenario.job.files.opened(OpenMode::Truncate).isEmpty());
}

void tst_FileDurability::anErrorInMidPassLeavesTheWrittenOnTheMedium()
{
    Scenario scenario(FaultPlan::Write, 2);
    QVERIFY(!scenario.run());
    QVERIFY(scenario.job.lines().contains(said::passFailed(1, 2, 1)));
    QCOMPARE(scenario.drive.groupsOpen(), 0);
    QCOMPARE(scenario.filesHolding('\0'), Files - 1);
    scenario.drive.cutPower();
    QCOMPARE(scenario.filesHolding('\0'), Files - 1);
    QVERIFY(scenario.job.files.opened(OpenMode::Truncate).isEmpty());
}

void tst_FileDurability::aGroupThatIsNotClosedWellFailsAllItsFiles_data()
{
    QTest::addColumn<int>("pass");
    QTest::newRow("first pass") << 1;
    QTest::newRow("last pass") << 2;
}

void tst_FileDurability::aGroupThatIsNotClosedWellFailsAllItsFiles()
{
    QFETCH(int, pass);
    Scenario scenario(FaultPlan::CloseGroup, pass);
    QVERIFY(!scenario.run());
    QCOMPARE(scenario.plan.fired(), 1);
    const QStringList lines = scenario.job.lines();
    for (int i = 0; i < Files; ++i) {
        QCOMPARE(lines.count(lost(scenario.pathOf(i))), 1);
        QCOMPARE(QFile(scenario.pathOf(i)).size(), Scenario::sizeOf(i));
    }
    QVERIFY(lines.contains(said::passFailed(pass, 2, Files)));
    QVERIFY(lines.contains(said::someFailed(Files)));
    QVERIFY(!lines.contains(said::pass(pass + 1, 2)));
    QVERIFY(!lines.contains(said::deleting));
    const ObservedFiles &calls = scenario.job.files;
    QVERIFY(calls.calls(FaultPlan::SetEnd | FaultPlan::Rename | FaultPlan::Remove).isEmpty());
    // Nothing is read back after the failure.
    QVERIFY(calls.calls(FaultPlan::Read).isEmpty());
    QCOMPARE(scenario.drive.unsettled().size(), Files);
}

void tst_FileDurability::theOtherFileSystemIsNotBlamed()
{
    Scenario scenario;
    scenario.job.setPasses({{PatternType::Ones, 0, true}});
    scenario.drive.fileSystemOf = [](const QString &folder) {
        return folder.endsWith(u"/sub"_s) ? u"sub"_s : QString();
    };
    scenario.drive.onClose = [](const QString &fileSystem) {
        return fileSystem.isEmpty() ? Status() : failure;
    };
    QVERIFY(!scenario.run());
    const QStringList lines = scenario.job.lines();
    QVERIFY(lines.contains(said::passFailed(1, 1, Files / 2)));
    for (int i = 0; i < Files; ++i)
        QCOMPARE(lines.count(lost(scenario.pathOf(i))), i % 2);
    QCOMPARE(scenario.job.files.opened(OpenMode::Verify).size(), Files - Files / 2);
    QVERIFY(scenario.job.files.opened(OpenMode::Truncate).isEmpty());
}

void tst_FileDurability::aRemovalThatIsNotOnTheMediumIsNone()
{
    Scenario scenario(FaultPlan::CloseGroup, 3);
    QVERIFY(!scenario.run());
    QCOMPARE(scenario.plan.fired(), 1);
    const QStringList lines = scenario.job.lines();
    QVERIFY(lines.contains(said::deleting));
    QVERIFY(lines.contains(said::someFailed(Files)));
    QVERIFY(!lines.contains(said::allDone(Files)));
    const QList<Shortfall> shortfalls = scenario.job.task.outcome().shortfalls();
    for (int i = 0; i < Files; ++i) {
        QCOMPARE(lines.count(lost(scenario.pathOf(i))), 1);
        QVERIFY(shortfalls.contains({ShortfallKind::EntryNotRemoved, scenario.pathOf(i)}));
    }
}

void tst_FileDurability::withoutAGroupEachFileIsFlushed()
{
    Scenario scenario(FaultPlan::BeginGroup, 1, FaultPlan::FromThenOn);
    QVERIFY(scenario.run());
    QVERIFY(scenario.plan.fired() > 0);
    QCOMPARE(scenario.drive.groupsBegun(), 0);
    QCOMPARE(scenario.drive.premature(), QStringList());
    QCOMPARE(scenario.job.files.calls(FaultPlan::Flush).size(), Files * (2 + 1));
    QVERIFY(scenario.job.files.calls(FaultPlan::CloseGroup).isEmpty());
}

QUORVEX_SUITE(tst_FileDurability, QCoreApplication)
#include "tst_filedurability.moc"
