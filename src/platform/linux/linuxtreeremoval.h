#pragma once

#include "platform/linux/linuxfiledescriptor.h"
#include "platform/status.h"

#include <QByteArray>

#include <sys/types.h>

#include <vector>

namespace platform {

/// Removes a folder with all its contents, level by level without recursion. Only the current folder is open
/// at any time, whatever the depth. The way up is "..", compared with the folder that was left on the way
/// down, so that moving a part of the tree away meanwhile ends the removal and cannot redirect it.
class TreeRemoval
{
public:
    /// parent: the folder that contains the folder to be removed, open for lookups (O_PATH is enough).
    explicit TreeRemoval(FileDescriptor parent)
        : m_current(std::move(parent))
    {}
    /// Returns the first failure. name: one component, not a link. Once per object.
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
        std::vector<QByteArray> folders; ///< folders that are still to be removed
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
