#pragma once

#include "model/units.h"
#include "support/loopmount.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// A loop device owned by a test. It has two partitions with an ext4 file system each, and free space before,
// between and behind them. Nothing is mounted at first. Destruction unmounts the remaining mounts.
//
//     if (const QString reason = PartitionedLoop::unavailableReason(); !reason.isEmpty())
//         QSKIP(qPrintable(reason));
//
// The temporary folder outlives it. Needs root.
class PartitionedLoop
{
public:
    static constexpr qint64 Size = 48 * MiB;
    static constexpr qint64 First = 1 * MiB;
    static constexpr qint64 Second = 22 * MiB;
    static constexpr qint64 PartitionSize = 20 * MiB;

    static QString unavailableReason();

    explicit PartitionedLoop(const QString &folder);
    ~PartitionedLoop();
    PartitionedLoop(const PartitionedLoop &) = delete;
    PartitionedLoop &operator=(const PartitionedLoop &) = delete;

    bool isReady() const { return m_ready; }
    LoopMount &drive() { return m_drive; }
    QString device() const { return m_drive.device(); }
    // The node of partition 1 or 2.
    QString node(int partition) const { return device() + u'p' + QString::number(partition); }
    // The path of a folder beside the image, made at first use.
    QString folder(const QString &name) const;

    // Runs mount with these arguments.
    static bool mount(const QStringList &arguments);
    // Mounts a partition on a folder.
    bool mount(int partition, const QString &place, const QString &options = {}) const;

    // The entries of the mount table below the folder, in order. The numbers are left out, because they
    // differ from mount to mount.
    QStringList mounts() const;
    void unmountAll() const;

private:
    bool addPartition(int number, qint64 start);

    QString m_folder;
    LoopMount m_drive;
    bool m_ready = false;
};
