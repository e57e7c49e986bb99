#pragma once

#include "cli/job/jobview.h"
#include "cli/job/wipeplan.h"
#include "cli/outcome.h"
#include "cli/records/recordkeeping.h"

#include <QString>

#include <memory>
#include <optional>

namespace cli {

class StopRequest;
struct CommandContext;
struct WipeOptions;

/// Runs the jobs of a plan and keeps the most serious result.
class PlanRun
{
public:
    PlanRun(WipePlan &plan, const WipeOptions &options, const RecordKeeping &records,
            const CommandContext &context);

    /// False when the remaining jobs must not run.
    bool run(PlannedJob &job);
    Outcome<ExitCode> result() const;

private:
    WipePlan &m_plan;
    const WipeOptions &m_options;
    const RecordKeeping &m_records;
    StopRequest &m_stop;
    std::unique_ptr<JobView> m_view;
    RecordKeeping::Written m_written; ///< records of the last job
    int m_started = 0;
    std::optional<QString> m_engineRefusal;
    bool m_isCancelled = false;
    bool m_hasFailed = false; ///< includes jobs with shortfalls
    bool m_hasProblem = false;
};

} // namespace cli
