#pragma once

#include "cli/command.h"
#include "cli/job/wipeoptions.h"
#include "engine/filesurvey.h"
#include "model/wipetask.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace cli {

struct PlannedJob
{
    std::unique_ptr<WipeTask> task;
    QString target;      ///< for the user, not safe to display
    FileSurvey survey{}; ///< only for a file job
};

/// A wipe command after all of its arguments are resolved.
struct WipePlan
{
    std::vector<PlannedJob> jobs; ///< run in this order
    QStringList summary;          ///< lines for the user on everything that is destroyed
    QStringList doomedPaths;      ///< paths that the jobs destroy; no report may lie there
    std::function<std::optional<Refusal>()> lastCheck; ///< called after the confirmation; may be empty
    /// Called after each job, whatever its end; returns problems in words for the user. May be empty.
    std::function<QStringList()> afterwards;
};

/// Indents the lines below another line of the summary.
QStringList indented(const QStringList &lines);

/// Asks for confirmation, runs the jobs and reports. When this refuses, nothing has been written.
Outcome<ExitCode> carryOut(WipePlan &plan, const WipeOptions &options, const CommandContext &context,
                           const QStringList &commandWords);

} // namespace cli
