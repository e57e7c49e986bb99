#include "engine/filepool.h"

#include "platform/files.h"
#include "platform/platform.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QMutex>
#include <QMutexLocker>
#include <QScopeGuard>
#include <QThreadPool>
#include <QWaitCondition>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

// Shared with every requested thread, so that a late thread finds it valid, with no jobs left.
struct FilePool::Batch
{
    QMutex mutex; // guards the members below
    QWaitCondition changed;
    std::vector<Job> jobs;
    std::size_t next = 0;
    int running = 0;
    int limit = 1;
    int failures = 0;

    bool hasLeft() const { return next < jobs.size(); }
};

FilePool::FilePool(int threads, QObject *parent, std::chrono::milliseconds patience)
    : m_threads(new QThreadPool(parent))
    , m_patience(patience)
{
    m_threads->setMaxThreadCount(threads);
}

FilePool::~FilePool()
{
    m_threads->clear();
    const std::chrono::milliseconds patience = m_hasThreads ? m_patience : std::chrono::milliseconds::zero();
    if (m_threads->waitForDone(static_cast<int>(patience.count()))) {
        delete m_threads;
        return;
    }
    // QThreadPool counts a refused thread as busy, and its destructor would wait for it without a limit.
    qWarning("[FileWipe] a thread of the pool never began");
    m_threads->setParent(nullptr);
}

int FilePool::threadCount() const
{
    return m_threads->maxThreadCount();
}

// Qt ends the process when a thread gets no descriptor for its event loop. The limit is computed once,
// because running threads keep their descriptors.
int FilePool::affordableThreads()
{
    // The event loop, the file and its folder.
    constexpr int FilesOfOneThread = 3;
    // Walked folders, the log and the database.
    constexpr int FilesOfOthers = 16;
    if (m_affordable < 0)
        m_affordable = std::max(platform::Platform::current().files().spareOpenFiles() - FilesOfOthers, 0) /
                       FilesOfOneThread;
    return std::min(m_affordable, threadCount());
}

int FilePool::run(std::vector<Job> jobs)
{
    const auto batch = std::make_shared<Batch>();
    batch->jobs = std::move(jobs);
    batch->limit = std::max(threadCount(), 1);
    // Also when the request for a thread throws, because running jobs use objects of the caller.
    const auto cleanUp = qScopeGuard([&batch] {
        const QMutexLocker locker(&batch->mutex);
        batch->next = batch->jobs.size();
        while (batch->running > 0)
            batch->changed.wait(&batch->mutex);
    });
    const int affordable = affordableThreads();
    m_hasThreads = m_hasThreads && affordable > 0;
    batch->limit = std::min(batch->limit, std::max(affordable, 1));
    const int wanted = std::min(batch->limit, static_cast<int>(batch->jobs.size()));
    for (int i = 0; i < wanted && m_hasThreads; ++i)
        m_threads->start([batch] { work(*batch); });
    finish(*batch);
    return batch->failures;
}

void FilePool::work(Batch &batch)
{
    QMutexLocker locker(&batch.mutex);
    while (batch.hasLeft() && batch.running < batch.limit) {
        const Job &job = batch.jobs[batch.next++];
        ++batch.running;
        locker.unlock();
        const bool succeeded = job();
        locker.relock();
        --batch.running;
        batch.failures += succeeded ? 0 : 1;
        // Not after every job, because a wake-up costs more than a small file.
        if (!batch.hasLeft() && batch.running == 0)
            batch.changed.wakeAll();
    }
}

void FilePool::finish(Batch &batch)
{
    QMutexLocker locker(&batch.mutex);
    while (batch.hasLeft() || batch.running > 0) {
        // A running thread, even a late one, wakes this wait at its end.
        if (m_hasThreads || batch.running > 0) {
            const QDeadlineTimer patience(m_patience);
            if (batch.changed.wait(&batch.mutex, patience) || batch.running > 0)
                continue;
        }
        // Without any running thread this one takes over, for this batch and the following ones.
        m_hasThreads = false;
        locker.unlock();
        work(batch);
        locker.relock();
    }
}
