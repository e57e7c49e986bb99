#pragma once

#include "platform/status.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowsfolderlisting.h"

#include <string>
#include <vector>

namespace platform {

// Removes a folder with everything in it, without recursion. Every folder from the top down to the one at
// work is held meanwhile: none of them can be swapped for a link, which the paths of their entries would then
// lead through.
class TreeRemoval
{
public:
    // The first failure. The path is encoded and none of a volume's root. Once per object.
    Status run(const std::wstring &path);

private:
    struct Level
    {
        std::wstring path;
        HeldFolder held;
        std::vector<std::wstring> folders; // names, still to be removed
    };

    void removeFolder(const std::wstring &path);
    void enter(const std::wstring &path, HeldFolder held);
    void removeOther(const std::wstring &path, const EntryAttributes &attributes);
    void leave();
    void note(const Status &status);

    std::vector<Level> m_levels;
    Status m_firstFailure;
};

} // namespace platform
