#pragma once

#include "platform/linux/linuxsystemtree.h"
#include "platform/status.h"

#include <QString>

namespace platform {

// What tells the volume whose root is open from another one that is mounted in its place. A number alone
// does not: devices and mounts give theirs again.
Result<QString> volumeIdentityOf(int root, const SystemTree &tree);

// The same of a mount point, empty when it does not tell.
QString volumeIdentityAt(const QString &mountPoint, const SystemTree &tree);

} // namespace platform
