#pragma once

#include "platform/status.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace platform {

/// A request to keep the system awake.
struct AwakeRequest
{
    QString reason; ///< a short sentence that the system may show to the user
    /// A window of the program that belongs to the calling thread, as QWidget::winId() returns it; 0: none.
    quintptr window = 0;
};

/// Keeps the system awake until destruction, which must happen on the thread that made the request.
class AwakeHold
{
public:
    AwakeHold() = default;
    virtual ~AwakeHold() = default;
    AwakeHold(const AwakeHold &) = delete;
    AwakeHold &operator=(const AwakeHold &) = delete;

    /// Whether the hold can also block a shutdown. The system then shows the reason to the user, who can
    /// still shut down and end the program.
    virtual bool delaysShutdown() const = 0;
};

/// The running system and its users. Thread-safe.
class Session
{
public:
    Session() = default;
    virtual ~Session() = default;
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// Volumes that the running system needs, as Devices::queryVolume takes them. Every drive under one of
    /// them is a system disk. Windows: the environment variable "SystemDrive", "C:" when it is empty; the
    /// partition that the machine starts from (the value SystemPartition of HKLM\SYSTEM\Setup), when it is
    /// known. Linux: the media under the file systems mounted on "/", "/boot", "/boot/efi", "/efi", "/usr",
    /// "/var", "/home" and "/nix", through overlays and image files, and every active swap device. When the
    /// root leads to no visible medium, every mounted volume of a block device, and the other devices in use.
    virtual QStringList systemVolumes() = 0;

    /// Whether the root path is that of the volume shown to users as the system volume. Windows: begins with
    /// "C:", whatever the case. Linux: one of the mount points above.
    virtual bool isSystemRoot(const QString &rootPath) = 0;

    /// Whether the volume needs the large reserve of free space because the system itself writes there.
    /// Windows: the first two characters of GetWindowsDirectoryW begin the root path, whatever the case.
    /// Linux: as isSystemRoot.
    virtual bool holdsSystemFiles(const QString &rootPath) = 0;

    /// The user who runs the program, as the system's own identifier in folders and reports; empty when it is
    /// unknown. Windows: OpenProcessToken(TOKEN_QUERY), GetTokenInformation(TokenUser),
    /// ConvertSidToStringSidW ("S-1-5-21-..."). Linux: the numeric user id.
    virtual QString userId() = 0;

    /// Whether the program has the rights that access to drives requires. Windows:
    /// OpenProcessToken(TOKEN_QUERY), GetTokenInformation(TokenElevation). Linux: the effective user is root.
    virtual Result<bool> isAdministrator() = 0;

    /// The name of the account that runs the program, when it differs from the account of the desktop or the
    /// account that requested more rights; the two accounts have different Recycle Bins. Empty when they are
    /// the same, or the system does not tell. Windows: the owner of GetShellWindow's process; "COMPUTER\name"
    /// (LookupAccountSidW). Linux: the effective user is not that of SUDO_UID or PKEXEC_UID; the name of
    /// getpwuid.
    virtual QString foreignAccount() = 0;

    /// Makes the shell update its view of the Recycle Bin after an entry was removed without the shell.
    /// Windows: SHUpdateRecycleBinIcon and SHChangeNotify(SHCNE_UPDATEDIR). Linux: does nothing, the desktop
    /// notices the change.
    virtual void tellBinChanged() = 0;

    /// Keeps the system from going to sleep automatically; a screen may still turn off. Holds of one thread
    /// end in the reverse order. Fails where the system offers no such service (NotSupported) or refuses the
    /// request. Windows: SetThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED), and back to the
    /// previous state afterwards; with a window ShutdownBlockReasonCreate and ShutdownBlockReasonDestroy,
    /// whose failure only leaves the shutdown unblocked. Linux: a lock of logind (Inhibit
    /// "sleep:shutdown:idle", "block"), which also keeps other users from shutting down and may show them the
    /// reason.
    virtual Result<std::unique_ptr<AwakeHold>> keepAwake(const AwakeRequest &request) = 0;
};

} // namespace platform
