#pragma once

#include "cli/outcome.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace cli {

class CliIo;

// What a running command works with.
struct CommandContext
{
    CliIo &io;
    const QCommandLineParser &options; // the global ones and the command's own
    QStringList arguments;             // behind the command's words
};

// One command: what its line looks like, and what it does.
struct Command
{
    QStringList words; // "wipe", "disk"
    QString synopsis;  // its arguments: "DRIVE"
    QString summary;   // one line
    QString details;   // further lines of its help
    QString example;   // what follows the program's name
    QList<QCommandLineOption> options;
    int minimumArguments = 0;
    int maximumArguments = 0;  // -1: any number
    bool printsEvents = false; // with --json a refusal is an event too
    Outcome<ExitCode> (*run)(const CommandContext &context) = nullptr;

    QString name() const { return words.join(u' '); }
};

} // namespace cli
