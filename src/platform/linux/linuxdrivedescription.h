#pragma once

#include "platform/linux/linuxsystemtree.h"
#include "platform/storagereplies.h"

#include <QString>

namespace platform {

/// The description of a whole drive, from /sys and, where it runs, udev's database. Every user can read it.
/// Missing values stay empty.
DeviceDescriptor describeDrive(const SystemTree &tree, const QString &kernelName);

/// Identifies one attachment of a drive, by the kernel's counter since its start; empty where the kernel has
/// no counter (before Linux 5.15).
QString attachmentOf(const SystemTree &tree, const QString &kernelName);

/// The name with its prefix "naa.", "eui." or "uuid.": "naa.5000c500a1b2c3d4". Names composed of the
/// manufacturer's text ("t10.", "nvme.") are left out, because they are not globally unique. A drive without
/// a serial number is named by its attachment, "attachment.17". Empty when there is none.
QString worldWideName(const SystemTree &tree, const QString &kernelName);

} // namespace platform
