#include "support/linuxfaults.h"

#include <cerrno>
#include <type_traits>

template <int call, typename Calls, typename R, typename... Args, R (*Calls::*Member)(Args...)>
struct LinuxFaults::Hook<call, Member>
{
    static R invoke(Args... args)
    {
        if (const int error = static_cast<int>(s_current->m_plan.enter(call)); error != 0) {
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
    using Process = platform::LinuxProcessCalls;
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
    hook<Mkdtemp_, &Devices::mkdtemp>(m_devices);
    hook<Write_, &Process::write>(m_process);
    hook<Poll_, &Process::poll>(m_process);
    s_current = this;
    m_fileScope.emplace(m_files);
    m_deviceScope.emplace(m_devices);
    m_processScope.emplace(m_process);
}

LinuxFaults::~LinuxFaults()
{
    m_processScope.reset();
    m_deviceScope.reset();
    m_fileScope.reset();
    s_current = nullptr;
}
