#pragma once

#include "platform/windows/win32calls.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <mutex>
#include <optional>
#include <type_traits>

// The system's calls with one entry failing on purpose, with a ledger of what is open, and with devices that
// answer from a script. In force from construction to destruction, one at a time. Thread-safe.
//
// A path below "\\.\" that no script covers does not exist (error 2), so that no test reaches a real drive.
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
        DeviceIoControl_,
        VirtualAlloc_,
        VirtualFree_,
        GetWindowsDirectory_,
        OpenProcessToken_,
        GetTokenInformation_,
        ConvertSidToStringSid_,
        LocalFree_,
        CallCount,
        AnyCall = CallCount, // of fail(): whichever comes
    };
    enum Repeat { Once, FromThenOn };
    using PathFilter = std::function<bool(const QString &path)>;

    // What a device answers to a control code: a failure, or bytes. More bytes than the buffer has room for
    // are cut and answered with error 234, unless claimedSize says what is to be claimed.
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
    };

    inline Win32Faults();
    ~Win32Faults()
    {
        m_scope.reset();
        s_current = nullptr;
    }
    Win32Faults(const Win32Faults &) = delete;
    Win32Faults &operator=(const Win32Faults &) = delete;

    // Call number nth (from 1) of that entry fails with the error. Counting begins anew. Calls that close or
    // free something are carried out all the same, so that nothing leaks on the test's account.
    void fail(int call, int nth, DWORD error, Repeat repeat = Once)
    {
        const std::scoped_lock lock(m_mutex);
        m_failing = call;
        m_nth = nth;
        m_error = error;
        m_repeat = repeat;
        m_counted = 0;
        m_fired = 0;
    }
    void failNothing() { fail(-1, 0, ERROR_SUCCESS); }
    // Only calls on such a path count and fail; a call on a handle has the path that the handle was opened
    // with, one without either an empty path.
    void onlyFor(PathFilter filter)
    {
        const std::scoped_lock lock(m_mutex);
        m_filter = std::move(filter);
    }

    // Calls of the entry chosen with fail(), since then.
    int counted() const { return locked(m_counted); }
    int fired() const { return locked(m_fired); }
    // Calls of an entry since construction.
    int seen(Call call) const { return locked(m_seen[call]); }
    // Files, searches and tokens opened since construction and not yet closed.
    int openHandles() const
    {
        const std::scoped_lock lock(m_mutex);
        return int(m_handles.size());
    }
    QStringList openPaths() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_handles.values();
    }
    // The same of pages and of memory that the system handed out.
    int openMemory() const
    {
        const std::scoped_lock lock(m_mutex);
        return int(m_memory.size());
    }
    // How files were opened, the failed attempts included, and what devices were asked.
    QList<Opening> openings() const { return locked(m_openings); }
    QList<Control> controls() const { return locked(m_controls); }
    void forget()
    {
        const std::scoped_lock lock(m_mutex);
        m_openings.clear();
        m_controls.clear();
    }

    // What is called where nothing is to fail: the system, unless the test puts something in its place.
    platform::Win32Calls &target() { return m_target; }

    // From now on the path ("\\.\E:") opens the file. With a length, writes that reach beyond it fail as a
    // whole with endError, as those to a device do; a file would grow.
    void addDevice(const QString &path, const QString &file, qint64 length = -1,
                   DWORD endError = ERROR_SECTOR_NOT_FOUND)
    {
        const std::scoped_lock lock(m_mutex);
        m_devices.insert(path, Device{file, length, endError, false, {}});
    }
    // From now on the path opens what the system has there, and codes without a reply go to the system as
    // well. Only for a device that the test made.
    void addSystemDevice(const QString &path)
    {
        const std::scoped_lock lock(m_mutex);
        m_devices.insert(path, Device{path, -1, ERROR_SUCCESS, true, {}});
    }
    void removeDevice(const QString &path)
    {
        const std::scoped_lock lock(m_mutex);
        m_devices.remove(path);
    }
    // Replies last until the device is added again or removed; codes without one fail with error 50.
    void setReply(const QString &path, DWORD code, const Reply &reply) { setReply(path, {code, 0}, reply); }
    void setPropertyReply(const QString &path, int property, const Reply &reply)
    {
        setReply(path, {IOCTL_STORAGE_QUERY_PROPERTY, property}, reply);
    }

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

    template <int call, auto Member>
    struct Hook;
    template <int call, typename R, typename... Args, R (WINAPI *platform::Win32Calls::*Member)(Args...)>
    struct Hook<call, Member>
    {
        static R WINAPI invoke(Args... args);
    };
    template <int call, auto Member>
    void hook()
    {
        m_table.*Member = &Hook<call, Member>::invoke;
    }

    template <typename T>
    T locked(const T &value) const
    {
        const std::scoped_lock lock(m_mutex);
        return value;
    }

    void setReply(const QString &path, const ControlKey &key, const Reply &reply)
    {
        const std::scoped_lock lock(m_mutex);
        m_devices[path].replies.insert(key, reply);
    }

    static constexpr bool closes(int call)
    {
        return call == CloseHandle_ || call == FindClose_ || call == VirtualFree_ || call == LocalFree_;
    }

    template <int call, typename R, typename First>
    static R failureValue(First first)
    {
        if constexpr (call == CreateFile_ || call == FindFirstFile_)
            return INVALID_HANDLE_VALUE;
        else if constexpr (call == LocalFree_)
            return first;
        else if constexpr (call == GetFileAttributes_)
            return INVALID_FILE_ATTRIBUTES;
        else
            return R{};
    }

    // The error to fail with, or success to let the call through.
    DWORD enter(int call, const QString &path)
    {
        const std::scoped_lock lock(m_mutex);
        ++m_seen[size_t(call)];
        if ((m_failing != AnyCall && m_failing != call) || (m_filter && !m_filter(path)))
            return ERROR_SUCCESS;
        ++m_counted;
        if (m_counted != m_nth && !(m_repeat == FromThenOn && m_counted > m_nth))
            return ERROR_SUCCESS;
        ++m_fired;
        return m_error;
    }

    QString pathOf(const wchar_t *path) const { return path ? QString::fromWCharArray(path) : QString(); }
    QString pathOf(wchar_t *) const { return {}; } // a buffer to be filled
    QString pathOf(void *handle) const
    {
        const std::scoped_lock lock(m_mutex);
        return m_handles.value(handle);
    }
    QString pathOf(DWORD) const { return {}; }

    void ledger(int call, const QString &path, void *opened)
    {
        const std::scoped_lock lock(m_mutex);
        if (call == CreateFile_ || call == FindFirstFile_ || call == OpenProcessToken_)
            m_handles.insert(opened, path);
        else
            m_memory.insert(opened, call);
    }
    void forget(int call, void *closed)
    {
        const std::scoped_lock lock(m_mutex);
        if (call == CloseHandle_ || call == FindClose_)
            m_handles.remove(closed);
        else
            m_memory.remove(closed);
    }

    std::optional<Device> deviceAt(const QString &path) const
    {
        const std::scoped_lock lock(m_mutex);
        const auto found = m_devices.constFind(path);
        return found == m_devices.cend() ? std::nullopt : std::optional(*found);
    }

    // The calls that scripted devices answer in the system's place.
    HANDLE createFile(LPCWSTR name, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                      DWORD disposition, DWORD flags, HANDLE pattern)
    {
        const QString path = pathOf(name);
        if (!path.startsWith(QLatin1String(R"(\\.\)")))
            return m_target.createFile(name, access, sharing, security, disposition, flags, pattern);
        const std::optional<Device> device = deviceAt(path);
        if (!device || device->file.isEmpty()) {
            ::SetLastError(ERROR_FILE_NOT_FOUND);
            return INVALID_HANDLE_VALUE;
        }
        const std::wstring file = device->file.toStdWString();
        return m_target.createFile(file.c_str(), access, sharing, security, disposition, flags, pattern);
    }

    BOOL writeFile(HANDLE handle, LPCVOID data, DWORD size, LPDWORD written, LPOVERLAPPED overlapped)
    {
        const std::optional<Device> device = deviceAt(pathOf(handle));
        if (device && device->length >= 0) {
            LARGE_INTEGER position = {};
            if (!::SetFilePointerEx(handle, {}, &position, FILE_CURRENT))
                return FALSE;
            if (position.QuadPart + qint64(size) > device->length) {
                *written = 0;
                ::SetLastError(device->endError);
                return FALSE;
            }
        }
        return m_target.writeFile(handle, data, size, written, overlapped);
    }

    BOOL deviceIoControl(HANDLE handle, DWORD code, LPVOID input, DWORD inputSize, LPVOID output,
                         DWORD outputSize, LPDWORD returned, LPOVERLAPPED overlapped)
    {
        const std::optional<Device> device = deviceAt(pathOf(handle));
        if (!device)
            return m_target.deviceIoControl(handle, code, input, inputSize, output, outputSize, returned,
                                            overlapped);
        {
            const std::scoped_lock lock(m_mutex);
            m_controls.append({code, inputSize, outputSize});
        }
        int property = 0;
        if (code == IOCTL_STORAGE_QUERY_PROPERTY && inputSize >= sizeof(property))
            std::memcpy(&property, input, sizeof(property));
        if (device->isOfSystem && !device->replies.contains({code, property}))
            return m_target.deviceIoControl(handle, code, input, inputSize, output, outputSize, returned,
                                            overlapped);
        const Reply reply = device->replies.value({code, property}, Reply{ERROR_NOT_SUPPORTED, {}, {}});
        *returned = 0;
        if (reply.error != ERROR_SUCCESS) {
            ::SetLastError(reply.error);
            return FALSE;
        }
        const DWORD copied = std::min<DWORD>(DWORD(reply.bytes.size()), outputSize);
        if (copied > 0)
            std::memcpy(output, reply.bytes.constData(), copied);
        *returned = reply.claimedSize.value_or(copied);
        if (!reply.claimedSize && DWORD(reply.bytes.size()) > outputSize) {
            ::SetLastError(ERROR_MORE_DATA);
            return FALSE;
        }
        return TRUE;
    }

    template <int call, auto Member, typename... Args>
    auto perform(Args... args)
    {
        if constexpr (call == CreateFile_)
            return createFile(args...);
        else if constexpr (call == WriteFile_)
            return writeFile(args...);
        else if constexpr (call == DeviceIoControl_)
            return deviceIoControl(args...);
        else
            return (m_target.*Member)(args...);
    }

    template <int call, typename... Args>
    void noteOpening(const QString &path, Args... args)
    {
        if constexpr (call == CreateFile_) {
            const auto opening = [&](LPCWSTR, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES,
                                     DWORD disposition, DWORD flags, HANDLE) {
                return Opening{path, access, sharing, disposition, flags};
            };
            const std::scoped_lock lock(m_mutex);
            m_openings.append(opening(args...));
        }
    }

    template <int call, typename R, typename... Args>
    void noteResult(const QString &path, R result, Args... args)
    {
        if constexpr (call == CreateFile_ || call == FindFirstFile_) {
            if (result != INVALID_HANDLE_VALUE)
                ledger(call, path, result);
        } else if constexpr (call == VirtualAlloc_) {
            if (result)
                ledger(call, path, result);
        } else if constexpr (call == OpenProcessToken_) {
            if (result)
                ledger(
                    call, path, *[](HANDLE, DWORD, PHANDLE token) { return token; }(args...));
        } else if constexpr (call == ConvertSidToStringSid_) {
            if (result)
                ledger(
                    call, path, *[](PSID, LPWSTR *text) { return text; }(args...));
        }
    }

    inline static Win32Faults *s_current = nullptr;

    mutable std::mutex m_mutex;
    int m_failing = -1;
    int m_nth = 0;
    DWORD m_error = ERROR_SUCCESS;
    Repeat m_repeat = Once;
    PathFilter m_filter;
    int m_counted = 0;
    int m_fired = 0;
    std::array<int, CallCount> m_seen{};
    QHash<void *, QString> m_handles;
    QHash<void *, int> m_memory;
    QList<Opening> m_openings;
    QList<Control> m_controls;
    QHash<QString, Device> m_devices;
    platform::Win32Calls m_target;
    platform::Win32Calls m_table;
    std::optional<platform::ScopedWin32Calls> m_scope;
};

template <int call, typename R, typename... Args, R (WINAPI *platform::Win32Calls::*Member)(Args...)>
R WINAPI Win32Faults::Hook<call, Member>::invoke(Args... args)
{
    Win32Faults &self = *s_current;
    const auto first = [](auto argument, auto...) { return argument; }(args...);
    const QString path = self.pathOf(first);
    self.noteOpening<call>(path, args...);
    const DWORD planned = self.enter(call, path);
    if (planned != ERROR_SUCCESS) {
        if constexpr (closes(call)) {
            self.forget(call, first);
            static_cast<void>((self.m_target.*Member)(args...));
        }
        ::SetLastError(planned);
        return failureValue<call, R>(first);
    }
    if constexpr (closes(call))
        self.forget(call, first);
    const R result = self.perform<call, Member>(args...);
    const DWORD error = ::GetLastError();
    self.noteResult<call>(path, result, args...);
    ::SetLastError(error);
    return result;
}

inline Win32Faults::Win32Faults()
{
    using platform::Win32Calls;
    hook<CreateFile_, &Win32Calls::createFile>();
    hook<CloseHandle_, &Win32Calls::closeHandle>();
    hook<ReadFile_, &Win32Calls::readFile>();
    hook<WriteFile_, &Win32Calls::writeFile>();
    hook<SetFilePointer_, &Win32Calls::setFilePointer>();
    hook<SetEndOfFile_, &Win32Calls::setEndOfFile>();
    hook<FlushFileBuffers_, &Win32Calls::flushFileBuffers>();
    hook<GetFileInformation_, &Win32Calls::getFileInformation>();
    hook<GetFileAttributes_, &Win32Calls::getFileAttributes>();
    hook<GetFileAttributesEx_, &Win32Calls::getFileAttributesEx>();
    hook<SetFileAttributes_, &Win32Calls::setFileAttributes>();
    hook<MoveFile_, &Win32Calls::moveFile>();
    hook<DeleteFile_, &Win32Calls::deleteFile>();
    hook<CreateDirectory_, &Win32Calls::createDirectory>();
    hook<RemoveDirectory_, &Win32Calls::removeDirectory>();
    hook<FindFirstFile_, &Win32Calls::findFirstFile>();
    hook<FindNextFile_, &Win32Calls::findNextFile>();
    hook<FindClose_, &Win32Calls::findClose>();
    hook<GetDiskFreeSpace_, &Win32Calls::getDiskFreeSpace>();
    hook<DeviceIoControl_, &Win32Calls::deviceIoControl>();
    hook<VirtualAlloc_, &Win32Calls::virtualAlloc>();
    hook<VirtualFree_, &Win32Calls::virtualFree>();
    hook<GetWindowsDirectory_, &Win32Calls::getWindowsDirectory>();
    hook<OpenProcessToken_, &Win32Calls::openProcessToken>();
    hook<GetTokenInformation_, &Win32Calls::getTokenInformation>();
    hook<ConvertSidToStringSid_, &Win32Calls::convertSidToStringSid>();
    hook<LocalFree_, &Win32Calls::localFree>();
    s_current = this;
    m_scope.emplace(m_table);
}
