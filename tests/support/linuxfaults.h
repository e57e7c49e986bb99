#pragma once

#include "platform/linux/linuxdevicecalls.h"
#include "platform/linux/linuxfilecalls.h"

#include <array>
#include <mutex>
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
        CallCount,
        AnyCall = CallCount, // for fail(): any entry
    };
    enum Repeat { Once, FromThenOn };

    LinuxFaults();
    ~LinuxFaults();
    LinuxFaults(const LinuxFaults &) = delete;
    LinuxFaults &operator=(const LinuxFaults &) = delete;

    /// Call number nth (from 1) of that entry fails with this errno and does nothing. Counting begins anew.
    void fail(int call, int nth, int error, Repeat repeat = Once);
    void failNothing() { fail(-1, 0, 0); }

    /// The calls since fail() of the entry chosen there, and those that failed.
    int counted() const;
    int fired() const;
    /// Calls of an entry since construction.
    int seen(Call call) const;

private:
    // The entry of a call table. It asks enter() and then makes the system's own call.
    template <int call, auto Member>
    struct Hook;
    template <int call, auto Member, typename Calls>
    void hook(Calls &table);

    // The errno to fail with, 0 to let the call through.
    int enter(int call);

    inline static LinuxFaults *s_current = nullptr;

    mutable std::mutex m_mutex;
    int m_failing = -1;
    int m_nth = 0;
    int m_error = 0;
    Repeat m_repeat = Once;
    int m_counted = 0;
    int m_fired = 0;
    std::array<int, CallCount> m_seen{};
    platform::LinuxFileCalls m_files;
    platform::LinuxDeviceCalls m_devices;
    std::optional<platform::ScopedCalls<platform::LinuxFileCalls>> m_fileScope;
    std::optional<platform::ScopedCalls<platform::LinuxDeviceCalls>> m_deviceScope;
};
