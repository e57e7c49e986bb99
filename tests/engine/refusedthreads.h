#pragma once

#include <QtGlobal>

#include <atomic>
#include <limits>

// While an object lives, the system refuses new threads to this process.
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

    // Threads wait this many milliseconds after their start. 0: no wait.
    static inline std::atomic<int> lateByMs{0};

    // Whether to refuse the thread that is requested now.
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
