#pragma once

#include <QtGlobal>

#include <chrono>
#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QObject;
class QThreadPool;
QT_END_NAMESPACE

// Runs the jobs of a batch side by side on a thread pool. A pool takes for granted that the system gives it
// every thread it asks for: what was handed to one that was refused never runs, and the pool waits for it
// for ever. So no job belongs to a thread here; the threads that there are take one after the other, and when
// there are none the caller's own thread does.
class FilePool
{
public:
    // Returns whether it succeeded; does not throw.
    using Job = std::function<bool()>;

    // A thread that has not begun by then was refused, or is late enough to be done without.
    static constexpr std::chrono::milliseconds DefaultPatience{5000};

    // The thread pool becomes a child of the parent, which outlives this.
    FilePool(int threads, QObject *parent, std::chrono::milliseconds patience = DefaultPatience);
    ~FilePool();
    FilePool(const FilePool &) = delete;
    FilePool &operator=(const FilePool &) = delete;

    // Jobs that run at the same time at most.
    int threadCount() const;

    // Returns when all jobs have ended; the number of those that failed. When it throws, for want of memory,
    // those that began have ended too. One thread at a time.
    int run(std::vector<Job> jobs);

private:
    struct Batch;

    static void work(Batch &batch);
    void finish(Batch &batch);

    int affordableThreads();

    QThreadPool *m_threads;
    int m_affordable =
        -1; // threads that the limit of open files leaves room for; below 0 before the first run
    const std::chrono::milliseconds m_patience;
    bool m_hasThreads = true;
};
