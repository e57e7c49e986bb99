#pragma once

#include "platform/anchoredfolder.h"

#include <QString>
#include <QStringList>

// What a free-space job that was cut off left behind.
struct LeftOvers
{
    QStringList folders; // from which files were deleted, in the order of the listing
    qint64 bytes = 0;    // of these files

    // Deletes the fill files in every temporary folder in the root that no job has open, then the folders
    // that are empty. Anything else stays, and so does whatever cannot be deleted.
    static LeftOvers remove(platform::AnchoredFolder &root);
};
