#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

// Names of the temporary folder that a free-space job puts into the root of a volume and of the fill files in
// it, and what a job that was cut off left behind under these names.

namespace fillfolder {

// ".quorvex_temp_" and 8 random lower-case hexadecimal digits.
QString newName();
bool isName(QStringView name);

// "fill_000000.tmp", "fill_000001.tmp" ...
QString fileName(int index);
bool isFileName(QStringView name);

struct LeftOvers
{
    QStringList folders; // from which files were deleted, in the order of the listing
    qint64 bytes = 0;    // of these files
};

// Deletes the fill files in every folder of such a name in the root (ends in a slash), then the folders that
// are empty. Anything else stays, and so does whatever cannot be deleted.
LeftOvers removeLeftOvers(const QString &root);

} // namespace fillfolder
