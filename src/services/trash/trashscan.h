#pragma once

#include "services/trash/recyclebininfo.h"

#include <QList>
#include <QString>

#include <optional>

/// A Trash folder of the desktop: "files" holds what was deleted, "info" a ".trashinfo" for each.
struct TrashFolder
{
    QString folder;
    QString drive; ///< what it is listed under: the mount point, or the home folder
    QString top;   ///< what recorded paths are relative to; empty in the home folder, where they are absolute

    bool operator==(const TrashFolder &) const = default;
};

/// "Trash" in $XDG_DATA_HOME, by default ~/.local/share; nothing when there is none. A link goes to
/// `unscanned`.
std::optional<TrashFolder> homeTrashFolder(QList<UnscannedBin> &unscanned);

/// Those of the user on the volume with that root, as far as they exist: ".Trash/<user id>" and
/// ".Trash-<user id>". Only real folders of the user's own, and the former only below a real folder with the
/// sticky bit: anybody may write to a volume's root, and what such a folder names is going to be erased.
/// Links, and folders of other users under these names, go to `unscanned`.
QList<TrashFolder> trashFoldersOfVolume(const QString &root, const QString &userId,
                                        QList<UnscannedBin> &unscanned);

/// Adds what the folder holds: for each ".trashinfo" the item, and then the entries that have none. Folders
/// count with all the files in them. What cannot be read is listed without its former path. A part of the
/// Trash that is a link or cannot be listed goes to `found.unscanned`.
void scanTrash(const TrashFolder &trash, RecycleBinInfo &found);
