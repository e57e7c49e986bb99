#pragma once

#include "cli/outcome.h"

#include <QString>
#include <QtGlobal>

#include <functional>

namespace cli {

class StopRequest;

struct ZeroCheck
{
    qint64 bytesRead = 0;
    qint64 firstOther = -1; ///< offset of the first byte other than 0x00; negative: there is none
    int otherByte = 0;      ///< value of that byte
};

/// Reads an image file or a drive, bypassing caches, up to the first byte other than 0x00. Nothing is
/// written. Refused when the file or drive does not exist or may not be read; Cancelled on a stop request;
/// JobFailed when it cannot be read completely, because unread bytes must not count as zeros.
Outcome<ZeroCheck> checkZeros(const QString &path, const StopRequest &stop);

} // namespace cli
