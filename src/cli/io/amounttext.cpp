#include "cli/io/amounttext.h"

#include "cli/texts.h"

namespace cli {

using namespace Qt::StringLiterals;

QString passCountText(int count)
{
    return count == 1 ? Cli::tr("1 pass") : Cli::tr("%1 passes").arg(count);
}

QString fileCountText(int count)
{
    return count == 1 ? Cli::tr("1 file") : Cli::tr("%1 files").arg(count);
}

QString durationText(qint64 seconds)
{
    const qint64 hours = seconds / 3600;
    const qint64 minutes = seconds / 60 % 60;
    const qint64 rest = seconds % 60;
    if (hours > 0)
        return u"%1h %2m %3s"_s.arg(hours).arg(minutes).arg(rest);
    return minutes > 0 ? u"%1m %2s"_s.arg(minutes).arg(rest) : u"%1s"_s.arg(rest);
}

} // namespace cli
