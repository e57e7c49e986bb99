#pragma once

#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

#include <QString>

#include <string>

namespace platform {

/// The identity of the volume whose root is open. It differs from that of another volume that later has the
/// same letter.
Result<QString> volumeIdentityOf(HANDLE root);

/// The identity of the volume with this root path; empty when it cannot be determined.
QString volumeIdentityAt(const QString &root);

} // namespace platform
