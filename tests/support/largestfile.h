#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

// Limits the size of every file of this process. Writes beyond the limit fail as on a full disk.
class LargestFile
{
public:
    explicit LargestFile(qint64 bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_previous);
        rlimit limit = m_previous;
        limit.rlim_cur = static_cast<rlim_t>(bytes);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~LargestFile()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_previous);
        std::signal(SIGXFSZ, m_handler);
    }
    LargestFile(const LargestFile &) = delete;
    LargestFile &operator=(const LargestFile &) = delete;

private:
    rlimit m_previous{};
    void (*m_handler)(int);
};
