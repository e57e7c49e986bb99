#include "platform/windows/windowsdroppedpaths.h"

#include "platform/windows/windowspaths.h"

#include <shellapi.h>

#include <string>

namespace platform {

QStringList droppedPaths(HDROP drop)
{
    constexpr UINT Count = 0xFFFFFFFF;
    const UINT count = ::DragQueryFileW(drop, Count, nullptr, 0);
    QStringList paths;
    for (UINT i = 0; i < count; ++i) {
        // The length excludes the terminating zero, but the buffer must have room for it.
        const UINT length = ::DragQueryFileW(drop, i, nullptr, 0);
        std::wstring path(std::size_t(length) + 1, L'\0');
        path.resize(::DragQueryFileW(drop, i, path.data(), length + 1));
        if (!path.empty())
            paths.append(decodeName(path));
    }
    return paths;
}

} // namespace platform
