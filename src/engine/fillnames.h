#pragma once

#include <QString>
#include <QStringView>

// Names of the temporary folder that a free-space job puts into the root of a volume and of the fill files in
// it.

namespace fillnames {

// ".quorvex_temp_" and 8 random lower-case hexadecimal digits.
QString newFolder();
bool isFolder(QStringView name);

// "fill_000000.tmp", "fill_000001.tmp" ...
QString file(int index);
bool isFile(QStringView name);

} // namespace fillnames
