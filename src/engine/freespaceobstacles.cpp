// Checks whether a free-space job may begin, before its start and again by the job itself.
#include "engine/freespacewipeworker.h"

#include "engine/leftovers.h"
#include "model/displaytext.h"
#include "model/wipetask.h"
#include "platform/devices.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QList>
#include <QString>

namespace {

// The records of the chosen volumes, as far as the task names them.
QList<PartitionInfo> chosenVolumes(const WipeTask &task)
{
    if (const PartitionInfo partition = task.partition(); !partition.driveLetter.isEmpty())
        return {partition};
    QList<PartitionInfo> volumes = task.disk().partitions;
    volumes.removeIf([](const PartitionInfo &partition) { return partition.driveLetter.isEmpty(); });
    return volumes;
}

} // namespace

QString FreeSpaceWipeWorker::rootPathOf(const QString &volume)
{
    return volume.endsWith(u'/') || volume.endsWith(u'\\') ? volume : volume + u'/';
}

PartitionInfo FreeSpaceWipeWorker::chosenRecord(const WipeTask &task, const QString &volume)
{
    for (const PartitionInfo &chosen : chosenVolumes(task)) {
        if (chosen.driveLetter == volume)
            return chosen;
    }
    return {};
}

std::optional<Refusal> FreeSpaceWipeWorker::obstacleOf(const WipeTask &task)
{
    for (const PartitionInfo &chosen : chosenVolumes(task)) {
        const auto volume = platform::Platform::current().folders().anchor(rootPathOf(chosen.driveLetter));
        if (!volume || !checkMounted(chosen.driveLetter))
            continue;
        QString obstacle;
        if (!isChosen(*volume.value(), chosen))
            obstacle = changeText(chosen.driveLetter);
        else if (const QString folder = LeftOvers(*volume.value()).inUse(); !folder.isEmpty())
            obstacle = useText(folder);
        if (!obstacle.isEmpty())
            return Refusal{obstacle + u' ' + tr("Nothing was written.")};
    }
    return {};
}

// A volume whose record has nothing to compare is accepted.
bool FreeSpaceWipeWorker::isChosen(platform::AnchoredFolder &volume, const PartitionInfo &chosen)
{
    if (chosen.identity.isEmpty())
        return true;
    const auto found = volume.volumeIdentity();
    return found && found.value() == chosen.identity;
}

QString FreeSpaceWipeWorker::changeText(const QString &volume)
{
    return tr("Volume %1 is not the one that was chosen any more.").arg(displayText(volume));
}

QString FreeSpaceWipeWorker::useText(const QString &folder)
{
    return tr("Another job is erasing the free space of this volume; its files are in %1.")
        .arg(displayText(folder));
}

// An unmounted volume leaves an empty folder under its name, with the free space of another volume.
platform::Status FreeSpaceWipeWorker::checkMounted(const QString &root)
{
    QString name = root;
    while (name.size() > 1 && (name.endsWith(u'/') || name.endsWith(u'\\')))
        name.chop(1);
    const auto volume = platform::Platform::current().devices().queryVolume(name);
    if (volume.status().isAbsent())
        return volume.status();
    return {}; // any other refusal still proves that the volume is there
}
