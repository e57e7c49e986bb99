#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// Finds files that back a loop device. They look like any other file, but erasing one destroys the file
/// system that is mounted from it. Windows has no loop devices.
class LoopFiles
{
    Q_DECLARE_TR_FUNCTIONS(LoopFiles)

public:
    LoopFiles() = delete;

    /// The reason why the files or folders must not be erased: names the first file that backs a loop device,
    /// and the device. Empty when there is none. Folders are searched with everything below them; `sys` is
    /// the mount point of sysfs.
    static QString problem(const QStringList &paths, const QString &sys = QStringLiteral("/sys"));
};
