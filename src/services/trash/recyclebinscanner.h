#pragma once

#include "services/trash/recyclebininfo.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

/// Lists what the current user has in the bins of all local fixed and removable drives: the Recycle Bin of
/// Windows, and elsewhere also the Trash of the desktop. Reads only; erases nothing. Any thread, one scan at
/// a time for each scanner; nothing is kept between calls.
///
/// No scan fails: what cannot be read is listed with an empty name and path, a bin that is not looked into is
/// told in `unscanned`, and diagnostics go to the debug output.
class RecycleBinScanner : public QObject
{
    Q_OBJECT

public:
    /// Called before each drive is scanned, on the scanning thread: the drive ("C:"; elsewhere a mount point,
    /// and the home folder for the Trash in it), its index from 0, and how many there are.
    using DriveCallback = std::function<void(const QString &drive, int index, int count)>;

    using QObject::QObject;

    /// Empty when there is nothing, or when the user cannot be identified.
    RecycleBinInfo scan(const DriveCallback &callback = {});

    /// The Recycle Bins of Windows in folders that stand for roots of drives, such as a mounted volume of
    /// another machine; whose it is goes by the SID, or everybody's when it is empty. Each root counts as a
    /// drive under the name given.
    RecycleBinInfo scanRoots(const QStringList &roots, const QString &sid = {},
                             const DriveCallback &callback = {});

    /// Whether one of the roots has a bin of that SID, or may have one where that cannot be told.
    static bool hasBin(const QStringList &roots, const QString &sid);

    /// `fileName`, `originalPath` and `size` from a "$I" file; all empty when it cannot be read or is too
    /// small.
    static RecycleBinItem parseInfoFile(const QString &path);

    /// The security identifier in its usual form, "S-1-5-21-..."; elsewhere than on Windows the numeric user
    /// id. Empty when the system does not tell.
    static QString currentUserSid();
};
