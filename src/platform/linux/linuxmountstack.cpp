#include "platform/linux/linuxmountstack.h"

#include "platform/filenames.h"
#include "platform/linux/linuxdevicecalls.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxmountarguments.h"

#include <QDebug>
#include <QDir>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <utility>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// Programs that list volumes open each of them briefly.
constexpr int Attempts = 10;
constexpr useconds_t BetweenAttempts = 50'000;

// Whether the path leads to this mount, and not to another mount that hides it.
bool leadsTo(const QByteArray &path, int mountId)
{
    struct statx info = {};
    if (fileCalls().statx(AT_FDCWD, path.constData(), AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, STATX_MNT_ID,
                          &info) != 0)
        return false;
    // Kernels before Linux 5.8 do not report the mount.
    return (info.stx_mask & STATX_MNT_ID) == 0 || info.stx_mnt_id == static_cast<quint64>(mountId);
}

Status unmount(const MountEntry &entry)
{
    const QByteArray point = encodeName(entry.mountPoint);
    if (!leadsTo(point, entry.id))
        return {SharingViolation, 0, "statx"};
    for (int attempt = 1;; ++attempt) {
        if (deviceCalls().umount2(point.constData(), UMOUNT_NOFOLLOW) == 0)
            return {};
        const int error = errno;
        if (error != EBUSY || attempt == Attempts)
            return statusFromErrno(error, "umount2");
        ::usleep(BetweenAttempts);
    }
}

bool mountFileSystem(const QByteArray &source, const QByteArray &point, const MountEntry &entry)
{
    const MountArguments arguments = MountArguments::of(entry);
    // Without MS_RDONLY, which would make the whole file system read-only. setUp() makes a read-only mount
    // point so afterwards.
    const unsigned long flags =
        arguments.fileSystemFlags | (arguments.mountFlags & ~static_cast<unsigned long>(MS_RDONLY));
    return deviceCalls().mount(source.constData(), point.constData(), entry.fileSystem.constData(), flags,
                               arguments.data.constData()) == 0;
}

Status mountFailure()
{
    return statusFromErrno(errno, "mount");
}

// After the system has re-read a partition table, partitions are missing for a moment.
Status mountWhole(const QByteArray &source, const QByteArray &point, const MountEntry &entry)
{
    for (int attempt = 1;; ++attempt) {
        if (mountFileSystem(source, point, entry))
            return {};
        if ((errno != ENOENT && errno != ENXIO && errno != EBUSY) || attempt == Attempts)
            return mountFailure();
        ::usleep(BetweenAttempts);
    }
}

// Mounts a file system at a temporary place, from which a folder of it can be mounted even if another mount
// hides the folder elsewhere.
class HiddenPlace
{
public:
    HiddenPlace(const QByteArray &source, const MountEntry &entry)
    {
        m_path = QDir::tempPath().toLocal8Bit() + "/quorvex-mount-XXXXXX";
        if (!deviceCalls().mkdtemp(m_path.data()))
            return;
        m_isMade = true;
        m_isMounted = mountWhole(source, m_path, entry).ok();
    }
    // Removes only the folder itself. While a file system is still mounted there, the removal fails and the
    // user's data stays.
    ~HiddenPlace()
    {
        const int error = errno; // preserved for the caller
        if (m_isMounted)
            deviceCalls().umount2(m_path.constData(), UMOUNT_NOFOLLOW);
        if (m_isMade)
            fileCalls().unlinkat(AT_FDCWD, m_path.constData(), AT_REMOVEDIR);
        errno = error;
    }
    HiddenPlace(const HiddenPlace &) = delete;
    HiddenPlace &operator=(const HiddenPlace &) = delete;

    bool isMounted() const { return m_isMounted; }
    const QByteArray &path() const { return m_path; }

private:
    QByteArray m_path;
    bool m_isMade = false;
    bool m_isMounted = false;
};

// Mounts a folder of the file system. Its path starts at the root of all subvolumes.
Status mountFolder(const QByteArray &source, const QByteArray &point, const MountEntry &entry)
{
    MountEntry whole = entry;
    QStringList options = entry.options.split(u',', Qt::SkipEmptyParts);
    if (options.removeIf([](const QString &option) { return option.startsWith(u"subvol"); }) > 0)
        options.append(QStringLiteral("subvol=/"));
    whole.options = options.join(u',');
    const HiddenPlace hidden(source, whole);
    if (!hidden.isMounted())
        return mountFailure();
    const QByteArray folder = hidden.path() + encodeName(entry.root);
    if (deviceCalls().mount(folder.constData(), point.constData(), nullptr, MS_BIND, nullptr) != 0)
        return mountFailure();
    return {};
}

Status setUp(const QByteArray &point, const MountArguments &arguments)
{
    const unsigned long flags = MS_REMOUNT | MS_BIND | arguments.mountFlags;
    if (deviceCalls().mount(nullptr, point.constData(), nullptr, flags, nullptr) != 0 ||
        deviceCalls().mount(nullptr, point.constData(), nullptr, arguments.propagation, nullptr) != 0)
        return mountFailure();
    return {};
}

} // namespace

MountStack::MountStack(const SystemTree &tree, QList<VolumeTable::Mount> mounts)
    : m_table(tree)
    , m_blocks(tree)
{
    // A moved mount may stand on a younger one.
    while (!mounts.isEmpty()) {
        const auto standsOnNone = [&mounts](const VolumeTable::Mount &mount) {
            return std::ranges::none_of(mounts, [&mount](const VolumeTable::Mount &other) {
                return other.entry.id == mount.entry.parent && other.entry.id != mount.entry.id;
            });
        };
        const auto next = std::ranges::find_if(mounts, standsOnNone);
        m_mounts.append(mounts.takeAt(next == mounts.end() ? 0 : next - mounts.begin()));
    }
    m_standing = m_mounts.size();
}

QString MountStack::pointUnderOther() const
{
    const QList<MountEntry> table = m_table.entries();
    for (const MountEntry &other : table) {
        const auto isOther = [&other](const VolumeTable::Mount &own) { return own.entry.id != other.id; };
        const auto under = std::ranges::find_if(
            m_mounts, [&other](const VolumeTable::Mount &own) { return own.entry.id == other.parent; });
        if (under != m_mounts.end() && std::ranges::all_of(m_mounts, isOther))
            return under->entry.mountPoint;
    }
    return {};
}

bool MountStack::isStanding(const MountEntry &entry) const
{
    return std::ranges::any_of(m_table.entries(),
                               [&entry](const MountEntry &other) { return other.id == entry.id; });
}

Status MountStack::takeDown(QString &inUse)
{
    while (m_standing > 0) {
        const MountEntry &entry = m_mounts.at(m_standing - 1).entry;
        // With shared propagation, unmounting one mount may also unmount another.
        const Status unmounted = isStanding(entry) ? unmount(entry) : Status{};
        if (!unmounted) {
            inUse = entry.mountPoint;
            return unmounted;
        }
        --m_standing;
    }
    return {};
}

// With shared propagation, mounting one mount may also create another, which must not be mounted twice.
bool MountStack::isUpAgain(qsizetype index) const
{
    const VolumeTable::Mount &wanted = m_mounts.at(index);
    const auto isAlike = [&wanted](const VolumeTable::Mount &other) {
        return other.device == wanted.device && other.entry.root == wanted.entry.root &&
               other.entry.mountPoint == wanted.entry.mountPoint;
    };
    const auto upToThis = std::count_if(m_mounts.begin(), m_mounts.begin() + index + 1, isAlike);
    return std::ranges::count_if(m_table.mounts(), isAlike) >= upToThis;
}

Status MountStack::mountAgain(const VolumeTable::Mount &mount) const
{
    const MountEntry &entry = mount.entry;
    const bool isSource = BlockTree::deviceOfNode(entry.source) == mount.device;
    const QByteArray source = encodeName(isSource ? entry.source : m_blocks.node(mount.device));
    const QByteArray point = encodeName(entry.mountPoint);
    const MountArguments arguments = MountArguments::of(entry);
    const Status mounted =
        arguments.isWhole ? mountWhole(source, point, entry) : mountFolder(source, point, entry);
    if (!mounted)
        return mounted;
    const Status isSetUp = setUp(point, arguments);
    // A mount must not stay with weaker restrictions than before.
    if (!isSetUp)
        deviceCalls().umount2(point.constData(), UMOUNT_NOFOLLOW);
    return isSetUp;
}

QStringList MountStack::putUp()
{
    QStringList lost;
    for (; m_standing < m_mounts.size(); ++m_standing) {
        if (isUpAgain(m_standing))
            continue;
        const VolumeTable::Mount &mount = m_mounts.at(m_standing);
        const Status mounted = mountAgain(mount);
        if (mounted)
            continue;
        qDebug().noquote() << "[Mounts]" << mount.entry.mountPoint << mounted.diagnostic();
        lost.append(mount.entry.mountPoint);
    }
    return lost;
}

} // namespace platform
