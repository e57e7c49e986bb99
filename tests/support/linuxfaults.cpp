#include "support/linuxfaults.h"

#include <cerrno>
#include <cstddef>
#include <type_traits>

template <int call, typename Calls, typename R, typename... Args, R (*Calls::*Member)(Args...)>
struct LinuxFaults::Hook<call, Member>
{
    static R invoke(Args... args)
    {
        if (const int error = s_current->enter(call); error != 0) {
            errno = error;
            if constexpr (std::is_pointer_v<R>)
                return nullptr;
            else
                return -1;
        }
        static const Calls system;
        return (system.*Member)(args...);
    }
};

template <int call, auto Member, typename Calls>
void LinuxFaults::hook(Calls &table)
{
    table.*Member = &Hook<call, Member>::invoke;
}

LinuxFaults::LinuxFaults()
{
    using Files = platform::LinuxFileCalls;
    using Devices = platform::LinuxDeviceCalls;
    hook<Openat_, &Files::openat>(m_files);
    hook<Fcntl_, &Files::fcntl>(m_files);
    hook<Flock_, &Files::flock>(m_files);
    hook<Read_, &Files::read>(m_files);
    hook<Pread_, &Files::pread>(m_files);
    hook<Pwrite_, &Files::pwrite>(m_files);
    hook<Ftruncate_, &Files::ftruncate>(m_files);
    hook<Fsync_, &Files::fsync>(m_files);
    hook<Fdatasync_, &Files::fdatasync>(m_files);
    hook<Syncfs_, &Files::syncfs>(m_files);
    hook<SyncFileRange_, &Files::syncFileRange>(m_files);
    hook<Fstat_, &Files::fstat>(m_files);
    hook<Fstatat_, &Files::fstatat>(m_files);
    hook<Statx_, &Files::statx>(m_files);
    hook<Fstatfs_, &Files::fstatfs>(m_files);
    hook<Fstatvfs_, &Files::fstatvfs>(m_files);
    hook<Fdopendir_, &Files::fdopendir>(m_files);
    hook<Readdir_, &Files::readdir>(m_files);
    hook<Mkdirat_, &Files::mkdirat>(m_files);
    hook<Fchmodat_, &Files::fchmodat>(m_files);
    hook<Renameat_, &Files::renameat>(m_files);
    hook<Unlinkat_, &Files::unlinkat>(m_files);
    hook<Flistxattr_, &Files::flistxattr>(m_files);
    hook<Fgetxattr_, &Files::fgetxattr>(m_files);
    hook<Fsetxattr_, &Files::fsetxattr>(m_files);
    hook<Ioctl_, &Devices::ioctl>(m_devices);
    hook<Mount_, &Devices::mount>(m_devices);
    hook<Umount2_, &Devices::umount2>(m_devices);
    s_current = this;
    m_fileScope.emplace(m_files);
    m_deviceScope.emplace(m_devices);
}

LinuxFaults::~LinuxFaults()
{
    m_deviceScope.reset();
    m_fileScope.reset();
    s_current = nullptr;
}

void LinuxFaults::fail(int call, int nth, int error, Repeat repeat)
{
    const std::scoped_lock lock(m_mutex);
    m_failing = call;
    m_nth = nth;
    m_error = error;
    m_repeat = repeat;
    m_counted = 0;
    m_fired = 0;
}

int LinuxFaults::counted() const
{
    const std::scoped_lock lock(m_mutex);
    return m_counted;
}

int LinuxFaults::fired() const
{
    const std::scoped_lock lock(m_mutex);
    return m_fired;
}

int LinuxFaults::seen(Call call) const
{
    const std::scoped_lock lock(m_mutex);
    return m_seen[std::size_t(call)];
}

int LinuxFaults::enter(int call)
{
    const std::scoped_lock lock(m_mutex);
    ++m_seen[std::size_t(call)];
    if (m_failing != AnyCall && m_failing != call)
        return 0;
    ++m_counted;
    if (m_counted != m_nth && !(m_repeat == FromThenOn && m_counted > m_nth))
        return 0;
    ++m_fired;
    return m_error;
}
