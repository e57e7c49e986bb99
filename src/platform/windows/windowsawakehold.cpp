#include "platform/windows/windowsawakehold.h"

#include "platform/windows/windowsdesktopcalls.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowsprocesscalls.h"

#include <string>
#include <utility>

namespace platform {

Result<std::unique_ptr<AwakeHold>> WindowsAwakeHold::begin(const AwakeRequest &request)
{
    // The call tells nothing but that it failed.
    ::SetLastError(ERROR_SUCCESS);
    const EXECUTION_STATE before = processCalls().setThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED);
    if (before == 0)
        return statusFromLastError("SetThreadExecutionState");
    std::unique_ptr<WindowsAwakeHold> hold(new WindowsAwakeHold(before));
    // The system takes no more.
    const std::wstring reason = request.reason.left(MAX_STR_BLOCKREASON - 1).toStdWString();
    auto *const window = reinterpret_cast<HWND>(request.window);
    if (window != nullptr && desktopCalls().shutdownBlockReasonCreate(window, reason.c_str()))
        hold->m_window = window;
    return std::unique_ptr<AwakeHold>(std::move(hold));
}

WindowsAwakeHold::~WindowsAwakeHold()
{
    if (m_window != nullptr)
        desktopCalls().shutdownBlockReasonDestroy(m_window);
    // Without the first flag the rest would hold for a moment only.
    processCalls().setThreadExecutionState(m_before | ES_CONTINUOUS);
}

} // namespace platform
