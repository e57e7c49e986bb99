#pragma once

#include "services/trash/recyclebininfo.h"

#include <QList>
#include <QString>

#include <optional>

/// A Trash folder of the desktop: "files" holds the deleted entries, "info" a ".trashinfo" file for each.
struct TrashFolder
{
    QString folder;
    QString drive; ///< the drive it is listed under: the mount point, or the home folder
    QString top;   ///< base of recorded relative paths; empty for the home folder, where they are absolute

    bool operator==(const TrashFolder &) const = default;
};

/// "Trash" in $XDG_DATA_HOME, by default ~/.local/share; nothing when there is none. A link is added to
/// `unscanned`.
std::optional<TrashFolder> homeTrashFolder(QList<UnscannedBin> &unscanned);

/// The existing Trash folders of the user on the volume with that root: ".Trash/<user id>" and ".Trash-<user
/// id>". Anybody may write to a volume's root, and the contents of these folders are erased. Both must
/// therefore be real folders that the user owns, and ".Trash" a real folder with the sticky bit. Links and
/// folders of other users are added to `unscanned`.
QList<TrashFolder> trashFoldersOfVolume(const QString &root, const QString &userId,
                                        QList<UnscannedBin> &unscanned);

/// Adds the contents of the folder: an item for each ".trashinfo" file, then the entries without one. The
/// size of a folder is that of all files in it. An item whose record cannot be read has no original path. A
/// part of the Trash that is a link or cannot be listed is added to `found.unscanned`.
void scanTrash(const TrashFolder &trash, RecycleBinInfo &found);
