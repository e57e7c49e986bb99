#include "platform/windows/windowsdesktopcalls.h"

#include <ole2.h>
#include <shlobj.h>

namespace platform {

HRESULT WINAPI revokeDragDrop(HWND window)
{
    return ::RevokeDragDrop(window);
}

void WINAPI changeNotify(LONG event, UINT flags, LPCVOID first, LPCVOID second)
{
    ::SHChangeNotify(event, flags, first, second);
}

void WINAPI updateRecycleBinIcon()
{
    using Update = void(WINAPI *)();
    HMODULE const shell = ::GetModuleHandleW(L"shell32.dll");
    FARPROC const found = shell ? ::GetProcAddress(shell, "SHUpdateRecycleBinIcon") : nullptr;
    if (const auto update = reinterpret_cast<Update>(reinterpret_cast<void (*)()>(found)))
        update();
}

} // namespace platform
