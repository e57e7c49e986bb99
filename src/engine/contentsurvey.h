#pragma once

#include <QString>
#include <QStringList>

// Those of a file job's targets whose content may outlast being overwritten, as far as a quick look tells: of
// a folder the first files are looked at, and the folder itself when there are more of them. So many
// files at most, over all targets.
QStringList targetsKeptElsewhere(const QStringList &targets, int mostFiles = 1000);

// Whether the file system puts what is written to new places, so that filling its free space does not reach
// what it keeps of earlier content.
bool writesToNewPlaces(const QString &folder);
