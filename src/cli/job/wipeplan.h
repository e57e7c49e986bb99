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
    QString target;      // for the user, uncleaned
    FileSurvey survey{}; // of a file job
};

// Everything that a wipe command has made of its arguments.
struct WipePlan
{
    std::vector<PlannedJob> jobs; // run one after the other
    QStringList summary;          // what is destroyed, in lines for the user
    QStringList doomedPaths;      // what the jobs destroy; a report must not be written there
    std::function<std::optional<Refusal>()> lastCheck; // after the confirmation; may be empty
    // When a job has ended, however it did; answers with problems in words. May be empty.
    std::function<QStringList()> afterwards;
};

// The lines as they stand below another in the summary.
QStringList indented(const QStringList &lines);

// Confirms, runs and reports. Nothing is written when this refuses.
Outcome<ExitCode> carryOut(WipePlan &plan, const WipeOptions &options, const CommandContext &context,
                           const QStringList &commandWords);

} // namespace cli
