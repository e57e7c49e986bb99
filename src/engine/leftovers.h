#pragma once

#include "platform/anchoredfolder.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

// The temporary folders in the root of a volume: of a job that is running, or that was cut off and left them
// behind. Claimed for as long as this lives, so that no other job takes them for its own affair.
class LeftOvers
{
public:
    // The root outlives this. All but the folder of that name.
    explicit LeftOvers(platform::AnchoredFolder &root, const QString &except = {});

    // The path of a folder in which another job is at work, or may be: where the file system does not know
    // who has a folder open, one that is not empty counts as such. Empty without one.
    QString inUse() const { return m_inUse; }

    struct Removed
    {
        QStringList folders; // from which something was deleted, in the order of the listing
        qint64 bytes = 0;    // of fill files
    };
    // Deletes what bears the names that a job gives, then the folders that are empty. Anything else stays,
    // and so does whatever cannot be deleted.
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
