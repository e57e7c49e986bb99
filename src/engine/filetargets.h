#pragma once

#include "engine/heldtree.h"
#include "model/targetidentity.h"
#include "platform/files.h"

#include <QString>

class WipeTask;

// What stands under the path of a target, itself never reached through a link; the folders above it are those
// to which the path leads at this moment.
struct FoundTarget
{
    HeldTree::Folder above = HeldTree::None;  // the folder that contains it; None for one without a name
    QString name;                             // in that folder
    HeldTree::Folder folder = HeldTree::None; // itself, when it is one
    platform::FileKind kind = platform::FileKind::Folder;
    TargetIdentity identity;
};

// The path of a target as it is looked up: with forward separators, none at the end.
QString targetPath(const QString &given);

// path: as targetPath() gives it. The folders become part of the tree.
platform::Result<FoundTarget> findTarget(HeldTree &tree, const QString &path);

// Keeps with the task what its targets are now: those that are something else when the job begins are not
// touched. To be called before the user is asked.
void rememberTargets(WipeTask &task);
