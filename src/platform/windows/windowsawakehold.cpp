#include "platform/windows/windowsawakehold.h"

#include "platform/windows/windowsdesktopcalls.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowsprocesscalls.h"

#include <string>
#include <utility>

namespace platform {

Result<std::unique_ptr<AwakeHold>> WindowsAwakeHold::begin(const AwakeRequest &request)
{
    // The call reports a failure without an error code.
    ::SetLastError(ERROR_SUCCESS);
    const EXECUTION_STATE before = processCalls().setThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED);
    if (before == 0)
        return statusFromLastError("SetThreadExecutionState");
    std::unique_ptr<WindowsAwakeHold> hold(new WindowsAwakeHold(before));
    // The system limits the length of the reason.
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
    // Without ES_CONTINUOUS the previous state would apply only for a moment.
    processCalls().setThreadExecutionState(m_before | ES_CONTINUOUS);
}

} // namespace platform
