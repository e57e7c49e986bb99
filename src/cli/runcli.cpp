#include "cli/runcli.h"

#include "cli/commandline.h"
#include "cli/globaloptions.h"
#include "cli/help.h"
#include "cli/io/cliio.h"
#include "cli/io/language.h"
#include "cli/texts.h"
#include "model/jsonwriter.h"
#include "model/version.h"
#include "platform/platform.h"

#include <optional>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

// Prints the refusal as one line on standard error. With asEvent it is also printed as an event on standard
// output, unless the command line is wrong. Returns the exit code of the refusal.
ExitCode printRefusal(const Refusal &refusal, bool asEvent, CliIo &io)
{
    if (asEvent && refusal.code != WrongCommandLine) {
        JsonWriter writer(JsonWriter::Layout::Compact);
        writer.beginObject().member(u"event", u"error").member(u"message", refusal.message).endObject();
        io.printLine(writer.text());
    }
    io.printErrorLine(u"quorvex-cli: "_s + refusal.message);
    return refusal.code;
}

Outcome<ExitCode> runCommand(const CommandLine &line, CliIo &io)
{
    const auto requested = requestedPlatform(*line.options);
    if (!requested)
        return requested.refusal();
    std::optional<platform::ScopedPlatform> scope;
    if (*requested)
        scope.emplace(**requested);
    return line.command.run({io, *line.options, line.arguments});
}

ExitCode execute(const CommandLine &line, CliIo &io)
{
    switch (line.wish) {
    case CommandLine::Wish::ShowVersion:
        io.printLine(programTitle());
        return Done;
    case CommandLine::Wish::ShowHelp:
        io.print(helpText(line.helpWords));
        return Done;
    case CommandLine::Wish::Run:
        break;
    }
    const Outcome<ExitCode> code = runCommand(line, io);
    if (code)
        return *code;
    const bool asEvent = line.command.printsEvents && wantsJson(*line.options);
    return printRefusal(code.refusal(), asEvent, io);
}

} // namespace

int runCli(const QStringList &arguments, CliIo &io, const QString &systemLocale)
{
    const auto language = Language::install(languageFor(arguments, systemLocale));
    if (!language)
        return printRefusal(language.refusal(), false, io);
    const auto line = parseCommandLine(arguments);
    if (!line)
        return printRefusal(line.refusal(), false, io);

    const ExitCode code = execute(*line, io);
    if (code != Done || !io.hasLostOutput())
        return code;
    return printRefusal({SurroundingsFailed, Cli::tr("the output could not be written")}, false, io);
}

} // namespace cli
