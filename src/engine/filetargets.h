#pragma once

#include "engine/heldtree.h"
#include "model/targetidentity.h"
#include "platform/files.h"

#include <QString>

class WipeTask;

/// The entry under the path of a target. A link at the path is itself the entry. The folders above are those
/// to which the path leads at this moment.
struct FoundTarget
{
    HeldTree::Folder above = HeldTree::None;  ///< its parent; None for a target without a name
    QString name;                             ///< in that folder
    HeldTree::Folder folder = HeldTree::None; ///< the target itself when it is a folder
    platform::FileKind kind = platform::FileKind::Folder;
    TargetIdentity identity;
};

/// The normalised path of a target, with forward separators and none at the end.
QString targetPath(const QString &given);

/// path: a result of targetPath(). The folders become part of the tree.
platform::Result<FoundTarget> findTarget(HeldTree &tree, const QString &path);

/// Stores the identities of the targets in the task. A target that differs when the job begins is not
/// touched. To be called before the user is asked.
void rememberTargets(WipeTask &task);
