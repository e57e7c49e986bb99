#pragma once

#include "services/trash/recyclebininfo.h"

#include "platform/folders.h"
#include "platform/status.h"

#include <QList>
#include <QString>

enum class BinOwner {
    User,
    Anybody,
};

/// Whether a folder that is a bin, or on the way to one, may be looked into: a real folder, the user's own
/// where that is asked for and the system knows such owners. What stands there and may not be looked into
/// goes to `unscanned`, a plain file excepted.
bool mayEnterBin(const QString &folder, BinOwner owner, QList<UnscannedBin> &unscanned);

/// Lists a folder of a bin; one that cannot be listed goes to `unscanned`, and to the debug output.
void listBin(const QString &folder, QList<UnscannedBin> &unscanned, const platform::Folders::Visitor &visit);
