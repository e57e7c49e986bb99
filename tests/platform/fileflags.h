#pragma once

#include <QString>

// Sets or takes back the flag with which nobody, root included, changes or removes a file. False where that
// cannot be done.
bool setImmutable(const QString &path, bool immutable);

// Flags with which this process has a file open, as the kernel tells; -1 when it has not.
int openFlags(const QString &path);
