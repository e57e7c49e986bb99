#pragma once

#include "model/diskinfo.h"
#include "model/partitioninfo.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <functional>

/// What a job is about to destroy, in words, for the question before it. Names are shown as displayText().
class TargetText
{
    Q_DECLARE_TR_FUNCTIONS(TargetText)

public:
    TargetText() = delete;

    /// "drive 2: model ..., serial number ..., 4.00 MB, /dev/sdb".
    static QString drive(const DiskInfo &disk);
    /// "volume E:, NTFS, 4.00 MB, 3.00 MB free", with the label where it has one.
    static QString volume(const PartitionInfo &partition);
    /// The drive and its volumes, these indented.
    static QStringList driveWithVolumes(const DiskInfo &disk);
    /// The volume and the drive it lies on, if that is one; the drive with all its volumes when the volume
    /// has no name.
    static QStringList freeSpace(const DiskInfo &disk, const PartitionInfo &partition);
    /// "3 files, 12.00 KB"; of an amount that is not complete, "at least" so much.
    static QString amount(quint64 files, quint64 bytes, bool isComplete);
    /// The beginning of a list that may be long, a line each, and how many more there are. lineOf is asked
    /// for those lines only.
    static QStringList beginningOf(qsizetype count, const std::function<QString(qsizetype index)> &lineOf);
};
