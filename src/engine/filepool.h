#pragma once

#include <QtGlobal>

#include <chrono>
#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QObject;
class QThreadPool;
QT_END_NAMESPACE

/// Runs the jobs of a batch side by side on a thread pool. QThreadPool assumes that the system grants every
/// thread; a runnable for a refused thread never runs, and the pool waits for it for ever. So jobs are not
/// bound to threads here. The existing threads take one job after the other, and without any thread the
/// caller's own thread runs them.
class FilePool
{
public:
    /// Returns whether it succeeded; must not throw.
    using Job = std::function<bool()>;

    /// A thread that has not started after this time was refused, or is too late to matter.
    static constexpr std::chrono::milliseconds DefaultPatience{5000};

    /// The thread pool becomes a child of the parent, which outlives this.
    FilePool(int threads, QObject *parent, std::chrono::milliseconds patience = DefaultPatience);
    ~FilePool();
    FilePool(const FilePool &) = delete;
    FilePool &operator=(const FilePool &) = delete;

    /// The most jobs that run at the same time.
    int threadCount() const;

    /// Runs all jobs and returns the number that failed. When it throws std::bad_alloc, the jobs that began
    /// have ended too. One thread at a time.
    int run(std::vector<Job> jobs);

private:
    struct Batch;

    static void work(Batch &batch);
    void finish(Batch &batch);

    int affordableThreads();

    QThreadPool *m_threads;
    int m_affordable = -1; ///< affordable within the limit of open files; below 0 before the first run
    const std::chrono::milliseconds m_patience;
    bool m_hasThreads = true;
};
