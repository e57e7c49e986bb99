#pragma once

#include "platform/linux/linuxsystemtree.h"
#include "platform/status.h"

#include <QString>

namespace platform {

/// Identifies the volume whose root is open, so that another volume mounted in its place is detected. A
/// number alone is not enough, because devices and mounts reuse theirs.
Result<QString> volumeIdentityOf(int root, const SystemTree &tree);

/// The same for a mount point; empty when the identity is unknown.
QString volumeIdentityAt(const QString &mountPoint, const SystemTree &tree);

} // namespace platform
