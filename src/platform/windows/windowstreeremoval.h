#pragma once

#include "platform/status.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowsfolderlisting.h"

#include <string>
#include <vector>

namespace platform {

/// Removes a folder with everything in it, without recursion. Each folder from the top to the current one is
/// held, so that none can be replaced by a link through which the paths of its entries would lead.
class TreeRemoval
{
public:
    /// Returns the first failure. The path is encoded and not the root of a volume. Once per object.
    Status run(const std::wstring &path);

private:
    struct Level
    {
        std::wstring path;
        HeldFolder held;
        std::vector<std::wstring> folders; ///< names still to be removed
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
