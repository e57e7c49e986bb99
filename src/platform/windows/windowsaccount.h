#pragma once

#include "platform/windows/windowsheaders.h"

#include <QString>

namespace platform {

// The account that a process runs for, as its SID ("S-1-5-21-..."); empty when the system does not tell.
QString accountOf(HANDLE process);

// The same as people know it ("COMPUTER\name"), its SID where it has no name.
QString accountNameOf(HANDLE process);

// Whether the desktop is another account's: the owner of the window that the shell has for it. Not so without
// a shell.
bool isDesktopOfAnother();

} // namespace platform
