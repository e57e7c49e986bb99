#pragma once

#include "model/diskinfo.h"
#include "model/partitioninfo.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <functional>

/// The target of a job in words, for the confirmation. Names are shown as displayText().
class TargetText
{
    Q_DECLARE_TR_FUNCTIONS(TargetText)

public:
    TargetText() = delete;

    /// "drive 2: model ..., serial number ..., 4.00 MB, /dev/sdb".
    static QString drive(const DiskInfo &disk);
    /// "volume E:, NTFS, 4.00 MB, 3.00 MB free", with the label where it has one.
    static QString volume(const PartitionInfo &partition);
    /// The drive, followed by its volumes, indented.
    static QStringList driveWithVolumes(const DiskInfo &disk);
    /// The volume and its drive, if it has one; the drive with all its volumes when the volume has no name.
    static QStringList freeSpace(const DiskInfo &disk, const PartitionInfo &partition);
    /// "3 files, 12.00 KB"; an incomplete amount is preceded by "at least".
    static QString amount(quint64 files, quint64 bytes, bool isComplete);
    /// The first lines of a possibly long list and the number of further ones. lineOf is called only for the
    /// lines shown.
    static QStringList beginningOf(qsizetype count, const std::function<QString(qsizetype index)> &lineOf);
};
