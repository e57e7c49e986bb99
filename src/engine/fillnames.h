#pragma once

#include <QString>
#include <QStringView>

/// Names of the temporary folder of a free-space job in the root of a volume, and of the files and folders in
/// it.

namespace fillnames {

/// ".quorvex_temp_" and 8 random lower-case hexadecimal digits.
QString newFolder();
bool isFolder(QStringView name);

/// "fill_000000.tmp", "fill_000001.tmp" ...
QString file(int index);
bool isFile(QStringView name);

/// The folders of the residue steps: "mft_clean" with "0.tmp" to "999.tmp", and "dir_clean" with folders that
/// are named by a UUID without braces.
extern const QString recordFiles;
inline constexpr int RecordFiles = 1000;
inline constexpr qint64 RecordFileBytes = 256;
QString recordFile(int index);
bool isRecordFile(QStringView name);
extern const QString recordFolders;
QString newRecordFolder();
bool isRecordFolder(QStringView name);

} // namespace fillnames
