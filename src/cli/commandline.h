#pragma once

#include "cli/command.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <memory>

namespace cli {

// The language that the arguments ask for, else the system's. Empty, so that the source texts stay, where
// there is none, and for machine output that asks for none: it is the same on every machine. Says nothing
// about what else is wrong with the arguments.
QString languageFor(const QStringList &arguments, const QString &systemLocale);

// What a command line asks for.
struct CommandLine
{
    enum class Wish { Run, ShowHelp, ShowVersion };

    Wish wish = Wish::Run;
    Command command;       // to be run
    QStringList helpWords; // of the command, or group of commands, to be explained
    QStringList arguments; // behind the command's words
    std::unique_ptr<QCommandLineParser> options;
};

// The arguments do not begin with the program's name. The message of a refusal tells which help to read.
Outcome<CommandLine> parseCommandLine(const QStringList &arguments);

// A refusal of a line that was understood but makes no sense: what is wrong, and which help to read.
Refusal wrongCommandLine(const QString &what, const QStringList &commandWords);

} // namespace cli
