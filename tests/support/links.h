#pragma once

#include <QString>

// Makes a symbolic link to a file, a folder or nothing. False where the system makes none: Windows needs
// developer mode or an administrator, and not every stand-in for Windows has them.
bool makeLink(const QString &target, const QString &link);
