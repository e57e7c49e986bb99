#pragma once

#include "cli/command.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <memory>

namespace cli {

/// The language of the arguments, otherwise that of the system. Empty when there is none, and for machine
/// output without an explicit language, which is the same on every machine; the source texts are used then.
/// Other errors in the arguments are ignored.
QString languageFor(const QStringList &arguments, const QString &systemLocale);

/// A parsed command line.
struct CommandLine
{
    enum class Wish { Run, ShowHelp, ShowVersion };

    Wish wish = Wish::Run;
    Command command;       ///< the command to run
    QStringList helpWords; ///< words of the command, or group of commands, to explain
    QStringList arguments; ///< arguments after the words of the command
    std::unique_ptr<QCommandLineParser> options;
};

/// Parses the arguments, which do not include the program's name. The message of a refusal names the help to
/// read.
Outcome<CommandLine> parseCommandLine(const QStringList &arguments);

/// The refusal of an invalid command line: the error and the help to read.
Refusal wrongCommandLine(const QString &what, const QStringList &commandWords);

} // namespace cli
