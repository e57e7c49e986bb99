#pragma once

#include "platform/status.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace platform {

/// Why the system is to stay awake.
struct AwakeRequest
{
    QString reason; ///< for the user, whom the system may show it: a short sentence
    quintptr window =
        0; ///< the program's window, as QWidget::winId() tells it, of the calling thread; 0: none
};

/// Keeps the system awake until destruction, which is on the thread that asked for it.
class AwakeHold
{
public:
    AwakeHold() = default;
    virtual ~AwakeHold() = default;
    AwakeHold(const AwakeHold &) = delete;
    AwakeHold &operator=(const AwakeHold &) = delete;

    /// Whether a shutdown can be refused meanwhile: the system then shows the user the reason, and who goes
    /// on all the same ends the program.
    virtual bool delaysShutdown() const = 0;
};

/// The running system and who uses it. Thread-safe.
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
    /// told.
    /// Linux: the media under what is mounted on "/", "/boot", "/boot/efi", "/efi", "/usr", "/var", "/home"
    /// and
    /// "/nix", through overlays and image files, and every active swap device. When the root leads to no
    /// medium in sight, every mounted volume of a block device, and what else is in use.
    virtual QStringList systemVolumes() = 0;

    /// Whether the root path is that of the volume shown to users as the system volume.
    /// Windows: begins with "C:", whatever the case. Linux: one of the mount points above.
    virtual bool isSystemRoot(const QString &rootPath) = 0;

    /// Whether the volume needs the large reserve of free space because the system itself writes there.
    /// Windows: the first two characters of GetWindowsDirectoryW begin the root path, whatever the case.
    /// Linux: as isSystemRoot.
    virtual bool holdsSystemFiles(const QString &rootPath) = 0;

    /// Who runs the program, as the system's own name for the user in folders and reports; empty when the
    /// system does not tell. Windows: OpenProcessToken(TOKEN_QUERY), GetTokenInformation(TokenUser),
    /// ConvertSidToStringSidW ("S-1-5-21-..."). Linux: the numeric user id.
    virtual QString userId() = 0;

    /// Whether the program has the rights that drives ask for. Windows: OpenProcessToken(TOKEN_QUERY),
    /// GetTokenInformation(TokenElevation). Linux: the effective user is root.
    virtual Result<bool> isAdministrator() = 0;

    /// The account that runs the program, as people know it, when it is not that of whoever sits before the
    /// desktop or has asked for more rights: its Recycle Bin is another one. Empty when it is the same, or
    /// the system does not tell. Windows: the owner of GetShellWindow's process; "COMPUTER\name"
    /// (LookupAccountSidW). Linux: the user in effect is not that of SUDO_UID or PKEXEC_UID; the name of
    /// getpwuid.
    virtual QString foreignAccount() = 0;

    /// Something was taken out of the Recycle Bin past the shell, which is to look at it again. Windows:
    /// SHUpdateRecycleBinIcon and SHChangeNotify(SHCNE_UPDATEDIR). Linux: is seen anyway.
    virtual void tellBinChanged() = 0;

    /// Keeps the system from falling asleep by itself; a screen may go dark. Holds of one thread end in the
    /// reverse order. Fails where nothing can be asked for it (NotSupported) or the answer is no.
    /// Windows: SetThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED) and back to what was set before;
    /// with a window ShutdownBlockReasonCreate and ShutdownBlockReasonDestroy, whose refusal only leaves the
    /// shutdown as it is. Linux: a lock of logind (Inhibit "sleep:shutdown:idle", "block"), which also keeps
    /// other users from shutting down and may show them the reason.
    virtual Result<std::unique_ptr<AwakeHold>> keepAwake(const AwakeRequest &request) = 0;
};

} // namespace platform
