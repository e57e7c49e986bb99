#pragma once

#include "platform/linux/linuxdevicecalls.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxprocesscalls.h"
#include "support/nthfailure.h"

#include <optional>

/// The system calls with one entry made to fail. In force from construction to destruction; one instance at
/// a time. Thread-safe.
class LinuxFaults
{
public:
    /// The entries of the call tables.
    enum Call {
        Openat_,
        Fcntl_,
        Flock_,
        Read_,
        Pread_,
        Pwrite_,
        Ftruncate_,
        Fsync_,
        Fdatasync_,
        Syncfs_,
        SyncFileRange_,
        Fstat_,
        Fstatat_,
        Statx_,
        Fstatfs_,
        Fstatvfs_,
        Fdopendir_,
        Readdir_,
        Mkdirat_,
        Fchmodat_,
        Renameat_,
        Unlinkat_,
        Flistxattr_,
        Fgetxattr_,
        Fsetxattr_,
        Ioctl_,
        Mount_,
        Umount2_,
        Mkdtemp_,
        Write_,
        Poll_,
        CallCount,
        AnyCall = NthFailure::AnyEntry, // for fail()
    };
    using Repeat = NthFailure::Repeat;
    using enum NthFailure::Repeat;

    LinuxFaults();
    ~LinuxFaults();
    LinuxFaults(const LinuxFaults &) = delete;
    LinuxFaults &operator=(const LinuxFaults &) = delete;

    /// Call number nth (from 1) of that entry fails with this errno and does nothing. Counting begins anew.
    void fail(int call, int nth, int error, Repeat repeat = Once)
    {
        m_plan.plan(call, nth, static_cast<unsigned>(error), repeat);
    }
    void failNothing() { fail(NthFailure::NoEntry, 0, 0); }

    /// The calls since fail() of the entry chosen there, and those that failed.
    int counted() const { return m_plan.counted(); }
    int fired() const { return m_plan.fired(); }
    /// Calls of an entry since construction.
    int seen(Call call) const { return m_plan.seen(call); }

private:
    // The entry of a call table. It asks enter() and then makes the system's own call.
    template <int call, auto Member>
    struct Hook;
    template <int call, auto Member, typename Calls>
    void hook(Calls &table);

    inline static LinuxFaults *s_current = nullptr;

    NthFailure m_plan{CallCount};
    platform::LinuxFileCalls m_files;
    platform::LinuxDeviceCalls m_devices;
    platform::LinuxProcessCalls m_process;
    std::optional<platform::ScopedCalls<platform::LinuxFileCalls>> m_fileScope;
    std::optional<platform::ScopedCalls<platform::LinuxDeviceCalls>> m_deviceScope;
    std::optional<platform::ScopedCalls<platform::LinuxProcessCalls>> m_processScope;
};
