#pragma once

#include "platform/session.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

/// Keeps the system awake for the calling thread, and registers the reason against a shutdown with a window.
class WindowsAwakeHold final : public AwakeHold
{
public:
    static Result<std::unique_ptr<AwakeHold>> begin(const AwakeRequest &request);
    ~WindowsAwakeHold() override;

    bool delaysShutdown() const override { return m_window != nullptr; }

private:
    explicit WindowsAwakeHold(EXECUTION_STATE before)
        : m_before(before)
    {}

    EXECUTION_STATE m_before;
    HWND m_window = nullptr; ///< with the registered reason
};

} // namespace platform
