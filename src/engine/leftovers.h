#pragma once

#include "platform/anchoredfolder.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// The temporary folders in the root of a volume that belong to a running job, or were left behind by an
/// interrupted one. They are claimed for the lifetime of the object, so that no other job uses them.
class LeftOvers
{
public:
    /// Finds all temporary folders except the one of that name. The root outlives the object.
    explicit LeftOvers(platform::AnchoredFolder &root, const QString &except = {});

    /// The path of a folder in which another job works, or may work; empty without one. Where the file system
    /// cannot tell whether a folder is open elsewhere, a folder with content counts as in use.
    QString inUse() const { return m_inUse; }

    struct Removed
    {
        QStringList folders; ///< folders from which something was deleted, in the order of the listing
        qint64 bytes = 0;    ///< of fill files
    };
    /// Deletes the entries that are named like those of a job, then the empty folders. Other entries stay,
    /// and so do entries that cannot be deleted.
    Removed remove();

private:
    struct Folder
    {
        QString name;
        std::unique_ptr<platform::AnchoredFolder> open;
    };

    platform::AnchoredFolder &m_root;
    std::vector<Folder> m_folders;
    QString m_inUse;
};
