#include "cli/drivetarget.h"
#include "cli/translate.h"
#include "cli/wipeplan.h"
#include "services/diskmanager.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QStringList words()
{
    return {u"wipe"_s, u"disk"_s};
}

Outcome<ExitCode> run(const CommandContext &context)
{
    const auto options = readWipeOptions(context, words());
    if (!options)
        return options.refusal();
    const auto disk = findDriveToErase(context.arguments.constFirst(), DiskManager::enumerateDisks());
    if (!disk)
        return disk.refusal();
    if (const auto refusal = checkObstacles(*disk))
        return *refusal;

    auto task = std::make_unique<WipeTask>();
    task->setOperationType(DiskWipe);
    task->setDisk(*disk);
    WipePlan plan;
    plan.jobs.push_back({std::move(task), disk->devicePath});
    plan.summary = describeDrive(*disk);
    plan.doomedPaths.append(disk->devicePath);
    for (const PartitionInfo &partition : disk->partitions)
        plan.doomedPaths.append(partition.driveLetter);
    plan.lastCheck = [&disk] {
        const auto refusal = checkObstacles(*disk);
        return refusal ? refusal : probeDrive(*disk);
    };
    return carryOut(plan, *options, context, words());
}

} // namespace

Command wipeDiskCommand()
{
    Command command;
    command.words = words();
    command.synopsis = u"DRIVE"_s;
    command.summary = Cli::tr("Erases a whole drive");
    command.details = Cli::tr(
        "DRIVE is the number that 'quorvex-cli disks' shows, or a device path. System disks are refused.");
    command.example = u"wipe disk 2 --method \"DoD 5220.22-M\" --report drive2.json"_s;
    command.options = wipeOptions();
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.printsEvents = true;
    command.run = run;
    return command;
}

} // namespace cli
