#include "ui/disks/obstaclestext.h"

#include "model/displaytext.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString ObstaclesText::of(const SpanningVolume &volume)
{
    QStringList others;
    for (const int number : volume.otherDisks)
        others.append(number < 0 ? tr("a device that is no disk") : tr("disk %1").arg(number));
    return tr("Volume %1 lies on this disk and also on %2.")
        .arg(displayText(volume.name), others.join(u", "_s));
}

QString ObstaclesText::of(const DiskObstacles &obstacles)
{
    if (obstacles.isEmpty())
        return {};
    QStringList lines;
    if (obstacles.isReadOnly)
        lines.append(tr("The disk is read-only."));
    for (const SpanningVolume &volume : obstacles.spanningVolumes)
        lines.append(of(volume));
    if (!obstacles.holders.isEmpty())
        lines.append(tr("The disk is held by: %1").arg(displayText(obstacles.holders.join(u", "_s))));
    if (!obstacles.releaseCommands.isEmpty() && !obstacles.isReadOnly) {
        lines += {QString(), tr("These commands release it:")};
        for (const QString &command : obstacles.releaseCommands)
            lines.append(displayText(command));
    }
    return lines.join(u'\n');
}
