#pragma once

namespace platform {

class FolderHandle;

// Files of one file system that reach the medium together: waiting for the device once for all of them takes
// a fraction of the time that waiting for each takes. Begun and closed by Files; one that is not closed says
// nothing about its members. Any thread.
class DurabilityGroup
{
public:
    DurabilityGroup() = default;
    virtual ~DurabilityGroup() = default;
    DurabilityGroup(const DurabilityGroup &) = delete;
    DurabilityGroup &operator=(const DurabilityGroup &) = delete;

    // Whether what stands in the folder can be a member, without what is mounted there.
    virtual bool covers(const FolderHandle &folder) const = 0;
};

} // namespace platform
