#pragma once

#include "cli/command.h"
#include "cli/io/outputfile.h"
#include "cli/records/certificatefile.h"
#include "model/joboutcome.h"
#include "model/wipemethod.h"

class WipeTask;

namespace cli {

/// The options of all wipe commands.
QList<QCommandLineOption> wipeOptions();

struct WipeOptions
{
    WipeMethod method;
    bool verify = true;
    int samples = 0;
    int threads = 0;
    int bufferMB = 0;
    bool storeReport = true; ///< store in the database
    OutputFile reportFile;
    bool replacesAnything = false; ///< the report may replace a file that is not a report
    CertificateFile certificate;
    bool skipQuestion = false;
    QList<ShortfallKind> accepted; ///< shortfalls that do not count as a failure in the exit code

    /// Whether the outcome is complete, or has only accepted shortfalls.
    bool accepts(const OutcomeRecord &outcome) const;

    void applyTo(WipeTask &task) const;
};

/// Reads the options. WrongCommandLine for an invalid value; an option that is not given has the default of
/// WipeTask.
Outcome<WipeOptions> readWipeOptions(const CommandContext &context, const QStringList &commandWords);

} // namespace cli
