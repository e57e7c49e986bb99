#pragma once

#include "platform/windows/windowsfilecalls.h"

#include <utility>

namespace platform {

/// Owns a handle from CreateFileW or OpenProcessToken.
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
    /// Keeps the thread's last error, because a handle may go out of scope between a failed call and the
    /// reading of its error.
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
