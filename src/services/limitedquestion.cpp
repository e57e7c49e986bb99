#include "services/limitedquestion.h"

#include "platform/platform.h"

#include <QDebug>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <list>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace limitedquestion {

namespace {

// A running query, shared by its thread and the caller.
struct Question
{
    std::mutex mutex;
    std::condition_variable changed;
    bool isAnswered = false;
    std::exception_ptr thrown;

    void run(const std::function<void()> &question)
    {
        std::exception_ptr failure;
        try {
            question();
        } catch (...) {
            failure = std::current_exception();
        }
        const std::scoped_lock lock(mutex);
        thrown = failure;
        isAnswered = true;
        changed.notify_all();
    }

    bool wait(std::chrono::milliseconds limit)
    {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, limit, [this] { return isAnswered; });
    }
};

// Devices whose query has not returned in time.
class Owing
{
public:
    ~Owing()
    {
        for (Thread &one : m_threads)
            one.thread.join();
    }

    // Also joins the threads that have finished.
    bool has(const QString &device)
    {
        const std::scoped_lock lock(m_mutex);
        m_threads.remove_if([](Thread &one) {
            if (!one.question->wait(std::chrono::milliseconds(0)))
                return false;
            one.thread.join();
            return true;
        });
        return std::ranges::any_of(m_threads, [&device](const Thread &one) { return one.device == device; });
    }

    void add(const QString &device, std::shared_ptr<Question> question, std::thread thread)
    {
        const std::scoped_lock lock(m_mutex);
        m_threads.push_back({device, std::move(question), std::move(thread)});
    }

private:
    struct Thread
    {
        QString device;
        std::shared_ptr<Question> question;
        std::thread thread;
    };

    std::mutex m_mutex;
    std::list<Thread> m_threads;
};

Owing &owing()
{
    // Declared first, so that they outlive the threads that may still use them.
    static_cast<void>(platform::Platform::current());
    static Owing devices;
    return devices;
}

std::atomic<std::chrono::milliseconds> s_limit{DefaultLimit};

} // namespace

void setLimit(std::chrono::milliseconds limit)
{
    s_limit.store(limit);
}

bool ask(const QString &device, const std::function<void()> &question)
{
    if (owing().has(device)) {
        qDebug() << "Not asked, since it has not answered before:" << device;
        return false;
    }
    const auto asked = std::make_shared<Question>();
    std::thread thread;
    try {
        thread = std::thread([asked, question] { asked->run(question); });
    } catch (const std::system_error &) {
        question(); // without a thread there is no limit
        return true;
    }
    if (!asked->wait(s_limit.load())) {
        qWarning() << "No answer in time:" << device;
        owing().add(device, asked, std::move(thread));
        return false;
    }
    thread.join();
    if (asked->thrown)
        std::rethrow_exception(asked->thrown);
    return true;
}

} // namespace limitedquestion
