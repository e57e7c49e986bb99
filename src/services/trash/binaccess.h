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

/// Whether a bin, or a folder on the way to it, may be entered. It must be a real folder and, for
/// BinOwner::User, belong to the user if the system knows owners. An entry that may not be entered is added
/// to `unscanned`, except a plain file.
bool mayEnterBin(const QString &folder, BinOwner owner, QList<UnscannedBin> &unscanned);

/// Lists a folder of a bin. A folder that cannot be listed is added to `unscanned` and traced to the debug
/// output.
void listBin(const QString &folder, QList<UnscannedBin> &unscanned, const platform::Folders::Visitor &visit);
