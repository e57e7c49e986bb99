#pragma once

#include <QtGlobal>

#include <atomic>
#include <limits>

// While one lives, the system refuses this process the threads that it asks for. In one source file of a
// program.
class RefusedThreads
{
public:
    static bool isPossible();
    static constexpr const char *whyNot =
        "SKIPPED: only on Linux, without a sanitizer, can a test refuse its process threads";

    explicit RefusedThreads(int howMany = std::numeric_limits<int>::max())
    {
        s_refused = 0;
        s_left = howMany;
    }
    ~RefusedThreads() { s_left = 0; }
    RefusedThreads(const RefusedThreads &) = delete;
    RefusedThreads &operator=(const RefusedThreads &) = delete;

    int count() const { return s_refused; }

    // For that long, threads do nothing after their start. Until set to 0.
    static inline std::atomic<int> lateBySeconds{0};

    // Whether the thread that is asked for now is one of them.
    static bool refuseNext()
    {
        if (s_left <= 0)
            return false;
        --s_left;
        ++s_refused;
        return true;
    }

private:
    static inline std::atomic<int> s_left{0};
    static inline std::atomic<int> s_refused{0};
};

// A sanitizer starts threads through the same function, in its own way.
#if defined(Q_OS_LINUX) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

#include <dlfcn.h>
#include <pthread.h>

#include <cerrno>
#include <memory>
#include <unistd.h>

inline bool RefusedThreads::isPossible()
{
    return true;
}

// What a late thread does, once it does something.
struct LateThread
{
    void *(*body)(void *);
    void *argument;

    static void *run(void *self)
    {
        const std::unique_ptr<LateThread> late(static_cast<LateThread *>(self));
        ::sleep(static_cast<unsigned>(RefusedThreads::lateBySeconds.load()));
        return late->body(late->argument);
    }
};

// In the place of the system's, for every library of this process.
extern "C" int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*body)(void *),
                              void *argument) noexcept
{
    using Create = int (*)(pthread_t *, const pthread_attr_t *, void *(*)(void *), void *);
    static const auto system = reinterpret_cast<Create>(::dlsym(RTLD_NEXT, "pthread_create"));
    if (RefusedThreads::refuseNext())
        return EAGAIN;
    if (RefusedThreads::lateBySeconds == 0)
        return system(thread, attributes, body, argument);
    auto late = std::make_unique<LateThread>(LateThread{body, argument});
    const int refusal = system(thread, attributes, &LateThread::run, late.get());
    if (refusal == 0)
        static_cast<void>(late.release());
    return refusal;
}

#else

inline bool RefusedThreads::isPossible()
{
    return false;
}

#endif
