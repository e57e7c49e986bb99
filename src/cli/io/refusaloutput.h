#pragma once

#include "cli/outcome.h"

namespace cli {

class CliIo;

// Tells why the program goes no further, as one line on standard error; with asEvent also as an event on
// standard output, unless it is the command line that is wrong. Returns the refusal's exit code.
ExitCode printRefusal(const Refusal &refusal, bool asEvent, CliIo &io);

} // namespace cli
