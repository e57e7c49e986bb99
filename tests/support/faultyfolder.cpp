#include "support/faultyfolder.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#define FUSE_USE_VERSION 31
#include <fuse.h>

#include <dirent.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <limits>
#include <new>
#include <string>

namespace {

constexpr qint64 Never = std::numeric_limits<qint64>::max();

struct Range
{
    std::atomic<qint64> first{0};
    std::atomic<qint64> end{0};

    void set(qint64 newFirst, qint64 newEnd)
    {
        end = 0; // no failures between the two changes
        first = newFirst;
        end = newEnd;
    }
    bool meets(qint64 from, qint64 to) const { return from < end && to > first; }
};

} // namespace

struct FaultyFolder::Plan
{
    Range reads;
    Range writes;
    std::atomic<qint64> untilWritesFail{0}; // bytes
    std::atomic<bool> flushesFail{false};
    std::atomic<qint64> room{Never};
    std::atomic<qint64> lifetime{Never}; // bytes still to be written before the server ends
    std::atomic<int> failedReads{0};
    std::atomic<int> failedWrites{0};
    std::atomic<int> failedFlushes{0};
    std::atomic<int> untilOperationFails{0}; // 0: none fails
    std::atomic<int> operationError{0};
    std::atomic<bool> hasFailedOperation{false};
};

static_assert(std::atomic<qint64>::is_always_lock_free, "two processes share them");

namespace {

// Used in the server process.
FaultyFolder::Plan *plan = nullptr;
std::string root;

std::string real(const char *path)
{
    return root + path;
}

int answer(int result)
{
    return result < 0 ? -errno : result;
}

// The negative errno with which this operation is to fail, or 0.
int plannedFailure()
{
    if (plan->untilOperationFails <= 0 || --plan->untilOperationFails > 0)
        return 0;
    plan->hasFailedOperation = true;
    return -plan->operationError;
}

// The operation behind the plan. Closing does not fail, because the kernel tells nobody of it.
template <auto operation, typename... Args>
int planned(Args... args)
{
    const int failure = plannedFailure();
    return failure != 0 ? failure : operation(args...);
}

int getAttributes(const char *path, struct stat *attributes, fuse_file_info *)
{
    return answer(::lstat(real(path).c_str(), attributes));
}

int openReal(const char *path, int flags, mode_t mode, fuse_file_info *info)
{
    // The buffers here are not aligned for unbuffered transfers.
    const int file = ::open(real(path).c_str(), (flags & ~(O_DIRECT | O_NOFOLLOW)) | O_CLOEXEC, mode);
    if (file < 0)
        return -errno;
    info->fh = static_cast<std::uint64_t>(file);
    info->direct_io = 1; // a page cache above would hide faults
    return 0;
}

int openFile(const char *path, fuse_file_info *info)
{
    return openReal(path, info->flags, 0, info);
}

int createFile(const char *path, mode_t mode, fuse_file_info *info)
{
    return openReal(path, info->flags | O_CREAT, mode, info);
}

int handleOf(const fuse_file_info *info)
{
    return static_cast<int>(info->fh);
}

int releaseFile(const char *, fuse_file_info *info)
{
    return answer(::close(handleOf(info)));
}

int readFile(const char *, char *data, std::size_t size, off_t offset, fuse_file_info *info)
{
    if (plan->reads.meets(offset, offset + static_cast<qint64>(size))) {
        ++plan->failedReads;
        return -EIO;
    }
    return answer(static_cast<int>(::pread(handleOf(info), data, size, offset)));
}

int writeFile(const char *, const char *data, std::size_t size, off_t offset, fuse_file_info *info)
{
    const auto length = static_cast<qint64>(size);
    if (plan->lifetime != Never && (plan->lifetime -= length) <= 0)
        ::_exit(0);
    const bool isWhole = plan->untilWritesFail > 0;
    if (isWhole)
        plan->untilWritesFail -= length;
    if (!isWhole && plan->writes.meets(offset, offset + length)) {
        ++plan->failedWrites;
        return -EIO;
    }
    if (offset + length > plan->room) {
        ++plan->failedWrites;
        return -ENOSPC;
    }
    return answer(static_cast<int>(::pwrite(handleOf(info), data, size, offset)));
}

int syncFile(const char *, int, fuse_file_info *info)
{
    if (plan->flushesFail) {
        ++plan->failedFlushes;
        return -EIO;
    }
    return answer(::fdatasync(handleOf(info)));
}

int truncateFile(const char *path, off_t size, fuse_file_info *)
{
    return answer(::truncate(real(path).c_str(), size));
}

int unlinkFile(const char *path)
{
    return answer(::unlink(real(path).c_str()));
}

// The library asks for the attributes of an open file as a part of its creation, which cannot half fail.
int plannedAttributes(const char *path, struct stat *attributes, fuse_file_info *info)
{
    return info ? getAttributes(path, attributes, info) : planned<getAttributes>(path, attributes, info);
}

int renameFile(const char *from, const char *to, unsigned flags)
{
    return answer(::renameat2(AT_FDCWD, real(from).c_str(), AT_FDCWD, real(to).c_str(), flags));
}

int makeFolder(const char *path, mode_t mode)
{
    return answer(::mkdir(real(path).c_str(), mode));
}

int removeFolder(const char *path)
{
    return answer(::rmdir(real(path).c_str()));
}

int listFolder(const char *path, void *buffer, fuse_fill_dir_t fill, off_t, fuse_file_info *,
               fuse_readdir_flags)
{
    DIR *folder = ::opendir(real(path).c_str());
    if (!folder)
        return -errno;
    while (const dirent *entry = ::readdir(folder))
        fill(buffer, entry->d_name, nullptr, 0, fuse_fill_dir_flags(0));
    return answer(::closedir(folder));
}

int syncFolder(const char *path, int, fuse_file_info *)
{
    const int folder = ::open(real(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const int result = folder < 0 ? -errno : answer(::fsync(folder));
    if (folder >= 0)
        ::close(folder);
    return result;
}

int changeMode(const char *path, mode_t mode, fuse_file_info *)
{
    return answer(::chmod(real(path).c_str(), mode));
}

// The kernel asks anew each time, so that it sees changes made below the mount.
void *rememberNothing(fuse_conn_info *, fuse_config *config)
{
    config->entry_timeout = 0;
    config->attr_timeout = 0;
    config->negative_timeout = 0;
    return nullptr;
}

fuse_operations operations()
{
    fuse_operations table{};
    table.init = rememberNothing;
    table.getattr = plannedAttributes;
    table.open = planned<openFile>;
    table.create = planned<createFile>;
    table.release = releaseFile;
    table.read = planned<readFile>;
    table.write = planned<writeFile>;
    table.fsync = planned<syncFile>;
    table.truncate = planned<truncateFile>;
    table.unlink = planned<unlinkFile>;
    table.rename = planned<renameFile>;
    table.mkdir = planned<makeFolder>;
    table.rmdir = planned<removeFolder>;
    table.readdir = planned<listFolder>;
    table.fsyncdir = planned<syncFolder>;
    table.chmod = planned<changeMode>;
    return table;
}

} // namespace

QString FaultyFolder::unavailableReason()
{
    if (::geteuid() != 0)
        return QStringLiteral("SKIPPED: mounts need root");
    const int device = ::open("/dev/fuse", O_RDWR | O_CLOEXEC);
    if (device < 0)
        return QStringLiteral("SKIPPED: /dev/fuse cannot be opened: %1").arg(qt_error_string(errno));
    ::close(device);
    return {};
}

FaultyFolder::FaultyFolder(const QString &folder)
    : m_below(folder + QStringLiteral("/below"))
    , m_mountPoint(folder + QStringLiteral("/faulty"))
{
    m_ready = QDir().mkpath(m_below) && QDir().mkpath(m_mountPoint) && start();
}

FaultyFolder::~FaultyFolder()
{
    vanish();
    unmount();
    if (m_plan)
        ::munmap(m_plan, sizeof(Plan));
}

bool FaultyFolder::start()
{
    void *shared = ::mmap(nullptr, sizeof(Plan), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    int ready[2];
    if (shared == MAP_FAILED || ::pipe2(ready, O_CLOEXEC) != 0)
        return false;
    m_plan = new (shared) Plan;
    const pid_t parent = ::getpid();
    // The server is a process instead of a thread. A test killed while it waits for the loop device would
    // end its threads only after the wait, and the wait would never end without the server.
    m_server = ::fork();
    if (m_server == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() == parent)
            serve(ready[1]);
        ::_exit(1);
    }
    ::close(ready[1]);
    char mounted = 0;
    const bool isMounted = m_server > 0 && ::read(ready[0], &mounted, 1) == 1;
    ::close(ready[0]);
    return isMounted;
}

void FaultyFolder::serve(int readyEnd)
{
    plan = m_plan;
    root = QFile::encodeName(m_below).toStdString();
    char name[] = "faulty";
    char *words[] = {name, nullptr};
    fuse_args arguments = FUSE_ARGS_INIT(1, words);
    const fuse_operations table = operations();
    fuse *server = fuse_new(&arguments, &table, sizeof table, nullptr);
    if (server && fuse_mount(server, QFile::encodeName(m_mountPoint).constData()) == 0 &&
        ::write(readyEnd, "m", 1) == 1)
        fuse_loop(server);
    ::_exit(1);
}

void FaultyFolder::unmount()
{
    // Lazily, because files may still be open inside. Without the server they cannot be used any more.
    if (m_ready && ::umount2(QFile::encodeName(m_mountPoint).constData(), MNT_DETACH) != 0)
        QTest::qFail(qPrintable(QStringLiteral("left behind: ") + m_mountPoint), __FILE__, __LINE__);
}

void FaultyFolder::failReads(qint64 first, qint64 end)
{
    m_plan->reads.set(first, end);
}

void FaultyFolder::failWrites(qint64 first, qint64 end)
{
    m_plan->writes.set(first, end);
}

void FaultyFolder::failFlushes()
{
    m_plan->flushesFail = true;
}

void FaultyFolder::limitRoomTo(qint64 position)
{
    m_plan->room = position;
}

void FaultyFolder::beginAfter(qint64 bytes)
{
    m_plan->untilWritesFail = bytes;
}

void FaultyFolder::failOperation(int nth, int error)
{
    m_plan->operationError = error;
    m_plan->hasFailedOperation = false;
    m_plan->untilOperationFails = nth;
}

void FaultyFolder::heal()
{
    m_plan->untilOperationFails = 0;
    m_plan->untilWritesFail = 0;
    m_plan->reads.set(0, 0);
    m_plan->writes.set(0, 0);
    m_plan->flushesFail = false;
    m_plan->room = Never;
    m_plan->lifetime = Never;
}

void FaultyFolder::vanish()
{
    if (isGone())
        return;
    ::kill(m_server, SIGKILL);
    ::waitpid(m_server, nullptr, 0);
    m_server = -1;
}

void FaultyFolder::vanishAfter(qint64 bytes)
{
    m_plan->lifetime = bytes;
}

bool FaultyFolder::isGone()
{
    if (m_server > 0 && ::waitpid(m_server, nullptr, WNOHANG) == m_server)
        m_server = -1;
    return m_server < 0;
}

int FaultyFolder::failedReads() const
{
    return m_plan->failedReads;
}

int FaultyFolder::failedWrites() const
{
    return m_plan->failedWrites;
}

int FaultyFolder::failedFlushes() const
{
    return m_plan->failedFlushes;
}

bool FaultyFolder::hasFailedOperation() const
{
    return m_plan->hasFailedOperation;
}
