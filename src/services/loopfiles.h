#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// Files that a loop device is attached to. They look like any other, and what is mounted on the device would
/// be erased below it. None on Windows.
class LoopFiles
{
    Q_DECLARE_TR_FUNCTIONS(LoopFiles)

public:
    LoopFiles() = delete;

    /// Why the files, or what is in the folders, are not to be erased: the first that a loop device is
    /// attached to, in words that name both. Empty when there is none.
    static QString problem(const QStringList &paths, const QString &sys = QStringLiteral("/sys"));
};
