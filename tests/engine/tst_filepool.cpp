#include "engine/filepool.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "support/faultplan.h"
#include "support/suite.h"

#include "filejob.h"
#include "refusedthreads.h"

#include <QCoreApplication>
#include <QFile>
#include <QScopeGuard>
#include <QTest>
#include <QThread>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

#include <algorithm>
#include <atomic>
#include <chrono>
#include <vector>

class tst_FilePool : public QObject
{
    Q_OBJECT

private slots:
    void everyJobRunsOnce_data();
    void everyJobRunsOnce();
    void failuresAreCounted();
    void noJobsAreNoWork();
    void oneRefusedThreadIsDoneWithout();
    void withoutThreadsTheCallerDoesTheWork();
    void threadsThatComeLateAreWaitedFor();
    void filesAreErasedWithoutThreads();
    void noMoreThreadsThanOpenFilesAllow_data();
    void noMoreThreadsThanOpenFilesAllow();
};

namespace {

// For threads that never start, or start later than this.
constexpr std::chrono::milliseconds ShortPatience{100};

// Jobs that count their runs, and the runs on the thread that created them.
struct Counting
{
    std::vector<FilePool::Job> jobs(int count)
    {
        return std::vector<FilePool::Job>(static_cast<std::size_t>(count), [this] {
            ++ran;
            if (QThread::currentThread() == caller)
                ++onCaller;
            return true;
        });
    }

    QThread *caller = QThread::currentThread();
    std::atomic<int> ran{0};
    std::atomic<int> onCaller{0};
};

} // namespace

void tst_FilePool::everyJobRunsOnce_data()
{
    QTest::addColumn<int>("threads");
    QTest::addColumn<int>("count");
    QTest::newRow("one thread, one job") << 1 << 1;
    QTest::newRow("one thread, many jobs") << 1 << 50;
    QTest::newRow("fewer jobs than threads") << 8 << 3;
    QTest::newRow("many jobs") << 4 << 500;
}

void tst_FilePool::everyJobRunsOnce()
{
    QFETCH(int, threads);
    QFETCH(int, count);
    QObject parent;
    FilePool pool(threads, &parent);
    for (int round = 1; round <= 20; ++round) {
        Counting counting;
        QCOMPARE(pool.run(counting.jobs(count)), 0);
        QCOMPARE(counting.ran.load(), count);
        QCOMPARE(counting.onCaller.load(), 0);
    }
}

void tst_FilePool::failuresAreCounted()
{
    QObject parent;
    FilePool pool(3, &parent);
    std::vector<FilePool::Job> jobs;
    for (int i = 0; i < 10; ++i)
        jobs.push_back([i] { return i % 3 != 0; });
    QCOMPARE(pool.run(jobs), 4);
}

void tst_FilePool::noJobsAreNoWork()
{
    QObject parent;
    FilePool pool(3, &parent);
    QCOMPARE(pool.run({}), 0);
}

void tst_FilePool::oneRefusedThreadIsDoneWithout()
{
    if (!RefusedThreads::isPossible())
        QSKIP(RefusedThreads::whyNot);
    QObject parent;
    FilePool pool(3, &parent, ShortPatience);
    Counting counting;
    const RefusedThreads refused(1);
    QCOMPARE(pool.run(counting.jobs(30)), 0);
    QCOMPARE(refused.count(), 1);
    QCOMPARE(counting.ran.load(), 30);
    QCOMPARE(counting.onCaller.load(), 0);
}

void tst_FilePool::withoutThreadsTheCallerDoesTheWork()
{
    if (!RefusedThreads::isPossible())
        QSKIP(RefusedThreads::whyNot);
    QObject parent;
    FilePool pool(2, &parent, ShortPatience);
    const RefusedThreads refused;
    for (int round = 0; round < 3; ++round) {
        Counting counting;
        QCOMPARE(pool.run(counting.jobs(5)), 0);
        QCOMPARE(counting.ran.load(), 5);
        QCOMPARE(counting.onCaller.load(), 5);
    }
    QVERIFY(refused.count() > 0);
}

// The threads take jobs after the caller has given them up and works itself.
void tst_FilePool::threadsThatComeLateAreWaitedFor()
{
    if (!RefusedThreads::isPossible())
        QSKIP(RefusedThreads::whyNot);
    QObject parent;
    FilePool pool(2, &parent, ShortPatience);
    std::atomic<int> ran{0};
    RefusedThreads::lateByMs = 300;
    const int failures = pool.run(std::vector<FilePool::Job>(4, [&ran] {
        QTest::qSleep(150);
        ++ran;
        return true;
    }));
    RefusedThreads::lateByMs = 0;
    QCOMPARE(failures, 0);
    QCOMPARE(ran.load(), 4);
}

void tst_FilePool::filesAreErasedWithoutThreads()
{
    if (!RefusedThreads::isPossible())
        QSKIP(RefusedThreads::whyNot);
    FileJob job;
    job.task.setThreadCount(2);
    QStringList files;
    for (int i = 0; i < 9; ++i)
        files += job.makeFile(QString::number(i), 5000);
    const RefusedThreads refused;
    const bool success = job.run(files);
    QVERIFY(refused.count() > 0);
    QVERIFY2(success, qPrintable(job.lines().join(u'\n')));
    QCOMPARE(job.files.calls(FaultPlan::Flush).size(), 9 * 2); // flushed after each pass and after the cut
    for (const QString &file : std::as_const(files))
        QVERIFY(!QFile::exists(file));
}

void tst_FilePool::noMoreThreadsThanOpenFilesAllow_data()
{
    QTest::addColumn<int>("spare");
    QTest::addColumn<int>("most");
    QTest::newRow("none") << 4 << 0;
    QTest::newRow("one thread") << 20 << 1;
    QTest::newRow("some") << 30 << 4;
    QTest::newRow("plenty") << 500 << 8;
}

// A pool thread without a descriptor for its event loop would end the process here.
void tst_FilePool::noMoreThreadsThanOpenFilesAllow()
{
#ifdef Q_OS_LINUX
    QFETCH(const int, spare);
    QFETCH(const int, most);
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit tight = before;
    // Without gaps the lowest free number is the count of open files.
    for (tight.rlim_cur = 3;; ++tight.rlim_cur) {
        QVERIFY(::setrlimit(RLIMIT_NOFILE, &tight) == 0);
        if (platform::Platform::current().files().spareOpenFiles() >= spare)
            break;
    }
    const auto restore = qScopeGuard([&before] { ::setrlimit(RLIMIT_NOFILE, &before); });
    QObject parent;
    FilePool pool(8, &parent);
    std::atomic<int> running{0};
    std::atomic<int> highest{0};
    Counting counting;
    std::vector<FilePool::Job> jobs(64, [&] {
        const int now = ++running;
        for (int seen = highest; seen < now && !highest.compare_exchange_weak(seen, now);)
            ;
        QTest::qSleep(2);
        --running;
        counting.onCaller += QThread::currentThread() == counting.caller;
        ++counting.ran;
        return true;
    });
    QCOMPARE(pool.run(std::move(jobs)), 0);
    QCOMPARE(counting.ran.load(), 64);
    QCOMPARE(counting.onCaller.load(), most == 0 ? 64 : 0);
    QVERIFY2(highest <= std::max(most, 1), QByteArray::number(highest.load()).constData());
#else
    QSKIP("SKIPPED: only on Linux can a test limit the open files of its process");
#endif
}

QUORVEX_SUITE(tst_FilePool, QCoreApplication)
#include "tst_filepool.moc"
