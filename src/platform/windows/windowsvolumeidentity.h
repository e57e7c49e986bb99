#pragma once

#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

#include <QString>

#include <string>

namespace platform {

// What tells the volume whose root is open from another one that has its letter later.
Result<QString> volumeIdentityOf(HANDLE root);

// The same by the path of the root, empty when it does not tell.
QString volumeIdentityAt(const QString &root);

} // namespace platform
