#pragma once

#include <QCoreApplication>
#include <QString>
#include <QtGlobal>

/// Names a protection of the system that can refuse a write although the user has the right to it.
class ProtectedFolders
{
    Q_DECLARE_TR_FUNCTIONS(ProtectedFolders)

public:
    /// A line for the log after error number @p code. Empty when the number has another cause, and on systems
    /// that do not protect folders from programs.
    static QString hint(quint32 code);
};
