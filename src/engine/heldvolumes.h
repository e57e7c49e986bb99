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

// The volumes of one drive, locked and dismounted for as long as they are held. Says in the job's log what
// becomes of each. One thread.
class HeldVolumes
{
    Q_DECLARE_TR_FUNCTIONS(DiskWipeWorker)

public:
    struct Volume
    {
        QString name;
        std::unique_ptr<platform::VolumeDevice> device;
        QList<platform::Extent> extents; // where it lies
        bool isLocked = false;
        qint64 readable = 0; // bytes that a verification may expect to read, after a pass
    };

    explicit HeldVolumes(RunningJob &job);

    // The wait after each failed attempt to lock a volume, 500 ms unless set.
    std::chrono::milliseconds lockRetryDelay() const { return m_lockRetryDelay; }
    void setLockRetryDelay(std::chrono::milliseconds delay) { m_lockRetryDelay = delay; }

    // Takes every volume that begins on the drive; all of them have been tried when this returns, unless the
    // job is stopped. False when there are some and none could be opened.
    bool lock(const platform::DriveIdentity &drive);
    void release();

    // The names of the volumes in sight that begin on the drive, none of which is taken.
    QStringList inSight(int driveNumber);

    // Everything that was dismounted, by name, released or not. Nothing mounts it again.
    QStringList dismounted() const { return m_dismounted; }

    bool isEmpty() const { return m_volumes.empty(); }
    qsizetype count() const { return std::ssize(m_volumes); }
    // In the order in which they were found.
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
