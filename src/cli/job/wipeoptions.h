#pragma once

#include "cli/command.h"
#include "cli/io/outputfile.h"
#include "cli/records/certificatefile.h"
#include "model/joboutcome.h"
#include "model/wipemethod.h"

class WipeTask;

namespace cli {

// The options that all wipe commands share.
QList<QCommandLineOption> wipeOptions();

struct WipeOptions
{
    WipeMethod method;
    bool verify = true;
    int samples = 0;
    int threads = 0;
    int bufferMB = 0;
    bool storeReport = true; // in the database
    OutputFile reportFile;
    bool replacesAnything = false; // with the report, not only another one
    CertificateFile certificate;
    bool skipQuestion = false;
    QList<ShortfallKind> accepted; // which do not make the exit code that of a failed job

    // Whether the outcome is what the user asked for: complete, or short of nothing else than was accepted.
    bool accepts(const OutcomeRecord &outcome) const;

    void applyTo(WipeTask &task) const;
};

// WrongCommandLine for a value that makes no sense; what an option leaves open is as a fresh task has it.
Outcome<WipeOptions> readWipeOptions(const CommandContext &context, const QStringList &commandWords);

} // namespace cli
