#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QStringList>

// Whether a file system of this type (as QStorageInfo names it) puts new data elsewhere than where the old
// data lies, so that overwriting a file does not overwrite what the medium held.
bool writesElsewhere(const QByteArray &fileSystemType);

// The types of such file systems that hold the paths, each once, in the order of their first appearance. A
// path is judged by the folder it stands in, a folder by itself; what is mounted deeper below it is not
// looked at.
QByteArrayList fileSystemsWritingElsewhere(const QStringList &paths);
