#pragma once

namespace cli {

/// The exit codes of the program.
enum ExitCode : int {
    Done = 0,
    JobFailed = 1, ///< the job ran and failed, in whole or in part
    WrongCommandLine = 2,
    Refused = 3,            ///< nothing was written
    Cancelled = 4,          ///< by the user or the system; the job stopped cleanly
    SurroundingsFailed = 5, ///< a report, a log folder or the output could not be written
};

} // namespace cli
