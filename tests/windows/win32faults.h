#pragma once

#include "support/nthfailure.h"
#include "windows/win32calls.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>
#include <utility>

// The system calls with one entry made to fail, a record of open resources, and devices that answer from a
// script. In force from construction to destruction; one instance at a time. Thread-safe.
//
// A path below "\\.\" or to a volume ("\\?\Volume{...}") without a script does not exist (error 2), so that
// no test reaches a real drive. The volumes of the machine are those added under such a path.
class Win32Faults
{
public:
    // The entries of the call table.
    enum Call {
        CreateFile_,
        CloseHandle_,
        ReadFile_,
        WriteFile_,
        SetFilePointer_,
        SetEndOfFile_,
        FlushFileBuffers_,
        GetFileInformation_,
        GetFileInformationEx_,
        GetVolumeInformation_,
        GetFileAttributes_,
        GetFileAttributesEx_,
        SetFileAttributes_,
        MoveFile_,
        DeleteFile_,
        CreateDirectory_,
        RemoveDirectory_,
        FindFirstFile_,
        FindNextFile_,
        FindClose_,
        GetDiskFreeSpace_,
        FindFirstVolume_,
        FindNextVolume_,
        FindVolumeClose_,
        DeviceIoControl_,
        VirtualAlloc_,
        VirtualFree_,
        GetWindowsDirectory_,
        OpenProcessToken_,
        GetTokenInformation_,
        ConvertSidToStringSid_,
        LocalFree_,
        SetThreadExecutionState_,
        ShutdownBlockReasonCreate_,
        ShutdownBlockReasonDestroy_,
        CallCount,
        AnyCall = NthFailure::AnyEntry, // for fail()
    };
    using Repeat = NthFailure::Repeat;
    using enum NthFailure::Repeat;
    using PathFilter = std::function<bool(const QString &path)>;

    // The answer of a device to a control code: a failure, or bytes. Bytes beyond the buffer are cut and
    // answered with error 234, unless claimedSize sets the reported size.
    struct Reply
    {
        DWORD error = ERROR_SUCCESS;
        QByteArray bytes;
        std::optional<DWORD> claimedSize;
    };
    struct Opening
    {
        QString path;
        DWORD access = 0;
        DWORD sharing = 0;
        DWORD disposition = 0;
        DWORD flags = 0;
    };
    struct Control
    {
        DWORD code = 0;
        DWORD inputSize = 0;
        DWORD outputSize = 0;
        QString path;
        QByteArray input;
    };

    Win32Faults();
    ~Win32Faults();
    Win32Faults(const Win32Faults &) = delete;
    Win32Faults &operator=(const Win32Faults &) = delete;

    // Makes call number nth (from 1) of that entry fail with the error. Counting begins anew. Calls that
    // close or free a resource are still carried out, so that the test leaks nothing.
    void fail(int call, int nth, DWORD error, Repeat repeat = Once) { m_plan.plan(call, nth, error, repeat); }
    void failNothing() { fail(NthFailure::NoEntry, 0, ERROR_SUCCESS); }
    // Only calls on matching paths count and fail. A call on a handle has the path with which the handle was
    // opened; a call without path or handle has an empty path.
    void onlyFor(PathFilter filter);

    // The calls since fail() of the entry chosen there.
    int counted() const { return m_plan.counted(); }
    int fired() const { return m_plan.fired(); }
    // Calls of an entry since construction.
    int seen(Call call) const { return m_plan.seen(call); }
    // Files, searches and tokens opened since construction and not yet closed.
    int openHandles() const;
    QStringList openPaths() const;
    // Pages and memory from the system that are not yet freed.
    int openMemory() const;
    // The parameters of all openings, including failed ones, and the queries to devices.
    QList<Opening> openings() const { return locked(m_openings); }
    QList<Control> controls() const { return locked(m_controls); }
    void forget();

    // The calls used where none is to fail: the system's, unless the test replaces them.
    platform::Win32Calls &target() { return m_target; }

    // From now on the path ("\\.\E:") opens the file. With a length, writes beyond it fail completely with
    // endError, as on a device; a file would grow.
    void addDevice(const QString &path, const QString &file, qint64 length = -1,
                   DWORD endError = ERROR_SECTOR_NOT_FOUND);
    // From now on the path opens the system's own device, and codes without a reply go to the system too.
    // Only for a device made by the test.
    void addSystemDevice(const QString &path);
    void removeDevice(const QString &path);
    // Replies last until the device is added again or removed; codes without one fail with error 50.
    void setReply(const QString &path, DWORD code, const Reply &reply) { setReply(path, {code, 0}, reply); }
    void setPropertyReply(const QString &path, int property, const Reply &reply);

private:
    using ControlKey = std::pair<DWORD, int>; // code and property
    struct Device
    {
        QString file;
        qint64 length = -1;
        DWORD endError = ERROR_SECTOR_NOT_FOUND;
        bool isOfSystem = false;
        QHash<ControlKey, Reply> replies;
    };

    // The entry of a call table. It consults the plan and the record, and continues with perform().
    template <int call, auto Member>
    struct Hook;
    template <int call, auto Member>
    void hook();
    template <int call, auto Member, typename... Args>
    auto perform(Args... args);
    template <int call, typename... Args>
    void noteOpening(const QString &path, Args... args);
    template <int call, typename R, typename... Args>
    void noteResult(const QString &path, R result, Args... args);

    template <typename T>
    T locked(const T &value) const
    {
        const std::scoped_lock lock(m_mutex);
        return value;
    }

    void setReply(const QString &path, const ControlKey &key, const Reply &reply);

    // The error to fail with, or success to let the call through.
    DWORD enter(int call, const QString &path);

    QString pathOf(const wchar_t *path) const { return path ? QString::fromWCharArray(path) : QString(); }
    QString pathOf(wchar_t *) const { return {}; } // an output buffer
    QString pathOf(void *handle) const;
    QString pathOf(DWORD) const { return {}; }

    void ledger(int call, const QString &path, void *opened);
    void forget(int call, void *closed);
    std::optional<Device> deviceAt(const QString &path) const;
    HANDLE firstVolume(LPWSTR name, DWORD room);
    BOOL nextVolume(HANDLE search, LPWSTR name, DWORD room);
    BOOL closeSearch(HANDLE search);

    // The calls that scripted devices answer instead of the system.
    HANDLE createFile(LPCWSTR name, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                      DWORD disposition, DWORD flags, HANDLE pattern);
    BOOL writeFile(HANDLE handle, LPCVOID data, DWORD size, LPDWORD written, LPOVERLAPPED overlapped);
    BOOL deviceIoControl(HANDLE handle, DWORD code, LPVOID input, DWORD inputSize, LPVOID output,
                         DWORD outputSize, LPDWORD returned, LPOVERLAPPED overlapped);

    inline static Win32Faults *s_current = nullptr;

    mutable std::mutex m_mutex;
    NthFailure m_plan{CallCount};
    PathFilter m_filter;
    QHash<void *, QString> m_handles;
    QHash<void *, int> m_memory;
    QList<Opening> m_openings;
    QList<Control> m_controls;
    QHash<QString, Device> m_devices;
    QHash<void *, QStringList> m_searches; // volumes still to be listed
    platform::Win32Calls m_target;
    platform::Win32Calls m_table;
    std::optional<platform::ScopedWin32Calls> m_scope;
};
