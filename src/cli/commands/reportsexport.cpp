#include "cli/commandline.h"
#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "cli/records/certificateexport.h"
#include "cli/records/certificatefile.h"
#include "cli/records/reportstore.h"
#include "cli/records/reporttext.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/jsonwriter.h"
#include "services/reportdatabase.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QStringList words()
{
    return {u"reports"_s, u"export"_s};
}

bool isStandardOutput(const QString &path)
{
    return path == u'-';
}

// The requested outputs, checked before anything is written.
struct Destinations
{
    CertificateFile certificate;
    OutputFile json;
    bool jsonToOutput = false;
};

Outcome<Destinations> readDestinations(const CommandContext &context)
{
    Destinations destinations;
    const bool wantsPdf = context.options.isSet(u"pdf"_s);
    const bool wantsJsonFile = context.options.isSet(u"json-file"_s);
    if (!wantsPdf && !wantsJsonFile)
        return wrongCommandLine(Cli::tr("'%1' needs --pdf or --json-file").arg(words().join(u' ')), words());
    if (wantsPdf) {
        const auto file = CertificateFile::at(context.options.value(u"pdf"_s), words());
        if (!file)
            return file.refusal();
        destinations.certificate = *file;
    }
    if (!wantsJsonFile)
        return destinations;
    const QString path = context.options.value(u"json-file"_s);
    destinations.jsonToOutput = isStandardOutput(path);
    if (destinations.jsonToOutput)
        return destinations;
    const auto file = OutputFile::at(path, words());
    if (!file)
        return file.refusal();
    destinations.json = *file;
    if (destinations.json.isSameAs(destinations.certificate.file()))
        return wrongCommandLine(Cli::tr("'%1' is named for two outputs").arg(displayText(path)), words());
    return destinations;
}

Refusal notWritten(const QString &path)
{
    return {SurroundingsFailed, Cli::tr("%1 could not be written").arg(displayText(path))};
}

// Exports the stored text unchanged, so that it can be compared byte for byte later.
std::optional<Refusal> exportJson(const QByteArray &json, const Destinations &destinations,
                                  const CommandContext &context)
{
    if (destinations.jsonToOutput)
        context.io.print(QString::fromUtf8(json));
    else if (destinations.json.isWanted() && !destinations.json.write(json))
        return notWritten(destinations.json.path());
    return std::nullopt;
}

void tellPath(const QString &path, const CommandContext &context)
{
    if (!path.isEmpty() && !wantsQuiet(context.options))
        context.io.printErrorLine(displayText(path));
}

Outcome<ExitCode> run(const CommandContext &context)
{
    const auto destinations = readDestinations(context);
    if (!destinations)
        return destinations.refusal();
    const auto store = ReportStore::open(context.options);
    if (!store)
        return store.refusal();
    const auto json = readStoredReport(**store, context.arguments.constFirst());
    if (!json)
        return json.refusal();
    if (const auto refusal = exportJson(*json, *destinations, context))
        return *refusal;
    tellPath(destinations->json.path(), context);
    if (!destinations->certificate.isWanted())
        return Done;
    const QString pdf = destinations->certificate.write(
        WipeReport::fromJson(*json), (*store)->database().outcome(context.arguments.constFirst()));
    if (pdf.isEmpty())
        return notWritten(destinations->certificate.path());
    tellPath(pdf, context);
    return Done;
}

} // namespace

Command reportsExportCommand()
{
    Command command;
    command.words = words();
    command.synopsis = u"ID"_s;
    command.summary = Cli::tr("Exports one report as certificate, as JSON, or as both");
    command.details = Cli::tr("The JSON is the stored text, byte for byte, for 'quorvex-cli check'.");
    command.example = u"reports export QVX-2026-0305-4821 --pdf certificate.pdf"_s;
    command.options = {
        {u"pdf"_s, Cli::tr("Write the certificate as PDF, into this file or folder"), u"FILE|DIR"_s},
        {u"json-file"_s, Cli::tr("Write the report as JSON; - is standard output"), u"FILE"_s},
    };
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace cli
