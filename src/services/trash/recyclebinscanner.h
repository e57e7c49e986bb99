#pragma once

#include "services/trash/recyclebininfo.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

/// Lists the contents of the current user's bins on all local fixed and removable drives: the Recycle Bin of
/// Windows and, on other systems, also the Trash of the desktop. Reads only. Any thread, one scan at a time
/// for each scanner; nothing is kept between calls.
///
/// A scan does not fail: an item that cannot be read has an empty name and path, a bin that is not entered is
/// listed in `unscanned`, and diagnostics go to the debug output.
class RecycleBinScanner : public QObject
{
    Q_OBJECT

public:
    /// Called before each drive is scanned, on the scanning thread, with the drive ("C:"; on other systems a
    /// mount point, or the home folder for the Trash in it), its index from 0, and the number of drives.
    using DriveCallback = std::function<void(const QString &drive, int index, int count)>;

    using QObject::QObject;

    /// Empty when the bins are empty or the user cannot be identified.
    RecycleBinInfo scan(const DriveCallback &callback = {});

    /// Lists the Recycle Bins of Windows in folders that stand for roots of drives, such as a mounted volume
    /// of another machine: the bins of that SID, or of every user when it is empty. Each root counts as a
    /// drive with that name.
    RecycleBinInfo scanRoots(const QStringList &roots, const QString &sid = {},
                             const DriveCallback &callback = {});

    /// Whether one of the roots has a bin of that SID; true as well when that cannot be determined.
    static bool hasBin(const QStringList &roots, const QString &sid);

    /// Reads `fileName`, `originalPath` and `size` from a "$I" file; all are empty when the file cannot be
    /// read or is too small.
    static RecycleBinItem parseInfoFile(const QString &path);

    /// The security identifier in its usual form, "S-1-5-21-..."; on other systems than Windows the numeric
    /// user id. Empty when the user cannot be identified.
    static QString currentUserSid();
};
