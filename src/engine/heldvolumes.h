#pragma once

#include "engine/runningjob.h"
#include "platform/devices.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>
#include <vector>

/// The volumes of one drive, locked and dismounted while they are held. Logs the result for each volume. One
/// thread.
class HeldVolumes
{
    Q_DECLARE_TR_FUNCTIONS(DiskWipeWorker)

public:
    struct Volume
    {
        QString name;
        std::unique_ptr<platform::VolumeDevice> device;
        QList<platform::Extent> extents; ///< its place on the drives
        bool isLocked = false;
        qint64 readable = 0; ///< bytes that a verification can read after a pass
    };

    explicit HeldVolumes(RunningJob &job);

    /// The wait after each failed attempt to lock a volume, 500 ms unless set.
    std::chrono::milliseconds lockRetryDelay() const { return m_lockRetryDelay; }
    void setLockRetryDelay(std::chrono::milliseconds delay) { m_lockRetryDelay = delay; }

    /// Takes every volume that begins on the drive. All of them have been tried on return, unless the job is
    /// stopped. Returns false when the drive has volumes and none could be opened.
    bool lock(const platform::DriveIdentity &drive);
    /// Unlocks and closes all volumes.
    void release();

    /// The names of the visible volumes that begin on the drive; none of them is taken.
    QStringList inSight(int driveNumber);

    /// The names of all volumes that were dismounted, released or not. The program never mounts them again.
    QStringList dismounted() const { return m_dismounted; }

    bool isEmpty() const { return m_volumes.empty(); }
    qsizetype count() const { return std::ssize(m_volumes); }
    /// In the order of discovery.
    Volume &at(qsizetype index) { return m_volumes[static_cast<std::size_t>(index)]; }
    const Volume &at(qsizetype index) const { return m_volumes[static_cast<std::size_t>(index)]; }

private:
    struct Found
    {
        QString name;
        QList<platform::Extent> extents;
    };

    QList<Found> find(int driveNumber);
    void noteNone();
    void hold(const Found &found, const platform::DriveIdentity &drive);
    bool lockVolume(platform::VolumeDevice &volume, const QString &shownName);
    bool dismountVolume(platform::VolumeDevice &volume, const QString &shownName);

    RunningJob &m_job;
    std::chrono::milliseconds m_lockRetryDelay{500};
    std::vector<Volume> m_volumes;
    QStringList m_dismounted;
};
