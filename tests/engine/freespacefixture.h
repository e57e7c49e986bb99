#pragma once

#include "engine/freespacewipeworker.h"
#include "model/units.h"
#include "model/wipetask.h"
#include "platform/forwarding.h"
#include "platform/platform.h"
#include "support/fakedevices.h"
#include "support/memoryvolume.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>
#include <utility>

// A machine of memory volumes for free-space jobs, and the records of a job.

namespace freespace {

inline constexpr qint64 Reserve = 100 * MiB;

// Knows every volume by name, unless set otherwise.
class NamedDevices : public FakeDevices
{
public:
    QStringList unmounted;

    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override;
};

// Installed for its lifetime.
struct Machine
{
    MemoryVolume volume;
    NamedDevices devices;
    FakeSession session;
    platform::ForwardingPlatform platform{volume, volume, devices, session};
    platform::ScopedPlatform scope{platform};
};

struct LogLine
{
    QString text;
    int level = 0;

    bool operator==(const LogLine &) const = default;
};

// Folder names are random; for comparisons they all get the same digits.
QString withoutRandom(QString text);

// Makes pausing and shorter waits accessible.
class TestedWorker : public FreeSpaceWipeWorker
{
public:
    explicit TestedWorker(WipeTask *task);
    void pause() { m_paused = true; }
    void setReleasePoll(std::chrono::milliseconds interval) { m_releasePoll = interval; }
    void setReleasePatience(std::chrono::milliseconds patience) { m_releasePatience = patience; }
};

// A task, its worker and all signals of the worker.
class Job : public QObject
{
public:
    WipeTask task;
    TestedWorker worker{&task};

    QList<LogLine> log;
    QStringList errors;
    QList<std::pair<int, int>> passes;
    QList<int> percents;
    QList<qint64> bytes;
    QList<bool> finished;
    bool signalledAfterTheEnd = false;

    Job();

    void setVolume(const QString &drive);
    void setDisk(int number, const QStringList &drives);
    void setPasses(const QList<PassPattern> &list);

    void run() { worker.process(); }
    // Stops the job like the user interface, from another thread than the worker's.
    void stopFromElsewhere();

    bool succeeded() const { return finished == QList<bool>{true} && !signalledAfterTheEnd; }
    bool failed() const { return finished == QList<bool>{false} && !signalledAfterTheEnd; }
    int count(const QString &text, int level) const;
    bool logged(const QString &text, int level) const { return count(text, level) > 0; }
    quint64 wipedSectors() const { return task.report().wipedSectors; }
};

// All files with names of fill files, in any folder.
QStringList fillFiles(const MemoryVolume &volume);

QStringList withoutRandom(const QStringList &texts);

QList<MemoryVolume::Closed> closedFillFiles(const MemoryVolume &volume);

QList<MemoryVolume::Write> fillWrites(const MemoryVolume &volume);

// Prints both logs line by line when a comparison fails.
char *toString(const LogLine &line);

bool compareLogs(const QList<LogLine> &actual, const QList<LogLine> &expected);

} // namespace freespace
