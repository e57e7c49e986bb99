#include "cli/commandline.h"
#include "cli/listing.h"
#include "cli/translate.h"
#include "cli/volumetarget.h"
#include "cli/wipeplan.h"
#include "model/targettext.h"
#include "services/diskmanager.h"

#include <QSet>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QStringList words()
{
    return {u"wipe"_s, u"free"_s};
}

PlannedJob jobFor(const VolumeTarget &target)
{
    auto task = std::make_unique<WipeTask>();
    task->setOperationType(FreeSpaceWipe);
    task->setDisk(target.disk);
    task->setPartition(target.partition);
    return {std::move(task), target.name};
}

Outcome<WipePlan> planFor(const QStringList &volumes)
{
    const QList<DiskInfo> disks = DiskManager::enumerateDisks();
    WipePlan plan;
    plan.summary.append(Cli::tr("  the free space of:"));
    QSet<QString> known;
    for (const QString &name : volumes) {
        const auto target = findVolume(name, disks);
        if (!target)
            return target.refusal();
        if (known.contains(target->name))
            continue;
        known.insert(target->name);
        plan.summary += indented(TargetText::freeSpace(target->disk, target->partition));
        plan.jobs.push_back(jobFor(*target));
    }
    plan.summary.append(Cli::tr("  files that exist are kept"));
    return plan;
}

Outcome<ExitCode> run(const CommandContext &context)
{
    const auto options = readWipeOptions(context, words());
    if (!options)
        return options.refusal();
    if (options->reportFile.isWanted() && context.arguments.size() > 1)
        return wrongCommandLine(Cli::tr("--report takes the report of one volume, not of several"), words());
    if (options->certificate.isWanted() && !options->certificate.isFolder() && context.arguments.size() > 1)
        return wrongCommandLine(Cli::tr("--pdf takes a folder when there are several volumes"), words());
    auto plan = planFor(context.arguments);
    if (!plan)
        return plan.refusal();
    return carryOut(*plan, *options, context, words());
}

} // namespace

Command wipeFreeCommand()
{
    Command command;
    command.words = words();
    command.synopsis = u"VOLUME..."_s;
    command.summary = Cli::tr("Erases the free space of volumes");
    command.details =
        Cli::tr("VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.");
    command.example = u"wipe free /media/data --method \"British HMG IS5\""_s;
    command.options = wipeOptions();
    command.minimumArguments = 1;
    command.maximumArguments = -1;
    command.printsEvents = true;
    command.run = run;
    return command;
}

} // namespace cli
