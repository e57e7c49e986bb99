#include "cli/command.h"
#include "cli/io/listoutput.h"
#include "cli/io/table.h"
#include "cli/job/drivetarget.h"
#include "cli/records/recordjson.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/targettext.h"
#include "services/diskmanager.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QString flags(const DiskInfo &disk)
{
    QStringList flags;
    if (disk.isSystemDisk)
        flags.append(Cli::tr("system"));
    if (disk.isRemovable)
        flags.append(Cli::tr("removable"));
    return flags.join(u',');
}

QString tableText(const QList<DiskInfo> &disks)
{
    if (disks.isEmpty())
        return Cli::tr("No drives found.") + u'\n';
    Table table;
    table.addRow({Cli::tr("Drive"), Cli::tr("Model"), Cli::tr("Serial number"), Cli::tr("Size"),
                  Cli::tr("Type"), Cli::tr("Bus"), Cli::tr("Device"), Cli::tr("Flags")});
    for (const DiskInfo &disk : disks) {
        table.addRow({QString::number(disk.diskNumber), displayText(disk.model),
                      displayText(disk.serialNumber), disk.formattedSize(), disk.diskTypeName(),
                      disk.busTypeName(), displayText(disk.devicePath), flags(disk)});
        for (const PartitionInfo &partition : disk.partitions) {
            const QString mark = partition.isSystem ? Cli::tr(", system") : QString();
            table.addLine(u"       "_s + TargetText::volume(partition) + mark);
        }
        for (const SpanningVolume &volume : DiskManager::spanningVolumesForDisk(disk.diskNumber))
            table.addLine(u"       "_s + describeSpanning(volume, disk.diskNumber));
    }
    return table.text();
}

Outcome<ExitCode> run(const CommandContext &context)
{
    return printList(context, DiskManager::enumerateDisks(), writeDisk, tableText);
}

} // namespace

Command disksCommand()
{
    Command command;
    command.words = QStringList{u"disks"_s};
    command.summary = Cli::tr("Lists the drives with their volumes");
    command.example = u"disks --json"_s;
    command.run = run;
    return command;
}

} // namespace cli
