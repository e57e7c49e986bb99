#include "engine/filepool.h"
#include "support/faultplan.h"
#include "support/suite.h"

#include "filejob.h"
#include "refusedthreads.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>
#include <QThread>

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
};

namespace {

// For threads that never come, or come after it.
constexpr std::chrono::milliseconds ShortPatience{100};

// Jobs that count themselves and those that ran on the thread that made them.
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

// They take jobs after the caller has given them up and begun to work itself.
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
    QCOMPARE(job.files.calls(FaultPlan::Flush).size(), 9 * 2); // overwritten, and cut
    for (const QString &file : std::as_const(files))
        QVERIFY(!QFile::exists(file));
}

QUORVEX_SUITE(tst_FilePool, QCoreApplication)
#include "tst_filepool.moc"
