#pragma once

#include "platform/windows/windowsheaders.h"

#include <QString>

namespace platform {

/// The account that a process runs for, as its SID ("S-1-5-21-..."); empty when the system gives none.
QString accountOf(HANDLE process);

/// The account that a process runs for, as a readable name ("COMPUTER\name"), or as its SID where it has no
/// name.
QString accountNameOf(HANDLE process);

/// Whether the desktop belongs to another account, judged by the owner of the shell's window. False without a
/// shell.
bool isDesktopOfAnother();

} // namespace platform
