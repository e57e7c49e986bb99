#pragma once

#include "cli/job/jobview.h"

class JsonWriter;

namespace cli {

class CliIo;

/// Prints a job as events, one JSON object a line on standard output. Quiet: only errors and the last event.
class JsonJobView : public JobView
{
public:
    JsonJobView(CliIo &io, bool quiet);

    void started(const WipeTask &task, const QString &target) override;
    void passChanged(int pass, int passes) override;
    void progress(const JobProgress &progress) override;
    void log(const QString &message, int level) override;
    void engineError(const QString &message) override { problem(message); }
    void problem(const QString &message) override;
    void finished(const JobResult &result, const RecordKeeping::Written &written) override;

private:
    void print(const JsonWriter &writer);

    CliIo &m_io;
    bool m_quiet;
};

} // namespace cli
