#pragma once

#include "cli/certificatefile.h"
#include "cli/command.h"
#include "cli/outputfile.h"
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
    CertificateFile certificate;
    bool skipQuestion = false;

    void applyTo(WipeTask &task) const;
};

// WrongCommandLine for a value that makes no sense; what an option leaves open is as a fresh task has it.
Outcome<WipeOptions> readWipeOptions(const CommandContext &context, const QStringList &commandWords);

} // namespace cli
