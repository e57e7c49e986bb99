#include "engine/fillnames.h"
#include "engine/freespacefixture.h"
#include "support/faultplan.h"
#include "support/memoryvolume.h"
#include "support/reason.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <utility>

using namespace freespace;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(platform::ErrorCode)

// Failures during a free-space job, and the files they leave.
class tst_FreeSpaceWipeFaults : public QObject
{
    Q_OBJECT

private slots:
    // Every call fails once.
    void faultLoop_data();
    void faultLoop();
    void lastingFaultLoop_data();
    void lastingFaultLoop();
    void outOfMemoryLoop();

    // Writing.
    void fullVolumeEndsTheFileOnly_data();
    void fullVolumeEndsTheFileOnly();
    void shortWriteIsCountedAndGoneOnFrom();
    void fileSizeLimitBeginsAnotherFile();
    void failedWriteIsNeverASuccess_data();
    void failedWriteIsNeverASuccess();
    void failedFlushIsAFailedWrite();
    void fillFileThatCannotBeCreatedEndsThePass();
    void fillFileThatCannotBeCreatedOnALostVolumeFails_data();
    void fillFileThatCannotBeCreatedOnALostVolumeFails();
    void volumeLostAtTheLastFillFileFails();
    void volumeLostAtTheEndOfAFillFileFails();
    void fillFileThatCannotBeRemovedDoesNotStopTheOthers();
    void fillFileThatIsHeldForAMomentIsRemoved();
    void fillFileThatIsHeldBetweenPassesIsRemovedAtTheEnd();
    void roomThatIsNotGivenIsTold();
    void roomThatOthersGiveBackIsNoCompression();
    void volumeThatCompressesIsNotFilledForEver();
    void volumeThatCompressesALittleIsFilledInEveryPass();
    void spaceThatComesBackLateIsWaitedFor();
    void spaceThatNeverComesBackFailsTheJob();
    void spaceThatSomebodyElseTakesIsNotWaitedFor();
    void stopEndsTheWaitForSpace();
    void spaceOfFilesDeletedJustBeforeIsFilledToo();
    void unfinishedMethodWipedNothing();
    void residueThatCannotBeCleanedIsTold();

    // Volumes that go away.
    void volumeGoneAtTheStart();
    void volumeThatIsNotMountedAnyMore_data();
    void volumeThatIsNotMountedAnyMore();
    void crashedVolumeGoneAtTheStart();
    void volumeThatVanishesLoop_data();
    void volumeThatVanishesLoop();
    void unmountedVolumeIsNotReplacedByItsParent_data();
    void unmountedVolumeIsNotReplacedByItsParent();
    void temporaryFolderTakenAwayEndsTheJob();

    // Left-overs of an earlier job.
    void fillFilesOfACrashAreRemovedFirst();
    void leftOverFilesThatCannotBeRemovedAreNotAnnounced();
    void nothingElseOfALeftOverIsTouched();
    void leftOverFileWithAFurtherNameGivesNoSpaceBack();
    void emptyResidueFolderOfAnEarlierJobGoesQuietly();
    void residueOfAKilledJobIsRemoved();
    void volumeThatAnotherJobFillsIsLeftAlone_data();
    void volumeThatAnotherJobFillsIsLeftAlone();
    void jobsThatBeginAtTheSameMomentLeaveEachOtherAlone();
    void emptyFolderThatNobodyCanClaimIsNoJob();
    void volumeThatACrashLeftFullIsWiped();

    // Stop.
    void stopBeforeTheStart();
    void stopInEveryStage_data();
    void stopInEveryStage();
    void stopBetweenVolumesLeavesTheNextAlone();
    void stopDuringAPauseFailsTheFill();
    void workerThatIsNeverRunLeavesQuietly();
};

namespace {

const QString Root = u"/media/data/"_s;
constexpr qint64 UserBytes = 12345;

// A volume with a user's files and the left-overs of another job's folder.
void furnish(MemoryVolume &volume, qint64 freeBytes)
{
    volume.freeBytes[Root] = freeBytes;
    volume.addFile(Root + u"letter.txt"_s, UserBytes);
    volume.addFolder(Root + u"photos"_s);
    volume.addFile(Root + u"photos/fill_000000.tmp"_s, UserBytes);
    volume.addFolder(Root + u".quorvex_temp_0badcafe"_s);
    volume.addFile(Root + u".quorvex_temp_0badcafe/fill_000000.tmp"_s, 0);
}

bool userFilesStand(const MemoryVolume &volume)
{
    return volume.entries.value(Root + u"letter.txt"_s).size == UserBytes &&
           volume.entries.value(Root + u"photos/fill_000000.tmp"_s).size == UserBytes &&
           !volume.removed.contains(Root + u"photos/fill_000000.tmp"_s);
}

QStringList fillFilesLeft(const MemoryVolume &volume)
{
    QStringList files = fillFiles(volume);
    files.removeAll(Root + u"photos/fill_000000.tmp"_s);
    return files;
}

void prepare(Job &job)
{
    job.setVolume(u"/media/data"_s);
    job.setPasses({{PatternType::Zeros}, {PatternType::Random}});
}

// Whether an I/O error of the call means that data was not overwritten, or that the volume is gone.
bool mattersToTheResult(FaultPlan::Kind kind, const QString &path)
{
    const bool isResidue = path.contains(u"/mft_clean"_s) || path.contains(u"/dir_clean"_s);
    switch (kind) {
    case FaultPlan::Open:
    case FaultPlan::Write:
    case FaultPlan::Flush:
    case FaultPlan::CreateFolder:
        return !isResidue;
    case FaultPlan::Space:
        return true;
    case FaultPlan::RemoveFolder:
        return !path.endsWith(u"0badcafe"_s);
    default:
        return false;
    }
}

// The temporary folder is created twice, the second time for the residue steps only.
bool isOfTheResidue(quint32 kind, const Job &job)
{
    return kind == FaultPlan::CreateFolder && job.logged(u"正在清理文件系统残留..."_s, 0);
}

constexpr std::array AllKinds{FaultPlan::Open,      FaultPlan::Write, FaultPlan::Flush,
                              FaultPlan::Remove,    FaultPlan::List,  FaultPlan::CreateFolder,
                              FaultPlan::Hide,      FaultPlan::Space, FaultPlan::RemoveFolder,
                              FaultPlan::RemoveTree};

const char *nameOf(FaultPlan::Kind kind)
{
    switch (kind) {
    case FaultPlan::Open:
        return "open";
    case FaultPlan::Write:
        return "write";
    case FaultPlan::Flush:
        return "flush";
    case FaultPlan::Remove:
        return "remove";
    case FaultPlan::List:
        return "list";
    case FaultPlan::CreateFolder:
        return "create folder";
    case FaultPlan::Hide:
        return "hide";
    case FaultPlan::Space:
        return "space";
    case FaultPlan::RemoveFolder:
        return "remove folder";
    case FaultPlan::RemoveTree:
        return "remove tree";
    default:
        return "other";
    }
}

void addKinds()
{
    QTest::addColumn<quint32>("kind");
    for (const FaultPlan::Kind kind : AllKinds)
        QTest::newRow(nameOf(kind)) << static_cast<quint32>(kind);
}

// The thousand record files fail alike, so every 40th of them is enough.
int nextCall(int call, const MemoryVolume &volume)
{
    const bool inResidue = !volume.faulted.isEmpty() && volume.faulted.last().contains(u"_clean/"_s);
    return call + (inResidue ? 40 : 1);
}

} // namespace

void tst_FreeSpaceWipeFaults::faultLoop_data()
{
    addKinds();
}

void tst_FreeSpaceWipeFaults::faultLoop()
{
    QFETCH(const quint32, kind);
    int fired = 0;
    for (int call = 1;;) {
        Machine machine;
        furnish(machine.volume, Reserve + 5 * MiB / 2);
        FaultPlan plan(kind, call, platform::IoDevice);
        machine.volume.setPlan(&plan);
        Job job;
        prepare(job);
        job.run();

        const QByteArray where = QByteArray::number(call) + ' ' + machine.volume.faulted.join(u' ').toUtf8();
        QCOMPARE(job.finished.size(), 1);
        QVERIFY2(!job.signalledAfterTheEnd, where);
        QCOMPARE(machine.volume.openHandles, 0);
        QVERIFY2(userFilesStand(machine.volume), where);
        for (const QString &file : fillFilesLeft(machine.volume)) {
            QVERIFY2(machine.volume.refusedRemovals.contains(file) ||
                         (kind == FaultPlan::List && file.contains(u"0badcafe"_s)),
                     where);
        }
        QVERIFY2(machine.volume.pathsBelow(QString()).filter(u"_clean/"_s).isEmpty() ||
                     kind == FaultPlan::RemoveTree,
                 where);
        if (plan.fired() == 0) {
            QVERIFY(job.succeeded());
            QVERIFY(!job.log.contains(LogLine{u"文件系统残留清理不完整，错误码: 1117"_s, 1}));
            break;
        }
        ++fired;
        const QString path = machine.volume.faulted.first();
        // The first query of the free space only serves the wait for the space of left-overs.
        const bool matters = mattersToTheResult(static_cast<FaultPlan::Kind>(kind), path) &&
                             !(kind == FaultPlan::Space && call == 1) && !isOfTheResidue(kind, job);
        QVERIFY2(job.finished.first() == !matters, where);
        QVERIFY2(!matters || !job.log.contains(LogLine{u"空闲空间擦除完成!"_s, 0}), where);
        if (path.contains(u"_clean"_s) || isOfTheResidue(kind, job))
            QVERIFY2(job.logged(u"文件系统残留清理不完整，错误码: 1117"_s, 1), where);
        call = nextCall(call, machine.volume);
    }
    QVERIFY2(fired > 0, "this kind of call never happens");
}

void tst_FreeSpaceWipeFaults::lastingFaultLoop_data()
{
    addKinds();
}

void tst_FreeSpaceWipeFaults::lastingFaultLoop()
{
    QFETCH(const quint32, kind);
    for (int call = 1;;) {
        Machine machine;
        furnish(machine.volume, Reserve + 5 * MiB / 2);
        FaultPlan plan(kind, call, platform::IoDevice, FaultPlan::FromThenOn);
        machine.volume.setPlan(&plan);
        Job job;
        prepare(job);
        job.run();

        const QByteArray where =
            QByteArray::number(call) + ' ' + machine.volume.faulted.mid(0, 1).join(u' ').toUtf8();
        QCOMPARE(job.finished.size(), 1);
        QCOMPARE(machine.volume.openHandles, 0);
        QVERIFY2(userFilesStand(machine.volume), where);
        for (const QString &file : fillFilesLeft(machine.volume)) {
            QVERIFY2(machine.volume.refusedRemovals.contains(file) ||
                         (kind == FaultPlan::List && file.contains(u"0badcafe"_s)),
                     where);
        }
        if (plan.fired() == 0)
            break;
        bool matters = false;
        for (const QString &path : std::as_const(machine.volume.faulted))
            matters |= mattersToTheResult(static_cast<FaultPlan::Kind>(kind), path);
        matters = matters && !isOfTheResidue(kind, job);
        QVERIFY2(job.finished.first() == !matters, where);
        call = nextCall(call, machine.volume);
    }
}

void tst_FreeSpaceWipeFaults::outOfMemoryLoop()
{
    for (int call = 1;; call += call < 60 ? 1 : 97) {
        Machine machine;
        furnish(machine.volume, Reserve + 5 * MiB / 2);
        int calls = 0;
        bool thrown = false;
        machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
            // The clean-up runs without spare memory, or not at all.
            const bool cleansUp =
                kind == FaultPlan::Remove || kind == FaultPlan::RemoveFolder || kind == FaultPlan::RemoveTree;
            if (cleansUp || ++calls != call)
                return;
            thrown = true;
            throw std::bad_alloc();
        };
        Job job;
        prepare(job);
        job.run();

        QCOMPARE(job.finished.size(), 1);
        QVERIFY(!job.signalledAfterTheEnd);
        QCOMPARE(machine.volume.openHandles, 0);
        if (!thrown) {
            QVERIFY(job.succeeded());
            break;
        }
        QVERIFY(job.failed());
        QCOMPARE(job.errors, QStringList{u"内存分配失败"_s});
        QVERIFY(userFilesStand(machine.volume));
        QVERIFY(
            fillFiles(machine.volume).filter(QRegularExpression(u"quorvex_temp_(?!0badcafe)"_s)).isEmpty());
        QVERIFY(machine.volume.pathsBelow(QString()).filter(u"_clean/"_s).isEmpty());
    }
}

void tst_FreeSpaceWipeFaults::fullVolumeEndsTheFileOnly_data()
{
    QTest::addColumn<quint32>("kind");
    QTest::addColumn<platform::ErrorCode>("error");
    QTest::newRow("write, disk full") << quint32{FaultPlan::Write} << platform::DiskFull;
    QTest::newRow("write, file too large") << quint32{FaultPlan::Write} << platform::FileTooLarge;
    QTest::newRow("flush, disk full") << quint32{FaultPlan::Flush} << platform::DiskFull;
    QTest::newRow("flush, file too large") << quint32{FaultPlan::Flush} << platform::FileTooLarge;
}

void tst_FreeSpaceWipeFaults::fullVolumeEndsTheFileOnly()
{
    QFETCH(const quint32, kind);
    QFETCH(const platform::ErrorCode, error);
    // The third chunk of the first file is refused. That file already has a whole buffer, so another file
    // follows.
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    FaultPlan plan(kind, 3, error);
    machine.volume.setPlan(&plan);
    Job job;
    prepare(job);
    job.setPasses({{PatternType::Zeros}});
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(plan.fired(), 1);
    const auto files = closedFillFiles(machine.volume);
    QCOMPARE(files.size(), 2);
    // A chunk that could not be flushed uses space, but does not count as written.
    const qint64 counted = (kind == FaultPlan::Flush ? 4 : 5) * MiB;
    QVERIFY(job.logged(u"已写入: %1.00 MB"_s.arg(counted / MiB), 0));
    QCOMPARE(job.wipedSectors(), static_cast<quint64>(counted / 512));
    for (const LogLine &line : std::as_const(job.log))
        QCOMPARE(line.level, 0);
}

void tst_FreeSpaceWipeFaults::shortWriteIsCountedAndGoneOnFrom()
{
    // The volume takes less than the free bytes that it reports.
    Machine machine;
    furnish(machine.volume, Reserve + 4 * MiB);
    Job job;
    prepare(job);
    job.setPasses({{PatternType::Zeros}});
    bool shrunk = false;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind == FaultPlan::Write && machine.volume.writes.size() == 1 && !std::exchange(shrunk, true))
            machine.volume.freeBytes[Root] = MiB / 2;
    };
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"已写入: 1.50 MB"_s, 0));
}

void tst_FreeSpaceWipeFaults::fileSizeLimitBeginsAnotherFile()
{
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    machine.volume.largestFile = 2 * MiB;
    Job job;
    prepare(job);
    job.setPasses({{PatternType::Zeros}});
    job.run();
    QVERIFY(job.succeeded());
    QList<qint64> sizes;
    for (const auto &file : closedFillFiles(machine.volume))
        sizes.append(file.size);
    QCOMPARE(sizes, (QList<qint64>{2 * MiB, 2 * MiB, MiB}));
    QVERIFY(job.logged(u"已写入: 5.00 MB"_s, 0));
}

void tst_FreeSpaceWipeFaults::failedWriteIsNeverASuccess_data()
{
    QTest::addColumn<platform::ErrorCode>("error");
    QTest::newRow("input/output") << platform::IoDevice;
    QTest::newRow("not ready") << platform::NotReady;
    QTest::newRow("access denied") << platform::AccessDenied;
    QTest::newRow("write-protected") << platform::WriteProtect;
    QTest::newRow("quota") << platform::DiskQuotaExceeded;
    QTest::newRow("general") << platform::GeneralFailure;
}

void tst_FreeSpaceWipeFaults::failedWriteIsNeverASuccess()
{
    QFETCH(const platform::ErrorCode, error);
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    FaultPlan plan(FaultPlan::Write, 3, error);
    machine.volume.setPlan(&plan);
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.failed());
    QVERIFY(job.logged(u"写入错误，位置: 2097152，错误码: %1"_s.arg(error), 2));
    // Described in words where the number alone says little.
    QString words;
    if (error == platform::NotReady)
        words = u"错误: 设备已断开，或介质已更换"_s;
    if (error == platform::IoDevice || error == platform::GeneralFailure)
        words = u"错误: 设备或介质故障"_s;
    QCOMPARE(job.log.last().text.startsWith(u"错误: "_s) ? job.log.last().text : QString(), words);
    QCOMPARE(job.errors, QStringList{u"填充空闲空间失败"_s});
    QCOMPARE(fillFilesLeft(machine.volume), QStringList());
    QVERIFY(machine.volume.pathsBelow(Root).filter(u"quorvex"_s).isEmpty());
    QCOMPARE(job.wipedSectors(), 0u);
}

void tst_FreeSpaceWipeFaults::failedFlushIsAFailedWrite()
{
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    FaultPlan plan(FaultPlan::Flush, 2, platform::IoDevice);
    machine.volume.setPlan(&plan);
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.failed());
    QVERIFY(job.logged(u"写入错误，位置: 1048576，错误码: 1117"_s, 2));
    QCOMPARE(plan.seen(), 2); // not retried
    QCOMPARE(job.errors, QStringList{u"填充空闲空间失败"_s});
}

void tst_FreeSpaceWipeFaults::fillFileThatCannotBeCreatedEndsThePass()
{
    Machine machine;
    furnish(machine.volume, Reserve + 2 * MiB);
    FaultPlan plan(FaultPlan::Open, 1, platform::AccessDenied);
    machine.volume.setPlan(&plan);
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.succeeded());
    const qsizetype pass = job.log.indexOf(LogLine{u"第 1/2 次覆写 (模式: 0x00)"_s, 0});
    QVERIFY(compareLogs(job.log.mid(pass + 1, 4), {
                                                      {u"无法创建填充文件: 错误码: 5"_s, 1},
                                                      {u"已写入: 0 B"_s, 0},
                                                      {u"第 2/2 次覆写 (模式: 随机)"_s, 0},
                                                      {u"空闲空间已填满"_s, 0},
                                                  }));
    QVERIFY(job.logged(u"已写入: 2.00 MB"_s, 0));
    QCOMPARE(job.wipedSectors(), 0u);
}

void tst_FreeSpaceWipeFaults::fillFileThatCannotBeCreatedOnALostVolumeFails_data()
{
    QTest::addColumn<platform::ErrorCode>("error");
    QTest::newRow("not ready") << platform::NotReady;
    QTest::newRow("input/output") << platform::IoDevice;
    QTest::newRow("unmounted") << platform::PathNotFound;
    QTest::newRow("read-only after an error") << platform::WriteProtect;
    for (const quint32 code :
         {20u, 31u, 34u, 55u, 59u, 64u, 433u, 483u, 1005u, 1006u, 1110u, 1112u, 1167u, 1235u, 1392u, 1617u})
        QTest::addRow("%u", code) << static_cast<platform::ErrorCode>(code);
}

void tst_FreeSpaceWipeFaults::fillFileThatCannotBeCreatedOnALostVolumeFails()
{
    QFETCH(const platform::ErrorCode, error);
    Machine machine;
    furnish(machine.volume, Reserve + 2 * MiB);
    FaultPlan plan(FaultPlan::Open, 1, error);
    machine.volume.setPlan(&plan);
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.failed());
    QVERIFY(compareLogs(job.log.last(2), {
                                             {u"无法创建填充文件: 错误码: %1"_s.arg(error), 1},
                                             {u"卷不再可用，错误码: %1"_s.arg(error), 2},
                                         }));
    QCOMPARE(job.errors, QStringList{u"填充空闲空间失败"_s});
}

// The volume vanishes in the last pass, and the error of the file does not show it.
void tst_FreeSpaceWipeFaults::volumeLostAtTheLastFillFileFails()
{
    Machine machine;
    furnish(machine.volume, Reserve + 2 * MiB);
    FaultPlan plan(FaultPlan::Open | FaultPlan::Space, 1, platform::AccessDenied, FaultPlan::FromThenOn);
    int opened = 0;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind == FaultPlan::Open && path.endsWith(u"/fill_000000.tmp"_s) &&
            !path.contains(u"0badcafe"_s) && ++opened == 2)
            machine.volume.setPlan(&plan);
    };
    Job job;
    prepare(job);
    job.run();
    QCOMPARE(opened, 2);
    QVERIFY(job.failed());
    QVERIFY(job.logged(u"卷不再可用，错误码: 5"_s, 2));
    QCOMPARE(job.errors, QStringList{u"填充空闲空间失败"_s});
}

// A volume that accepts no more bytes need not be full.
void tst_FreeSpaceWipeFaults::volumeLostAtTheEndOfAFillFileFails()
{
    Machine machine;
    furnish(machine.volume, Reserve + 2 * MiB);
    FaultPlan full(FaultPlan::Write, 1, platform::DiskFull);
    FaultPlan gone(FaultPlan::Space, 1, platform::AccessDenied, FaultPlan::FromThenOn);
    machine.volume.setPlan(&full);
    machine.volume.onCall = [&](FaultPlan::Kind, const QString &) {
        if (full.fired() > 0)
            machine.volume.setPlan(&gone);
    };
    Job job;
    prepare(job);
    job.setPasses({{PatternType::Zeros}});
    job.run();
    QCOMPARE(full.fired(), 1);
    QVERIFY(job.failed());
    QVERIFY(job.logged(u"卷不再可用，错误码: 5"_s, 2));
    QCOMPARE(job.errors, QStringList{u"填充空闲空间失败"_s});
}

void tst_FreeSpaceWipeFaults::fillFileThatCannotBeRemovedDoesNotStopTheOthers()
{
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    machine.volume.largestFile = 2 * MiB;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind == FaultPlan::Open && path.endsWith(u"/fill_000001.tmp"_s))
            machine.volume.unremovable = QStringList{path};
    };
    Job job;
    prepare(job);
    job.setPasses({{PatternType::Zeros}});
    job.run();
    QVERIFY(job.succeeded());
    const QStringList left = fillFilesLeft(machine.volume);
    QCOMPARE(left.size(), 1);
    QVERIFY(left.first().endsWith(u"/fill_000001.tmp"_s));
}

void tst_FreeSpaceWipeFaults::fillFileThatIsHeldForAMomentIsRemoved()
{
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    int attempts = 0;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (!path.endsWith(u"/fill_000000.tmp"_s) || path.contains(u"0badcafe"_s))
            return;
        if (kind == FaultPlan::Open)
            machine.volume.unremovable = QStringList{path};
        if (kind == FaultPlan::Remove && ++attempts == 10)
            machine.volume.unremovable.clear();
    };
    Job job;
    prepare(job);
    job.setPasses({{PatternType::Zeros}});
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(attempts, 10);
    QCOMPARE(fillFilesLeft(machine.volume), QStringList());
    QVERIFY(!job.task.outcome().has(ShortfallKind::FillFilesLeft));
}

void tst_FreeSpaceWipeFaults::fillFileThatIsHeldBetweenPassesIsRemovedAtTheEnd()
{
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    machine.volume.largestFile = 2 * MiB;
    int passes = 0;
    Job job;
    QObject::connect(&job.worker, &BaseWipeWorker::passChanged, &job, [&] { ++passes; });
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind == FaultPlan::Open && path.endsWith(u"/fill_000001.tmp"_s) && passes == 1)
            machine.volume.unremovable = QStringList{path};
        if (kind == FaultPlan::Write && passes == 2)
            machine.volume.unremovable.clear();
    };
    prepare(job);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(fillFilesLeft(machine.volume), QStringList());
    QVERIFY(!job.task.outcome().has(ShortfallKind::FillFilesLeft));
    // The second pass filled all space but that of the first pass's file, whose name it did not reuse.
    QVERIFY(job.task.outcome().shortfalls().contains(Shortfall{ShortfallKind::RoomLeft, Root, 2 * MiB}));
    QVERIFY(job.logged(u"已写入: 3.00 MB"_s, 0));
    QCOMPARE(job.wipedSectors(), static_cast<quint64>(3 * MiB / 512));
}

// A quota or the administrator's reserve leaves free space that the job cannot use.
void tst_FreeSpaceWipeFaults::roomThatIsNotGivenIsTold()
{
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    FaultPlan plan(FaultPlan::Write, 1, platform::DiskFull);
    machine.volume.setPlan(&plan);
    Job job;
    prepare(job);
    job.setPasses({{PatternType::Zeros}});
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(plan.fired(), 1);
    QVERIFY(job.logged(u"警告: 文件系统不再接受数据，仍有 5.00 MB 空闲空间未填满"_s, 1));
}

void tst_FreeSpaceWipeFaults::roomThatOthersGiveBackIsNoCompression()
{
    Machine machine;
    furnish(machine.volume, Reserve + 60 * MiB);
    bool isGiven = false;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind == FaultPlan::Flush && !std::exchange(isGiven, true))
            machine.volume.freeBytes[Root] += 3 * GiB;
    };
    Job job;
    prepare(job);
    job.setPasses({{PatternType::Zeros}});
    job.task.setBufferSizeMB(16);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.wipedSectors(), static_cast<quint64>((60 * MiB + 3 * GiB) / 512));
}

void tst_FreeSpaceWipeFaults::volumeThatCompressesIsNotFilledForEver()
{
    Machine machine;
    furnish(machine.volume, Reserve + 60 * MiB);
    machine.volume.storedPercent = 0;
    Job job;
    prepare(job);
    job.task.setBufferSizeMB(16);
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.log.last(), (LogLine{u"空闲空间没有减少，文件系统可能压缩数据"_s, 2}));
    QCOMPARE(job.errors, QStringList{u"填充空闲空间失败"_s});
    qint64 written = 0;
    for (const auto &write : fillWrites(machine.volume))
        written += write.size;
    QCOMPARE(written, 2 * GiB + 2 * 160 * MiB + 16 * MiB);
    QCOMPARE(job.wipedSectors(), 0u);
    QCOMPARE(fillFilesLeft(machine.volume), QStringList());
}

void tst_FreeSpaceWipeFaults::volumeThatCompressesALittleIsFilledInEveryPass()
{
    Machine machine;
    furnish(machine.volume, Reserve + 8 * MiB);
    machine.volume.storedPercent = 25;
    Job job;
    prepare(job);
    job.worker.setReleasePatience(std::chrono::milliseconds(50));
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.passes.size(), 2);
    qint64 written = 0;
    for (const auto &write : fillWrites(machine.volume))
        written += write.size;
    QVERIFY(written > 2 * 31 * MiB && written <= 2 * 32 * MiB);
}

void tst_FreeSpaceWipeFaults::spaceThatComesBackLateIsWaitedFor()
{
    Machine machine;
    furnish(machine.volume, Reserve + 12 * MiB);
    machine.volume.releaseDelay = 3;
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.count(u"已写入: 12.00 MB"_s, 0), 2);
    QCOMPARE(job.wipedSectors(), static_cast<quint64>(12 * MiB / 512));
}

void tst_FreeSpaceWipeFaults::spaceThatNeverComesBackFailsTheJob()
{
    Machine machine;
    furnish(machine.volume, Reserve + 12 * MiB);
    machine.volume.releaseDelay = 1'000'000;
    Job job;
    prepare(job);
    job.worker.setReleasePatience(std::chrono::milliseconds(50));
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.log.last(), (LogLine{u"已删除的填充文件没有释放空间，无法继续覆写"_s, 2}));
    QCOMPARE(job.errors, QStringList{u"填充空闲空间失败"_s});
    QCOMPARE(job.wipedSectors(), 0u);
    QCOMPARE(fillFilesLeft(machine.volume), QStringList());
}

void tst_FreeSpaceWipeFaults::spaceThatSomebodyElseTakesIsNotWaitedFor()
{
    Machine machine;
    furnish(machine.volume, Reserve + 12 * MiB);
    bool taken = false;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind == FaultPlan::Remove && machine.volume.closed.size() == 1 && !std::exchange(taken, true))
            machine.volume.freeBytes[Root] -= 5 * MiB;
    };
    Job job;
    prepare(job);
    job.worker.setReleasePatience(std::chrono::milliseconds(0)); // a wait would fail
    job.run();
    QVERIFY(taken);
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"已写入: 7.00 MB"_s, 0));
}

void tst_FreeSpaceWipeFaults::stopEndsTheWaitForSpace()
{
    Machine machine;
    furnish(machine.volume, Reserve + 12 * MiB);
    machine.volume.releaseDelay = 1'000'000;
    Job job;
    prepare(job);
    job.worker.setReleasePatience(std::chrono::hours(1));
    job.worker.setReleasePoll(std::chrono::milliseconds(1));
    int asked = 0;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind == FaultPlan::Space && !machine.volume.removed.filter(u"/fill_"_s).isEmpty() && ++asked == 3)
            job.stopFromElsewhere();
    };
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.log.last(), (LogLine{u"擦除已取消"_s, 1}));
    QCOMPARE(asked, 3);
    QVERIFY(job.errors.isEmpty());
    QCOMPARE(fillFilesLeft(machine.volume), QStringList());
}

void tst_FreeSpaceWipeFaults::spaceOfFilesDeletedJustBeforeIsFilledToo()
{
    Machine machine;
    furnish(machine.volume, Reserve / 2);
    int asked = 0;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind == FaultPlan::Space && ++asked <= 4)
            machine.volume.freeBytes[Root] += Reserve / 4;
    };
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"空闲空间: 150.00 MB"_s, 0));
    QCOMPARE(job.count(u"已写入: 50.00 MB"_s, 0), 2);
}

void tst_FreeSpaceWipeFaults::unfinishedMethodWipedNothing()
{
    // The second of two passes never writes, so the space has not received the method.
    Machine machine;
    furnish(machine.volume, Reserve + 4 * MiB);
    FaultPlan plan(FaultPlan::Write, 5, platform::IoDevice);
    machine.volume.setPlan(&plan);
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.wipedSectors(), 0u);
}

void tst_FreeSpaceWipeFaults::residueThatCannotBeCleanedIsTold()
{
    Machine machine;
    furnish(machine.volume, Reserve + 4 * MiB);
    Job job;
    prepare(job);
    // Another program fills the volume before the residue steps.
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind == FaultPlan::CreateFolder && path.endsWith(u"/mft_clean"_s))
            machine.volume.freeBytes[Root] = 100;
    };
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(compareLogs(job.log.last(4), {
                                             {u"正在清理文件系统残留..."_s, 0},
                                             {u"文件系统残留清理不完整，错误码: 112"_s, 1},
                                             {QString(), 0},
                                             {u"空闲空间擦除完成!"_s, 0},
                                         }));
}

void tst_FreeSpaceWipeFaults::volumeGoneAtTheStart()
{
    Machine machine;
    furnish(machine.volume, Reserve + 4 * MiB);
    machine.volume.answerOfSpace = platform::NotReady;
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.failed());
    QVERIFY(compareLogs(job.log.last(3), {
                                             {u"空闲空间: 0 B"_s, 0},
                                             {u"没有空闲空间需要擦除"_s, 0},
                                             {u"卷不再可用，错误码: 21"_s, 2},
                                         }));
    QCOMPARE(job.errors, QStringList{u"卷不再可用，错误码: 21"_s});
}

void tst_FreeSpaceWipeFaults::volumeThatIsNotMountedAnyMore_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("as listed") << u"/media/data"_s;
    QTest::newRow("with a slash") << u"/media/data/"_s;
}

void tst_FreeSpaceWipeFaults::volumeThatIsNotMountedAnyMore()
{
    QFETCH(const QString, name);
    // The folder still exists, and the free space under it belongs to the parent volume.
    Machine machine;
    furnish(machine.volume, 40 * GiB);
    machine.devices.unmounted = QStringList{u"/media/data"_s};
    const QStringList before = machine.volume.pathsBelow(Root);
    Job job;
    prepare(job);
    job.setVolume(name);
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.log.last(), (LogLine{u"卷不再可用，错误码: 2"_s, 2}));
    QCOMPARE(job.errors, QStringList{u"卷不再可用，错误码: 2"_s});
    QVERIFY(machine.volume.writes.isEmpty());
    QCOMPARE(machine.volume.pathsBelow(Root), before);
}

void tst_FreeSpaceWipeFaults::crashedVolumeGoneAtTheStart()
{
    Machine machine;
    machine.volume.freeBytes[Root] = Reserve + 4 * MiB;
    machine.volume.addFolder(Root + u".quorvex_temp_01234567"_s);
    machine.volume.addFile(Root + u".quorvex_temp_01234567/fill_000000.tmp"_s, 6 * MiB);
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind == FaultPlan::Remove)
            machine.volume.answerOfSpace = platform::NotReady;
    };
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.failed());
    QVERIFY(job.logged(u"卷不再可用，错误码: 21"_s, 2));
    QCOMPARE(job.errors, QStringList{u"填充空闲空间失败"_s});
}

void tst_FreeSpaceWipeFaults::volumeThatVanishesLoop_data()
{
    QTest::addColumn<platform::ErrorCode>("error");
    QTest::newRow("pulled out") << platform::NotReady;
    QTest::newRow("input/output") << platform::IoDevice;
    QTest::newRow("no longer there") << platform::PathNotFound;
}

void tst_FreeSpaceWipeFaults::volumeThatVanishesLoop()
{
    QFETCH(const platform::ErrorCode, error);
    int failures = 0;
    for (int call = 1;; call += call < 80 ? 1 : 97) {
        Machine machine;
        furnish(machine.volume, Reserve + 5 * MiB / 2);
        machine.volume.vanishAtCall(call, error);
        int residueFrom = 0;
        machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
            // The temporary folder is created again for the residue steps.
            if (kind == FaultPlan::CreateFolder && fillnames::isFolder(path.mid(Root.size())) &&
                !machine.volume.createdFolders.isEmpty() && residueFrom == 0)
                residueFrom = machine.volume.calls + 1;
        };
        Job job;
        prepare(job);
        job.run();

        QCOMPARE(job.finished.size(), 1);
        QCOMPARE(machine.volume.openHandles, 0);
        const bool beganResidue = residueFrom > 0;
        QCOMPARE(job.finished.first(), beganResidue);
        if (machine.volume.calls < call) {
            QVERIFY(beganResidue);
            break;
        }
        if (beganResidue) {
            QVERIFY(call >= residueFrom);
            QVERIFY(job.logged(u"文件系统残留清理不完整，错误码: %1"_s.arg(error), 1));
            continue;
        }
        ++failures;
        const bool isTold = job.logged(u"卷不再可用，错误码: %1"_s.arg(error), 2) || !job.errors.isEmpty();
        QVERIFY2(isTold, QByteArray::number(call));
    }
    QVERIFY(failures > 20);
}

void tst_FreeSpaceWipeFaults::unmountedVolumeIsNotReplacedByItsParent_data()
{
    QTest::addColumn<quint32>("kind");
    QTest::addColumn<int>("call");
    QTest::newRow("before the first file") << quint32{FaultPlan::Space} << 4;
    QTest::newRow("before a chunk") << quint32{FaultPlan::Space} << 6;
    QTest::newRow("while writing") << quint32{FaultPlan::Write} << 2;
    QTest::newRow("while creating a file") << quint32{FaultPlan::Open} << 1;
    QTest::newRow("between two passes") << quint32{FaultPlan::Remove} << 2;
    QTest::newRow("after the last pass") << quint32{FaultPlan::RemoveFolder} << 2;
}

void tst_FreeSpaceWipeFaults::unmountedVolumeIsNotReplacedByItsParent()
{
    QFETCH(const quint32, kind);
    QFETCH(const int, call);
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB / 2);
    int calls = 0;
    bool gone = false;
    qsizetype writesBefore = 0;
    machine.volume.onCall = [&](FaultPlan::Kind called, const QString &) {
        if (called != kind || ++calls != call)
            return;
        gone = true;
        machine.volume.unmount(Root, 40 * GiB);
        writesBefore = machine.volume.writes.size();
    };
    Job job;
    prepare(job);
    job.run();
    QVERIFY(gone);
    QVERIFY(job.failed());
    QCOMPARE(job.log.last().level, 2);
    QVERIFY(job.log.last().text.startsWith(u"卷不再可用，错误码: "_s));
    QVERIFY2(machine.volume.pathsBelow(Root).isEmpty(), "something was made on the other volume");
    QCOMPARE(machine.volume.freeBytes.value(Root), 40 * GiB);
    // Only the chunk in transfer when the volume vanished may follow.
    QVERIFY(machine.volume.writes.size() <= writesBefore + (kind == FaultPlan::Write));
}

void tst_FreeSpaceWipeFaults::temporaryFolderTakenAwayEndsTheJob()
{
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind == FaultPlan::Write && machine.volume.writes.size() == 2)
            machine.volume.entries.removeIf(
                [](auto entry) { return entry.key().contains(u"quorvex_temp"_s); });
    };
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.log.last(), (LogLine{u"卷不再可用，错误码: 3"_s, 2}));
    QCOMPARE(job.errors, QStringList{u"填充空闲空间失败"_s});
    QVERIFY(userFilesStand(machine.volume));
}

void tst_FreeSpaceWipeFaults::fillFilesOfACrashAreRemovedFirst()
{
    Machine machine;
    machine.volume.freeBytes[Root] = Reserve + 4 * MiB;
    machine.volume.addFolder(Root + u".quorvex_temp_01234567"_s);
    machine.volume.addFile(Root + u".quorvex_temp_01234567/fill_000000.tmp"_s, 6 * MiB);
    machine.volume.addFile(Root + u".quorvex_temp_01234567/fill_000001.tmp"_s, MiB);
    machine.volume.addFolder(Root + u".quorvex_temp_89abcdef"_s);
    machine.volume.addFile(Root + u".quorvex_temp_89abcdef/fill_000007.tmp"_s, MiB);
    Job job;
    prepare(job);
    job.setPasses({{PatternType::Zeros}});
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(compareLogs(job.log.mid(4, 6),
                        {
                            {u"目标分区: /media/data/"_s, 0},
                            {u"已清理上次中断留下的临时文件: /media/data/.quorvex_temp_########"_s, 0},
                            {u"已清理上次中断留下的临时文件: /media/data/.quorvex_temp_########"_s, 0},
                            {u"空闲空间: 112.00 MB"_s, 0},
                            {u"保留 100.00 MB 作为安全空间，不会被覆写"_s, 0},
                            {u"第 1/1 次覆写 (模式: 0x00)"_s, 0},
                        }));
    QVERIFY(job.logged(u"已写入: 12.00 MB"_s, 0));
    QVERIFY(!machine.volume.entries.contains(Root + u".quorvex_temp_01234567"_s));
    QVERIFY(!machine.volume.entries.contains(Root + u".quorvex_temp_89abcdef"_s));
}

void tst_FreeSpaceWipeFaults::leftOverFilesThatCannotBeRemovedAreNotAnnounced()
{
    Machine machine;
    furnish(machine.volume, Reserve + MiB);
    machine.volume.unremovable = QStringList{Root + u".quorvex_temp_0badcafe/fill_000000.tmp"_s};
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.succeeded());
    for (const LogLine &line : std::as_const(job.log))
        QVERIFY(!line.text.startsWith(u"已清理"_s));
    QVERIFY(machine.volume.entries.contains(Root + u".quorvex_temp_0badcafe/fill_000000.tmp"_s));
}

void tst_FreeSpaceWipeFaults::nothingElseOfALeftOverIsTouched()
{
    Machine machine;
    MemoryVolume &volume = machine.volume;
    volume.freeBytes[Root] = Reserve + MiB;
    const QString folder = Root + u".quorvex_temp_01234567/"_s;
    volume.addFolder(folder.chopped(1));
    volume.addFile(folder + u"fill_000000.tmp"_s, 5);

    // Entries inside a folder with the right name.
    volume.addFile(folder + u"notes.txt"_s, 1);
    volume.addFile(folder + u"fill_00000.tmp"_s, 1);
    volume.addFile(folder + u"fill_000000.tmp.bak"_s, 1);
    volume.addFile(folder + u"FILL_000000.tmp"_s, 1);
    volume.addLink(folder + u"fill_000001.tmp"_s);
    volume.addFolder(folder + u"fill_000002.tmp"_s);
    volume.addFile(folder + u"fill_000002.tmp/fill_000000.tmp"_s, 1);
    // Entries in places that only resemble such a folder.
    volume.addLink(Root + u".quorvex_temp_00000000"_s);
    volume.addFile(Root + u".quorvex_temp_11111111"_s, 1);
    for (const QString &name :
         {u".quorvex_temp_0123456"_s, u".quorvex_temp_012345678"_s, u".quorvex_temp_0123456G"_s,
          u".quorvex_temp_ABCDEF01"_s, u"x.quorvex_temp_01234567"_s}) {
        volume.addFolder(Root + name);
        volume.addFile(Root + name + u"/fill_000000.tmp"_s, 1);
    }
    volume.addFolder(Root + u"deeper"_s);
    volume.addFolder(Root + u"deeper/.quorvex_temp_01234567"_s);
    volume.addFile(Root + u"deeper/.quorvex_temp_01234567/fill_000000.tmp"_s, 1);
    volume.addFile(Root + u"fill_000000.tmp"_s, 1);

    QStringList stays = volume.pathsBelow(Root);
    stays.removeAll(folder + u"fill_000000.tmp"_s);
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.count(u"已清理上次中断留下的临时文件: /media/data/.quorvex_temp_########"_s, 0), 1);
    QVERIFY(!volume.entries.contains(folder + u"fill_000000.tmp"_s));
    for (const QString &path : std::as_const(stays))
        QVERIFY2(volume.entries.contains(path), qPrintable(path));
}

void tst_FreeSpaceWipeFaults::leftOverFileWithAFurtherNameGivesNoSpaceBack()
{
    Machine machine;
    machine.volume.freeBytes[Root] = Reserve + MiB;
    machine.volume.addFolder(Root + u".quorvex_temp_01234567"_s);
    const QString file = Root + u".quorvex_temp_01234567/fill_000000.tmp"_s;
    machine.volume.addFile(file, GiB);
    machine.volume.entries[file].linkCount = 2;
    Job job;
    prepare(job);
    job.worker.setReleasePatience(std::chrono::milliseconds(0)); // a wait would fail
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"已清理上次中断留下的临时文件: /media/data/.quorvex_temp_########"_s, 0));
    QVERIFY(job.logged(u"已写入: 1.00 MB"_s, 0));
}

void tst_FreeSpaceWipeFaults::emptyResidueFolderOfAnEarlierJobGoesQuietly()
{
    Machine machine;
    machine.volume.freeBytes[Root] = Reserve + MiB;
    machine.volume.addFolder(Root + u".quorvex_temp_01234567"_s);
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(!machine.volume.entries.contains(Root + u".quorvex_temp_01234567"_s));
    for (const LogLine &line : std::as_const(job.log))
        QVERIFY(!line.text.startsWith(u"已清理"_s));
}

void tst_FreeSpaceWipeFaults::residueOfAKilledJobIsRemoved()
{
    Machine machine;
    MemoryVolume &volume = machine.volume;
    volume.freeBytes[Root] = Reserve + MiB;
    const QString gone = Root + u".quorvex_temp_01234567"_s;
    const QString uuid = u"/dir_clean/0f8fad5b-d9cb-469f-a165-70867728950e"_s;
    volume.addFolder(gone);
    volume.addFolder(gone + u"/mft_clean"_s);
    for (int i = 0; i < 97; ++i)
        volume.addFile(gone + u"/mft_clean/%1.tmp"_s.arg(i), 256);
    volume.addFolder(gone + u"/dir_clean"_s);
    volume.addFolder(gone + uuid);
    // The same names, with entries that no job creates among them.
    const QString stays = Root + u".quorvex_temp_89abcdef"_s;
    volume.addFolder(stays);
    volume.addFolder(stays + u"/mft_clean"_s);
    volume.addFile(stays + u"/mft_clean/999.tmp"_s, 256);
    const QStringList foreign{u"/mft_clean/1000.tmp"_s, u"/mft_clean/01.tmp"_s, u"/mft_clean/+1.tmp"_s,
                              u"/mft_clean/.tmp"_s,     u"/mft_clean/7.TMP"_s,  u"/mft_clean/notes"_s};
    for (const QString &name : foreign)
        volume.addFile(stays + name, 256);
    volume.addFile(stays + u"/mft_clean/5.tmp"_s, 257);
    volume.addLink(stays + u"/mft_clean/6.tmp"_s);
    volume.addFolder(stays + u"/dir_clean"_s);
    volume.addFolder(stays + u"/dir_clean/0F8FAD5B-D9CB-469F-A165-70867728950E"_s);
    volume.addFolder(stays + uuid);
    volume.addFile(stays + uuid + u"/letter"_s, 1);

    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(volume.pathsBelow(gone), QStringList());
    QVERIFY(!volume.entries.contains(stays + u"/mft_clean/999.tmp"_s));
    for (const QString &name : foreign)
        QVERIFY2(volume.entries.contains(stays + name), qPrintable(name));
    QVERIFY(volume.entries.contains(stays + u"/mft_clean/5.tmp"_s));
    QVERIFY(volume.entries.contains(stays + u"/mft_clean/6.tmp"_s));
    QVERIFY(volume.entries.contains(stays + u"/dir_clean/0F8FAD5B-D9CB-469F-A165-70867728950E"_s));
    QVERIFY(volume.entries.contains(stays + uuid + u"/letter"_s));
    QCOMPARE(job.count(u"已清理上次中断留下的临时文件: /media/data/.quorvex_temp_########"_s, 0), 1);
}

void tst_FreeSpaceWipeFaults::volumeThatAnotherJobFillsIsLeftAlone_data()
{
    QTest::addColumn<bool>("knowsClaims");
    QTest::newRow("held") << true;
    QTest::newRow("nobody can tell") << false;
}

void tst_FreeSpaceWipeFaults::volumeThatAnotherJobFillsIsLeftAlone()
{
    QFETCH(const bool, knowsClaims);
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    const QString folder = Root + u".quorvex_temp_0badcafe"_s;
    machine.volume.knowsClaims = knowsClaims;
    if (knowsClaims)
        machine.volume.heldByOthers = QStringList{folder};
    const QStringList before = machine.volume.pathsBelow(QString());
    Job job;
    prepare(job);
    const QString text =
        u"Another job is erasing the free space of this volume; its files are in %1."_s.arg(folder);
    QCOMPARE(reasonOf(FreeSpaceWipeWorker::obstacleOf(job.task)), text + u" Nothing was written."_s);
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.errors, QStringList{withoutRandom(text)});
    QCOMPARE(machine.volume.pathsBelow(QString()), before);
    QVERIFY(machine.volume.createdFolders.isEmpty());
    QVERIFY(machine.volume.removed.isEmpty());
}

void tst_FreeSpaceWipeFaults::jobsThatBeginAtTheSameMomentLeaveEachOtherAlone()
{
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    const QString other = Root + u".quorvex_temp_89abcdef"_s;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind != FaultPlan::CreateFolder)
            return;
        machine.volume.addFolder(other);
        machine.volume.heldByOthers = QStringList{other};
    };
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.failed());
    QVERIFY(machine.volume.writes.isEmpty());
    QCOMPARE(machine.volume.pathsBelow(Root).filter(u"quorvex_temp"_s), QStringList{other});
}

void tst_FreeSpaceWipeFaults::emptyFolderThatNobodyCanClaimIsNoJob()
{
    Machine machine;
    machine.volume.freeBytes[Root] = Reserve + MiB;
    machine.volume.addFolder(Root + u".quorvex_temp_01234567"_s);
    machine.volume.knowsClaims = false;
    Job job;
    prepare(job);
    QCOMPARE(reasonOf(FreeSpaceWipeWorker::obstacleOf(job.task)), QString());
    job.run();
    QVERIFY(job.succeeded());
}

void tst_FreeSpaceWipeFaults::volumeThatACrashLeftFullIsWiped()
{
    Machine machine;
    machine.volume.releaseDelay = 2;
    machine.volume.freeBytes[Root] = 0;
    machine.volume.addFolder(Root + u".quorvex_temp_01234567"_s);
    machine.volume.addFile(Root + u".quorvex_temp_01234567/fill_000000.tmp"_s, Reserve + 3 * MiB);
    Job job;
    prepare(job);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"已写入: 3.00 MB"_s, 0));
}

void tst_FreeSpaceWipeFaults::stopBeforeTheStart()
{
    Machine machine;
    furnish(machine.volume, Reserve + MiB);
    Job job;
    prepare(job);
    job.worker.stop();
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.log.last(), (LogLine{u"擦除已取消"_s, 1}));
    QVERIFY(job.errors.isEmpty());
    QCOMPARE(machine.volume.calls, 0);
}

void tst_FreeSpaceWipeFaults::stopInEveryStage_data()
{
    QTest::addColumn<quint32>("kind");
    QTest::addColumn<QString>("place");
    QTest::addColumn<int>("call");
    QTest::newRow("looking for left-overs") << quint32{FaultPlan::List} << QString() << 1;
    QTest::newRow("removing left-overs") << quint32{FaultPlan::Remove} << u"0badcafe"_s << 1;
    QTest::newRow("measuring the free space") << quint32{FaultPlan::Space} << QString() << 2;
    QTest::newRow("creating the temporary folder") << quint32{FaultPlan::CreateFolder} << QString() << 1;
    QTest::newRow("hiding it") << quint32{FaultPlan::Hide} << QString() << 1;
    QTest::newRow("before the first file") << quint32{FaultPlan::Space} << QString() << 4;
    QTest::newRow("creating a fill file") << quint32{FaultPlan::Open} << u"/fill_"_s << 1;
    QTest::newRow("before a chunk") << quint32{FaultPlan::Space} << QString() << 6;
    QTest::newRow("writing the first chunk") << quint32{FaultPlan::Write} << u"/fill_"_s << 1;
    QTest::newRow("writing a later chunk") << quint32{FaultPlan::Write} << u"/fill_"_s << 3;
    QTest::newRow("writing the last chunk") << quint32{FaultPlan::Write} << u"/fill_"_s << 5;
    QTest::newRow("flushing") << quint32{FaultPlan::Flush} << u"/fill_"_s << 2;
    QTest::newRow("between two passes") << quint32{FaultPlan::Remove} << u"/fill_"_s << 2;
    QTest::newRow("in the second pass") << quint32{FaultPlan::Write} << u"/fill_"_s << 7;
    QTest::newRow("after the last pass") << quint32{FaultPlan::Remove} << u"/fill_"_s << 3;
    QTest::newRow("removing the temporary folder") << quint32{FaultPlan::RemoveFolder} << QString() << 2;
    QTest::newRow("creating the record folder") << quint32{FaultPlan::CreateFolder} << u"mft_clean"_s << 1;
    QTest::newRow("creating a record file") << quint32{FaultPlan::Open} << u"mft_clean"_s << 500;
    QTest::newRow("writing a record file") << quint32{FaultPlan::Write} << u"mft_clean"_s << 500;
    QTest::newRow("removing the record files") << quint32{FaultPlan::RemoveTree} << u"mft_clean"_s << 1;
    QTest::newRow("creating a folder of entries") << quint32{FaultPlan::CreateFolder} << u"dir_clean"_s << 50;
    QTest::newRow("removing the folders") << quint32{FaultPlan::RemoveTree} << u"dir_clean"_s << 1;
}

void tst_FreeSpaceWipeFaults::stopInEveryStage()
{
    QFETCH(const quint32, kind);
    QFETCH(const QString, place);
    QFETCH(const int, call);
    Machine machine;
    furnish(machine.volume, Reserve + 5 * MiB);
    Job job;
    prepare(job);
    int calls = 0;
    bool stopped = false;
    int writesAfter = 0;
    int newAfter = 0;
    machine.volume.onCall = [&](FaultPlan::Kind called, const QString &path) {
        if (stopped) {
            writesAfter += called == FaultPlan::Write;
            newAfter += called == FaultPlan::Open || called == FaultPlan::CreateFolder;
        }
        if (called == kind && path.contains(place) && ++calls == call) {
            job.stopFromElsewhere();
            stopped = true;
        }
    };
    job.run();

    QVERIFY2(stopped, "the stage was never reached");
    QVERIFY(job.failed());
    QCOMPARE(job.log.last(), (LogLine{u"擦除已取消"_s, 1}));
    QVERIFY(!job.logged(u"空闲空间擦除完成!"_s, 0));
    // At most the chunk, or the record file, in transfer.
    QVERIFY(writesAfter <= 1);
    QVERIFY(newAfter <= 1);
    QCOMPARE(machine.volume.openHandles, 0);
    QVERIFY(userFilesStand(machine.volume));
    QVERIFY(fillFiles(machine.volume).filter(QRegularExpression(u"quorvex_temp_(?!0badcafe)"_s)).isEmpty());
    QVERIFY(machine.volume.pathsBelow(Root).filter(u"_clean"_s).isEmpty());
    QCOMPARE(machine.volume.removedUnflushed.filter(u"/fill_"_s), QStringList());
}

void tst_FreeSpaceWipeFaults::stopBetweenVolumesLeavesTheNextAlone()
{
    Machine machine;
    machine.volume.freeBytes = {{u"E:/"_s, Reserve + MiB}, {u"F:/"_s, Reserve + MiB}};
    Job job;
    job.setDisk(1, {u"E:"_s, u"F:"_s});
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind == FaultPlan::RemoveTree && path.endsWith(u"/dir_clean"_s))
            job.stopFromElsewhere();
    };
    job.run();
    QVERIFY(job.failed());
    QVERIFY(compareLogs(job.log.last(2), {{u"正在清理文件系统残留..."_s, 0}, {u"擦除已取消"_s, 1}}));
    QVERIFY(machine.volume.pathsBelow(u"F:/"_s).isEmpty());
    // The first volume received the whole method.
    QCOMPARE(job.wipedSectors(), static_cast<quint64>(MiB / 512));
}

void tst_FreeSpaceWipeFaults::stopDuringAPauseFailsTheFill()
{
    // The test cannot see whether the worker already waits. A stop that comes too early falls between two
    // chunks, which is no failure, and the next round waits longer.
    for (int patience = 20; patience <= 5000; patience *= 2) {
        Machine machine;
        furnish(machine.volume, Reserve + 5 * MiB);
        Job job;
        prepare(job);
        QSemaphore paused;
        machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
            if (kind == FaultPlan::Flush && machine.volume.writes.size() == 2) {
                job.worker.pause();
                paused.release();
            }
        };
        std::thread worker([&] {
            job.run();
            paused.release(); // wakes the test when the pause never came
        });
        paused.acquire();
        QThread::msleep(static_cast<unsigned long>(patience));
        job.worker.stop();
        worker.join();

        QVERIFY(job.failed());
        QCOMPARE(job.log.last(), (LogLine{u"擦除已取消"_s, 1}));
        QCOMPARE(machine.volume.writes.size(), 2);
        QCOMPARE(fillFilesLeft(machine.volume), QStringList());
        if (job.errors == QStringList{u"填充空闲空间失败"_s})
            return;
        QCOMPARE(job.errors, QStringList());
    }
    QFAIL("a stop during a pause never failed the fill");
}

void tst_FreeSpaceWipeFaults::workerThatIsNeverRunLeavesQuietly()
{
    Machine machine;
    furnish(machine.volume, Reserve + MiB);
    {
        Job job;
        prepare(job);
    }
    QCOMPARE(machine.volume.calls, 0);
}

QUORVEX_SUITE(tst_FreeSpaceWipeFaults, QCoreApplication)

#include "tst_freespacewipefaults.moc"
