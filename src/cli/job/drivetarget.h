#pragma once

#include "cli/outcome.h"
#include "model/diskinfo.h"
#include "model/spanningvolume.h"

#include <QList>
#include <QString>

#include <optional>

namespace cli {

/// The drive number; nothing when the word is not one.
std::optional<int> driveNumber(const QString &word);

/// The drive with that number or device path; links are followed. Refused when there is none or the path is a
/// part of a drive.
Outcome<DiskInfo> findDrive(const QString &numberOrPath, const QList<DiskInfo> &disks);

/// The same; also refused for a system disk.
Outcome<DiskInfo> findDriveToErase(const QString &numberOrPath, const QList<DiskInfo> &disks);

/// The refusal of a drive that cannot be erased: it is read-only, a device is built on it, or a volume on it
/// also lies on other drives. Nothing when the drive can be erased.
std::optional<Refusal> checkObstacles(const DiskInfo &disk);

/// Tests whether the drive can be opened for writing; writes nothing. The refusal when rights are missing,
/// the drive is read-only or another drive has taken its place; otherwise nothing.
std::optional<Refusal> probeDrive(const DiskInfo &disk);

/// A text with the drives of a volume that lies on several.
QString describeSpanning(const SpanningVolume &volume, int diskNumber);

} // namespace cli
