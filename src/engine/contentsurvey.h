#pragma once

#include "model/shortfall.h"
#include "platform/entrypath.h"
#include "platform/fileid.h"

#include <QSet>
#include <QString>

#include <functional>
#include <optional>

// Whether the content of a file may outlast being overwritten; of a folder, that of the files in it. What
// does not tell does not count.
bool isKeptElsewhere(const platform::EntryPath &entry);

// Whether the file system puts what is written to new places, so that filling its free space does not reach
// what it keeps of earlier content.
bool writesToNewPlaces(const QString &folder);

// What is worth a word of the snapshots of the volume that holds the path: how many there are, or that nobody
// can tell.
std::optional<Shortfall> snapshotNote(const QString &path);

// The same of the volumes of many files, each asked once, through the first of its files.
class SnapshotSurvey
{
public:
    std::optional<Shortfall> noteFor(const platform::FileId &file, const std::function<QString()> &path);

private:
    QSet<quint64> m_asked; // devices
};
