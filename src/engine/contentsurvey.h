#pragma once

#include "model/shortfall.h"
#include "platform/entrypath.h"
#include "platform/fileid.h"

#include <QSet>
#include <QString>

#include <functional>
#include <optional>

/// Whether the content of a file may survive an overwrite; of a folder, the content of its files. False when
/// the file system does not tell.
bool isKeptElsewhere(const platform::EntryPath &entry);

/// Whether the file system writes changed data to new places. Filling its free space then does not reach the
/// copies of earlier content that it keeps.
bool writesToNewPlaces(const QString &folder);

/// The note on the snapshots of the volume that holds the path: their number, or that it cannot be found out.
/// Empty when there are none.
std::optional<Shortfall> snapshotNote(const QString &path);

/// Notes on the snapshots of the volumes of many files. Each volume is asked once, through its first file.
class SnapshotSurvey
{
public:
    /// The note on the volume of the file, nothing when the volume was asked before. path is called only for
    /// the first file of a volume.
    std::optional<Shortfall> noteFor(const platform::FileId &file, const std::function<QString()> &path);

private:
    QSet<quint64> m_asked; ///< device numbers
};
