#pragma once

#include "cli/outcome.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace cli {

class CliIo;

/// The input of a running command.
struct CommandContext
{
    CliIo &io;
    const QCommandLineParser &options; ///< the global options and those of the command
    QStringList arguments;             ///< arguments after the words of the command
};

/// A command: its syntax, its help and its function.
struct Command
{
    QStringList words; ///< "wipe", "disk"
    QString synopsis;  ///< the arguments as shown in the help: "DRIVE"
    QString summary;   ///< one line
    QString details;   ///< more lines of the help
    QString example;   ///< an example line without the program's name
    QList<QCommandLineOption> options;
    int minimumArguments = 0;
    int maximumArguments = 0;  ///< -1: no limit
    bool printsEvents = false; ///< with --json a refusal is also printed as an event
    Outcome<ExitCode> (*run)(const CommandContext &context) = nullptr;

    QString name() const { return words.join(u' '); }
};

} // namespace cli
