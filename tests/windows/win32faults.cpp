#include "windows/win32faults.h"

#include <winioctl.h>

#include <algorithm>
#include <cstring>

namespace {

const QString VolumePrefix = QStringLiteral(R"(\\?\Volume{)");

constexpr bool opensHandle(int call)
{
    return call == Win32Faults::CreateFile_ || call == Win32Faults::FindFirstFile_ ||
           call == Win32Faults::FindFirstVolume_;
}

constexpr bool closes(int call)
{
    return call == Win32Faults::CloseHandle_ || call == Win32Faults::FindClose_ ||
           call == Win32Faults::FindVolumeClose_ || call == Win32Faults::VirtualFree_ ||
           call == Win32Faults::LocalFree_;
}

template <int call, typename R, typename First>
R failureValue(First first)
{
    if constexpr (opensHandle(call))
        return INVALID_HANDLE_VALUE;
    else if constexpr (call == Win32Faults::LocalFree_)
        return first;
    else if constexpr (call == Win32Faults::GetFileAttributes_)
        return INVALID_FILE_ATTRIBUTES;
    else
        return R{};
}

} // namespace

template <int call, typename Calls, typename R, typename... Args, R (WINAPI *Calls::*Member)(Args...)>
struct Win32Faults::Hook<call, Member>
{
    static R WINAPI invoke(Args... args);
};

template <int call, auto Member>
void Win32Faults::hook()
{
    m_table.*Member = &Hook<call, Member>::invoke;
}

template <int call, auto Member, typename... Args>
auto Win32Faults::perform(Args... args)
{
    if constexpr (call == CreateFile_)
        return createFile(args...);
    else if constexpr (call == WriteFile_)
        return writeFile(args...);
    else if constexpr (call == DeviceIoControl_)
        return deviceIoControl(args...);
    else if constexpr (call == FindFirstVolume_)
        return firstVolume(args...);
    else if constexpr (call == FindNextVolume_)
        return nextVolume(args...);
    else if constexpr (call == FindVolumeClose_)
        return closeSearch(args...);
    else
        return (m_target.*Member)(args...);
}

template <int call, typename... Args>
void Win32Faults::noteOpening(const QString &path, Args... args)
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
void Win32Faults::noteResult(const QString &path, R result, Args... args)
{
    if constexpr (opensHandle(call)) {
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

template <int call, typename Calls, typename R, typename... Args, R (WINAPI *Calls::*Member)(Args...)>
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
            static_cast<void>(self.perform<call, Member>(args...));
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

Win32Faults::Win32Faults()
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
    hook<GetFileInformationEx_, &Win32Calls::getFileInformationEx>();
    hook<GetVolumeInformation_, &Win32Calls::getVolumeInformation>();
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
    hook<FindFirstVolume_, &Win32Calls::findFirstVolume>();
    hook<FindNextVolume_, &Win32Calls::findNextVolume>();
    hook<FindVolumeClose_, &Win32Calls::findVolumeClose>();
    hook<DeviceIoControl_, &Win32Calls::deviceIoControl>();
    hook<VirtualAlloc_, &Win32Calls::virtualAlloc>();
    hook<VirtualFree_, &Win32Calls::virtualFree>();
    hook<GetWindowsDirectory_, &Win32Calls::getWindowsDirectory>();
    hook<OpenProcessToken_, &Win32Calls::openProcessToken>();
    hook<GetTokenInformation_, &Win32Calls::getTokenInformation>();
    hook<ConvertSidToStringSid_, &Win32Calls::convertSidToStringSid>();
    hook<LocalFree_, &Win32Calls::localFree>();
    hook<SetThreadExecutionState_, &Win32Calls::setThreadExecutionState>();
    hook<ShutdownBlockReasonCreate_, &Win32Calls::shutdownBlockReasonCreate>();
    hook<ShutdownBlockReasonDestroy_, &Win32Calls::shutdownBlockReasonDestroy>();
    s_current = this;
    m_scope.emplace(m_table);
}

Win32Faults::~Win32Faults()
{
    m_scope.reset();
    s_current = nullptr;
}

void Win32Faults::onlyFor(PathFilter filter)
{
    const std::scoped_lock lock(m_mutex);
    m_filter = std::move(filter);
}

int Win32Faults::openHandles() const
{
    const std::scoped_lock lock(m_mutex);
    return int(m_handles.size());
}

QStringList Win32Faults::openPaths() const
{
    const std::scoped_lock lock(m_mutex);
    return m_handles.values();
}

int Win32Faults::openMemory() const
{
    const std::scoped_lock lock(m_mutex);
    return int(m_memory.size());
}

void Win32Faults::forget()
{
    const std::scoped_lock lock(m_mutex);
    m_openings.clear();
    m_controls.clear();
}

void Win32Faults::addDevice(const QString &path, const QString &file, qint64 length, DWORD endError)
{
    const std::scoped_lock lock(m_mutex);
    m_devices.insert(path, Device{file, length, endError, false, {}});
}

void Win32Faults::addSystemDevice(const QString &path)
{
    const std::scoped_lock lock(m_mutex);
    m_devices.insert(path, Device{path, -1, ERROR_SUCCESS, true, {}});
}

void Win32Faults::removeDevice(const QString &path)
{
    const std::scoped_lock lock(m_mutex);
    m_devices.remove(path);
}

void Win32Faults::setPropertyReply(const QString &path, int property, const Reply &reply)
{
    setReply(path, {IOCTL_STORAGE_QUERY_PROPERTY, property}, reply);
}

void Win32Faults::setReply(const QString &path, const ControlKey &key, const Reply &reply)
{
    const std::scoped_lock lock(m_mutex);
    m_devices[path].replies.insert(key, reply);
}

DWORD Win32Faults::enter(int call, const QString &path)
{
    PathFilter filter;
    {
        const std::scoped_lock lock(m_mutex);
        filter = m_filter;
    }
    return m_plan.enter(call, !filter || filter(path));
}

QString Win32Faults::pathOf(void *handle) const
{
    const std::scoped_lock lock(m_mutex);
    return m_handles.value(handle);
}

void Win32Faults::ledger(int call, const QString &path, void *opened)
{
    const std::scoped_lock lock(m_mutex);
    if (opensHandle(call) || call == OpenProcessToken_)
        m_handles.insert(opened, path);
    else
        m_memory.insert(opened, call);
}

void Win32Faults::forget(int call, void *closed)
{
    const std::scoped_lock lock(m_mutex);
    if (call == CloseHandle_ || call == FindClose_ || call == FindVolumeClose_)
        m_handles.remove(closed);
    else
        m_memory.remove(closed);
}

std::optional<Win32Faults::Device> Win32Faults::deviceAt(const QString &path) const
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_devices.constFind(path);
    return found == m_devices.cend() ? std::nullopt : std::optional(*found);
}

HANDLE Win32Faults::createFile(LPCWSTR name, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                               DWORD disposition, DWORD flags, HANDLE pattern)
{
    const QString path = pathOf(name);
    if (!path.startsWith(QLatin1String(R"(\\.\)")) && !path.startsWith(VolumePrefix))
        return m_target.createFile(name, access, sharing, security, disposition, flags, pattern);
    const std::optional<Device> device = deviceAt(path);
    if (!device || device->file.isEmpty()) {
        ::SetLastError(ERROR_FILE_NOT_FOUND);
        return INVALID_HANDLE_VALUE;
    }
    const std::wstring file = device->file.toStdWString();
    return m_target.createFile(file.c_str(), access, sharing, security, disposition, flags, pattern);
}

BOOL Win32Faults::writeFile(HANDLE handle, LPCVOID data, DWORD size, LPDWORD written, LPOVERLAPPED overlapped)
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

BOOL Win32Faults::deviceIoControl(HANDLE handle, DWORD code, LPVOID input, DWORD inputSize, LPVOID output,
                                  DWORD outputSize, LPDWORD returned, LPOVERLAPPED overlapped)
{
    const QString path = pathOf(handle);
    const std::optional<Device> device = deviceAt(path);
    if (!device)
        return m_target.deviceIoControl(handle, code, input, inputSize, output, outputSize, returned,
                                        overlapped);
    {
        const std::scoped_lock lock(m_mutex);
        m_controls.append({code, inputSize, outputSize, path,
                           QByteArray(static_cast<const char *>(input), qsizetype(inputSize))});
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

HANDLE Win32Faults::firstVolume(LPWSTR name, DWORD room)
{
    const HANDLE search = ::CreateEventW(nullptr, FALSE, FALSE, nullptr); // a handle distinct from all others
    {
        const std::scoped_lock lock(m_mutex);
        QStringList volumes = m_devices.keys();
        volumes.removeIf([](const QString &path) { return !path.startsWith(VolumePrefix); });
        volumes.sort();
        m_searches.insert(search, volumes);
    }
    if (nextVolume(search, name, room))
        return search;
    const DWORD error = ::GetLastError();
    closeSearch(search);
    ::SetLastError(error);
    return INVALID_HANDLE_VALUE;
}

BOOL Win32Faults::nextVolume(HANDLE search, LPWSTR name, DWORD room)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_searches.find(search);
    if (found == m_searches.end() || found->isEmpty()) {
        ::SetLastError(found == m_searches.end() ? ERROR_INVALID_HANDLE : ERROR_NO_MORE_FILES);
        return FALSE;
    }
    const std::wstring path = (found->takeFirst() + u'\\').toStdWString();
    if (path.size() >= room) {
        ::SetLastError(ERROR_FILENAME_EXCED_RANGE);
        return FALSE;
    }
    std::ranges::copy(path, name);
    name[path.size()] = L'\0';
    return TRUE;
}

BOOL Win32Faults::closeSearch(HANDLE search)
{
    const std::scoped_lock lock(m_mutex);
    m_searches.remove(search);
    return ::CloseHandle(search);
}
