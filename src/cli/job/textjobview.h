#pragma once

#include "cli/job/jobview.h"
#include "cli/job/progressline.h"

namespace cli {

class CliIo;

/// Prints a job for a person: the lines of its log, a progress line on a terminal, and one line at the end.
/// Quiet: only errors and the line at the end.
class TextJobView : public JobView
{
public:
    TextJobView(CliIo &io, bool quiet);

    void started(const WipeTask &task, const QString &target) override;
    void passChanged(int, int) override {} ///< the log has it
    void progress(const JobProgress &progress) override;
    void log(const QString &message, int level) override;
    void engineError(const QString &) override {} ///< the log or the refusal has it
    void problem(const QString &message) override;
    void finished(const JobResult &result, const RecordKeeping::Written &written) override;

private:
    CliIo &m_io;
    bool m_quiet;
    ProgressLine m_progressLine;
    QString m_target;
};

} // namespace cli
