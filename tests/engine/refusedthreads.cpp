#include "refusedthreads.h"

// A sanitizer wraps the same function to start threads.
#if defined(Q_OS_LINUX) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

#include <dlfcn.h>
#include <pthread.h>

#include <cerrno>
#include <chrono>
#include <memory>
#include <thread>

bool RefusedThreads::isPossible()
{
    return true;
}

namespace {

// The body of a thread that starts late.
struct LateThread
{
    void *(*body)(void *);
    void *argument;

    static void *run(void *self)
    {
        const std::unique_ptr<LateThread> late(static_cast<LateThread *>(self));
        std::this_thread::sleep_for(std::chrono::milliseconds(RefusedThreads::lateByMs.load()));
        return late->body(late->argument);
    }
};

} // namespace

// Replaces the system's function for every library of this process.
extern "C" int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*body)(void *),
                              void *argument) noexcept
{
    using Create = int (*)(pthread_t *, const pthread_attr_t *, void *(*)(void *), void *);
    static const auto system = reinterpret_cast<Create>(::dlsym(RTLD_NEXT, "pthread_create"));
    if (RefusedThreads::refuseNext())
        return EAGAIN;
    if (RefusedThreads::lateByMs == 0)
        return system(thread, attributes, body, argument);
    auto late = std::make_unique<LateThread>(LateThread{body, argument});
    const int refusal = system(thread, attributes, &LateThread::run, late.get());
    if (refusal == 0)
        static_cast<void>(late.release());
    return refusal;
}

#else

bool RefusedThreads::isPossible()
{
    return false;
}

#endif
