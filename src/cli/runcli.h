#pragma once

#include <QStringList>

namespace cli {

class CliIo;

// Runs the command that the arguments (without the program's name) ask for and returns the exit code, see
// exitcode.h. Needs a QCoreApplication, whose events it processes while a job runs. The locale, as
// QLocale::name() gives it, decides the language where the arguments do not;
// an empty one leaves the texts of the sources.
int runCli(const QStringList &arguments, CliIo &io, const QString &systemLocale);

} // namespace cli
