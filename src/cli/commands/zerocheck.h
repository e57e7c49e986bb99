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
    qint64 firstOther = -1; // offset of the first byte that is not 0x00; below 0: there is none
    int otherByte = 0;      // that byte
};

// Reads an image file or a whole drive, past any cache, up to the first byte that is not 0x00. Nothing is
// written. Refused when there is no such file or drive, or not permitted; Cancelled on a stop request;
// JobFailed when it cannot be read to its end, so that nobody takes the rest for zeros.
Outcome<ZeroCheck> checkZeros(const QString &path, const StopRequest &stop);

} // namespace cli
