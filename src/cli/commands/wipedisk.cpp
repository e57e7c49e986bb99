#include "cli/job/drivetarget.h"
#include "cli/job/wipeplan.h"
#include "cli/texts.h"
#include "model/targettext.h"
#include "services/diskmanager.h"

#include <QCommandLineParser>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QStringList words()
{
    return {u"wipe"_s, u"disk"_s};
}

// Lines of the question on the whole drive.
QStringList wholeDriveLines(const DiskInfo &disk)
{
    QStringList lines{
        Cli::tr("  the whole drive: its partition table and everything between and outside its volumes")};
    if (!disk.partitions.isEmpty())
        lines.append(Cli::tr("  its volumes are unmounted before, and stay so once something was written"));
    return lines;
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
    task->setWholeDrive(context.options.isSet(u"whole"_s));
    WipePlan plan;
    plan.summary = indented(TargetText::driveWithVolumes(*disk));
    if (task->isWholeDrive())
        plan.summary += wholeDriveLines(*disk);
    plan.jobs.push_back({std::move(task), disk->devicePath});
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
    command.details =
        Cli::tr("DRIVE is the number that 'quorvex-cli disks' shows, or a device path. System disks are "
                "refused.") +
        u' ' +
        Cli::tr("Of a drive with mounted volumes only these are erased; --whole unmounts them and erases "
                "every sector of the drive.");
    command.example = u"wipe disk 2 --method \"DoD 5220.22-M\" --report drive2.json"_s;
    command.options = wipeOptions();
    command.options.prepend(
        {u"whole"_s, Cli::tr("Unmount all volumes of the drive and erase every sector of it")});
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.printsEvents = true;
    command.run = run;
    return command;
}

} // namespace cli
