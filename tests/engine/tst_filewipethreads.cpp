#include "filejob.h"
#include "model/units.h"
#include "support/faultplan.h"
#include "support/observedfiles.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QThreadPool>
#include <QWaitCondition>

#include <algorithm>
#include <atomic>

using platform::OpenMode;
using platform::Status;

// The pool, stops from other threads, and the thread that the engine gives the worker.
class tst_FileWipeThreads : public QObject
{
    Q_OBJECT

private slots:
    void thePoolHasTheThreadsOfTheTask_data();
    void thePoolHasTheThreadsOfTheTask();
    void filesAreOverwrittenSideBySide();
    void neverMoreFilesAtOnceThanThreads();
    void aBatchWaitsForTheOneBefore();
    void aSlowFileDoesNotHoldUpItsBatch();
    void deletionHappensOnTheWorkersThread();

    void aStopBeforeTheJob();
    void aStopDuringTheScan();
    void aStopWhileSizesAreAddedUp();
    void aStopBetweenTwoBatches();
    void aStopBetweenTwoPasses();
    void aStopEndsTheFileAfterTheChunk();
    void aStopDuringTheFlushFailsTheFile();
    void aStopWhileReadingBackPassesTheFile();
    void aStopAfterThePasses();
    void aStopDuringTheDeletionStillRemovesTheFolders();
    void aStopEndsTheDeletionAttempts();
    void aStopDuringTheFolderRemoval();
    void aStopAtAnyCall_data();
    void aStopAtAnyCall();

    void runsInAThreadOfItsOwn();
    void isStoppedInItsThread();
    void mayBeDestroyedWithoutHavingRun();
    void mayBeDestroyedInAnotherThread();
};

void tst_FileWipeThreads::thePoolHasTheThreadsOfTheTask_data()
{
    QTest::addColumn<int>("threadCount");
    QTest::addColumn<int>("expected");
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("7") << 7 << 7;
    QTest::newRow("0 stands for the machine's") << 0 << QThread::idealThreadCount();
    QTest::newRow("-1 as well") << -1 << QThread::idealThreadCount();
}

void tst_FileWipeThreads::thePoolHasTheThreadsOfTheTask()
{
    QFETCH(int, threadCount);
    QFETCH(int, expected);
    FileJob job;
    job.task.setThreadCount(threadCount);
    const auto *pool = job.worker().findChild<QThreadPool *>();
    QVERIFY(pool);
    QCOMPARE(pool->maxThreadCount(), expected);
}

void tst_FileWipeThreads::filesAreOverwrittenSideBySide()
{
    FileJob job;
    job.task.setThreadCount(3);
    QMutex mutex;
    QWaitCondition arrived;
    int inside = 0;
    bool together = false;
    job.files.hook = [&](const FileCall &call) {
        if (call.kind != FaultPlan::Write)
            return Status();
        const QMutexLocker locker(&mutex);
        ++inside;
        together = together || inside == 3;
        arrived.wakeAll();
        const QDeadlineTimer deadline(60'000);
        while (!together && arrived.wait(&mutex, deadline)) {
        }
        --inside;
        return Status();
    };
    QStringList files;
    for (int i = 0; i < 3; ++i)
        files += job.makeFile(QString::number(i), 10);
    QVERIFY(job.run(files));
    QVERIFY(together);
}

void tst_FileWipeThreads::neverMoreFilesAtOnceThanThreads()
{
    FileJob job;
    job.task.setThreadCount(2);
    QMutex mutex;
    QWaitCondition arrived;
    int inside = 0;
    int most = 0;
    bool onWorkersThread = false;
    const QThread *const workersThread = QThread::currentThread();
    job.files.hook = [&](const FileCall &call) {
        const QMutexLocker locker(&mutex);
        if (call.kind == FaultPlan::Open && call.mode == OpenMode::Overwrite) {
            onWorkersThread = onWorkersThread || QThread::currentThread() == workersThread;
            most = std::max(most, ++inside);
            arrived.wakeAll();
            // The second thread may start late.
            for (const QDeadlineTimer patience(60'000); most < 2 && arrived.wait(&mutex, patience);) {
            }
            arrived.wait(&mutex, QDeadlineTimer(1)); // time for a third thread, which must not come
        } else if (call.kind == FaultPlan::Flush && call.mode == OpenMode::Overwrite) {
            --inside;
        }
        return Status();
    };
    QStringList files;
    for (int i = 0; i < 40; ++i)
        files += job.makeFile(QString::number(i), 10);
    QVERIFY(job.run(files));
    QCOMPARE(most, 2);
    QVERIFY(!onWorkersThread);
}

void tst_FileWipeThreads::aBatchWaitsForTheOneBefore()
{
    // Two threads make batches of four, so the fifth file waits for the slow fourth one, although a thread is
    // free.
    FileJob job;
    job.task.setThreadCount(2);
    QStringList files;
    for (int i = 0; i < 8; ++i)
        files += job.makeFile(QString::number(i), 10);
    std::atomic<int> flushed{0};
    std::atomic<int> flushedAtFifth{-1};
    job.files.hook = [&](const FileCall &call) {
        if (call.mode != OpenMode::Overwrite)
            return Status();
        if (call.kind == FaultPlan::Write && call.path == files.at(3))
            QThread::msleep(50);
        if (call.kind == FaultPlan::Open && files.indexOf(call.path) >= 4 && flushedAtFifth < 0)
            flushedAtFifth = flushed.load();
        if (call.kind == FaultPlan::Flush)
            ++flushed;
        return Status();
    };
    QVERIFY(job.run(files));
    QCOMPARE(flushedAtFifth.load(), 4);
}

// There are twice as many files as threads, and one thread processes the other three meanwhile.
void tst_FileWipeThreads::aSlowFileDoesNotHoldUpItsBatch()
{
    FileJob job;
    job.task.setThreadCount(2);
    QMutex mutex;
    QWaitCondition changed;
    int flushed = 0;
    int flushedMeanwhile = -1;
    QStringList files;
    for (int i = 0; i < 8; ++i)
        files += job.makeFile(QString::number(i), 10);
    job.files.hook = [&](const FileCall &call) {
        if (call.mode != OpenMode::Overwrite)
            return Status();
        const QMutexLocker locker(&mutex);
        if (call.kind == FaultPlan::Flush) {
            ++flushed;
            changed.wakeAll();
        } else if (call.kind == FaultPlan::Write && call.path == files.at(0)) {
            const QDeadlineTimer deadline(60'000);
            while (flushed < 3 && changed.wait(&mutex, deadline)) {
            }
            flushedMeanwhile = flushed;
        }
        return Status();
    };
    QVERIFY(job.run(files));
    QCOMPARE(flushedMeanwhile, 3);
}

void tst_FileWipeThreads::deletionHappensOnTheWorkersThread()
{
    FileJob job;
    job.task.setThreadCount(4);
    const QThread *const workersThread = QThread::currentThread();
    int elsewhere = 0;
    job.files.hook = [&](const FileCall &call) {
        const bool deletes =
            (call.kind & (FaultPlan::Rename | FaultPlan::Remove)) || call.mode == OpenMode::Truncate;
        if (deletes && QThread::currentThread() != workersThread)
            ++elsewhere;
        return Status();
    };
    QStringList files;
    for (int i = 0; i < 6; ++i)
        files += job.makeFile(QString::number(i), 10);
    QVERIFY(job.run(files));
    QCOMPARE(elsewhere, 0);
    QCOMPARE(job.files.calls(FaultPlan::Rename).size(), 6);
}

// ---- Stopping

void tst_FileWipeThreads::aStopBeforeTheJob()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    job.worker().stop();
    QVERIFY(!job.run({file}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::cancelled, said::failed}));
    QCOMPARE(contentOf(file), QByteArray(10, 'M'));
}

void tst_FileWipeThreads::aStopDuringTheScan()
{
    class StoppingFolders : public platform::ForwardingFolders
    {
    public:
        using ForwardingFolders::ForwardingFolders;
        Status forEachEntry(const platform::EntryPath &folder, const Visitor &visit) override
        {
            int seen = 0;
            return ForwardingFolders::forEachEntry(folder, [&](const QString &name, platform::FileKind kind) {
                if (++seen == 3)
                    job->stop();
                const bool goesOn = visit(name, kind);
                visited += goesOn ? 1 : 0;
                return goesOn;
            });
        }
        FileJob *job = nullptr;
        int visited = 0;
    } folders(platform::Platform::current().folders());
    FileJob job(platform::Platform::current().files(), folders);
    folders.job = &job;
    for (int i = 0; i < 10; ++i)
        job.makeFile(QStringLiteral("t/%1").arg(i), 10);
    QVERIFY(!job.run({job.path(QStringLiteral("t"))}));
    QCOMPARE(folders.visited, 2);
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::cancelled, said::failed}));
    QCOMPARE(QDir(job.path(QStringLiteral("t"))).entryList(QDir::Files).size(), 10);
}

void tst_FileWipeThreads::aStopWhileSizesAreAddedUp()
{
    FileJob job;
    QStringList files;
    for (int i = 0; i < 10; ++i)
        files += job.makeFile(QString::number(i), 10);
    int looks = 0;
    job.files.hook = [&](const FileCall &) {
        if (++looks == 10 + 3)
            job.stop();
        return Status();
    };
    QVERIFY(!job.run(files));
    QCOMPARE(looks, 13);
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::cancelled, said::failed}));
}

void tst_FileWipeThreads::aStopBetweenTwoBatches()
{
    // The second file of a batch of two has no byte left to write when the stop comes, so both succeed.
    FileJob job;
    QStringList files;
    for (int i = 0; i < 4; ++i)
        files += job.makeFile(QString::number(i), 10);
    job.setPasses({{PatternType::Ones, 0, false}});
    bool inPass = false;
    job.said.onLine = [&inPass](const QString &line) { inPass = inPass || line == said::pass(1, 1); };
    job.files.hook = [&](const FileCall &call) {
        if (inPass && call.kind == FaultPlan::Info && call.path == files.at(1)) {
            QFile::remove(files.at(1));
            job.stop();
        }
        return Status();
    };
    QVERIFY(!job.run(files));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(4, QStringLiteral("40 B")),
                                       said::pass(1, 1), said::cancelled, said::failed}));
    QCOMPARE(contentOf(files[0]), QByteArray(10, '\xFF'));
    QCOMPARE(contentOf(files[2]), QByteArray(10, 'M'));
}

void tst_FileWipeThreads::aStopBetweenTwoPasses()
{
    FileJob job;
    job.task.setMethod(WipeMethod::fromType(WipeMethod::GermanVsitr));
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    job.said.onLine = [&job](const QString &line) {
        if (line == said::pass(3, 7))
            job.stop();
    };
    QVERIFY(!job.run({file}));
    QCOMPARE(job.lines(),
             (QStringList{said::scanning, said::preparing(1, QStringLiteral("10 B")), said::pass(1, 7),
                          said::pass(2, 7), said::pass(3, 7), said::cancelled, said::failed}));
    QCOMPARE(contentOf(file), QByteArray(10, '\xFF'));
}

void tst_FileWipeThreads::aStopEndsTheFileAfterTheChunk()
{
    FileJob job;
    job.task.setBufferSizeMB(1);
    const QString file = job.makeFile(QStringLiteral("a"), 4 * MiB);
    int writes = 0;
    job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Write && ++writes == 2)
            job.stop();
        return Status();
    };
    QVERIFY(!job.run({file}));
    QCOMPARE(writes, 2);
    // The written data is flushed before the file is closed.
    QCOMPARE(job.files.calls(FaultPlan::Flush).size(), 1);
    QCOMPARE(job.lines(),
             (QStringList{said::scanning, said::preparing(1, QStringLiteral("4.00 MB")), said::pass(1, 1),
                          said::passFailed(1, 1, 1), said::cancelled, said::failed}));
    QCOMPARE(contentOf(file), QByteArray(2 * MiB, '\0') + QByteArray(2 * MiB, 'M'));
}

void tst_FileWipeThreads::aStopDuringTheFlushFailsTheFile()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Flush)
            job.stop();
        return Status();
    };
    QVERIFY(!job.run({file}));
    QVERIFY(job.files.opened(OpenMode::Verify).isEmpty());
    QVERIFY(job.lines().contains(said::passFailed(1, 1, 1)));
    QVERIFY(QFileInfo::exists(file));
}

void tst_FileWipeThreads::aStopWhileReadingBackPassesTheFile()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Read)
            job.stop();
        return Status();
    };
    QVERIFY(!job.run({file}));
    QCOMPARE(job.files.calls(FaultPlan::Read).size(), 1);
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(1, QStringLiteral("10 B")),
                                       said::pass(1, 1), said::cancelled, said::failed}));
    QCOMPARE(job.task.report().verificationSampleSize, 1);
    QVERIFY(QFileInfo::exists(file));
}

void tst_FileWipeThreads::aStopAfterThePasses()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("t/a"), 10);
    int reads = 0;
    job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Read && ++reads == 3)
            job.stop();
        return Status();
    };
    QVERIFY(!job.run({job.path(QStringLiteral("t"))}));
    QVERIFY(!job.lines().contains(said::deleting));
    QCOMPARE(job.lines().mid(job.lines().size() - 2), (QStringList{said::cancelled, said::failed}));
    // Without the deletion stage the folder stays too.
    QCOMPARE(contentOf(file), QByteArray(10, '\0'));
}

void tst_FileWipeThreads::aStopDuringTheDeletionStillRemovesTheFolders()
{
    FileJob job;
    for (int i = 0; i < 5; ++i)
        job.makeFile(QStringLiteral("t/%1").arg(i), 10);
    int removals = 0;
    job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Remove && ++removals == 2)
            job.stop();
        return Status();
    };
    QVERIFY(!job.run({job.path(QStringLiteral("t"))}));
    QCOMPARE(removals, 5);
    QCOMPARE(job.files.calls(FaultPlan::Rename).size(), 2); // the others keep their names
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(5, QStringLiteral("50 B")),
                                       said::pass(1, 1), said::deleting, said::cancelled, said::failed}));
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeThreads::aStopEndsTheDeletionAttempts()
{
    FileJob job;
    const QString held = job.makeFile(QStringLiteral("held"), 10);
    const QString other = job.makeFile(QStringLiteral("other"), 10);
    int removals = 0;
    job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Remove && ++removals == 3)
            job.stop();
        const bool fails = call.kind & (FaultPlan::Rename | FaultPlan::Remove);
        return fails ? Status{platform::SharingViolation, 0, "planned"} : Status();
    };
    QVERIFY(!job.run({held, other}));
    QCOMPARE(removals, 3);
    QCOMPARE(job.lines().mid(3),
             (QStringList{said::deleting, said::deletionFailed(held), said::cancelled, said::failed}));
    QVERIFY(QFileInfo::exists(other));
}

void tst_FileWipeThreads::aStopDuringTheFolderRemoval()
{
    class StoppingFolders : public platform::ForwardingFolders
    {
    public:
        using ForwardingFolders::ForwardingFolders;
        Status removeEmpty(const platform::EntryPath &folder) override
        {
            job->stop();
            return ForwardingFolders::removeEmpty(folder);
        }
        FileJob *job = nullptr;
    } folders(platform::Platform::current().folders());
    FileJob job(platform::Platform::current().files(), folders);
    folders.job = &job;
    job.makeFile(QStringLiteral("one/a"), 10);
    job.makeFile(QStringLiteral("two/b"), 10);
    QVERIFY(!job.run({job.path(QStringLiteral("one")), job.path(QStringLiteral("two"))}));
    QCOMPARE(job.lines().mid(3), (QStringList{said::deleting, said::cancelled, said::failed}));
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeThreads::aStopAtAnyCall_data()
{
    QTest::addColumn<int>("threads");
    QTest::newRow("one thread") << 1;
    QTest::newRow("four threads") << 4;
}

void tst_FileWipeThreads::aStopAtAnyCall()
{
    QFETCH(int, threads);
    int stops = 0;
    for (int at = 1;; ++at) {
        FileJob job;
        job.task.setThreadCount(threads);
        job.task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
        const QString outside = job.makeFile(QStringLiteral("outside"), QByteArray("keep"));
        job.makeFile(QStringLiteral("t/a"), 3'000);
        job.makeFile(QStringLiteral("t/sub/b"), 10);
        job.makeFile(QStringLiteral("t/sub/empty"), 0);
        const QString single = job.makeFile(QStringLiteral("single"), 50);
        std::atomic<int> calls{0};
        job.files.hook = [&](const FileCall &) {
            if (++calls == at)
                job.stop();
            return Status();
        };
        const bool success = job.run({job.path(QStringLiteral("t")), single});
        QCOMPARE(job.said.finishedCount(), 1);
        QVERIFY(job.lines().last().startsWith(QStringLiteral("finished ")));
        QCOMPARE(contentOf(outside), QByteArray("keep"));
        if (calls < at) {
            QVERIFY(success);
            break;
        }
        ++stops;
        QVERIFY(!success);
        QCOMPARE(job.lines().mid(job.lines().size() - 2), (QStringList{said::cancelled, said::failed}));
    }
    QVERIFY(stops > 50);
}

// ---- The worker's thread

namespace {
// A worker and its thread as the engine has them: without a parent, and deleted when the thread ends. The
// destructor stops the worker and waits for its thread, however the test ends.
class ThreadedWorker
{
public:
    explicit ThreadedWorker(WipeTask *task)
        : worker(new FileWipeWorker(task))
    {
        worker->moveToThread(&thread);
        QObject::connect(&thread, &QThread::started, worker, &BaseWipeWorker::process);
        QObject::connect(&thread, &QThread::finished, worker, &QObject::deleteLater);
    }
    ~ThreadedWorker()
    {
        if (!thread.isRunning()) {
            delete worker;
            return;
        }
        if (worker)
            worker->stop();
        thread.quit();
        thread.wait();
    }
    ThreadedWorker(const ThreadedWorker &) = delete;
    ThreadedWorker &operator=(const ThreadedWorker &) = delete;

    QPointer<FileWipeWorker> worker;
    QThread thread;
};
} // namespace

void tst_FileWipeThreads::runsInAThreadOfItsOwn()
{
    FileJob job;
    job.makeFile(QStringLiteral("t/a"), 10);
    job.makeFile(QStringLiteral("t/b"), 2'000);
    job.task.setFiles({job.path(QStringLiteral("t"))});
    job.task.setThreadCount(2);

    ThreadedWorker threaded(&job.task);
    QThread &thread = threaded.thread;
    QCOMPARE(threaded.worker->findChild<QThreadPool *>()->thread(), &thread);
    QSignalSpy finished(threaded.worker, &BaseWipeWorker::finished);
    int elsewhere = 0;
    QStringList log;
    connect(threaded.worker, &BaseWipeWorker::logMessage, this, [&](const QString &text, int) {
        elsewhere += QThread::currentThread() == this->thread() ? 0 : 1;
        log.append(text);
    });
    connect(threaded.worker, &BaseWipeWorker::finished, &thread, &QThread::quit);
    QSignalSpy ended(&thread, &QThread::finished);
    thread.start();
    QVERIFY(ended.wait(60'000));
    QVERIFY(thread.wait());
    QTRY_VERIFY_WITH_TIMEOUT(!threaded.worker, 60000);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished[0][0].toBool(), true);
    QCOMPARE(elsewhere, 0);
    QCOMPARE(log.size(), 4);
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeThreads::isStoppedInItsThread()
{
    FileJob job;
    job.task.setThreadCount(2);
    QStringList files;
    for (int i = 0; i < 20; ++i)
        files += job.makeFile(QString::number(i), 10);
    job.task.setFiles(files);
    // Every write waits until the stop has been requested.
    std::atomic<bool> writing{false};
    std::atomic<bool> stopped{false};
    job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Write) {
            writing = true;
            writing.notify_all();
            stopped.wait(false);
        }
        return Status();
    };
    ThreadedWorker threaded(&job.task);
    job.said.attach(*threaded.worker);
    // Wakes the test when no write came.
    connect(
        threaded.worker, &BaseWipeWorker::finished, this,
        [&writing] {
            writing = true;
            writing.notify_all();
        },
        Qt::DirectConnection);
    threaded.thread.start();
    writing.wait(false);
    threaded.worker->stop();
    threaded.thread.quit();
    stopped = true;
    stopped.notify_all();
    QVERIFY(threaded.thread.wait());
    QCOMPARE(job.said.finishedCount(), 1);
    QVERIFY(!job.said.succeeded());
    // Two files were being written at the stop; no other file was touched.
    QVERIFY(!job.files.calls(FaultPlan::Write).isEmpty());
    QVERIFY(job.files.calls(FaultPlan::Write).size() <= 2);
    int untouched = 0;
    for (const QString &file : files)
        untouched += contentOf(file) == QByteArray(10, 'M') ? 1 : 0;
    QVERIFY(untouched >= 18);
}

void tst_FileWipeThreads::mayBeDestroyedWithoutHavingRun()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    job.task.setFiles({file});
    {
        const FileWipeWorker worker(&job.task);
    }
    QCOMPARE(job.files.calls().size(), 0);
}

void tst_FileWipeThreads::mayBeDestroyedInAnotherThread()
{
    FileJob job;
    job.task.setFiles({job.makeFile(QStringLiteral("a"), 10)});
    auto worker = std::make_unique<FileWipeWorker>(&job.task);
    QThread thread;
    worker->moveToThread(&thread);
    thread.start();
    thread.quit();
    QVERIFY(thread.wait());
    worker.reset();
    QCOMPARE(job.files.calls().size(), 0);
}

QUORVEX_SUITE(tst_FileWipeThreads, QCoreApplication)
#include "tst_filewipethreads.moc"
