#pragma once

#include "platform/linux/linuxfiledescriptor.h"
#include "platform/status.h"

#include <QByteArray>

#include <sys/types.h>

#include <vector>

namespace platform {

// Removes a folder with everything in it, level by level without recursion: at any time only the folder at
// work is open, whatever the depth. Going up again is by "..", checked against the folder it was entered
// from, so that moving a part of the tree away meanwhile ends the removal instead of leading it elsewhere.
class TreeRemoval
{
public:
    // parent: the folder that contains the one to be removed, open for lookups (O_PATH is enough).
    explicit TreeRemoval(FileDescriptor parent)
        : m_current(std::move(parent))
    {}
    // The first failure. name: one component, not a link. Once per object.
    Status run(const QByteArray &name);

private:
    struct Identity
    {
        dev_t device = 0;
        ino_t inode = 0;

        bool operator==(const Identity &) const = default;
    };
    struct Description
    {
        Identity identity;
        bool isMountPoint = false;
    };
    struct Level
    {
        QByteArray name;
        Identity parent;
        std::vector<QByteArray> folders; // still to be removed
    };

    Result<Description> describe(const FileDescriptor &folder) const;
    void removeFolder(const QByteArray &name);
    void enter(const QByteArray &name, const Status &whyNotRemoved);
    void emptyCurrent(std::vector<QByteArray> &folders);
    Status leave();
    void note(const Status &status);

    FileDescriptor m_current;
    Identity m_identity;
    std::vector<Level> m_levels;
    Status m_firstFailure;
};

} // namespace platform
