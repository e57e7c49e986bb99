#pragma once

#include "cli/outcome.h"
#include "model/diskinfo.h"
#include "model/spanningvolume.h"

#include <QList>
#include <QString>

#include <optional>

namespace cli {

// Whether the word is a drive number, and which.
std::optional<int> driveNumber(const QString &word);

// The drive with that number or device path, also through links. Refused when there is none, and when a part
// of a drive is named.
Outcome<DiskInfo> findDrive(const QString &numberOrPath, const QList<DiskInfo> &disks);

// The same; refused for a system disk.
Outcome<DiskInfo> findDriveToErase(const QString &numberOrPath, const QList<DiskInfo> &disks);

// Why the drive is not to be erased as it is: it is read-only, something is built on it, or a volume on it
// lies on other drives too. Nothing when none of that is so.
std::optional<Refusal> checkObstacles(const DiskInfo &disk);

// Whether the drive can be opened for writing, nothing being written: a refusal without the rights and when
// another drive has taken its place, nothing otherwise.
std::optional<Refusal> probeDrive(const DiskInfo &disk);

// That a volume lies on the drive and where else.
QString describeSpanning(const SpanningVolume &volume, int diskNumber);

} // namespace cli
