#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// Starts a program that outlives this one. Returns false when it does not start.
using ProgramStarter = std::function<bool(const QString &program, const QStringList &arguments)>;

/// Starts the program anew with the arguments of this run and leaves the event loop. Windows are not asked
/// whether they may close.
void restartProgram(const ProgramStarter &start);

/// The same by QProcess.
void restartProgram();
