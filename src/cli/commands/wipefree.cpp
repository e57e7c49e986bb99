#include "cli/commandline.h"
#include "cli/job/volumetarget.h"
#include "cli/job/wipeplan.h"
#include "cli/texts.h"
#include "model/targettext.h"
#include "services/diskmanager.h"

#include <QList>
#include <QSet>

#include <algorithm>

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

// The identity comes first, because a volume may be mounted in two places.
QString keyOf(const PartitionInfo &partition)
{
    return partition.identity.isEmpty() ? partition.driveLetter : partition.identity;
}

// The keys of the target's volumes; the name of a drive without volumes.
QSet<QString> keysOf(const VolumeTarget &target)
{
    if (!target.partition.driveLetter.isEmpty())
        return {keyOf(target.partition)};
    QSet<QString> keys;
    for (const PartitionInfo &partition : target.disk.partitions)
        keys.insert(keyOf(partition));
    return keys.isEmpty() ? QSet<QString>{target.name} : keys;
}

// Removes targets that are given twice, by themselves or through their drive.
QList<VolumeTarget> eachOnce(const QList<VolumeTarget> &targets)
{
    QList<VolumeTarget> once;
    for (const VolumeTarget &target : targets) {
        const QSet<QString> keys = keysOf(target);
        const auto holds = [&keys](const VolumeTarget &other) { return keysOf(other).contains(keys); };
        if (std::ranges::any_of(once, holds))
            continue;
        once.removeIf([&keys](const VolumeTarget &other) { return keys.contains(keysOf(other)); });
        once.append(target);
    }
    return once;
}

Outcome<WipePlan> planFor(const QStringList &volumes)
{
    const QList<DiskInfo> disks = DiskManager::enumerateDisks();
    QList<VolumeTarget> targets;
    for (const QString &name : volumes) {
        const auto target = findVolume(name, disks);
        if (!target)
            return target.refusal();
        targets.append(*target);
    }
    WipePlan plan;
    plan.summary.append(Cli::tr("  the free space of:"));
    const QList<VolumeTarget> once = eachOnce(targets);
    for (const VolumeTarget &target : once) {
        plan.summary += indented(TargetText::freeSpace(target.disk, target.partition));
        plan.jobs.push_back(jobFor(target));
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
