#include "platform/linux/linuxvolumejournal.h"

#include "platform/filenames.h"
#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QDir>
#include <QFileInfo>
#include <QList>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The largest journal that a file system is made with by default, and the largest share of a small one.
constexpr qint64 LargestJournal = qint64(1) << 30;
constexpr qint64 LargestShare = 4; // one in so many

class LinuxVolumeJournal final : public VolumeJournal
{
public:
    LinuxVolumeJournal(FileDescriptor folder, QString statistics, qint64 size, qint64 blockSize)
        : m_folder(std::move(folder))
        , m_statistics(std::move(statistics))
        , m_size(size)
        , m_value(static_cast<std::size_t>(blockSize) / 2)
        , m_blockSize(blockSize)
    {}

    qint64 size() const override { return m_size; }
    qint64 blockSize() const override { return m_blockSize; }

    Result<qint64> written() override
    {
        const auto bytes = bytesWrittenTo(readAttribute(m_statistics));
        if (!bytes)
            return Status{NotSupported, 0, "stat of the device"};
        return *bytes;
    }

    // Half a block of attributes has no room in the record of the file, so that it gets a block of its own.
    Status changeBlock(const QString &name, quint64 mark) override
    {
        std::memcpy(m_value.data(), &mark, sizeof mark);
        const FileDescriptor file(uninterrupted([&] {
            return fileCalls().openat(m_folder.get(), encodeName(name).constData(),
                                      O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0);
        }));
        if (!file.isValid())
            return statusFromErrno(errno, "openat");
        if (fileCalls().fsetxattr(file.get(), "user.quorvex", m_value.data(), m_value.size(), 0) != 0)
            return statusFromErrno(errno, "fsetxattr");
        return {};
    }

    Status commit() override
    {
        if (uninterrupted([&] { return fileCalls().fsync(m_folder.get()); }) != 0)
            return statusFromErrno(errno, "fsync");
        return {};
    }

    Status settle() override
    {
        if (uninterrupted([&] { return fileCalls().syncfs(m_folder.get()); }) != 0)
            return statusFromErrno(errno, "syncfs");
        return {};
    }

private:
    const FileDescriptor m_folder;
    const QString m_statistics; // path
    const qint64 m_size;
    std::vector<std::byte> m_value;
    const qint64 m_blockSize;
};

qint64 largestJournalIn(qint64 fileSystem)
{
    return std::min(LargestJournal, fileSystem / LargestShare);
}

// The size that the kernel tells, 0 when there is no journal, below 0 when there may be one of any size.
qint64 toldSize(const QString &device, qint64 blockSize, const SystemTree &tree)
{
    const QDir journals(tree.proc + "/fs/jbd2"_L1);
    const QStringList found = journals.entryList({device + "-*"_L1}, QDir::Dirs);
    if (!found.isEmpty()) {
        const auto blocks = mostBlocksOfJournal(readAttribute(journals.filePath(found.first() + "/info"_L1)));
        return blocks ? *blocks * blockSize : -1;
    }
    // A journal on a device of its own is listed under that device.
    const QString about = tree.sys + "/fs/ext4/"_L1 + device;
    const QByteArray task = readAttribute(about + "/journal_task"_L1);
    const bool tellsNothing = task.isEmpty() && !QFileInfo::exists(about) && !journals.exists();
    return tellsNothing || (!task.isEmpty() && task != "<none>") ? -1 : 0;
}

} // namespace

std::optional<qint64> mostBlocksOfJournal(const QByteArray &statistics)
{
    // A transaction takes a third of the journal at most, in older kernels a fourth.
    constexpr qint64 LeastShare = 4;
    constexpr QByteArrayView Before("each up to ");
    const qsizetype at = statistics.indexOf(Before);
    if (at < 0)
        return std::nullopt;
    const QByteArray rest = statistics.mid(at + Before.size());
    bool isNumber = false;
    const qint64 blocks = rest.left(rest.indexOf(' ')).toLongLong(&isNumber);
    if (!isNumber || blocks <= 0)
        return std::nullopt;
    return blocks * LeastShare;
}

std::optional<qint64> bytesWrittenTo(const QByteArray &statistics)
{
    constexpr qsizetype SectorsWritten = 6;
    constexpr qint64 Sector = 512; // whatever the device's own
    const QList<QByteArray> numbers = statistics.simplified().split(' ');
    if (numbers.size() <= SectorsWritten)
        return std::nullopt;
    bool isNumber = false;
    const qint64 sectors = numbers[SectorsWritten].toLongLong(&isNumber);
    if (!isNumber)
        return std::nullopt;
    return sectors * Sector;
}

Result<std::unique_ptr<VolumeJournal>> journalOf(int folder, const SystemTree &tree)
{
    struct statfs volume = {};
    if (fileCalls().fstatfs(folder, &volume) != 0)
        return statusFromErrno(errno, "fstatfs");
    if (static_cast<quint32>(volume.f_type) != EXT4_SUPER_MAGIC) // ext2 and ext3 as well
        return Status{NotSupported, 0, "fstatfs"};
    struct stat found = {};
    if (fileCalls().fstat(folder, &found) != 0)
        return statusFromErrno(errno, "fstat");
    const QByteArray device =
        QByteArray::number(major(found.st_dev)) + ':' + QByteArray::number(minor(found.st_dev));
    const auto blockSize = static_cast<qint64>(volume.f_bsize);
    qint64 size = toldSize(BlockTree(tree).kernelName(device), blockSize, tree);
    if (size < 0)
        size = largestJournalIn(static_cast<qint64>(volume.f_blocks) * blockSize);
    FileDescriptor opened(uninterrupted(
        [&] { return fileCalls().openat(folder, ".", O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC, 0); }));
    if (!opened.isValid())
        return statusFromErrno(errno, "openat");
    return std::unique_ptr<VolumeJournal>(std::make_unique<LinuxVolumeJournal>(
        std::move(opened), tree.sys + "/dev/block/"_L1 + QString::fromLatin1(device) + "/stat"_L1, size,
        blockSize));
}

} // namespace platform
