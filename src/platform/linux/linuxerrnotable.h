#pragma once

#include "platform/status.h"

namespace platform {

/// The only mapping of Linux error numbers to the numbers shown to users. A number outside the table becomes
/// GeneralFailure; the number itself stays in Status::native. operation is a string literal, the name of the
/// call.
Status statusFromErrno(int error, const char *operation);

/// Whether this error number of a failed call means that the name does not exist. The counterpart of
/// Status::isAbsent() for calls that take one name in an open folder.
bool isAbsentErrno(int error);

} // namespace platform
