#pragma once

namespace platform {

class FolderHandle;

/// Files of one file system that are flushed to the medium together. One flush for all of them takes a
/// fraction of the time of a flush for each. Files begins and closes a group; without the close, the data of
/// its members may not be on the medium. Any thread.
class DurabilityGroup
{
public:
    DurabilityGroup() = default;
    virtual ~DurabilityGroup() = default;
    DurabilityGroup(const DurabilityGroup &) = delete;
    DurabilityGroup &operator=(const DurabilityGroup &) = delete;

    /// Whether entries of the folder can be members, except entries that are mount points.
    virtual bool covers(const FolderHandle &folder) const = 0;
};

} // namespace platform
