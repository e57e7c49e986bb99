#pragma once

#include <QString>

// Sets or clears the flag that protects a file against changes and removal, even by root. False on failure.
bool setImmutable(const QString &path, bool immutable);

// The flags with which this process has the file open, as reported by the kernel; -1 when it is not open.
int openFlags(const QString &path);
