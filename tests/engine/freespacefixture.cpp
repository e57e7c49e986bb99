#include "engine/freespacefixture.h"

#include <QDebug>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <thread>

namespace freespace {

platform::Result<std::unique_ptr<platform::DeviceQuery>> NamedDevices::queryVolume(const QString &name)
{
    if (!unmounted.contains(name) && !volumes.contains(name))
        volumes.insert(name, FakeVolume::onDrives(name, {}));
    return FakeDevices::queryVolume(name);
}

QString withoutRandom(QString text)
{
    static const QRegularExpression digits(QStringLiteral("\\.quorvex_temp_[0-9a-f]{8}(?![0-9a-f])"));
    return text.replace(digits, QStringLiteral(".quorvex_temp_########"));
}

TestedWorker::TestedWorker(WipeTask *task)
    : FreeSpaceWipeWorker(task)
{
    m_releasePoll = std::chrono::milliseconds(0);
}

Job::Job()
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

void Job::setVolume(const QString &drive)
{
    PartitionInfo partition;
    partition.driveLetter = drive;
    partition.fileSystem = QStringLiteral("NTFS");
    partition.totalBytes = 8 * GiB;
    task.setPartition(partition);
}

void Job::setDisk(int number, const QStringList &drives)
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

void Job::setPasses(const QList<PassPattern> &list)
{
    WipeMethod method;
    method.passes = list;
    task.setMethod(method);
}

void Job::stopFromElsewhere()
{
    std::thread([this] { worker.stop(); }).join();
}

int Job::count(const QString &text, int level) const
{
    return static_cast<int>(log.count(LogLine{text, level}));
}

QStringList fillFiles(const MemoryVolume &volume)
{
    static const QRegularExpression name(QStringLiteral("/fill_[0-9]{6}\\.tmp$"));
    return volume.pathsBelow(QString()).filter(name);
}

QStringList withoutRandom(const QStringList &texts)
{
    QStringList shown;
    for (const QString &text : texts)
        shown.append(withoutRandom(text));
    return shown;
}

QList<MemoryVolume::Closed> closedFillFiles(const MemoryVolume &volume)
{
    QList<MemoryVolume::Closed> files;
    for (const MemoryVolume::Closed &file : volume.closed) {
        if (file.path.contains(QLatin1String("/fill_")))
            files.append({withoutRandom(file.path), file.size});
    }
    return files;
}

QList<MemoryVolume::Write> fillWrites(const MemoryVolume &volume)
{
    QList<MemoryVolume::Write> writes;
    for (const MemoryVolume::Write &write : volume.writes) {
        if (write.path.contains(QLatin1String("/fill_")))
            writes.append(write);
    }
    return writes;
}

char *toString(const LogLine &line)
{
    return QTest::toString(QStringLiteral("[%1] %2").arg(line.level).arg(line.text));
}

bool compareLogs(const QList<LogLine> &actual, const QList<LogLine> &expected)
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
