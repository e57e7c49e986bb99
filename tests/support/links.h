#pragma once

#include <QString>

// Makes a symbolic link to a file, a folder or a missing target. False where the system refuses: Windows
// needs developer mode or an administrator, and some environments for Windows programs have no symbolic
// links.
bool makeLink(const QString &target, const QString &link);
