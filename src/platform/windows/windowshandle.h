#pragma once

#include "platform/windows/windowsfilecalls.h"

#include <utility>

namespace platform {

// Owns what CreateFileW or OpenProcessToken opened.
class WinHandle
{
public:
    WinHandle() = default;
    explicit WinHandle(HANDLE handle)
        : m_handle(handle == nullptr ? INVALID_HANDLE_VALUE : handle)
    {}
    ~WinHandle() { close(); }
    WinHandle(WinHandle &&other) noexcept
        : m_handle(std::exchange(other.m_handle, INVALID_HANDLE_VALUE))
    {}
    WinHandle &operator=(WinHandle &&other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    WinHandle(const WinHandle &) = delete;
    WinHandle &operator=(const WinHandle &) = delete;

    bool isValid() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

private:
    // Leaves the thread's error number as it is: a handle may go out of scope between a failed call and the
    // look at its number.
    void close()
    {
        if (!isValid())
            return;
        const DWORD error = ::GetLastError();
        fileCalls().closeHandle(m_handle);
        ::SetLastError(error);
    }

    HANDLE m_handle = INVALID_HANDLE_VALUE;
};

} // namespace platform
