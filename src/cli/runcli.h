#pragma once

#include <QStringList>

namespace cli {

class CliIo;

/// Runs the command of the arguments, which do not include the program's name, and returns the exit code
/// (exitcode.h). Needs a QCoreApplication and processes its events while a job runs. Without a language in
/// the arguments, the locale (in the form of QLocale::name()) decides the language; an empty locale leaves
/// the source texts.
int runCli(const QStringList &arguments, CliIo &io, const QString &systemLocale);

} // namespace cli
