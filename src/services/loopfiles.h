#pragma once

#include "model/refusal.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

/// Finds files that back a loop device. They look like any other file, but erasing one destroys the file
/// system that is mounted from it. Windows has no loop devices.
class LoopFiles
{
    Q_DECLARE_TR_FUNCTIONS(LoopFiles)

public:
    LoopFiles() = delete;

    /// Refuses to erase files or folders that back a loop device: names the first file that backs a loop
    /// device, and the device. Folders are searched with everything below them; `sys` is the mount point of
    /// sysfs.
    static std::optional<Refusal> problem(const QStringList &paths,
                                          const QString &sys = QStringLiteral("/sys"));
};
