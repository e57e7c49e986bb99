#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace platform {

/// Owns a file descriptor. Closing reports no errors, so a caller that needs the data on the medium flushes
/// before.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number)
        : m_number(number)
    {}
    ~FileDescriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        FileDescriptor old(std::exchange(m_number, std::exchange(other.m_number, -1)));
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    bool isValid() const { return m_number >= 0; }
    int get() const { return m_number; }
    /// Releases ownership; the caller closes the descriptor.
    int release() { return std::exchange(m_number, -1); }

private:
    int m_number = -1;
};

/// Repeats a system call as long as a signal interrupts it.
template <typename Call>
auto uninterrupted(Call call)
{
    auto answer = call();
    while (answer == -1 && errno == EINTR)
        answer = call();
    return answer;
}

} // namespace platform
