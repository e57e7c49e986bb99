#pragma once

#include <sys/resource.h>

// Limits the number of descriptors of this process until destruction.
class FewDescriptors
{
public:
    explicit FewDescriptors(rlim_t most)
    {
        ::getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit few = {most, m_before.rlim_max};
        m_set = ::setrlimit(RLIMIT_NOFILE, &few) == 0;
    }
    ~FewDescriptors() { ::setrlimit(RLIMIT_NOFILE, &m_before); }
    FewDescriptors(const FewDescriptors &) = delete;
    FewDescriptors &operator=(const FewDescriptors &) = delete;

    bool isSet() const { return m_set; }

private:
    rlimit m_before = {};
    bool m_set = false;
};
