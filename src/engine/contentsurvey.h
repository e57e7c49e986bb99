#pragma once

#include "platform/entrypath.h"

#include <QString>

// Whether the content of a file may outlast being overwritten; of a folder, that of the files in it. What
// does not tell does not count.
bool isKeptElsewhere(const platform::EntryPath &entry);

// Whether the file system puts what is written to new places, so that filling its free space does not reach
// what it keeps of earlier content.
bool writesToNewPlaces(const QString &folder);
