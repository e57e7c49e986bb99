#include "support/partitionedloop.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

#include <fcntl.h>
#include <linux/blkpg.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

LoopMount::Options bareDrive()
{
    LoopMount::Options options;
    options.fileSystem = LoopMount::NoFileSystem;
    options.sizeBytes = PartitionedLoop::Size;
    options.partitioned = true;
    return options;
}

// One entry of the partition table.
QByteArray tableEntry(qint64 start)
{
    QByteArray entry(16, '\0');
    entry[4] = '\x83';
    for (int byte = 0; byte < 4; ++byte) {
        entry[8 + byte] = static_cast<char>(((start / 512) >> (8 * byte)) & 0xff);
        entry[12 + byte] = static_cast<char>(((PartitionedLoop::PartitionSize / 512) >> (8 * byte)) & 0xff);
    }
    return entry;
}

// The fields of the mount table that identify a mount and do not differ between runs.
QString comparable(const QString &line)
{
    // The numbers of the mounts, and the device number of a file system without a device.
    static const QRegularExpression numbers(QStringLiteral("^\\d+ \\d+ (0:\\d+)?"));
    static const QRegularExpression peers(QStringLiteral("(shared|master|propagate_from):\\d+"));
    return QString(line).remove(numbers).replace(peers, QStringLiteral("\\1"));
}

} // namespace

QString PartitionedLoop::unavailableReason()
{
    return LoopMount::unavailableReason(LoopMount::Ext4);
}

PartitionedLoop::PartitionedLoop(const QString &folder)
    : m_folder(folder)
    , m_drive(folder, bareDrive(), QStringLiteral("drive"))
{
    m_ready = m_drive.isReady() &&
              m_drive.writeImage(446, tableEntry(First) + tableEntry(Second) + QByteArray(32, '\0') +
                                          QByteArray("\x55\xaa")) &&
              addPartition(1, First) && addPartition(2, Second);
    for (const int partition : {1, 2}) {
        const QStringList arguments{QStringLiteral("-q"), QStringLiteral("-F"), node(partition)};
        m_ready = m_ready && QProcess::execute(QStringLiteral("mkfs.ext4"), arguments) == 0;
    }
}

PartitionedLoop::~PartitionedLoop()
{
    unmountAll();
}

QString PartitionedLoop::folder(const QString &name) const
{
    const QString path = m_folder + u'/' + name;
    QDir().mkpath(path);
    return path;
}

bool PartitionedLoop::mount(const QStringList &arguments)
{
    return QProcess::execute(QStringLiteral("mount"), arguments) == 0;
}

bool PartitionedLoop::mount(int partition, const QString &place, const QString &options) const
{
    QStringList arguments{node(partition), place};
    if (!options.isEmpty())
        arguments << QStringLiteral("-o") << options;
    return mount(arguments);
}

QStringList PartitionedLoop::mounts() const
{
    QFile table(QStringLiteral("/proc/self/mountinfo"));
    if (!table.open(QIODevice::ReadOnly))
        return {QStringLiteral("no table")};
    QStringList lines = QString::fromUtf8(table.readAll()).split(u'\n').filter(u' ' + m_folder + u'/');
    std::ranges::transform(lines, lines.begin(), comparable);
    return lines;
}

// Unmounts the upper mounts first; a propagated mount disappears with its original.
void PartitionedLoop::unmountAll() const
{
    for (int left = 20; left > 0 && !mounts().isEmpty(); --left) {
        const QString place =
            mounts().constLast().section(u' ', 2, 2).replace(u"\\040"_s, u" "_s).replace(u"\\134"_s, u"\\"_s);
        if (::umount2(QFile::encodeName(place).constData(), MNT_DETACH) != 0)
            break;
    }
    if (!mounts().isEmpty())
        QTest::qFail(qPrintable(QStringLiteral("left mounted: ") + mounts().join(u'\n')), __FILE__, __LINE__);
}

// Adds the partition by a call, because the kernel may lack support for partition tables.
bool PartitionedLoop::addPartition(int number, qint64 start)
{
    blkpg_partition partition{};
    partition.start = start;
    partition.length = PartitionSize;
    partition.pno = number;
    blkpg_ioctl_arg request{BLKPG_ADD_PARTITION, 0, sizeof(partition), &partition};
    const int drive = ::open(QFile::encodeName(device()).constData(), O_RDONLY | O_CLOEXEC);
    const bool isAdded = drive >= 0 && ::ioctl(drive, BLKPG, &request) == 0;
    ::close(drive);
    return isAdded;
}
