#pragma once

#include "platform/status.h"

namespace platform {

// The one place where error numbers of Linux become those that users are shown. What the table does not list
// becomes GeneralFailure; the number itself stays in Status::native. operation is a string literal, the name
// of the call.
Status statusFromErrno(int error, const char *operation);

// Whether the call that has just failed with this number found nothing under its name: Status::isAbsent() for
// calls that take one name in an open folder.
bool isAbsentErrno(int error);

} // namespace platform
