#pragma once

#include "engine/freespacewipeworker.h"
#include "model/wipetask.h"
#include "platform/forwarding.h"
#include "support/fakedevices.h"
#include "support/memoryvolume.h"

#include <QList>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QtTest>

#include <chrono>
#include <new>
#include <thread>

// A machine of memory volumes for free-space jobs, and what a job told.

namespace freespace {

inline constexpr qint64 KiB = 1024;
inline constexpr qint64 MiB = 1024 * KiB;
inline constexpr qint64 GiB = 1024 * MiB;
inline constexpr qint64 Reserve = 100 * MiB;

// Knows every volume that it is asked about by name, unless told otherwise.
class NamedDevices : public FakeDevices
{
public:
    QStringList unmounted;

    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override
    {
        if (!unmounted.contains(name) && !volumes.contains(name))
            volumes.insert(name, FakeVolume::onDrives(name, {}));
        return FakeDevices::queryVolume(name);
    }
};

// In force as long as it lives.
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

// Folder names are random; in what is compared they all end in the same digits.
inline QString withoutRandom(QString text)
{
    static const QRegularExpression digits(QStringLiteral("\\.quorvex_temp_[0-9a-f]{8}(?![0-9a-f])"));
    return text.replace(digits, QStringLiteral(".quorvex_temp_########"));
}

// Opens what only tests need: pausing, which nothing offers yet, and shorter waits.
class TestedWorker : public FreeSpaceWipeWorker
{
public:
    explicit TestedWorker(WipeTask *task)
        : FreeSpaceWipeWorker(task)
    {
        m_releasePoll = std::chrono::milliseconds(0);
    }
    void pause() { m_paused = true; }
    void setReleasePoll(std::chrono::milliseconds interval) { m_releasePoll = interval; }
    void setReleasePatience(std::chrono::milliseconds patience) { m_releasePatience = patience; }
};

// A task, its worker and everything that the worker signals.
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

    Job()
    {
        task.setOperationType(FreeSpaceWipe);
        task.setBufferSizeMB(1);
        const auto note = [this](auto &list, const auto &entry) {
            signalledAfterTheEnd |= !finished.isEmpty();
            list.append(entry);
        };
        constexpr auto direct = Qt::DirectConnection;
        connect(
            &worker, &BaseWipeWorker::logMessage, this,
            [this, note](const QString &text, int level) {
                note(log, LogLine{withoutRandom(text), level});
            },
            direct);
        connect(
            &worker, &BaseWipeWorker::errorOccurred, this,
            [this, note](const QString &text) { note(errors, withoutRandom(text)); }, direct);
        connect(
            &worker, &BaseWipeWorker::passChanged, this,
            [this, note](int pass, int count) { note(passes, std::pair(pass, count)); }, direct);
        connect(
            &worker, &BaseWipeWorker::progressChanged, this,
            [this, note](int percent) { note(percents, percent); }, direct);
        connect(
            &worker, &BaseWipeWorker::bytesWritten, this, [this, note](qint64 count) { note(bytes, count); },
            direct);
        connect(
            &worker, &BaseWipeWorker::finished, this, [this, note](bool success) { note(finished, success); },
            direct);
    }

    void setVolume(const QString &drive)
    {
        PartitionInfo partition;
        partition.driveLetter = drive;
        partition.fileSystem = QStringLiteral("NTFS");
        partition.totalBytes = 8 * GiB;
        task.setPartition(partition);
    }
    void setDisk(int number, const QStringList &drives)
    {
        DiskInfo disk;
        disk.diskNumber = number;
        disk.model = QStringLiteral("Model");
        disk.sizeBytes = 16 * GiB;
        for (const QString &drive : drives) {
            PartitionInfo partition;
            partition.driveLetter = drive;
            disk.addPartition(partition);
        }
        task.setDisk(disk);
    }
    void setPasses(const QList<PassPattern> &list)
    {
        WipeMethod method;
        method.passes = list;
        task.setMethod(method);
    }

    void run() { worker.process(); }
    // As the interface stops a job: from a thread that is not the worker's.
    void stopFromElsewhere()
    {
        std::thread([this] { worker.stop(); }).join();
    }

    bool succeeded() const { return finished == QList<bool>{true} && !signalledAfterTheEnd; }
    bool failed() const { return finished == QList<bool>{false} && !signalledAfterTheEnd; }
    int count(const QString &text, int level) const
    {
        return static_cast<int>(log.count(LogLine{text, level}));
    }
    bool logged(const QString &text, int level) const { return count(text, level) > 0; }
    quint64 wipedSectors() const { return task.report().wipedSectors; }
};

// Files with the names of fill files, wherever they are.
inline QStringList fillFiles(const MemoryVolume &volume)
{
    static const QRegularExpression name(QStringLiteral("/fill_[0-9]{6}\\.tmp$"));
    return volume.pathsBelow(QString()).filter(name);
}

inline QStringList withoutRandom(const QStringList &texts)
{
    QStringList shown;
    for (const QString &text : texts)
        shown.append(withoutRandom(text));
    return shown;
}

inline QList<MemoryVolume::Closed> closedFillFiles(const MemoryVolume &volume)
{
    QList<MemoryVolume::Closed> files;
    for (const MemoryVolume::Closed &file : volume.closed) {
        if (file.path.contains(QLatin1String("/fill_")))
            files.append({withoutRandom(file.path), file.size});
    }
    return files;
}

inline QList<MemoryVolume::Write> fillWrites(const MemoryVolume &volume)
{
    QList<MemoryVolume::Write> writes;
    for (const MemoryVolume::Write &write : volume.writes) {
        if (write.path.contains(QLatin1String("/fill_")))
            writes.append(write);
    }
    return writes;
}

// So that a comparison that fails shows both logs line by line.
inline char *toString(const LogLine &line)
{
    return QTest::toString(QStringLiteral("[%1] %2").arg(line.level).arg(line.text));
}

inline bool compareLogs(const QList<LogLine> &actual, const QList<LogLine> &expected)
{
    for (qsizetype i = 0; i < std::max(actual.size(), expected.size()); ++i) {
        const LogLine none{QStringLiteral("(no line)"), -1};
        const LogLine &is = i < actual.size() ? actual.at(i) : none;
        const LogLine &shouldBe = i < expected.size() ? expected.at(i) : none;
        if (is == shouldBe)
            continue;
        qWarning().noquote() << "line" << i + 1 << "is" << is.level << is.text << "and should be"
                             << shouldBe.level << shouldBe.text;
        return false;
    }
    return true;
}

} // namespace freespace
