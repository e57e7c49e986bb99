#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>
#include <utility>

/// The results of operations of the platform layer. Nothing in this layer throws; the caller decides how to
/// treat a failure.

namespace platform {

/// Error numbers as shown to users. They are the Win32 numbers on every system. The Windows backend passes
/// GetLastError() on unchanged; the others map their own numbers in one table (linux/linuxerrnotable.h).
enum ErrorCode : quint32 {
    NoError = 0,
    FileNotFound = 2,
    PathNotFound = 3,
    TooManyOpenFiles = 4,
    AccessDenied = 5,
    NotEnoughMemory = 8,
    NotSameDevice = 17,
    WriteProtect = 19,
    BadUnit = 20,
    NotReady = 21,
    SectorNotFound = 27,
    WriteFault = 29,
    GeneralFailure = 31,
    SharingViolation = 32,
    LockViolation = 33,
    WrongDisk = 34,
    NotSupported = 50,
    DeviceNotExist = 55,
    UnexpectedNetworkError = 59,
    NetworkNameDeleted = 64,
    InvalidParameter = 87,
    DiskFull = 112,
    SemaphoreTimeout = 121,
    DirectoryNotEmpty = 145,
    AlreadyExists = 183,
    FileNameTooLong = 206,
    FileTooLarge = 223,
    MoreData = 234,
    NoSuchDevice = 433,
    DeviceHardwareError = 483,
    UnrecognizedVolume = 1005,
    FileInvalid = 1006,
    MediaChanged = 1110,
    NoMediaInDrive = 1112,
    IoDevice = 1117,
    MisalignedBuffer = 1132,
    DeviceNotConnected = 1167,
    RequestAborted = 1235,
    DiskQuotaExceeded = 1295,
    FileCorrupt = 1392,
    DeviceRemoved = 1617,
    CannotAccessFile = 1920,
    FileOffline = 4350,
    EncryptedVolumeLocked = 0x80310000, ///< FVE_E_LOCKED_VOLUME
};

/// Success, or the number shown to users together with the details for diagnostics: the system's own number
/// and the name of the failed call (a string literal).
struct [[nodiscard]] Status
{
    quint32 code = NoError;
    int native = 0;
    const char *operation = "";

    bool ok() const { return code == NoError; }
    explicit operator bool() const { return ok(); }

    /// Whether a query of a path reports that the entry does not exist. Every other failure leaves that
    /// unknown, and such an entry must never count as absent.
    bool isAbsent() const { return code == FileNotFound || code == PathNotFound; }

    /// The system's text for its own number, for users; empty without a number.
    QString systemText() const { return native != 0 ? qt_error_string(native) : QString(); }

    /// "open: 32 (system error 16)", for the debug output.
    QString diagnostic() const
    {
        return QStringLiteral("%1: %2 (system error %3)").arg(QLatin1String(operation)).arg(code).arg(native);
    }
};

/// A value, or the Status of the failure. Reading the value of a failure is a programming error.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value) // NOLINT(google-explicit-constructor): so that `return value;` reads as it is meant
        : m_value(std::move(value))
    {}
    Result(Status failure) // NOLINT(google-explicit-constructor)
        : m_status(failure)
    {
        Q_ASSERT(!failure.ok());
    }

    bool ok() const { return m_value.has_value(); }
    explicit operator bool() const { return ok(); }
    /// Success when there is a value.
    const Status &status() const { return m_status; }
    quint32 code() const { return m_status.code; }

    const T &value() const
    {
        Q_ASSERT(ok());
        return *m_value;
    }
    T &value()
    {
        Q_ASSERT(ok());
        return *m_value;
    }
    T take()
    {
        Q_ASSERT(ok());
        return std::move(*m_value);
    }
    T valueOr(T otherwise) const
    {
        if (ok())
            return *m_value;
        return otherwise;
    }

private:
    std::optional<T> m_value;
    Status m_status;
};

} // namespace platform
